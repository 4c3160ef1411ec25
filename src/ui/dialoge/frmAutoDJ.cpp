#include "ui/dialoge/frmAutoDJ.h"

#include "app/EinsBasiert.h"
#include "app/Kartei.h"
#include "ui/Umrechnung.h"
#include "ui/dialoge/BerichteZeigen.h"
#include "ui/dialoge/Knopf.h"
#include "ui/dialoge/ListenWahl.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>

namespace {
QLabel* Text(QWidget* eltern, const char* name, const char* text = "") {
    auto* l = Benannt(new QLabel(QString::fromUtf8(text), eltern), name);
    l->setWordWrap(true);
    return l;
}

// Drei Wahlknöpfe unter einer Liste; präfix "cmdGenre" oder "cmdWählen".
QHBoxLayout* Wahlknöpfe(QWidget* eltern, QListWidget* liste, const std::string& präfix) {
    auto* zeile = new QHBoxLayout;
    const struct {
        const char* name;
        const char* text;
        ListenWahl wie;
    } knöpfe[] = {{"Alle", "&Alle", ListenWahl::Alle},
                  {"Keine", "&Keine", ListenWahl::Keine},
                  {"Umkehren", "&Umkehren", ListenWahl::Umkehren}};
    zeile->addStretch();
    for (const auto& k : knöpfe) {
        QPushButton* knopf = Knopf(eltern, (präfix + k.name).c_str(), k.text);
        QObject::connect(knopf, &QPushButton::clicked, liste, [liste, wie = k.wie] { ListeWählen(liste, wie); });
        zeile->addWidget(knopf);
    }
    return zeile;
}
}  // namespace

frmAutoDJ::frmAutoDJ(QWidget* besitzer, Kartei& k, AutoDJBefehle befehle)
    : QDialog(besitzer), k_(k), befehle_(std::move(befehle)) {
    setObjectName(QStringLiteral("frmAutoDJ"));
    setWindowTitle(QStringLiteral("AutoDJ"));
    fraSuche_ = SucheAufbauen();
    fraErgebnisse_ = ErgebnisseAufbauen();
    cmdZurück_ = Knopf(this, "cmdZurück", "< &Zurück");
    cmdErstellen_ = Knopf(this, "cmdErstellen", "&Weiter >");
    auto* cmdAbbrechen = Knopf(this, "cmdAbbrechen", "&Schließen");
    auto* knöpfe = new QHBoxLayout;
    knöpfe->addStretch();
    knöpfe->addWidget(cmdZurück_);
    knöpfe->addWidget(cmdErstellen_);
    knöpfe->addWidget(cmdAbbrechen);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(fraSuche_, 1);
    layout->addWidget(fraErgebnisse_, 1);
    layout->addLayout(knöpfe);
    connect(cmdErstellen_, &QPushButton::clicked, this, &frmAutoDJ::cmdErstellen_Click);
    connect(cmdZurück_, &QPushButton::clicked, this, [this] { SeiteZeigen(false); });
    connect(cmdAbbrechen, &QPushButton::clicked, this, &QDialog::reject);
    SeiteZeigen(false);
    resize(600, 480);
}

