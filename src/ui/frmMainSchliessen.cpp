// Schließen des Hauptfensters, seine Lage auf dem Bildschirm und der Wechsel des Index.
#include "app/Kartei.h"
#include "index/Spalten.h"
#include "settings/EinstellungenSpeicher.h"
#include "shell/Beenden.h"
#include "ui/GuiOberflaeche.h"
#include "ui/Umrechnung.h"
#include "ui/dialoge/frmBeenden.h"
#include "ui/dialoge/frmIndexOeffnen.h"
#include "ui/frmMain.h"

#include <QApplication>
#include <QCloseEvent>
#include <QScreen>
#include <QTimer>

void frmMain::FensterLageAnwenden(bool zentrieren, bool geometrie, bool maximieren) {
    if (zentrieren)
        if (QScreen* bildschirm = screen()) move(bildschirm->availableGeometry().center() - rect().center());
    if (geometrie)
        setGeometry(TwipsZuPixel(k_.E.FensterLeft), TwipsZuPixel(k_.E.FensterTop), TwipsZuPixel(k_.E.FensterWidth),
                    TwipsZuPixel(k_.E.FensterHeight));
    if (maximieren) showMaximized();
    else show();
}

// Gespeichert wird die Lage des normalen Fensters, auch wenn es gerade maximiert ist.
void frmMain::FensterLageSpeichern() {
    k_.E.FensterMax = isMaximized() ? 1 : 0;
    const QRect lage = isMaximized() || isMinimized() ? normalGeometry() : geometry();
    k_.E.FensterLeft = PixelZuTwips(lage.x());
    k_.E.FensterTop = PixelZuTwips(lage.y());
    k_.E.FensterWidth = PixelZuTwips(lage.width());
    k_.E.FensterHeight = PixelZuTwips(lage.height());
}

void frmMain::closeEvent(QCloseEvent* ereignis) {
    // Während ein Vorgang läuft, endet das Programm nicht: er hält die Tabelle in der Hand.
    if (gesperrt_) {
        ereignis->ignore();
        return;
    }
    SpaltenSpeichern(k_, k_.Liste.lstSongs);
    FensterLage lage;
    lage.versteckt = isHidden();
    lage.minimiert = isMinimized();
    lage.endeErzwungen = endeErzwungen_;
    const SchließGrund grund = qApp->isSavingSession() ? SchließGrund::Sitzungsende : SchließGrund::Benutzer;
    BeendenSchritt schritt = BeendenReaktionPrüfen(k_, grund, lage);
    if (schritt == BeendenSchritt::Fragen) {
        frmBeenden frage(this, lage.trayVorhanden);
        ui_.DialogAusführen(frage);
        const int16_t BeendenAuswahl = BeendenKnopfGedrückt(k_, frage.BeendenAuswahl, frage.Immer());
        schritt = BeendenAuswahlAnwenden(BeendenAuswahl, lage);
    }
    switch (schritt) {
    case BeendenSchritt::Minimieren:
        ereignis->ignore();
        showMinimized();
        return;
    case BeendenSchritt::InTray:
        ereignis->ignore();
        hide();
        return;
    case BeendenSchritt::Abbrechen: ereignis->ignore(); return;
    default: break;
    }
    FensterLageSpeichern();
    if (!GeändertenIndexSichern(k_)) {
        ereignis->ignore();
        if (isMinimized() || isHidden()) showNormal();
        return;
    }
    EinstellungenSpeichern(k_);
    tmrListe_->stop();
    tmrScrollUpdate_->stop();
    ereignis->accept();
}

void frmMain::lblIndexdatei_Click() {
    frmIndexÖffnen dialog(this, k_, ui_);
    dialog.öffnen = [this] { return IndexÖffnen(); };
    ui_.DialogAusführen(dialog);
}
