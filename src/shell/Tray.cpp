#include "shell/Tray.h"

#include "app/Kartei.h"
#include "shell/Beenden.h"

std::string TrayTippText() {
    std::string tipp = std::string(ProgrammTitel) + " - Hier klicken für Funktionen";
    // Das Feld fasst 64 Bytes samt Abschluss; nie mitten in einem Zeichen abschneiden.
    if (tipp.size() > 63) {
        size_t ende = 63;
        while (ende > 0 && (static_cast<unsigned char>(tipp[ende]) & 0xC0) == 0x80) --ende;
        tipp.resize(ende);
    }
    return tipp;
}

TrayAktion TrayEreignisAuswerten(int32_t code) {
    switch (code) {
    case TrayEreignis::LinksAuf:
    case TrayEreignis::LinksDoppel: return TrayAktion::FensterZeigen;
    case TrayEreignis::RechtsAuf: return TrayAktion::MenüÖffnen;
    default: return TrayAktion::Keine;
    }
}

bool ProgrammSichtbar(const FensterLage& lage) { return !lage.versteckt && !lage.minimiert; }

TrayAktion ProgrammZeigenUmschalten(const FensterLage& lage) {
    return ProgrammSichtbar(lage) ? TrayAktion::Verstecken : TrayAktion::FensterZeigen;
}
