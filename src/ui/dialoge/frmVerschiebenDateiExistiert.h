#pragma once
// Das Ziel einer Verschiebung besteht schon: umbenennen, ersetzen oder abbrechen.
#include <QDialog>

#include <cstdint>
#include <string>

class frmVerschiebenDateiExistiert final : public QDialog {
public:
    frmVerschiebenDateiExistiert(QWidget* besitzer, const std::string& beschreibung);

    // 1 cmdOpt1 (umbenennen), 2 cmdOpt11 (ersetzen), 3 cmdOpt2 (abbrechen, auch beim Schließen).
    int16_t DateiExistiertAuswahl = 3;
};
