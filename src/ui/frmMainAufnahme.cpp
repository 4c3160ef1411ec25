// Dateien in den Index und wieder hinaus: frmHinzufügen, Ablegen auf der Liste, Aus Index entfernen.
#include "app/Kartei.h"
#include "fileops/AusIndexEntfernen.h"
#include "intake/Hinzufuegen.h"
#include "intake/HinzufuegenFragen.h"
#include "ui/GuiOberflaeche.h"
#include "ui/Umrechnung.h"
#include "ui/dialoge/frmHinzufuegen.h"
#include "ui/frmMain.h"

#include <QApplication>
#include <QTimer>

// Der Dialog verschwindet, bevor gewählt und hinzugefügt wird.
void frmMain::cmdIndexErstellen_Click() {
    frmHinzufügen dialog(this);
    void (*danach)(Kartei&) = nullptr;
    auto wahl = [&](void (*aktion)(Kartei&)) {
        danach = aktion;
        dialog.accept();
    };
    dialog.dateienHinzufügen = [&] { wahl(DateienHinzufügenFragen); };
    dialog.ordnerHinzufügen = [&] { wahl(OrdnerHinzufügenFragen); };
    dialog.importieren = [&] { wahl(PlaylisteImportierenFragen); };
    ui_.DialogAusführen(dialog);
    if (!danach) return;
    danach(k_);
    SucheNachlauf();
}

// Abgelegte Dateien, Ordner und Playlisten: erst nach dem Ablegen verarbeiten, damit das
// Programm, aus dem gezogen wurde, nicht so lange wartet.
void frmMain::DateienFallengelassen(const QStringList& pfade) {
    EinsBasiert<std::string> liste;
    for (const QString& p : pfade) liste.Anhängen(S(p));
    QTimer::singleShot(0, this, [this, liste] {
        Sperren(true);
        QApplication::processEvents();
        Sperren(false);
        DragDropVerarbeiten(k_, liste);
        SucheNachlauf();
    });
}

void frmMain::cmdDateiEntfernen_Click() {
    AuswahlAktualisieren();
    if (::cmdDateiEntfernen_Click(k_)) SucheNachlauf();
    else AuswahlBeschreibungAnzeigen();
}
