// Die Ergebnisliste: Zeilen wiederverwenden, Auswahl über den Neuaufbau behalten, kürzen, zählen.
#include "SuchTestHilfen.h"

#include "search/ListeErstellen.h"

#include <gtest/gtest.h>

using Z = std::vector<int32_t>;

namespace {
// Einträge "1".."n" mit dem Titel ihrer Nummer.
void Einträge(Kartei& k, int n) {
    for (int i = 1; i <= n; ++i) TitelEintrag(k, "t" + std::to_string(i));
}

void Wählen(Kartei& k, std::initializer_list<int32_t> einträge) {
    for (auto& z : k.Liste.lstSongs.zeilen) z.ausgewählt = false;
    for (auto& z : k.Liste.lstSongs.zeilen)
        for (int32_t e : einträge)
            if (z.eintrag == e) z.ausgewählt = true;
    AuswahlAktualisieren(k, k.Liste.lstSongs);
}

// Ergebnis von Hand: nur die genannten Einträge markiert.
void Ergebnis(Kartei& k, std::initializer_list<int32_t> einträge) {
    k.DateiTreffer.Vektor().assign(size_t(k.DateiAnzahl), 0);
    int32_t erster = 0, letzter = 0;
    for (int32_t e : einträge) {
        k.DateiTreffer[e] = 1;
        if (erster == 0) erster = e;
        letzter = e;
    }
    k.Suche.SuchCacheAnfang = erster;
    k.Suche.SuchCacheEnde = letzter;
}

std::vector<int32_t> Gewählt(const Kartei& k) {
    std::vector<int32_t> g;
    for (const auto& z : k.Liste.lstSongs.zeilen)
        if (z.ausgewählt) g.push_back(z.eintrag);
    return g;
}
}  // namespace

TEST(ListeErstellen, AuswahlBleibtOderGehtVerloren) {
    TestUmgebung u;
    Einträge(u.k, 6);
    Suchen(u.k, "(Standardsuche)", "");
    Wählen(u.k, {2, 4, 6});
    ASSERT_EQ(u.k.Suche.AusgewähltAnzahl, 3);

    // 2 und 6 bleiben im Ergebnis (in anderen Zeilen), 4 nicht.
    Ergebnis(u.k, {1, 2, 3, 6});
    ListeErstellen(u.k, u.k.Liste.lstSongs, true);
    EXPECT_EQ(Zeilen(u.k), (Z{1, 2, 3, 6}));
    EXPECT_EQ(Gewählt(u.k), (Z{2, 6}));
    EXPECT_EQ(u.k.Suche.AusgewähltAnzahl, 2);
    EXPECT_EQ(u.k.Suche.AusgewählteDateien[1], 2);
    EXPECT_EQ(u.k.Suche.AusgewählteZeilen[2], 4);
    EXPECT_EQ(u.k.Liste.lstSongs.sichtbareZeile, 1);
    EXPECT_EQ(u.k.Liste.DateiAnzahlText, "4 Datei(en) gefunden\n6 Datei(en) im Index");

    // Eine wiederverwendete Zeile verliert die Auswahl ihres früheren Eintrags.
    Ergebnis(u.k, {3, 4, 5});
    ListeErstellen(u.k, u.k.Liste.lstSongs, false);
    EXPECT_EQ(Zeilen(u.k), (Z{3, 4, 5}));
    EXPECT_TRUE(Gewählt(u.k).empty());
    EXPECT_EQ(u.k.Suche.AusgewähltAnzahl, 0);
    EXPECT_EQ(u.k.Liste.lstSongs.sichtbareZeile, -1);
    EXPECT_EQ(u.k.Liste.DateiAnzahlText, "4 Datei(en) gefunden\n6 Datei(en) im Index");  // ohne AnzahlZeigen

    // Beim Hinzufügen von Dateien werden Markierungen nicht behalten.
    Wählen(u.k, {4});
    u.k.Suche.MarkierungenBehalten = false;
    ListeErstellen(u.k, u.k.Liste.lstSongs, true);
    EXPECT_TRUE(Gewählt(u.k).empty());
}

TEST(ListeErstellen, MarkeHinterDateiAnzahlFälltWeg) {
    TestUmgebung u;
    Einträge(u.k, 8);
    Suchen(u.k, "(Standardsuche)", "");
    Wählen(u.k, {3, 5, 7});
    // Einträge 1 und 2 entfernt: die Tags der Zeilen zeigen jetzt auf andere Einträge, und 7 liegt
    // hinter der neuen Anzahl.
    EinsBasiert<int32_t> weg(2);
    weg[1] = 1;
    weg[2] = 2;
    ASSERT_EQ(EinträgeEntfernen(u.k, weg), 2);
    Ergebnis(u.k, {1, 2, 3, 4, 5, 6});
    ListeErstellen(u.k, u.k.Liste.lstSongs, true);
    EXPECT_EQ(Gewählt(u.k), (Z{3, 5}));
    EXPECT_EQ(u.k.Liste.DateiAnzahlText, "6 Datei(en) gefunden\n6 Datei(en) im Index");
}

TEST(ListeErstellen, KürzenVonHundertAufDreißig) {
    TestUmgebung u;
    Einträge(u.k, 100);
    Suchen(u.k, "(Standardsuche)", "");
    ASSERT_EQ(u.k.Liste.lstSongs.zeilen.size(), 100u);
    const uint64_t version = u.k.Liste.lstSongs.version;
    // Jeder dritte Eintrag und die letzten zehn: dreißig Zeilen.
    std::vector<int32_t> erwartet;
    u.k.DateiTreffer.Vektor().assign(100, 0);
    for (int32_t e = 3; e <= 60; e += 3) erwartet.push_back(e);
    for (int32_t e = 91; e <= 100; ++e) erwartet.push_back(e);
    for (int32_t e : erwartet) u.k.DateiTreffer[e] = 1;
    u.k.Suche.SuchCacheAnfang = 3;
    u.k.Suche.SuchCacheEnde = 100;
    ListeErstellen(u.k, u.k.Liste.lstSongs, true);
    EXPECT_EQ(Zeilen(u.k), erwartet);
    EXPECT_GT(u.k.Liste.lstSongs.version, version);
    EXPECT_EQ(u.k.Liste.DateiAnzahlText, "30 Datei(en) gefunden\n100 Datei(en) im Index");

    // Nichts gefunden: die Liste ist leer.
    Suchen(u.k, "Titel", "gibtsnicht");
    EXPECT_TRUE(u.k.Liste.lstSongs.zeilen.empty());
    EXPECT_EQ(u.k.Liste.DateiAnzahlText, "0 Datei(en) gefunden\n100 Datei(en) im Index");
}
