// Fuzz-Ziel: die Spaltenbeschreibung eines Index ("Nummer=Breite=Position,…") und ihr Abgleich
// mit der Ergebnisliste.
#include "app/Ergebnisliste.h"
#include "index/Spalten.h"
#include "FuzzUmgebung.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* daten, size_t größe) {
    static FuzzKartei fk;  // jeder Lauf setzt die Beschreibung neu
    Kartei& k = fk.k();
    k.Optionen.Spalten.assign(reinterpret_cast<const char*>(daten), größe);
    std::vector<SpaltenPosten> posten;
    SpaltenBeschreibungLesen(k, posten, "Fuzz");
    k.Optionen.Spalten.assign(reinterpret_cast<const char*>(daten), größe);
    Ergebnisliste liste;
    bool fehler = false;
    SpaltenAnpassen(k, liste, fehler);
    SpaltenSpeichern(k, liste);
    OptionenSpaltenEinsetzen(k);
    return 0;
}
