// sort: Klicks auf Spaltenköpfe der Ergebnisliste, der Reihe nach; danach wird gespeichert.
#include "cli/Befehle.h"
#include "cli/IndexLaden.h"
#include "index/IndexDatei.h"
#include "index/Spalten.h"
#include "search/Sortieren.h"
#include "search/Suche.h"

#include <cstdio>

namespace {
int Ausführen(CliKontext& c, const std::vector<std::string>& argumente) {
    if (argumente.empty()) return GebrauchsFehler("Aufruf: sort SPALTE...");
    for (const auto& name : argumente)
        if (SpaltenNummer(name) == 0) return GebrauchsFehler("Die Spalte '" + name + "' gibt es nicht.");
    if (!IndexFürBefehlLaden(c)) return 1;
    // Die Liste zeigt alle Einträge, wie nach dem Öffnen: ohne Zeilen sortiert ein Klick nichts.
    tmrListe_Timer(c.k);
    for (const auto& name : argumente) {
        SpalteNachNummerSortieren(c.k, SpaltenNummer(name));
        if (!c.ui.LetzterTitelText().empty()) std::fprintf(stderr, "%s\n", c.ui.LetzterTitelText().c_str());
    }
    return ÄnderungenSpeichern(c.k) ? 0 : 1;
}
}  // namespace

extern const Befehl BefehlSort = {"sort", "sort SPALTE...",
                                  "Nach Spalten sortieren wie ein Klick auf ihren Kopf (zweimal: absteigend); "
                                  "speichert, wenn sich etwas geändert hat",
                                  Ausführen};
