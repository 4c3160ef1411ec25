// complete: die Vorschläge der Aufklappliste zu einem Feld, je Zeile einer.
#include "cli/Befehle.h"
#include "cli/IndexLaden.h"
#include "index/IndexFeld.h"
#include "search/AutoComplete.h"
#include "search/SuchZustand.h"

#include <cstdio>

namespace {
int Ausführen(CliKontext& c, const std::vector<std::string>& argumente) {
    if (argumente.empty() || argumente.size() > 2) return GebrauchsFehler("Aufruf: complete FELD [ZWEITESFELD]");
    for (const auto& feld : argumente)
        if (IndexFeldVorbereiten(feld).kennung == IndexFeldKennung::Unbekannt)
            return GebrauchsFehler("Das Feld '" + feld + "' gibt es nicht.");
    if (!IndexFürBefehlLaden(c)) return 1;
    KomboFeld liste;
    AutoCompleteFüllen(c.k, liste, argumente[0], 1, argumente.size() == 2 ? argumente[1] : std::string());
    for (const auto& wert : liste.List) std::printf("%s\n", AusgabeMaskieren(wert).c_str());
    return 0;
}
}  // namespace

extern const Befehl BefehlComplete = {"complete", "complete FELD [ZWEITESFELD]",
                                      "Die Werte eines Feldes (ohne Doppelte) für die Vorschlagsliste", Ausführen};
