#pragma once
// Die Spalten der Hauptliste: feste Tabelle der 30 Spalten, die Spaltenbeschreibung des Index
// ("Nummer=Breite=Position,…") und ihr Abgleich mit der Ergebnisliste.
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

struct Kartei;
struct Ergebnisliste;

inline constexpr int32_t SpaltenAnzahl = 30;
inline constexpr int32_t SpalteBenutzerdefiniert = 19;

// Name der Spalte 1..30 ("Nummer", "Pfad", …); leer außerhalb.
const std::string& SpaltenName(int32_t nummer);
// Vorgabebreite in Twips; 0 = ausgeblendet.
int32_t SpaltenVorgabeBreite(int32_t nummer);
// Nummer zum Namen (genau, Groß/Klein zählt); 0, wenn es keine Spalte dieses Namens gibt.
int32_t SpaltenNummer(std::string_view name);
// Überschrift und Tag der Spalte in der Liste ("b" für Benutzerdefiniert, sonst leer).
std::string SpaltenKopftext(const Kartei& k, int32_t nummer);
std::string SpaltenTag(int32_t nummer);

// Ein gültiger Posten der Spaltenbeschreibung.
struct SpaltenPosten {
    int32_t nummer = 0, breite = 0, position = 0;
};
// Zerlegt k.Optionen.Spalten; eine unbrauchbare Beschreibung wird still durch die Vorgabe ersetzt.
// Ungültige Posten fallen weg. Ergebnis false, wenn etwas ersetzt oder weggelassen wurde.
bool SpaltenBeschreibungLesen(Kartei& k, std::vector<SpaltenPosten>& posten, const char* prozedur);

// Die Vorgabe-Beschreibung aus den Vorgabebreiten (Position = laufende Zahl sichtbarer Spalten).
void SpaltenRücksetzen(Kartei& k);
// Richtet die Liste nach der Beschreibung ein: Kopfleiste, Gitter, Spalten (vorhandene bleiben,
// fehlende kommen mit ihrer Breite dazu, übrige fallen weg). fehler: ein Posten war unbrauchbar.
void SpaltenAnpassen(Kartei& k, Ergebnisliste& liste, bool& fehler);
// Liest Reihenfolge, Breiten und Schalter der Liste in die Beschreibung zurück; eine geänderte
// Beschreibung setzt DateiGeändert.
void SpaltenSpeichern(Kartei& k, const Ergebnisliste& liste);

// Die Auswahlliste der Index-Optionen: jede Spalte in der Reihenfolge der Beschreibung,
// angehakt, wenn sie sichtbar ist.
struct SpaltenWahl {
    int32_t nummer = 0;
    std::string name;
    bool angehakt = false;
};
std::vector<SpaltenWahl> OptionenSpaltenEinsetzen(Kartei& k);
// Die Beschreibung aus der Auswahlliste, in ihrer Reihenfolge: eine angehakte Spalte behält ihre
// bisherige Breite (ohne eine 1400), eine nicht angehakte bekommt 0. Position = laufende Zahl der
// angehakten.
std::string SpaltenBeschreibungAusWahl(Kartei& k, const std::vector<SpaltenWahl>& wahl);
