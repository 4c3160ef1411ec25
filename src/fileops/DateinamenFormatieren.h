#pragma once
// Der Muster-Zerleger: ersetzt "%Feldname%" durch das Feld des Eintrags (Umbenennen,
// benutzerdefinierte Spalte, AutoDJ-Liste, Muster-Felder).
#include <cstdint>
#include <string>
#include <string_view>

struct Kartei;

// Ersetzt nacheinander jedes bekannte "%Name%" durch den Anzeigewert von IndexFeldZurückgeben;
// die Suche beginnt danach wieder vorn, so dass ein eingesetzter Wert mit "%…%" auch ersetzt wird.
// Endet beim ersten unbekannten Platzhalter oder einem einzelnen "%" mit dem Text, wie er dann ist.
// Ein Wert, der seinen eigenen Platzhalter enthält, oder Muster, die sich gegenseitig einsetzen,
// beenden die Ersetzung ebenfalls (tiefe zählt die Schachtelung).
std::string DateinamenFormatieren(const Kartei& k, std::string_view format, int32_t position, int32_t tiefe = 0);
