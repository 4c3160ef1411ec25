#include "ui/dialoge/frmSucheErweitert.h"

#include "app/Kartei.h"
#include "search/Suchbegriffe.h"
#include "search/Suche.h"
#include "ui/GuiOberflaeche.h"
#include "ui/Umrechnung.h"
#include "ui/dialoge/frmSucheErweitertHinzufuegen.h"

#include "ui/dialoge/Knopf.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

frmSucheErweitert::frmSucheErweitert(QWidget* besitzer, Kartei& k, GuiOberfläche& ui)
    : QDialog(besitzer), k_(k), ui_(ui) {
    setObjectName(QStringLiteral("frmSucheErweitert"));
    setWindowTitle(QStringLiteral("Erweiterte Suche"));
    lstSucheAuflistung_ = new QListWidget(this);
    lstSucheAuflistung_->setObjectName(QStringLiteral("lstSucheAuflistung"));
    for (int32_t i = 1; i <= k_.Suche.SuchAnzahl; ++i) lstSucheAuflistung_->addItem(Q(SuchZeileText(k_.Suche, i)));
    auto* hinweis = new QLabel(QStringLiteral("Hinweis: Alle der hier aufgelistenten Suchabfragen müssen auf einen "
                                              "Indexeintrag zutreffen, damit dieser in der Ergebnissliste angezeigt "
                                              "wird (UND)."),
                               this);
    hinweis->setWordWrap(true);
    auto* cmdSucheNeu = Knopf(this, "cmdSucheNeu", "&Hinzufügen");
    auto* cmdSucheÄndern = Knopf(this, "cmdSucheÄndern", "&Ändern");
    auto* cmdSucheLöschen = Knopf(this, "cmdSucheLöschen", "&Löschen");
    auto* cmdOk = Knopf(this, "cmdOk", "OK");
    cmdOk->setDefault(true);
    cmdAbbrechen_ = Knopf(this, "cmdAbbrechen", "Abbrechen");
    connect(cmdSucheNeu, &QPushButton::clicked, this, &frmSucheErweitert::cmdSucheNeu_Click);
    connect(cmdSucheÄndern, &QPushButton::clicked, this, &frmSucheErweitert::cmdSucheÄndern_Click);
    connect(lstSucheAuflistung_, &QListWidget::itemDoubleClicked, this, &frmSucheErweitert::cmdSucheÄndern_Click);
    connect(cmdSucheLöschen, &QPushButton::clicked, this, &frmSucheErweitert::cmdSucheLöschen_Click);
    connect(cmdOk, &QPushButton::clicked, this, &frmSucheErweitert::cmdOk_Click);
    connect(cmdAbbrechen_, &QPushButton::clicked, this, &QDialog::reject);

    auto* seite = new QVBoxLayout;
    seite->addWidget(cmdSucheNeu);
    seite->addWidget(cmdSucheÄndern);
    seite->addWidget(cmdSucheLöschen);
    seite->addStretch();
    auto* mitte = new QHBoxLayout;
    mitte->addWidget(lstSucheAuflistung_, 1);
    mitte->addLayout(seite);
    auto* knöpfe = new QHBoxLayout;
    knöpfe->addStretch();
    knöpfe->addWidget(cmdOk);
    knöpfe->addWidget(cmdAbbrechen_);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(QStringLiteral("Such-Abfragen:"), this));
    layout->addLayout(mitte);
    layout->addWidget(hinweis);
    layout->addLayout(knöpfe);
    resize(600, 340);
}

int32_t frmSucheErweitert::GewählteZeile() const {
    const int zeile = lstSucheAuflistung_->currentRow();
    if (zeile < 0 || lstSucheAuflistung_->selectedItems().isEmpty()) {
        k_.ui.MeldungZeigen("Bitte wählen Sie eine Suchaufabe.", Meldung::Information);
        return 0;
    }
    return zeile + 1;
}

void frmSucheErweitert::cmdSucheNeu_Click() {
    frmSucheErweitertHinzufügen dialog(this, k_);
    dialog.Neu();
    ui_.DialogAusführen(dialog);
    if (dialog.Zeile() == 0) return;
    lstSucheAuflistung_->addItem(Q(SuchZeileText(k_.Suche, dialog.Zeile())));
    cmdAbbrechen_->setEnabled(false);  // die Änderung lässt sich nicht zurücknehmen
}

void frmSucheErweitert::cmdSucheÄndern_Click() {
    const int32_t zeile = GewählteZeile();
    if (zeile == 0) return;
    if (zeile > k_.Suche.SuchAnzahl) {
        k_.ui.MeldungZeigen("Die Such-Abfrage konnte nicht verarbeitet werden.", Meldung::Ausrufezeichen);
        return;
    }
    frmSucheErweitertHinzufügen dialog(this, k_);
    dialog.Ändern(zeile);
    ui_.DialogAusführen(dialog);
    if (dialog.Zeile() == 0) return;
    lstSucheAuflistung_->item(zeile - 1)->setText(Q(SuchZeileText(k_.Suche, zeile)));
    cmdAbbrechen_->setEnabled(false);
}

void frmSucheErweitert::cmdSucheLöschen_Click() {
    const int32_t zeile = GewählteZeile();
    if (zeile == 0) return;
    if (k_.ui.MeldungZeigen("Möchten Sie diese Such-Abfrage tatsächlich löschen?", Meldung::JaNeinFrage) != Meldung::Ja)
        return;
    if (SuchbegriffeLöschen(k_.Suche, zeile)) delete lstSucheAuflistung_->takeItem(zeile - 1);
    else k_.ui.MeldungZeigen("Die Such-Abfrage konnte nicht gelöscht werden.", Meldung::Ausrufezeichen);
    cmdAbbrechen_->setEnabled(false);
}

void frmSucheErweitert::cmdOk_Click() {
    if (SucheErweitertÜbernehmen(k_)) accept();
}
