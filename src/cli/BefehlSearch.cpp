// search: eine Suche wie im Hauptfenster (ein Feld, ein Text) oder über mehrere Abfragezeilen.
#include "cli/AuswahlArgumente.h"
#include "cli/Befehle.h"
#include "cli/IndexLaden.h"

#include <cstdio>

namespace {
constexpr const char* kAufruf = "search [--field FELD] [--not] TEXT | search --row FELD:BEDINGUNG:TEXT ...";

// Leerer Text: alles in Ordnung; sonst der Grund für den Gebrauchsfehler.
std::string ArgumenteLesen(const std::vector<std::string>& argumente, SuchArgumente& s) {
    bool nurText = false;
    std::string fehler;
    for (size_t i = 0; i < argumente.size(); ++i) {
        const std::string& arg = argumente[i];
        if (!nurText && arg == "--") {
            nurText = true;
            continue;
        }
        const int such = nurText ? 0 : SuchSchalterLesen(argumente, i, s, fehler);
        if (such < 0) return fehler;
        if (such > 0) continue;
        if (!nurText && arg.starts_with("--")) return "Unbekannter Schalter '" + arg + "'.";
        if (s.mitText) return "Nur ein Suchtext ist erlaubt; Wörter trennt ein Leerzeichen im selben Argument.";
        s.abfrage.text = arg;
        s.mitText = true;
    }
    return SuchArgumentePrüfen(s);
}

int Ausführen(CliKontext& c, const std::vector<std::string>& argumente) {
    SuchArgumente s;
    const std::string fehler = ArgumenteLesen(argumente, s);
    if (!fehler.empty()) return GebrauchsFehler(fehler + "\nAufruf: " + kAufruf);
    if (const std::string f = AbfrageZeilenFehler(s.abfrage); !f.empty()) return GebrauchsFehler(f);
    if (!IndexFürBefehlLaden(c)) return 1;
    AbfrageSuchen(c.k, s.abfrage);
    for (const auto& zeile : c.k.Liste.lstSongs.zeilen) {
        const int32_t e = zeile.eintrag;
        std::printf("%d\t%d\t%s\n", e, int(c.k.DateiTreffer[e]), AusgabeMaskieren(c.k.DateiPfade[e]).c_str());
    }
    std::fprintf(stderr, "%s\n", c.k.Liste.DateiAnzahlText.c_str());
    return 0;
}
}  // namespace

extern const Befehl BefehlSearch = {
    "search", "search [--field FELD] [--not] TEXT",
    "Suchen wie im Hauptfenster; --row FELD:BEDINGUNG:TEXT (mehrfach) für mehrere Abfragezeilen", Ausführen};
