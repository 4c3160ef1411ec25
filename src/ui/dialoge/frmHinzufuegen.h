#pragma once
// "Zum Index hinzufügen": Dateien, einen Ordner oder eine Playliste wählen. Die Knöpfe rufen,
// was das Hauptfenster einhängt; der Dialog verschwindet, bevor das Hinzufügen beginnt.
#include <QDialog>

#include <functional>

class frmHinzufügen final : public QDialog {
public:
    explicit frmHinzufügen(QWidget* besitzer);
    frmHinzufügen(const frmHinzufügen&) = delete;
    frmHinzufügen& operator=(const frmHinzufügen&) = delete;

    std::function<void()> dateienHinzufügen;  // cmdDateienHinzufügen
    std::function<void()> ordnerHinzufügen;   // cmdOrdnerHinzufügen
    std::function<void()> importieren;        // cmdImportieren
};
