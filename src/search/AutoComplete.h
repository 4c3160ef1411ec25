#pragma once
// Vorschläge zu einem Feld: die Aufklappliste mit den Werten des Index füllen und den getippten
// Text mit dem ersten passenden Wert ergänzen.
#include <cstdint>
#include <string>

struct Kartei;
struct KomboFeld;

// Füllt Liste.List mit den Werten von Feld (und, wenn nicht leer, ZweitesFeld im selben Schritt)
// in der Reihenfolge des Index. Leere Werte fallen weg, Doppelte auch (Groß/Klein egal; die zuerst
// gesehene Form bleibt). Aktiv 0, leerer Index, leeres Feld oder "(Standardsuche)": leere Liste.
// Text der Liste bleibt, ListIndex wird -1. Ergebnis true.
bool AutoCompleteFüllen(Kartei& k, KomboFeld& Liste, const std::string& Feld, int32_t Aktiv,
                        const std::string& ZweitesFeld);
// Ergänzt Text mit dem ersten Eintrag von Liste, der (Groß/Klein egal) mit ihm beginnt: der
// Eintrag wird gewählt und steht in Eingabe, die Schreibmarke bleibt, der ergänzte Rest ist
// markiert. Liste und Eingabe dürfen dasselbe Feld sein. false, wenn die Ergänzung nicht lief
// (leerer Text, nach Rücktaste/Entf, abgeschaltet).
bool AutoCompleteAusführen(Kartei& k, const std::string& Text, KomboFeld& Liste, KomboFeld& Eingabe);
