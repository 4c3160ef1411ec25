#include "ui/dialoge/frmMp3TagAutoTagWaehlen.h"

#include "app/Kartei.h"
#include "ui/Umrechnung.h"
#include "ui/dialoge/Knopf.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace {
QListWidget* Liste(QWidget* eltern, const char* name) {
    auto* l = Benannt(new QListWidget(eltern), name);
    l->setSelectionMode(QAbstractItemView::SingleSelection);
    return l;
}
}  // namespace

frmMp3TagAutoTagWählen::frmMp3TagAutoTagWählen(QWidget* besitzer, Kartei& k)
    : QDialog(besitzer), k_(k), w_(AutoTagWahlLaden(k)) {
    setObjectName(QStringLiteral("frmMp3TagAutoTagWählen"));
    setWindowTitle(QStringLiteral("AutoTAG einstellen"));

    auto* fraFormate =
        Benannt(new QGroupBox(QStringLiteral("Format, nach dem der TAG erkannt wird"), this), "fraFormate");
    lstFormate_ = Liste(fraFormate, "lstFormate");
    txtFormat_ = Benannt(new QLineEdit(fraFormate), "txtFormat");
    auto* cmdHinzufügen = Knopf(fraFormate, "cmdHinzufügen", "&Hinzufügen");
    auto* cmdÄndern = Knopf(fraFormate, "cmdÄndern", "Ä&ndern");
    auto* cmdEntfernen = Knopf(fraFormate, "cmdEntfernen", "&Entfernen");
    auto* platzhalter = new QLabel(
        QStringLiteral("Platzhalter: %Interpret%, %Titel%, %Album%, %Jahr%, %Titelnummer%, %Genre%, %Kommentar% "
                       "und %Müll% (wird übergangen). Ein Format beginnt mit \"/\", weil es mit dem ganzen Pfad "
                       "verglichen wird. %Automatik% errät die Felder selbst und steht allein."),
        fraFormate);
    platzhalter->setWordWrap(true);
    auto* formate = new QGridLayout(fraFormate);
    formate->addWidget(lstFormate_, 0, 0, 1, 4);
    formate->addWidget(txtFormat_, 1, 0);
    formate->addWidget(cmdHinzufügen, 1, 1);
    formate->addWidget(cmdÄndern, 1, 2);
    formate->addWidget(cmdEntfernen, 1, 3);
    formate->addWidget(platzhalter, 2, 0, 1, 4);
    formate->setColumnStretch(0, 1);

    auto* fraAusschluß =
        Benannt(new QGroupBox(QStringLiteral("Wörter, die nie ein Feld werden"), this), "fraAusschluß");
    lstAusschluß_ = Liste(fraAusschluß, "lstAusschluß");
    txtAusschluß_ = Benannt(new QLineEdit(fraAusschluß), "txtAusschluß");
    auto* cmdAusschlußHinzufügen = Knopf(fraAusschluß, "cmdAusschlußHinzufügen", "Hin&zufügen");
    auto* cmdAusschlußEntfernen = Knopf(fraAusschluß, "cmdAusschlußEntfernen", "En&tfernen");
    auto* ausschluß = new QGridLayout(fraAusschluß);
    ausschluß->addWidget(lstAusschluß_, 0, 0, 1, 3);
    ausschluß->addWidget(txtAusschluß_, 1, 0);
    ausschluß->addWidget(cmdAusschlußHinzufügen, 1, 1);
    ausschluß->addWidget(cmdAusschlußEntfernen, 1, 2);
    ausschluß->setColumnStretch(0, 1);

    chkUnterstrichEntfernen_ = Benannt(new QCheckBox(QStringLiteral("Unterstriche wie Leerzeichen behandeln"), this),
                                       "chkUnterstrichEntfernen");
    chkFelderLöschen_ =
        Benannt(new QCheckBox(QStringLiteral("'Alte' Daten werden gelöscht"), this), "chkFelderLöschen");
    chkUnterstrichEntfernen_->setChecked(w_.unterstrichEntfernen);
    chkFelderLöschen_->setChecked(w_.felderLöschen);
    QPushButton* cmdOk = nullptr;

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(fraFormate, 3);
    layout->addWidget(fraAusschluß, 2);
    layout->addWidget(chkUnterstrichEntfernen_);
    layout->addWidget(chkFelderLöschen_);
    layout->addLayout(OkAbbrechenLeiste(this, cmdOk));
    resize(560, 560);

    connect(lstFormate_, &QListWidget::currentRowChanged, this, [this](int zeile) {
        w_.gewählt = zeile;
        if (zeile >= 0) txtFormat_->setText(lstFormate_->item(zeile)->text());
    });
    connect(cmdHinzufügen, &QPushButton::clicked, this, [this] {
        if (AutoTagFormatHinzufügen(k_, w_, S(txtFormat_->text()))) ListenZeigen();
    });
    connect(cmdÄndern, &QPushButton::clicked, this, [this] {
        if (AutoTagFormatÄndern(k_, w_, S(txtFormat_->text()))) ListenZeigen();
    });
    connect(cmdEntfernen, &QPushButton::clicked, this, [this] {
        if (AutoTagFormatEntfernen(w_)) ListenZeigen();
    });
    connect(cmdAusschlußHinzufügen, &QPushButton::clicked, this, [this] {
        if (AutoTagAusschlussHinzufügen(w_, S(txtAusschluß_->text()))) txtAusschluß_->clear();
        ListenZeigen();
    });
    connect(cmdAusschlußEntfernen, &QPushButton::clicked, this, [this] {
        if (AutoTagAusschlussEntfernen(w_, lstAusschluß_->currentRow())) ListenZeigen();
    });
    connect(cmdOk, &QPushButton::clicked, this, &frmMp3TagAutoTagWählen::cmdOk_Click);
    ListenZeigen();
}

void frmMp3TagAutoTagWählen::ListenZeigen() {
    {
        const QSignalBlocker sperre(lstFormate_);
        lstFormate_->clear();
        for (const auto& f : w_.formate) lstFormate_->addItem(Q(f));
        lstFormate_->setCurrentRow(w_.gewählt);
    }
    if (w_.gewählt >= 0) txtFormat_->setText(Q(w_.formate[static_cast<size_t>(w_.gewählt)]));
    lstAusschluß_->clear();
    for (const auto& wort : w_.ausschluss) lstAusschluß_->addItem(Q(wort));
}

void frmMp3TagAutoTagWählen::cmdOk_Click() {
    w_.unterstrichEntfernen = chkUnterstrichEntfernen_->isChecked();
    w_.felderLöschen = chkFelderLöschen_->isChecked();
    AutoTagWahlÜbernehmen(k_, w_);
    accept();
}
