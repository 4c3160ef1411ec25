#pragma once
// Die Zahlen über den ganzen Index für frmStatistik: vier Zeilen aus Überschrift und Text.
#include <array>
#include <string>

struct Kartei;

struct StatistikZeile {
    std::string überschrift;
    std::string text;
};

// Ein Durchgang über alle Einträge (nicht die Ergebnisliste). Zahlen deutsch geschrieben:
// ganze Zahlen mit Tausenderpunkten, Megabytes und Dateien je Tag mit zwei Stellen nach ",".
// Ein Eintrag ohne gültiges Datum fällt nur aus den Datumszahlen heraus.
std::array<StatistikZeile, 4> IndexStatistik(const Kartei& k);
