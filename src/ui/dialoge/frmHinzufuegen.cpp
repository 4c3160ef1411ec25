#include "ui/dialoge/frmHinzufuegen.h"

#include <QCommandLinkButton>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

frmHinzufügen::frmHinzufügen(QWidget* besitzer) : QDialog(besitzer) {
    setObjectName(QStringLiteral("frmHinzufügen"));
    setWindowTitle(QStringLiteral("Zum Index hinzufügen"));
    auto* text = new QLabel(QStringLiteral("Wie möchten Sie Dateien zum Index hinzufügen?"), this);
    const struct {
        const char* name;
        const char* text;
        const char* beschreibung;
        std::function<void()> frmHinzufügen::*aktion;
    } knöpfe[] = {
        {"cmdDateienHinzufügen", "&Dateien hinzufügen...", "Eine oder mehrere Dateien auswählen",
         &frmHinzufügen::dateienHinzufügen},
        {"cmdOrdnerHinzufügen", "&Ordner hinzufügen...", "Alle unterstützten Dateien eines Ordners",
         &frmHinzufügen::ordnerHinzufügen},
        {"cmdImportieren", "&Playliste importieren...", "Die Dateien einer M3U- oder PLS-Playliste",
         &frmHinzufügen::importieren},
    };
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(text);
    for (const auto& k : knöpfe) {
        auto* knopf = new QCommandLinkButton(QString::fromUtf8(k.text), QString::fromUtf8(k.beschreibung), this);
        knopf->setObjectName(QString::fromUtf8(k.name));
        auto aktion = k.aktion;
        connect(knopf, &QPushButton::clicked, this, [this, aktion] {
            if (this->*aktion) (this->*aktion)();
        });
        layout->addWidget(knopf);
    }
    auto* cmdOk = new QPushButton(QStringLiteral("Schließen"), this);
    cmdOk->setObjectName(QStringLiteral("cmdOk"));
    connect(cmdOk, &QPushButton::clicked, this, &QDialog::accept);
    auto* unten = new QHBoxLayout;
    unten->addStretch();
    unten->addWidget(cmdOk);
    layout->addLayout(unten);
}
