#include "ui/dialoge/frmFortschritt.h"

#include "ui/Umrechnung.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

frmFortschritt::frmFortschritt(QWidget* besitzer) : QDialog(besitzer) {
    setObjectName(QStringLiteral("frmFortschritt"));
    setModal(false);
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    lblVorgang_ = new QLabel(this);
    lblVorgang_->setObjectName(QStringLiteral("lblVorgang"));
    QFont fett = lblVorgang_->font();
    fett.setBold(true);
    lblVorgang_->setFont(fett);
    lblProzess_ = new QLabel(this);
    lblProzess_->setObjectName(QStringLiteral("lblProzess"));
    lblProzess_->setMinimumWidth(380);
    lblProzess_->setTextFormat(Qt::PlainText);
    balken_ = new QProgressBar(this);
    balken_->setObjectName(QStringLiteral("balken"));
    balken_->setRange(0, 4500);  // die Einheiten der Logik
    balken_->setTextVisible(false);
    cmdAbbrechen_ = new QPushButton(QStringLiteral("Abbrechen"), this);
    cmdAbbrechen_->setObjectName(QStringLiteral("cmdAbbrechen"));
    connect(cmdAbbrechen_, &QPushButton::clicked, this, [this] {
        if (abbrechen) abbrechen();
    });

    auto* knöpfe = new QHBoxLayout;
    knöpfe->addStretch();
    knöpfe->addWidget(cmdAbbrechen_);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lblVorgang_);
    layout->addWidget(lblProzess_);
    layout->addWidget(balken_);
    layout->addLayout(knöpfe);
    setFixedWidth(440);
}

void frmFortschritt::Darstellen(const FortschrittAnsicht& a) {
    if (!a.offen) {
        hide();
        return;
    }
    if (windowTitle() != Q(a.titel)) setWindowTitle(Q(a.titel));
    if (lblVorgang_->text() != Q(a.vorgang)) lblVorgang_->setText(Q(a.vorgang));
    balken_->setVisible(a.balkenSichtbar);
    if (a.balkenSichtbar) balken_->setValue(a.balkenBreite);
    lblProzess_->setVisible(a.prozessSichtbar);
    if (a.prozessSichtbar) {
        // Lange Pfade in der Mitte kürzen, damit das Fenster seine Breite behält.
        const QString text = lblProzess_->fontMetrics().elidedText(Q(a.prozess), Qt::ElideMiddle, lblProzess_->width());
        if (lblProzess_->text() != text) lblProzess_->setText(text);
    }
    cmdAbbrechen_->setVisible(a.abbrechenSichtbar);
    if (!isVisible()) {
        adjustSize();
        Zentrieren();
        show();
        raise();
    }
}

void frmFortschritt::Zentrieren() {
    QWidget* besitzer = parentWidget();
    QRect fläche;
    if (besitzer && besitzer->isVisible() && !besitzer->isMinimized()) fläche = besitzer->frameGeometry();
    else if (QScreen* bildschirm = QGuiApplication::primaryScreen()) fläche = bildschirm->availableGeometry();
    if (fläche.isValid()) move(fläche.center() - rect().center());
}

// Schließen über den Fensterrahmen oder Esc wirkt wie "Abbrechen": die Schleife entscheidet.
void frmFortschritt::closeEvent(QCloseEvent* ereignis) {
    ereignis->ignore();
    if (cmdAbbrechen_->isVisible() && abbrechen) abbrechen();
}

void frmFortschritt::reject() {
    if (cmdAbbrechen_->isVisible() && abbrechen) abbrechen();
}
