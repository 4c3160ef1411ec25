#pragma once
// Maschinenlesbare Ausgabe der Kommandozeile: eine Zeile "Name=Wert" je Wert.
#include <string>
#include <string_view>

// Zeichen unter 32 und "\" als \xNN (zwei Hex-Ziffern, groß), damit jeder Wert eine Zeile
// bleibt und sich eindeutig zurücklesen lässt. Alles andere (auch UTF-8) bleibt, wie es ist.
std::string AusgabeMaskieren(std::string_view wert);

// "Name=Wert\n" auf stdout, der Wert maskiert.
void NameWertAusgeben(std::string_view name, std::string_view wert);
