// Der Ablauf um die Suche (Tippen, Zeitgeber, Feldwahl, Löschen, erweiterte Suche,
// SucheAktualisieren) und der Zwischenspeicher der Standardsuche gegen den Einzelabruf.
#include "SuchTestHilfen.h"

#include "index/IndexFeld.h"
#include "search/SuchCache.h"
#include "search/Sortieren.h"
#include "support/IndexGenerator.h"

#include <gtest/gtest.h>

#include <random>

using Z = std::vector<int32_t>;

TEST(SucheAblauf, TippenZeitgeberUndSperre) {
    TestUmgebung u;
    TitelEintrag(u.k, "Blau");
    TitelEintrag(u.k, "Rot");
    auto& s = u.k.Suche;
    s.txtSongname.Text = "rot";
    txtSongname_Change(u.k);
    // Ein Tastendruck spannt nur den Zeitgeber; gesucht wird, wenn er abläuft.
    EXPECT_TRUE(s.tmrListeAktiv);
    EXPECT_TRUE(Zeilen(u.k).empty());
    EXPECT_EQ(s.SuchAnzahl, 0);
    tmrListe_Timer(u.k);
    EXPECT_FALSE(s.tmrListeAktiv);
    EXPECT_EQ(Zeilen(u.k), (Z{2}));
    EXPECT_EQ(s.SuchAnzahl, 1);
    EXPECT_EQ(s.SuchBedingungen[1], "00");
    EXPECT_EQ(s.SuchFelder[1], "(Standardsuche)");
    // Gesperrt: nichts.
    s.SucheGesperrt = true;
    s.txtSongname.Text = "";
    txtSongname_Change(u.k);
    EXPECT_EQ(Zeilen(u.k), (Z{2}));
    // Leerer Text sucht sofort.
    s.SucheGesperrt = false;
    txtSongname_Change(u.k);
    EXPECT_FALSE(s.tmrListeAktiv);
    EXPECT_EQ(Zeilen(u.k), (Z{1, 2}));
    EXPECT_FALSE(s.SucheGesperrt);
}

TEST(SucheAblauf, SucheAktualisierenNachÄnderung) {
    TestUmgebung u;
    TitelEintrag(u.k, "Blau");
    TitelEintrag(u.k, "Rot");
    auto& s = u.k.Suche;
    Suchen(u.k, "Titel", "bl");
    ASSERT_EQ(Zeilen(u.k), (Z{1}));
    // Eine andere Stelle ändert die Tabelle und ruft danach SucheAktualisieren.
    u.k.DateiDaten[2].Mp3_ID3v1_Titel = "Blaulicht";
    ASSERT_TRUE(SucheAktualisieren(u.k));
    EXPECT_EQ(Zeilen(u.k), (Z{1, 2}));
    // Die Vorschläge des Feldes sind neu, ergänzt wurde dabei nicht.
    EXPECT_EQ(s.txtSongname.List, (std::vector<std::string>{"Blau", "Blaulicht"}));
    EXPECT_EQ(s.txtSongname.Text, "bl");
    EXPECT_FALSE(s.SucheSofort);
    EXPECT_TRUE(s.AutoCompleteErlaubt);
    EXPECT_FALSE(s.SucheGesperrt);
    // Ohne gewähltes Feld nimmt sie das erste; mit Vervollständigung ergänzt der Lauf den Text.
    s.cboSuche.ListIndex = -1;
    s.txtSongname.Text = "ro";
    s.txtSongname.SelStart = 2;
    ASSERT_TRUE(SucheAktualisieren(u.k, true));
    EXPECT_EQ(s.cboSuche.ListIndex, 0);
    EXPECT_EQ(s.SuchFelder[1], "(Standardsuche)");
    EXPECT_TRUE(s.txtSongname.List.empty());
    EXPECT_EQ(Zeilen(u.k), (Z{}));
}