QWidget* frmAutoDJ::SucheAufbauen() {
    auto* seite = Benannt(new QWidget(this), "fraSuche");
    lstFelder_ = Benannt(new QListWidget(seite), "lstFelder");
    lstFelder_->setSelectionMode(QAbstractItemView::MultiSelection);
    for (const auto& g : AutoDJGenreListe(k_)) lstFelder_->addItem(Q(g));
    txtMaximum_ = Benannt(new QLineEdit(seite), "txtMaximum");
    txtZeit_ = Benannt(new QLineEdit(seite), "txtZeit");
    for (QLineEdit* feld : {txtMaximum_, txtZeit_}) feld->setMaximumWidth(60);
    cboZeiteinheit_ = Benannt(new QComboBox(seite), "cboZeiteinheit");
    cboZeiteinheit_->addItems({QStringLiteral("Minuten"), QStringLiteral("Stunden"), QStringLiteral("Tage")});
    chkAlteSeltener_ = Benannt(
        new QCheckBox(QStringLiteral("Dateien, die ich vor kurzem noch häufig gehört habe, seltener finden"), seite),
        "chkAlteSeltener");
    chkSehrAlteHäufiger_ = Benannt(
        new QCheckBox(QStringLiteral("Dateien, die ich vor längerer Zeit oft gehört habe, häufiger finden"), seite),
        "chkSehrAlteHäufiger");

    const AutoDJOptionen o = AutoDJOptionenLaden(k_);
    txtMaximum_->setText(Q(o.txtMaximum));
    txtZeit_->setText(Q(o.txtZeit));
    cboZeiteinheit_->setCurrentIndex(o.cboZeiteinheit);
    chkAlteSeltener_->setChecked(o.chkAlteSeltener);
    chkSehrAlteHäufiger_->setChecked(o.chkSehrAlteHäufiger);

    auto* maximum = new QHBoxLayout;
    maximum->addWidget(Text(seite, "lblMaximum", "Finde so viele Dateien (am besten niedrige Zahlen):"), 1);
    maximum->addWidget(txtMaximum_);
    auto* zeit = new QHBoxLayout;
    QLabel* lblZeit1 = Text(seite, "lblZeit1", "Dateien auslassen, die innerhalb der letzten");
    lblZeit1->setWordWrap(false);
    zeit->addWidget(lblZeit1);
    zeit->addWidget(txtZeit_);
    zeit->addWidget(cboZeiteinheit_);
    zeit->addWidget(Text(seite, "lblZeit2", "bereits gespielt wurden"), 1);
    auto* layout = new QVBoxLayout(seite);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(Text(seite, "lblFelder", "Aus welchen Genres soll AutoDJ Dateien suchen?"));
    layout->addWidget(lstFelder_, 1);
    layout->addLayout(Wahlknöpfe(seite, lstFelder_, "cmdGenre"));
    layout->addLayout(maximum);
    layout->addLayout(zeit);
    layout->addWidget(chkAlteSeltener_);
    layout->addWidget(chkSehrAlteHäufiger_);
    return seite;
}

QWidget* frmAutoDJ::ErgebnisseAufbauen() {
    auto* seite = Benannt(new QWidget(this), "fraErgebnisse");
    lblGefundenAnzahl_ = Text(seite, "lblGefundenAnzahl");
    lstGefunden_ = Benannt(new QListWidget(seite), "lstGefunden");
    lstGefunden_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    lstGefunden_->installEventFilter(this);
    lblDatei1_ = Text(seite, "lblDatei1");
    QFont fett = lblDatei1_->font();
    fett.setBold(true);
    lblDatei1_->setFont(fett);
    lblDateiname1_ = Text(seite, "lblDateiname1");
    lblDateiname1_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    lblStatistik_ = Text(seite, "lblStatistik");
    cmdAbspielen_ = Knopf(seite, "cmdAbspielen", "A&bspielen");
    cmdInPlaylist_ = Knopf(seite, "cmdInPlaylist", "In &Playlist");
    cmdExport_ = Knopf(seite, "cmdExport", "&Export");
    cmdInfos_ = Knopf(seite, "cmdInfos", "Datei-&Infos");

    auto* befehle = new QHBoxLayout;
    for (QPushButton* b : {cmdAbspielen_, cmdInPlaylist_, cmdExport_, cmdInfos_}) befehle->addWidget(b);
    befehle->addStretch();
    auto* layout = new QVBoxLayout(seite);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(lblGefundenAnzahl_);
    layout->addWidget(lstGefunden_, 1);
    layout->addLayout(Wahlknöpfe(seite, lstGefunden_, "cmdWählen"));
    layout->addWidget(lblDatei1_);
    layout->addWidget(lblDateiname1_);
    layout->addWidget(lblStatistik_);
    layout->addLayout(befehle);

    connect(lstGefunden_, &QListWidget::itemSelectionChanged, this, &frmAutoDJ::lstGefunden_Click);
    connect(lstGefunden_, &QListWidget::itemDoubleClicked, this, [this] { Abspielen(false); });
    connect(cmdAbspielen_, &QPushButton::clicked, this, [this] { Abspielen(false); });
    connect(cmdInPlaylist_, &QPushButton::clicked, this, [this] { Abspielen(true); });
    connect(cmdExport_, &QPushButton::clicked, this, &frmAutoDJ::cmdExport_Click);
    connect(cmdInfos_, &QPushButton::clicked, this, [this] {
        if (!auswahl_.empty() && befehle_.infos) befehle_.infos(auswahl_);
    });
    return seite;
}

