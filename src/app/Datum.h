#pragma once
// Datum und Uhrzeit in Ortszeit, mit den Formen und Differenzen des Programms.
#include <cstdint>
#include <string>
#include <string_view>

struct Datum {
    int32_t Jahr = 1899, Monat = 12, Tag = 30;
    int32_t Stunde = 0, Minute = 0, Sekunde = 0;
    bool operator==(const Datum&) const = default;
};

// Tage seit dem 30.12.1899 (der Nullpunkt des Programms) und Sekunden seit dann.
int64_t Tageszahl(const Datum& d);
int64_t Sekundenzahl(const Datum& d);
Datum AusSekundenzahl(int64_t sekunden);
Datum NurTag(const Datum& d);

bool IstGültigesDatum(int32_t jahr, int32_t monat, int32_t tag);
// Datumsprüfung: "d.m.yyyy", "d.m.yyyy h:nn[:ss]", "yyyy-mm-dd[ hh:mm[:ss]]"; Leerzeichen außen egal.
bool IstDatum(std::string_view text);
bool DatumLesen(std::string_view text, Datum& ergebnis);

std::string DatumText(const Datum& d);          // "dd.mm.yyyy"
std::string DatumZeitText(const Datum& d);      // "dd.mm.yyyy hh:nn:ss"
std::string DatumSortText(const Datum& d);      // "yyyy|mm|dd"
std::string DatumZeitSortText(const Datum& d);  // "yyyy|mm|dd hh:nn:ss"

// DateDiff: zählt Grenzen der Einheit zwischen a und b (b später → positiv).
enum class Zeiteinheit { Sekunde, Minute, Stunde, Tag, Monat };
int64_t DatumDifferenz(Zeiteinheit einheit, const Datum& a, const Datum& b);
// Tage dazuzählen (DateAdd "d").
Datum TageAddieren(const Datum& d, int32_t tage);
