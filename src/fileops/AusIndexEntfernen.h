#pragma once
// Einträge aus dem Index nehmen, ohne die Dateien anzurühren: die Entfernliste (Nummern ab 1,
// 0 = bleibt) in einem Durchgang, und der Befehl "Aus Index entfernen" über der Auswahl.
#include "app/EinsBasiert.h"

#include <cstdint>

struct Kartei;

// Nimmt die Einträge der Liste aus der Tabelle (doppelte Nummern schaden nicht, die Reihenfolge
// bleibt) und leert die Auswahl. Zeigt nichts an; eine neue Suche löst der Aufrufer aus.
void DateienAusListeEntfernenStarten(Kartei& k, const EinsBasiert<int32_t>& Liste);

// cmdDateiEntfernen und Entf: ohne Auswahl nichts; sonst fragen, entfernen, neu suchen und im
// Titel melden. true, wenn entfernt wurde.
bool cmdDateiEntfernen_Click(Kartei& k);
