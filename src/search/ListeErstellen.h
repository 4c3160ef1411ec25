#pragma once
// Die Ergebnisliste nach einer Suche: Zeilen für die markierten Einträge, in aufsteigender
// Reihenfolge der Eintragsnummern. Zeilen werden wiederverwendet, gewählte Einträge bleiben
// gewählt, solange sie im Ergebnis sind.
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

struct Kartei;
struct Ergebnisliste;

// Baut Liste aus k.DateiTreffer im Bereich SuchCacheAnfang..SuchCacheEnde neu auf und erneuert
// die Auswahl. AnzahlZeigen: k.Liste.DateiAnzahlText (lblDateiAnzahl) wird neu gesetzt.
// Zellentexte berechnet die Anzeige selbst über IndexFeldZurückgeben.
void ListeErstellen(Kartei& k, Ergebnisliste& Liste, bool AnzahlZeigen);
// Die Zeilen der genannten Einträge neu schreiben, ohne zu suchen (nach dem Tag-Editor): die
// Anzeige rechnet ihre Texte neu, sobald der Stand der Liste wächst. Ergebnis: so viele Zeilen.
int32_t ListeErstellenAktualisieren(Ergebnisliste& Liste, const std::vector<int32_t>& einträge);
// AusgewählteDateien/AusgewählteZeilen/AusgewähltAnzahl aus den gewählten Zeilen der Liste.
void AuswahlAktualisieren(Kartei& k, const Ergebnisliste& Liste);
// lblGefundenAnzahl: "N Datei(en) gefunden" (Hauptliste, Duplikate, AutoDJ).
std::string GefundenAnzahlText(size_t anzahl);
// "n Datei(en) gefunden", Zeilenumbruch, "m Datei(en) im Index".
std::string DateiAnzahlText(int32_t zeilen, int32_t dateiAnzahl);
