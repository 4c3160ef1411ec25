// propose: Zielordner für die erste gewählte Datei vorschlagen (cmdVorschlagen).
#include "cli/AuswahlArgumente.h"
#include "cli/Befehle.h"
#include "cli/IndexLaden.h"
#include "fileops/Kopieren.h"

#include <cstdio>

namespace {
int Ausführen(CliKontext& c, const std::vector<std::string>& argumente) {
    EintragsAuswahl auswahl;
    std::vector<std::string> rest;
    if (const std::string fehler = AuswahlLesen(argumente, auswahl, rest); !fehler.empty())
        return GebrauchsFehler(fehler);
    if (!rest.empty()) return GebrauchsFehler("propose: unerwartetes Argument '" + rest[0] + "'.");
    if (!IndexFürBefehlLaden(c)) return 1;
    std::vector<int32_t> gewählt;
    if (!AuswahlAnwenden(c, auswahl, gewählt)) return 1;
    if (gewählt.empty()) {
        std::fprintf(stderr, "propose: Es ist kein Eintrag gewählt.\n");
        return 1;
    }
    for (const std::string& ordner : ZielordnerVorschlagen(c.k, gewählt.front())) NameWertAusgeben("Ordner", ordner);
    return std::fflush(stdout) == 0 ? 0 : 1;
}
}  // namespace

extern const Befehl BefehlPropose = {
    "propose", "propose [AUSWAHL]",
    "Zielordner für den ersten gewählten Eintrag: sein eigener Ordner, dann Ordner mit Interpret oder Album",
    Ausführen};
