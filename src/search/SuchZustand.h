#pragma once
// Zustand der Suche und der Ergebnisliste.
#include "search/Ergebnisliste.h"

struct SuchZustand {};

struct ListenZustand {
    Ergebnisliste lstSongs;  // die Hauptliste
};
