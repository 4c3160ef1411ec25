#include "ui/dialoge/frmIndexVerwaltung.h"

#include "app/Kartei.h"
#include "ui/Umrechnung.h"
#include "ui/dialoge/Knopf.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {
QLabel* Feld(QWidget* eltern, const char* name) {
    auto* l = Benannt(new QLabel(eltern), name);
    l->setTextInteractionFlags(Qt::TextSelectableByMouse);
    // Lange Pfade dürfen das Fenster nicht verbreitern.
    l->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    return l;
}

QComboBox* AktionsListe(QWidget* eltern, const char* name) {
    auto* c = Benannt(new QComboBox(eltern), name);
    for (const auto& t : AktionenTexte()) c->addItem(Q(t));
    return c;
}
}  // namespace

frmIndexVerwaltung::frmIndexVerwaltung(QWidget* besitzer, Kartei& k, std::vector<int32_t> liste)
    : QDialog(besitzer), k_(k), liste_(std::move(liste)) {
    setObjectName(QStringLiteral("frmIndexVerwaltung"));
    setWindowTitle(QStringLiteral("Indexverwaltung"));
    cboSuchmethode_ = new QComboBox(this);
    cboSuchmethode_->setObjectName(QStringLiteral("cboSuchmethode"));
    for (const auto& t : SuchmethodenTexte()) cboSuchmethode_->addItem(Q(t));
    cboSuchmethode_->setCurrentIndex(-1);
    // Ohne Wahl stünde ein leeres Feld da; die Breite folgt dem längsten Listentext.
    cboSuchmethode_->setPlaceholderText(QStringLiteral("Suchmethode wählen"));
    int breite = 0;
    for (int i = 0; i < cboSuchmethode_->count(); ++i)
        breite = std::max(breite, cboSuchmethode_->fontMetrics().horizontalAdvance(cboSuchmethode_->itemText(i)));
    cboSuchmethode_->setMinimumWidth(breite + 40);
    cmdSuchen_ = Knopf(this, "cmdSuchen", "&Suchen");
    cmdSuchen_->setEnabled(false);
    lstEinträge_ = new QListWidget(this);
    lstEinträge_->setObjectName(QStringLiteral("lstEinträge"));
    lstEinträge_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    lstEinträge_->setMinimumSize(560, 200);
    lblGefundenAnzahl_ = Feld(this, "lblGefundenAnzahl");
    lblGewählt_ = Feld(this, "lblGewählt");

    fraDetails_ = new QGroupBox(QStringLiteral("Details"), this);
    fraDetails_->setObjectName(QStringLiteral("fraDetails"));
    lblDatei1_ = Feld(fraDetails_, "lblDatei1");
    lblDatei2_ = Feld(fraDetails_, "lblDatei2");
    lblDateiname1_ = Feld(fraDetails_, "lblDateiname1");
    lblDateiname2_ = Feld(fraDetails_, "lblDateiname2");
    lblGleichÜberschrift_ = Feld(fraDetails_, "lblGleichÜberschrift");
    lblGleich_ = Feld(fraDetails_, "lblGleich");
    cboAktion1_ = AktionsListe(fraDetails_, "cboAktion1");
    cboAktion2_ = AktionsListe(fraDetails_, "cboAktion2");
    auto* cmdAbspielen1 = Knopf(fraDetails_, "cmdAbspielen1", "Abspielen");
    auto* cmdInfos1 = Knopf(fraDetails_, "cmdInfos1", "Infos");
    cmdAbspielen2_ = Knopf(fraDetails_, "cmdAbspielen2", "Abspielen");
    cmdInfos2_ = Knopf(fraDetails_, "cmdInfos2", "Infos");
    const auto knopfZeile = [](QPushButton* a, QPushButton* b) {
        auto* zeile = new QHBoxLayout;
        zeile->addWidget(a);
        zeile->addWidget(b);
        zeile->addStretch();
        return zeile;
    };
    auto* details = new QGridLayout(fraDetails_);
    details->addWidget(lblDatei1_, 0, 0);
    details->addWidget(lblDateiname1_, 1, 0);
    details->addWidget(cboAktion1_, 2, 0);
    details->addLayout(knopfZeile(cmdAbspielen1, cmdInfos1), 3, 0);
    details->addWidget(lblDatei2_, 0, 1);
    details->addWidget(lblDateiname2_, 1, 1);
    details->addWidget(cboAktion2_, 2, 1);
    details->addLayout(knopfZeile(cmdAbspielen2_, cmdInfos2_), 3, 1);
    details->addWidget(lblGleichÜberschrift_, 4, 0, 1, 2);
    details->addWidget(lblGleich_, 5, 0, 1, 2);
    details->setColumnStretch(0, 1);
    details->setColumnStretch(1, 1);
    fraDetails_->hide();

    auto* cmdWählenAlle = Knopf(this, "cmdWählenAlle", "&Alle");
    auto* cmdWählenKeine = Knopf(this, "cmdWählenKeine", "&Keine");
    auto* cmdWählenUmkehren = Knopf(this, "cmdWählenUmkehren", "&Umkehren");
    QPushButton* cmdOk = nullptr;
    auto* knöpfe = OkAbbrechenLeiste(this, cmdOk);
    cmdOk->setDefault(false);  // Eingabe in der Liste führt nichts aus

    auto* methode = new QHBoxLayout;
    methode->addWidget(cboSuchmethode_, 1);
    methode->addWidget(cmdSuchen_);
    auto* wählen = new QHBoxLayout;
    wählen->addWidget(lblGefundenAnzahl_, 1);
    wählen->addWidget(lblGewählt_, 1);
    wählen->addWidget(cmdWählenAlle);
    wählen->addWidget(cmdWählenKeine);
    wählen->addWidget(cmdWählenUmkehren);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(methode);
    layout->addWidget(lstEinträge_, 1);
    layout->addLayout(wählen);
    layout->addWidget(fraDetails_);
    layout->addLayout(knöpfe);

    connect(cboSuchmethode_, &QComboBox::currentIndexChanged, this, [this](int i) { cmdSuchen_->setEnabled(i >= 0); });
    connect(cmdSuchen_, &QPushButton::clicked, this, &frmIndexVerwaltung::cmdSuchen_Click);
    connect(lstEinträge_, &QListWidget::itemSelectionChanged, this, &frmIndexVerwaltung::lstEinträge_Auswahl);
    connect(lstEinträge_, &QListWidget::itemDoubleClicked, this,
            [this](QListWidgetItem* z) { TrefferAbspielen(k_, a_, lstEinträge_->row(z), false); });
    connect(cboAktion1_, &QComboBox::activated, this, [this](int code) { cboAktion_Click(false, code); });
    connect(cboAktion2_, &QComboBox::activated, this, [this](int code) { cboAktion_Click(true, code); });
    connect(cmdAbspielen1, &QPushButton::clicked, this,
            [this] { TrefferAbspielen(k_, a_, lstEinträge_->currentRow(), false); });
    connect(cmdAbspielen2_, &QPushButton::clicked, this,
            [this] { TrefferAbspielen(k_, a_, lstEinträge_->currentRow(), true); });
    connect(cmdInfos1, &QPushButton::clicked, this, [this] { cmdInfos_Click(false); });
    connect(cmdInfos2_, &QPushButton::clicked, this, [this] { cmdInfos_Click(true); });
    connect(cmdWählenAlle, &QPushButton::clicked, this, [this] { Wählen(0); });
    connect(cmdWählenKeine, &QPushButton::clicked, this, [this] { Wählen(1); });
    connect(cmdWählenUmkehren, &QPushButton::clicked, this, [this] { Wählen(2); });
    connect(cmdOk, &QPushButton::clicked, this, &frmIndexVerwaltung::cmdOk_Click);
}

