#pragma once
// Index-Statistik: vier Zeilen mit Überschrift und Zahlen, dazu OK.
#include <QDialog>

struct Kartei;

class frmStatistik final : public QDialog {
public:
    // Rechnet beim Aufbau über den ganzen Index.
    frmStatistik(QWidget* besitzer, const Kartei& k);
    frmStatistik(const frmStatistik&) = delete;
    frmStatistik& operator=(const frmStatistik&) = delete;
};
