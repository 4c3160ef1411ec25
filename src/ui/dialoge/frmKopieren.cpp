#include "ui/dialoge/frmKopieren.h"

#include "app/Kartei.h"
#include "fileops/Kopieren.h"
#include "fileops/Verschieben.h"
#include "ui/GuiOberflaeche.h"
#include "ui/Umrechnung.h"
#include "ui/dialoge/Knopf.h"
#include "ui/dialoge/frmZielordnerVorschlaege.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

frmKopieren::frmKopieren(QWidget* besitzer, Kartei& k, GuiOberfläche& ui, std::vector<int32_t> einträge)
    : QDialog(besitzer), k_(k), ui_(ui), einträge_(std::move(einträge)) {
    setObjectName(QStringLiteral("frmKopieren"));
    setWindowTitle(QStringLiteral("Datei(en) kopieren/verschieben"));
    txtOrdner_ = Benannt(new QLineEdit(Q(k_.E.KopierenOrdner), this), "txtOrdner");
    txtOrdner_->setMinimumWidth(420);
    optVerschieben_ = Benannt(new QRadioButton(QStringLiteral("In einen Ordner &verschieben"), this), "optVerschieben");
    optKopieren_ = Benannt(new QRadioButton(QStringLiteral("In einen Ordner &kopieren"), this), "optKopieren");
    (k_.E.KopierenModus == ModusVerschieben ? optVerschieben_ : optKopieren_)->setChecked(true);
    auto* cmdOrdnerSuchen = Knopf(this, "cmdOrdnerSuchen", "...");
    auto* cmdVorschlagen = Knopf(this, "cmdVorschlagen", "&Zielordner für die erste Datei vorschlagen...");
    cmdVorschlagen->setEnabled(!einträge_.empty());
    auto* cmdOk = Knopf(this, "cmdOk", "OK");
    cmdOk->setDefault(true);
    auto* cmdAbbrechen = Knopf(this, "cmdAbbrechen", "Abbrechen");
    auto* lblHinweis =
        Benannt(new QLabel(QStringLiteral("Hinweis: Existiert der Zielordner noch nicht, wird er erstellt."), this),
                "lblHinweis");

    auto* ordnerZeile = new QHBoxLayout;
    ordnerZeile->addWidget(txtOrdner_, 1);
    ordnerZeile->addWidget(cmdOrdnerSuchen);
    auto* knöpfe = new QHBoxLayout;
    knöpfe->addStretch();
    knöpfe->addWidget(cmdOk);
    knöpfe->addWidget(cmdAbbrechen);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(QStringLiteral("Zielordner:"), this));
    layout->addLayout(ordnerZeile);
    layout->addWidget(cmdVorschlagen, 0, Qt::AlignLeft);
    layout->addWidget(optVerschieben_);
    layout->addWidget(optKopieren_);
    layout->addWidget(lblHinweis);
    layout->addLayout(knöpfe);

    connect(cmdOrdnerSuchen, &QPushButton::clicked, this, &frmKopieren::cmdOrdnerSuchen_Click);
    connect(cmdVorschlagen, &QPushButton::clicked, this, &frmKopieren::cmdVorschlagen_Click);
    connect(cmdOk, &QPushButton::clicked, this, &frmKopieren::cmdOk_Click);
    connect(cmdAbbrechen, &QPushButton::clicked, this, &QDialog::reject);
}

void frmKopieren::cmdOrdnerSuchen_Click() {
    std::string ordner = S(txtOrdner_->text());
    if (k_.ui.OrdnerWählen("Bitte wählen Sie einen Zielordner...", ordner)) txtOrdner_->setText(Q(ordner));
}

void frmKopieren::cmdVorschlagen_Click() {
    if (einträge_.empty()) return;
    frmZielordnerVorschläge dialog(this, k_.ui, ZielordnerVorschlagen(k_, einträge_.front()));
    if (ui_.DialogAusführen(dialog) == QDialog::Accepted) txtOrdner_->setText(Q(dialog.Gewählt()));
}

void frmKopieren::cmdOk_Click() {
    const std::string ordner = S(txtOrdner_->text());
    if (!ZielordnerPrüfen(k_, ordner)) return;
    hide();
    DateienKopieren(k_, einträge_, ordner, optVerschieben_->isChecked() ? ModusVerschieben : ModusKopieren);
    accept();
}
