#include "ui/dialoge/frmDateiNichtVerfuegbar.h"

#include "ui/dialoge/Knopf.h"

#include "ui/Umrechnung.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>

frmDateiNichtVerfügbar::frmDateiNichtVerfügbar(QWidget* besitzer, const std::string& text,
                                               std::function<bool()> dateiDa)
    : QDialog(besitzer), dateiDa_(std::move(dateiDa)) {
    setObjectName(QStringLiteral("frmDateiNichtVerfügbar"));
    setWindowTitle(QStringLiteral("Datei nicht verfügbar"));
    auto* symbol = new QLabel(this);
    symbol->setPixmap(style()->standardIcon(QStyle::SP_DriveCDIcon).pixmap(48, 48));
    auto* lblText = new QLabel(Q(text), this);
    lblText->setObjectName(QStringLiteral("lblText"));
    lblText->setWordWrap(true);
    lblText->setTextFormat(Qt::PlainText);
    lblText->setMinimumWidth(420);

    auto* knöpfe = new QHBoxLayout;
    knöpfe->addStretch();
    const struct {
        const char* name;
        const char* text;
        NichtVerfügbarAntwort antwort;
    } liste[] = {{"cmdÜberspringen", "Ü&berspringen", NichtVerfügbarAntwort::Überspringen},
                 {"cmdÜberspringenAlle", "&Alle überspringen", NichtVerfügbarAntwort::AlleÜberspringen},
                 {"cmdAbbrechen", "Vorgang abbrechen", NichtVerfügbarAntwort::Abbrechen}};
    for (const auto& k : liste) {
        auto* knopf = Knopf(this, k.name, k.text);
        const auto antwort = k.antwort;
        connect(knopf, &QPushButton::clicked, this, [this, antwort] { Wählen(antwort); });
        knöpfe->addWidget(knopf);
    }
    auto* oben = new QHBoxLayout;
    oben->addWidget(symbol, 0, Qt::AlignTop);
    oben->addWidget(lblText, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(oben);
    layout->addLayout(knöpfe);

    tmrDateiSuchen_ = new QTimer(this);
    tmrDateiSuchen_->setSingleShot(true);  // ein langsames Laufwerk soll keine Aufrufe stapeln
    tmrDateiSuchen_->setInterval(1000);
    connect(tmrDateiSuchen_, &QTimer::timeout, this, &frmDateiNichtVerfügbar::tmrDateiSuchen_Timer);
    tmrDateiSuchen_->start();
}

void frmDateiNichtVerfügbar::Wählen(NichtVerfügbarAntwort antwort) {
    tmrDateiSuchen_->stop();
    DateiNichtVerfügbarAuswahl = antwort;
    accept();
}

void frmDateiNichtVerfügbar::tmrDateiSuchen_Timer() {
    if (dateiDa_ && dateiDa_()) {
        Wählen(NichtVerfügbarAntwort::Weiter);
        return;
    }
    tmrDateiSuchen_->start();
}
