// frmMp3Tag: Steuerelemente und Ansicht abgleichen, Knöpfe an die Routinen des Kerns.
#include "ui/dialoge/frmMp3Tag.h"

#include "app/Kartei.h"
#include "tags/TagFunktionen.h"
#include "ui/GuiOberflaeche.h"
#include "ui/Umrechnung.h"
#include "ui/dialoge/frmMp3TagAutoTagWaehlen.h"
#include "ui/dialoge/frmMp3TagFeldFuellen.h"

#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>

frmMp3Tag::frmMp3Tag(QWidget* besitzer, Kartei& k, GuiOberfläche& ui) : QDialog(besitzer), k_(k), ui_(ui) {
    Aufbauen();
    Verbinden();
    ui_.vordergrund = this;
}

frmMp3Tag::~frmMp3Tag() = default;

bool frmMp3Tag::Öffnen(const std::vector<int32_t>& einträge) {
    const bool geladen = TagEditorÖffnen(k_, e_, einträge);
    AnsichtZeigen();
    return geladen;
}

void frmMp3Tag::Verbinden() {
    const auto knopf = [this](QPushButton* k, auto routine) {
        connect(k, &QPushButton::clicked, this, [this, routine] { Ausführen(routine); });
    };
    connect(txtDateiname_, &QComboBox::currentIndexChanged, this, [this](int zeile) {
        if (!zeigen_) Ausführen([zeile](Kartei& k, TagEditor& e) { txtDateiname_Click(k, e, zeile); });
    });
    knopf(cmdVorheriger_, [](Kartei& k, TagEditor& e) { TagEditorBlättern(k, e, -1); });
    knopf(cmdNächster_, [](Kartei& k, TagEditor& e) { TagEditorBlättern(k, e, +1); });
    knopf(cmdTAGSpeichern_, [](Kartei& k, TagEditor& e) { Mp3TAGAnzeigeInfosSpeichern(k, e, 1); });
    knopf(cmdTagSpeichernV2_, [](Kartei& k, TagEditor& e) { Mp3TAGAnzeigeInfosSpeichern(k, e, 2); });
    knopf(cmdTAGSpeichernFelder_, [](Kartei& k, TagEditor& e) { Mp3TAGAnzeigeInfosSpeichern(k, e, 3); });
    knopf(cmdTAGSpeichernAlles_, [](Kartei& k, TagEditor& e) { Mp3TAGAnzeigeInfosSpeichern(k, e, 0); });
    knopf(cmdTAGEntfernen_, [](Kartei& k, TagEditor& e) { TagEditorTagEntfernen(k, e, false); });
    knopf(cmdTAGEntfernenv2_, [](Kartei& k, TagEditor& e) { TagEditorTagEntfernen(k, e, true); });
    knopf(cmdDatenKopierenNachV1_, [](Kartei&, TagEditor& e) { cmdDatenKopierenNachV1(e.a); });
    knopf(cmdDatenKopierenNachV2_, [](Kartei&, TagEditor& e) { cmdDatenKopierenNachV2(e.a); });
    knopf(cmdOk_, [](Kartei& k, TagEditor& e) { TagEditorOk(k, e); });
    connect(cboFunktion_, &QComboBox::currentIndexChanged, this, &frmMp3Tag::cboFunktion_Click);
    connect(cmdFunktionAusführen_, &QPushButton::clicked, this, &frmMp3Tag::cmdFunktionAusführen_Click);
}

template <typename F> void frmMp3Tag::Ausführen(F&& routine) {
    AnsichtLesen();
    routine(k_, e_);
    AnsichtZeigen();
}

// Schließen über das Fenster oder Esc gilt wie OK: die angehakten Speicherungen laufen.
void frmMp3Tag::reject() {
    if (e_.a.sichtbar) Ausführen([](Kartei& k, TagEditor& e) { TagEditorOk(k, e); });
    else QDialog::reject();
}

bool frmMp3Tag::eventFilter(QObject* objekt, QEvent* ereignis) {
    // txtTitelnummer nimmt nur Ziffern an.
    if (ereignis->type() == QEvent::KeyPress && objekt->objectName() == QStringLiteral("txtTitelnummer")) {
        const QString text = static_cast<QKeyEvent*>(ereignis)->text();
        for (const QChar z : text)
            if (!TitelnummerZeichenErlaubt(z.unicode())) return true;
    }
    return QDialog::eventFilter(objekt, ereignis);
}

