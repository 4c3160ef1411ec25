#pragma once
// Fehler des Betriebssystems (errno) als deutscher Text für Meldungen an die Person.
#include <string>

// "Zugriff verweigert", "Kein Platz mehr auf dem Datenträger", … ; Unbekanntes mit Nummer.
std::string SystemFehlerText(int fehler);
