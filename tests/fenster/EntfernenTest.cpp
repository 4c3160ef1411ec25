// "Aus Index entfernen": die Entfernliste und der Befehl über der Auswahl.
#include "app/Pfade.h"
#include "fileops/AusIndexEntfernen.h"
#include "app/Ergebnisliste.h"
#include "search/Suche.h"
#include "support/Attrappen.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>

namespace {
void Einträge(Kartei& k, int32_t n) {
    k.DateiPfade.ReDim(n);
    k.DateiDaten.ReDim(n);
    k.DateiTreffer.ReDim(n);
    for (int32_t i = 1; i <= n; ++i) k.DateiPfade[i] = "/m/" + std::to_string(i) + ".mp3";
    k.DateiAnzahl = n;
}
}  // namespace

TEST(AusIndexEntfernen, FragtEntferntUndSuchtNeu) {
    TestUmgebung u;
    Einträge(u.k, 5);
    auto& s = u.k.Suche;
    // Ohne Auswahl: nichts, keine Frage.
    EXPECT_FALSE(cmdDateiEntfernen_Click(u.k));
    EXPECT_TRUE(u.ui.meldungen.empty());

    s.AusgewählteDateien.ReDim(2);
    s.AusgewählteDateien[1] = 2;
    s.AusgewählteDateien[2] = 4;
    s.AusgewähltAnzahl = 2;
    u.ui.antworten = {Meldung::Nein, Meldung::Ja};
    EXPECT_FALSE(cmdDateiEntfernen_Click(u.k));
    EXPECT_EQ(u.k.DateiAnzahl, 5);
    ASSERT_EQ(u.ui.meldungen.size(), 1u);
    EXPECT_EQ(u.ui.meldungen[0].text, "Möchten Sie 2 Datei(en) aus dem Index entfernen?\n\nDie Dateien selbst "
                                      "bleiben auf dem Datenträger erhalten.");
    EXPECT_EQ(u.ui.meldungen[0].schalter, 36);

    EXPECT_TRUE(cmdDateiEntfernen_Click(u.k));
    EXPECT_EQ(u.k.DateiAnzahl, 3);
    EXPECT_EQ(u.k.DateiPfade[1], "/m/1.mp3");
    EXPECT_EQ(u.k.DateiPfade[2], "/m/3.mp3");
    EXPECT_EQ(u.k.DateiPfade[3], "/m/5.mp3");
    EXPECT_TRUE(u.k.DateiGeändert);
    EXPECT_EQ(s.AusgewähltAnzahl, 0);
    // Die Liste zeigt danach den neuen Stand.
    EXPECT_EQ(u.k.Liste.lstSongs.zeilen.size(), 3u);
    EXPECT_EQ(u.ui.titelTexte.back(), "2 Datei(en) aus dem Index entfernt");
}

TEST(AusIndexEntfernen, ListeMitNullenUndDoppeltenAlleWeg) {
    TestUmgebung u;
    Einträge(u.k, 3);
    EinsBasiert<int32_t> liste(5);
    liste[1] = 3;
    liste[2] = 0;  // bleibt
    liste[3] = 3;  // doppelt: schadet nicht
    liste[4] = 1;
    liste[5] = 99;  // gibt es nicht
    DateienAusListeEntfernenStarten(u.k, liste);
    ASSERT_EQ(u.k.DateiAnzahl, 1);
    EXPECT_EQ(u.k.DateiPfade[1], "/m/2.mp3");
    EinsBasiert<int32_t> alle(1);
    alle[1] = 1;
    DateienAusListeEntfernenStarten(u.k, alle);
    EXPECT_EQ(u.k.DateiAnzahl, 0);
    EXPECT_TRUE(u.k.DateiGeändert);
}
