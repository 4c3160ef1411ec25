#pragma once
// Datei(en) kopieren/verschieben: Zielordner eingeben, suchen oder vorschlagen lassen, Art wählen.
#include <QDialog>

#include <cstdint>
#include <vector>

struct Kartei;
class GuiOberfläche;
class QLineEdit;
class QRadioButton;

class frmKopieren final : public QDialog {
public:
    // einträge: die gewählten Einträge in ihrer Reihenfolge; der erste bekommt die Vorschläge.
    frmKopieren(QWidget* besitzer, Kartei& k, GuiOberfläche& ui, std::vector<int32_t> einträge);

private:
    void cmdOrdnerSuchen_Click();
    void cmdVorschlagen_Click();
    void cmdOk_Click();

    Kartei& k_;
    GuiOberfläche& ui_;
    std::vector<int32_t> einträge_;
    QLineEdit* txtOrdner_;
    QRadioButton* optVerschieben_;
    QRadioButton* optKopieren_;
};
