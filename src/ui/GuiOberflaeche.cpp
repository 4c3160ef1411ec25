#include "ui/GuiOberflaeche.h"

#include "app/Kartei.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>

namespace {
QString Q(const std::string& s) { return QString::fromStdString(s); }
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

NichtVerfügbarAntwort GuiOberfläche::DateiNichtVerfügbar(const std::string& pfad, const std::string&) {
    int a = MeldungZeigen("Die Datei '" + pfad + "' ist nicht verfügbar.\n\nÜberspringen?", Meldung::JaNeinFrage);
    return a == Meldung::Ja ? NichtVerfügbarAntwort::Überspringen : NichtVerfügbarAntwort::Abbrechen;
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
