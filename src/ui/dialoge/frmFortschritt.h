#pragma once
// Das Fortschrittsfenster: zeigt, was die Fortschrittslogik des Kerns beschreibt. Ohne eigene
// Modalität; das Hauptfenster ist währenddessen gesperrt.
#include "app/Oberflaeche.h"

#include <QDialog>

#include <functional>

class QLabel;
class QProgressBar;
class QPushButton;

class frmFortschritt final : public QDialog {
public:
    explicit frmFortschritt(QWidget* besitzer);
    frmFortschritt(const frmFortschritt&) = delete;
    frmFortschritt& operator=(const frmFortschritt&) = delete;

    void Darstellen(const FortschrittAnsicht& ansicht);
    std::function<void()> abbrechen;  // cmdAbbrechen: nur den Abbruch-Merker setzen

protected:
    void closeEvent(QCloseEvent* ereignis) override;
    void reject() override;

private:
    void Zentrieren();

    QLabel* lblVorgang_;
    QLabel* lblProzess_;
    QProgressBar* balken_;
    QPushButton* cmdAbbrechen_;
};