TEST(SucheAblauf, FeldwahlErweiterteSucheUndLöschen) {
    TestUmgebung u;
    for (auto [titel, album] : {std::pair{"Blau", "Farben"}, {"Rot", "Farben"}, {"Blau", "Meer"}}) {
        DateiInfo& d = Neu(u.k, "/m/x.mp3");
        d.Mp3_ID3v1_Titel = titel;
        d.Mp3_ID3v1_Album = album;
    }
    auto& s = u.k.Suche;
    Suchen(u.k, "(Standardsuche)", "");
    // Mit SucheNichtBeiAuswahl startet die Feldwahl bei leerem Text keine Suche.
    u.k.E.SucheNichtBeiAuswahl = 1;
    s.cboSuche.ListIndex = 2;  // Album
    u.k.Liste.lstSongs.zeilen.clear();
    cboSuche_Click(u.k);
    EXPECT_EQ(s.txtSongname.List, (std::vector<std::string>{"Farben", "Meer"}));
    EXPECT_TRUE(Zeilen(u.k).empty());
    u.k.E.SucheNichtBeiAuswahl = 0;
    cboSuche_Click(u.k);
    EXPECT_EQ(Zeilen(u.k), (Z{1, 2, 3}));

    // Erweiterte Suche: ohne Zeile bleibt der Dialog mit einem Hinweis offen.
    SuchbegriffeZurücksetzen(s);
    EXPECT_FALSE(SucheErweitertÜbernehmen(u.k));
    ASSERT_EQ(u.ui.meldungen.size(), 1u);
    EXPECT_EQ(u.ui.meldungen[0].text, "Bitte fügen Sie mindestens eine Such-Abfrage hinzu.");
    EXPECT_EQ(u.ui.meldungen[0].schalter, Meldung::Information);
    // Zwei Zeilen: beide Felder gesperrt, die Zeilen bleiben beim Lauf stehen.
    SuchbegriffeHinzufügen(s, "bla", "Titel", "00");
    SuchbegriffeHinzufügen(s, "meer", "Album", "11");
    ASSERT_TRUE(SucheErweitertÜbernehmen(u.k));
    EXPECT_FALSE(s.cboSuche.Enabled);
    EXPECT_EQ(s.cboSuche.ListIndex, -1);
    EXPECT_EQ(s.txtSongname.Text, "(Mehrere Such-Abfragen)");
    EXPECT_TRUE(s.tmrListeAktiv);
    tmrListe_Timer(u.k);
    EXPECT_EQ(s.SuchAnzahl, 2);
    EXPECT_EQ(Zeilen(u.k), (Z{1}));
    // Eine Zeile (DARF NICHT): zurück in die einfache Suche, die Bedingung bleibt. Der Text
    // läuft dabei durch die Ergänzung aus den Werten des Feldes.
    SuchbegriffeLöschen(s, 1);
    ASSERT_TRUE(SucheErweitertÜbernehmen(u.k));
    EXPECT_TRUE(s.cboSuche.Enabled);
    EXPECT_EQ(s.cboSuche.GewählterEintrag(), "Album");
    EXPECT_EQ(s.txtSongname.Text, "Meer");
    EXPECT_EQ(s.txtSongname.SelStart, 0);
    EXPECT_EQ(s.txtSongname.SelLength, 4);
    tmrListe_Timer(u.k);
    EXPECT_EQ(s.SuchBedingungen[1], "11");
    EXPECT_EQ(Zeilen(u.k), (Z{1, 2}));
    // Löschen: Standardsuche, leerer Text, sofort alles.
    s.tmrListeAktiv = false;
    cmdSucheLöschen_Click(u.k);
    EXPECT_EQ(s.cboSuche.ListIndex, 0);
    EXPECT_EQ(s.txtSongname.Text, "");
    EXPECT_TRUE(s.txtSongname.List.empty());
    EXPECT_EQ(s.SuchAnzahl, 1);
    EXPECT_EQ(s.SuchBedingungen[1], "00");
    EXPECT_EQ(Zeilen(u.k), (Z{1, 2, 3}));
}

namespace {
const std::vector<std::string> kWörter = {"",
                                          "nacht",
                                          "STADT",
                                          "die",
                                          "ärzte",
                                          "ÜBER",
                                          "/home",
                                          "mp3",
                                          "a1",
                                          "x1",
                                          "20",
                                          "grün",
                                          "e",
                                          "Rock",
                                          "2001",
                                          "Lied",
                                          "2.3.0",
                                          "12.",
                                          "Tag",
                                          "Wind",
                                          "einstürzende neubauten",
                                          "Ton Steine Scherben",
                                          "Kraftwerk"};
const std::vector<std::string> kFelder = {
    "(Standardsuche)", "(Standardsuche)", "(Standardsuche)", "Interpret",       "Titel", "Jahr", "Pfad",
    "Genre-ID3v2",     "Hinzufüge-Datum", "Dauer",           "Interpret-ID3v2", "Track"};

std::string Zufallstext(std::mt19937& z, int wörter) {
    std::string t;
    for (int i = 0; i < wörter; ++i) {
        if (i > 0) t += ' ';
        t += kWörter[z() % kWörter.size()];
    }
    return t;
}

// Eine Änderung der Tabelle auf einem der Wege, die das Programm geht.
void ZufälligÄndern(Kartei& k, std::mt19937& z) {
    const int32_t e = k.DateiAnzahl > 0 ? int32_t(1 + z() % uint32_t(k.DateiAnzahl)) : 0;
    static const char* const kSpalten[] = {"Interpret", "Titel", "Pfad+Dateiname", "Dauer"};
    switch (z() % 7) {
    case 0:
        if (e == 0) break;
        k.DateiDaten[e].Mp3_ID3v2_TPE1 = Zufallstext(z, 2);
        DateiGeändertSetzen(k);
        break;
    case 1:
        if (e == 0) break;
        k.DateiPfade[e] = "/neu/" + Zufallstext(z, 1) + ".mp3";
        SucheAktualisieren(k);
        break;
    case 2: {
        EinsBasiert<int32_t> weg(2);
        weg[1] = e;
        weg[2] = e / 2;
        EinträgeEntfernen(k, weg);
        break;
    }
    case 3: {
        std::string pfad;
        std::mt19937 neu(z());
        DateiInfo d = ErfundenerEintrag(neu, pfad);
        Neu(k, pfad) = d;
        break;
    }
    case 4: QSort(k, kSpalten[z() % 4], 1, k.DateiAnzahl); break;
    case 5:
        SortierungUmkehrenPrüfen(k, "Pfad");
        SortierungUmkehrenPrüfen(k, "Pfad");
        break;
    default: break;
    }
}
}  // namespace

