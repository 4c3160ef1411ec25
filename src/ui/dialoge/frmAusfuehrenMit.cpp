#include "ui/dialoge/frmAusfuehrenMit.h"

#include "ui/GuiOberflaeche.h"
#include "ui/Umrechnung.h"
#include "ui/dialoge/Knopf.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

frmAusführenMit::frmAusführenMit(QWidget* besitzer, GuiOberfläche& ui, const std::string& programm,
                                 std::function<bool(const std::string&)> prüfen)
    : QDialog(besitzer), ui_(ui), prüfen_(std::move(prüfen)) {
    setObjectName(QStringLiteral("frmAusführenMit"));
    setWindowTitle(QStringLiteral("Ausführen mit"));
    auto* hinweis =
        new QLabel(QStringLiteral("Mit welchem Programm sollen die gewählten Dateien geöffnet werden?"), this);
    hinweis->setWordWrap(true);
    txtSuche_ = Benannt(new QLineEdit(Q(programm), this), "txtSuche");
    txtSuche_->setMinimumWidth(360);
    QPushButton* cmdProgrammSuchen = Knopf(this, "cmdProgrammSuchen", "&Durchsuchen...");
    QPushButton* cmdOk = Knopf(this, "cmdOk", "OK");
    cmdOk->setDefault(true);
    QPushButton* cmdAbbrechen = Knopf(this, "cmdAbbrechen", "Abbrechen");
    connect(cmdProgrammSuchen, &QPushButton::clicked, this, [this] {
        std::string datei;
        if (ui_.DateiWählen("Programm wählen", "Programme|*|Alle Dateien (*.*)|*", "/usr/bin", datei))
            txtSuche_->setText(Q(datei));
    });
    connect(cmdOk, &QPushButton::clicked, this, [this] {
        if (prüfen_(Programm())) accept();
    });
    connect(cmdAbbrechen, &QPushButton::clicked, this, &QDialog::reject);

    auto* zeile = new QHBoxLayout;
    zeile->addWidget(txtSuche_, 1);
    zeile->addWidget(cmdProgrammSuchen);
    auto* knöpfe = new QHBoxLayout;
    knöpfe->addStretch(1);
    knöpfe->addWidget(cmdOk);
    knöpfe->addWidget(cmdAbbrechen);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(hinweis);
    layout->addLayout(zeile);
    layout->addSpacing(8);
    layout->addLayout(knöpfe);
}

std::string frmAusführenMit::Programm() const { return S(txtSuche_->text()); }
