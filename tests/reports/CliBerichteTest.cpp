// Die Befehle export, stats und dupes: Dateien und Ausgaben Byte für Byte, Rückgabewerte.
#include "BerichteHilfen.h"

#include "app/Pfade.h"
#include "index/IndexDatei.h"
#include "support/CliAufruf.h"

#include <gtest/gtest.h>

namespace {
using A = std::vector<std::string>;

CliErgebnis Cli(const TestOrdner& o, const A& argumente) { return CliMitIndex(KK_CLI, o, argumente); }

void IndexSchreiben(const TestOrdner& o) {
    TestUmgebung u;
    BerichtsKartei(u.k);
    // Die Indexdatei kennt keinen Status: Felder ohne Tag bleiben leer.
    u.k.DateiDaten[3].Mp3_ID3v1_Interpret.clear();
    ASSERT_TRUE(DateiSpeichern(u.k, o / "i.kkt", false));
}
}  // namespace

TEST(CliBerichte, ExportMitSpaltenDerHauptliste) {
    TestOrdner o;
    IndexSchreiben(o);
    // Auch mit --yes wird die Frage nach dem Anzeigen abgebrochen.
    CliErgebnis e = Cli(o, {"--yes", "export", "--format", "text", "l.csv", "--quote", "--sep", "semikolon"});
    EXPECT_EQ(e.rückgabe, 0) << e.fehler;
    EXPECT_EQ(DateiLesen(o / "l.csv"), "\"Dateiname\";\"Interpret\";\"Titel\";\"Album\"\r\n"
                                       "\"a b.mp3\";\"Nena\";\"99 Luftballons\";\r\n"
                                       "\"zwei.mp3\";\"Can\";\"Vitamin \"C\" & <mehr>\";\"-\"\r\n"
                                       "\"ohne.mp3\";;;\r\n"
                                       "\"vier.mp3\";\"Abba\";;\r\n");
    EXPECT_NE(e.fehler.find("Die Datei wurde gespeichert unter dem Dateinamen l.csv\n"), std::string::npos);
    EXPECT_NE(e.fehler.find("→ Abbrechen\n"), std::string::npos);

    e = Cli(o, {"export", "--format", "playlist", "l.m3u", "--search", "nena"});
    EXPECT_EQ(e.rückgabe, 0);
    EXPECT_EQ(DateiLesen(o / "l.m3u"), "#EXTM3U\r\n#EXTINF:230,Nena - 99 Luftballons\r\n/m/a b.mp3\r\n");

    e = Cli(o, {"export", "--entry", "4", "--entry", "2", "--format", "html", "l.htm"});
    EXPECT_EQ(e.rückgabe, 0);
    const std::string html = DateiLesen(o / "l.htm");
    EXPECT_NE(html.find("<td width=\"25%\">Album</td></tr>\r\n<tr bgcolor=#ffffff>\r\n<td>vier.mp3</td>"),
              std::string::npos);

    for (const A& falsch :
         {A{"export", "l.txt"}, A{"export", "--format", "xml", "l.txt"}, A{"export", "--format", "text"},
          A{"export", "--format", "text", "a", "b"}, A{"export", "--format", "text", "a", "--sep", "x"}})
        EXPECT_EQ(Cli(o, falsch).rückgabe, 2) << falsch.back();
    EXPECT_EQ(Cli(o, {"export", "--format", "text", "fehlt/l.txt"}).rückgabe, 1);
}

TEST(CliBerichte, Stats) {
    TestOrdner o;
    IndexSchreiben(o);
    const CliErgebnis e = Cli(o, {"stats"});
    EXPECT_EQ(e.rückgabe, 0);
    EXPECT_EQ(e.aus, "Gesamtanzahl aller Dateien: 4, davon 0 auf austauschbaren Datenträgern\n"
                     "Gesamtgröße: 0 Bytes (0,00 MB), durchschnittlich 0 Bytes\n"
                     "Gesamtspieldauer: 7:51, durchschnittlich 2:37\n"
                     "Verwaltung: (keine Dateien mit Datumsangabe gefunden)\n");
    EXPECT_EQ(Cli(o, {"stats", "--x"}).rückgabe, 2);
}

TEST(CliBerichte, Dupes) {
    TestOrdner o;
    IndexSchreiben(o);
    CliErgebnis e = Cli(o, {"dupes", "--methode", "4"});
    EXPECT_EQ(e.rückgabe, 0);
    EXPECT_EQ(e.aus, "'a b.mp3' und 'zwei.mp3' haben gleiche Dateigröße\n"
                     "'zwei.mp3' und 'ohne.mp3' haben gleiche Dateigröße\n"
                     "'ohne.mp3' und 'vier.mp3' haben gleiche Dateigröße\n"
                     "3 Datei(en) gefunden\n");
    e = Cli(o, {"dupes", "--entry", "4", "--entry", "1", "--methode", "4"});
    EXPECT_EQ(e.aus, "'vier.mp3' und 'a b.mp3' haben gleiche Dateigröße\n1 Datei(en) gefunden\n");
    e = Cli(o, {"dupes", "--methode", "6", "--search", "zwei"});
    EXPECT_EQ(e.aus, "0 Datei(en) gefunden\n");
    for (const A& falsch :
         {A{"dupes"}, A{"dupes", "--methode", "10"}, A{"dupes", "--methode", "-1"}, A{"dupes", "--methode", "1", "x"}})
        EXPECT_EQ(Cli(o, falsch).rückgabe, 2);
}

TEST(CliBerichte, DupesMitAktionen) {
    TestOrdner o;
    for (const char* n : {"m/lied.mp3", "n/lied.mp3", "m/x.txt", "n/x.txt"}) DateiSchreiben(o / n, n);
    {
        TestUmgebung u;
        Neu(u.k, o / "m/lied.mp3");
        Neu(u.k, o / "n/lied.mp3");
        ASSERT_TRUE(DateiSpeichern(u.k, o / "i.kkt", false));
    }
    // Ohne --yes wird nichts getan: die Frage bekommt "Nein".
    CliErgebnis e = Cli(o, {"dupes", "--methode", "0", "--aktion2", "4"});
    EXPECT_EQ(e.rückgabe, 1);
    EXPECT_EQ(e.aus, "'lied.mp3' und 'lied.mp3' haben die gleichen Dateinamen\n1 Datei(en) gefunden\n");
    EXPECT_NE(e.fehler.find(" - 1 Datei(en) durch eine leere Datei mit anderer Datei-Endung ersetzen"),
              std::string::npos);
    EXPECT_EQ(DateiLesen(o / "n/lied.mp3"), "n/lied.mp3");

    e = Cli(o, {"--yes", "dupes", "--methode", "0", "--aktion2", "4"});
    EXPECT_EQ(e.rückgabe, 0) << e.fehler;
    EXPECT_FALSE(DoesExist(o / "n/lied.mp3"));
    EXPECT_EQ(DateiLesen(o / "n/lied.inanderemordner"), "");
    EXPECT_EQ(Cli(o, {"show", "--count"}).aus, "DateiAnzahl=1\n");
    EXPECT_EQ(Cli(o, {"dupes", "--methode", "5"}).aus, "0 Datei(en) gefunden\n");
    for (const A& falsch : {A{"dupes", "--methode", "0", "--aktion1", "5"}, A{"dupes", "--methode", "0", "--aktion2"},
                            A{"dupes", "--aktion1", "1"}})
        EXPECT_EQ(Cli(o, falsch).rückgabe, 2);
}
