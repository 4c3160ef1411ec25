// stats: die vier Zeilen der Index-Statistik.
#include "cli/Befehle.h"
#include "cli/IndexLaden.h"
#include "reports/Statistik.h"

#include <cstdio>

namespace {
int Ausführen(CliKontext& c, const std::vector<std::string>& argumente) {
    if (!argumente.empty()) return GebrauchsFehler("stats: unbekanntes Argument '" + argumente[0] + "'.");
    if (!IndexFürBefehlLaden(c)) return 1;
    for (const auto& zeile : IndexStatistik(c.k))
        std::printf("%s: %s\n", zeile.überschrift.c_str(), zeile.text.c_str());
    return 0;
}
}  // namespace

extern const Befehl BefehlStats = {"stats", "stats", "Index-Statistik: Anzahl, Größe, Spieldauer, Verwaltung",
                                   Ausführen};
