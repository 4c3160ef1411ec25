#pragma once
// "Programm beenden": fragt, was das Schließen des Hauptfensters tun soll.
#include <QDialog>

#include <cstdint>

class QCheckBox;

class frmBeenden final : public QDialog {
public:
    // trayVorhanden: ohne Symbol im Infobereich ist dieser Knopf aus.
    frmBeenden(QWidget* besitzer, bool trayVorhanden);
    frmBeenden(const frmBeenden&) = delete;
    frmBeenden& operator=(const frmBeenden&) = delete;

    int16_t BeendenAuswahl = 0;  // 0 Abbrechen, 1 Minimieren, 2 Beenden, 3 Infobereich
    bool Immer() const;          // chkImmer

private:
    void Wählen(int16_t auswahl);
    QCheckBox* chkImmer_;
};
