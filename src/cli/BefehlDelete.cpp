// delete: gewählte Dateien in den Papierkorb, endgültig löschen oder nur aus dem Index nehmen.
#include "cli/AuswahlArgumente.h"
#include "cli/Befehle.h"
#include "cli/IndexLaden.h"
#include "fileops/Loeschen.h"
#include "index/IndexDatei.h"

#include <cstdio>

namespace {
int Ausführen(CliKontext& c, const std::vector<std::string>& argumente) {
    EintragsAuswahl auswahl;
    std::vector<std::string> rest;
    if (const std::string fehler = AuswahlLesen(argumente, auswahl, rest); !fehler.empty())
        return GebrauchsFehler(fehler);
    int16_t modus = -1;
    for (const std::string& a : rest) {
        const int16_t m = a == "--trash"        ? LöschModus::Papierkorb
                          : a == "--permanent"  ? LöschModus::Endgültig
                          : a == "--index-only" ? LöschModus::NurIndex
                                                : int16_t(-2);
        if (m == -2) return GebrauchsFehler("delete: unerwartetes Argument '" + a + "'.");
        if (modus != -1) return GebrauchsFehler("delete: nur einer von --trash, --permanent, --index-only.");
        modus = m;
    }
    if (modus == -1) return GebrauchsFehler("delete braucht --trash, --permanent oder --index-only.");
    if (!IndexFürBefehlLaden(c)) return 1;
    std::vector<int32_t> gewählt;
    if (!AuswahlAnwenden(c, auswahl, gewählt)) return 1;
    EinsBasiert<int32_t> liste;
    for (int32_t n : gewählt) liste.Anhängen(n);
    const auto anzahl = static_cast<int32_t>(gewählt.size());
    // Wie frmLöschen: endgültig nur nach der Frage mit Stoppzeichen.
    const bool bestätigt = modus != LöschModus::Endgültig || anzahl == 0 || EndgültigLöschenBestätigen(c.k, anzahl);
    const int32_t vorher = c.k.DateiAnzahl;
    const bool vollständig = bestätigt && DateienLöschen(c.k, liste, modus, true);
    const int32_t entfernt = vorher - c.k.DateiAnzahl;
    std::printf("Entfernt=%d\nBehalten=%d\n", entfernt, anzahl - entfernt);
    std::fflush(stdout);
    const bool gesichert = ÄnderungenSpeichern(c.k);
    return gesichert && vollständig && entfernt == anzahl ? 0 : 1;
}
}  // namespace

extern const Befehl BefehlDelete = {
    "delete", "delete --trash|--permanent|--index-only [AUSWAHL]",
    "Dateien in den Papierkorb legen, endgültig löschen (fragt; mit --yes) oder nur aus dem Index nehmen", Ausführen};
