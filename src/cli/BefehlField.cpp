// field: ein Feld eines Eintrags, wie Liste, Suche und Sortierung es sehen.
#include "cli/Befehle.h"
#include "cli/IndexLaden.h"
#include "index/IndexFeld.h"
#include "cli/AuswahlArgumente.h"

#include <cstdio>

namespace {
int Ausführen(CliKontext& c, const std::vector<std::string>& argumente) {
    std::vector<std::string> frei;
    bool sortierForm = false;
    for (const auto& a : argumente) {
        if (a == "--sortform") sortierForm = true;
        else frei.push_back(a);
    }
    int32_t nummer = 0;
    if (frei.size() != 2 || !NummerLesen(frei[0], nummer)) return GebrauchsFehler("Aufruf: field N FELD [--sortform]");
    if (!IndexFürBefehlLaden(c)) return 1;
    std::vector<int32_t> gewählt;
    EintragsAuswahl auswahl;
    auswahl.einträge = {nummer};
    if (!AuswahlAnwenden(c, auswahl, gewählt)) return 1;
    std::string wert;
    int16_t art = 0;
    if (!IndexFeldZurückgeben(c.k, nummer, frei[1], sortierForm ? "1" : "", wert, art)) {
        std::fprintf(stderr, "Das Feld '%s' gibt es nicht.\n", frei[1].c_str());
        return 1;
    }
    std::printf("Wert=%s\nArt=%d\n", AusgabeMaskieren(wert).c_str(), art);
    return 0;
}
}  // namespace

extern const Befehl BefehlField = {"field", "field N FELD [--sortform]",
                                   "Ein Feld eines Eintrags (Wert und Art), nach Spaltenname oder %Muster%", Ausführen};
