#pragma once
// Die eine Routine, über die eine Datei umbenannt, verschoben oder kopiert wird, und die
// Bereinigung von Namen, die dabei und beim Prüfen von Zielordnern gilt.
#include <cstdint>
#include <string>
#include <string_view>

struct Kartei;

// Modus von DateiVerschieben: 1 verschiebt (die Quelle verschwindet), jeder andere Wert kopiert.
inline constexpr int16_t ModusVerschieben = 1;
inline constexpr int16_t ModusKopieren = 0;

// Entfernt * ? " < > | und Steuerzeichen (erlaubt: 8–10, 13, 32–126, 145, 146, ab 160); ohne
// pfadErlaubt auch / \ :. "" bei doppelten Trennern ("//", "/\", "\\", "\/") und, ohne
// pfadErlaubt, bei einem Trenner am Ende. Ein Ergebnis ungleich der Eingabe heißt: ungültiger Name.
std::string NamenBereinigen(std::string_view text, bool pfadErlaubt);

// Verschiebt (modus 1) oder kopiert quelle nach ziel. ziel kann verändert zurückkommen (Umbenennen
// im Dialog "Datei existiert", bereinigter Name); der Aufrufer nimmt es von dort. Fehlende
// Zielordner werden angelegt; über Dateisysteme hinweg wird kopiert und danach die Quelle gelöscht.
// false: fehlertext nennt den Grund vollständig (beim gescheiterten Ersetzen hat schon eine
// Meldung gesprochen). Scheitert ein Schritt, bleibt die Quelle unberührt.
bool DateiVerschieben(Kartei& k, const std::string& quelle, std::string& ziel, int16_t modus, std::string& fehlertext);

// Der Text der Frage, wenn das Ziel schon besteht (lblBeschreibung von frmVerschiebenDateiExistiert).
std::string DateiExistiertText(const std::string& quelle, const std::string& ziel);
