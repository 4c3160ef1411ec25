#include "ui/GuiOberflaeche.h"

#include "app/Kartei.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <QInputDialog>
#include <QMessageBox>

namespace {
QString Q(const std::string& s) { return QString::fromStdString(s); }
// Antworten als Dialog-Ergebnis über Accepted/Rejected, damit Weiter (0) nicht Rejected ist.
constexpr int kAntwortBasis = 10;
}  // namespace

int GuiOberfläche::MeldungZeigen(const std::string& text, int schalter) {
    using namespace Meldung;
    QMessageBox box(besitzer_ ? besitzer_() : nullptr);
    box.setWindowTitle(QString::fromUtf8(ProgrammTitel));
    box.setText(Q(text));
    QMessageBox::Icon symbol = QMessageBox::Warning;
    QMessageBox::StandardButtons knöpfe = QMessageBox::Ok;
    QMessageBox::StandardButton vorgabe = QMessageBox::Ok;
    switch (schalter) {
    case Information: symbol = QMessageBox::Information; break;
    case JaNeinAusruf: knöpfe = QMessageBox::Yes | QMessageBox::No; vorgabe = QMessageBox::Yes; break;
    case JaNeinFrage: symbol = QMessageBox::Question; knöpfe = QMessageBox::Yes | QMessageBox::No; vorgabe = QMessageBox::Yes; break;
    case JaNeinAbbrechen:
        symbol = QMessageBox::Question;
        knöpfe = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        vorgabe = QMessageBox::Yes;
        break;
    case JaNeinStopp: symbol = QMessageBox::Critical; knöpfe = QMessageBox::Yes | QMessageBox::No; vorgabe = QMessageBox::No; break;
    default: break;
    }
    box.setIcon(symbol);
    box.setStandardButtons(knöpfe);
    box.setDefaultButton(vorgabe);
    if (auto* b = box.button(QMessageBox::Yes)) b->setText(QStringLiteral("&Ja"));
    if (auto* b = box.button(QMessageBox::No)) b->setText(QStringLiteral("&Nein"));
    if (auto* b = box.button(QMessageBox::Cancel)) b->setText(QStringLiteral("Abbrechen"));
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

void GuiOberfläche::EreignisseVerarbeiten() { QApplication::processEvents(); }

void GuiOberfläche::FortschrittDarstellen(const FortschrittAnsicht& ansicht) {
    if (fortschritt) fortschritt(ansicht);
}

// VORLÄUFIG: schlichter Dialog, bis frmDateiNichtVerfügbar mit dem Hauptfenster kommt.
NichtVerfügbarAntwort GuiOberfläche::DateiNichtVerfügbar(const std::string&, const std::string& text,
                                                         const std::function<bool()>& dateiDa) {
    QDialog dialog(besitzer_ ? besitzer_() : nullptr);
    dialog.setWindowTitle(QStringLiteral("Datei nicht verfügbar"));
    auto* spalte = new QVBoxLayout(&dialog);
    auto* lblText = new QLabel(Q(text));
    lblText->setWordWrap(true);
    spalte->addWidget(lblText);
    auto* knöpfe = new QHBoxLayout;
    spalte->addLayout(knöpfe);
    const auto knopf = [&](const char* beschriftung, NichtVerfügbarAntwort antwort) {
        auto* b = new QPushButton(QString::fromUtf8(beschriftung));
        knöpfe->addWidget(b);
        QObject::connect(b, &QPushButton::clicked, &dialog, [&dialog, antwort] { dialog.done(kAntwortBasis + int(antwort)); });
    };
    knopf("Ü&berspringen", NichtVerfügbarAntwort::Überspringen);
    knopf("&Alle überspringen", NichtVerfügbarAntwort::AlleÜberspringen);
    knopf("Vorgang abbrechen", NichtVerfügbarAntwort::Abbrechen);
    // tmrDateiSuchen: während der Prüfung aus, damit ein langsames Laufwerk keine Ticks anstaut.
    QTimer tmrDateiSuchen;
    tmrDateiSuchen.setSingleShot(true);
    QObject::connect(&tmrDateiSuchen, &QTimer::timeout, &dialog, [&] {
        if (dateiDa && dateiDa()) dialog.done(kAntwortBasis + int(NichtVerfügbarAntwort::Weiter));
        else tmrDateiSuchen.start(1000);
    });
    tmrDateiSuchen.start(1000);
    // Schließen über die Titelleiste (Rejected) zählt wie "Vorgang abbrechen".
    const int ergebnis = dialog.exec() - kAntwortBasis;
    if (ergebnis < 0 || ergebnis > int(NichtVerfügbarAntwort::AlleÜberspringen)) return NichtVerfügbarAntwort::Abbrechen;
    return static_cast<NichtVerfügbarAntwort>(ergebnis);
}

bool GuiOberfläche::NamenEingeben(const std::string& titel, const std::string&, std::string& text, int32_t,
                                  int32_t) {
    bool ok = false;
    QString neu = QInputDialog::getText(besitzer_ ? besitzer_() : nullptr, Q(titel), QString(), QLineEdit::Normal,
                                        Q(text), &ok);
    if (ok) text = neu.toStdString();
    return ok;
}

bool GuiOberfläche::OrdnerWählen(const std::string& titel, std::string& ordner) {
    QString neu = QFileDialog::getExistingDirectory(besitzer_ ? besitzer_() : nullptr, Q(titel), Q(ordner));
    if (neu.isEmpty()) return false;
    ordner = neu.toStdString();
    return true;
}

bool GuiOberfläche::DateienWählen(const std::string& titel, const std::string& filter,
                                  std::vector<std::string>& dateien) {
    // "Name|*.a;*.b|Name2|*.c" → Qt-Filter "Name (*.a *.b);;Name2 (*.c)"
    QStringList teile = Q(filter).split(QLatin1Char('|'));
    QStringList qtFilter;
    for (int i = 0; i + 1 < teile.size(); i += 2)
        qtFilter << teile[i] + QStringLiteral(" (") + QString(teile[i + 1]).replace(QLatin1Char(';'), QLatin1Char(' ')) + QLatin1Char(')');
    QStringList gewählt = QFileDialog::getOpenFileNames(besitzer_ ? besitzer_() : nullptr, Q(titel), QString(),
                                                        qtFilter.join(QStringLiteral(";;")));
    dateien.clear();
    for (const auto& d : gewählt) dateien.push_back(d.toStdString());
    return !dateien.empty();
}
