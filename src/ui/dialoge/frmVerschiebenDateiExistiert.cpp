#include "ui/dialoge/frmVerschiebenDateiExistiert.h"

#include "ui/Umrechnung.h"
#include "ui/dialoge/Knopf.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QVBoxLayout>

frmVerschiebenDateiExistiert::frmVerschiebenDateiExistiert(QWidget* besitzer, const std::string& beschreibung)
    : QDialog(besitzer) {
    setObjectName(QStringLiteral("frmVerschiebenDateiExistiert"));
    setWindowTitle(QStringLiteral("Datei existiert bereits"));
    auto* symbol = new QLabel(this);
    symbol->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(48, 48));
    auto* lblBeschreibung = Benannt(new QLabel(Q(beschreibung), this), "lblBeschreibung");
    lblBeschreibung->setWordWrap(true);
    lblBeschreibung->setTextFormat(Qt::PlainText);
    lblBeschreibung->setMinimumWidth(480);

    auto* knöpfe = new QHBoxLayout;
    knöpfe->addStretch();
    const struct {
        const char* name;
        const char* text;
        int16_t auswahl;
    } liste[] = {{"cmdOpt1", "&Umbenennen", 1}, {"cmdOpt11", "&Ersetzen", 2}, {"cmdOpt2", "&Abbrechen", 3}};
    for (const auto& k : liste) {
        auto* knopf = Knopf(this, k.name, k.text);
        const int16_t auswahl = k.auswahl;
        connect(knopf, &QPushButton::clicked, this, [this, auswahl] {
            DateiExistiertAuswahl = auswahl;
            accept();
        });
        knöpfe->addWidget(knopf);
    }
    auto* oben = new QHBoxLayout;
    oben->addWidget(symbol, 0, Qt::AlignTop);
    oben->addWidget(lblBeschreibung, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(oben);
    layout->addLayout(knöpfe);
}
