#include "ui/dialoge/frmMp3TagFeldFuellen.h"

#include "app/Kartei.h"
#include "tags/TagFunktionen.h"
#include "ui/dialoge/Knopf.h"

#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

frmMp3TagFeldFüllen::frmMp3TagFeldFüllen(QWidget* besitzer, Kartei& k) : QDialog(besitzer), k_(k) {
    setObjectName(QStringLiteral("frmMp3TagFeldFüllen"));
    setWindowTitle(QStringLiteral("Felder kopieren"));
    auto* hinweis = new QLabel(QStringLiteral("Welche Felder sollen kopiert werden? Bei allen Dateien kommen die "
                                              "Werte aus der gezeigten Datei, bei dieser Datei aus ihrem anderen "
                                              "TAG."),
                               this);
    hinweis->setWordWrap(true);
    lstFelder_ = Benannt(new QListWidget(this), "lstFelder");
    for (const char* feld : TagKopierFelder()) {
        auto* eintrag = new QListWidgetItem(QString::fromUtf8(feld), lstFelder_);
        eintrag->setFlags(eintrag->flags() | Qt::ItemIsUserCheckable);
        eintrag->setCheckState(Qt::Unchecked);
    }
    QPushButton* cmdOk = nullptr;
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(hinweis);
    layout->addWidget(lstFelder_, 1);
    layout->addLayout(OkAbbrechenLeiste(this, cmdOk));
    resize(340, 320);
    // Ohne Wahl bleibt der Dialog offen.
    connect(cmdOk, &QPushButton::clicked, this, [this] {
        if (TagKopierFelderGewählt(k_, Felder())) accept();
    });
}

std::vector<int32_t> frmMp3TagFeldFüllen::Felder() const {
    std::vector<int32_t> felder;
    for (int i = 0; i < lstFelder_->count(); ++i)
        if (lstFelder_->item(i)->checkState() == Qt::Checked) felder.push_back(i);
    return felder;
}
