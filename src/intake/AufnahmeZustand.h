#pragma once
// Zustand der Aufnahme: die Suchliste des Ordner-Durchlaufs, der Sammelbereich beim
// Hinzufügen und die Nachfrage nach fehlenden Dateien.
#include "app/DateiInfo.h"
#include "app/EinsBasiert.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

struct AufnahmeZustand {
    // Ergebnis von DateienSuchenAPI: volle Pfade, gültig bis SuchlisteAnzahl; die Obergrenze
    // ist meist größer (das Feld wächst in Schritten von 1000).
    EinsBasiert<std::string> Suchliste;
    int32_t SuchlisteAnzahl = 0;

    // Sammelbereich: erst am Ende eines Stapels kommen die Datensätze in die Tabelle, damit
    // sie nur einmal je Stapel wächst. Außerhalb eines Stapels je ein Element.
    int32_t NeueAnzahl = 0;
    EinsBasiert<std::string> NeueDateien;
    EinsBasiert<DateiInfo> NeueMedien;
    // Zwischen DateiListeHinzuStarten und DateiListeHinzuBeenden: ein zweites Beenden ohne
    // neuen Start darf die alte NeueAnzahl nicht noch einmal übernehmen.
    bool SammlungOffen = false;

    // Doppelten-Sperre: Streutabelle (offene Adressierung) aus den oberen 32 Bit des Streuwerts
    // (NamenStreuwert) und der Eintragsnummer aller Indexpfade, Nummer 0 = leerer Platz. Einmal
    // je Stapel gebaut, damit nicht jede Datei den ganzen Index vergleicht.
    std::vector<std::pair<uint32_t, int32_t>> IndexPfadTabelle;
    int32_t IndexPfadeGebautFür = -1;  // DateiAnzahl beim Bauen, -1 = nicht gebaut

    // Nachfrage "Datei nicht verfügbar".
    int16_t DateiNichtVerfügbarAuswahl = 0;  // 0 erschienen, 1 überspringen, 2 abbrechen, 3 alle überspringen
    std::string DateiNichtVerfügbarDatei;    // wonach die Abfrage schaut
    bool NachfolgendNichtFragen = false;     // "Alle überspringen"; jeder Vorgang löscht es zu Beginn
};
