// Die Logik hinter "Zum Index hinzufügen" (Filter, Wahl) und "Aus Index entfernen".
#include "app/Pfade.h"
#include "fileops/AusIndexEntfernen.h"
#include "intake/HinzufuegenDialog.h"
#include "search/Ergebnisliste.h"
#include "search/Suche.h"
#include "support/Attrappen.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>

namespace {
void Typen(Kartei& k, std::initializer_list<const char*> einträge) {
    k.Optionen.DateitypEintrag.ReDim(0);
    k.Optionen.DateitypKlasse.ReDim(0);
    for (const char* e : einträge) {
        k.Optionen.DateitypEintrag.Anhängen(e);
        k.Optionen.DateitypKlasse.Anhängen("110");
    }
    k.Optionen.DateitypenLeer = false;
}

void Einträge(Kartei& k, int32_t n) {
    k.DateiPfade.ReDim(n);
    k.DateiDaten.ReDim(n);
    k.DateiTreffer.ReDim(n);
    for (int32_t i = 1; i <= n; ++i) k.DateiPfade[i] = "/m/" + std::to_string(i) + ".mp3";
    k.DateiAnzahl = n;
}
}  // namespace

TEST(HinzufügenDialog, FilterAusDerTypentabelle) {
    TestUmgebung u;
    std::string filter;
    EXPECT_FALSE(DateienHinzufügenFilter(u.k, filter));  // keine Typen eingerichtet
    ASSERT_EQ(u.ui.meldungen.size(), 1u);
    EXPECT_EQ(u.ui.meldungen[0].text, "Sie können keine Dateien hinzufügen, da kein Dateityp eingerichtet wurde.\n\n"
                                      "Installieren Sie dieses Programm neu, um die Dateitypen wiederherzustellen.");
    EXPECT_EQ(u.ui.meldungen[0].schalter, 64);

    Typen(u.k, {"gif=0", "*=1", "jpg=0"});
    EXPECT_FALSE(DateienHinzufügenFilter(u.k, filter));  // "*" zählt nicht, nichts freigegeben
    EXPECT_EQ(u.ui.meldungen.back().text, "Sie können keine Dateien hinzufügen, da kein Dateityp für die "
                                          "Verwaltung freigegeben wurde.\n\nÄndern Sie diese Einstellung in den "
                                          "'Optionen'.");

    Typen(u.k, {"mp3=1", "mp2=1", "gif=0", "kaputt", "wav=1", "*=0"});
    ASSERT_TRUE(DateienHinzufügenFilter(u.k, filter));
    EXPECT_EQ(filter, "Unterstützte Dateiformate (*.mp3,*.mp2,*.wav)|*.mp3;*.mp2;*.wav|Alle Dateien (*.*)|*.*");
}

TEST(HinzufügenDialog, WahlAbgebrochenOderLeer) {
    TestUmgebung u;
    Typen(u.k, {"mp3=1"});
    EinsBasiert<std::string> dateien;
    u.ui.dateiListen = {{}};  // abgebrochen
    EXPECT_FALSE(DateienFürIndexWählen(u.k, dateien));
    u.ui.dateiListen = {{"/a.mp3", "/b.mp3"}};
    ASSERT_TRUE(DateienFürIndexWählen(u.k, dateien));
    EXPECT_EQ(dateien.UBound(), 2);
    EXPECT_EQ(dateien[2], "/b.mp3");
    std::string ordner;
    u.ui.ordner = {""};
    EXPECT_FALSE(OrdnerFürIndexWählen(u.k, ordner));
    u.ui.ordner = {"/musik"};
    ASSERT_TRUE(OrdnerFürIndexWählen(u.k, ordner));
    EXPECT_EQ(ordner, "/musik");
}

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
