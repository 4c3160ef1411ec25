// show: die gewählten Einträge mit allen Feldern, oder nur ihre Zahl.
#include "app/DateiInfo.h"
#include "cli/AuswahlArgumente.h"
#include "cli/Befehle.h"
#include "cli/DatensatzAusgabe.h"
#include "cli/IndexLaden.h"

#include <cstdio>

namespace {
int Ausführen(CliKontext& c, const std::vector<std::string>& argumente) {
    EintragsAuswahl auswahl;
    std::vector<std::string> rest;
    if (const std::string fehler = AuswahlLesen(argumente, auswahl, rest); !fehler.empty())
        return GebrauchsFehler(fehler);
    bool nurAnzahl = false;
    for (const auto& a : rest) {
        if (a != "--count") return GebrauchsFehler("show: unbekanntes Argument '" + a + "'.");
        nurAnzahl = true;
    }
    if (!IndexFürBefehlLaden(c)) return 1;
    std::vector<int32_t> gewählt;
    if (!AuswahlAnwenden(c, auswahl, gewählt)) return 1;
    if (nurAnzahl) {
        std::printf("DateiAnzahl=%zu\n", gewählt.size());
        return 0;
    }
    const Kartei& k = c.k;
    std::string aus;
    for (const int32_t n : gewählt) {
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

extern const Befehl BefehlShow = {"show", "show [AUSWAHL] [--count]",
                                  "Die gewählten Einträge mit allen Feldern zeigen (Name=Wert), oder ihre Zahl",
                                  Ausführen};
