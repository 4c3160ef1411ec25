#include "ui/LinkeSpalte.h"

#include "settings/Einstellungen.h"
#include "ui/Farben.h"
#include "ui/FensterBefehle.h"
#include "ui/LinkLabel.h"
#include "ui/Umrechnung.h"

#include <QAction>
#include <QLabel>
#include <QVBoxLayout>

namespace {
void FarbeSetzen(QWidget* w, QPalette::ColorRole rolle, const QColor& farbe) { PaletteFarbe(w, rolle, farbe); }
}  // namespace

LinkeSpalte::LinkeSpalte(const FensterBefehle& b, QWidget* eltern) : QFrame(eltern) {
    setObjectName(QStringLiteral("fraLinks1"));
    setAutoFillBackground(true);
    setMouseTracking(true);
    setFixedWidth(190);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 12, 8, 10);
    layout->setSpacing(2);

    fraLinks2_ = new QWidget(this);
    fraLinks2_->setObjectName(QStringLiteral("fraLinks2"));
    auto* links2 = new QVBoxLayout(fraLinks2_);
    links2->setContentsMargins(0, 0, 0, 0);
    links2->setSpacing(2);
    QWidget* index = Gruppe(QStringLiteral("fraIndex"), QStringLiteral("Index"), fraLinks2_);
    Hinzufügen(index, b.cmdIndexErstellen);
    Hinzufügen(index, b.cmdListeAufräumen);
    Hinzufügen(index, b.cmdIndexVerwaltung);
    Hinzufügen(index, b.cmdIndexStatistik);
    Hinzufügen(index, b.cmdAutoDJ);
    Hinzufügen(index, b.cmdAuswählen);
    links2->addWidget(index);

    fraNurBeiAusgewählt_ =
        Gruppe(QStringLiteral("fraNurBeiAusgewählt"), QStringLiteral("Gewählte Dateien"), fraLinks2_);
    Hinzufügen(fraNurBeiAusgewählt_, b.cmdEintragAbspielen);
    Hinzufügen(fraNurBeiAusgewählt_, b.cmdAnhängen);
    Hinzufügen(fraNurBeiAusgewählt_, b.cmdEintragAusführen);
    Hinzufügen(fraNurBeiAusgewählt_, b.cmdEintragAusführenMit);
    Hinzufügen(fraNurBeiAusgewählt_, b.cmdMp3TagAnzeigen);
    Hinzufügen(fraNurBeiAusgewählt_, b.cmdExportieren);
    Hinzufügen(fraNurBeiAusgewählt_, b.cmdDateiEntfernen);
    Hinzufügen(fraNurBeiAusgewählt_, b.cmdDateienLöschen);
    Hinzufügen(fraNurBeiAusgewählt_, b.cmdDateienKopierenVerschieben);
    Hinzufügen(fraNurBeiAusgewählt_, b.cmdUmbenennen);
    // Versteckt behält die Gruppe ihren Platz: "Programm" springt nicht, wenn eine Auswahl
    // erscheint, und die kleinste Größe des Fensters bleibt dieselbe.
    QSizePolicy platz = fraNurBeiAusgewählt_->sizePolicy();
    platz.setRetainSizeWhenHidden(true);
    fraNurBeiAusgewählt_->setSizePolicy(platz);
    fraNurBeiAusgewählt_->hide();
    links2->addWidget(fraNurBeiAusgewählt_);
    layout->addWidget(fraLinks2_);

    QWidget* programm = Gruppe(QStringLiteral("fraProgramm"), QStringLiteral("Programm"), this);
    Hinzufügen(programm, b.cmdOptionen);
    Hinzufügen(programm, b.cmdHilfe);
    Hinzufügen(programm, b.cmdInfo);
    Hinzufügen(programm, b.cmdBeenden);
    layout->addWidget(programm);
    layout->addStretch(1);

    lblWinampSteuerungTitel_ = new QLabel(QStringLiteral("Audio-Player"), this);
    lblWinampSteuerungTitel_->setObjectName(QStringLiteral("lblWinampSteuerungTitel"));
    lblWinampSteuerungTitel_->setWordWrap(true);  // der Titel, der spielt, ist oft lang
    layout->addWidget(lblWinampSteuerungTitel_);
    lblDateiAnzahl_ = new QLabel(this);
    lblDateiAnzahl_->setObjectName(QStringLiteral("lblDateiAnzahl"));
    lblDateiAnzahl_->setWordWrap(true);
    layout->addSpacing(8);
    layout->addWidget(lblDateiAnzahl_);
}

