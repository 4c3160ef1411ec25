#include "ui/Programmstart.h"

#include "app/Kartei.h"
#include "app/Start.h"
#include "shell/Tipps.h"
#include "ui/GuiOberflaeche.h"
#include "ui/dialoge/frmHinweise.h"
#include "ui/dialoge/frmWillkommen.h"
#include "ui/frmMain.h"

#include <QAction>
#include <QSystemTrayIcon>

void FensterStarten(Kartei& k, frmMain& fenster, GuiOberfläche& ui) {
    fenster.IndexÖffnen();
    const StartDaten start = StartAbschließen(k, TippsAnzahl());
    fenster.ZeitgeberStarten();
    fenster.TrayIconHinzufügen(QSystemTrayIcon::isSystemTrayAvailable());
    fenster.FensterLageAnwenden(start.fensterZentrieren, start.geometrieAnwenden, start.maximieren);
    fenster.AuswahlBeschreibungAnzeigen();
    fenster.TitelNachrichtZeigen(start.begrüßung, 500);
    if (start.willkommenZeigen) {
        frmWillkommen willkommen(&fenster, WillkommenText());
        willkommen.hilfe = [&fenster] { fenster.Befehle().cmdHilfe->trigger(); };
        ui.DialogAusführen(willkommen);
    }
    if (start.tipp != 0) {
        frmHinweise hinweise(&fenster, k, start.tipp);
        ui.DialogAusführen(hinweise);
    }
    fenster.SuchfeldFokussieren();
}
