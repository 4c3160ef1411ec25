#pragma once
// frmMp3TagAutoTagWählen: das AutoTag-Format wählen, Formate anlegen, ändern, entfernen, die
// Liste der ignorierten Wörter pflegen. Gearbeitet wird auf einer Kopie; OK übernimmt sie.
#include "tags/AutoTagWahl.h"

#include <QDialog>

struct Kartei;
class QCheckBox;
class QLineEdit;
class QListWidget;

class frmMp3TagAutoTagWählen final : public QDialog {
public:
    frmMp3TagAutoTagWählen(QWidget* besitzer, Kartei& k);
    frmMp3TagAutoTagWählen(const frmMp3TagAutoTagWählen&) = delete;
    frmMp3TagAutoTagWählen& operator=(const frmMp3TagAutoTagWählen&) = delete;

private:
    void ListenZeigen();
    void cmdOk_Click();

    Kartei& k_;
    AutoTagWahl w_;
    QListWidget *lstFormate_, *lstAusschluß_;
    QLineEdit *txtFormat_, *txtAusschluß_;
    QCheckBox *chkUnterstrichEntfernen_, *chkFelderLöschen_;
};
