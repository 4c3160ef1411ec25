// Mehrere klangkartei-cli zugleich auf einem Index, und Speicherungen, die SIGKILL mittendrin
// trifft: kein gemeldeter Eintrag geht verloren, niemand liest eine halbe Datei.
#include "IndexTestHilfen.h"
#include "app/HalbeDatei.h"
#include "app/Kartei.h"
#include "index/Dateitypen.h"
#include "support/CliAufruf.h"
#include "support/IndexGenerator.h"
#include "support/MpegDaten.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <dirent.h>
#include <fcntl.h>
#include <random>
#include <spawn.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

extern char** environ;

namespace {
// Startet klangkartei-cli im Testordner mit eigenen XDG-Ordnern; Ausgaben verworfen.
pid_t CliStarten(const TestOrdner& o, const std::vector<std::string>& argumente) {
    std::vector<std::string> umgebung = {
        "XDG_CONFIG_HOME=" + o / "konfig", "XDG_DATA_HOME=" + o / "daten", "XDG_CACHE_HOME=" + o / "cache",
        "ASAN_OPTIONS=detect_leaks=0",     "PATH=/usr/bin:/bin",           "HOME=" + o.Pfad()};
    std::vector<std::string> argv = {KK_CLI};
    argv.insert(argv.end(), argumente.begin(), argumente.end());
    std::vector<char*> a, u;
    for (auto& s : argv) a.push_back(s.data());
    for (auto& s : umgebung) u.push_back(s.data());
    a.push_back(nullptr);
    u.push_back(nullptr);
    posix_spawn_file_actions_t aktionen;
    posix_spawn_file_actions_init(&aktionen);
    posix_spawn_file_actions_addopen(&aktionen, 1, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&aktionen, 2, "/dev/null", O_WRONLY, 0);
    pid_t pid = -1;
    if (posix_spawn(&pid, KK_CLI, &aktionen, nullptr, a.data(), u.data()) != 0) pid = -1;
    posix_spawn_file_actions_destroy(&aktionen);
    return pid;
}

int Warten(pid_t pid) {
    int status = 0;
    if (pid <= 0 || ::waitpid(pid, &status, 0) != pid) return -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

// Lädt den Index frisch; false, wenn er nicht ganz ist (Kopf, Zeilenende, jede Zeile ein Eintrag).
bool GanzGeladen(const std::string& pfad, int32_t& anzahl, std::vector<std::string>& pfade) {
    const std::string bytes = DateiLesen(pfad);
    if (!bytes.starts_with("#TAG:kk102\r\n") || !bytes.ends_with("\r\n")) return false;
    TestUmgebung u;
    u.k.E.Mp3TagLesen = "000";
    if (!DateiLaden(u.k, pfad)) return false;
    anzahl = u.k.DateiAnzahl;
    pfade.assign(u.k.DateiPfade.begin(), u.k.DateiPfade.begin() + anzahl);
    size_t zeilen = 0;
    for (size_t p = 0; (p = bytes.find("\r\n#TAG:", p)) != std::string::npos; ++p) ++zeilen;
    return zeilen == size_t(anzahl);
}

// Ein Index mit anzahl erfundenen Einträgen und den Vorgabe-Dateitypen (sonst nähme add kein MP3).
bool IndexDateiErzeugen(const std::string& pfad, int32_t anzahl) {
    TestUmgebung u;
    IndexErzeugen(u.k, anzahl, 5);
    DateitypenVorgabenWennLeer(u.k.Optionen);
    return DateiSpeichern(u.k, pfad, false);
}

size_t TempReste(const std::string& ordner) {
    size_t n = 0;
    DIR* d = ::opendir(ordner.c_str());
    while (const dirent* e = d ? ::readdir(d) : nullptr)
        n += std::string_view(e->d_name).find(".speichern-") != std::string_view::npos;
    if (d) ::closedir(d);
    return n;
}
}  // namespace

TEST(IndexProzesse, ZweiUndDreiZugleichVerlierenNichts) {
    TestOrdner o;
    ASSERT_TRUE(IndexDateiErzeugen(o / "i.kkt", 200));
    const std::string lied = mpeg::Frame(mpeg::Kopf{}) + mpeg::Füllung(400);
    int32_t erwartet = 200;
    for (int runde = 0; runde < 50; ++runde) {
        const int prozesse = runde % 2 == 0 ? 2 : 3;
        std::vector<std::string> neu;
        std::vector<pid_t> pids;
        for (int p = 0; p < prozesse; ++p) {
            neu.push_back(o / ("r" + std::to_string(runde) + "p" + std::to_string(p) + ".mp3"));
            DateiSchreiben(neu.back(), lied);
        }
        for (const auto& datei : neu) pids.push_back(CliStarten(o, {"--index", o / "i.kkt", "add", datei}));
        const pid_t leser = CliStarten(o, {"--index", o / "i.kkt", "show", "--count"});
        for (size_t p = 0; p < pids.size(); ++p) ASSERT_EQ(Warten(pids[p]), 0) << "Runde " << runde << ", " << neu[p];
        ASSERT_EQ(Warten(leser), 0) << "Runde " << runde;  // ein Leser lädt nie eine halbe Datei
        int32_t anzahl = 0;
        std::vector<std::string> pfade;
        ASSERT_TRUE(GanzGeladen(o / "i.kkt", anzahl, pfade)) << "Runde " << runde;
        erwartet += prozesse;
        ASSERT_EQ(anzahl, erwartet) << "Runde " << runde;
        for (const auto& datei : neu)
            ASSERT_NE(std::find(pfade.begin(), pfade.end(), datei), pfade.end()) << "Runde " << runde << ", " << datei;
    }
    EXPECT_EQ(TempReste(o.Pfad()), 0u);
}

TEST(IndexProzesse, SigkillWährendDesSpeichernsLässtAltOderNeu) {
    TestOrdner o;
    constexpr int32_t kAnzahl = 10000;  // einige MB: das Schreiben dauert lange genug, um getroffen zu werden
    ASSERT_TRUE(IndexDateiErzeugen(o / "gross.kkt", kAnzahl));
    const std::string lied = mpeg::Frame(mpeg::Kopf{}) + mpeg::Füllung(400);
    // Gespeichert wird, solange die eigene temporäre Datei besteht: erst auf sie warten, dann
    // irgendwann in der Zeit schießen, die ein ungestörtes Speichern braucht.
    auto bisZumSpeichern = [&](pid_t pid) {
        int status = 0;
        while (TempReste(o.Pfad()) == 0) {
            if (::waitpid(pid, &status, WNOHANG) == pid) return false;
            std::this_thread::sleep_for(std::chrono::microseconds(300));
        }
        return true;
    };
    DateiSchreiben(o / "erst.mp3", lied);
    const pid_t erster = CliStarten(o, {"--index", o / "gross.kkt", "add", o / "erst.mp3"});
    ASSERT_TRUE(bisZumSpeichern(erster));
    const auto anfang = std::chrono::steady_clock::now();
    ASSERT_EQ(Warten(erster), 0);
    const auto speichern =
        std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - anfang);
    int32_t vorher = 0;
    std::vector<std::string> pfade;
    ASSERT_TRUE(GanzGeladen(o / "gross.kkt", vorher, pfade));
    ASSERT_EQ(vorher, kAnzahl + 1);

