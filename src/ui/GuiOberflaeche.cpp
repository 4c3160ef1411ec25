#include "ui/GuiOberflaeche.h"

#include "app/Kartei.h"
#include "ui/Umrechnung.h"
#include "ui/dialoge/frmAusfuehrenMit.h"
#include "ui/dialoge/frmBildAnzeige.h"
#include "ui/dialoge/frmDateiNichtVerfuegbar.h"
#include "ui/dialoge/frmDateiname.h"
#include "ui/dialoge/frmVerschiebenDateiExistiert.h"
#include "ui/dialoge/frmFortschritt.h"

#include <QAbstractButton>
#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QMessageBox>

namespace {
// Tests: die erste Datei, die das Skript wählt; false wie Abbrechen.
bool ErsteDateiAusSkript(const std::function<bool(std::vector<std::string>&)>& skript, std::string& datei) {
    std::vector<std::string> d;
    if (!skript(d) || d.empty()) return false;
    datei = d.front();
    return true;
}

void KnopfBeschriften(QMessageBox& box, QMessageBox::StandardButton knopf, const char* text) {
    if (auto* b = box.button(knopf)) b->setText(QString::fromUtf8(text));
}
}  // namespace

// Qt liest die Muster aus der letzten Klammer und zeigt den Namen, wie er ist. Trägt der Name
// seine Muster schon in Klammern ("Indexdateien (*.kkt)"), ersetzen die echten Muster diese
// Klammer, statt ein zweites Mal dahinterzustehen.
QString QtDateiFilter(const std::string& filter) {
    const QStringList teile = Q(filter).split(QLatin1Char('|'));
    QStringList qtFilter;
    for (qsizetype i = 0; i + 1 < teile.size(); i += 2) {
        QString name = teile[i].trimmed();
        if (name.endsWith(QLatin1Char(')'))) {
            const qsizetype auf = name.lastIndexOf(QLatin1Char('('));
            if (auf >= 0) name = name.left(auf).trimmed();
        }
        QString muster = teile[i + 1];
        muster.replace(QLatin1Char(';'), QLatin1Char(' '));
        qtFilter << name + QStringLiteral(" (") + muster + QLatin1Char(')');
    }
    return qtFilter.join(QStringLiteral(";;"));
}

GuiOberfläche::GuiOberfläche(std::function<QWidget*()> besitzer) : besitzer_(std::move(besitzer)) {
    ereignisUhr_.start();
}

GuiOberfläche::~GuiOberfläche() { delete fortschritt_.data(); }

int GuiOberfläche::MeldungZeigen(const std::string& text, int schalter) {
    using namespace Meldung;
    if (meldungsSkript) return meldungsSkript(text, schalter);
    QMessageBox box(SichtbarerBesitzer());
    box.setWindowTitle(QString::fromUtf8(ProgrammTitel));
    box.setText(Q(text));
    QMessageBox::Icon symbol = QMessageBox::Warning;
    QMessageBox::StandardButtons knöpfe = QMessageBox::Ok;
    QMessageBox::StandardButton vorgabe = QMessageBox::Ok;
    switch (schalter) {
    case Information: symbol = QMessageBox::Information; break;
    case JaNeinAusruf:
        knöpfe = QMessageBox::Yes | QMessageBox::No;
        vorgabe = QMessageBox::Yes;
        break;
    case JaNeinFrage:
        symbol = QMessageBox::Question;
        knöpfe = QMessageBox::Yes | QMessageBox::No;
        vorgabe = QMessageBox::Yes;
        break;
    case JaNeinAbbrechen:
        symbol = QMessageBox::Question;
        knöpfe = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        vorgabe = QMessageBox::Yes;
        break;
    case JaNeinFrageNein:
        symbol = QMessageBox::Question;
        knöpfe = QMessageBox::Yes | QMessageBox::No;
        vorgabe = QMessageBox::No;
        break;
    case JaNeinStopp:
        symbol = QMessageBox::Critical;
        knöpfe = QMessageBox::Yes | QMessageBox::No;
        vorgabe = QMessageBox::No;
        break;
    default: break;
    }
    box.setIcon(symbol);
    box.setStandardButtons(knöpfe);
    box.setDefaultButton(vorgabe);
    KnopfBeschriften(box, QMessageBox::Yes, "&Ja");
    KnopfBeschriften(box, QMessageBox::No, "&Nein");
    KnopfBeschriften(box, QMessageBox::Cancel, "Abbrechen");
    switch (box.exec()) {
    case QMessageBox::Yes: return Ja;
    case QMessageBox::No: return Nein;
    case QMessageBox::Cancel: return Abbrechen;
    default: return Ok;
    }
}

void GuiOberfläche::TitelNachrichtZeigen(const std::string& text, int32_t verzögerungMs) {
    if (titelNachricht) titelNachricht(text, verzögerungMs);
}

void GuiOberfläche::EreignisseVerarbeiten() {
    // Schleifen über 100.000 Einträge melden sich bei jedem Eintrag; die Ereignisschleife
    // genügt alle 30 ms, damit Abbrechen und Neuzeichnen ankommen.
    if (ereignisUhr_.elapsed() < 30) return;
    QApplication::processEvents();
    ereignisUhr_.restart();
}

