// ÜBERGANG: Suchfeld und Liste, bis die Suche im Kern da ist.
#include "app/Kartei.h"
#include "search/Ergebnisliste.h"
#include "ui/frmMain.h"

#include <QComboBox>

const EinsBasiert<int32_t>& frmMain::AusgewählteDateien() const { return übergangAuswahl_; }
int32_t frmMain::AusgewähltAnzahl() const { return übergangAnzahl_; }

void frmMain::AuswahlAktualisieren() {
    übergangAuswahl_.ReDim(0);
    übergangAnzahl_ = 0;
    for (const auto& z : k_.Liste.lstSongs.zeilen)
        if (z.ausgewählt) {
            übergangAuswahl_.Anhängen(z.eintrag);
            ++übergangAnzahl_;
        }
}

std::string frmMain::DateiAnzahlText() const {
    return std::to_string(k_.Liste.lstSongs.zeilen.size()) + " Datei(en) gefunden\n" +
           std::to_string(k_.DateiAnzahl) + " Datei(en) im Index";
}

void frmMain::AuswahlAktualisierenUndZeigen() {
    AuswahlAktualisieren();
    AuswahlBeschreibungAnzeigen();
}

void frmMain::VerbindenSuche() {}
void frmMain::SucheVorbereiten() {
    // Vorläufig: alle Einträge zeigen.
    auto& l = k_.Liste.lstSongs;
    l.zeilen.clear();
    for (int32_t i = 1; i <= k_.DateiAnzahl; ++i) l.zeilen.push_back({i, false});
    l.Geändert();
    cboSuche_->setCurrentIndex(0);
    ListeAnzeigen();
}
void frmMain::txtSongname_Change(const QString&) {}
void frmMain::SuchfelderAnzeigen() {}
void frmMain::SucheNachlauf() {}
bool frmMain::eventFilter(QObject* o, QEvent* e) { return QMainWindow::eventFilter(o, e); }
void frmMain::tmrListe_Timer() {}
void frmMain::cboSuche_Click(int) {}
void frmMain::cmdSucheLöschen_Click() {}
void frmMain::cmdSucheMehr_Click() {}
void frmMain::lstSongs_ColumnClick(int) {}
void frmMain::SucheStarten(int, const std::string&) {}
void frmMain::cmdIndexErstellen_Click() { NichtVerfügbar(); }
void frmMain::cmdDateiEntfernen_Click() { NichtVerfügbar(); }
void frmMain::DateienFallengelassen(const QStringList&) {}
