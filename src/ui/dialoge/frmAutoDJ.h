#pragma once
// AutoDJ: zwei Seiten, erst Genres und Optionen (fraSuche), dann die vorgeschlagene Liste
// (fraErgebnisse) mit ihren Befehlen.
#include "player/AutoDJ.h"

#include <QDialog>

#include <functional>
#include <vector>

struct Kartei;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

// Was die Zeilenbefehle beim Hauptfenster auslösen (Abspielen, Anhängen, Tag-Dialog).
struct AutoDJBefehle {
    std::function<void(const std::vector<int32_t>& einträge, bool anhängen)> abspielen;
    std::function<void(const std::vector<int32_t>& einträge)> infos;
};

class frmAutoDJ final : public QDialog {
public:
    // Füllt beim Aufbau die Genre-Liste und die Felder aus den Einstellungen.
    frmAutoDJ(QWidget* besitzer, Kartei& k, AutoDJBefehle befehle);
    frmAutoDJ(const frmAutoDJ&) = delete;
    frmAutoDJ& operator=(const frmAutoDJ&) = delete;

    // Schreibt beim Verlassen die Felder zurück in die Einstellungen.
    void done(int ergebnis) override;

protected:
    bool eventFilter(QObject* objekt, QEvent* ereignis) override;

private:
    QWidget* SucheAufbauen();
    QWidget* ErgebnisseAufbauen();
    AutoDJOptionen Optionen() const;
    void SeiteZeigen(bool ergebnisse);
    void cmdErstellen_Click();
    void lstGefunden_Click();
    void Abspielen(bool anhängen);
    void cmdExport_Click();

    Kartei& k_;
    AutoDJBefehle befehle_;
    std::vector<int32_t> auswahl_;  // AutoDJAuswahl: die Einträge der markierten Zeilen
    QWidget *fraSuche_, *fraErgebnisse_;
    QListWidget *lstFelder_, *lstGefunden_;
    QLineEdit *txtMaximum_, *txtZeit_;
    QComboBox* cboZeiteinheit_;
    QCheckBox *chkAlteSeltener_, *chkSehrAlteHäufiger_;
    QLabel *lblGefundenAnzahl_, *lblDatei1_, *lblDateiname1_, *lblStatistik_;
    QPushButton *cmdErstellen_, *cmdZurück_, *cmdAbspielen_, *cmdInPlaylist_, *cmdExport_, *cmdInfos_;
};
