#pragma once
// "Ausführen mit": das Programm, mit dem die gewählten Dateien geöffnet werden.
#include <QDialog>

#include <functional>
#include <string>

class GuiOberfläche;
class QLineEdit;

class frmAusführenMit final : public QDialog {
public:
    // prüfen läuft bei OK und entscheidet, ob der Dialog schließt.
    frmAusführenMit(QWidget* besitzer, GuiOberfläche& ui, const std::string& programm,
                    std::function<bool(const std::string&)> prüfen);
    frmAusführenMit(const frmAusführenMit&) = delete;
    frmAusführenMit& operator=(const frmAusführenMit&) = delete;

    std::string Programm() const;

private:
    GuiOberfläche& ui_;
    std::function<bool(const std::string&)> prüfen_;
    QLineEdit* txtSuche_;
};
