// Schreibt eine erfundene Indexdatei mit N Einträgen (für Bildschirmfotos und Versuche von Hand).
// Aufruf: kk_testindex N DATEI [SAAT]
#include "app/Kartei.h"
#include "index/IndexDatei.h"
#include "support/Attrappen.h"
#include "support/IndexGenerator.h"

#include <cstdio>
#include <cstdlib>
#include <string>

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fprintf(stderr, "Aufruf: %s ANZAHL DATEI [SAAT]\n", argv[0]);
        return 2;
    }
    TestUmgebung u;
    u.k.E.StartBildschirm = 0;
    const int anzahl = std::atoi(argv[1]);
    IndexErzeugen(u.k, anzahl < 0 ? 0 : anzahl, argc > 3 ? static_cast<uint32_t>(std::atoi(argv[3])) : 1u);
    if (!DateiSpeichern(u.k, argv[2], false)) {
        for (const auto& m : u.ui.meldungen) std::fprintf(stderr, "%s\n", m.text.c_str());
        return 1;
    }
    return 0;
}
