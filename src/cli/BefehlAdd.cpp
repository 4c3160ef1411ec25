// add: Pfade aufnehmen wie eine Ablage auf der Liste: Playlisten, Ordner, Dateien.
#include "cli/AufnahmeHilfen.h"
#include "cli/Befehle.h"
#include "cli/IndexLaden.h"
#include "cli/MedienHilfen.h"
#include "intake/Hinzufuegen.h"

namespace {
int Ausführen(CliKontext& c, const std::vector<std::string>& argumente) {
    EinsBasiert<std::string> pfade;
    for (const auto& a : argumente) {
        if (a.size() > 1 && a[0] == '-') return GebrauchsFehler("add: unbekannter Schalter '" + a + "'.");
        pfade.Anhängen(VollerDateiPfad(a));
    }
    if (pfade.UBound() == 0) return GebrauchsFehler("add braucht mindestens einen Pfad.");
    if (!IndexFürBefehlLaden(c)) return 1;
    DragDropVerarbeiten(c.k, pfade);
    return AufnahmeAbschließen(c);
}
}  // namespace

extern const Befehl BefehlAdd = {"add", "add PFAD...", "Dateien, Ordner und Playlisten in den Index aufnehmen",
                                 Ausführen};
