// Dateien in den Index und wieder hinaus: frmHinzufügen, Ablegen auf der Liste, Aus Index entfernen.
#include "app/Kartei.h"
#include "fileops/AusIndexEntfernen.h"
#include "ui/frmMain.h"

// ÜBERGANG: Hinzufügen und Ablegen kommen mit der Aufnahme.
void frmMain::cmdIndexErstellen_Click() { NichtVerfügbar(); }
void frmMain::DateienFallengelassen(const QStringList&) {}

void frmMain::cmdDateiEntfernen_Click() {
    AuswahlAktualisieren();
    if (::cmdDateiEntfernen_Click(k_))
        SucheNachlauf();
    else
        AuswahlBeschreibungAnzeigen();
}
