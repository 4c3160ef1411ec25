// Die Indexdatei auf der Platte: was keine gewöhnliche Datei ist, was nicht gelesen oder nicht
// geschrieben werden darf, Verknüpfungen, Rechte, fremde Änderungen, eine abgelehnte Datei.
#include "IndexTestHilfen.h"
#include "app/IndexOeffnen.h"
#include "app/Kartei.h"
#include "app/Tabelle.h"
#include "index/Spalten.h"
#include "app/Ergebnisliste.h"
#include "shell/Beenden.h"
#include "support/IndexGenerator.h"
#include "support/OhneVorrechte.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {
const std::string kNichtGelesen = "\n\nEs wurde kein Index geladen; die Datei bleibt unverändert.";

std::string Verknüpfung(const std::string& pfad) {
    char ziel[4096];
    const ssize_t n = ::readlink(pfad.c_str(), ziel, sizeof ziel);
    return n < 0 ? std::string() : std::string(ziel, size_t(n));
}

mode_t Rechte(const std::string& pfad) {
    struct stat st {};
    ::stat(pfad.c_str(), &st);
    return st.st_mode & 07777;
}

// Namen im Ordner, die nicht in erwartet stehen (etwa liegengebliebene temporäre Dateien).
std::vector<std::string> Fremde(const std::string& ordner, const std::vector<std::string>& erwartet) {
    std::vector<std::string> fremd;
    DIR* d = ::opendir(ordner.c_str());
    while (const dirent* e = d ? ::readdir(d) : nullptr) {
        const std::string name = e->d_name;
        if (name != "." && name != ".." && std::find(erwartet.begin(), erwartet.end(), name) == erwartet.end())
            fremd.push_back(name);
    }
    if (d) ::closedir(d);
    return fremd;
}
}  // namespace

TEST(IndexZugriff, WasKeineDateiIstWirdWederGelesenNochErsetzt) {
    TestOrdner o;
    ::mkdir((o / "ordner.kkt").c_str(), 0755);
    ::mkfifo((o / "rohr.kkt").c_str(), 0644);
    ::symlink("/dev/null", (o / "geraet.kkt").c_str());
    const std::pair<const char*, const char*> fälle[] = {
        {"ordner.kkt", "ein Ordner"}, {"rohr.kkt", "eine benannte Pipe (FIFO)"}, {"geraet.kkt", "ein Gerät"}};
    for (auto [name, art] : fälle) {
        TestUmgebung u;  // keine Antwort im Skript: eine Frage nach dem alten Format ließe den Test scheitern
        EXPECT_FALSE(DateiLaden(u.k, o / name)) << name;
        ASSERT_EQ(u.ui.meldungen.size(), 1u) << name;
        EXPECT_EQ(u.ui.meldungen[0].text, "Die Indexdatei '" + o / name + "' kann nicht gelesen werden.\n" +
                                              "Unter diesem Namen steht " + art + "." + kNichtGelesen);
        EXPECT_EQ(u.ui.meldungen[0].schalter, 48);

        TestUmgebung s;
        IndexErzeugen(s.k, 2);
        EXPECT_FALSE(DateiSpeichern(s.k, o / name, false)) << name;
        ASSERT_EQ(s.ui.meldungen.size(), 1u) << name;
        EXPECT_EQ(s.ui.meldungen[0].text, "Die Indexdatei '" + o / name +
                                              "' konnte nicht gespeichert werden.\nUnter diesem Namen steht " + art +
                                              ", keine Indexdatei. Sie wird nicht ersetzt.");
    }
    struct stat st {};
    EXPECT_TRUE(::stat((o / "ordner.kkt").c_str(), &st) == 0 && S_ISDIR(st.st_mode));
    EXPECT_TRUE(::stat((o / "rohr.kkt").c_str(), &st) == 0 && S_ISFIFO(st.st_mode));
    EXPECT_EQ(Verknüpfung(o / "geraet.kkt"), "/dev/null");
    EXPECT_TRUE(::stat("/dev/null", &st) == 0 && S_ISCHR(st.st_mode));
    EXPECT_EQ(Fremde(o.Pfad(), {"ordner.kkt", "rohr.kkt", "geraet.kkt"}), std::vector<std::string>{});
}

