#include "ui/dialoge/frmTerminUeberwachung.h"

#include "ui/GuiOberflaeche.h"
#include "ui/Umrechnung.h"
#include "ui/dialoge/Knopf.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QStyle>
#include <QVBoxLayout>

namespace {
QLabel* Überschrift(QWidget* eltern, const char* text) {
    auto* l = new QLabel(QString::fromUtf8(text), eltern);
    QFont f = l->font();
    f.setBold(true);
    l->setFont(f);
    return l;
}

// OK und Abbrechen schließen nur: die Fenster übernehmen noch nichts.
QHBoxLayout* OkAbbrechen(QDialog* d) {
    auto* cmdOk = Knopf(d, "cmdOk", "OK");
    cmdOk->setDefault(true);
    QObject::connect(cmdOk, &QPushButton::clicked, d, &QDialog::accept);
    auto* cmdAbbrechen = Knopf(d, "cmdAbbrechen", "Abbrechen");
    QObject::connect(cmdAbbrechen, &QPushButton::clicked, d, &QDialog::reject);
    auto* knöpfe = new QHBoxLayout;
    knöpfe->addStretch();
    knöpfe->addWidget(cmdOk);
    knöpfe->addWidget(cmdAbbrechen);
    return knöpfe;
}
}  // namespace

frmTerminÜberwachungHinzufügen::frmTerminÜberwachungHinzufügen(QWidget* besitzer) : QDialog(besitzer) {
    setObjectName(QStringLiteral("frmTerminÜberwachungHinzufügen"));
    setWindowTitle(QStringLiteral("Ereignis hinzufügen"));
    chkHinzu_ = Benannt(new QCheckBox(QStringLiteral("Hinzufügen?"), this), "chkHinzu");
    chkHinzu_->setVisible(false);  // merkt sich nur, ob neu oder geändert
    txtBeschreibung_ = Benannt(new QLineEdit(this), "txtBeschreibung");
    txtBeschreibung_->setMinimumWidth(300);
    txtDatum_ = Benannt(new QLineEdit(this), "txtDatum");
    txtDatum_->setPlaceholderText(QStringLiteral("TT.MM.JJJJ"));
    cboKategorie_ = Benannt(new QComboBox(this), "cboKategorie");
    const QStyle* stil = QApplication::style();
    const struct {
        QStyle::StandardPixmap bild;
        const char* text;
    } kategorien[] = {{QStyle::SP_MediaPlay, "Neuerscheinung"},
                      {QStyle::SP_DirHomeIcon, "Konzert"},
                      {QStyle::SP_MessageBoxInformation, "Termin"},
                      {QStyle::SP_FileIcon, "Sonstiges"}};
    for (const auto& kat : kategorien)
        cboKategorie_->addItem(stil->standardIcon(kat.bild), QString::fromUtf8(kat.text));
    chkBenachrichtigen_ =
        Benannt(new QCheckBox(QStringLiteral("&Über dieses Ereignis benachrichtigen"), this), "chkBenachrichtigen");

    auto* felder = new QFormLayout;
    felder->addRow(QStringLiteral("&Beschreibung:"), txtBeschreibung_);
    felder->addRow(QStringLiteral("&Datum:"), txtDatum_);
    felder->addRow(QStringLiteral("&Kategorie:"), cboKategorie_);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(chkHinzu_);
    layout->addLayout(felder);
    layout->addWidget(chkBenachrichtigen_);
    layout->addSpacing(6);
    layout->addLayout(OkAbbrechen(this));
}

void frmTerminÜberwachungHinzufügen::Vorbereiten(bool neu) {
    chkHinzu_->setChecked(neu);
    txtBeschreibung_->clear();
    txtDatum_->clear();
    cboKategorie_->setCurrentIndex(-1);
    chkBenachrichtigen_->setChecked(false);
}

