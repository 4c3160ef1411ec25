// VORLÄUFIG: nur die Frage "ist die Datei da?"; Wechselmedien und die Nachfrage kommen später.
#include "intake/NichtVerfuegbar.h"

#include "app/Kartei.h"
#include "app/Pfade.h"

int16_t DateiNichtVerfügbarPrüfen(Kartei& k, int32_t position, bool, bool) {
    if (!k.DateiPfade.GültigerIndex(position)) return 1;
    return DoesExist(k.DateiPfade[position]) ? 0 : 1;
}
