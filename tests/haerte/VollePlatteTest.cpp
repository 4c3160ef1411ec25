// Speichern auf einen vollen Datenträger: die alte Indexdatei bleibt ganz, die Meldung ist deutsch.
// Der Datenträger ist ein kleines tmpfs in einem eigenen Namensraum eines Kindprozesses.
#include "app/Kartei.h"
#include "app/SystemFehler.h"
#include "app/Tabelle.h"
#include "index/IndexDatei.h"
#include "support/Attrappen.h"
#include "support/IndexGenerator.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {
bool Schreiben(const std::string& pfad, const std::string& text) {
    const int fd = ::open(pfad.c_str(), O_WRONLY | O_CLOEXEC);
    if (fd < 0) return false;
    const bool gut = ::write(fd, text.data(), text.size()) == ssize_t(text.size());
    ::close(fd);
    return gut;
}

// Ein eigener Einhänge-Namensraum; ohne Vorrechte über einen Benutzer-Namensraum, der die
// eigene Kennung auf root abbildet. Ergebnis "" oder der Grund, warum es nicht geht.
std::string EigenerNamensraum() {
    const uid_t uid = ::getuid();
    const gid_t gid = ::getgid();
    if (uid != 0) {
        if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) return std::string("unshare: ") + SystemFehlerText(errno);
        Schreiben("/proc/self/setgroups", "deny");
        if (!Schreiben("/proc/self/uid_map", "0 " + std::to_string(uid) + " 1") ||
            !Schreiben("/proc/self/gid_map", "0 " + std::to_string(gid) + " 1"))
            return "uid_map nicht schreibbar";
    } else if (::unshare(CLONE_NEWNS) != 0) {
        return std::string("unshare: ") + SystemFehlerText(errno);
    }
    if (::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0)
        return std::string("mount --make-rprivate: ") + SystemFehlerText(errno);
    return "";
}

// Füllt den Datenträger bis zum letzten Byte; false, wenn er nie voll wurde.
bool Füllen(const std::string& pfad) {
    const int fd = ::open(pfad.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    if (fd < 0) return false;
    const std::string block(4096, 'x');
    bool voll = false;
    for (int i = 0; i < 100000 && !voll; ++i) voll = ::write(fd, block.data(), block.size()) < 0 && errno == ENOSPC;
    for (int i = 0; i < 4096 && voll; ++i) (void)!::write(fd, "x", 1);  // auch den letzten Block
    ::close(fd);
    return voll;
}

struct Befund {
    std::string überspringen;  // nicht leer: kein tmpfs möglich
    std::string fehler;        // leer: alles wie erwartet
    std::string meldung;       // die Meldung beim vollen Datenträger
};

// Läuft im Kindprozess: altes Index speichern, Platte füllen, größeres speichern, prüfen.
Befund ImKind(const std::string& ordner) {
    Befund b;
    b.überspringen = EigenerNamensraum();
    if (b.überspringen.empty() && ::mount("tmpfs", ordner.c_str(), "tmpfs", 0, "size=2m") != 0)
        b.überspringen = std::string("mount tmpfs: ") + SystemFehlerText(errno);
    if (!b.überspringen.empty()) return b;
    const std::string pfad = ordner + "/Klangkt.kkt";
    {
        TestUmgebung u;
        IndexErzeugen(u.k, 200, 3);
        if (!DateiSpeichern(u.k, pfad, false)) b.fehler += "Das alte Index ließ sich nicht speichern. ";
    }
    const std::string alt = DateiLesen(pfad);
    if (!Füllen(ordner + "/füllung")) b.fehler += "Der Datenträger wurde nicht voll. ";
    TestUmgebung u;
    IndexErzeugen(u.k, 3000, 4);
    DateiGeändertSetzen(u.k);
    if (DateiSpeichern(u.k, pfad, false)) b.fehler += "Speichern auf den vollen Datenträger meldete Erfolg. ";
    if (u.ui.meldungen.size() != 1) b.fehler += "Nicht genau eine Meldung. ";
    else b.meldung = u.ui.meldungen[0].text;
    if (DateiLesen(pfad) != alt) b.fehler += "Die alte Indexdatei ist verändert. ";
    if (u.k.DateiGeändert != true) b.fehler += "Der Index gilt als gespeichert. ";
    TestUmgebung neu;
    neu.k.E.Mp3TagLesen = "000";
    if (!DateiLaden(neu.k, pfad) || neu.k.DateiAnzahl != 200) b.fehler += "Das alte Index lädt nicht. ";
    // Mit Platz gelingt dasselbe Speichern, und keine halbe Datei blieb liegen.
    ::unlink((ordner + "/füllung").c_str());
    if (!DateiSpeichern(u.k, pfad, false) || u.ui.meldungen.size() != 1)
        b.fehler += "Mit Platz scheitert das Speichern. ";
    return b;
}

void Senden(int fd, const std::string& t) {
    const uint32_t n = uint32_t(t.size());
    (void)!::write(fd, &n, sizeof n);
    (void)!::write(fd, t.data(), t.size());
}

std::string Empfangen(int fd) {
    uint32_t n = 0;
    if (::read(fd, &n, sizeof n) != sizeof n) return "\x01";
    std::string t(n, '\0');
    size_t gelesen = 0;
    while (gelesen < n) {
        const ssize_t r = ::read(fd, t.data() + gelesen, n - gelesen);
        if (r <= 0) return "\x01";
        gelesen += size_t(r);
    }
    return t;
}
}  // namespace

TEST(VollePlatte, AltesIndexBleibtUndDieMeldungNenntDenGrund) {
    TestOrdner o;
    int rohr[2];
    ASSERT_EQ(::pipe(rohr), 0);
    const pid_t kind = ::fork();
    if (kind == 0) {
        ::close(rohr[0]);
        const Befund b = ImKind(o.Pfad());
        Senden(rohr[1], b.überspringen);
        Senden(rohr[1], b.fehler);
        Senden(rohr[1], b.meldung);
        ::_exit(0);
    }
    ::close(rohr[1]);
    const std::string überspringen = Empfangen(rohr[0]), fehler = Empfangen(rohr[0]), meldung = Empfangen(rohr[0]);
    ::close(rohr[0]);
    int status = 0;
    ::waitpid(kind, &status, 0);
    ASSERT_NE(überspringen, "\x01") << "Der Kindprozess endete vorzeitig";
    if (!überspringen.empty()) GTEST_SKIP() << "Kein eigenes tmpfs möglich (" << überspringen << ")";
    EXPECT_EQ(fehler, "");
    EXPECT_EQ(meldung, "Es ist ein Fehler beim Speichern der Indexdatei aufgetreten. (Fehler 28)\n" +
                           SystemFehlerText(ENOSPC) + ".");
    EXPECT_EQ(SystemFehlerText(ENOSPC), "Kein Platz mehr auf dem Datenträger");
}
