#pragma once
// Fortlaufende Dateinamen: der erste freie Name "Basis1 Zahl Basis2" im Ordner einer Datei.
// Gebraucht vom Umbenennen (Zähler) und vom Verschieben ("Datei-0", "Datei-1", …).
#include <string>
#include <string_view>

// Ist der Text eine Zahl, ihr Wert (32 Bit) plus eins als Text ohne führende Nullen ("007" → "8");
// sonst, oder beim Überlauf, "".
std::string ZuNächsterZahl(std::string_view text);

// Ordner von pfad & "/" & basis1 & Zahl & basis2 & Endung von pfad; die Zahl beginnt bei start
// und steigt, solange es den Namen schon gibt. Nach 10.000 vergeblichen Runden "".
std::string FortlaufendenDateinamen(std::string_view pfad, std::string_view basis1, std::string_view start,
                                    std::string_view basis2);
