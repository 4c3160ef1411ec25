#include "ui/dialoge/frmIndexOeffnen.h"

#include "app/Kartei.h"
#include "app/Pfade.h"
#include "index/IndexDatei.h"
#include "shell/Beenden.h"
#include "ui/GuiOberflaeche.h"
#include "ui/Umrechnung.h"

#include "ui/dialoge/Knopf.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

frmIndexÖffnen::frmIndexÖffnen(QWidget* besitzer, Kartei& k, GuiOberfläche& ui) : QDialog(besitzer), k_(k), ui_(ui) {
    setObjectName(QStringLiteral("frmIndexÖffnen"));
    setWindowTitle(QStringLiteral("Indexdatei"));
    auto* lbl = new QLabel(QStringLiteral("&Indexdatei:"), this);
    txtIndexdatei_ = new QLineEdit(Q(k_.Dateiname), this);
    txtIndexdatei_->setObjectName(QStringLiteral("txtIndexdatei"));
    txtIndexdatei_->setMinimumWidth(420);
    lbl->setBuddy(txtIndexdatei_);
    auto* cmdWählen = Knopf(this, "cmdIndexdateiWählen", "&Wählen...");
    auto* cmdNeu = Knopf(this, "cmdIndexdateiNeu", "&Neu...");
    cmdSpeichern_ = Knopf(this, "cmdSpeichern", "&Speichern");
    cmdIndexdateiSpeichernUnter_ = Knopf(this, "cmdIndexdateiSpeichernUnter", "Speichern &unter...");
    auto* cmdOk = Knopf(this, "cmdOk", "OK");
    cmdOk->setDefault(true);
    auto* cmdAbbrechen = Knopf(this, "cmdAbbrechen", "Abbrechen");

    connect(cmdWählen, &QPushButton::clicked, this, [this] { cmdIndexdateiWählen_Click(false); });
    connect(cmdNeu, &QPushButton::clicked, this, [this] { cmdIndexdateiWählen_Click(true); });
    connect(cmdSpeichern_, &QPushButton::clicked, this, &frmIndexÖffnen::cmdSpeichern_Click);
    connect(cmdIndexdateiSpeichernUnter_, &QPushButton::clicked, this,
            &frmIndexÖffnen::cmdIndexdateiSpeichernUnter_Click);
    connect(cmdOk, &QPushButton::clicked, this, &frmIndexÖffnen::cmdOk_Click);
    connect(cmdAbbrechen, &QPushButton::clicked, this, &QDialog::reject);
    // Speichern gilt der geladenen Datei, nicht dem eingetippten Namen.
    connect(txtIndexdatei_, &QLineEdit::textChanged, this, [this] {
        cmdSpeichern_->setEnabled(false);
        cmdIndexdateiSpeichernUnter_->setEnabled(false);
    });
    const bool geladen = !k_.Dateiname.empty();
    cmdSpeichern_->setEnabled(geladen);
    cmdIndexdateiSpeichernUnter_->setEnabled(geladen);

    auto* layout = new QGridLayout(this);
    layout->addWidget(lbl, 0, 0);
    layout->addWidget(txtIndexdatei_, 0, 1);
    auto* wahl = new QHBoxLayout;
    wahl->addWidget(cmdWählen);
    wahl->addWidget(cmdNeu);
    wahl->addStretch();
    wahl->addWidget(cmdSpeichern_);
    wahl->addWidget(cmdIndexdateiSpeichernUnter_);
    layout->addLayout(wahl, 1, 1);
    auto* knöpfe = new QHBoxLayout;
    knöpfe->addStretch();
    knöpfe->addWidget(cmdOk);
    knöpfe->addWidget(cmdAbbrechen);
    layout->setRowMinimumHeight(2, 10);
    layout->addLayout(knöpfe, 3, 0, 1, 2);
}

void frmIndexÖffnen::cmdIndexdateiWählen_Click(bool neu) {
    const std::string start = PfadZurückgeben(k_.Dateiname);
    std::string datei;
    const bool gewählt =
        neu ? ui_.DateiZumSpeichernWählen("Neue Indexdatei", "Indexdateien (*.kkt)|*.kkt", start, datei)
            : ui_.DateiWählen("Indexdatei öffnen", "Indexdateien (*.kkt)|*.kkt|Alle Dateien (*.*)|*.*", start, datei);
    if (gewählt) txtIndexdatei_->setText(Q(datei));
}

void frmIndexÖffnen::cmdSpeichern_Click() {
    if (DateiSpeichern(k_, k_.Dateiname, true))
        k_.ui.MeldungZeigen("Die Indexdatei wurde gespeichert.", Meldung::Information);
}

void frmIndexÖffnen::cmdIndexdateiSpeichernUnter_Click() {
    std::string datei;
    if (!ui_.DateiZumSpeichernWählen("Indexdatei speichern unter", "Indexdateien (*.kkt)|*.kkt",
                                     PfadZurückgeben(k_.Dateiname), datei))
        return;
    if (DateiSpeichern(k_, datei, true)) k_.ui.MeldungZeigen("Die Indexdatei wurde gespeichert.", Meldung::Information);
}

void frmIndexÖffnen::cmdOk_Click() {
    if (!IndexWechselVorbereiten(k_)) return;  // Abbrechen oder Speichern misslungen: bleiben
    k_.Dateiname = S(txtIndexdatei_->text());
    accept();
    if (öffnen && öffnen()) k_.ui.TitelNachrichtZeigen("Die Indexdatei wurde geladen", 750);
}
