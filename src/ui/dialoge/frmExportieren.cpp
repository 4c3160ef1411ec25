#include "ui/dialoge/frmExportieren.h"

#include "app/Kartei.h"
#include "reports/Export.h"
#include "ui/Umrechnung.h"
#include "ui/dialoge/Knopf.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {
QRadioButton* Option(QWidget* eltern, const char* name, const char* text) {
    return Benannt(new QRadioButton(QString::fromUtf8(text), eltern), name);
}
}  // namespace

frmExportieren::frmExportieren(QWidget* besitzer, Kartei& k, std::vector<int32_t> liste)
    : QDialog(besitzer), k_(k), liste_(std::move(liste)) {
    setObjectName(QStringLiteral("frmExportieren"));
    setWindowTitle(QStringLiteral("Exportieren"));
    optText_ = Option(this, "optText", "Durch ein Zeichen getrennte Textdatei (*.txt/*.csv)");
    optHtml_ = Option(this, "optHtml", "HTML-Datei (*.htm/*.html)");
    optPlayliste_ = Option(this, "optPlayliste", "Playliste (*.pls/*.m3u)");
    fraTextOptionen_ = new QGroupBox(QStringLiteral("Textoptionen"), this);
    fraTextOptionen_->setObjectName(QStringLiteral("fraTextOptionen"));
    // Die Reihenfolge der Gruppe ist ExportUntermodus: Komma, Tabulator, Semikolon, Leerzeichen.
    optTextKomma_ = Option(fraTextOptionen_, "optTextKomma", "&Komma");
    optTextTabulator_ = Option(fraTextOptionen_, "optTextTabulator", "&Tabulator");
    optTextSemikolon_ = Option(fraTextOptionen_, "optTextSemikolon", "&Semikolon");
    optTextLeerzeichen_ = Option(fraTextOptionen_, "optTextLeerzeichen", "&Leerzeichen");
    chkTextAnführungszeichen_ = new QCheckBox(QStringLiteral("Werte in &Anführungszeichen"), fraTextOptionen_);
    chkTextAnführungszeichen_->setObjectName(QStringLiteral("chkTextAnführungszeichen"));
    auto* text = new QGridLayout(fraTextOptionen_);
    text->addWidget(optTextKomma_, 0, 0);
    text->addWidget(optTextSemikolon_, 0, 1);
    text->addWidget(optTextTabulator_, 1, 0);
    text->addWidget(optTextLeerzeichen_, 1, 1);
    text->addWidget(chkTextAnführungszeichen_, 2, 0, 1, 2);

    txtDatei_ = new QLineEdit(this);
    txtDatei_->setObjectName(QStringLiteral("txtDatei"));
    txtDatei_->setMinimumWidth(360);
    auto* cmdDateiSuchen = Knopf(this, "cmdDateiSuchen", "...");
    auto* cmdOk = Knopf(this, "cmdOk", "OK");
    cmdOk->setDefault(true);
    auto* cmdAbbrechen = Knopf(this, "cmdAbbrechen", "Abbrechen");
    auto* hinweis = new QLabel(QStringLiteral("Hinweis: Welche Daten-Spalten exportiert werden, wird durch die "
                                              "Spalteneinstellung im Hauptfenster bestimmt."),
                               this);
    hinweis->setWordWrap(true);

    auto* datei = new QHBoxLayout;
    datei->addWidget(txtDatei_, 1);
    datei->addWidget(cmdDateiSuchen);
    auto* knöpfe = new QHBoxLayout;
    knöpfe->addStretch();
    knöpfe->addWidget(cmdOk);
    knöpfe->addWidget(cmdAbbrechen);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(optText_);
    layout->addWidget(fraTextOptionen_);
    layout->addWidget(optHtml_);
    layout->addWidget(optPlayliste_);
    layout->addWidget(new QLabel(QStringLiteral("Datei:"), this));
    layout->addLayout(datei);
    layout->addWidget(hinweis);
    layout->addLayout(knöpfe);

    const ExportWahl w = ExportWahlAusEinstellungen(k_);
    QRadioButton* arten[] = {optText_, optHtml_, optPlayliste_};
    QRadioButton* trenner[] = {optTextKomma_, optTextTabulator_, optTextSemikolon_, optTextLeerzeichen_};
    if (w.modus >= 0 && w.modus < 3) arten[w.modus]->setChecked(true);
    if (w.untermodus >= 0 && w.untermodus < 4) trenner[w.untermodus]->setChecked(true);
    chkTextAnführungszeichen_->setChecked(w.anführung);
    txtDatei_->setText(Q(w.datei));
    fraTextOptionen_->setEnabled(optText_->isChecked());
    for (QRadioButton* o : arten) connect(o, &QRadioButton::clicked, this, &frmExportieren::ArtGeklickt);
    connect(cmdDateiSuchen, &QPushButton::clicked, this, &frmExportieren::cmdDateiSuchen_Click);
    connect(cmdOk, &QPushButton::clicked, this, &frmExportieren::cmdOk_Click);
    connect(cmdAbbrechen, &QPushButton::clicked, this, &QDialog::reject);
}

int16_t frmExportieren::Modus() const {
    return optText_->isChecked()        ? ExportArt::Text
           : optHtml_->isChecked()      ? ExportArt::Html
           : optPlayliste_->isChecked() ? ExportArt::Playliste
                                        : int16_t(-1);
}

void frmExportieren::ArtGeklickt() {
    fraTextOptionen_->setEnabled(optText_->isChecked());
    txtDatei_->setText(Q(ExportEndungAnpassen(S(txtDatei_->text()), Modus())));
}

void frmExportieren::cmdDateiSuchen_Click() {
    static const char* const filter[] = {"Textdateien (*.csv);;Textdateien (*.txt);;Alle Dateien (*.*)",
                                         "HTML-Dateien (*.htm);;Alle Dateien (*.*)",
                                         "Playlisten (*.pls);;Playlisten (*.m3u);;Alle Dateien (*.*)"};
    const int16_t modus = Modus();
    const QString datei = QFileDialog::getSaveFileName(this, QStringLiteral("Exportieren"), txtDatei_->text(),
                                                       QString::fromUtf8(filter[modus < 0 ? 0 : modus]), nullptr,
                                                       QFileDialog::DontConfirmOverwrite);
    if (!datei.isEmpty()) txtDatei_->setText(datei);
}

void frmExportieren::cmdOk_Click() {
    ExportWahl w;
    w.modus = Modus();
    const QRadioButton* trenner[] = {optTextKomma_, optTextTabulator_, optTextSemikolon_, optTextLeerzeichen_};
    for (int16_t i = 0; i < 4; ++i)
        if (trenner[i]->isChecked()) w.untermodus = i;
    w.anführung = chkTextAnführungszeichen_->isChecked();
    w.datei = S(txtDatei_->text());
    if (ExportDialogAusführen(k_, w, liste_, k_.Liste.lstSongs)) accept();
}
