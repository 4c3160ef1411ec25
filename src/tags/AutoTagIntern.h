#pragma once
// Was die beiden Wege von AutoTag (Format und Raten) gemeinsam brauchen.
#include "app/DateiInfo.h"
#include "app/EinsBasiert.h"

#include <cstdint>
#include <string>
#include <string_view>

struct Kartei;

// Legt wort in das Feldpaar des Platzhalters (klein geschrieben, etwa "%titel%"): das ID3v1-Feld
// bei Modus 0 und 1, das ID3v2-Feld bei 0 und 2. "%genre%" sucht den Namen in der Genre-Tabelle.
// Unbekannte Platzhalter und "%müll%" verbrauchen das Wort ohne Wirkung.
void AutoTagFeldSetzen(DateiInfo& ergebnis, std::string_view platzhalterKlein, const std::string& wort, int16_t modus);

// Das große Ratespiel über die Wörter eines Pfades (zwei Durchläufe, der erste mit dem Index).
// dateiname ist der ursprüngliche Pfad: sein eigener Eintrag zählt beim Nachschlagen nicht.
void AutoTagRaten(const Kartei& k, const std::string& dateiname, const EinsBasiert<std::string>& wörter,
                  DateiInfo& ergebnis, int16_t modus);
