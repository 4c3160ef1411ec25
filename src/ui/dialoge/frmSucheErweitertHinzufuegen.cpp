#include "ui/dialoge/frmSucheErweitertHinzufuegen.h"

#include "app/Kartei.h"
#include "search/AutoComplete.h"
#include "search/Suchbegriffe.h"
#include "ui/Textmarken.h"
#include "ui/Umrechnung.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

frmSucheErweitertHinzufügen::frmSucheErweitertHinzufügen(QWidget* besitzer, Kartei& k) : QDialog(besitzer), k_(k) {
    setObjectName(QStringLiteral("frmSucheErweitertHinzufügen"));
    setWindowTitle(QStringLiteral("Suche"));
    lstSucheArt_ = new QListWidget(this);
    lstSucheArt_->setObjectName(QStringLiteral("lstSucheArt"));
    for (const auto& feld : SuchFelderListe()) lstSucheArt_->addItem(Q(feld));
    txtSucheBegriff_ = new QLineEdit(this);
    txtSucheBegriff_->setObjectName(QStringLiteral("txtSucheBegriff"));
    txtSucheBegriff_->installEventFilter(this);
    lstSucheAuswahl_ = new QListWidget(this);
    lstSucheAuswahl_->setObjectName(QStringLiteral("lstSucheAuswahl"));
    lstSucheAuswahl_->setUniformItemSizes(true);
    cboSucheMussDarfNicht_ = new QComboBox(this);
    cboSucheMussDarfNicht_->setObjectName(QStringLiteral("cboSucheMussDarfNicht"));
    cboSucheMussDarfNicht_->addItems({QStringLiteral("MUSS enthalten"), QStringLiteral("DARF NICHT enthalten!")});
    cboSucheUndOder_ = new QComboBox(this);
    cboSucheUndOder_->setObjectName(QStringLiteral("cboSucheUndOder"));
    cboSucheUndOder_->addItems({QStringLiteral("UND"), QStringLiteral("ODER!")});
    chkHinzu_ = new QCheckBox(QStringLiteral("Hinzufügen?"), this);
    chkHinzu_->setObjectName(QStringLiteral("chkHinzu"));
    chkHinzu_->hide();
    auto* cmdOk = new QPushButton(QStringLiteral("OK"), this);
    cmdOk->setObjectName(QStringLiteral("cmdOk"));
    cmdOk->setDefault(true);
    auto* cmdAbbrechen = new QPushButton(QStringLiteral("Abbrechen"), this);
    cmdAbbrechen->setObjectName(QStringLiteral("cmdAbbrechen"));

    connect(lstSucheArt_, &QListWidget::currentRowChanged, this, &frmSucheErweitertHinzufügen::lstSucheArt_Click);
    connect(lstSucheAuswahl_, &QListWidget::itemClicked, this, [this](QListWidgetItem* eintrag) {
        txtSucheBegriff_->setText(eintrag->text());
        txtSucheBegriff_->setFocus();
    });
    connect(txtSucheBegriff_, &QLineEdit::textEdited, this, &frmSucheErweitertHinzufügen::txtSucheBegriff_Change);
    connect(cmdOk, &QPushButton::clicked, this, &frmSucheErweitertHinzufügen::cmdOk_Click);
    connect(cmdAbbrechen, &QPushButton::clicked, this, &QDialog::reject);

    auto* layout = new QGridLayout(this);
    // Mit Partner zeigt das Label das "&" als Kürzel an, nicht als Zeichen.
    auto* lblFeld = new QLabel(QStringLiteral("Suchen im &Feld:"), this);
    lblFeld->setBuddy(lstSucheArt_);
    auto* lblBegriff = new QLabel(QStringLiteral("&Suchbegriff:"), this);
    lblBegriff->setBuddy(txtSucheBegriff_);
    layout->addWidget(lblFeld, 0, 0);
    layout->addWidget(lblBegriff, 0, 1);
    layout->addWidget(lstSucheArt_, 1, 0, 3, 1);
    layout->addWidget(txtSucheBegriff_, 1, 1);
    layout->addWidget(lstSucheAuswahl_, 2, 1);
    auto* bedingung = new QHBoxLayout;
    bedingung->addWidget(cboSucheMussDarfNicht_);
    bedingung->addWidget(cboSucheUndOder_);
    bedingung->addStretch();
    layout->addLayout(bedingung, 3, 1);
    auto* knöpfe = new QHBoxLayout;
    knöpfe->addStretch();
    knöpfe->addWidget(cmdOk);
    knöpfe->addWidget(cmdAbbrechen);
    layout->addLayout(knöpfe, 4, 0, 1, 2);
    layout->setColumnStretch(1, 1);
    resize(560, 380);
}

