// Die Befehle search, sort und complete der Kommandozeile und die Auswahl der Einträge: Ausgaben Byte
// für Byte, Rückgabewerte.
#include "SuchTestHilfen.h"

#include "index/IndexDatei.h"
#include "support/CliAufruf.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <utility>
#include <vector>

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

namespace {
// Die Nummern der Blöcke, die show ausgibt, in ihrer Reihenfolge.
std::vector<int> Nummern(const std::string& aus) {
    std::vector<int> n;
    for (size_t p = aus.find("Nummer="); p != std::string::npos; p = aus.find("\nNummer=", p + 1))
        n.push_back(std::stoi(aus.substr(aus.find('=', p) + 1)));
    return n;
}
}  // namespace

TEST(CliAuswahl, EinträgeSucheOderAlle) {
    TestOrdner o;
    IndexSchreiben(o);
    using N = std::vector<int>;
    CliErgebnis a = Cli(o, {"show"});
    EXPECT_EQ(Nummern(a.aus), (N{1, 2, 3, 4}));
    // Genannte Einträge in ihrer Reihenfolge, doppelte einmal; der Block bleibt Byte für Byte.
    a = Cli(o, {"show", "--entry", "3", "--entry", "1", "--entry", "3"});
    EXPECT_EQ(a.rückgabe, 0);
    EXPECT_EQ(Nummern(a.aus), (N{3, 1}));
    EXPECT_TRUE(a.aus.starts_with("Nummer=3\nDateiPfade=/m/a\\x09b.mp3\nMp3_ID3v1_TAG="));
    EXPECT_EQ(Cli(o, {"show", "--entry", "1"}).aus + Cli(o, {"show", "--entry", "4"}).aus,
              Cli(o, {"show", "--entry", "1", "--entry", "4"}).aus);

    // Eine Suche wählt, was search findet, in derselben Reihenfolge.
    a = Cli(o, {"show", "--search", "NENA", "--field", "Interpret"});
    EXPECT_EQ(a.rückgabe, 0);
    EXPECT_EQ(Nummern(a.aus), (N{1, 4}));
    EXPECT_EQ(Nummern(Cli(o, {"show", "--not", "--field", "Titel", "--search", "ein"}).aus), (N{4}));
    EXPECT_EQ(Nummern(Cli(o, {"show", "--row", "Titel:00:tag", "--row", "Album:11:meer"}).aus), (N{1, 3}));
    EXPECT_EQ(Nummern(Cli(o, {"show", "--search", ""}).aus), (N{1, 2, 3, 4}));
    a = Cli(o, {"show", "--search", "gibtsnicht"});
    EXPECT_EQ(a.rückgabe, 0);
    EXPECT_EQ(a.aus, "");
    EXPECT_EQ(Cli(o, {"show", "--search", "tag", "--field", "Titel", "--count"}).aus, "DateiAnzahl=3\n");
    EXPECT_EQ(Cli(o, {"show", "--count"}).aus, "DateiAnzahl=4\n");

    // Eine Nummer außerhalb des Index: Meldung, Rückgabe 1, keine Ausgabe.
    a = Cli(o, {"show", "--entry", "2", "--entry", "0"});
    EXPECT_EQ(a.rückgabe, 1);
    EXPECT_EQ(a.aus, "");
    EXPECT_EQ(a.fehler, "Den Eintrag 0 gibt es nicht; der Index hat 4 Einträge.\n");
}

TEST(CliAuswahl, FalscherAufrufIstGebrauchsfehler) {
    TestOrdner o;
    IndexSchreiben(o);
    const std::vector<std::pair<A, std::string>> fälle = {
        {{"show", "--entry"}, "--entry braucht eine Eintragsnummer."},
        {{"show", "--entry", "1x"}, "--entry braucht eine Eintragsnummer."},
        {{"show", "--search"}, "--search braucht einen Wert."},
        {{"show", "--search", "a", "--search", "b"},
         "Nur ein Suchtext ist erlaubt; Wörter trennt ein Leerzeichen im selben Argument."},
        {{"show", "--entry", "1", "--search", "a"}, "--entry lässt sich nicht mit einer Suche verbinden."},
        {{"show", "--not"}, "Kein Suchtext angegeben (\"\" findet alle Einträge)."},
        {{"show", "--field", "Quatsch", "--search", "a"}, "Das Feld 'Quatsch' gibt es in der Suche nicht."},
        {{"show", "--row", "Titel:00:a", "--search", "a"},
         "--row lässt sich nicht mit --field, --not oder einem Suchtext verbinden."},
        {{"show", "--row", "Titel:0:a"},
         "Die Abfragezeile 'Titel:0:a' hat nicht die Form FELD:BEDINGUNG:TEXT (BEDINGUNG zwei Ziffern, z. B. 00 "
         "oder 11)."},
        {{"show", "--gibtsnicht"}, "show: unbekanntes Argument '--gibtsnicht'."},
    };
    for (const auto& [argumente, text] : fälle) {
        const CliErgebnis a = Cli(o, argumente);
        EXPECT_EQ(a.rückgabe, 2) << argumente[1];
        EXPECT_EQ(a.aus, "");
        EXPECT_TRUE(a.fehler.starts_with("klangkartei-cli: " + text + "\nAufruf: klangkartei-cli ")) << a.fehler;
    }
}
