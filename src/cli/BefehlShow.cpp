// show: die Einträge des Index mit allen Feldern, oder nur ihre Zahl.
#include "app/DateiInfo.h"
#include "cli/Befehle.h"
#include "cli/DatensatzAusgabe.h"
#include "cli/IndexLaden.h"

#include <cstdio>

namespace {
int Ausführen(CliKontext& c, const std::vector<std::string>& argumente) {
    bool nurAnzahl = false;
    int32_t eintrag = 0;
    for (size_t i = 0; i < argumente.size(); ++i) {
        if (argumente[i] == "--count") {
            nurAnzahl = true;
        } else if (argumente[i] == "--entry") {
            if (++i >= argumente.size() || !NummerLesen(argumente[i], eintrag))
                return GebrauchsFehler("--entry braucht eine Eintragsnummer.");
        } else {
            return GebrauchsFehler("show: unbekanntes Argument '" + argumente[i] + "'.");
        }
    }
    if (!IndexFürBefehlLaden(c)) return 1;
    const Kartei& k = c.k;
    if (nurAnzahl) {
        std::printf("DateiAnzahl=%d\n", k.DateiAnzahl);
        return 0;
    }
    if (eintrag != 0 && (eintrag < 1 || eintrag > k.DateiAnzahl)) {
        std::fprintf(stderr, "Den Eintrag %d gibt es nicht; der Index hat %d Einträge.\n", eintrag, k.DateiAnzahl);
        return 1;
    }
    const int32_t von = eintrag ? eintrag : 1, bis = eintrag ? eintrag : k.DateiAnzahl;
    std::string aus;
    for (int32_t n = von; n <= bis; ++n) {
        DatensatzBlockAnhängen(aus, n, k.DateiPfade[n], k.DateiDaten[n]);
        if (aus.size() > (1u << 20)) {  // in großen Stücken ausgeben
            std::fwrite(aus.data(), 1, aus.size(), stdout);
            aus.clear();
        }
    }
    std::fwrite(aus.data(), 1, aus.size(), stdout);
    return std::fflush(stdout) == 0 ? 0 : 1;
}
}  // namespace

extern const Befehl BefehlShow = {"show", "show [--entry N] [--count]",
                                  "Einträge mit allen Feldern zeigen (Name=Wert), oder ihre Zahl", Ausführen};
