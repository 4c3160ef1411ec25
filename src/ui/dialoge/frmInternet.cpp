#include "ui/dialoge/frmInternet.h"

#include "ui/Umrechnung.h"
#include "ui/dialoge/Knopf.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>

frmInternet::frmInternet(QWidget* besitzer, Kartei& k, InternetAuswahl auswahl)
    : QDialog(besitzer), k_(k), auswahl_(std::move(auswahl)) {
    setObjectName(QStringLiteral("frmInternet"));
    setWindowTitle(QStringLiteral("Weitere Infos im Internet"));
    auto* lblListe = new QLabel(QStringLiteral("&Wo möchten Sie suchen?"), this);
    lstListe_ = Benannt(new QListWidget(this), "lstListe");
    for (int32_t i = 1; i <= auswahl_.Namen.UBound(); ++i) lstListe_->addItem(Q(auswahl_.Namen[i]));
    lstListe_->setMinimumSize(360, 180);
    lblListe->setBuddy(lstListe_);
    auto* lblSuche = new QLabel(QStringLiteral("&Suchen nach:"), this);
    txtSuche_ = Benannt(new QLineEdit(Q(auswahl_.suche), this), "txtSuche");
    lblSuche->setBuddy(txtSuche_);
    auto* hinweis = new QLabel(QStringLiteral("Die Suche wird in Ihrem Browser geöffnet."), this);
    hinweis->setEnabled(false);

    auto* cmdOk = Knopf(this, "cmdOk", "&Suchen");
    cmdOk->setDefault(true);
    connect(cmdOk, &QPushButton::clicked, this, &frmInternet::cmdOk_Click);
    auto* cmdAbbrechen = Knopf(this, "cmdAbbrechen", "Abbrechen");
    connect(cmdAbbrechen, &QPushButton::clicked, this, &QDialog::reject);
    connect(lstListe_, &QListWidget::itemDoubleClicked, this, &frmInternet::cmdOk_Click);

    auto* knöpfe = new QHBoxLayout;
    knöpfe->addWidget(hinweis);
    knöpfe->addStretch();
    knöpfe->addWidget(cmdOk);
    knöpfe->addWidget(cmdAbbrechen);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lblListe);
    layout->addWidget(lstListe_);
    layout->addWidget(lblSuche);
    layout->addWidget(txtSuche_);
    layout->addSpacing(6);
    layout->addLayout(knöpfe);
}

void frmInternet::cmdOk_Click() {
    const int32_t zeile =
        lstListe_->currentItem() && lstListe_->currentItem()->isSelected() ? lstListe_->currentRow() + 1 : 0;
    if (InternetSucheÖffnen(k_, auswahl_, zeile, S(txtSuche_->text()))) accept();
}
