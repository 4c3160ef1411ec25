// scan: einen Ordner durchsuchen und die gefundenen Dateien zeigen, ohne Index.
#include "app/Pfade.h"
#include "app/Texte.h"
#include "cli/Befehle.h"
#include "cli/CliAusgabe.h"
#include "cli/MedienHilfen.h"
#include "intake/Scanner.h"

#include <cstdio>

namespace {
int Ausführen(CliKontext& c, const std::vector<std::string>& argumente) {
    EinsBasiert<std::string> masken(1);  // eine leere Maske: jede Datei
    int16_t unterordner = 1;
    std::string ordner;
    for (size_t i = 0; i < argumente.size(); ++i) {
        const std::string& a = argumente[i];
        if (a == "--masks") {
            if (++i >= argumente.size() || !TextZerlegen(argumente[i], 1, -1, ",", masken))
                return GebrauchsFehler("--masks braucht Namensenden, etwa .mp3,.kkt");
        } else if (a == "--no-subfolders") {
            unterordner = 0;
        } else if (a.size() > 1 && a[0] == '-') {
            return GebrauchsFehler("scan: unbekannter Schalter '" + a + "'.");
        } else if (ordner.empty()) {
            ordner = VollerDateiPfad(a);
        } else {
            return GebrauchsFehler("scan nimmt genau einen Ordner.");
        }
    }
    if (ordner.empty()) return GebrauchsFehler("scan braucht einen Ordner.");
    if (!IstOrdner(ordner)) {
        std::fprintf(stderr, "Der Ordner '%s' existiert nicht.\n", ordner.c_str());
        return 1;
    }
    SuchlisteHinzufügen(c.k, "", 1);
    DateienSuchenAPI(c.k, ordner, masken, unterordner, false);
    std::string aus;
    const auto& a = c.k.Aufnahme;
    for (int32_t i = 1; i <= a.SuchlisteAnzahl; ++i) aus += AusgabeMaskieren(a.Suchliste[i]) + "\n";
    std::fwrite(aus.data(), 1, aus.size(), stdout);
    return std::fflush(stdout) == 0 ? 0 : 1;
}
}  // namespace

extern const Befehl BefehlScan = {"scan", "scan ORDNER [--masks .mp3,.kkt] [--no-subfolders]",
                                  "Dateien eines Ordners auflisten (mit Unterordnern)", Ausführen};