void LinkeSpalte::SpielerTafelEinsetzen(QWidget* tafel) {
    auto* layout = static_cast<QVBoxLayout*>(this->layout());
    layout->insertWidget(layout->indexOf(lblWinampSteuerungTitel_) + 1, tafel);
}

QWidget* LinkeSpalte::Gruppe(const QString& name, const QString& überschrift, QWidget* eltern) {
    auto* gruppe = new QWidget(eltern);
    gruppe->setObjectName(name);
    gruppe->setMouseTracking(true);
    auto* layout = new QVBoxLayout(gruppe);
    layout->setContentsMargins(0, 6, 0, 4);
    layout->setSpacing(3);
    auto* kopf = new QLabel(überschrift, gruppe);
    QFont f = kopf->font();
    f.setBold(true);
    kopf->setFont(f);
    layout->addWidget(kopf);
    überschriften_ << kopf;
    return gruppe;
}

void LinkeSpalte::Hinzufügen(QWidget* gruppe, QAction* befehl) {
    auto* label = new LinkLabel(befehl->objectName(), befehl->text(), gruppe);
    label->setContentsMargins(8, 0, 0, 0);
    gruppe->layout()->addWidget(label);
    verweise_.insert(befehl, label);
    connect(label, &LinkLabel::geklickt, befehl, &QAction::trigger);
    // Ob der Befehl gerade geht, steht an der Aktion; der Verweis folgt ihr.
    label->setEnabled(befehl->isEnabled());
    connect(befehl, &QAction::enabledChanged, label, &QWidget::setEnabled);
    connect(label, &LinkLabel::mausDarauf, this, &LinkeSpalte::Hover);
}

void LinkeSpalte::FarbenAnwenden(const Einstellungen& e) {
    FarbeSetzen(this, QPalette::Window, FarbeAusWert(e.FarbeFunktionenHintergrund));
    for (QLabel* kopf : überschriften_) FarbeSetzen(kopf, QPalette::WindowText, FarbeAusWert(e.FarbeÜberschrift));
    FarbeSetzen(lblDateiAnzahl_, QPalette::WindowText, FarbeAusWert(e.FarbeBeschreibungen));
    FarbeSetzen(lblWinampSteuerungTitel_, QPalette::WindowText, FarbeAusWert(e.FarbeBeschreibungen));
    for (LinkLabel* l : verweise_)
        l->FarbenSetzen(FarbeAusWert(e.FarbeFunktionen), FarbeAusWert(e.FarbeFunktionenBesucht),
                        e.FunktionenUnterstreichen == 1);
}

// Nur ein Befehl trägt die Hover-Farbe: der unter der Maus.
void LinkeSpalte::Hover(LinkLabel* label) {
    if (hover_ == label) return;
    if (hover_) hover_->HoverSetzen(false);
    hover_ = label;
    if (hover_) hover_->HoverSetzen(true);
}

void LinkeSpalte::mouseMoveEvent(QMouseEvent* ereignis) {
    Hover(nullptr);
    QFrame::mouseMoveEvent(ereignis);
}

void LinkeSpalte::leaveEvent(QEvent* ereignis) {
    Hover(nullptr);
    QFrame::leaveEvent(ereignis);
}