    std::mt19937 zufall(12);
    std::uniform_int_distribution<int64_t> wann(0, speichern.count());
    int getroffen = 0;
    for (int schuss = 0; schuss < 30 && getroffen < 22; ++schuss) {
        const std::string datei = o / ("k" + std::to_string(schuss) + ".mp3");
        DateiSchreiben(datei, lied);
        const pid_t pid = CliStarten(o, {"--index", o / "gross.kkt", "add", datei});
        if (bisZumSpeichern(pid)) {
            std::this_thread::sleep_for(std::chrono::microseconds(wann(zufall)));
            ::kill(pid, SIGKILL);
        }
        const int rückgabe = Warten(pid);
        getroffen += rückgabe == 128 + SIGKILL;
        int32_t nachher = 0;
        ASSERT_TRUE(GanzGeladen(o / "gross.kkt", nachher, pfade)) << "Schuss " << schuss;
        ASSERT_TRUE(nachher == vorher || nachher == vorher + 1) << "Schuss " << schuss << ": " << nachher;
        if (rückgabe == 0) {
            ASSERT_EQ(nachher, vorher + 1) << "Schuss " << schuss;
        }
        vorher = nachher;
    }
    EXPECT_GE(getroffen, 20);
    // Der nächste Lauf räumt die Reste der getöteten auf.
    DateiSchreiben(o / "zuletzt.mp3", lied);
    ASSERT_EQ(Warten(CliStarten(o, {"--index", o / "gross.kkt", "add", o / "zuletzt.mp3"})), 0);
    EXPECT_EQ(TempReste(o.Pfad()), 0u);
}

TEST(IndexProzesse, SigtermLöschtDieHalbeDatei) {
    TestOrdner o;
    DateiSchreiben(o / "lied.mp3-neu", "halb geschrieben");
    const pid_t kind = ::fork();
    if (kind == 0) {
        HalbeDateiSignaleEinrichten();
        HalbeDateiMerken((o / "lied.mp3-neu").c_str());
        ::raise(SIGTERM);
        ::_exit(0);
    }
    EXPECT_EQ(Warten(kind), 128 + SIGTERM);  // endet wie ohne Einrichtung durch das Signal
    EXPECT_FALSE(DoesExist(o / "lied.mp3-neu"));
}
