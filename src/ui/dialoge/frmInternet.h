#pragma once
// "Im Internet suchen": einen Such-Dienst wählen, den Suchtext prüfen, die Suche im Browser öffnen.
#include "shell/Internet.h"

#include <QDialog>

struct Kartei;
class QLineEdit;
class QListWidget;

class frmInternet final : public QDialog {
public:
    // auswahl: die Dienste aus Ineturl.dat und der vorgeschlagene Suchtext.
    frmInternet(QWidget* besitzer, Kartei& k, InternetAuswahl auswahl);
    frmInternet(const frmInternet&) = delete;
    frmInternet& operator=(const frmInternet&) = delete;

private:
    void cmdOk_Click();

    Kartei& k_;
    InternetAuswahl auswahl_;
    QListWidget* lstListe_;
    QLineEdit* txtSuche_;
};
