#pragma once
// Der Weg, auf dem Dateien in den Index kommen: einzeln, als Liste, als Ordner oder als Ablage
// (Ziehen und Ablegen). Jede Datei wird geprüft (da, kein Ordner, freigegebener Typ, kein
// Doppelter), ihre Daten kommen über MedienInfosLesen in den Sammelbereich, und erst am Ende
// eines Stapels wächst die Tabelle um alle gesammelten Einträge.
#include "app/EinsBasiert.h"

#include <cstdint>
#include <string>

struct Kartei;

// Beginnt einen Stapel: NeueAnzahl = 0.
void DateiListeHinzuStarten(Kartei& k);
// Sammelt eine Datei; true, wenn sie gesammelt wurde. Abgelehnt wird still: fehlt, ist ein
// Ordner, Typ nicht freigegeben, oder (bei HinzufügenKeineDoppelten = 1) steht sie schon im Index
// (NamenGleich). Der Sammelbereich selbst wird nicht verglichen.
bool DateienZurListeHinzufügen(Kartei& k, const std::string& datei);
// Hängt die gesammelten Einträge an die Tabelle an (setzt DateiGeändert) und leert den
// Sammelbereich. NeueAnzahl bleibt bis zum nächsten Start stehen.
void DateiListeHinzuBeenden(Kartei& k);

// Fügt dateien hinzu. Abbruch: das Gelesene bleibt, Ergebnis false, das Fortschrittsfenster
// schließt der Aufrufer. meldung: Statuszeile "N Datei(en) hinzugefügt".
bool EinfachDateiHinzufügen(Kartei& k, const EinsBasiert<std::string>& dateien, bool listeAktualisieren, bool meldung,
                            bool neueMarkieren);

// Durchsucht ordner (mit Unterordnern nur bei unterordner == 1) und fügt die Dateien
// freigegebener Typen hinzu. Ein fehlender Ordner meldet sich und gibt true. Mit kopierenInOrdner
// wird jede Datei vorher dorthin verschoben (der Baum darunter bleibt) und am neuen Platz
// aufgenommen; danach wird der leer gewordene Ordner angeboten.
bool EinfachOrdnerHinzufügen(Kartei& k, const std::string& ordner, bool meldung, int16_t unterordner,
                             bool listeAktualisieren, const std::string& kopierenInOrdner, bool neueMarkieren,
                             bool fortschrittOffenLassen);

// Abgelegte Pfade: Playlisten (".m3u"/".pls", genau so geschrieben) werden eingelesen, Ordner
// durchsucht, Dateien zusammen hinzugefügt. Am Ende steht die Gesamtzahl in der Statuszeile.
void DragDropVerarbeiten(Kartei& k, const EinsBasiert<std::string>& pfade);

// Statuszeile nach einem Stapel: "N Datei(en) hinzugefügt".
std::string HinzugefügtText(int32_t anzahl);
// Nach einem Stapel mit neuen Einträgen: Suche neu, auf Wunsch die neuen Zeilen markieren.
void NachHinzufügenAktualisieren(Kartei& k, bool listeAktualisieren, bool neueMarkieren, int32_t anzahl);
