// dupes: Mehrfacheinträge und Aufräumkandidaten unter den gewählten Einträgen.
#include "cli/AuswahlArgumente.h"
#include "cli/Befehle.h"
#include "cli/IndexLaden.h"
#include "reports/Duplikate.h"

#include <cstdio>

namespace {
int Ausführen(CliKontext& c, const std::vector<std::string>& argumente) {
    EintragsAuswahl auswahl;
    std::vector<std::string> rest;
    if (std::string fehler = AuswahlLesen(argumente, auswahl, rest); !fehler.empty()) return GebrauchsFehler(fehler);
    int32_t methode = -1;
    if (rest.size() != 2 || rest[0] != "--methode" || !NummerLesen(rest[1], methode) || methode < 0 ||
        methode >= Suchmethode::Anzahl) {
        std::string hilfe = "Aufruf: dupes --methode N [AUSWAHL]; N ist eine der Methoden:";
        for (size_t i = 0; i < SuchmethodenTexte().size(); ++i)
            hilfe += "\n  " + std::to_string(i) + " " + SuchmethodenTexte()[i];
        return GebrauchsFehler(hilfe);
    }
    if (!IndexFürBefehlLaden(c)) return 1;
    std::vector<int32_t> gewählt;
    if (!AuswahlAnwenden(c, auswahl, gewählt)) return 1;
    const auto treffer = DuplikateSuchen(c.k, int16_t(methode), gewählt);
    for (const auto& t : treffer) std::printf("%s\n", AusgabeMaskieren(TrefferZeile(c.k, int16_t(methode), t)).c_str());
    std::printf("%s\n", GefundenAnzahlText(treffer.size()).c_str());
    return std::fflush(stdout) == 0 ? 0 : 1;
}
}  // namespace

extern const Befehl BefehlDupes = {"dupes", "dupes --methode N [AUSWAHL]",
                                   "Mehrfacheinträge, fehlende Dateien oder Dateien ohne Tag finden (N = 0..9)",
                                   Ausführen};
