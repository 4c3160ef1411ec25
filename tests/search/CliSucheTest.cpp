// Die Befehle search, sort und complete der Kommandozeile: Ausgaben Byte für Byte, Rückgabewerte.
#include "SuchTestHilfen.h"

#include "index/IndexDatei.h"
#include "support/CliAufruf.h"

#include <gtest/gtest.h>

#include <array>

namespace {
using A = std::vector<std::string>;

// Immer mit dem Index i.kkt im Testordner.
CliErgebnis Cli(const TestOrdner& o, A argumente) {
    argumente.insert(argumente.begin(), {"--index", "i.kkt"});
    return CliAufrufen(KK_CLI, o, argumente);
}

// Vier Einträge: Titel, Interpret, Album; einer mit Tabulator im Pfad.
void IndexSchreiben(const TestOrdner& o) {
    TestUmgebung u;
    const std::vector<std::array<const char*, 4>> daten = {{"/m/1.mp3", "Ein Tag", "Nena", "Farben"},
                                                           {"/m/2.mp3", "Ein Tag am Meer", "Can", "Meer"},
                                                           {"/m/a\tb.mp3", "Tag ein", "Abba", ""},
                                                           {"/m/4.mp3", "Nacht", "nena", "Farben"}};
    for (const auto& [pfad, titel, interpret, album] : daten) {
        DateiInfo& d = Neu(u.k, pfad);
        d.Mp3_ID3v1_Titel = titel;
        d.Mp3_ID3v1_Interpret = interpret;
        d.Mp3_ID3v1_Album = album;
    }
    ASSERT_TRUE(DateiSpeichern(u.k, o / "i.kkt", false));
}

std::vector<std::string> PfadeIm(const TestOrdner& o) {
    TestUmgebung u;
    EXPECT_TRUE(DateiLaden(u.k, o / "i.kkt"));
    std::vector<std::string> p;
    for (int32_t i = 1; i <= u.k.DateiAnzahl; ++i) p.push_back(u.k.DateiPfade[i]);
    return p;
}
}  // namespace

TEST(CliSuche, Search) {
    TestOrdner o;
    IndexSchreiben(o);
    DateiSchreiben(o / "konfig/leer", "");
    CliErgebnis a = Cli(o, {"search", ""});
    EXPECT_EQ(a.rückgabe, 0);
    EXPECT_EQ(a.aus, "1\t1\t/m/1.mp3\n2\t1\t/m/2.mp3\n3\t1\t/m/a\\x09b.mp3\n4\t1\t/m/4.mp3\n");
    EXPECT_EQ(a.fehler, "4 Datei(en) gefunden\n4 Datei(en) im Index\n");

    a = Cli(o, {"search", "--field", "Titel", "ein tag"});
    EXPECT_EQ(a.aus, "1\t2\t/m/1.mp3\n");
    EXPECT_EQ(a.fehler, "1 Datei(en) gefunden\n4 Datei(en) im Index\n");
    a = Cli(o, {"search", "--not", "--field", "Titel", "ein"});
    EXPECT_EQ(a.aus, "4\t1\t/m/4.mp3\n");
    a = Cli(o, {"search", "--field", "Interpret", "NENA"});
    EXPECT_EQ(a.aus, "1\t2\t/m/1.mp3\n4\t2\t/m/4.mp3\n");
    a = Cli(o, {"search", "--row", "Titel:00:tag", "--row", "Album:11:meer"});
    EXPECT_EQ(a.rückgabe, 0);
    EXPECT_EQ(a.aus, "1\t1\t/m/1.mp3\n3\t1\t/m/a\\x09b.mp3\n");
    a = Cli(o, {"search", "--row", "Dauer:00:1:05"});
    EXPECT_EQ(a.rückgabe, 0);
    EXPECT_EQ(a.aus, "");
    EXPECT_EQ(a.fehler, "0 Datei(en) gefunden\n4 Datei(en) im Index\n");

    for (const A& falsch :
         {A{"search"}, A{"search", "--field", "Quatsch", "x"}, A{"search", "--row", "Titel:0:x"},
          A{"search", "--row", "Titel:00:x", "tag"}, A{"search", "a", "b"}, A{"search", "--gibtsnicht", "x"}}) {
        a = Cli(o, falsch);
        EXPECT_EQ(a.rückgabe, 2) << falsch[1];
        EXPECT_EQ(a.aus, "");
    }
    // Ein Ordner ist kein Index: nicht geladen, Rückgabe 1, keine Zeilen.
    a = CliAufrufen(KK_CLI, o, {"--index", "konfig", "search", "x"});
    EXPECT_EQ(a.rückgabe, 1);
    EXPECT_EQ(a.aus, "");
}

TEST(CliSuche, SortUndComplete) {
    TestOrdner o;
    IndexSchreiben(o);
    CliErgebnis a = Cli(o, {"sort", "Interpret"});
    EXPECT_EQ(a.rückgabe, 0);
    EXPECT_EQ(a.fehler, "Die Liste wurde sortiert nach der Spalte 'Interpret'\n");
    using S = std::vector<std::string>;
    EXPECT_EQ(PfadeIm(o), (S{"/m/a\tb.mp3", "/m/2.mp3", "/m/4.mp3", "/m/1.mp3"}));
    // Zweimal dieselbe Spalte in einem Lauf: absteigend.
    a = Cli(o, {"sort", "Titel", "Titel"});
    EXPECT_EQ(a.rückgabe, 0);
    EXPECT_EQ(PfadeIm(o), (S{"/m/a\tb.mp3", "/m/4.mp3", "/m/2.mp3", "/m/1.mp3"}));
    a = Cli(o, {"sort", "Quatsch"});
    EXPECT_EQ(a.rückgabe, 2);

    a = Cli(o, {"complete", "Interpret"});
    EXPECT_EQ(a.rückgabe, 0);
    EXPECT_EQ(a.aus, "Abba\nnena\nCan\n");
    a = Cli(o, {"complete", "Album", "Titel"});
    EXPECT_EQ(a.aus, "Tag ein\nFarben\nNacht\nMeer\nEin Tag am Meer\nEin Tag\n");
    a = Cli(o, {"complete", "(Standardsuche)"});
    EXPECT_EQ(a.rückgabe, 0);
    EXPECT_EQ(a.aus, "");
    a = Cli(o, {"complete", "Quatsch"});
    EXPECT_EQ(a.rückgabe, 2);
}
