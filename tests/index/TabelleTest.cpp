#include "IndexTestHilfen.h"
#include "app/IndexOeffnen.h"
#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/Tabelle.h"
#include "app/Ergebnisliste.h"

#include <gtest/gtest.h>

TEST(Tabelle, WachsenInSchrittenUndZuschneiden) {
    TestUmgebung u;
    IndexGrößeÄndern(u.k, TabelleAnfangsgröße, false);
    TabellenWachstum w;
    std::vector<int32_t> stufen;
    for (int32_t n = 1; n <= 6101; ++n) {
        const int32_t vorher = u.k.DateiPfade.UBound();
        TabelleFürNummerVergrößern(u.k, n, w);
        if (u.k.DateiPfade.UBound() != vorher) stufen.push_back(u.k.DateiPfade.UBound());
        u.k.DateiPfade[n] = std::to_string(n);
    }
    EXPECT_EQ(stufen, (std::vector<int32_t>{2100, 4100, 6100, 8100}));
    EXPECT_EQ(u.k.DateiDaten.UBound(), 8100);
    EXPECT_EQ(u.k.DateiTreffer.UBound(), 8100);
    TabelleZuschneiden(u.k, 6101);
    EXPECT_EQ(u.k.DateiPfade.UBound(), 6101);
    EXPECT_EQ(u.k.DateiPfade[6101], "6101");  // Inhalt bleibt
    TabelleZuschneiden(u.k, 0);               // bei 0 bleibt alles
    EXPECT_EQ(u.k.DateiPfade.UBound(), 6101);
    IndexGrößeÄndern(u.k, 3, false);
    EXPECT_EQ(u.k.DateiPfade[3], "");
}

TEST(Tabelle, EntfernenUndTauschenHaltenDieFelderImGleichschritt) {
    TestUmgebung u;
    IndexGrößeÄndern(u.k, 5, false);
    u.k.DateiAnzahl = 5;
    for (int32_t i = 1; i <= 5; ++i) {
        u.k.DateiPfade[i] = "/" + std::to_string(i);
        u.k.DateiDaten[i].Mp3_ID3v1_Titel = "T" + std::to_string(i);
        u.k.DateiTreffer[i] = int16_t(i);
    }
    EinträgeTauschen(u.k, 1, 5);
    EXPECT_EQ(u.k.DateiPfade[1], "/5");
    EXPECT_EQ(u.k.DateiDaten[1].Mp3_ID3v1_Titel, "T5");
    EXPECT_EQ(u.k.DateiTreffer[1], 5);
    EXPECT_TRUE(u.k.DateiGeändert);
    EinträgeTauschen(u.k, 1, 5);

    u.k.DateiGeändert = false;
    EinsBasiert<int32_t> liste(5);
    liste[1] = 2, liste[2] = 0, liste[3] = 4, liste[4] = 2, liste[5] = 99;  // 0 bleibt, doppelt schadet nicht
    EXPECT_EQ(EinträgeEntfernen(u.k, liste), 2);
    ASSERT_EQ(u.k.DateiAnzahl, 3);
    EXPECT_EQ(u.k.DateiPfade.UBound(), 3);
    EXPECT_EQ(u.k.DateiPfade[2], "/3");
    EXPECT_EQ(u.k.DateiDaten[3].Mp3_ID3v1_Titel, "T5");
    EXPECT_EQ(u.k.DateiTreffer[3], 5);
    EXPECT_TRUE(u.k.DateiGeändert);

    EinsBasiert<int32_t> alle(3);
    alle[1] = 1, alle[2] = 2, alle[3] = 3;
    EXPECT_EQ(EinträgeEntfernen(u.k, alle), 3);
    EXPECT_EQ(u.k.DateiAnzahl, 0);
    IndexGrößeÄndern(u.k, 1, true);  // die Felder bleiben benutzbar
    EXPECT_EQ(u.k.DateiPfade[1], "");
}

TEST(Tabelle, IndexÖffnen) {
    TestUmgebung u;
    TestOrdner o;
    u.k.Liste.lstSongs.zeilen = {{4, true}};
    u.k.Liste.lstSongs.sichtbareZeile = 0;
    // Ohne Dateiname: der Standard-Index, angelegt beim Laden
    EXPECT_TRUE(IndexÖffnen(u.k, o / "Klangkt.kkt"));
    EXPECT_EQ(u.k.Dateiname, o / "Klangkt.kkt");
    EXPECT_TRUE(DoesExist(o / "Klangkt.kkt"));
    EXPECT_TRUE(u.k.Liste.lstSongs.zeilen.empty());
    EXPECT_EQ(u.k.Liste.lstSongs.sichtbareZeile, -1);
    // Ein abgelehnter Index: false, der Name bleibt
    DateiSchreiben(o / "alt.txt", "irgendwas\r\n");
    u.k.Dateiname = o / "alt.txt";
    u.ui.antworten = {Meldung::Nein};
    EXPECT_FALSE(IndexÖffnen(u.k, o / "Klangkt.kkt"));
    EXPECT_EQ(u.k.Dateiname, o / "alt.txt");
}
