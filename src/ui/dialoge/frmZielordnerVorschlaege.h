#pragma once
// Zielordner-Vorschläge: eine Liste von Ordnern, einer wird übernommen.
#include <QDialog>

#include <string>
#include <vector>

class Oberfläche;
class QListWidget;

class frmZielordnerVorschläge final : public QDialog {
public:
    frmZielordnerVorschläge(QWidget* besitzer, Oberfläche& ui, const std::vector<std::string>& ordner);
    // Der gewählte Ordner nach "OK" (oder Doppelklick).
    const std::string& Gewählt() const { return gewählt_; }

private:
    void cmdOk_Click();

    Oberfläche& ui_;
    QListWidget* lstOrdner_;
    std::string gewählt_;
};
