#pragma once
// Die Funktionen des Tag-Editors für einen oder alle Tags der gezeigten bzw. aller Dateien:
// Felder tauschen, die Zahl aus dem Kommentar holen, Schreibweisen, Felder kopieren.
#include "app/DateiInfo.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

struct Kartei;

// Einträge von cboFunktionTAG und cboFunktion, in ihrer Reihenfolge (ab 0).
const std::array<const char*, 6>& TagFunktionZiele();
const std::array<const char*, 11>& TagFunktionen();
// Nummern der Funktionen, die eigens behandelt werden.
inline constexpr int32_t TagFunktionAutoTag = 0, TagFunktionAutoTagEinstellen = 1, TagFunktionFelderKopieren = 10;
// Die Felder, die "Felder kopieren..." anbietet, in der Reihenfolge seiner Liste.
const std::array<const char*, 7>& TagKopierFelder();

// Modus (0 beide, 1 ID3v1, 2 ID3v2) zum Eintrag von cboFunktionTAG, und ob er alle Dateien meint.
int16_t TagFunktionModus(int32_t ziel);
bool TagFunktionFürAlle(int32_t ziel);

// Vor dem Ausführen: ohne Funktion (-1) die Meldung, sonst die Frage. true: ausführen.
bool TagFunktionBestätigen(Kartei& k, int32_t funktion, int32_t ziel);

// Wendet eine der Funktionen 2 bis 9 auf die Felder des Datensatzes an, die modus nennt. false:
// eine Meldung hat gesagt, warum nicht (oder nicht ganz); was gelang, bleibt im Datensatz.
bool TagFunktionAnwenden(Kartei& k, int32_t funktion, DateiInfo& d, int16_t modus);

// Ist mindestens ein Feld gewählt? Sonst die Meldung von "Felder kopieren..." und false.
bool TagKopierFelderGewählt(Kartei& k, const std::vector<int32_t>& felder);

// "Felder kopieren...": die gewählten Felder (Nummern in TagKopierFelder) von quelle nach ziel,
// je Tag nach modus. Ohne Wahl die Meldung und false.
bool TagFelderKopieren(Kartei& k, const DateiInfo& quelle, DateiInfo& ziel, const std::vector<int32_t>& felder,
                       int16_t modus);

// "Felder kopieren..." für eine Datei: die gewählten Felder aus dem anderen Tag derselben Datei,
// ID3v1 aus ID3v2 (modus 1) bzw. ID3v2 aus ID3v1 (modus 2); mit beiden Tags füllt jeder nur
// seine leeren Felder aus dem anderen. Das Genre geht über seinen Namen.
bool TagFelderAusAnderemTag(Kartei& k, DateiInfo& d, const std::vector<int32_t>& felder, int16_t modus);

// Die Schreibweisen einzeln (für Tests und das Fenster): nur der erste Buchstabe groß, jeder
// Wortanfang groß. Ein Wort beginnt nach einem Zeichen, das weder Buchstabe noch Ziffer noch
// Apostroph ist.
std::string ErsterBuchstabeGroß(const std::string& text);
std::string WortanfängeGroß(const std::string& text);
