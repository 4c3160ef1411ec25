// AutoDJ: das durchgerechnete Beispiel, Runden des Durchschnitts, Zeitfenster, Plätze, Meldungen.
#include "app/Tabelle.h"
#include "media/Genres.h"
#include "player/AutoDJ.h"
#include "search/SuchTestHilfen.h"

#include <gtest/gtest.h>

#include <set>

namespace {
// Ein Eintrag mit ID3v1-Genre (Name aus der Tabelle), Abspielzahl und letztem Abspielen.
DateiInfo& Gespielt(Kartei& k, const std::string& name, const char* genre, int32_t zahl, const std::string& am) {
    DateiInfo& d = Neu(k, "/musik/" + name + ".mp3");
    d.Mp3_ID3v1_Interpret = "Band " + name;
    d.Mp3_ID3v1_Titel = "Lied " + name;
    d.Mp3_ID3v1_Genre = std::string(1, char(GenreCode(genre)));
    d.Datei_AngefordertAnzahl = zahl;
    d.Datei_AngefordertGespieltAm = am;
    return d;
}

AutoDJOptionen Rock(const std::string& maximum = "0") {
    AutoDJOptionen o;
    o.Genres = {"Rock"};
    o.txtMaximum = maximum;
    return o;
}

std::vector<int32_t> Nummern(const std::vector<AutoDJZeile>& zeilen) {
    std::vector<int32_t> n;
    for (const auto& z : zeilen) n.push_back(z.eintrag);
    return n;
}

// Das Beispiel: heute ist der 16.11.2001 (TestUhr).
void BeispielKartei(Kartei& k) {
    Gespielt(k, "A", "Rock", 10, "16.09.2001 12:00:00");  // vor zwei Monaten
    Gespielt(k, "B", "Rock", 6, "16.03.2001 12:00:00");   // vor acht Monaten
    Gespielt(k, "C", "Rock", 5, "15.11.2001 12:00:00");   // gestern
    Gespielt(k, "D", "Rock", 2, "01.01.2001");
    Gespielt(k, "E", "Rock", 1, "01.01.2001");
}
}  // namespace

TEST(AutoDJ, DurchgerechnetesBeispiel) {
    TestUmgebung u;
    BeispielKartei(u.k);
    AutoDJOptionen o = Rock("2");
    o.txtZeit = "3";
    o.cboZeiteinheit = 2;
    o.chkAlteSeltener = o.chkSehrAlteHäufiger = true;
    std::vector<AutoDJZeile> zeilen;
    // Zufall 0,5 immer: das Mischen ergibt B, leer, A; keiner rückt.
    ASSERT_TRUE(AutoDJErstellen(u.k, o, zeilen));
    ASSERT_EQ(zeilen.size(), 2u);
    EXPECT_EQ(zeilen[0].eintrag, 2);
    EXPECT_EQ(zeilen[0].text, "Band B - Lied B");
    EXPECT_EQ(zeilen[1].text, "Band A - Lied A");
    EXPECT_EQ(GefundenAnzahlText(zeilen.size()), "2 Datei(en) gefunden");
    EXPECT_TRUE(u.ui.meldungen.empty());
    // Bei jedem anderen Zufall bleiben es B und A, in welcher Folge auch immer.
    for (double r : {0.0, 0.3, 0.7, 0.99}) {
        u.zufall.werte.assign(20, r);
        ASSERT_TRUE(AutoDJErstellen(u.k, o, zeilen));
        const auto n = Nummern(zeilen);
        EXPECT_EQ(std::set<int32_t>(n.begin(), n.end()), (std::set<int32_t>{1, 2})) << r;
    }
}

