#include "ui/dialoge/frmWillkommen.h"

#include "ui/dialoge/Knopf.h"

#include "app/Kartei.h"
#include "ui/Umrechnung.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

frmWillkommen::frmWillkommen(QWidget* besitzer, const std::string& text) : QDialog(besitzer) {
    setObjectName(QStringLiteral("frmWillkommen"));
    setWindowTitle(QStringLiteral("Willkommen"));
    auto* kopf = new QLabel(QString::fromUtf8(ProgrammTitel), this);
    QFont f = kopf->font();
    f.setPointSizeF(f.pointSizeF() * 1.5);
    f.setBold(true);
    kopf->setFont(f);
    auto* lblText = new QLabel(Q(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n")), this);
    lblText->setObjectName(QStringLiteral("lblText"));
    lblText->setWordWrap(true);
    lblText->setTextFormat(Qt::PlainText);
    lblText->setMinimumWidth(440);
    auto* cmdHilfe = Knopf(this, "cmdHilfe", "&Infodatei");
    connect(cmdHilfe, &QPushButton::clicked, this, [this] {
        if (hilfe) hilfe();
    });
    auto* cmdOk = new QPushButton(QStringLiteral("Ok, dann kann's losgehen"), this);
    cmdOk->setObjectName(QStringLiteral("cmdOk"));
    cmdOk->setDefault(true);
    connect(cmdOk, &QPushButton::clicked, this, &QDialog::accept);
    auto* knöpfe = new QHBoxLayout;
    knöpfe->addWidget(cmdHilfe);
    knöpfe->addStretch();
    knöpfe->addWidget(cmdOk);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(kopf);
    layout->addWidget(lblText);
    layout->addSpacing(8);
    layout->addLayout(knöpfe);
}
