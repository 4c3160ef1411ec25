#include "shell/Fortschritt.h"
#include "support/Attrappen.h"

#include <gtest/gtest.h>

TEST(Fortschritt, BalkenInVierEinhalbTausendEinheiten) {
    TestUmgebung u;
    ASSERT_TRUE(FortschrittZeigenStarten(u.k, 200, true, true, true, "Speichere Indexdatei"));
    const auto& a = u.k.Fortschritt.ansicht;
    EXPECT_TRUE(a.offen);
    EXPECT_EQ(a.titel, "KlangKartei");
    EXPECT_TRUE(FortschrittZeigen(u.k, 1, "eins"));
    EXPECT_EQ(a.balkenBreite, 22);  // Int(1 * 0,5 * 45) = 22 > 0 + 10
    EXPECT_TRUE(FortschrittZeigen(u.k, 1.4, "x"));
    EXPECT_EQ(a.balkenBreite, 22);  // 31 ist nicht mehr als 10 Einheiten breiter
    EXPECT_TRUE(FortschrittZeigen(u.k, 200, "x"));
    EXPECT_EQ(a.balkenBreite, 4500);
    EXPECT_EQ(a.prozess, "x");
    EXPECT_TRUE(a.abbrechenSichtbar);
    FortschrittZeigenEnde(u.k);
    EXPECT_FALSE(a.offen);
    EXPECT_FALSE(u.ui.fortschritte.back().offen);
}

TEST(Fortschritt, AbbrechenWirktBeimNächstenMelden) {
    TestUmgebung u;
    ASSERT_TRUE(FortschrittZeigenStarten(u.k, 10, true, true, false, "Lade"));
    u.ui.beiEreignissen = [&] { FortschrittAbbrechenGedrückt(u.k); };
    EXPECT_TRUE(FortschrittZeigen(u.k, 1, ""));  // der Klick kommt erst in diesem Ereignislauf
    EXPECT_FALSE(FortschrittZeigen(u.k, 2, ""));
    EXPECT_FALSE(FortschrittFensterOffen(u.k));
    EXPECT_FALSE(u.k.Fortschritt.FortschrittAbgebrochen);  // das Ende löscht den Merker
    // Fenster zu, StartBildschirm 1: weitere Meldungen sagen "aufhören".
    EXPECT_FALSE(FortschrittZeigen(u.k, 3, ""));
}

TEST(Fortschritt, OhneStartBildschirmKeinFenster) {
    TestUmgebung u;
    u.k.E.StartBildschirm = 0;
    ASSERT_TRUE(FortschrittZeigenStarten(u.k, 10, true, true, true, "Speichere"));
    EXPECT_FALSE(FortschrittFensterOffen(u.k));
    u.ui.beiEreignissen = [&] { FortschrittAbbrechenGedrückt(u.k); };
    EXPECT_TRUE(FortschrittZeigen(u.k, 1, ""));  // nicht abbrechbar, geht immer weiter
    EXPECT_TRUE(u.ui.fortschritte.empty());
    // Ein anderer Wert als 0 oder 1: kein Fenster, und Meldungen sagen sofort "aufhören".
    u.k.E.StartBildschirm = 2;
    ASSERT_TRUE(FortschrittZeigenStarten(u.k, 10, true, true, true, "x"));
    EXPECT_FALSE(FortschrittZeigen(u.k, 1, ""));
}

TEST(Fortschritt, SonderfälleDesMaximums) {
    TestUmgebung u;
    EXPECT_FALSE(FortschrittZeigenStarten(u.k, -1, false, true, false, "x"));
    ASSERT_TRUE(FortschrittZeigenStarten(u.k, 0, false, true, false, "x"));
    EXPECT_TRUE(FortschrittZeigen(u.k, 5, ""));  // Maximum 0: kein Absturz, Balken bleibt
    EXPECT_EQ(u.k.Fortschritt.ansicht.balkenBreite, 0);
    EXPECT_FALSE(u.k.Fortschritt.ansicht.abbrechenSichtbar);
}
