// Dateien auf dem Datenträger: kopieren/verschieben, umbenennen, löschen, Index synchronisieren.
#include "app/Kartei.h"
#include "intake/Synchronisieren.h"
#include "search/Suche.h"
#include "ui/GuiOberflaeche.h"
#include "ui/dialoge/frmKopieren.h"
#include "ui/dialoge/frmLoeschen.h"
#include "ui/dialoge/frmUmbenennen.h"
#include "ui/frmMain.h"

std::vector<int32_t> frmMain::GewählteEinträge() {
    AuswahlAktualisieren();
    std::vector<int32_t> einträge;
    const auto& gewählt = AusgewählteDateien();
    for (int32_t i = 1; i <= AusgewähltAnzahl() && gewählt.GültigerIndex(i); ++i) einträge.push_back(gewählt[i]);
    return einträge;
}

void frmMain::cmdDateienKopierenVerschieben_Click() {
    std::vector<int32_t> einträge = GewählteEinträge();
    if (einträge.empty()) return;
    frmKopieren dialog(this, k_, ui_, std::move(einträge));
    if (ui_.DialogAusführen(dialog) == QDialog::Accepted) SucheNachlauf();
}

void frmMain::cmdUmbenennen_Click() {
    std::vector<int32_t> einträge = GewählteEinträge();
    if (einträge.empty()) return;
    frmUmbenennen dialog(this, k_, std::move(einträge));
    if (ui_.DialogAusführen(dialog) == QDialog::Accepted) SucheNachlauf();
}

void frmMain::cmdDateienLöschen_Click() {
    std::vector<int32_t> einträge = GewählteEinträge();
    if (einträge.empty()) return;
    frmLöschen dialog(this, k_, std::move(einträge));
    if (ui_.DialogAusführen(dialog) != QDialog::Accepted) return;
    // Die Einträge sind aus der Tabelle: neu suchen, dann zeigen.
    SucheAktualisieren(k_);
    SucheNachlauf();
}

void frmMain::cmdListeAufräumen_Click() {
    ListeAufräumen(k_);
    SucheNachlauf();
}
