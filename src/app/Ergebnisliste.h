#pragma once
// Die Ergebnisliste lstSongs, wie die Logik sie sieht: reine Daten. Das Fenster zeigt sie über
// ein Modell an und schreibt die Auswahl der Person hierher zurück.
#include <cstdint>
#include <string>
#include <vector>

struct ListenSpalte {
    std::string kopf;       // Überschrift
    std::string tag;        // "", "e" (beim Abgleich behalten) oder "b" (Benutzerdefiniert)
    int32_t breite = 1400;  // in Twips wie in der Spaltenbeschreibung
    int32_t spalte = 0;     // Nummer in der Spaltentabelle (1..30)
};

struct ListenZeile {
    int32_t eintrag = 0;  // Tag der Zeile: Eintragsnummer in der Tabelle
    bool ausgewählt = false;
};

struct Ergebnisliste {
    std::vector<ListenSpalte> spalten;  // in Anzeigereihenfolge
    std::vector<ListenZeile> zeilen;    // in Listenreihenfolge
    bool kopfleiste = true;             // Spaltenköpfe sichtbar
    bool gitter = false;                // Gitterlinien
    bool eingerichtet = false;          // SpaltenAnpassen hat die Spalten gesetzt (auch auf keine)
    int32_t sichtbareZeile = -1;        // diese Zeile (0-basiert) ins Bild holen, -1 = keine
    uint64_t version = 0;               // wird bei jeder Änderung erhöht (für die Anzeige)

    void Geändert() { ++version; }
};
