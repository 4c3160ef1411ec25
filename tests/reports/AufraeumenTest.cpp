// Aktionen der Indexverwaltung: je Datei eine Aktion über alle Zeilen, Zählen, Bestätigung.
#include "BerichteHilfen.h"

#include "reports/Aufraeumen.h"

#include <gtest/gtest.h>

TEST(Aufräumen, AktionJeDateiÜberZeilenHinweg) {
    TestUmgebung u;
    for (int i = 0; i < 4; ++i) Neu(u.k, "/m/lied.mp3");
    Aufräumen a;
    AufräumenBeginnen(u.k, a, Suchmethode::Dateiname, DuplikateSuchen(u.k, Suchmethode::Dateiname, {1, 2, 3, 4}));
    ASSERT_EQ(a.treffer.size(), 3u);  // (1,2), (2,3), (3,4)
    // Datei 2 ist rechts in Zeile 0 und links in Zeile 1: die Aktion gilt in beiden.
    AktionSetzen(a, {0}, true, Aktion::Löschen);
    EXPECT_EQ(a.GefundenAktionen[size_t(a.treffer[1].datei1)], Aktion::Löschen);
    AktionSetzen(a, {1, 2, 7, -1}, true, Aktion::AusIndex);
    AktionSetzen(a, {0}, false, 9);  // unbekannter Code ändert nichts
    EXPECT_EQ(a.GefundenAktionen, (std::vector<int32_t>{0, 0, 1, 3, 3}));
    EXPECT_EQ(AktionenZählen(a), (std::array<int32_t, 5>{1, 1, 0, 2, 0}));
}

TEST(Aufräumen, BestätigungMitZahlen) {
    TestUmgebung u;
    Neu(u.k, "/m/a.mp3");
    Neu(u.k, "/m/b.mp3");
    Aufräumen a;
    AufräumenBeginnen(u.k, a, Suchmethode::OhneId3v2Index, {{1, 0}, {2, 0}});
    EXPECT_FALSE(AktionenBestätigen(u.k, a));
    ASSERT_EQ(u.ui.meldungen.size(), 1u);
    EXPECT_EQ(u.ui.meldungen[0].text, "Bitte wählen Sie eine Aktion für mindestens eine gefundene Datei.");
    EXPECT_EQ(u.ui.meldungen[0].schalter, Meldung::Information);
    AktionSetzen(a, {0}, false, Aktion::Papierkorb);
    AktionSetzen(a, {1}, false, Aktion::Ersetzen);
    u.ui.antworten = {Meldung::Nein, Meldung::Ja};
    EXPECT_FALSE(AktionenBestätigen(u.k, a));
    EXPECT_TRUE(AktionenBestätigen(u.k, a));
    EXPECT_EQ(u.ui.meldungen[1].schalter, Meldung::JaNeinFrage);
    EXPECT_EQ(u.ui.meldungen[1].text,
              "Sie haben folgende Aktionen gewählt:\n"
              " - 0 Datei(en) löschen und aus dem Index entfernen\n"
              " - 1 Datei(en) in den Papierkob verschieben und aus dem Index entfernen\n"
              " - 0 Datei(en) aus dem Index entfernen, ohne diese zu löschen\n"
              " - 1 Datei(en) durch eine leere Datei mit anderer Datei-Endung ersetzen und aus dem Index entfernen\n"
              "\nMöchten Sie diese Aktionen durchführen?");
    EXPECT_EQ(AktionenTexte()[4], "Datei ersetzen durch leere Datei mit anderer Endung");
}
