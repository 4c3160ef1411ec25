#pragma once
// Was zu einem Index gehört und in seiner Datei als "#OPT:"-Zeilen steht.
#include "app/EinsBasiert.h"

#include <cstdint>
#include <string>
#include <vector>

// Ein Eintrag der Ereignis-Überwachung. Keine Funktion des Programms füllt die Liste; der Leser
// übergeht "#TERMIN:"-Zeilen, der Schreiber schreibt, was in ihr steht.
struct Termin {
    std::string Beschreibung;
    std::string Datum;
    int16_t Kategorie = 0;
    std::string Infos;
    int16_t Benachrichtigen = 0;
    std::string Zeiteinheit;
    int16_t Erinnern = 0;
};

struct IndexOptionen {
    // Ordner-Abgleich: drei parallele Felder ab 1; SyncLeer markiert die leere Liste
    // (die Felder halten dann ein unbenutztes Element).
    EinsBasiert<std::string> SyncOrdner;
    EinsBasiert<int16_t> SyncUnterordner;
    EinsBasiert<std::string> SyncKopierenInOrdner;
    bool SyncLeer = true;
    int16_t SyncEntfernen = 1;  // "#OPT:SYNC_ENTFERNEN="

    // Dateitypen: Eintrag "mp3=1" und Klasse "110" (MPEG-Audio, Audio, Bild).
    EinsBasiert<std::string> DateitypEintrag;
    EinsBasiert<std::string> DateitypKlasse;
    bool DateitypenLeer = true;

    // Spalten der Hauptliste.
    std::string Spalten = "0";  // Spaltenbeschreibung "n=Breite=Position,..."
    std::string SpaltenNutzerformat = "%Interpret% - %Titel%";
    int16_t SpaltenLeiste = 1;
    int16_t SpaltenGitter = 0;  // wird beim Laden nicht zurückgesetzt

    std::vector<Termin> TerminListe;
};
