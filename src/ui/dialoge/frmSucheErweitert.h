#pragma once
// "Erweiterte Suche": die Abfragezeilen ansehen, anlegen, ändern, löschen; OK übernimmt sie in
// die Suche des Hauptfensters.
#include <QDialog>

struct Kartei;
class GuiOberfläche;
class QListWidget;
class QPushButton;

class frmSucheErweitert final : public QDialog {
public:
    frmSucheErweitert(QWidget* besitzer, Kartei& k, GuiOberfläche& ui);
    frmSucheErweitert(const frmSucheErweitert&) = delete;
    frmSucheErweitert& operator=(const frmSucheErweitert&) = delete;

private:
    int32_t GewählteZeile() const;  // ab 1; 0 ohne Wahl (mit Hinweis)
    void cmdSucheNeu_Click();
    void cmdSucheÄndern_Click();
    void cmdSucheLöschen_Click();
    void cmdOk_Click();

    Kartei& k_;
    GuiOberfläche& ui_;
    QListWidget* lstSucheAuflistung_;
    QPushButton* cmdAbbrechen_;
};
