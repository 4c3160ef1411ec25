#pragma once
// Die Ereignis-Überwachung: drei vorbereitete Fenster, die noch keine Funktion des Programms
// öffnet. Sie lesen keine Eingaben und ändern die Terminliste des Index nicht; die #TERMIN:-Zeilen
// gehen unverändert vom Laden zum Speichern.
#include <QDialog>

#include <string>

class GuiOberfläche;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QRadioButton;

// "Ereignis hinzufügen"
class frmTerminÜberwachungHinzufügen final : public QDialog {
public:
    explicit frmTerminÜberwachungHinzufügen(QWidget* besitzer);
    frmTerminÜberwachungHinzufügen(const frmTerminÜberwachungHinzufügen&) = delete;
    frmTerminÜberwachungHinzufügen& operator=(const frmTerminÜberwachungHinzufügen&) = delete;

    // Vor dem Zeigen: alles leer, chkHinzu nach neu (Hinzufügen) oder nicht (Ändern).
    void Vorbereiten(bool neu);

private:
    QCheckBox* chkHinzu_;
    QLineEdit* txtBeschreibung_;
    QLineEdit* txtDatum_;
    QComboBox* cboKategorie_;
    QCheckBox* chkBenachrichtigen_;
};

// "Ereignis-Überwachung": die Liste der anstehenden Ereignisse.
class frmTerminÜberwachung final : public QDialog {
public:
    // indexName: der Dateiname des geladenen Index für lblIndexdatei.
    frmTerminÜberwachung(QWidget* besitzer, GuiOberfläche& ui, const std::string& indexName);
    frmTerminÜberwachung(const frmTerminÜberwachung&) = delete;
    frmTerminÜberwachung& operator=(const frmTerminÜberwachung&) = delete;

private:
    void Hinzufügen(bool neu);  // cmdNeu und cmdÄndern unterscheiden sich nur darin

    GuiOberfläche& ui_;
};

// "Ereignis erreicht": erledigt oder später wieder erinnern.
class frmTerminÜberwachungTermin final : public QDialog {
public:
    explicit frmTerminÜberwachungTermin(QWidget* besitzer);
    frmTerminÜberwachungTermin(const frmTerminÜberwachungTermin&) = delete;
    frmTerminÜberwachungTermin& operator=(const frmTerminÜberwachungTermin&) = delete;

private:
    void ErinnernZeigen(bool an);

    QLineEdit* txtInfos_;
    QComboBox* cboZeiteinheit_;
    QLabel* lblHinweis1_;
};
