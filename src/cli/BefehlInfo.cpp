// info: die Daten von Mediendateien lesen, wie sie in den Index kämen, und als Block ausgeben.
#include "app/Zahlen.h"
#include "cli/Befehle.h"
#include "cli/DatensatzAusgabe.h"
#include "cli/MedienHilfen.h"
#include "media/MedienInfos.h"

#include <cstdio>

namespace {
bool SchalterGültig(const std::string& s) { return s.size() == 3 && s.find_first_not_of("01") == std::string::npos; }

int Ausführen(CliKontext& c, const std::vector<std::string>& argumente) {
    std::string schalter = "111";
    std::vector<std::string> dateien;
    MedienBefehlVorbereiten(c);
    for (size_t i = 0; i < argumente.size(); ++i) {
        const std::string& a = argumente[i];
        if (a == "--flags") {
            if (++i >= argumente.size() || !SchalterGültig(argumente[i]))
                return GebrauchsFehler("--flags braucht drei Ziffern 0 oder 1, etwa 111.");
            schalter = argumente[i];
        } else if (a == "--bytes") {
            int32_t bytes = 0;
            if (++i >= argumente.size() || !IstNumerisch(argumente[i]) || !LongAus(*ZahlWert(argumente[i]), bytes))
                return GebrauchsFehler("--bytes braucht eine Zahl.");
            c.k.E.TAGsBytesSuchen = bytes;
        } else if (a.size() > 1 && a[0] == '-') {
            return GebrauchsFehler("info: unbekannter Schalter '" + a + "'.");
        } else {
            dateien.push_back(a);
        }
    }
    if (dateien.empty()) return GebrauchsFehler("info braucht mindestens eine Datei.");

    int rückgabe = 0;
    std::string aus;
    for (size_t n = 0; n < dateien.size(); ++n) {
        const std::string pfad = VollerDateiPfad(dateien[n]);
        const DateiInfo d =
            MedienInfosLesen(c.k, pfad, DateiInfo{}, schalter.substr(0, 2), false, schalter.substr(2, 1), "1");
        if (d.Datei_Größe < 0) {
            std::fprintf(stderr, "Die Datei '%s' existiert nicht.\n", pfad.c_str());
            rückgabe = 1;
        }
        DatensatzBlockAnhängen(aus, static_cast<int32_t>(n + 1), pfad, d);
    }
    std::fwrite(aus.data(), 1, aus.size(), stdout);
    return std::fflush(stdout) == 0 ? rückgabe : 1;
}
}  // namespace

extern const Befehl BefehlInfo = {"info", "info [--flags 111] [--bytes N] DATEI...",
                                  "Daten von Mediendateien lesen und zeigen (Name=Wert)", Ausführen};
