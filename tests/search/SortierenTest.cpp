// Sortieren der Tabelle: Spaltenklick, Umdrehen, Abbrechen, und Gleichheit mit dem wörtlichen
// Verfahren (Schlüssel bei jedem Vergleich neu geholt, rekursiv).
#include "SuchTestHilfen.h"

#include "app/Texte.h"
#include "app/Zahlen.h"
#include "index/IndexFeld.h"
#include "index/Spalten.h"
#include "search/Abfrage.h"
#include "search/ListeErstellen.h"
#include "search/Sortieren.h"
#include "shell/Fortschritt.h"
#include "support/IndexGenerator.h"

#include <gtest/gtest.h>

namespace {
std::vector<std::string> Interpreten(const Kartei& k) {
    std::vector<std::string> v;
    for (int32_t i = 1; i <= k.DateiAnzahl; ++i) v.push_back(k.DateiDaten[i].Mp3_ID3v1_Interpret);
    return v;
}

void InterpretEintrag(Kartei& k, const std::string& interpret, const std::string& titel = "") {
    DateiInfo& d = Neu(k, "/m/" + interpret + titel + ".mp3");
    d.Mp3_ID3v1_Interpret = interpret;
    d.Mp3_ID3v1_Titel = titel;
}

// Wörtlich: QSort mit Feldabruf (Sortierform) bei jedem Vergleich.
class Wörtlich {
public:
    Wörtlich(Kartei& k, const std::string& spalte) : k_(k), feld_(IndexFeldVorbereiten(spalte)) {}
    void QSort(int32_t von, int32_t bis) {
        if (!FortschrittZeigen(k_, von, "")) return;
        if (bis <= von) return;
        const int32_t pivot = (von + bis) / 2;
        std::string p;
        int16_t art = 0;
        IndexFeldZurückgeben(k_, pivot, feld_, true, p, art);
        const DateiInfo pivotDaten = k_.DateiDaten[pivot];
        int32_t i = von, j = bis;
        while (i <= j) {
            while (Vergleich(i, p, pivotDaten) < 0 && i < bis) ++i;
            while (Vergleich(j, p, pivotDaten) > 0 && j > von) --j;
            if (i <= j) {
                std::swap(k_.DateiPfade[i], k_.DateiPfade[j]);
                std::swap(k_.DateiDaten[i], k_.DateiDaten[j]);
                std::swap(k_.DateiTreffer[i], k_.DateiTreffer[j]);
                k_.DateiGeändert = true;
                ++i;
                --j;
            }
        }
        if (von < j) QSort(von, j);
        if (i < bis) QSort(i, bis);
    }

private:
    int Vergleich(int32_t e, const std::string& pivot, const DateiInfo& pivotDaten) {
        std::string t;
        int16_t art = 0;
        IndexFeldZurückgeben(k_, e, feld_, true, t, art);
        auto drei = [](auto a, auto b) { return a < b ? -1 : b < a ? 1 : 0; };
        switch (art) {
        case 0: return drei(Groß(t), Groß(pivot));
        case 1: return drei(ZahlLesen(t), ZahlLesen(pivot));
        case 4: return drei(std::max(0, k_.DateiDaten[e].Header_Dauer), std::max(0, pivotDaten.Header_Dauer));
        default: return drei(t, pivot);
        }
    }
    Kartei& k_;
    IndexFeld feld_;
};

// Sortiert über eine offene Fortschrittsanzeige; abbrechenNach > 0 drückt nach so vielen
// Ereignisrunden "Abbrechen".
template <typename F> void MitFortschritt(TestUmgebung& u, int abbrechenNach, F sortieren) {
    u.ui.ereignisRunden = 0;
    u.ui.beiEreignissen = [&u, abbrechenNach] {
        if (abbrechenNach > 0 && u.ui.ereignisRunden == abbrechenNach) FortschrittAbbrechenGedrückt(u.k);
    };
    FortschrittZeigenStarten(u.k, u.k.DateiAnzahl, true, true, false, "Sortiere Liste");
    sortieren();
    FortschrittZeigenEnde(u.k);
}
}  // namespace