AutoDJOptionen frmAutoDJ::Optionen() const {
    AutoDJOptionen o;
    for (int i = 0; i < lstFelder_->count(); ++i)
        if (lstFelder_->item(i)->isSelected()) o.Genres.push_back(S(lstFelder_->item(i)->text()));
    o.txtMaximum = S(txtMaximum_->text());
    o.txtZeit = S(txtZeit_->text());
    o.cboZeiteinheit = cboZeiteinheit_->currentIndex();
    o.chkAlteSeltener = chkAlteSeltener_->isChecked();
    o.chkSehrAlteHäufiger = chkSehrAlteHäufiger_->isChecked();
    return o;
}

void frmAutoDJ::SeiteZeigen(bool ergebnisse) {
    fraSuche_->setVisible(!ergebnisse);
    fraErgebnisse_->setVisible(ergebnisse);
    cmdErstellen_->setVisible(!ergebnisse);
    cmdZurück_->setVisible(ergebnisse);
}

void frmAutoDJ::cmdErstellen_Click() {
    std::vector<AutoDJZeile> zeilen;
    if (!AutoDJErstellen(k_, Optionen(), zeilen)) return;
    lstGefunden_->clear();
    for (const auto& z : zeilen) {
        auto* eintrag = new QListWidgetItem(Q(z.text), lstGefunden_);
        eintrag->setData(Qt::UserRole, z.eintrag);
    }
    lblGefundenAnzahl_->setText(Q(GefundenAnzahlText(zeilen.size())));
    lstGefunden_Click();
    SeiteZeigen(true);
}

void frmAutoDJ::lstGefunden_Click() {
    auswahl_.clear();
    for (int i = 0; i < lstGefunden_->count(); ++i)
        if (lstGefunden_->item(i)->isSelected()) auswahl_.push_back(lstGefunden_->item(i)->data(Qt::UserRole).toInt());
    for (QPushButton* b : {cmdInfos_, cmdAbspielen_, cmdInPlaylist_, cmdExport_}) b->setEnabled(!auswahl_.empty());
    const AutoDJDetails d = AutoDJAuswahlDetails(k_, auswahl_);
    lblDatei1_->setText(Q(d.lblDatei1));
    lblDateiname1_->setText(Q(d.lblDateiname1));
    lblStatistik_->setText(Q(d.lblStatistik));
}

void frmAutoDJ::Abspielen(bool anhängen) {
    if (!auswahl_.empty() && befehle_.abspielen) befehle_.abspielen(auswahl_, anhängen);
}

void frmAutoDJ::cmdExport_Click() {
    if (auswahl_.empty()) return;
    EinsBasiert<int32_t> liste;
    for (const int32_t e : auswahl_) liste.Anhängen(e);
    ExportierenZeigen(this, k_, liste, liste.UBound());
}

bool frmAutoDJ::eventFilter(QObject* objekt, QEvent* ereignis) {
    // Enter in der Liste gilt als Doppelklick.
    if (objekt == lstGefunden_ && ereignis->type() == QEvent::KeyPress) {
        const int taste = static_cast<QKeyEvent*>(ereignis)->key();
        if (taste == Qt::Key_Return || taste == Qt::Key_Enter) {
            Abspielen(false);
            return true;
        }
    }
    return QDialog::eventFilter(objekt, ereignis);
}

void frmAutoDJ::done(int ergebnis) {
    AutoDJOptionenSpeichern(k_, Optionen());
    QDialog::done(ergebnis);
}
