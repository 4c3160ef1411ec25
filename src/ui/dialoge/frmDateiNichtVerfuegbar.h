#pragma once
// "Datei nicht verfügbar": fragt nach dem fehlenden Datenträger und schließt sich von selbst,
// sobald die Datei wieder da ist (tmrDateiSuchen fragt etwa jede Sekunde nach).
#include "app/Oberflaeche.h"

#include <QDialog>

#include <string>

class QTimer;

class frmDateiNichtVerfügbar final : public QDialog {
public:
    frmDateiNichtVerfügbar(QWidget* besitzer, const std::string& text, const std::string& DateiNichtVerfügbarDatei);
    frmDateiNichtVerfügbar(const frmDateiNichtVerfügbar&) = delete;
    frmDateiNichtVerfügbar& operator=(const frmDateiNichtVerfügbar&) = delete;

    // Ohne Knopf (Fenster geschlossen) gilt "Vorgang abbrechen".
    NichtVerfügbarAntwort DateiNichtVerfügbarAuswahl = NichtVerfügbarAntwort::Abbrechen;

private:
    void Wählen(NichtVerfügbarAntwort antwort);
    void tmrDateiSuchen_Timer();

    std::string DateiNichtVerfügbarDatei_;
    QTimer* tmrDateiSuchen_;
};
