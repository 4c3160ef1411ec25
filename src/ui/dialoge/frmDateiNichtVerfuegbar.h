#pragma once
// "Datei nicht verfügbar": fragt nach dem fehlenden Datenträger und schließt sich von selbst,
// sobald die Datei wieder da ist (tmrDateiSuchen fragt etwa jede Sekunde nach).
#include "app/Oberflaeche.h"

#include <QDialog>

#include <functional>
#include <string>

class QTimer;

class frmDateiNichtVerfügbar final : public QDialog {
public:
    // dateiDa: ist die gesuchte Datei inzwischen erschienen? (DateiNichtVerfügbarDatei)
    frmDateiNichtVerfügbar(QWidget* besitzer, const std::string& text, std::function<bool()> dateiDa);
    frmDateiNichtVerfügbar(const frmDateiNichtVerfügbar&) = delete;
    frmDateiNichtVerfügbar& operator=(const frmDateiNichtVerfügbar&) = delete;

    // Ohne Knopf (Fenster geschlossen) gilt "Vorgang abbrechen".
    NichtVerfügbarAntwort DateiNichtVerfügbarAuswahl = NichtVerfügbarAntwort::Abbrechen;

private:
    void Wählen(NichtVerfügbarAntwort antwort);
    void tmrDateiSuchen_Timer();

    std::function<bool()> dateiDa_;
    QTimer* tmrDateiSuchen_;
};