TEST(Sortieren, GleichesErgebnisWieWörtlich) {
    for (const char* spalte : {"Interpret", "Titel", "Track", "Jahr", "Größe", "Hinzufüge-Datum", "Abspiel-Datum",
                               "Dauer", "Benutzerdefiniert", "Pfad+Dateiname", "Genre", "Bitrate"}) {
        for (int abbrechenNach : {0, 1, 40}) {
            SCOPED_TRACE(std::string(spalte) + " / Abbruch nach " + std::to_string(abbrechenNach));
            TestUmgebung a, b;
            IndexErzeugen(a.k, 400, 7);
            IndexErzeugen(b.k, 400, 7);
            // Die Dauer ist im Generator nie negativ; ein paar unbekannte mischen.
            for (int32_t i = 5; i <= 400; i += 37) a.k.DateiDaten[i].Header_Dauer = b.k.DateiDaten[i].Header_Dauer = -1;
            MitFortschritt(a, abbrechenNach, [&] { QSort(a.k, spalte, 1, a.k.DateiAnzahl); });
            MitFortschritt(b, abbrechenNach, [&] { Wörtlich(b.k, spalte).QSort(1, b.k.DateiAnzahl); });
            ASSERT_EQ(a.k.DateiPfade.Vektor(), b.k.DateiPfade.Vektor());
            ASSERT_TRUE(a.k.DateiDaten.Vektor() == b.k.DateiDaten.Vektor());
            EXPECT_EQ(a.k.DateiGeändert, b.k.DateiGeändert);
            EXPECT_EQ(a.ui.ereignisRunden, b.ui.ereignisRunden);
        }
    }
}

TEST(Sortieren, ArtenDerSchlüssel) {
    TestUmgebung u;
    for (auto [dauer, track, interpret] : {std::tuple{600, "10", "b"}, {65, "9", "A"}, {540, "x", "c"}}) {
        DateiInfo& d = Neu(u.k, std::string("/m/") + interpret);
        d.Header_Dauer = dauer;
        d.Mp3_ID3v1_Track = track;
        d.Mp3_ID3v1_Interpret = interpret;
    }
    auto reihenfolge = [&] {
        std::string r;
        for (int32_t i = 1; i <= 3; ++i) r += u.k.DateiDaten[i].Mp3_ID3v1_Interpret;
        return r;
    };
    MitFortschritt(u, 0, [&] { QSort(u.k, "Dauer", 1, 3); });  // 1:05, 9:00, 10:00 – als Zahlen
    EXPECT_EQ(reihenfolge(), "Acb");
    MitFortschritt(u, 0, [&] { QSort(u.k, "Track", 1, 3); });  // "x" zählt 0
    EXPECT_EQ(reihenfolge(), "cAb");
    MitFortschritt(u, 0, [&] { QSort(u.k, "Interpret", 1, 3); });  // Groß/Klein egal
    EXPECT_EQ(reihenfolge(), "Abc");
}

TEST(Sortieren, KlickfolgeUndSpaltenwechsel) {
    TestUmgebung u;
    InterpretEintrag(u.k, "Can", "b");
    InterpretEintrag(u.k, "Abba", "c");
    InterpretEintrag(u.k, "Blumfeld", "a");
    Suchen(u.k, "(Standardsuche)", "");
    using S = std::vector<std::string>;
    SpalteSortieren(u.k, "Interpret", "");
    EXPECT_EQ(Interpreten(u.k), (S{"Abba", "Blumfeld", "Can"}));
    EXPECT_TRUE(u.k.DateiGeändert);
    EXPECT_EQ(u.ui.titelTexte.back(), "Die Liste wurde sortiert nach der Spalte 'Interpret'");
    SpalteSortieren(u.k, "Interpret", "");
    EXPECT_EQ(Interpreten(u.k), (S{"Can", "Blumfeld", "Abba"}));
    SpalteSortieren(u.k, "Interpret", "");
    EXPECT_EQ(Interpreten(u.k), (S{"Abba", "Blumfeld", "Can"}));
    EXPECT_EQ(u.k.Suche.SortierUmkehren, 1);
    // Der Wechsel kippt das Gedächtnis auch: der zweite Klick auf Titel sortiert noch aufwärts,
    // erst der dritte abwärts.
    SpalteSortieren(u.k, "Titel", "");
    EXPECT_EQ(Interpreten(u.k), (S{"Blumfeld", "Can", "Abba"}));
    SpalteSortieren(u.k, "Titel", "");
    EXPECT_EQ(Interpreten(u.k), (S{"Blumfeld", "Can", "Abba"}));
    SpalteSortieren(u.k, "Titel", "");
    EXPECT_EQ(Interpreten(u.k), (S{"Abba", "Can", "Blumfeld"}));
    // Die Liste zeigt die neue Reihenfolge; die Auswahl ist weg.
    EXPECT_EQ(Zeilen(u.k), (std::vector<int32_t>{1, 2, 3}));
    EXPECT_EQ(u.k.Suche.AusgewähltAnzahl, 0);
}

