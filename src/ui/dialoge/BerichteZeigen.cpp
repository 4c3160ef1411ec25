#include "ui/dialoge/BerichteZeigen.h"

#include "app/Kartei.h"
#include "ui/GuiOberflaeche.h"
#include "ui/dialoge/frmExportieren.h"
#include "ui/dialoge/frmIndexVerwaltung.h"
#include "ui/dialoge/frmMp3Tag.h"
#include "ui/dialoge/frmStatistik.h"

void IndexStatistikZeigen(QWidget* besitzer, const Kartei& k) {
    frmStatistik dialog(besitzer, k);
    dialog.exec();
}

void ExportierenZeigen(QWidget* besitzer, Kartei& k, const EinsBasiert<int32_t>& gewählt, int32_t anzahl) {
    std::vector<int32_t> liste;
    for (int32_t i = 1; i <= anzahl && gewählt.GültigerIndex(i); ++i) liste.push_back(gewählt[i]);
    frmExportieren dialog(besitzer, k, std::move(liste));
    dialog.exec();
}

bool IndexVerwaltungZeigen(QWidget* besitzer, Kartei& k, GuiOberfläche& ui) {
    std::vector<int32_t> liste;
    for (const auto& zeile : k.Liste.lstSongs.zeilen) liste.push_back(zeile.eintrag);
    frmIndexVerwaltung dialog(besitzer, k, std::move(liste));
    // Solange der Dialog modal offen ist, gehören ihm Fortschritt und Meldungen der Suche; sonst
    // wäre "Abbrechen" des Fortschritts hinter ihm gesperrt.
    const QPointer<QWidget> vorher = ui.vordergrund;
    ui.vordergrund = &dialog;
    dialog.infosZeigen = [&dialog, &k, &ui](int32_t eintrag) {
        TagEditorZeigen(&dialog, k, ui, {eintrag});
        ui.vordergrund = &dialog;
    };
    const bool ausgeführt = ui.DialogAusführen(dialog) == QDialog::Accepted;
    ui.vordergrund = vorher;
    return ausgeführt;
}
