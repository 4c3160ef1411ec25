#pragma once
// Zustand der Spieler-Anbindung und der Abspiel-Erkennung.
#include "app/Datum.h"

#include <cstdint>
#include <string>

struct SpielerZustand {
    // Griff des Spielerfensters; 0 = nicht gefunden. Nur WinAMP_Start setzt ihn.
    int64_t WinampHandle = 0;

    // Die Erkennung folgt einem Titel: seit wann er läuft, ob er schon gezählt wurde.
    std::string AktuellerTitel;
    Datum TitelStart;
    int16_t TitelVerarbeitet = 0;
    bool TitelErkannt = false;

    // hscrlTrackPos, wie der Kern ihn sieht; das Fenster zeigt ihn nur. Während die Person
    // zieht, ist PositionGeändert gesetzt und der Zeitgeber lässt den Regler in Ruhe.
    int32_t TrackPosMaximum = 1000;
    int32_t TrackPosWert = 0;
    bool PositionGeändert = false;

    // Die Playlist-Datei eines Abspielvorgangs: offen zwischen den Schreibvorgängen, geschrieben
    // beim Übergeben.
    bool PlaylistOffen = false;
    std::string PlaylistInhalt;
    int32_t PlaylistZeilen = 0;
    // Fehlernummer des letzten Schreibens oder Übergebens (52: keine Datei offen); 0 = keiner.
    int32_t PlaylistFehler = 0;
};
