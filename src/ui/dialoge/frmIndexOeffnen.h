#pragma once
// Indexdatei öffnen, neu anlegen, speichern oder unter anderem Namen speichern.
#include <QDialog>

#include <functional>

struct Kartei;
class GuiOberfläche;
class QLineEdit;
class QPushButton;

class frmIndexÖffnen final : public QDialog {
public:
    frmIndexÖffnen(QWidget* besitzer, Kartei& k, GuiOberfläche& ui);
    frmIndexÖffnen(const frmIndexÖffnen&) = delete;
    frmIndexÖffnen& operator=(const frmIndexÖffnen&) = delete;

    // IndexÖffnen samt der Schritte des Hauptfensters; true bei Erfolg.
    std::function<bool()> öffnen;

private:
    void cmdIndexdateiWählen_Click(bool neu);
    void cmdSpeichern_Click();
    void cmdIndexdateiSpeichernUnter_Click();
    void cmdOk_Click();

    Kartei& k_;
    GuiOberfläche& ui_;
    QLineEdit* txtIndexdatei_;
    QPushButton* cmdSpeichern_;
    QPushButton* cmdIndexdateiSpeichernUnter_;
};
