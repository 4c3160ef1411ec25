#pragma once
// Das Symbol im Infobereich: sein Tipptext und was seine Mausereignisse am Hauptfenster tun.
#include <cstdint>
#include <string>

struct FensterLage;

// szTip: Programmtitel & " - Hier klicken für Funktionen" (höchstens 63 Bytes).
std::string TrayTippText();

enum class TrayAktion {
    Keine,
    FensterZeigen,  // minimiert: normal; versteckt: sichtbar
    Verstecken,
    MenüÖffnen,  // mnu_rechtsklick
};

// Die Ereignisse des Symbols, wie sie das Fenster meldet: 513 linke Taste gedrückt, 514
// losgelassen, 515 Doppelklick, 516 rechte Taste gedrückt, 517 losgelassen.
namespace TrayEreignis {
constexpr int32_t LinksAb = 513, LinksAuf = 514, LinksDoppel = 515, RechtsAb = 516, RechtsAuf = 517;
}
TrayAktion TrayEreignisAuswerten(int32_t code);

// mnu_rechtsklick_programmzeigen ist angehakt, solange das Fenster sichtbar und nicht minimiert ist.
bool ProgrammSichtbar(const FensterLage& lage);
// Der Menüeintrag schaltet um: ein sichtbares Fenster wird versteckt, sonst gezeigt.
TrayAktion ProgrammZeigenUmschalten(const FensterLage& lage);