void frmSucheErweitertHinzufügen::Neu() {
    chkHinzu_->setChecked(true);
    zeile_ = 0;
    txtSucheBegriff_->clear();
    begriff_ = {};
    if (cboSucheUndOder_->currentIndex() < 0) cboSucheUndOder_->setCurrentIndex(0);
    if (cboSucheMussDarfNicht_->currentIndex() < 0) cboSucheMussDarfNicht_->setCurrentIndex(0);
    if (lstSucheArt_->currentRow() < 0) lstSucheArt_->setCurrentRow(0);
}

void frmSucheErweitertHinzufügen::Ändern(int32_t nummer) {
    const auto& s = k_.Suche;
    chkHinzu_->setChecked(false);
    tag_ = nummer;
    zeile_ = 0;
    const auto treffer = lstSucheArt_->findItems(Q(s.SuchFelder[nummer]), Qt::MatchExactly);
    if (!treffer.isEmpty()) lstSucheArt_->setCurrentItem(treffer.first());
    txtSucheBegriff_->setText(Q(s.SuchBegriffe[nummer]));
    begriff_.Text = s.SuchBegriffe[nummer];
    // Erste Ziffer MUSS/DARF NICHT, zweite UND/ODER – so zeigt eine DARF-NICHT-Zeile "ODER!".
    const std::string& bedingung = s.SuchBedingungen[nummer];
    cboSucheMussDarfNicht_->setCurrentIndex(bedingung.size() > 0 && bedingung[0] != '0' ? 1 : 0);
    cboSucheUndOder_->setCurrentIndex(bedingung.size() > 1 && bedingung[1] != '0' ? 1 : 0);
}

void frmSucheErweitertHinzufügen::lstSucheArt_Click() {
    const QListWidgetItem* feld = lstSucheArt_->currentItem();
    auswahl_.Text = S(txtSucheBegriff_->text());
    AutoCompleteFüllen(k_, auswahl_, feld ? S(feld->text()) : std::string(), k_.E.Auswahlliste, "");
    lstSucheAuswahl_->clear();
    QStringList werte;
    werte.reserve(static_cast<qsizetype>(auswahl_.List.size()));
    for (const auto& w : auswahl_.List) werte << Q(w);
    lstSucheAuswahl_->addItems(werte);
    if (isVisible()) txtSucheBegriff_->setFocus();
}

// Rücktaste und Entf sollen nicht gleich wieder ergänzt werden.
bool frmSucheErweitertHinzufügen::eventFilter(QObject* objekt, QEvent* ereignis) {
    if (objekt == txtSucheBegriff_ && ereignis->type() == QEvent::KeyPress) {
        const int taste = static_cast<QKeyEvent*>(ereignis)->key();
        if (taste == Qt::Key_Backspace || (taste == Qt::Key_Delete && !txtSucheBegriff_->text().isEmpty()))
            k_.Suche.AutoCompleteUnterdrückt = true;
    }
    return QDialog::eventFilter(objekt, ereignis);
}

void frmSucheErweitertHinzufügen::txtSucheBegriff_Change(const QString& text) {
    begriff_.Text = S(text);
    begriff_.SelStart = ZeichenVor(text, txtSucheBegriff_->cursorPosition());
    begriff_.SelLength = 0;
    if (AutoCompleteAusführen(k_, begriff_.Text, auswahl_, begriff_)) EingabeAnzeigen();
}

void frmSucheErweitertHinzufügen::EingabeAnzeigen() {
    const QString text = Q(begriff_.Text);
    txtSucheBegriff_->setText(text);
    MarkeSetzen(*txtSucheBegriff_, text, begriff_.SelStart, begriff_.SelLength);
    if (auswahl_.ListIndex >= 0 && auswahl_.ListIndex < lstSucheAuswahl_->count()) {
        const QSignalBlocker sperre(lstSucheAuswahl_);
        lstSucheAuswahl_->setCurrentRow(auswahl_.ListIndex);
    }
}

void frmSucheErweitertHinzufügen::cmdOk_Click() {
    auto& s = k_.Suche;
    const QListWidgetItem* feld = lstSucheArt_->currentItem();
    const std::string text = S(txtSucheBegriff_->text());
    const std::string name = feld ? S(feld->text()) : SuchFelderListe().front();
    const std::string bedingung = SuchBedingungAusWahl(cboSucheMussDarfNicht_->currentIndex());
    if (chkHinzu_->isChecked()) {
        if (!SuchbegriffeHinzufügen(s, text, name, bedingung))
            k_.ui.MeldungZeigen("Die Such-Abfrage konnte nicht gespeichert werden.", Meldung::Ausrufezeichen);
        else zeile_ = s.SuchAnzahl;
    } else {
        if (!SuchbegriffeÄndern(s, tag_, text, name, bedingung))
            k_.ui.MeldungZeigen("Die Such-Abfrage konnte nicht geändert werden.", Meldung::Ausrufezeichen);
        else zeile_ = tag_;
    }
    accept();
}