TEST(Sortieren, AuswahlLeereSpalteUndBenutzerdefiniert) {
    TestUmgebung u;
    InterpretEintrag(u.k, "b", "2");
    InterpretEintrag(u.k, "a", "1");
    Suchen(u.k, "(Standardsuche)", "");
    u.k.Liste.lstSongs.zeilen[0].ausgewählt = true;
    AuswahlAktualisieren(u.k, u.k.Liste.lstSongs);
    // Ein leerer Kopf lässt sich nicht sortieren.
    u.k.Liste.lstSongs.spalten = {{"", "", 1400, 5}, {"Interpret - Titel", "b", 1400, 19}};
    lstSongs_ColumnClick(u.k, 0);
    ASSERT_EQ(u.ui.meldungen.size(), 1u);
    EXPECT_EQ(u.ui.meldungen[0].text, "Diese Spalte kann nicht sortiert werden.");
    EXPECT_EQ(u.ui.meldungen[0].schalter, Meldung::Information);
    EXPECT_FALSE(u.k.DateiGeändert);
    EXPECT_EQ(u.k.Suche.AusgewähltAnzahl, 1);
    // Die Spalte mit Tag "b" sortiert nach "Benutzerdefiniert"; die Auswahl geht verloren.
    lstSongs_ColumnClick(u.k, 1);
    EXPECT_EQ(Interpreten(u.k), (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(u.k.Suche.SortierSpalteZuletzt, "Benutzerdefiniert");
    EXPECT_EQ(u.k.Suche.AusgewähltAnzahl, 0);
    EXPECT_FALSE(u.k.Liste.lstSongs.zeilen[0].ausgewählt);
}

TEST(Sortieren, EinEintragUndUmdrehenÜberDieObergrenze) {
    TestUmgebung u;
    InterpretEintrag(u.k, "x");
    Suchen(u.k, "(Standardsuche)", "");
    SpalteSortieren(u.k, "Interpret", "");
    EXPECT_FALSE(u.k.DateiGeändert);

    // Drei Einträge, Platz für fünf: das Umdrehen läuft über alle fünf Plätze.
    TestUmgebung v;
    for (const char* i : {"a", "b", "c"}) InterpretEintrag(v.k, i);
    IndexGrößeÄndern(v.k, 5, true);
    v.k.DateiTreffer.ReDim(3);  // wie nach einem Suchlauf: die Felder dürfen abweichen
    SortierungUmkehrenPrüfen(v.k, "Interpret");
    SortierungUmkehrenPrüfen(v.k, "Interpret");
    EXPECT_EQ(v.k.DateiPfade.UBound(), 5);
    EXPECT_EQ(v.k.DateiTreffer.UBound(), 5);
    EXPECT_EQ(v.k.DateiPfade.Vektor(), (std::vector<KText>{"", "", "/m/c.mp3", "/m/b.mp3", "/m/a.mp3"}));
    EXPECT_EQ(v.k.DateiDaten[3].Mp3_ID3v1_Interpret, "c");
    EXPECT_EQ(v.k.Suche.SortierUmkehren, 0);
}

TEST(Sortieren, OhneZeilenUndOhneAnzeigeSortiertNichts) {
    TestUmgebung u;
    InterpretEintrag(u.k, "b");
    InterpretEintrag(u.k, "a");
    Suchen(u.k, "Interpret", "gibtsnicht");
    // Ohne Zeilen öffnet keine Anzeige; ihre erste Meldung sagt "aufhören".
    SpalteSortieren(u.k, "Interpret", "");
    EXPECT_EQ(Interpreten(u.k), (std::vector<std::string>{"b", "a"}));
    EXPECT_FALSE(u.k.DateiGeändert);
    // Ohne Startbildschirm läuft alles ohne Anzeige durch.
    u.k.E.StartBildschirm = 0;
    SpalteSortieren(u.k, "Pfad+Dateiname", "");
    EXPECT_EQ(Interpreten(u.k), (std::vector<std::string>{"a", "b"}));
}

TEST(Sortieren, GrößenNachIhremZahlenwert) {
    TestUmgebung u;
    for (int32_t größe : {3145728, 1500, 100, 999, 2500, 1000}) {
        DateiInfo& d = Neu(u.k, "/m/" + std::to_string(größe) + ".mp3");
        d.Datei_Größe = größe;
        d.Mp3_ID3v2_Status = 1;
        d.Mp3_ID3v2_TAGGröße = größe;
    }
    for (const char* spalte : {"Größe", "ID3v2-TAG-Größe"}) {
        SCOPED_TRACE(spalte);
        MitFortschritt(u, 0, [&] { QSort(u.k, spalte, 1, u.k.DateiAnzahl); });
        std::string folge;
        for (int32_t i = 1; i <= u.k.DateiAnzahl; ++i) folge += std::to_string(u.k.DateiDaten[i].Datei_Größe) + " ";
        EXPECT_EQ(folge, "100 999 1000 1500 2500 3145728 ");
    }
}

TEST(Sortieren, NachSpaltennummerAuchAusgeblendetUndAuswahlFolgtDerListe) {
    TestUmgebung u;
    InterpretEintrag(u.k, "c", "1");
    InterpretEintrag(u.k, "a", "3");
    InterpretEintrag(u.k, "b", "2");
    Suchen(u.k, "(Standardsuche)", "");
    u.k.Liste.lstSongs.spalten.clear();  // keine Spalte sichtbar
    u.k.Optionen.SpaltenNutzerformat = "%Interpret%";
    SpalteNachNummerSortieren(u.k, SpalteBenutzerdefiniert);
    EXPECT_EQ(Interpreten(u.k), (std::vector<std::string>{"a", "b", "c"}));
    EXPECT_EQ(u.k.Suche.SortierSpalteZuletzt, "Benutzerdefiniert");
    EXPECT_EQ(u.ui.titelTexte.back(), "Die Liste wurde sortiert nach der Spalte 'Benutzerdefiniert'");
    SpalteNachNummerSortieren(u.k, SpaltenNummer("Titel"));
    EXPECT_EQ(Interpreten(u.k), (std::vector<std::string>{"c", "b", "a"}));

    // Die gewählten Einträge einer Suche sind die Ergebnisliste in ihrer Reihenfolge.
    EintragsAuswahl auswahl;
    auswahl.mitSuche = true;
    auswahl.suche.feld = "Interpret";
    auswahl.suche.text = "a";
    auswahl.suche.nicht = true;
    std::vector<int32_t> gewählt;
    std::string fehler;
    ASSERT_TRUE(EinträgeWählen(u.k, auswahl, gewählt, fehler));
    std::vector<int32_t> liste;
    for (const auto& z : u.k.Liste.lstSongs.zeilen) liste.push_back(z.eintrag);
    EXPECT_EQ(gewählt, liste);
    EXPECT_EQ(gewählt, (std::vector<int32_t>{1, 2}));
    EXPECT_EQ(Interpreten(u.k), (std::vector<std::string>{"c", "b", "a"}));
    // Die nächste Suche erbt weder die Verneinung noch frühere Zeilen.
    auswahl.suche.nicht = false;
    auswahl.suche.text = "b";
    ASSERT_TRUE(EinträgeWählen(u.k, auswahl, gewählt, fehler));
    EXPECT_EQ(gewählt, (std::vector<int32_t>{2}));
    auswahl.suche.zeilen = {"Interpret:11:c", "Titel:11:3"};
    ASSERT_TRUE(EinträgeWählen(u.k, auswahl, gewählt, fehler));
    EXPECT_EQ(gewählt, (std::vector<int32_t>{2}));
    auswahl.suche.zeilen.clear();
    auswahl.suche.text = "c";
    ASSERT_TRUE(EinträgeWählen(u.k, auswahl, gewählt, fehler));
    EXPECT_EQ(gewählt, (std::vector<int32_t>{1}));
}
