#pragma once
// Innere Teile des Index-Lesers: Vorgaben, Datensatzzeilen "#TAG:" und Optionszeilen "#OPT:".
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

class KText;
struct DateiInfo;
struct IndexOptionen;

// Höchstens so viele Größen zählen für die Lage der Werte; Feld 41 ist für neuere Fassungen.
inline constexpr int32_t IndexGrößenPlätze = 41;

// Vorgaben eines Index, bevor seine Zeilen gelesen werden. Das Gitter bleibt, wie es war.
void IndexOptionenVorgaben(IndexOptionen& o);

// Die Größenliste einer Datensatzzeile.
struct Größenliste {
    std::array<int32_t, IndexGrößenPlätze + 1> größe{};  // ab 1
    int32_t felder = 0;                                  // Nummer des letzten Feldes
    size_t werteAnfang = 0;                              // erstes Byte hinter dem "|"
};
// Liest die Größen hinter "#TAG:". false: die Zeile fällt weg (kein "/" oder "|" mehr, oder
// weniger als zwei Felder).
bool GrößenlisteLesen(std::string_view zeile, Größenliste& g);
// Legt die Werte der Zeile in pfad und d ab; ungültige Zahlen und Daten lassen die Vorgabe stehen.
void DatensatzFelderLesen(std::string_view zeile, const Größenliste& g, KText& pfad, DateiInfo& d);
// Eine Zeile "#OPT:…"; was nicht passt, wird still übergangen.
void OptionZeileLesen(IndexOptionen& o, std::string_view zeile);