frmTerminÜberwachung::frmTerminÜberwachung(QWidget* besitzer, GuiOberfläche& ui, const std::string& indexName)
    : QDialog(besitzer), ui_(ui) {
    setObjectName(QStringLiteral("frmTerminÜberwachung"));
    setWindowTitle(QStringLiteral("Ereignis-Überwachung"));
    auto* lblBeschreibung =
        new QLabel(QStringLiteral("Überwachen Sie z.B. Neuerscheinungen von Platten Ihrer Lieblingsband."), this);
    auto* lstEreignisse = Benannt(new QListWidget(this), "lstEreignisse");
    lstEreignisse->setMinimumSize(380, 160);
    auto* cmdNeu = Knopf(this, "cmdNeu", "&Hinzufügen");
    connect(cmdNeu, &QPushButton::clicked, this, [this] { Hinzufügen(true); });
    auto* cmdÄndern = Knopf(this, "cmdÄndern", "&Ändern");
    connect(cmdÄndern, &QPushButton::clicked, this, [this] { Hinzufügen(false); });
    Knopf(this, "cmdLöschen", "&Löschen");  // noch ohne Wirkung
    auto* lblIndexdatei = Benannt(new QLabel(Q(indexName), this), "lblIndexdatei");
    QFont f = lblIndexdatei->font();
    f.setItalic(true);
    lblIndexdatei->setFont(f);
    auto* lblHinweis = new QLabel(QStringLiteral("Diese Daten werden in der aktuellen Indexdatei gespeichert und "
                                                 "können nur genutzt werden, solange diese geladen ist."),
                                  this);
    lblHinweis->setWordWrap(true);

    auto* seite = new QVBoxLayout;
    for (const char* name : {"cmdNeu", "cmdÄndern", "cmdLöschen"})
        seite->addWidget(findChild<QPushButton*>(QString::fromUtf8(name)));
    seite->addStretch();
    auto* mitte = new QHBoxLayout;
    mitte->addWidget(lstEreignisse, 1);
    mitte->addLayout(seite);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lblBeschreibung);
    layout->addWidget(Überschrift(this, "Das steht an"));
    layout->addLayout(mitte);
    layout->addWidget(lblIndexdatei);
    layout->addWidget(lblHinweis);
    layout->addLayout(OkAbbrechen(this));
}

void frmTerminÜberwachung::Hinzufügen(bool neu) {
    frmTerminÜberwachungHinzufügen dialog(this);
    dialog.Vorbereiten(neu);
    ui_.DialogAusführen(dialog);
}

frmTerminÜberwachungTermin::frmTerminÜberwachungTermin(QWidget* besitzer) : QDialog(besitzer) {
    setObjectName(QStringLiteral("frmTerminÜberwachungTermin"));
    setWindowTitle(QStringLiteral("Ereignis erreicht"));
    auto* optOK = Benannt(new QRadioButton(QStringLiteral("&OK, nicht mehr erinnern"), this), "optOK");
    auto* optErinnern = Benannt(new QRadioButton(QStringLiteral("&Wieder erinnern"), this), "optErinnern");
    lblHinweis1_ = Benannt(new QLabel(QStringLiteral("Erinnern in:"), this), "lblHinweis1");
    txtInfos_ = Benannt(new QLineEdit(this), "txtInfos");
    txtInfos_->setMaximumWidth(80);
    cboZeiteinheit_ = Benannt(new QComboBox(this), "cboZeiteinheit");
    cboZeiteinheit_->addItems({QStringLiteral("Minuten"), QStringLiteral("Stunden"), QStringLiteral("Tagen")});
    connect(optErinnern, &QRadioButton::toggled, this, &frmTerminÜberwachungTermin::ErinnernZeigen);

    auto* erinnern = new QHBoxLayout;
    erinnern->addSpacing(20);
    erinnern->addWidget(lblHinweis1_);
    erinnern->addWidget(txtInfos_);
    erinnern->addWidget(cboZeiteinheit_);
    erinnern->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(Überschrift(this, "Ein überwachtes Ereignis ist erreicht."));
    layout->addWidget(optOK);
    layout->addWidget(optErinnern);
    layout->addLayout(erinnern);
    layout->addLayout(OkAbbrechen(this));
    optOK->setChecked(true);
    ErinnernZeigen(false);
}

void frmTerminÜberwachungTermin::ErinnernZeigen(bool an) {
    txtInfos_->setVisible(an);
    cboZeiteinheit_->setVisible(an);
    lblHinweis1_->setVisible(an);
}
