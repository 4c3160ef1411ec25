#include "ui/SpielerTafel.h"

#include "app/Kartei.h"
#include "player/SpielerTakt.h"
#include "ui/Umrechnung.h"
#include "ui/dialoge/Knopf.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSlider>
#include <QVBoxLayout>

SpielerTafel::SpielerTafel(Kartei& k, QWidget* eltern) : QWidget(eltern), k_(k) {
    setObjectName(QStringLiteral("fraLinks3"));
    Aufbauen();
    // Die Position springt erst, wenn die Person den Regler loslässt (oder neben ihn klickt);
    // was der Takt hineinschreibt, springt nie.
    hscrlTrackPos_->setTracking(false);
    connect(hscrlTrackPos_, &QSlider::actionTriggered, this, [this](int) { TrackPosGezogen(k_); });
    connect(hscrlTrackPos_, &QSlider::valueChanged, this, [this](int wert) { TrackPosGeändert(k_, wert); });
    connect(hscrlVolume_, &QSlider::valueChanged, this, [this](int wert) { LautstärkeGeändert(k_, wert); });
    connect(hscrlBalance_, &QSlider::valueChanged, this, [this](int wert) { BalanceGeändert(k_, wert); });
    connect(cmdAbspielen_, &QPushButton::clicked, this,
            [this] { cmdAbspielen_->setText(Q(cmdAbspielen_Click(k_, S(cmdAbspielen_->text())))); });
    connect(cmdAbspielenStopp_, &QPushButton::clicked, this, [this] { cmdAbspielenStopp_Click(k_); });
    connect(cmdWinampNächster_, &QPushButton::clicked, this, [this] { cmdWinampNächster_Click(k_); });
    connect(cmdWinampVorheriger_, &QPushButton::clicked, this, [this] { cmdWinampVorheriger_Click(k_); });
    hide();
}

QSlider* SpielerTafel::Regler(const char* name, int von, int bis, int wert) {
    auto* r = Benannt(new QSlider(Qt::Horizontal, this), name);
    r->setRange(von, bis);
    r->setValue(wert);
    r->setFocusPolicy(Qt::NoFocus);
    return r;
}

void SpielerTafel::Aufbauen() {
    cmdWinampVorheriger_ = Knopf(this, "cmdWinampVorheriger", "◀◀");
    cmdWinampVorheriger_->setToolTip(QStringLiteral("Vorheriger Titel"));
    cmdAbspielen_ = Knopf(this, "cmdAbspielen", "Spielen");
    cmdAbspielenStopp_ = Knopf(this, "cmdAbspielenStopp", "Stopp");
    cmdWinampNächster_ = Knopf(this, "cmdWinampNächster", "▶▶");
    cmdWinampNächster_->setToolTip(QStringLiteral("Nächster Titel"));
    auto* knöpfe = new QHBoxLayout;
    knöpfe->setSpacing(2);
    for (QPushButton* b : {cmdWinampVorheriger_, cmdAbspielen_, cmdAbspielenStopp_, cmdWinampNächster_}) {
        b->setFocusPolicy(Qt::NoFocus);
        b->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        knöpfe->addWidget(b, b == cmdAbspielen_ || b == cmdAbspielenStopp_ ? 3 : 2);
    }
    lblWinampSteuerungPosition_ =
        Benannt(new QLabel(QStringLiteral("Titelposition"), this), "lblWinampSteuerungPosition");
    lblWinampSteuerungVolumen_ = Benannt(new QLabel(QStringLiteral("Lautstärke"), this), "lblWinampSteuerungVolumen");
    lblWinampSteuerungBalance_ = Benannt(new QLabel(QStringLiteral("Balance"), this), "lblWinampSteuerungBalance");
    hscrlTrackPos_ = Regler("hscrlTrackPos", 0, 1000, 0);
    hscrlVolume_ = Regler("hscrlVolume", 0, 255, k_.E.WinampLautstärke);
    hscrlBalance_ = Regler("hscrlBalance", -127, 127, k_.E.WinampBalance);
    hscrlBalance_->setTickPosition(QSlider::TicksBelow);
    hscrlBalance_->setTickInterval(127);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 4, 0, 0);
    layout->setSpacing(2);
    layout->addLayout(knöpfe);
    layout->addSpacing(4);
    for (QWidget* w :
         std::initializer_list<QWidget*>{lblWinampSteuerungPosition_, hscrlTrackPos_, lblWinampSteuerungVolumen_,
                                         hscrlVolume_, lblWinampSteuerungBalance_, hscrlBalance_})
        layout->addWidget(w);
}

void SpielerTafel::Anwenden(const SpielerAnzeige& a, QLabel* kopf) {
    if (a.reglerSetzen) {
        const QSignalBlocker stumm(hscrlTrackPos_);
        hscrlTrackPos_->setRange(0, std::max(k_.Spieler.TrackPosMaximum, 0));
        hscrlTrackPos_->setValue(k_.Spieler.TrackPosWert);
    }
    if (a.knöpfe)
        for (QWidget* b : std::initializer_list<QWidget*>{cmdAbspielen_, cmdAbspielenStopp_, cmdWinampNächster_,
                                                          cmdWinampVorheriger_})
            b->setVisible(*a.knöpfe);
    if (a.regler)
        for (QWidget* w :
             std::initializer_list<QWidget*>{lblWinampSteuerungPosition_, hscrlTrackPos_, lblWinampSteuerungVolumen_,
                                             hscrlVolume_, lblWinampSteuerungBalance_, hscrlBalance_})
            w->setVisible(*a.regler);
    if (a.cmdAbspielen) cmdAbspielen_->setText(Q(*a.cmdAbspielen));
    if (a.position) lblWinampSteuerungPosition_->setText(Q(*a.position));
    setVisible(a.fraLinks3);
    if (!a.titel || !kopf) return;
    // Ein unveränderter Kopf bleibt unberührt: kein Flackern alle 500 ms.
    QFont schrift = kopf->font();
    const bool unterstrichen = a.titelAktiv && k_.E.FunktionenUnterstreichen == 1;
    const QColor farbe = FarbeAusWert(a.titelAktiv ? k_.E.FarbeFunktionen : k_.E.FarbeBeschreibungen);
    if (kopf->text() == Q(*a.titel) && schrift.underline() == unterstrichen &&
        kopf->palette().color(QPalette::WindowText) == farbe)
        return;
    kopf->setText(Q(*a.titel));
    schrift.setUnderline(unterstrichen);
    kopf->setFont(schrift);
    QPalette p = kopf->palette();
    p.setColor(QPalette::WindowText, farbe);
    kopf->setPalette(p);
}
