// Hilfedatei, Info-Angaben und die Ereignisse des Symbols im Infobereich.
#include "shell/Beenden.h"
#include "shell/Hilfe.h"
#include "shell/Tray.h"
#include "support/Attrappen.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>

TEST(Hilfe, ÖffnetDieDateiOderMeldetIhrFehlen) {
    TestUmgebung u;
    TestOrdner ordner;
    EXPECT_FALSE(HilfeAnzeigen(u.k, ordner.Pfad()));
    ASSERT_EQ(u.ui.meldungen.size(), 1u);
    EXPECT_EQ(u.ui.meldungen[0].text, "Die Hilfedatei '" + ordner.Pfad() +
                                          "/hilfe/index.htm' wurde nicht gefunden.\n\nBitte installieren Sie dieses "
                                          "Programm neu, um diese Informationen anzuzeigen.");
    EXPECT_TRUE(u.shell.geöffnet.empty());

    DateiSchreiben(ordner / "hilfe/index.htm", "<html></html>");
    EXPECT_TRUE(HilfeAnzeigen(u.k, ordner.Pfad()));
    ASSERT_EQ(u.shell.geöffnet.size(), 1u);
    EXPECT_EQ(u.shell.geöffnet[0], ordner / "hilfe/index.htm");
    // Die mitgelieferte Hilfe ist da.
    EXPECT_TRUE(HilfeAnzeigen(u.k, KK_DATENORDNER));
    EXPECT_EQ(u.ui.meldungen.size(), 1u);
    // Ohne Programm zum Anzeigen: eine Meldung statt Stille.
    u.shell.gelingt = false;
    EXPECT_FALSE(HilfeAnzeigen(u.k, ordner.Pfad()));
    ASSERT_EQ(u.ui.meldungen.size(), 2u);
    EXPECT_EQ(u.ui.meldungen[1].text, "'" + (ordner / "hilfe/index.htm") +
                                          "' konnte nicht geöffnet werden.\n\nEs ist kein Programm zum Anzeigen "
                                          "eingerichtet (xdg-open aus dem Paket xdg-utils und ein Browser).");
    EXPECT_EQ(u.ui.meldungen[1].schalter, 48);
}

TEST(Hilfe, VersionUndCopyright) {
    EXPECT_EQ(ProgrammVersionText(), "Version 1.0.0");
    EXPECT_EQ(ProgrammCopyright().rfind("Copyright © ", 0), 0u);
}

TEST(Tray, TipptextUndDieFünfEreignisse) {
    EXPECT_EQ(TrayTippText(), "KlangKartei - Hier klicken für Funktionen");
    EXPECT_EQ(TrayEreignisAuswerten(513), TrayAktion::Keine);
    EXPECT_EQ(TrayEreignisAuswerten(514), TrayAktion::FensterZeigen);
    EXPECT_EQ(TrayEreignisAuswerten(515), TrayAktion::FensterZeigen);
    EXPECT_EQ(TrayEreignisAuswerten(516), TrayAktion::Keine);
    EXPECT_EQ(TrayEreignisAuswerten(517), TrayAktion::MenüÖffnen);
    EXPECT_EQ(TrayEreignisAuswerten(512), TrayAktion::Keine);

    // Der Eintrag "Programm anzeigen" schaltet um.
    FensterLage lage;
    EXPECT_TRUE(ProgrammSichtbar(lage));
    EXPECT_EQ(ProgrammZeigenUmschalten(lage), TrayAktion::Verstecken);
    lage.minimiert = true;
    EXPECT_FALSE(ProgrammSichtbar(lage));
    EXPECT_EQ(ProgrammZeigenUmschalten(lage), TrayAktion::FensterZeigen);
    lage.minimiert = false;
    lage.versteckt = true;
    EXPECT_EQ(ProgrammZeigenUmschalten(lage), TrayAktion::FensterZeigen);
}
