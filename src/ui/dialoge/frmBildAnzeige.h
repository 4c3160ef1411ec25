#pragma once
// Bild-Anzeige: zeigt ein Bild, gestreckt auf die Größe des Fensters, ohne zu blockieren.
// "OK" schließt und gibt das Bild frei; anders geschlossen wird das Fenster nur versteckt.
#include <QDialog>

#include <string>

class QLabel;

class frmBildAnzeige final : public QDialog {
public:
    explicit frmBildAnzeige(QWidget* besitzer);
    frmBildAnzeige(const frmBildAnzeige&) = delete;
    frmBildAnzeige& operator=(const frmBildAnzeige&) = delete;

    // Lädt das Bild und setzt den Titel; false, wenn es sich nicht laden ließ (dann bleibt alles).
    bool BildLaden(const std::string& pfad);

private:
    QLabel* imgViewer_;
};
