#pragma once
// Die Dateityp-Tabelle eines Index: Vorgaben und Einsetzen.
#include <string>

struct IndexOptionen;

struct DateitypVorgabe {
    const char* eintrag;  // "mp3=1"
    const char* klasse;   // "110": MPEG-Audio, Audio, Bild
};
// Die 13 Vorgabezeilen.
const DateitypVorgabe* DateitypenVorgaben(int& anzahl);
// Ersetzt die Tabelle durch die Vorgaben und löscht die Leer-Markierung.
void DateitypenVorgabenEinsetzen(IndexOptionen& o);
// Ohne Tabelle gelten die Vorgaben (etwa für Dateien, die ohne geladenen Index gelesen werden).
void DateitypenVorgabenWennLeer(IndexOptionen& o);