TEST(AutoDJ, DurchschnittRundetHälftenZurGeraden) {
    TestUmgebung u;
    Gespielt(u.k, "zwei", "Rock", 2, "");
    Gespielt(u.k, "drei", "Rock", 3, "");
    Gespielt(u.k, "vier", "Jazz", 4, "");
    std::vector<AutoDJZeile> zeilen;
    // 5 / 2 = 2,5 → 2: beide gehören dazu.
    ASSERT_TRUE(AutoDJErstellen(u.k, Rock(), zeilen));
    EXPECT_EQ(zeilen.size(), 2u);
    // 7 / 2 = 3,5 → 4: nur noch die vier.
    AutoDJOptionen o = Rock();
    o.Genres = {"Jazz", "Rock"};
    u.k.DateiDaten[1].Datei_AngefordertAnzahl = 0;
    ASSERT_TRUE(AutoDJErstellen(u.k, o, zeilen));
    EXPECT_EQ(Nummern(zeilen), (std::vector<int32_t>{3}));
}

TEST(AutoDJ, ZeitfensterUndUngültigesDatum) {
    TestUmgebung u;
    Gespielt(u.k, "a", "Rock", 5, "16.11.2001 19:00:00");  // vor 75 Minuten
    Gespielt(u.k, "b", "Rock", 5, "gestern");
    Gespielt(u.k, "c", "Rock", 5, "16.11.2001 10:15:00");  // vor zehn Stunden
    std::vector<AutoDJZeile> zeilen;
    AutoDJOptionen o = Rock();
    o.txtZeit = "1";
    o.cboZeiteinheit = 2;  // Tage: alle heute gespielt, alle fallen weg
    ASSERT_TRUE(AutoDJErstellen(u.k, o, zeilen));
    EXPECT_EQ(GefundenAnzahlText(zeilen.size()), "0 Datei(en) gefunden");
    o.cboZeiteinheit = 1;  // Stunden: nur c liegt mehr als eine zurück
    ASSERT_TRUE(AutoDJErstellen(u.k, o, zeilen));
    EXPECT_EQ(Nummern(zeilen), (std::vector<int32_t>{3}));
    o.cboZeiteinheit = 0;  // Minuten, mit Komma: a und c
    o.txtZeit = "74,5";
    ASSERT_TRUE(AutoDJErstellen(u.k, o, zeilen));
    const auto n = Nummern(zeilen);
    EXPECT_EQ(std::set<int32_t>(n.begin(), n.end()), (std::set<int32_t>{1, 3}));
    // Ohne Zeitfenster zählt das ungültige Datum nicht.
    o.txtZeit.clear();
    ASSERT_TRUE(AutoDJErstellen(u.k, o, zeilen));
    EXPECT_EQ(zeilen.size(), 3u);
}

TEST(AutoDJ, PlätzeRückenNachAlterDesAbspielens) {
    TestUmgebung u;
    Gespielt(u.k, "1", "Rock", 5, "16.05.2001 12:00:00");  // genau sechs Monate: rückt nach hinten
    Gespielt(u.k, "2", "Rock", 5, "01.10.2001");           // vor einem Monat
    Gespielt(u.k, "3", "Rock", 5, "16.11.2001 08:00:00");  // heute: bleibt
    Gespielt(u.k, "4", "Rock", 5, "10.01.2001");           // zehn Monate: rückt nach vorn
    AutoDJOptionen o = Rock();
    o.chkAlteSeltener = o.chkSehrAlteHäufiger = true;
    // Mischen ohne Wirkung (j = i), dann Faktor 2 für Platz 1 und Faktor 3 für Platz 4.
    u.zufall.werte = {0.0, 0.25, 0.5, 0.75, 0.25, 0.5};
    std::vector<AutoDJZeile> zeilen;
    ASSERT_TRUE(AutoDJErstellen(u.k, o, zeilen));
    // 1 → Platz 2 (2·2 ≤ 4), der Platz gilt als verschoben; 4 → 4/3 gerundet 1.
    EXPECT_EQ(Nummern(zeilen), (std::vector<int32_t>{4, 1, 3, 2}));
    EXPECT_TRUE(u.zufall.werte.empty());

    // Nur "seltener": ein großer Faktor schiebt ans Ende (2·Platz > N).
    o.chkSehrAlteHäufiger = false;
    u.zufall.werte = {0.0, 0.25, 0.5, 0.75, 0.0, 0.99};
    ASSERT_TRUE(AutoDJErstellen(u.k, o, zeilen));
    // Platz 1 bleibt (Faktor 1); Platz 2 (ein Monat) mal 4 = 8 → 4; Platz 3 heute; Platz 4 nun
    // Eintrag 2, schon verschoben.
    EXPECT_EQ(Nummern(zeilen), (std::vector<int32_t>{1, 4, 3, 2}));
}

