#include "ui/dialoge/frmLoeschen.h"

#include "app/Kartei.h"
#include "fileops/Loeschen.h"
#include "ui/dialoge/Knopf.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QVBoxLayout>

frmLöschen::frmLöschen(QWidget* besitzer, Kartei& k, std::vector<int32_t> einträge)
    : QDialog(besitzer), k_(k), einträge_(std::move(einträge)) {
    setObjectName(QStringLiteral("frmLöschen"));
    setWindowTitle(QStringLiteral("Dateien löschen"));
    auto* symbol = new QLabel(this);
    symbol->setPixmap(style()->standardIcon(QStyle::SP_TrashIcon).pixmap(48, 48));
    auto* lblFrage = Benannt(new QLabel(QString::number(einträge_.size()) +
                                            QStringLiteral(" Datei(en) löschen oder in den Papierkorb legen?"),
                                        this),
                             "lblFrage");
    auto* lblHinweis = Benannt(
        new QLabel(QStringLiteral("Hinweis: Die Funktion 'Löschen' entfernt Dateien dauerhaft vom Datenträger."), this),
        "lblHinweis");
    lblHinweis->setWordWrap(true);
    auto* cmdLöschen = Knopf(this, "cmdLöschen", "&Löschen (!)");
    auto* cmdPapierkorb = Knopf(this, "cmdPapierkorb", "&Papierkorb");
    cmdPapierkorb->setDefault(true);
    auto* cmdAbbrechen = Knopf(this, "cmdAbbrechen", "Abbrechen");

    auto* texte = new QVBoxLayout;
    texte->addWidget(lblFrage);
    texte->addWidget(lblHinweis);
    auto* oben = new QHBoxLayout;
    oben->addWidget(symbol, 0, Qt::AlignTop);
    oben->addLayout(texte, 1);
    auto* knöpfe = new QHBoxLayout;
    knöpfe->addStretch();
    knöpfe->addWidget(cmdLöschen);
    knöpfe->addWidget(cmdPapierkorb);
    knöpfe->addWidget(cmdAbbrechen);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(oben);
    layout->addLayout(knöpfe);
    setMinimumWidth(460);

    connect(cmdLöschen, &QPushButton::clicked, this, [this] {
        if (EndgültigLöschenBestätigen(k_, static_cast<int32_t>(einträge_.size()))) Löschen(LöschModus::Endgültig);
    });
    connect(cmdPapierkorb, &QPushButton::clicked, this, [this] { Löschen(LöschModus::Papierkorb); });
    connect(cmdAbbrechen, &QPushButton::clicked, this, &QDialog::reject);
}

void frmLöschen::Löschen(int16_t modus) {
    hide();
    EinsBasiert<int32_t> liste;
    for (int32_t n : einträge_) liste.Anhängen(n);
    DateienLöschen(k_, liste, modus, true);
    accept();
}
