#pragma once
// "Suche": eine Abfragezeile anlegen oder ändern – Feld, Suchtext mit Vorschlägen, MUSS oder
// DARF NICHT. Die Zeile geht über die Routinen der Suche in k.Suche.
#include "search/SuchZustand.h"

#include <QDialog>

struct Kartei;
class GuiOberfläche;
class QComboBox;
class QCheckBox;
class QLineEdit;
class QListWidget;

class frmSucheErweitertHinzufügen final : public QDialog {
public:
    frmSucheErweitertHinzufügen(QWidget* besitzer, Kartei& k);
    frmSucheErweitertHinzufügen(const frmSucheErweitertHinzufügen&) = delete;
    frmSucheErweitertHinzufügen& operator=(const frmSucheErweitertHinzufügen&) = delete;

    // Neue Zeile (chkHinzu 1) mit leerem Text; Feld und Bedingung wie zuletzt, sonst die ersten.
    void Neu();
    // Zeile nummer ändern (chkHinzu 0, Tag = nummer).
    void Ändern(int32_t nummer);
    // Nach cmdOk: die Zeile, die angelegt oder geändert wurde (0 = keine).
    int32_t Zeile() const { return zeile_; }

protected:
    bool eventFilter(QObject* objekt, QEvent* ereignis) override;

private:
    void lstSucheArt_Click();
    void txtSucheBegriff_Change(const QString& text);
    void EingabeAnzeigen();
    void cmdOk_Click();

    Kartei& k_;
    QListWidget* lstSucheArt_;
    QLineEdit* txtSucheBegriff_;
    QListWidget* lstSucheAuswahl_;
    QComboBox* cboSucheMussDarfNicht_;
    QComboBox* cboSucheUndOder_;
    QCheckBox* chkHinzu_;  // versteckt: 1 neue Zeile, 0 Zeile im Tag ändern
    int32_t tag_ = 0;
    int32_t zeile_ = 0;
    KomboFeld auswahl_;  // lstSucheAuswahl als Daten
    KomboFeld begriff_;  // txtSucheBegriff als Daten
};