TEST(AutoDJ, GrenzeGenresUndEinträgeOhneTag) {
    TestUmgebung u;
    Gespielt(u.k, "a", "Rock", 3, "");
    Gespielt(u.k, "b", "Rock", 3, "").Mp3_ID3v1_Status = 0;  // ohne Tag: kein Genre, keine Zeile
    DateiInfo& c = Gespielt(u.k, "c", "Rock", 3, "");
    c.Mp3_ID3v1_Genre = std::string(1, char(255));  // kein Genre
    c.Mp3_ID3v2_Status = 1;
    c.Mp3_ID3v2_TCON = "(17)Rock";  // aber im ID3v2-Tag
    DateiInfo& d = Gespielt(u.k, "d", "Rock", 3, "");
    d.Mp3_ID3v1_Genre = std::string(1, char(255));
    Gespielt(u.k, "e", "Pop", 3, "");
    EXPECT_EQ(AutoDJGenreListe(u.k), (std::vector<std::string>{"Rock", "Pop", "(Dateien ohne Genre)"}));

    std::vector<AutoDJZeile> zeilen;
    ASSERT_TRUE(AutoDJErstellen(u.k, Rock(), zeilen));
    EXPECT_EQ(std::set<int32_t>({zeilen.at(0).eintrag, zeilen.at(1).eintrag}), (std::set<int32_t>{1, 3}));
    EXPECT_EQ(zeilen.size(), 2u);
    // Das leere Genre: ohne ID3v2-Tag ist dessen Genre leer, also zählen alle fünf.
    AutoDJOptionen o = Rock("1");
    o.Genres = {AutoDJOhneGenre};
    ASSERT_TRUE(AutoDJErstellen(u.k, o, zeilen));
    EXPECT_EQ(zeilen.size(), 1u);  // Maximum 1
    o.txtMaximum = "0";
    ASSERT_TRUE(AutoDJErstellen(u.k, o, zeilen));
    EXPECT_EQ(zeilen.size(), 4u);  // b ohne Tag fehlt
}

TEST(AutoDJ, EintragsnummernÜber32767) {
    TestUmgebung u;
    IndexGrößeÄndern(u.k, 40000, true);
    u.k.DateiAnzahl = 40000;
    for (int32_t e = 1; e <= 40000; ++e) u.k.DateiPfade[e] = "/m/" + std::to_string(e) + ".mp3";
    DateiInfo& d = u.k.DateiDaten[40000];
    d.Mp3_ID3v1_Status = 1;
    d.Mp3_ID3v1_Titel = "Spät";
    d.Mp3_ID3v1_Genre = std::string(1, char(GenreCode("Rock")));
    d.Datei_AngefordertAnzahl = 7;
    std::vector<AutoDJZeile> zeilen;
    ASSERT_TRUE(AutoDJErstellen(u.k, Rock(), zeilen));
    ASSERT_EQ(zeilen.size(), 1u);
    EXPECT_EQ(zeilen[0].eintrag, 40000);
    EXPECT_EQ(zeilen[0].text, " - Spät");
}