void GuiOberfläche::FortschrittDarstellen(const FortschrittAnsicht& ansicht) {
    // Beim Start ist das Hauptfenster noch nicht zu sehen: das Fenster steht dann allein in der
    // Mitte des Bildschirms und bekommt das Hauptfenster als Besitzer, sobald es wieder aufgeht.
    if (fortschritt_ && !fortschritt_->isVisible() && fortschritt_->parentWidget() != SichtbarerBesitzer())
        delete fortschritt_.data();
    if (!fortschritt_) {
        if (!ansicht.offen) return;
        fortschritt_ = new frmFortschritt(SichtbarerBesitzer());
        fortschritt_->abbrechen = [this] {
            if (fortschrittAbbrechen) fortschrittAbbrechen();
        };
    }
    const bool warOffen = fortschritt_->isVisible();
    if (ansicht.offen && !warOffen && besitzerSperren) besitzerSperren(true);
    fortschritt_->Darstellen(ansicht);
    if (!ansicht.offen && warOffen && besitzerSperren) besitzerSperren(false);
    // Das Öffnen und Schließen soll man sehen, auch wenn die Schleife gleich weiterrechnet.
    if (ansicht.offen != warOffen) {
        QApplication::processEvents();
        ereignisUhr_.restart();
    }
}

NichtVerfügbarAntwort GuiOberfläche::DateiNichtVerfügbar(const std::string&, const std::string& text,
                                                         const std::function<bool()>& dateiDa) {
    frmDateiNichtVerfügbar dialog(SichtbarerBesitzer(), text, dateiDa);
    DialogAusführen(dialog);
    return dialog.DateiNichtVerfügbarAuswahl;
}

int16_t GuiOberfläche::VerschiebenDateiExistiert(const std::string& text) {
    frmVerschiebenDateiExistiert dialog(SichtbarerBesitzer(), text);
    DialogAusführen(dialog);
    return dialog.DateiExistiertAuswahl;
}

bool GuiOberfläche::NamenEingeben(const std::string& titel, const std::string& knopf, std::string& text,
                                  int32_t auswahlStart, int32_t auswahlLänge) {
    frmDateiname dialog(SichtbarerBesitzer(), titel, knopf, text, auswahlStart, auswahlLänge);
    if (DialogAusführen(dialog) != QDialog::Accepted) return false;
    text = dialog.Text();
    return true;
}

bool GuiOberfläche::OrdnerWählen(const std::string& titel, std::string& ordner) {
    if (ordnerSkript) return ordnerSkript(ordner);
    QString neu = QFileDialog::getExistingDirectory(SichtbarerBesitzer(), Q(titel), Q(ordner));
    if (neu.isEmpty()) return false;
    ordner = S(neu);
    return true;
}

bool GuiOberfläche::FarbeWählen(int32_t& farbe) {
    if (farbSkript) return farbSkript(farbe);
    const QColor neu = QColorDialog::getColor(FarbeAusWert(farbe), SichtbarerBesitzer());
    if (!neu.isValid()) return false;
    farbe = WertAusFarbe(neu);
    return true;
}

bool GuiOberfläche::DateienWählen(const std::string& titel, const std::string& filter,
                                  std::vector<std::string>& dateien) {
    dateien.clear();
    if (dateienSkript) return dateienSkript(dateien) && !dateien.empty();
    const QStringList gewählt =
        QFileDialog::getOpenFileNames(SichtbarerBesitzer(), Q(titel), QString(), QtDateiFilter(filter));
    for (const auto& d : gewählt) dateien.push_back(S(d));
    return !dateien.empty();
}

bool GuiOberfläche::DateiWählen(const std::string& titel, const std::string& filter, const std::string& start,
                                std::string& datei) {
    if (dateienSkript) return ErsteDateiAusSkript(dateienSkript, datei);
    const QString neu = QFileDialog::getOpenFileName(SichtbarerBesitzer(), Q(titel), Q(start), QtDateiFilter(filter));
    if (neu.isEmpty()) return false;
    datei = S(neu);
    return true;
}

bool GuiOberfläche::DateiZumSpeichernWählen(const std::string& titel, const std::string& filter,
                                            const std::string& start, std::string& datei) {
    if (dateienSkript) return ErsteDateiAusSkript(dateienSkript, datei);
    const QString neu = QFileDialog::getSaveFileName(SichtbarerBesitzer(), Q(titel), Q(start), QtDateiFilter(filter));
    if (neu.isEmpty()) return false;
    datei = S(neu);
    return true;
}

QWidget* GuiOberfläche::SichtbarerBesitzer() const {
    if (vordergrund && vordergrund->isVisible()) return vordergrund;
    QWidget* b = Besitzer();
    return b && b->isVisible() ? b : nullptr;
}

int GuiOberfläche::DialogAusführen(QDialog& dialog) {
    if (!dialogSkript) return dialog.exec();
    dialog.setResult(QDialog::Rejected);
    dialog.show();
    dialogSkript(dialog);
    if (dialog.isVisible()) dialog.reject();
    return dialog.result();
}

void GuiOberfläche::BildAnzeigen(const std::string& pfad) {
    if (!bildAnzeige_) bildAnzeige_ = new frmBildAnzeige(Besitzer());
    // Ein Bild, das sich nicht laden lässt, zeigt nichts und meldet nichts.
    if (!bildAnzeige_->BildLaden(pfad)) return;
    if (!bildAnzeige_->isVisible()) bildAnzeige_->show();
}

bool GuiOberfläche::AusführenMitWählen(std::string& programm, const std::function<bool(const std::string&)>& prüfen) {
    frmAusführenMit dialog(SichtbarerBesitzer(), *this, programm, prüfen);
    if (DialogAusführen(dialog) != QDialog::Accepted) return false;
    programm = dialog.Programm();
    return true;
}
