// sync: den Index mit den Abgleich-Ordnern abgleichen (Index synchronisieren).
#include "cli/Befehle.h"
#include "cli/IndexLaden.h"
#include "index/IndexDatei.h"
#include "intake/Synchronisieren.h"

#include <cstdio>

namespace {
int Ausführen(CliKontext& c, const std::vector<std::string>& argumente) {
    if (!argumente.empty()) return GebrauchsFehler("sync: unerwartetes Argument '" + argumente[0] + "'.");
    if (!IndexFürBefehlLaden(c)) return 1;
    const AbgleichErgebnis e = ListeAufräumen(c.k);
    std::printf("%s\n", e.text.c_str());
    std::fflush(stdout);
    const bool gesichert = ÄnderungenSpeichern(c.k);
    return gesichert && !e.abgebrochen ? 0 : 1;
}
}  // namespace

extern const Befehl BefehlSync = {
    "sync", "sync", "Neues aus den Abgleich-Ordnern aufnehmen und Einträge fehlender Dateien entfernen", Ausführen};
