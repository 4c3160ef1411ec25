// Der Befehl autodj: Zeilen Byte für Byte, Meldungen auf stderr mit Rückgabe 1, falsche Aufrufe.
#include "index/IndexDatei.h"
#include "search/SuchTestHilfen.h"
#include "support/CliAufruf.h"

#include <gtest/gtest.h>

#include <ctime>

namespace {
using A = std::vector<std::string>;

// Die Befehlszeile rechnet mit der echten Uhr: Daten relativ zu jetzt.
std::string VorTagen(int tage) {
    const std::time_t t = std::time(nullptr) - std::time_t(tage) * 86400;
    std::tm tm{};
    localtime_r(&t, &tm);
    char text[32];
    std::strftime(text, sizeof text, "%d.%m.%Y %H:%M:%S", &tm);
    return text;
}

// Das Beispiel mit Rock: A (10, vor zwei Monaten), B (6, vor acht), C (5, gestern), D, E.
void IndexSchreiben(const TestOrdner& o) {
    TestUmgebung u;
    const struct {
        const char* name;
        int32_t zahl;
        int tage;
    } einträge[] = {{"A", 10, 61}, {"B", 6, 245}, {"C", 5, 1}, {"D", 2, 400}, {"E", 1, 400}};
    for (const auto& e : einträge) {
        DateiInfo& d = Neu(u.k, std::string("/musik/") + e.name + ".mp3");
        d.Mp3_ID3v1_Interpret = std::string("Band ") + e.name;
        d.Mp3_ID3v1_Titel = std::string("Lied ") + e.name;
        d.Mp3_ID3v1_Genre = std::string(1, char(17));  // Rock
        d.Datei_AngefordertAnzahl = e.zahl;
        d.Datei_AngefordertGespieltAm = VorTagen(e.tage);
    }
    ASSERT_TRUE(DateiSpeichern(u.k, o / "i.kkt", false));
}

CliErgebnis Cli(const TestOrdner& o, const A& argumente) { return CliMitIndex(KK_CLI, o, argumente); }
}  // namespace

TEST(CliAutoDJ, BeispielUndGrenzen) {
    TestOrdner o;
    IndexSchreiben(o);
    CliErgebnis e = Cli(o, {"autodj", "--genre", "Rock", "--max", "2", "--zeit", "3", "--einheit", "tage", "--seltener",
                            "--haeufiger"});
    EXPECT_EQ(e.rückgabe, 0) << e.fehler;
    const std::string ba = "2\tBand B - Lied B\n1\tBand A - Lied A\n2 Datei(en) gefunden\n";
    const std::string ab = "1\tBand A - Lied A\n2\tBand B - Lied B\n2 Datei(en) gefunden\n";
    EXPECT_TRUE(e.aus == ba || e.aus == ab) << e.aus;
    EXPECT_EQ(e.fehler, "");

    // Ohne --max gilt die Einstellung (10), ohne --zeit kein Zeitfenster: auch C ist dabei.
    e = Cli(o, {"autodj", "--genre", "Jazz", "Rock"});
    EXPECT_EQ(e.rückgabe, 0);
    EXPECT_EQ(e.aus.size(), std::string("1\tBand A - Lied A\n").size() * 3 + 21);
    EXPECT_NE(e.aus.find("3\tBand C - Lied C\n"), std::string::npos);
    EXPECT_EQ(e.aus.substr(e.aus.size() - 21), "3 Datei(en) gefunden\n");

    // Alle im Zeitfenster gespielt.
    e = Cli(o, {"autodj", "--genre", "Rock", "--zeit", "1000", "--einheit", "tage"});
    EXPECT_EQ(e.rückgabe, 0);
    EXPECT_EQ(e.aus, "0 Datei(en) gefunden\n");
}

TEST(CliAutoDJ, MeldungenUndFalscheAufrufe) {
    TestOrdner o;
    IndexSchreiben(o);
    CliErgebnis e = Cli(o, {"autodj"});
    EXPECT_EQ(e.rückgabe, 1);
    EXPECT_EQ(e.aus, "");
    EXPECT_EQ(e.fehler, "Bitte wählen Sie mindestens ein Genre aus der Liste.\n");
    e = Cli(o, {"autodj", "--genre", "Jazz"});
    EXPECT_EQ(e.rückgabe, 1);
    EXPECT_EQ(e.fehler, "Die Funktion 'AutoDJ' kann nicht ausgeführt werden.\nEs liegen z.Zt. keine Nutzungsdaten "
                        "für Dateien der gewählten Genre vor.\nLassen Sie dieses Programm einfach einige Tage im "
                        "Hintergrund neben Winamp laufen, um Nutzungsdaten zu speichern.\n");
    e = Cli(o, {"autodj", "--genre", "Rock", "--max", "viele"});
    EXPECT_EQ(e.rückgabe, 1);
    EXPECT_EQ(e.fehler, "Bitte geben Sie eine Zahl in das Feld 'Finde so viele Dateien' ein.\n");

    for (const A& falsch : {A{"autodj", "--genre"}, A{"autodj", "--genre", "Rock", "--zeit", "3"},
                            A{"autodj", "--genre", "Rock", "--einheit", "tage"},
                            A{"autodj", "--genre", "Rock", "--zeit", "3", "--einheit", "wochen"},
                            A{"autodj", "--genre", "Rock", "--max"}, A{"autodj", "--genre", "Rock", "--laut"}})
        EXPECT_EQ(Cli(o, falsch).rückgabe, 2) << falsch.back();
}
