// Der Befehl rename: Ausgabe Byte für Byte, der gespeicherte Index, Fragen über --yes, falsche Aufrufe.
#include "app/Pfade.h"
#include "app/Tabelle.h"
#include "index/IndexDatei.h"
#include "support/Attrappen.h"
#include "support/CliAufruf.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>

namespace {
using A = std::vector<std::string>;

// Ein Index mit diesen Pfaden; Dateien gibt es nur für die, die in dateien stehen.
void IndexMit(const TestOrdner& o, const A& pfade, const A& dateien) {
    TestUmgebung u;
    for (const auto& d : dateien) DateiSchreiben(d, "Inhalt " + d);
    for (const auto& p : pfade) {
        IndexGrößeÄndern(u.k, u.k.DateiAnzahl + 1, true);
        u.k.DateiPfade[++u.k.DateiAnzahl] = p;
        u.k.DateiDaten[u.k.DateiAnzahl].Datei_HinzugefügtAm = "16.11.2001";
    }
    ASSERT_TRUE(DateiSpeichern(u.k, o / "i.kkt", false));
}

A IndexPfade(const TestOrdner& o) {
    TestUmgebung u;
    EXPECT_TRUE(DateiLaden(u.k, o / "i.kkt"));
    A pfade;
    for (int32_t n = 1; n <= u.k.DateiAnzahl; ++n) pfade.push_back(u.k.DateiPfade[n]);
    return pfade;
}
}  // namespace

TEST(CliUmbenennen, FortlaufendUndGespeichert) {
    TestOrdner o;
    DateiSchreiben(o / "m/Lied5.mp3", "x");
    DateiSchreiben(o / "m/Lied6.mp3", "x");
    IndexMit(o, {o / "m/a.mp3", o / "m/b.mp3", o / "m/c.mp3"}, {o / "m/a.mp3", o / "m/b.mp3", o / "m/c.mp3"});
    const CliErgebnis r = CliMitIndex(
        KK_CLI, o, {"rename", "--funktion", "2", "--basis1", "Lied", "--zaehler", "5", "--entry", "1", "--entry", "3"});
    EXPECT_EQ(r.rückgabe, 0) << r.fehler;
    EXPECT_EQ(r.aus, "Geändert=2\nNichtGeändert=0\n");
    EXPECT_EQ(IndexPfade(o), (A{o / "m/Lied7.mp3", o / "m/b.mp3", o / "m/Lied8.mp3"}));
    EXPECT_EQ(DateiLesen(o / "m/Lied8.mp3"), "Inhalt " + o / "m/c.mp3");

    // Schreibweise über eine Suche: nur was sie findet.
    const CliErgebnis s =
        CliMitIndex(KK_CLI, o, {"rename", "--funktion", "4", "--schreibweise", "2", "--search", "b.mp3"});
    EXPECT_EQ(s.rückgabe, 0) << s.fehler;
    EXPECT_EQ(s.aus, "Geändert=1\nNichtGeändert=0\n");
    EXPECT_EQ(IndexPfade(o)[1], o / "m/B.mp3");
}

TEST(CliUmbenennen, FragenJeDateiUeberYes) {
    TestOrdner o;
    // Der erste Eintrag hat keine Datei: das Umbenennen scheitert, dann kommt die Frage.
    IndexMit(o, {o / "fehlt.mp3", o / "a.mp3"}, {o / "a.mp3"});
    const A aufruf = {"rename", "--funktion", "6", "--endung", "ogg"};
    const CliErgebnis nein = CliMitIndex(KK_CLI, o, aufruf);
    EXPECT_EQ(nein.rückgabe, 1);
    EXPECT_EQ(nein.aus, "Geändert=0\nNichtGeändert=1\n");
    EXPECT_NE(nein.fehler.find("Möchten Sie mit der nächsten Datei fortfahren?\n→ Nein\n"), std::string::npos);
    EXPECT_EQ(IndexPfade(o), (A{o / "fehlt.mp3", o / "a.mp3"}));

    A mitJa = aufruf;
    mitJa.insert(mitJa.begin(), "--yes");
    const CliErgebnis ja = CliMitIndex(KK_CLI, o, mitJa);
    EXPECT_EQ(ja.rückgabe, 1);  // eine Datei blieb, wie sie war
    EXPECT_EQ(ja.aus, "Geändert=1\nNichtGeändert=1\n");
    EXPECT_EQ(IndexPfade(o), (A{o / "fehlt.mp3", o / "a.ogg"}));
    EXPECT_TRUE(DoesExist(o / "a.ogg"));
}

TEST(CliUmbenennen, FalscheAufrufe) {
    TestOrdner o;
    IndexMit(o, {o / "a.mp3"}, {o / "a.mp3"});
    const struct {
        A argumente;
        const char* meldung;
    } fälle[] = {
        {{"rename"}, "rename braucht --funktion N."},
        {{"rename", "--funktion", "9"}, "rename: --funktion ist ein Code von 0 bis 8."},
        {{"rename", "--funktion", "3"}, "rename: die Funktionen 3 und 5 fragen je Datei nach einem Namen"},
        {{"rename", "--funktion", "5"}, "rename: die Funktionen 3 und 5"},
        {{"rename", "--funktion", "6"}, "Bitte geben Sie eine neue Datei-Endung ein."},
        {{"rename", "--funktion", "2", "--zaehler", "x"}, "muß eine Zahl sein."},
        {{"rename", "--funktion", "4", "--schreibweise", "5"}, "rename: --schreibweise ist 1"},
        {{"rename", "--funktion", "7", "--attribute", "RR"}, "rename: --attribute nimmt"},
        {{"rename", "--funktion", "7", "--attribute", "X"}, "rename: --attribute nimmt"},
        {{"rename", "--funktion", "0", "--format"}, "rename: --format braucht einen Wert."},
        {{"rename", "--funktion", "0", "--format", "x", "frei"}, "rename: unerwartetes Argument 'frei'."},
    };
    for (const auto& f : fälle) {
        const CliErgebnis r = CliMitIndex(KK_CLI, o, f.argumente);
        EXPECT_EQ(r.rückgabe, 2) << f.meldung;
        EXPECT_EQ(r.aus, "");
        EXPECT_NE(r.fehler.find(f.meldung), std::string::npos) << r.fehler;
    }
    EXPECT_EQ(IndexPfade(o), (A{o / "a.mp3"}));
    EXPECT_TRUE(DoesExist(o / "a.mp3"));
    // Attribute: der Schreibschutz wirkt, das Archiv allein nicht.
    const CliErgebnis r = CliMitIndex(KK_CLI, o, {"rename", "--funktion", "7", "--attribute", "AR"});
    EXPECT_EQ(r.rückgabe, 0) << r.fehler;
    EXPECT_EQ(r.aus, "Geändert=1\nNichtGeändert=0\n");
}
