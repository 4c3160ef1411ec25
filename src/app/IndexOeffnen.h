#pragma once
// Einen Index öffnen: den in Dateiname, sonst den Standard-Index. Das Fenster schaltet danach
// Suche und Liste nach dem Ergebnis ein oder aus.
#include <string>

struct Kartei;

// Lädt k.Dateiname (leer: standardPfad, den der Aufrufer kennt). Bei Erfolg ist die Ergebnisliste
// geleert und ohne Auswahl. false: das Laden wurde abgelehnt, es ist kein Index offen.
bool IndexÖffnen(Kartei& k, const std::string& standardPfad);
