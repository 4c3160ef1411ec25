// Der Spieler im Hauptfenster: die Tafel fraLinks3, der Takt tmrScrollUpdate, Abspielen,
// Anhängen, Ausführen und der Doppelklick der Liste.
#include "app/Kartei.h"
#include "player/Abspielen.h"
#include "player/SpielerTakt.h"
#include "shell/Fortschritt.h"
#include "ui/FensterBefehle.h"
#include "ui/LinkeSpalte.h"
#include "ui/SongListe.h"
#include "ui/SpielerTafel.h"
#include "ui/frmMain.h"

#include <QAction>
#include <QTimer>

void frmMain::SpielerAufbauen() {
    fraLinks3_ = new SpielerTafel(k_, links_);
    links_->SpielerTafelEinsetzen(fraLinks3_);
}

// Aus, solange der Takt läuft: ein langsamer Takt verschiebt den nächsten, statt sich zu stapeln.
// Gespeichert wird nicht, während ein Vorgang läuft: dessen Fortschrittsfenster würde sonst
// vom Speichern geschlossen.
void frmMain::tmrScrollUpdate_Timer() {
    tmrScrollUpdate_->stop();
    const bool speichern = !gesperrt_ && !FortschrittFensterOffen(k_) && indexGeladen_;
    fraLinks3_->Anwenden(SpielerTakt(k_, speichern), links_->lblWinampSteuerungTitel());
    lstSongs_->ShiftGedrückt = false;  // Umschalt gilt nur bis zum nächsten Takt
    tmrScrollUpdate_->start();
}

EinsBasiert<int32_t> frmMain::Gewählte() const {
    EinsBasiert<int32_t> dateien(AusgewähltAnzahl());
    for (int32_t i = 1; i <= AusgewähltAnzahl(); ++i) dateien[i] = AusgewählteDateien()[i];
    return dateien;
}

void frmMain::Abspielen(bool Hinzufügen, bool Ausführen) {
    AuswahlAktualisieren();
    if (AusgewähltAnzahl() < 1) return;
    AbspielenMediaPlayer(k_, Gewählte(), Hinzufügen, Ausführen, ShiftGedrückt(), "");
    ListeAnzeigen();  // andere Spieler zählen beim Abspielen: die Zahlen der Liste ändern sich
}

void frmMain::cmdEintragAbspielen_Click() { Abspielen(false, false); }
void frmMain::cmdAnhängen_Click() { Abspielen(true, false); }
void frmMain::cmdEintragAusführen_Click() { Abspielen(false, true); }

void frmMain::cmdEintragAusführenMit_Click() {
    AuswahlAktualisieren();
    if (AusgewähltAnzahl() >= 1) EintragAusführenMit(k_, Gewählte());
}

void frmMain::lstSongs_DblClick() {
    AuswahlAktualisierenUndZeigen();
    if (AusgewähltAnzahl() < 1) return;
    BeiDoppelklickAusführen(k_, Gewählte(), ShiftGedrückt(), [this] { befehle_.cmdMp3TagAnzeigen->trigger(); });
    ListeAnzeigen();
}