TEST(IndexZugriff, VerknüpfungUndRechteBleiben) {
    TestOrdner o;
    ::mkdir((o / "sync").c_str(), 0755);
    DateiSchreiben(o / "sync/echt.kkt", "#TAG:kk102\r\n");
    ::chmod((o / "sync/echt.kkt").c_str(), 0600);
    ::symlink("sync/echt.kkt", (o / "index.kkt").c_str());  // relativ, wie ein Nutzer sie anlegt
    TestUmgebung u;
    ASSERT_TRUE(DateiLaden(u.k, o / "index.kkt"));
    IndexErzeugen(u.k, 4);
    ASSERT_TRUE(DateiSpeichern(u.k, o / "index.kkt", false));
    EXPECT_EQ(Verknüpfung(o / "index.kkt"), "sync/echt.kkt");
    EXPECT_EQ(Rechte(o / "sync/echt.kkt"), 0600u);
    TestUmgebung v;
    ASSERT_TRUE(DateiLaden(v.k, o / "index.kkt"));
    EXPECT_EQ(v.k.DateiAnzahl, 4);
    EXPECT_EQ(Fremde(o / "sync", {"echt.kkt"}), std::vector<std::string>{});

    // Eine neue Datei bekommt die übliche Maske, nicht die 0600 der temporären Datei.
    const mode_t maske = ::umask(022);
    ASSERT_TRUE(DateiSpeichern(u.k, o / "neu.kkt", false));
    ::umask(maske);
    EXPECT_EQ(Rechte(o / "neu.kkt"), 0644u);
}

TEST(IndexZugriff, SchreibgeschütztWirdAbgelehnt) {
    TestOrdner o;
    DateiSchreiben(o / "a.kkt", "#TAG:kk102\r\n");
    ::chmod((o / "a.kkt").c_str(), 0444);
    TestUmgebung u;
    ASSERT_TRUE(DateiLaden(u.k, o / "a.kkt"));  // lesen darf man sie
    IndexErzeugen(u.k, 2);
    EXPECT_FALSE(DateiSpeichern(u.k, o / "a.kkt", false));  // auch root ersetzt sie nicht
    ASSERT_EQ(u.ui.meldungen.size(), 1u);
    EXPECT_EQ(u.ui.meldungen[0].text, "Die Indexdatei '" + o / "a.kkt" +
                                          "' konnte nicht gespeichert werden.\nZugriff verweigert: die Datei ist "
                                          "schreibgeschützt.");
    EXPECT_EQ(DateiLesen(o / "a.kkt"), "#TAG:kk102\r\n");
}

TEST(IndexZugriff, OhneVorrechteFremdeDateien) {
    if (::geteuid() != 0) GTEST_SKIP() << "Läuft nicht als root: kein anderer Nutzer, auf den der Test wechseln kann.";
    TestOrdner o;
    ::chmod(o.Pfad().c_str(), 0777);
    DateiSchreiben(o / "fremd.kkt", "#TAG:kk102\r\n");  // gehört root, 0644: nobody darf lesen, nicht schreiben
    DateiSchreiben(o / "geheim.kkt", "#TAG:kk102\r\n");
    ::chmod((o / "geheim.kkt").c_str(), 0600);
    const std::string ergebnis = OhneVorrechteAusführen([&] {
        TestUmgebung u;
        std::string aus = DateiLaden(u.k, o / "fremd.kkt") ? "geladen" : "nicht geladen";
        IndexErzeugen(u.k, 2);
        aus += DateiSpeichern(u.k, o / "fremd.kkt", false) ? "|gespeichert" : "|" + u.ui.meldungen.back().text;
        TestUmgebung v;
        aus += DateiLaden(v.k, o / "geheim.kkt") ? "|geladen" : "|" + v.ui.meldungen.back().text;
        return aus + "|" + std::to_string(v.ui.meldungen.size());
    });
    EXPECT_EQ(ergebnis, "geladen|Die Indexdatei '" + o / "fremd.kkt" +
                            "' konnte nicht gespeichert werden.\nZugriff verweigert.|Die Indexdatei '" +
                            o / "geheim.kkt" + "' kann nicht gelesen werden.\nZugriff verweigert." + kNichtGelesen +
                            "|1");
    EXPECT_EQ(DateiLesen(o / "fremd.kkt"), "#TAG:kk102\r\n");
    EXPECT_EQ(DateiLesen(o / "geheim.kkt"), "#TAG:kk102\r\n");
}

