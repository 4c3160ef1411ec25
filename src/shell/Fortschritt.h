#pragma once
// Fortschritt langer Vorgänge: starten, melden (lässt Ereignisse laufen), beenden.
// Ein falsches Ergebnis von FortschrittZeigen heißt: sofort aufhören.
#include <cstdint>
#include <string>

struct Kartei;

// Mit StartBildschirm ungleich 1 erscheint kein Fenster; der Vorgang läuft dann ohne.
// Ein negatives Maximum mit Balken gibt false.
bool FortschrittZeigenStarten(Kartei& k, int32_t maximum, bool mitAbbrechen, bool mitBalken, bool mitProzess,
                              const std::string& vorgang);
// Balken auf wert/maximum (4500 Einheiten), Detailzeile prozess. false: abgebrochen oder Fenster weg.
bool FortschrittZeigen(Kartei& k, double wert, const std::string& prozess);
// Wie oben, ohne neuen Wert für den Balken (nur Ereignisse und Detailzeile).
bool FortschrittZeigen(Kartei& k, const std::string& prozess);
void FortschrittZeigenEnde(Kartei& k);
// Der Knopf "Abbrechen" des Fensters.
void FortschrittAbbrechenGedrückt(Kartei& k);
// Ist das Fenster offen?
bool FortschrittFensterOffen(const Kartei& k);
