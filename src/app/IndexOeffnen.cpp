#include "app/IndexOeffnen.h"

#include "app/Kartei.h"
#include "index/IndexDatei.h"

bool IndexÖffnen(Kartei& k, const std::string& standardPfad) {
    if (k.Dateiname.empty()) k.Dateiname = standardPfad;
    const std::string pfad = k.Dateiname;  // DateiLaden schreibt Dateiname selbst
    if (!DateiLaden(k, pfad)) return false;
    auto& liste = k.Liste.lstSongs;
    liste.zeilen.clear();
    liste.sichtbareZeile = -1;
    liste.Geändert();
    k.LetzteSpeicherung = k.uhr.Jetzt();  // das regelmäßige Speichern zählt ab dem Öffnen
    return true;
}
