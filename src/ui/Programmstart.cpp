#include "ui/Programmstart.h"

#include "app/Kartei.h"
#include "app/Start.h"
#include "search/ListeErstellen.h"
#include "search/Suchbegriffe.h"
#include "search/SuchZustand.h"
#include "shell/Fortschritt.h"
#include "shell/Tipps.h"
#include "ui/GuiOberflaeche.h"
#include "ui/dialoge/frmHinweise.h"
#include "ui/dialoge/frmWillkommen.h"
#include "ui/frmMain.h"

#include <QTimer>

void FensterStarten(Kartei& k, frmMain& fenster, GuiOberfläche& ui) {
    fenster.IndexÖffnen();
    const StartDaten start = StartAbschließen(k, TippsAnzahl());
    fenster.ZeitgeberStarten();
    fenster.FensterLageAnwenden(start.fensterZentrieren, start.geometrieAnwenden, start.maximieren);
    fenster.AuswahlBeschreibungAnzeigen();
    fenster.TitelNachrichtZeigen(start.begrüßung, 500);
    fenster.SucheVorbereiten();
    if (start.willkommenZeigen) {
        frmWillkommen willkommen(&fenster, WillkommenText());
        willkommen.hilfe = [&fenster] { fenster.BefehlAusführen(QStringLiteral("cmdHilfe")); };
        ui.DialogAusführen(willkommen);
    }
    if (start.tipp != 0) {
        frmHinweise hinweise(&fenster, k, start.tipp);
        ui.DialogAusführen(hinweise);
    }
    fenster.SuchfeldFokussieren();
}

void VorführungStarten(Kartei& k, frmMain& fenster) {
    const QByteArray was = qgetenv("KLANGKARTEI_ZEIGEN");
    if (was == "fortschritt") {
        QTimer::singleShot(300, &fenster, [&k, &fenster] {
            fenster.BefehlAusführen(QStringLiteral("cmdSucheLöschen"));
            FortschrittZeigenStarten(k, 1000, true, true, true, "Füge gefundene Dateien hinzu");
            FortschrittZeigen(k, 420, "/home/anna/Musik/Calexico/Feast of Wire/07 - Not Even Stevie Nicks.mp3");
        });
    } else if (was == "liste") {
        QTimer::singleShot(300, &fenster, [&k, &fenster] {
            fenster.BefehlAusführen(QStringLiteral("cmdSucheLöschen"));
            auto& zeilen = k.Liste.lstSongs.zeilen;
            if (zeilen.size() > 2) zeilen[2].ausgewählt = true;  // eine Zeile gewählt: Beschreibung und Befehle
            k.Liste.lstSongs.Geändert();
            AuswahlAktualisieren(k, k.Liste.lstSongs);
            fenster.ListeAnzeigen();
            fenster.AuswahlBeschreibungAnzeigen();
        });
    } else if (was == "sucheerweitert") {
        QTimer::singleShot(300, &fenster, [&k, &fenster] {
            fenster.BefehlAusführen(QStringLiteral("cmdSucheLöschen"));
            SuchbegriffeZurücksetzen(k.Suche);
            SuchbegriffeHinzufügen(k.Suche, "Calexico", "Interpret", "00");
            SuchbegriffeHinzufügen(k.Suche, "live", "Titel", "11");
            fenster.BefehlAusführen(QStringLiteral("cmdSucheMehr"));
        });
    }
}
