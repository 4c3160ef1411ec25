// sort: Klicks auf Spaltenköpfe der Ergebnisliste, der Reihe nach; danach wird gespeichert.
#include "app/Texte.h"
#include "cli/Befehle.h"
#include "cli/IndexLaden.h"
#include "index/IndexDatei.h"
#include "index/Spalten.h"
#include "search/Sortieren.h"
#include "search/Suche.h"

#include <cstdio>

namespace {
// Kopf und Tag der Spalte, wie die Liste sie trägt; eine ausgeblendete Spalte bekommt sie, wie
// SpaltenAnpassen sie anlegen würde.
ListenSpalte SpaltenKopf(const Kartei& k, int32_t nummer) {
    for (const auto& s : k.Liste.lstSongs.spalten)
        if (s.spalte == nummer) return s;
    ListenSpalte s;
    s.spalte = nummer;
    s.kopf = SpaltenName(nummer);
    if (nummer == SpalteBenutzerdefiniert) {
        s.kopf = Ersetzen(k.Optionen.SpaltenNutzerformat, "%", "");
        s.tag.assign(1, 'b');  // so sieht GCC 12 keine Überlappung, wo keine ist
    }
    return s;
}

int Ausführen(CliKontext& c, const std::vector<std::string>& argumente) {
    if (argumente.empty()) return GebrauchsFehler("Aufruf: sort SPALTE...");
    for (const auto& name : argumente)
        if (SpaltenNummer(name) == 0) return GebrauchsFehler("Die Spalte '" + name + "' gibt es nicht.");
    if (!IndexFürBefehlLaden(c)) return 1;
    // Die Liste zeigt alle Einträge, wie nach dem Öffnen: ohne Zeilen sortiert ein Klick nichts.
    tmrListe_Timer(c.k);
    for (const auto& name : argumente) {
        const ListenSpalte kopf = SpaltenKopf(c.k, SpaltenNummer(name));
        SpalteSortieren(c.k, kopf.kopf, kopf.tag);
        if (!c.ui.LetzterTitelText().empty()) std::fprintf(stderr, "%s\n", c.ui.LetzterTitelText().c_str());
    }
    if (!c.k.DateiGeändert) return 0;
    const bool mitFortschritt = c.k.E.StartBildschirm == 1 && c.k.E.StartBildschirmNichtBeiSpeichern != 1;
    return DateiSpeichern(c.k, c.k.Dateiname, mitFortschritt) ? 0 : 1;
}
}  // namespace

extern const Befehl BefehlSort = {"sort", "sort SPALTE...",
                                  "Nach Spalten sortieren wie ein Klick auf ihren Kopf (zweimal: absteigend); "
                                  "speichert, wenn sich etwas geändert hat",
                                  Ausführen};
