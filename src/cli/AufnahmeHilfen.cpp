#include "cli/AufnahmeHilfen.h"

#include "cli/CliKontext.h"
#include "index/IndexDatei.h"

#include <cstdio>

int AufnahmeAbschließen(CliKontext& c) {
    std::printf("%s\n", c.ui.LetzterTitelText().c_str());
    std::fflush(stdout);
    if (!c.k.DateiGeändert) return 0;
    const bool mitFortschritt = c.k.E.StartBildschirm == 1 && c.k.E.StartBildschirmNichtBeiSpeichern != 1;
    return DateiSpeichern(c.k, c.k.Dateiname, mitFortschritt) ? 0 : 1;
}
