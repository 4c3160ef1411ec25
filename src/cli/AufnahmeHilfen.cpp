#include "cli/AufnahmeHilfen.h"

#include "cli/CliKontext.h"
#include "index/IndexDatei.h"

#include <cstdio>

int AufnahmeAbschließen(CliKontext& c) {
    std::printf("%s\n", c.ui.LetzterTitelText().c_str());
    std::fflush(stdout);
    return ÄnderungenSpeichern(c.k) ? 0 : 1;
}
