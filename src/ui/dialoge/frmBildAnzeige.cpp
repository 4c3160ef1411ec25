#include "ui/dialoge/frmBildAnzeige.h"

#include "ui/Umrechnung.h"
#include "ui/dialoge/Knopf.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QVBoxLayout>

frmBildAnzeige::frmBildAnzeige(QWidget* besitzer) : QDialog(besitzer) {
    setObjectName(QStringLiteral("frmBildAnzeige"));
    setWindowTitle(QStringLiteral("Bild-Anzeige"));
    setModal(false);
    resize(480, 400);
    imgViewer_ = Benannt(new QLabel(this), "imgViewer");
    imgViewer_->setScaledContents(true);  // gestreckt, wie das Fenster
    imgViewer_->setMinimumSize(1, 1);
    imgViewer_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    QPushButton* cmdOk = Knopf(this, "cmdOk", "OK");
    connect(cmdOk, &QPushButton::clicked, this, [this] {
        imgViewer_->clear();
        hide();
    });
    auto* unten = new QHBoxLayout;
    unten->addStretch(1);
    unten->addWidget(cmdOk);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(imgViewer_, 1);
    layout->addLayout(unten);
}

bool frmBildAnzeige::BildLaden(const std::string& pfad) {
    QPixmap bild;
    if (!bild.load(QString::fromStdString(pfad))) return false;
    imgViewer_->setPixmap(bild);
    setWindowTitle(Q(pfad) + QStringLiteral(" - Bild-Anzeige"));
    return true;
}