TEST(AutoDJ, MeldungenBeendenDenLauf) {
    TestUmgebung u;
    Gespielt(u.k, "a", "Rock", 0, "");
    std::vector<AutoDJZeile> zeilen{{1, "alt"}};
    AutoDJOptionen o = Rock("x");
    o.Genres.clear();
    EXPECT_FALSE(AutoDJErstellen(u.k, o, zeilen));
    o.Genres = {"Rock"};
    o.txtZeit = "drei";
    EXPECT_FALSE(AutoDJErstellen(u.k, o, zeilen));
    o.txtZeit = "";
    EXPECT_FALSE(AutoDJErstellen(u.k, o, zeilen));
    o.txtMaximum = "5";
    EXPECT_FALSE(AutoDJErstellen(u.k, o, zeilen));  // keine Nutzungsdaten
    u.k.E.AbspielStatistikSpeichern = 0;
    EXPECT_FALSE(AutoDJErstellen(u.k, o, zeilen));
    EXPECT_TRUE(zeilen.empty());
    const std::string keine = "Die Funktion 'AutoDJ' kann nicht ausgeführt werden.\nEs liegen z.Zt. keine "
                              "Nutzungsdaten für Dateien der gewählten Genre vor.\n";
    const std::vector<std::string> erwartet = {
        "Bitte wählen Sie mindestens ein Genre aus der Liste.",
        "Bitte wählen Sie eine Zahl in das Feld 'Auslassen' ein oder leeren Sie dieses.",
        "Bitte geben Sie eine Zahl in das Feld 'Finde so viele Dateien' ein.",
        keine + "Lassen Sie dieses Programm einfach einige Tage im Hintergrund neben Winamp laufen, um "
                "Nutzungsdaten zu speichern.",
        keine + "Aktivieren Sie in den 'Optionen' die 'Speicherung von Abspiel-Statitsiken', um Nutzungsdaten zu "
                "speichern.",
    };
    ASSERT_EQ(u.ui.meldungen.size(), erwartet.size());
    for (size_t i = 0; i < erwartet.size(); ++i) EXPECT_EQ(u.ui.meldungen[i].text, erwartet[i]);
    EXPECT_EQ(u.ui.meldungen[0].schalter, Meldung::Information);
}

TEST(AutoDJ, EinstellungenUndDetails) {
    TestUmgebung u;
    u.k.E.AutoDJAuslassenGröße = 7;
    u.k.E.AutoDJFindenVorLängerem = 1;
    AutoDJOptionen o = AutoDJOptionenLaden(u.k);
    EXPECT_EQ(o.cboZeiteinheit, 2);
    EXPECT_EQ(o.txtMaximum, "10");
    EXPECT_TRUE(o.chkSehrAlteHäufiger);
    EXPECT_FALSE(o.chkAlteSeltener);
    o.cboZeiteinheit = 0;
    o.txtZeit = "";
    o.chkAlteSeltener = true;
    AutoDJOptionenSpeichern(u.k, o);
    EXPECT_EQ(u.k.E.AutoDJAuslassenGröße, 0);
    EXPECT_EQ(u.k.E.AutoDJAuslassenZeit, "");
    EXPECT_EQ(u.k.E.AutoDJAuslassenVorKurzem, 1);

    Gespielt(u.k, "a", "Rock", 12, "3.2.2001 7:05");
    Gespielt(u.k, "b", "Rock", 1, "kaputt");
    const auto keine = AutoDJAuswahlDetails(u.k, {});
    EXPECT_EQ(keine.lblDatei1, "Dateiname");
    EXPECT_EQ(keine.lblDateiname1 + keine.lblStatistik, "");
    const auto eine = AutoDJAuswahlDetails(u.k, {1});
    EXPECT_EQ(eine.lblDateiname1, "/musik/a.mp3");
    EXPECT_EQ(eine.lblStatistik, "Zuletzt gespielt am 03.02.2001 07:05:00, insgesamt 12 Mal");
    EXPECT_EQ(AutoDJAuswahlDetails(u.k, {2}).lblStatistik, "Zuletzt gespielt am kaputt, insgesamt 1 Mal");
    EXPECT_EQ(AutoDJAuswahlDetails(u.k, {1, 2}).lblDateiname1, "(2 Dateien)");
}
