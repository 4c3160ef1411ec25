#pragma once
// Was zu einem Index gehört: Dateitypen, Abgleich-Ordner, Spalten; dazu die Aktion beim
// Doppelklick. Bearbeitet wird eine Arbeitskopie; erst OK übernimmt sie.
#include "settings/IndexOptionenDialog.h"

#include <QDialog>

struct Kartei;
class QButtonGroup;
class QCheckBox;
class QLineEdit;
class QListWidget;

class frmIndexOptionen final : public QDialog {
public:
    frmIndexOptionen(QWidget* besitzer, Kartei& k);
    frmIndexOptionen(const frmIndexOptionen&) = delete;
    frmIndexOptionen& operator=(const frmIndexOptionen&) = delete;

private:
    QWidget* GruppeDateitypen();
    QWidget* GruppeSync();
    QWidget* GruppeSpalten();
    QWidget* GruppeDoppelklick();
    void DateitypenFüllen(int zeile);
    void lstDateitypen_Click();
    void DateitypBearbeitet();
    void SyncFüllen(int zeile);
    void lstSyncOrdner_Click();
    void SyncBearbeitet();
    void SyncOrdnerWählen(bool neu);
    void cmdOk_Click();
    int ZeileTyp() const;
    int ZeileSync() const;

    Kartei& k_;
    IndexOptionenEingabe e_;
    bool füllen_ = false;  // während des Füllens keine Rückmeldungen in die Arbeitskopie

    QListWidget *lstDateitypen_, *lstSyncOrdner_, *lstSpalten_;
    QLineEdit *txtDateitypEndung_, *txtSyncKopierenInOrdner_, *txtSpaltenBenutzerFormat_;
    QCheckBox *chkDateitypMpegAudio_, *chkDateitypAudio_, *chkDateitypBilddatei_;
    QCheckBox *chkSyncUnterordner_, *chkSyncKopierenInOrdner_, *chkSyncDanachEntfernen_;
    QCheckBox *chkBeschreibungsleiste_, *chkGitter_;
    QButtonGroup* optDoppelklick_;
};
