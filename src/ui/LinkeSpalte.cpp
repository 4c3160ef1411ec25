#include "ui/LinkeSpalte.h"

#include "settings/Einstellungen.h"
#include "ui/LinkLabel.h"
#include "ui/Umrechnung.h"

#include <QLabel>
#include <QVBoxLayout>

namespace {
void FarbeSetzen(QWidget* w, QPalette::ColorRole rolle, const QColor& farbe) {
    QPalette p = w->palette();
    p.setColor(rolle, farbe);
    w->setPalette(p);
}
}  // namespace

LinkeSpalte::LinkeSpalte(QWidget* eltern) : QFrame(eltern) {
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
    Hinzufügen(index, "cmdIndexErstellen", "Zum Index hinzufügen");
    Hinzufügen(index, "cmdListeAufräumen", "Index synchronisieren");
    Hinzufügen(index, "cmdIndexVerwaltung", "Index-Verwaltung");
    Hinzufügen(index, "cmdIndexStatistik", "Index-Statistiken");
    Hinzufügen(index, "cmdAutoDJ", "AutoDJ");
    Hinzufügen(index, "cmdAuswählen", "Auswählen");
    links2->addWidget(index);

    fraNurBeiAusgewählt_ =
        Gruppe(QStringLiteral("fraNurBeiAusgewählt"), QStringLiteral("Gewählte Dateien"), fraLinks2_);
    Hinzufügen(fraNurBeiAusgewählt_, "cmdEintragAbspielen", "Abspielen");
    Hinzufügen(fraNurBeiAusgewählt_, "cmdAnhängen", "In Playlist");
    Hinzufügen(fraNurBeiAusgewählt_, "cmdEintragAusführen", "Ausführen");
    Hinzufügen(fraNurBeiAusgewählt_, "cmdEintragAusführenMit", "Ausführen mit");
    Hinzufügen(fraNurBeiAusgewählt_, "cmdMp3TagAnzeigen", "Datei-Infos");
    Hinzufügen(fraNurBeiAusgewählt_, "cmdExportieren", "Export");
    Hinzufügen(fraNurBeiAusgewählt_, "cmdDateiEntfernen", "Aus Index entfernen");
    Hinzufügen(fraNurBeiAusgewählt_, "cmdDateienLöschen", "Löschen");
    Hinzufügen(fraNurBeiAusgewählt_, "cmdDateienKopierenVerschieben", "Kopieren/verschieben");
    Hinzufügen(fraNurBeiAusgewählt_, "cmdUmbenennen", "Umbenennen");
    fraNurBeiAusgewählt_->hide();
    links2->addWidget(fraNurBeiAusgewählt_);
    layout->addWidget(fraLinks2_);

    QWidget* programm = Gruppe(QStringLiteral("fraProgramm"), QStringLiteral("Programm"), this);
    Hinzufügen(programm, "cmdOptionen", "Optionen");
    Hinzufügen(programm, "cmdHilfe", "Hilfe");
    Hinzufügen(programm, "cmdInfo", "Infos");
    Hinzufügen(programm, "cmdBeenden", "Ende");
    layout->addWidget(programm);
    layout->addStretch(1);

    lblWinampSteuerungTitel_ = new QLabel(QStringLiteral("Audio-Player"), this);
    lblWinampSteuerungTitel_->setObjectName(QStringLiteral("lblWinampSteuerungTitel"));
    layout->addWidget(lblWinampSteuerungTitel_);
    lblDateiAnzahl_ = new QLabel(this);
    lblDateiAnzahl_->setObjectName(QStringLiteral("lblDateiAnzahl"));
    lblDateiAnzahl_->setWordWrap(true);
    layout->addSpacing(8);
    layout->addWidget(lblDateiAnzahl_);
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

void LinkeSpalte::Hinzufügen(QWidget* gruppe, const char* name, const char* text) {
    auto* label = new LinkLabel(QString::fromUtf8(name), QString::fromUtf8(text), gruppe);
    label->setContentsMargins(8, 0, 0, 0);
    gruppe->layout()->addWidget(label);
    befehle_.insert(label->objectName(), label);
    const QString n = label->objectName();
    connect(label, &LinkLabel::geklickt, this, [this, n] { emit befehl(n); });
    connect(label, &LinkLabel::mausDarauf, this, &LinkeSpalte::Hover);
}

void LinkeSpalte::FarbenAnwenden(const Einstellungen& e) {
    FarbeSetzen(this, QPalette::Window, FarbeAusWert(e.FarbeFunktionenHintergrund));
    for (QLabel* kopf : überschriften_) FarbeSetzen(kopf, QPalette::WindowText, FarbeAusWert(e.FarbeÜberschrift));
    FarbeSetzen(lblDateiAnzahl_, QPalette::WindowText, FarbeAusWert(e.FarbeBeschreibungen));
    FarbeSetzen(lblWinampSteuerungTitel_, QPalette::WindowText, FarbeAusWert(e.FarbeBeschreibungen));
    for (LinkLabel* l : befehle_)
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
