#pragma once
// Die Ergebnisliste nach einer Suche: Zeilen für die markierten Einträge, in aufsteigender
// Reihenfolge der Eintragsnummern. Zeilen werden wiederverwendet, gewählte Einträge bleiben
// gewählt, solange sie im Ergebnis sind.
#include <cstdint>
#include <string>

struct Kartei;
struct Ergebnisliste;

// Baut Liste aus k.DateiTreffer im Bereich SuchCacheAnfang..SuchCacheEnde neu auf und erneuert
// die Auswahl. AnzahlZeigen: k.Liste.DateiAnzahlText (lblDateiAnzahl) wird neu gesetzt.
// Zellentexte berechnet die Anzeige selbst über IndexFeldZurückgeben.
void ListeErstellen(Kartei& k, Ergebnisliste& Liste, bool AnzahlZeigen);
// AusgewählteDateien/AusgewählteZeilen/AusgewähltAnzahl aus den gewählten Zeilen der Liste.
void AuswahlAktualisieren(Kartei& k, const Ergebnisliste& Liste);
// "n Datei(en) gefunden", Zeilenumbruch, "m Datei(en) im Index".
std::string DateiAnzahlText(int32_t zeilen, int32_t dateiAnzahl);
