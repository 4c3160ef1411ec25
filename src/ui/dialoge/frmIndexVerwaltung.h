#pragma once
// Indexverwaltung: Mehrfacheinträge, fehlende Dateien und Dateien ohne Tag in der Ergebnisliste
// suchen und jeder gefundenen Datei eine Aktion geben.
#include "reports/Aufraeumen.h"

#include <QDialog>

#include <functional>
#include <vector>

struct Kartei;
class QComboBox;
class QGroupBox;
class QLabel;
class QListWidget;
class QPushButton;

class frmIndexVerwaltung final : public QDialog {
public:
    // liste: die Einträge der Ergebnisliste in ihrer Reihenfolge.
    frmIndexVerwaltung(QWidget* besitzer, Kartei& k, std::vector<int32_t> liste);
    frmIndexVerwaltung(const frmIndexVerwaltung&) = delete;
    frmIndexVerwaltung& operator=(const frmIndexVerwaltung&) = delete;

    const Aufräumen& Stand() const { return a_; }
    // cmdInfos1/2: das Informationsfenster (den Tag-Editor) für diesen Eintrag öffnen.
    std::function<void(int32_t eintrag)> infosZeigen;

private:
    void cmdSuchen_Click();
    void lstEinträge_Auswahl();
    void cboAktion_Click(bool zweite, int code);
    void cmdInfos_Click(bool zweite);
    void Wählen(int wie);  // 0 alle, 1 keine, 2 umkehren
    void cmdOk_Click();
    std::vector<int32_t> GewählteZeilen() const;

    Kartei& k_;
    std::vector<int32_t> liste_;
    Aufräumen a_;
    QComboBox* cboSuchmethode_;
    QPushButton* cmdSuchen_;
    QListWidget* lstEinträge_;
    QLabel *lblGefundenAnzahl_, *lblGewählt_;
    QGroupBox* fraDetails_;
    QLabel *lblDatei1_, *lblDatei2_, *lblDateiname1_, *lblDateiname2_, *lblGleichÜberschrift_, *lblGleich_;
    QComboBox *cboAktion1_, *cboAktion2_;
    QPushButton *cmdAbspielen2_, *cmdInfos2_;
};
