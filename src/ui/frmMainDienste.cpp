// Hilfe, Info, Infos im Internet und das Symbol im Infobereich des Hauptfensters.
#include "app/Kartei.h"
#include "platform/Verzeichnisse.h"
#include "shell/Beenden.h"
#include "shell/Hilfe.h"
#include "shell/Internet.h"
#include "shell/Tray.h"
#include "ui/GuiOberflaeche.h"
#include "ui/Umrechnung.h"
#include "ui/dialoge/frmInfo.h"
#include "ui/dialoge/frmInternet.h"
#include "ui/frmMain.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QSystemTrayIcon>

void frmMain::cmdHilfe_Click() { HilfeAnzeigen(k_, ProgrammDatenOrdner()); }

void frmMain::cmdInfo_Click() {
    frmInfo info(this);
    ui_.DialogAusführen(info);
}

void frmMain::mnu_song_InfosInternet_Click() {
    AuswahlAktualisieren();
    InternetAuswahl auswahl;
    if (!InternetSucheVorbereiten(k_, ProgrammDatenOrdner(), AusgewählteDateien(), AusgewähltAnzahl(), auswahl)) return;
    frmInternet dialog(this, k_, std::move(auswahl));
    ui_.DialogAusführen(dialog);
}

void frmMain::TrayIconHinzufügen(bool anzeigen) {
    if (!tray_) {
        tray_ = new QSystemTrayIcon(QApplication::windowIcon(), this);
        tray_->setObjectName(QStringLiteral("picNotifier"));
        tray_->setToolTip(Q(TrayTippText()));
        mnu_rechtsklick_ = new QMenu(this);
        mnu_rechtsklick_->setObjectName(QStringLiteral("mnu_rechtsklick"));
        mnu_rechtsklick_programmzeigen_ = mnu_rechtsklick_->addAction(QStringLiteral("&Programm anzeigen"));
        mnu_rechtsklick_programmzeigen_->setObjectName(QStringLiteral("mnu_rechtsklick_programmzeigen"));
        mnu_rechtsklick_programmzeigen_->setCheckable(true);
        connect(mnu_rechtsklick_programmzeigen_, &QAction::triggered, this,
                [this] { TrayAktionAusführen(ProgrammZeigenUmschalten(Lage())); });
        mnu_rechtsklick_->addSeparator();
        const struct {
            const char* name;
            const char* text;
            QAction* befehl;
        } einträge[] = {{"mnu_rechtsklick_optionen", "&Optionen...", befehle_.cmdOptionen},
                        {"mnu_rechtsklick_infos", "&Infos...", befehle_.cmdInfo}};
        for (const auto& e : einträge) {
            QAction* a = mnu_rechtsklick_->addAction(QString::fromUtf8(e.text));
            a->setObjectName(QString::fromUtf8(e.name));
            connect(a, &QAction::triggered, e.befehl, &QAction::trigger);
        }
        mnu_rechtsklick_->addSeparator();
        QAction* ende = mnu_rechtsklick_->addAction(QStringLiteral("&Beenden"));
        ende->setObjectName(QStringLiteral("mnu_rechtsklick_ende"));
        connect(ende, &QAction::triggered, this, &frmMain::mnu_rechtsklick_ende_Click);
        // Vor dem Öffnen zeigt der Haken, ob das Fenster gerade zu sehen ist.
        connect(mnu_rechtsklick_, &QMenu::aboutToShow, this,
                [this] { mnu_rechtsklick_programmzeigen_->setChecked(ProgrammSichtbar(Lage())); });
        tray_->setContextMenu(mnu_rechtsklick_);
        connect(tray_, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason grund) {
            const int32_t code = grund == QSystemTrayIcon::Trigger       ? TrayEreignis::LinksAuf
                                 : grund == QSystemTrayIcon::DoubleClick ? TrayEreignis::LinksDoppel
                                 : grund == QSystemTrayIcon::Context     ? TrayEreignis::RechtsAuf
                                                                         : 0;
            TrayAktionAusführen(TrayEreignisAuswerten(code));
        });
    }
    trayVorhanden_ = anzeigen;
    tray_->setVisible(anzeigen);
    // Ein verstecktes Hauptfenster soll das Programm nicht beenden, wenn ein Dialog schließt.
    if (anzeigen) QApplication::setQuitOnLastWindowClosed(false);
}

void frmMain::TrayAktionAusführen(TrayAktion aktion) {
    switch (aktion) {
    case TrayAktion::FensterZeigen:
        if (isMinimized()) showNormal();
        if (isHidden()) show();
        raise();
        activateWindow();
        break;
    case TrayAktion::Verstecken: hide(); break;
    // mnu_rechtsklick öffnet Qt selbst (als Kontextmenü des Symbols, auch über D-Bus).
    case TrayAktion::MenüÖffnen:
    case TrayAktion::Keine: break;
    }
}

void frmMain::mnu_rechtsklick_ende_Click() {
    endeErzwungen_ = true;
    // Bleibt das Programm (abgebrochen, nicht gespeichert), gilt beim nächsten Schließen wieder die Wahl.
    if (!close()) endeErzwungen_ = false;
}
