#include "fileops/AusIndexEntfernen.h"

#include "app/Kartei.h"
#include "app/Tabelle.h"
#include "app/Trace.h"
#include "search/Suche.h"

void DateienAusListeEntfernenStarten(Kartei& k, const EinsBasiert<int32_t>& Liste) {
    [[maybe_unused]] const int32_t entfernt = EinträgeEntfernen(k, Liste);
    KK_TRACE("DateienAusListeEntfernenStarten", std::to_string(entfernt) + " Einträge entfernt");
    // Die Auswahl zeigte auf Einträge, die es so nicht mehr gibt.
    auto& s = k.Suche;
    s.AusgewähltAnzahl = 0;
    s.AusgewählteDateien.ReDim(1);
    s.AusgewählteZeilen.ReDim(1);
}

bool cmdDateiEntfernen_Click(Kartei& k) {
    const auto& s = k.Suche;
    const int32_t anzahl = s.AusgewähltAnzahl;
    if (anzahl < 1) return false;
    if (k.ui.MeldungZeigen("Möchten Sie " + std::to_string(anzahl) +
                               " Datei(en) aus dem Index entfernen?\n\nDie Dateien selbst bleiben auf dem "
                               "Datenträger erhalten.",
                           Meldung::JaNeinFrage) != Meldung::Ja)
        return false;
    EinsBasiert<int32_t> liste(anzahl);
    for (int32_t i = 1; i <= anzahl && s.AusgewählteDateien.GültigerIndex(i); ++i) liste[i] = s.AusgewählteDateien[i];
    const int32_t vorher = k.DateiAnzahl;
    DateienAusListeEntfernenStarten(k, liste);
    SucheAktualisieren(k, false);
    k.ui.TitelNachrichtZeigen(std::to_string(vorher - k.DateiAnzahl) + " Datei(en) aus dem Index entfernt", 750);
    return true;
}