TEST(IndexZugriff, FremdeÄnderungSeitDemLaden) {
    TestOrdner o;
    TestUmgebung u;
    ASSERT_TRUE(DateiLaden(u.k, o / "a.kkt"));
    IndexErzeugen(u.k, 3);
    DateiGeändertSetzen(u.k);
    DateiSchreiben(o / "a.kkt", "#TAG:kk102\r\n#OPT:SYNC_ENTFERNEN=0\r\n");  // ein anderes Programm
    u.ui.antworten = {Meldung::Nein};
    EXPECT_FALSE(DateiSpeichern(u.k, o / "a.kkt", false));
    ASSERT_EQ(u.ui.meldungen.size(), 1u);
    EXPECT_TRUE(u.ui.meldungen[0].text.starts_with(
        "Die Indexdatei wurde inzwischen von einem anderen Programm geändert:\n'" + o / "a.kkt" + "'\n"));
    EXPECT_EQ(u.ui.meldungen[0].schalter, 52);
    EXPECT_EQ(DateiLesen(o / "a.kkt"), "#TAG:kk102\r\n#OPT:SYNC_ENTFERNEN=0\r\n");
    EXPECT_TRUE(u.k.DateiGeändert);
    EXPECT_EQ(u.k.DateiAnzahl, 3);

    u.ui.antworten = {Meldung::Ja};
    ASSERT_TRUE(DateiSpeichern(u.k, o / "a.kkt", false));
    EXPECT_EQ(u.ui.meldungen.size(), 2u);
    ASSERT_TRUE(DateiSpeichern(u.k, o / "a.kkt", false));  // die eigene Speicherung ist keine fremde Änderung
    EXPECT_EQ(u.ui.meldungen.size(), 2u);
}

TEST(IndexZugriff, AbgelehnteDateiWirdNieÜberschrieben) {
    TestOrdner o;
    const std::string m3u = "#EXTM3U\r\n#EXTINF:100,Band - Lied\r\n/musik/lied.mp3\r\n";
    DateiSchreiben(o / "liste.m3u", m3u);
    TestUmgebung u;
    u.k.Dateiname = o / "liste.m3u";
    u.ui.antworten = {Meldung::Nein};  // "älteres Dateiformat … laden?"
    EXPECT_FALSE(IndexÖffnen(u.k, ""));
    // Eine Spaltenanordnung ohne Index ist keine Änderung; beim Schließen wird nicht gefragt.
    Ergebnisliste liste;
    liste.spalten = {{"Titel", "", 2000, 4}};
    SpaltenSpeichern(u.k, liste);
    EXPECT_FALSE(u.k.DateiGeändert);
    u.k.DateiGeändert = true;
    EXPECT_TRUE(GeändertenIndexSichern(u.k));
    EXPECT_EQ(u.ui.meldungen.size(), 1u);
    EXPECT_FALSE(DateiSpeichern(u.k, u.k.Dateiname, false));
    EXPECT_EQ(u.ui.meldungen.back().text, "Es ist keine Indexdatei geladen; es wurde nichts gespeichert.");
    EXPECT_EQ(DateiLesen(o / "liste.m3u"), m3u);
    EXPECT_EQ(Fremde(o.Pfad(), {"liste.m3u"}), std::vector<std::string>{});
    EXPECT_FALSE(RegelmäßigSpeichernPrüfen(u.k));
}

TEST(IndexZugriff, RestEinerAbgebrochenenSpeicherungVerschwindet) {
    TestOrdner o;
    TestUmgebung u;
    ASSERT_TRUE(DateiLaden(u.k, o / "a.kkt"));
    DateiSchreiben(o / ".a.kkt.speichern-Ab12Cd", "halb");  // ein getöteter Vorgänger
    DateiSchreiben(o / ".a.kkt.speichern-zu-lang", "fremd");
    IndexErzeugen(u.k, 2);
    ASSERT_TRUE(DateiSpeichern(u.k, o / "a.kkt", false));
    EXPECT_EQ(Fremde(o.Pfad(), {"a.kkt"}), std::vector<std::string>{".a.kkt.speichern-zu-lang"});
}
