// import: eine Playliste (M3U oder PLS) einlesen und ihre Dateien aufnehmen.
#include "cli/AufnahmeHilfen.h"
#include "cli/Befehle.h"
#include "cli/IndexLaden.h"
#include "cli/MedienHilfen.h"
#include "intake/PlayListe.h"

#include <cstdio>

namespace {
int Ausführen(CliKontext& c, const std::vector<std::string>& argumente) {
    if (argumente.size() != 1 || (argumente[0].size() > 1 && argumente[0][0] == '-'))
        return GebrauchsFehler("Aufruf: import PLAYLISTE");
    const std::string pfad = VollerDateiPfad(argumente[0]);
    if (!IndexFürBefehlLaden(c)) return 1;
    if (!PlayListLesen(c.k, pfad, false, true, false)) {
        std::fprintf(stderr, "Die Playliste '%s' konnte nicht gelesen werden.\n", pfad.c_str());
        return 1;
    }
    return AufnahmeAbschließen(c);
}
}  // namespace

extern const Befehl BefehlImport = {"import", "import PLAYLISTE", "Die Dateien einer Playliste (M3U, PLS) aufnehmen",
                                    Ausführen};
