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

namespace {
QLabel* Feld(QWidget* eltern, const char* name) {
    auto* l = Benannt(new QLabel(eltern), name);
    l->setTextInteractionFlags(Qt::TextSelectableByMouse);
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
    cboAktion1_ = AktionsListe(fraDetails_, "cboAktion1");
    cboAktion2_ = AktionsListe(fraDetails_, "cboAktion2");
    auto* details = new QGridLayout(fraDetails_);
    details->addWidget(lblDatei1_, 0, 0);
    details->addWidget(lblDateiname1_, 1, 0);
    details->addWidget(cboAktion1_, 2, 0);
    details->addWidget(lblDatei2_, 0, 1);
    details->addWidget(lblDateiname2_, 1, 1);
    details->addWidget(cboAktion2_, 2, 1);
    fraDetails_->hide();

    auto* cmdWählenAlle = Knopf(this, "cmdWählenAlle", "&Alle");
    auto* cmdWählenKeine = Knopf(this, "cmdWählenKeine", "&Keine");
    auto* cmdWählenUmkehren = Knopf(this, "cmdWählenUmkehren", "&Umkehren");
    auto* cmdOk = Knopf(this, "cmdOk", "OK");
    auto* cmdAbbrechen = Knopf(this, "cmdAbbrechen", "Abbrechen");

    auto* methode = new QHBoxLayout;
    methode->addWidget(cboSuchmethode_, 1);
    methode->addWidget(cmdSuchen_);
    auto* wählen = new QHBoxLayout;
    wählen->addWidget(lblGefundenAnzahl_);
    wählen->addStretch();
    wählen->addWidget(lblGewählt_);
    wählen->addWidget(cmdWählenAlle);
    wählen->addWidget(cmdWählenKeine);
    wählen->addWidget(cmdWählenUmkehren);
    auto* knöpfe = new QHBoxLayout;
    knöpfe->addStretch();
    knöpfe->addWidget(cmdOk);
    knöpfe->addWidget(cmdAbbrechen);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(methode);
    layout->addWidget(lstEinträge_, 1);
    layout->addLayout(wählen);
    layout->addWidget(fraDetails_);
    layout->addLayout(knöpfe);

    connect(cboSuchmethode_, &QComboBox::currentIndexChanged, this, [this](int i) { cmdSuchen_->setEnabled(i >= 0); });
    connect(cmdSuchen_, &QPushButton::clicked, this, &frmIndexVerwaltung::cmdSuchen_Click);
    connect(lstEinträge_, &QListWidget::itemSelectionChanged, this, &frmIndexVerwaltung::lstEinträge_Auswahl);
    connect(cboAktion1_, &QComboBox::activated, this, [this](int code) { cboAktion_Click(false, code); });
    connect(cboAktion2_, &QComboBox::activated, this, [this](int code) { cboAktion_Click(true, code); });
    connect(cmdWählenAlle, &QPushButton::clicked, this, [this] { Wählen(0); });
    connect(cmdWählenKeine, &QPushButton::clicked, this, [this] { Wählen(1); });
    connect(cmdWählenUmkehren, &QPushButton::clicked, this, [this] { Wählen(2); });
    connect(cmdOk, &QPushButton::clicked, this, &frmIndexVerwaltung::cmdOk_Click);
    connect(cmdAbbrechen, &QPushButton::clicked, this, &QDialog::reject);
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
    const auto zeilen = GewählteZeilen();
    lblGewählt_->setText(QString::number(zeilen.size()) + QStringLiteral(" Dateien gewählt"));
    const int zeile = lstEinträge_->currentRow();
    if (zeile < 0 || size_t(zeile) >= a_.treffer.size()) return;
    const DuplikatTreffer& t = a_.treffer[size_t(zeile)];
    const auto seite = [this](QLabel* kopf, QLabel* name, QComboBox* aktion, int32_t p) {
        const bool da = p >= 1 && p <= k_.DateiAnzahl;
        kopf->setText(da ? QStringLiteral("Dateiname - Eintrag ") + QString::number(p) : QString());
        name->setText(da ? Q(k_.DateiPfade[p]) : QString());
        aktion->setCurrentIndex(da ? a_.GefundenAktionen[size_t(p)] : 0);
        aktion->setEnabled(da);
    };
    seite(lblDatei1_, lblDateiname1_, cboAktion1_, t.datei1);
    seite(lblDatei2_, lblDateiname2_, cboAktion2_, t.datei2);
    fraDetails_->show();
}

void frmIndexVerwaltung::cboAktion_Click(bool zweite, int code) { AktionSetzen(a_, GewählteZeilen(), zweite, code); }

void frmIndexVerwaltung::Wählen(int wie) {
    for (int i = 0; i < lstEinträge_->count(); ++i) {
        QListWidgetItem* z = lstEinträge_->item(i);
        z->setSelected(wie == 0 || (wie == 2 && !z->isSelected()));
    }
}

void frmIndexVerwaltung::cmdOk_Click() {
    if (!AktionenBestätigen(k_, a_)) return;
    // Löschen, Papierkorb und Ersetzen kommen mit den Dateioperationen; bis dahin sagt der Knopf es.
    k_.ui.MeldungZeigen("Diese Funktion ist noch nicht verfügbar.", Meldung::Information);
}