void frmIndexVerwaltung::cmdSuchen_Click() {
    const auto methode = int16_t(cboSuchmethode_->currentIndex());
    lstEinträge_->clear();
    fraDetails_->hide();
    AufräumenBeginnen(k_, a_, methode, DuplikateSuchen(k_, methode, liste_));
    for (const auto& t : a_.treffer) lstEinträge_->addItem(Q(TrefferZeile(k_, methode, t)));
    lblGefundenAnzahl_->setText(Q(GefundenAnzahlText(a_.treffer.size())));
    if (lstEinträge_->count() > 0) lstEinträge_->setCurrentRow(0);
}

std::vector<int32_t> frmIndexVerwaltung::GewählteZeilen() const {
    std::vector<int32_t> zeilen;
    for (int i = 0; i < lstEinträge_->count(); ++i)
        if (lstEinträge_->item(i)->isSelected()) zeilen.push_back(i);
    return zeilen;
}

void frmIndexVerwaltung::lstEinträge_Auswahl() {
    const size_t gewählt = GewählteZeilen().size();
    lblGewählt_->setText(QString::number(gewählt) + QStringLiteral(" Dateien gewählt"));
    TrefferDetails d;
    if (!TrefferDetailsLesen(k_, a_, lstEinträge_->currentRow(), d)) return;
    // Eine Aktion gilt den gewählten Zeilen; ohne Wahl würde die Liste nur scheinbar etwas setzen.
    cboAktion1_->setEnabled(gewählt > 0);
    lblDatei1_->setText(Q(d.datei1));
    lblDateiname1_->setText(Q(d.dateiname1));
    lblDateiname1_->setToolTip(Q(d.dateiname1));
    cboAktion1_->setCurrentIndex(d.aktion1);
    lblDatei2_->setText(Q(d.datei2));
    lblDateiname2_->setText(Q(d.dateiname2));
    lblDateiname2_->setToolTip(Q(d.dateiname2));
    cboAktion2_->setCurrentIndex(d.aktion2);
    cboAktion2_->setEnabled(d.zweiteSeite && gewählt > 0);
    cmdAbspielen2_->setEnabled(d.zweiteSeite);
    cmdInfos2_->setEnabled(d.zweiteSeite);
    lblGleichÜberschrift_->setText(Q(d.gleichÜberschrift));
    lblGleich_->setText(Q(d.gleich));
    fraDetails_->show();
}

void frmIndexVerwaltung::cboAktion_Click(bool zweite, int code) { AktionSetzen(a_, GewählteZeilen(), zweite, code); }

void frmIndexVerwaltung::cmdInfos_Click(bool zweite) {
    const int32_t eintrag = TrefferDatei(k_, a_, lstEinträge_->currentRow(), zweite);
    if (eintrag != 0 && infosZeigen) infosZeigen(eintrag);
}

void frmIndexVerwaltung::Wählen(int wie) {
    for (int i = 0; i < lstEinträge_->count(); ++i) {
        QListWidgetItem* z = lstEinträge_->item(i);
        z->setSelected(wie == 0 || (wie == 2 && !z->isSelected()));
    }
}

void frmIndexVerwaltung::cmdOk_Click() {
    if (!AktionenBestätigen(k_, a_)) return;
    hide();
    AktionenAusführen(k_, a_);
    accept();
}
