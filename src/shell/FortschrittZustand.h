#pragma once
// Zustand des Fortschrittsfensters frmFortschritt und der Abbruch-Merker.
#include "app/Oberflaeche.h"

#include <cstdint>

struct FortschrittZustand {
    bool FortschrittAbgebrochen = false;  // nur die drei Routinen und der Knopf schreiben ihn
    FortschrittAnsicht ansicht;           // was das Fenster gerade zeigt
    int32_t maximum = 0;
    bool mitBalken = false, mitProzess = false, mitAbbrechen = false;
};
