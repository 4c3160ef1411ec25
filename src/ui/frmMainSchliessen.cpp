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
#include <QSystemTrayIcon>
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

FensterLage frmMain::Lage() const {
    FensterLage lage;
    lage.versteckt = isHidden();
    lage.minimiert = isMinimized();
    lage.endeErzwungen = endeErzwungen_;
    lage.trayVorhanden = trayVorhanden_;
    return lage;
}

void frmMain::closeEvent(QCloseEvent* ereignis) {
    // Während ein Vorgang läuft, endet das Programm nicht: er hält die Tabelle in der Hand.
    if (gesperrt_) {
        ereignis->ignore();
        return;
    }
    if (sitzungBeendet_) {
        ereignis->accept();
        return;
    }
    SpaltenSpeichern(k_, k_.Liste.lstSongs);
    const FensterLage lage = Lage();
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
        if (isMinimized()) showNormal();
        hide();
        return;
    case BeendenSchritt::Abbrechen: ereignis->ignore(); return;
    default: break;
    }
    if (!EndeVorbereiten()) {
        ereignis->ignore();
        return;
    }
    ereignis->accept();
    // Mit Symbol im Infobereich endet das Programm nicht von selbst mit dem letzten Fenster.
    if (trayVorhanden_) QTimer::singleShot(0, qApp, &QCoreApplication::quit);
}

bool frmMain::EndeVorbereiten() {
    FensterLageSpeichern();
    if (!GeändertenIndexSichern(k_)) {
        // Abgebrochen oder nicht gespeichert: das Fenster wieder zeigen, damit nichts verloren geht.
        if (isMinimized() || isHidden()) showNormal();
        return false;
    }
    EinstellungenSpeichern(k_);
    tmrListe_->stop();
    tmrScrollUpdate_->stop();
    if (tray_) tray_->hide();  // TrayIconEntfernen
    return true;
}

bool frmMain::SitzungBeenden(bool fragenErlaubt) {
    if (gesperrt_) return false;
    if (!fragenErlaubt && !SitzungsEndeOhneFrageMöglich(k_)) return false;
    SpaltenSpeichern(k_, k_.Liste.lstSongs);
    if (!EndeVorbereiten()) return false;
    sitzungBeendet_ = true;
    return true;
}

void frmMain::lblIndexdatei_Click() {
    frmIndexÖffnen dialog(this, k_, ui_);
    dialog.öffnen = [this] { return IndexÖffnen(); };
    ui_.DialogAusführen(dialog);
}