TEST(SucheAblauf, ZwischenspeicherGleichtEinzelabruf) {
    TestUmgebung u;
    u.k.E.StartBildschirm = 0;  // Sortieren ohne Anzeige
    IndexErzeugen(u.k, 300, 11);
    std::mt19937 z(5);
    for (int runde = 0; runde < 300; ++runde) {
        ZufälligÄndern(u.k, z);
        auto& s = u.k.Suche;
        SuchbegriffeZurücksetzen(s);
        const int zeilen = 1 + int(z() % 3);
        for (int i = 0; i < zeilen; ++i) {
            std::string text = Zufallstext(z, int(z() % 4));
            const std::string feld = kFelder[z() % kFelder.size()];
            // Manchmal der ganze Wert eines Eintrags: dann greift die genaue Entsprechung.
            if (z() % 4 == 0 && u.k.DateiAnzahl > 0) {
                int16_t art = 0;
                IndexFeldZurückgeben(u.k, int32_t(1 + z() % uint32_t(u.k.DateiAnzahl)), feld, "", text, art);
            }
            SuchbegriffeHinzufügen(s, text, feld, z() % 4 == 0 ? "11" : "00");
        }
        EinsBasiert<int16_t> schnell, einzeln;
        schnell.Vektor().assign(size_t(std::max(1, u.k.DateiAnzahl)), 1);
        einzeln = schnell;
        int32_t a1 = -1, e1 = u.k.DateiAnzahl, a2 = -1, e2 = u.k.DateiAnzahl;
        const bool r1 = IndexSucheDurchführen(u.k, s.SuchAnzahl, s.SuchFelder, s.SuchBegriffe, s.SuchBedingungen,
                                              schnell, a1, e1, SuchVerfahren::Schnell);
        const bool r2 = IndexSucheDurchführen(u.k, s.SuchAnzahl, s.SuchFelder, s.SuchBegriffe, s.SuchBedingungen,
                                              einzeln, a2, e2, SuchVerfahren::Einzeln);
        SCOPED_TRACE("Runde " + std::to_string(runde) + ": " + SuchZeileText(s, 1));
        ASSERT_EQ(r1, r2);
        ASSERT_EQ(schnell.Vektor(), einzeln.Vektor());
        ASSERT_EQ(a1, a2);
        ASSERT_EQ(e1, e2);
    }
}

TEST(SucheAblauf, ZwischenspeicherWandertBeimSortierenMit) {
    TestUmgebung u;
    u.k.E.StartBildschirm = 0;
    IndexErzeugen(u.k, 200, 3);
    Suchen(u.k, "(Standardsuche)", "nacht");
    ASSERT_TRUE(SuchCacheAktuell(u.k, u.k.Suche.standardsuche));
    QSort(u.k, "Titel", 1, u.k.DateiAnzahl);
    ASSERT_TRUE(u.k.DateiGeändert);
    EXPECT_TRUE(SuchCacheAktuell(u.k, u.k.Suche.standardsuche));
    SortierungUmkehrenPrüfen(u.k, "Titel");
    SortierungUmkehrenPrüfen(u.k, "Titel");
    EXPECT_TRUE(SuchCacheAktuell(u.k, u.k.Suche.standardsuche));
    // Nach einer Änderung prüft er sich neu: der geänderte Eintrag wird gefunden.
    u.k.DateiDaten[17].Mp3_ID3v1_Album = "Zwischenspeicher";
    DateiGeändertSetzen(u.k);
    EXPECT_FALSE(SuchCacheAktuell(u.k, u.k.Suche.standardsuche));
    Suchen(u.k, "(Standardsuche)", "ZWISCHEN");
    EXPECT_EQ(Zeilen(u.k), (Z{17}));
}
