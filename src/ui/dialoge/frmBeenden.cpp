#include "ui/dialoge/frmBeenden.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

frmBeenden::frmBeenden(QWidget* besitzer, bool trayVorhanden) : QDialog(besitzer) {
    setObjectName(QStringLiteral("frmBeenden"));
    setWindowTitle(QStringLiteral("Programm beenden"));
    auto* frage = new QLabel(QStringLiteral("Was möchten Sie tun?"), this);
    QFont f = frage->font();
    f.setBold(true);
    frage->setFont(f);

    auto* knöpfe = new QHBoxLayout;
    const struct {
        const char* name;
        const char* text;
        int16_t auswahl;
    } liste[] = {{"cmdBeenden", "Programm &beenden", 2},
                 {"cmdMinimieren", "&Minimieren", 1},
                 {"cmdTray", "In den &Infobereich", 3},
                 {"cmdAbbrechen", "Abbrechen", 0}};
    for (const auto& k : liste) {
        auto* knopf = new QPushButton(QString::fromUtf8(k.text), this);
        knopf->setObjectName(QString::fromUtf8(k.name));
        const int16_t auswahl = k.auswahl;
        connect(knopf, &QPushButton::clicked, this, [this, auswahl] { Wählen(auswahl); });
        if (auswahl == 3) knopf->setEnabled(trayVorhanden);
        if (auswahl == 2) knopf->setDefault(true);
        knöpfe->addWidget(knopf);
    }
    chkImmer_ = new QCheckBox(QStringLiteral("&Immer die folgende Aktion durchführen"), this);
    chkImmer_->setObjectName(QStringLiteral("chkImmer"));
    chkImmer_->setChecked(false);
    auto* hinweis = new QLabel(QStringLiteral("(dies können Sie in den 'Optionen' wieder ändern)"), this);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(frage);
    layout->addWidget(chkImmer_);
    layout->addWidget(hinweis);
    layout->addSpacing(8);
    layout->addLayout(knöpfe);
}

bool frmBeenden::Immer() const { return chkImmer_->isChecked(); }

void frmBeenden::Wählen(int16_t auswahl) {
    BeendenAuswahl = auswahl;
    if (auswahl == 0) reject();
    else accept();
}
