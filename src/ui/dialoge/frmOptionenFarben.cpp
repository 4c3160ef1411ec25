// Die Farbseite von frmOptionen: Profile, Muster und je ein Knopf für jede Farbe. Geändert wird
// nur die Arbeitskopie; gespeichert wird erst mit OK.
#include "app/Kartei.h"
#include "settings/FarbProfile.h"
#include "ui/Farben.h"
#include "ui/GuiOberflaeche.h"
#include "ui/Umrechnung.h"
#include "ui/dialoge/Knopf.h"
#include "ui/dialoge/frmOptionen.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

void frmOptionen::SeiteFarben() {
    QVBoxLayout* s = Seite("fraFarben", "Farben");
    auto* zeile = new QHBoxLayout;
    auto* lbl = new QLabel(QStringLiteral("&Farbprofil:"), this);
    cboFarbProfile_ = Benannt(new QComboBox(this), "cboFarbProfile");
    for (const auto& p : FarbProfile()) cboFarbProfile_->addItem(Q(p.name));
    lbl->setBuddy(cboFarbProfile_);
    zeile->addWidget(lbl);
    zeile->addWidget(cboFarbProfile_, 1);
    s->addLayout(zeile);
    connect(cboFarbProfile_, &QComboBox::activated, this, &frmOptionen::cboFarbProfile_Click);

    // Das Muster zeigt die Farben, wie sie im Programm erscheinen würden.
    fraBeispiel_ = Benannt(new QFrame(this), "fraBeispiel");
    fraBeispiel_->setFrameShape(QFrame::StyledPanel);
    fraBeispiel_->setAutoFillBackground(true);
    auto* muster = new QGridLayout(fraBeispiel_);
    auto beispiel = [&](const char* name, const char* text) {
        return Benannt(new QLabel(QString::fromUtf8(text), fraBeispiel_), name);
    };
    lblBeispielÜberschrift_ = beispiel("lblBeispielÜberschrift", "Überschrift");
    QFont fett = lblBeispielÜberschrift_->font();
    fett.setBold(true);
    lblBeispielÜberschrift_->setFont(fett);
    lblBeispielFunktionen_ = beispiel("lblBeispielFunktionen", "Funktion");
    lblBeispielFunktionenBesucht_ = beispiel("lblBeispielFunktionenBesucht", "Besuchte Funktion");
    lblBeispielBeschreibungen_ = beispiel("lblBeispielBeschreibungen", "Beschreibung einer Funktion");
    lstBeispielListe_ = Benannt(new QListWidget(fraBeispiel_), "lstBeispielListe");
    lstBeispielListe_->addItems(
        {QStringLiteral("Interpret - Titel"), QStringLiteral("Band A - Ein Tag"), QStringLiteral("Chor - Nacht")});
    lstBeispielListe_->setMaximumHeight(80);
    muster->addWidget(lblBeispielÜberschrift_, 0, 0);
    muster->addWidget(lblBeispielFunktionen_, 1, 0);
    muster->addWidget(lblBeispielFunktionenBesucht_, 2, 0);
    muster->addWidget(lblBeispielBeschreibungen_, 3, 0);
    muster->addWidget(lstBeispielListe_, 0, 1, 4, 1);
    s->addWidget(fraBeispiel_);

    const struct {
        const char* name;
        const char* text;
        int32_t Einstellungen::*farbe;
    } knöpfe[] = {
        {"cmdLinkFarbe", "Funktionen...", &Einstellungen::FarbeFunktionen},
        {"cmdLinkFarbeBesucht", "Besuchte Funktionen...", &Einstellungen::FarbeFunktionenBesucht},
        {"cmdHintergrundFarbe", "Hintergrund...", &Einstellungen::FarbeFunktionenHintergrund},
        {"cmdListeTextFarbe", "Listen...", &Einstellungen::FarbeListen},
        {"cmdListeFarbe", "Listen-Hintergrund...", &Einstellungen::FarbeListenHintergrund},
        {"cmdÜberschriftFarbe", "Überschriften...", &Einstellungen::FarbeÜberschrift},
        {"cmdBeschreibungFarbe", "Beschreibungen...", &Einstellungen::FarbeBeschreibungen},
    };
    auto* raster = new QGridLayout;
    int i = 0;
    for (const auto& k : knöpfe) {
        auto* knopf = Knopf(this, k.name, k.text);
        const auto farbe = k.farbe;
        connect(knopf, &QPushButton::clicked, this, [this, farbe] { FarbeÄndern(farbe); });
        raster->addWidget(knopf, i / 3, i % 3);
        ++i;
    }
    s->addLayout(raster);
    chkFunktionenUnterstreichen_ =
        Benannt(new QCheckBox(QStringLiteral("Funktionen &unterstreichen"), this), "chkFunktionenUnterstreichen");
    s->addWidget(chkFunktionenUnterstreichen_);
    connect(chkFunktionenUnterstreichen_, &QCheckBox::toggled, this, [this](bool an) {
        eingabe_.E.FunktionenUnterstreichen = an ? 1 : 0;
        MusterAnzeigen();
    });
    s->addStretch();
}

void frmOptionen::MusterAnzeigen() {
    const Farbsatz f = FarbsatzAusEinstellungen(eingabe_.E);
    PaletteFarbe(fraBeispiel_, QPalette::Window, FarbeAusWert(f.FunktionenHintergrund));
    PaletteFarbe(lblBeispielÜberschrift_, QPalette::WindowText, FarbeAusWert(f.Überschrift));
    PaletteFarbe(lblBeispielFunktionen_, QPalette::WindowText, FarbeAusWert(f.Funktionen));
    PaletteFarbe(lblBeispielFunktionenBesucht_, QPalette::WindowText, FarbeAusWert(f.FunktionenBesucht));
    PaletteFarbe(lblBeispielBeschreibungen_, QPalette::WindowText, FarbeAusWert(f.Beschreibungen));
    for (QLabel* l : {lblBeispielFunktionen_, lblBeispielFunktionenBesucht_}) {
        QFont schrift = l->font();
        schrift.setUnderline(f.FunktionenUnterstreichen == 1);
        l->setFont(schrift);
    }
    PaletteFarbe(lstBeispielListe_, QPalette::Text, FarbeAusWert(f.Listen));
    PaletteFarbe(lstBeispielListe_, QPalette::Base, FarbeAusWert(f.ListenHintergrund));
    const QSignalBlocker sperre(chkFunktionenUnterstreichen_);
    chkFunktionenUnterstreichen_->setChecked(f.FunktionenUnterstreichen == 1);
    cboFarbProfile_->setCurrentIndex(FarbProfilFinden(f));
}

void frmOptionen::cboFarbProfile_Click(int profil) {
    if (profil < 0 || profil >= int(FarbProfile().size())) return;
    FarbsatzSpeichern(eingabe_.E, FarbProfile()[size_t(profil)].farben);
    MusterAnzeigen();
}

void frmOptionen::FarbeÄndern(int32_t Einstellungen::*farbe) {
    int32_t wert = eingabe_.E.*farbe;
    if (!ui_.FarbeWählen(wert)) return;
    eingabe_.E.*farbe = wert;
    MusterAnzeigen();
}
