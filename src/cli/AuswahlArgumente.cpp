#include "cli/AuswahlArgumente.h"

#include "cli/CliKontext.h"
#include "cli/IndexLaden.h"

#include <cstdio>

namespace {
constexpr const char* kEinSuchtext = "Nur ein Suchtext ist erlaubt; Wörter trennt ein Leerzeichen im selben Argument.";

}  // namespace

int SuchSchalterLesen(const std::vector<std::string>& argumente, size_t& i, SuchArgumente& s, std::string& fehler) {
    const std::string& arg = argumente[i];
    if (arg == "--not") {
        s.abfrage.nicht = true;
        return 1;
    }
    if (arg != "--field" && arg != "--row") return 0;
    if (i + 1 >= argumente.size()) {
        fehler = arg + " braucht einen Wert.";
        return -1;
    }
    if (arg == "--row") {
        s.abfrage.zeilen.push_back(argumente[++i]);
    } else {
        s.abfrage.feld = argumente[++i];
        s.feldGesetzt = true;
    }
    return 1;
}

std::string SuchArgumentePrüfen(const SuchArgumente& s) {
    const SuchAbfrage& a = s.abfrage;
    if (!a.zeilen.empty() && (s.mitText || s.feldGesetzt || a.nicht))
        return "--row lässt sich nicht mit --field, --not oder einem Suchtext verbinden.";
    if (a.zeilen.empty() && !s.mitText) return "Kein Suchtext angegeben (\"\" findet alle Einträge).";
    return AbfrageFeldFehler(a);
}

std::string AuswahlLesen(const std::vector<std::string>& argumente, EintragsAuswahl& auswahl,
                         std::vector<std::string>& rest) {
    SuchArgumente s;
    bool suchSchalter = false;
    std::string fehler;
    for (size_t i = 0; i < argumente.size(); ++i) {
        const std::string& arg = argumente[i];
        const int such = SuchSchalterLesen(argumente, i, s, fehler);
        if (such < 0) return fehler;
        if (such > 0) {
            suchSchalter = true;
        } else if (arg == "--entry") {
            int32_t nummer = 0;
            if (++i >= argumente.size() || !NummerLesen(argumente[i], nummer))
                return "--entry braucht eine Eintragsnummer.";
            auswahl.einträge.push_back(nummer);
        } else if (arg == "--search") {
            if (i + 1 >= argumente.size()) return "--search braucht einen Wert.";
            if (s.mitText) return kEinSuchtext;
            s.abfrage.text = argumente[++i];
            s.mitText = suchSchalter = true;
        } else {
            rest.push_back(arg);
        }
    }
    if (!suchSchalter) return {};
    if (!auswahl.einträge.empty()) return "--entry lässt sich nicht mit einer Suche verbinden.";
    if (std::string f = SuchArgumentePrüfen(s); !f.empty()) return f;
    if (std::string f = AbfrageZeilenFehler(s.abfrage); !f.empty()) return f;
    auswahl.mitSuche = true;
    auswahl.suche = s.abfrage;
    return {};
}

bool AuswahlAnwenden(CliKontext& c, const EintragsAuswahl& auswahl, std::vector<int32_t>& gewählt) {
    std::string fehler;
    if (EinträgeWählen(c.k, auswahl, gewählt, fehler)) return true;
    std::fprintf(stderr, "%s\n", fehler.c_str());
    return false;
}
