#pragma once
// Dateien löschen: endgültig (nach einer Frage mit Stoppzeichen) oder in den Papierkorb.
#include <QDialog>

#include <cstdint>
#include <vector>

struct Kartei;

class frmLöschen final : public QDialog {
public:
    frmLöschen(QWidget* besitzer, Kartei& k, std::vector<int32_t> einträge);

private:
    void Löschen(int16_t modus);

    Kartei& k_;
    std::vector<int32_t> einträge_;
};