void frmMp3Tag::AnsichtZeigen() {
    const TagEditorAnsicht& a = e_.a;
    zeigen_ = true;
    for (auto& [f, feld] : textfelder_)
        if (feld->text() != Q(a.*f->steuer)) feld->setText(Q(a.*f->steuer));
    cboMusikrichtung_->setCurrentIndex(std::max(0, cboMusikrichtung_->findData(a.cboMusikrichtung)));
    cbov2Musikrichtung_->setCurrentText(Q(a.cbov2Musikrichtung));
    txtIndexHinzugefügtAm_->setText(Q(a.txtIndexHinzugefügtAm));
    txtIndexDatenträger_->setText(Q(a.txtIndexDatenträger));
    txtIndexAbspielAnzahl_->setText(Q(a.txtIndexAbspielAnzahl));
    txtIndexAbspielDatum_->setText(Q(a.txtIndexAbspielDatum));
    lblTrackInfos_->setText(Q(a.lblTrackInfos));
    lblID3v1Info_->setText(Q(a.lblID3v1Info));
    lblID3v2Info_->setText(Q(a.lblID3v2Info));
    cmdTAGEntfernen_->setEnabled(a.cmdTAGEntfernen);
    cmdTAGEntfernenv2_->setEnabled(a.cmdTAGEntfernenv2);
    cmdTAGSpeichern_->setEnabled(a.cmdTAGSpeichern);
    cmdTagSpeichernV2_->setEnabled(a.cmdTagSpeichernV2);
    cmdTAGSpeichernFelder_->setEnabled(a.cmdTAGSpeichernFelder);
    if (txtDateiname_->count() != static_cast<int>(a.txtDateiname.size())) {
        txtDateiname_->clear();
        for (const auto& name : a.txtDateiname) txtDateiname_->addItem(Q(name));
    }
    txtDateiname_->setCurrentIndex(a.txtDateinameListIndex);
    txtDateiname_->setToolTip(Q(a.txtDateinameToolTip));
    cmdVorheriger_->setEnabled(a.cmdVorheriger);
    cmdNächster_->setEnabled(a.cmdNächster);
    chkAutomatischSpeichern_->setChecked(a.chkAutomatischSpeichern);
    chkAutomatischSpeichernV2_->setChecked(a.chkAutomatischSpeichernV2);
    chkAutomatischSpeichernFelder_->setChecked(a.chkAutomatischSpeichernFelder);
    zeigen_ = false;
    if (!a.sichtbar && isVisible()) QDialog::accept();
}

void frmMp3Tag::AnsichtLesen() {
    TagEditorAnsicht& a = e_.a;
    for (auto& [f, feld] : textfelder_) a.*f->steuer = S(feld->text());
    a.cboMusikrichtung = cboMusikrichtung_->currentData().toInt();
    a.cbov2Musikrichtung = S(cbov2Musikrichtung_->currentText());
    a.txtIndexHinzugefügtAm = S(txtIndexHinzugefügtAm_->text());
    a.txtIndexDatenträger = S(txtIndexDatenträger_->text());
    a.txtIndexAbspielAnzahl = S(txtIndexAbspielAnzahl_->text());
    a.txtIndexAbspielDatum = S(txtIndexAbspielDatum_->text());
    a.chkAutomatischSpeichern = chkAutomatischSpeichern_->isChecked();
    a.chkAutomatischSpeichernV2 = chkAutomatischSpeichernV2_->isChecked();
    a.chkAutomatischSpeichernFelder = chkAutomatischSpeichernFelder_->isChecked();
}

void frmMp3Tag::cboFunktion_Click(int index) { cboFunktionTAG_->setVisible(index != TagFunktionAutoTagEinstellen); }

void frmMp3Tag::cmdFunktionAusführen_Click() {
    const int32_t funktion = cboFunktion_->currentIndex();
    const int32_t ziel = cboFunktionTAG_->currentIndex();
    if (funktion == TagFunktionAutoTagEinstellen) {
        frmMp3TagAutoTagWählen dialog(this, k_);
        ui_.DialogAusführen(dialog);
        return;
    }
    if (!TagFunktionBestätigen(k_, funktion, ziel)) return;
    std::vector<int32_t> felder;
    if (funktion == TagFunktionFelderKopieren) {
        frmMp3TagFeldFüllen dialog(this, k_);
        if (ui_.DialogAusführen(dialog) != QDialog::Accepted) return;
        felder = dialog.Felder();
    }
    Ausführen([&](Kartei& k, TagEditor& e) { TagEditorFunktionAusführen(k, e, funktion, ziel, felder); });
}

void TagEditorZeigen(QWidget* besitzer, Kartei& k, GuiOberfläche& ui, const std::vector<int32_t>& einträge) {
    frmMp3Tag dialog(besitzer, k, ui);
    if (dialog.Öffnen(einträge)) ui.DialogAusführen(dialog);
}
