#include "ui/dialoge/frmStatistik.h"

#include "reports/Statistik.h"
#include "ui/Umrechnung.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

frmStatistik::frmStatistik(QWidget* besitzer, const Kartei& k) : QDialog(besitzer) {
    setObjectName(QStringLiteral("frmStatistik"));
    setWindowTitle(QStringLiteral("Index-Statistik"));
    static const char* const namen[] = {"lblInfosAnzahl", "lblInfosGrößen", "lblInfosSpieldauer", "lblInfosVerwaltung"};
    auto* raster = new QGridLayout(this);
    const auto zeilen = IndexStatistik(k);
    for (int i = 0; i < 4; ++i) {
        auto* kopf = new QLabel(Q(zeilen[size_t(i)].überschrift), this);
        QFont f = kopf->font();
        f.setBold(true);
        kopf->setFont(f);
        auto* wert = new QLabel(Q(zeilen[size_t(i)].text), this);
        wert->setObjectName(QString::fromUtf8(namen[i]));
        wert->setWordWrap(true);
        wert->setMinimumWidth(380);
        wert->setTextInteractionFlags(Qt::TextSelectableByMouse);
        raster->addWidget(kopf, i, 0, Qt::AlignTop);
        raster->addWidget(wert, i, 1);
    }
    auto* cmdOk = new QPushButton(QStringLiteral("OK"), this);
    cmdOk->setObjectName(QStringLiteral("cmdOk"));
    cmdOk->setDefault(true);
    connect(cmdOk, &QPushButton::clicked, this, &QDialog::accept);
    raster->addWidget(cmdOk, 4, 1, Qt::AlignRight);
}
