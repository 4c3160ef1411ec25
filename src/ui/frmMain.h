#pragma once
// Das Hauptfenster.
#include <QMainWindow>

struct Kartei;

class frmMain final : public QMainWindow {
    Q_OBJECT
public:
    explicit frmMain(Kartei& k, QWidget* parent = nullptr);
    frmMain(const frmMain&) = delete;
    frmMain& operator=(const frmMain&) = delete;

private:
    Kartei& k_;
};
