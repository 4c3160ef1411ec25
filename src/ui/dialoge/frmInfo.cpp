#include "ui/dialoge/frmInfo.h"

#include "app/Kartei.h"
#include "shell/Hilfe.h"
#include "ui/Umrechnung.h"
#include "ui/dialoge/Knopf.h"

#include <QApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>

frmInfo::frmInfo(QWidget* besitzer) : QDialog(besitzer) {
    setObjectName(QStringLiteral("frmInfo"));
    setWindowTitle(QStringLiteral("Info"));
    auto* bild = Benannt(new QLabel(this), "imgProgramm");
    bild->setPixmap(QApplication::windowIcon().pixmap(64, 64));
    bild->setAlignment(Qt::AlignTop);
    auto* lblProgrammname = Benannt(new QLabel(QString::fromUtf8(ProgrammTitel), this), "lblProgrammname");
    QFont f = lblProgrammname->font();
    f.setPointSizeF(f.pointSizeF() * 1.8);
    f.setBold(true);
    lblProgrammname->setFont(f);
    auto* lblProgrammversion = Benannt(new QLabel(Q(ProgrammVersionText()), this), "lblProgrammversion");
    auto* lblBeschreibung =
        new QLabel(QStringLiteral("Die Kartei für Ihre Musik- und Mediendateien: suchen, abspielen, Tags "
                                  "bearbeiten, umbenennen, exportieren – auch für Dateien auf Wechselmedien."),
                   this);
    lblBeschreibung->setWordWrap(true);
    lblBeschreibung->setMinimumWidth(320);
    auto* lblProgrammCopyright = Benannt(new QLabel(Q(ProgrammCopyright()), this), "lblProgrammCopyright");
    auto* lblQt = new QLabel(QStringLiteral("Gebaut mit Qt %1").arg(QString::fromLatin1(qVersion())), this);
    lblQt->setEnabled(false);

    auto* cmdOk = Knopf(this, "cmdOk", "OK");
    cmdOk->setDefault(true);
    connect(cmdOk, &QPushButton::clicked, this, &QDialog::accept);

    auto* layout = new QGridLayout(this);
    layout->addWidget(bild, 0, 0, 5, 1);
    layout->addWidget(lblProgrammname, 0, 1);
    layout->addWidget(lblProgrammversion, 1, 1);
    layout->addWidget(lblBeschreibung, 2, 1);
    layout->addWidget(lblProgrammCopyright, 3, 1);
    layout->addWidget(lblQt, 4, 1);
    layout->setColumnMinimumWidth(0, 80);
    auto* knöpfe = new QHBoxLayout;
    knöpfe->addStretch();
    knöpfe->addWidget(cmdOk);
    layout->addLayout(knöpfe, 5, 0, 1, 2);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}
