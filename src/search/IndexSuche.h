#pragma once
// Die Suchmaschine: markiert in DateiTreffer, welche Einträge die Abfragezeilen erfüllen.
// 0 = nicht im Ergebnis, 1 = im Ergebnis, 2 = im Ergebnis als genaue Entsprechung.
// SuchCacheAnfang/-Ende grenzen danach den Bereich ein, in dem noch Treffer liegen (0 = keiner).
#include "app/EinsBasiert.h"

#include <cstdint>
#include <string>

struct Kartei;

// Wie die Texte verglichen werden. Schnell nutzt den Zwischenspeicher der Standardsuche und
// gefaltete Texte; Einzeln holt jeden Feldtext neu und vergleicht Zeichen für Zeichen. Beide
// geben dieselben Markierungen und Grenzen (Einzeln dient als Vergleich in Tests).
enum class SuchVerfahren { Schnell, Einzeln };

// true auch bei leerem Ergebnis; false nur bei unbrauchbaren Eingaben (Zeilen- oder
// Markierungsfelder zu kurz, Bereich außerhalb der Tabelle). Markierungen und Grenzen bleiben
// dann, so weit die Suche gekommen ist.
bool IndexSucheDurchführen(Kartei& k, int32_t& SuchAnzahl, EinsBasiert<std::string>& SuchFelder,
                           EinsBasiert<std::string>& SuchBegriffe, EinsBasiert<std::string>& SuchBedingungen,
                           EinsBasiert<int16_t>& DateiTreffer, int32_t& SuchCacheAnfang, int32_t& SuchCacheEnde,
                           SuchVerfahren verfahren = SuchVerfahren::Schnell);
// Dasselbe über k.Suche und k.DateiTreffer.
bool IndexSucheDurchführen(Kartei& k, SuchVerfahren verfahren = SuchVerfahren::Schnell);
