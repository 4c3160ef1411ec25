#include "ui/dialoge/frmZielordnerVorschlaege.h"

#include "app/Oberflaeche.h"
#include "ui/Umrechnung.h"
#include "ui/dialoge/Knopf.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

frmZielordnerVorschläge::frmZielordnerVorschläge(QWidget* besitzer, Oberfläche& ui,
                                                 const std::vector<std::string>& ordner)
    : QDialog(besitzer), ui_(ui) {
    setObjectName(QStringLiteral("frmZielordnerVorschläge"));
    setWindowTitle(QStringLiteral("Zielordner-Vorschläge"));
    lstOrdner_ = Benannt(new QListWidget(this), "lstOrdner");
    for (const std::string& o : ordner) lstOrdner_->addItem(Q(o));
    // Der Text eines Eintrags kann umgewandelt sein; übernommen wird der Pfad selbst.
    for (int i = 0; i < lstOrdner_->count(); ++i)
        lstOrdner_->item(i)->setData(Qt::UserRole, QByteArray::fromStdString(ordner[size_t(i)]));
    if (lstOrdner_->count() > 0) lstOrdner_->setCurrentRow(0);
    lstOrdner_->setMinimumSize(480, 200);
    QPushButton* cmdOk = nullptr;
    auto* knöpfe = OkAbbrechenLeiste(this, cmdOk);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(QStringLiteral("Vorgeschlagene Zielordner:"), this));
    layout->addWidget(lstOrdner_, 1);
    layout->addLayout(knöpfe);
    connect(cmdOk, &QPushButton::clicked, this, &frmZielordnerVorschläge::cmdOk_Click);
    connect(lstOrdner_, &QListWidget::itemDoubleClicked, this, &frmZielordnerVorschläge::cmdOk_Click);
}

void frmZielordnerVorschläge::cmdOk_Click() {
    QListWidgetItem* zeile = lstOrdner_->currentItem();
    if (!zeile || !zeile->isSelected()) {
        ui_.MeldungZeigen("Bitte wählen Sie einen Listeneintrag.", Meldung::Information);
        return;
    }
    gewählt_ = zeile->data(Qt::UserRole).toByteArray().toStdString();
    accept();
}
