// Hilfedatei, Info-Angaben, Reihenfolge der Hinweise, Startfehler und die Ereignisse des Symbols
// im Infobereich.
#include "shell/Beenden.h"
#include "shell/Hilfe.h"
#include "shell/StartFehler.h"
#include "shell/Tipps.h"
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

TEST(Tipps, ZweiundzwanzigInDerBeschriebenenReihenfolge) {
    // Je Tipp sein Anfang: eine vertauschte oder fehlende Zeile fällt sofort auf.
    const char* anfänge[] = {"Dieses Fenster gibt Ihnen",
                             "Sie können mit dem Klangkartei",
                             "Verwenden Sie Datei-TAGs",
                             "Sie können zu Dateien jetzt auch",
                             "Die Funktion 'Umbenennen' kann viel mehr als nur umbenennen!\r\nSie können damit",
                             "Die Funktion 'Umbenennen' kann viel mehr als nur umbenennen!\r\nWenn Sie z.B.",
                             "Einen Datei-TAG einzugeben",
                             "Verwenden Sie die Funktion 'Zielordner vorschlagen'",
                             "Gibt es eine neue Version",
                             "Sie können schnell eine Indexdatei öffnen",
                             "Räumen Sie den Index auf",
                             "Stellen Sie eine individuelle",
                             "Möchten Sie Ihre Datei-Sammlung",
                             "Dateien von verschiendenen CDs",
                             "Die Such-Funktion wurde verbessert:",
                             "Sichern Sie Ihre Daten!",
                             "Sie verwalten viele Dateien",
                             "Das Fortschrittsfenster stört Sie?",
                             "Sie können die Geschwindigkeit",
                             "Nutzen Sie Tastenkombinationen!\r\n[STRG+A]",
                             "Nutzen Sie Tastenkombinationen!\r\n[EINGABE]",
                             "Ist Ihr Computer an ein Netzwerk"};
    ASSERT_EQ(TippsAnzahl(), 22);
    for (int32_t i = 1; i <= 22; ++i) EXPECT_EQ(TippsTexte(i).rfind(anfänge[i - 1], 0), 0u) << i;
}

TEST(StartFehler, MeldungMitNummer) {
    EXPECT_EQ(StartFehlerText(StartFehler::KeinSpeicher),
              "Das Programm konnte nicht vollständig geladen werden. (Fehler 7).\n\nStellen Sie sicher, daß das "
              "Programm durch das Setup korrekt installiert wurde. Installieren Sie es gegebenenfalls erneut oder in "
              "der neuesten Version. Wenn das Problem bestehen bleibt, wenden Sie sich bitte an den Autor.");
}
