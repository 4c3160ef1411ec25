#pragma once
// AutoTag über mehrere Einträge: erkennen, beide bzw. einen Tag in die Datei schreiben und den
// Index nachführen – wie die Stapelfunktion des Tag-Editors über alle Dateien.
#include "app/DateiInfo.h"

#include <cstdint>
#include <string>
#include <vector>

struct Kartei;

// Schreibt die Tags von arbeit nach modus (0 beide, 1 ID3v1, 2 ID3v2) in die Datei des Eintrags,
// nach der Frage zum Dateityp. Ein gescheitertes Schreiben meldet den Grund (Warnung) und fragt,
// ob es mit der nächsten Datei weitergehen soll. Danach hält der Eintrag, was in der Datei steht.
// 0 geschrieben, 1 nicht (oder nicht ganz) geschrieben, weiter mit der nächsten, 2 abbrechen.
int16_t AutoTagTagsSpeichern(Kartei& k, int32_t eintrag, const DateiInfo& arbeit, int16_t modus);

struct AutoTagStapelErgebnis {
    int32_t gespeichert = 0;       // Einträge, deren Tags geschrieben sind
    int32_t nichtGespeichert = 0;  // Erkennen oder Schreiben gescheitert, Dateityp abgelehnt
    bool abgebrochen = false;
};
// Für jeden Eintrag (Nummern ab 1) in Reihenfolge: verfügbar?, AutoTagVersuchen mit seinem
// Datensatz als Ausgangsdaten, Tags speichern. Der Index selbst wird hier nicht gespeichert.
AutoTagStapelErgebnis AutoTagStapel(Kartei& k, const std::vector<int32_t>& einträge, const std::string& format,
                                    int16_t modus);
// Für "Felder kopieren...": woher die Werte kommen und welche Felder (Nummern in TagKopierFelder).
struct TagKopie {
    DateiInfo quelle;
    std::vector<int32_t> felder;
};
// Dasselbe für eine Funktion des Tag-Editors: 0 AutoTag mit format, 2 bis 9 (TagFunktionen.h), 10
// mit kopie. Jeder Eintrag wird vorher aus seiner Datei aufgefrischt, damit nur die Änderung der
// Funktion hinzukommt. Scheitert sie an einer Datei, wird gefragt, ob es weitergeht; die Datei
// bleibt dann, wie sie ist.
AutoTagStapelErgebnis TagFunktionStapel(Kartei& k, const std::vector<int32_t>& einträge, int32_t funktion,
                                        const std::string& format, int16_t modus, const TagKopie* kopie = nullptr);
