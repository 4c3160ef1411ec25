#pragma once
// Ein Name oder Pfad für eine einzelne Datei: manuelles Umbenennen und Listeneintrag ändern.
#include <QDialog>

#include <cstdint>
#include <string>

class QLineEdit;

class frmDateiname final : public QDialog {
public:
    // auswahlStart: erstes gewähltes Zeichen ab 1, auswahlLänge Zeichen (0: nichts gewählt).
    frmDateiname(QWidget* besitzer, const std::string& titel, const std::string& knopf, const std::string& text,
                 int32_t auswahlStart, int32_t auswahlLänge);
    frmDateiname(const frmDateiname&) = delete;
    frmDateiname& operator=(const frmDateiname&) = delete;

    std::string Text() const;

private:
    QLineEdit* txtDateiname_;
};
