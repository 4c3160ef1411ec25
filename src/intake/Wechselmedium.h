#pragma once
// Die Bezeichnung des Wechselmediums, auf dem eine Datei liegt (Feld Datei_Wechselmedium).
#include <string>

struct Kartei;

// Ist die Wurzel ein Wechselmedium, ihre Bezeichnung, sonst "".
std::string DatenträgerName(Kartei& k, const std::string& wurzel);
// Dasselbe für die Wurzel des Pfades: was beim Hinzufügen oder Verschieben in
// Datei_Wechselmedium kommt.
std::string WechselmediumZuPfad(Kartei& k, const std::string& pfad);
