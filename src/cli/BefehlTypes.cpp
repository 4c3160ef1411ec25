// types: die Dateityp-Tabelle des Index, "Eintrag<TAB>Klasse" je Zeile.
#include "cli/Befehle.h"
#include "cli/CliAusgabe.h"
#include "cli/IndexLaden.h"

#include <cstdio>

namespace {
int Ausführen(CliKontext& c, const std::vector<std::string>& argumente) {
    if (!argumente.empty()) return GebrauchsFehler("types nimmt keine Argumente.");
    if (!IndexFürBefehlLaden(c)) return 1;
    const IndexOptionen& o = c.k.Optionen;
    if (o.DateitypenLeer) return 0;  // der Index führt keine Tabelle
    std::string aus;
    for (int32_t i = 1; i <= o.DateitypEintrag.UBound(); ++i)
        aus += AusgabeMaskieren(o.DateitypEintrag[i]) + "\t" +
               AusgabeMaskieren(o.DateitypKlasse.GültigerIndex(i) ? o.DateitypKlasse[i] : "") + "\n";
    std::fwrite(aus.data(), 1, aus.size(), stdout);
    return std::fflush(stdout) == 0 ? 0 : 1;
}
}  // namespace

extern const Befehl BefehlTypes = {"types", "types", "Die Dateityp-Tabelle des Index zeigen", Ausführen};
