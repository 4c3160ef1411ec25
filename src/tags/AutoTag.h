#pragma once
// AutoTag: Tag-Felder aus dem vollen Pfad einer Datei ableiten, nach einem Format wie
// "/%Interpret% - %Titel%" oder durch Raten mit "%Automatik%". Ergebnis ist nur ein Datensatz;
// in keine Datei wird hier geschrieben.
#include "app/DateiInfo.h"
#include "app/EinsBasiert.h"

#include <cstdint>
#include <string>
#include <string_view>

struct Kartei;

// Welche Tags ein Lauf füllt: 0 beide, 1 nur ID3v1, 2 nur ID3v2.
inline constexpr int16_t AutoTagModusBeide = 0, AutoTagModusV1 = 1, AutoTagModusV2 = 2;

// Zerlegt ein Format in Platzhalter (mit "%", getrimmt) und Trenner (getrimmt). Trenner(1) steht
// vor dem ersten Platzhalter, Trenner(anzahl + 1) ist das erste Zeichen hinter dem letzten.
// false bei einer ungeraden Zahl von "%".
bool FormatLesen(std::string_view format, EinsBasiert<std::string>& platzhalter, EinsBasiert<std::string>& trenner,
                 int32_t& anzahl);

// Anfang der letzten Fundstelle von suchtext in text, die bei oder vor grenze beginnt; 0, wenn
// keine. Ein leerer Suchtext passt überall: Ergebnis ist grenze. ohneGroßKlein: Vergleich als Text.
int32_t LetzteFundstelle(int32_t grenze, std::string_view text, std::string_view suchtext, bool ohneGroßKlein);

// Steht das Wort in der Ausschlussliste (gleich lang, Groß/Klein egal)? Eine als leer geführte
// Liste (AutoTagAusschlußLeer 1) wird nicht befragt.
bool AutoTagWortIgnorieren(const Kartei& k, std::string_view wort);

// Zerlegt einen Pfad an "-", "_", "," und "/" in Wörter (getrimmt; leere bleiben), das letzte
// ohne Dateiendung. Ein führendes "/" zählt nicht. Wörter der Ausschlussliste fallen weg, die
// vorderen nur mit ignorieren, das letzte immer. true, wenn mindestens ein Wort blieb.
bool DateinamenLesen(const Kartei& k, std::string_view dateiname, EinsBasiert<std::string>& wörter, int32_t& anzahl,
                     bool ignorieren);

// Lässt sich das Format anwenden (nicht leer, "%" paarweise, ein Platzhalter, "%Automatik%"
// allein)? false: eine Meldung (Information) hat den Grund genannt.
bool AutoTagFormatPrüfen(Kartei& k, const std::string& format);

// Leitet aus dateiname nach format die Felder ab: ergebnis beginnt als ausgangsdaten. true, wenn
// ein Ergebnis dasteht; bei false hat eine Meldung (Information) den Grund genannt und ergebnis
// ist unbrauchbar.
bool AutoTagVersuchen(Kartei& k, const std::string& dateiname, const std::string& format, DateiInfo& ergebnis,
                      const DateiInfo& ausgangsdaten, int16_t modus);
