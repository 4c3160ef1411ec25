#include "ui/dialoge/frmHinweise.h"

#include "ui/dialoge/Knopf.h"

#include "shell/Tipps.h"
#include "ui/Umrechnung.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

frmHinweise::frmHinweise(QWidget* besitzer, Kartei& k, int32_t tipp) : QDialog(besitzer), k_(k) {
    setObjectName(QStringLiteral("frmHinweise"));
    setWindowTitle(QStringLiteral("Hinweis"));
    auto* kopf = new QLabel(QStringLiteral("Wußten Sie schon...?"), this);
    QFont f = kopf->font();
    f.setBold(true);
    f.setPointSizeF(f.pointSizeF() * 1.3);
    kopf->setFont(f);
    txtTipp_ = new QPlainTextEdit(this);
    txtTipp_->setObjectName(QStringLiteral("txtTipp"));
    txtTipp_->setReadOnly(true);
    txtTipp_->setMinimumSize(440, 120);
    chkWiederZeigen_ = new QCheckBox(QStringLiteral("Hinweise beim &Start anzeigen"), this);
    chkWiederZeigen_->setObjectName(QStringLiteral("chkWiederZeigen"));
    chkWiederZeigen_->setChecked(true);

    auto* cmdZurück = Knopf(this, "cmdZurück", "< &Zurück");
    connect(cmdZurück, &QPushButton::clicked, this, [this] { Zeigen(TippZurück(k_, tag_)); });
    auto* cmdVor = Knopf(this, "cmdVor", "&Weiter >");
    connect(cmdVor, &QPushButton::clicked, this, [this] { Zeigen(TippVor(k_, tag_)); });
    auto* cmdOk = new QPushButton(QStringLiteral("OK"), this);
    cmdOk->setObjectName(QStringLiteral("cmdOk"));
    cmdOk->setDefault(true);
    connect(cmdOk, &QPushButton::clicked, this, &frmHinweise::cmdOk_Click);

    auto* knöpfe = new QHBoxLayout;
    knöpfe->addWidget(chkWiederZeigen_);
    knöpfe->addStretch();
    knöpfe->addWidget(cmdZurück);
    knöpfe->addWidget(cmdVor);
    knöpfe->addWidget(cmdOk);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(kopf);
    layout->addWidget(txtTipp_);
    layout->addLayout(knöpfe);
    Zeigen(tipp);
}

void frmHinweise::Zeigen(int32_t nummer) {
    tag_ = nummer;
    txtTipp_->setPlainText(Q(TippsTexte(nummer)).replace(QStringLiteral("\r\n"), QStringLiteral("\n\n")));
}

void frmHinweise::cmdOk_Click() {
    TippsSchließen(k_, tag_, chkWiederZeigen_->isChecked());
    accept();
}
