// rename: die Umbenennung über die Auswahl, ohne Dialog; Fragen beantwortet --yes.
#include "cli/AuswahlArgumente.h"
#include "cli/Befehle.h"
#include "cli/IndexLaden.h"
#include "fileops/Umbenennen.h"
#include "index/IndexDatei.h"

#include <cstdio>
#include <map>

namespace {
namespace F = UmbenennenFunktion;

// Die Attribute als Buchstaben RHSA, jeder höchstens einmal; leer hebt den Schreibschutz auf.
bool AttributeLesen(const std::string& text, UmbenennenEingaben& e) {
    std::map<char, bool*> buchstaben = {
        {'R', &e.schreibschutz}, {'H', &e.versteckt}, {'S', &e.system}, {'A', &e.archiv}};
    for (char c : text) {
        auto it = buchstaben.find(c);
        if (it == buchstaben.end() || *it->second) return false;
        *it->second = true;
    }
    return true;
}

// Liest die eigenen Schalter aus dem Rest hinter der Auswahl. Leer: in Ordnung, sonst der Grund.
std::string ArgumenteLesen(const std::vector<std::string>& rest, UmbenennenEingaben& e) {
    const std::map<std::string, std::string*> texte = {
        {"--format", &e.format},     {"--suchen", &e.suchen},
        {"--ersetzen", &e.ersetzen}, {"--basis1", &e.basis1},
        {"--zaehler", &e.zähler},    {"--basis2", &e.basis2},
        {"--endung", &e.neueEndung}, {"--ersetzen-endung", &e.ersetzenEndung}};
    bool mitFunktion = false;
    for (size_t i = 0; i < rest.size(); ++i) {
        const std::string& s = rest[i];
        const bool bekannt = texte.count(s) || s == "--funktion" || s == "--schreibweise" || s == "--attribute";
        if (!bekannt) return "rename: unerwartetes Argument '" + s + "'.";
        if (i + 1 >= rest.size()) return "rename: " + s + " braucht einen Wert.";
        const std::string& wert = rest[++i];
        if (auto it = texte.find(s); it != texte.end()) {
            *it->second = wert;
        } else if (s == "--funktion") {
            if (wert.size() != 1 || wert[0] < '0' || wert[0] > '8')
                return "rename: --funktion ist ein Code von 0 bis 8.";
            e.funktion = static_cast<int16_t>(wert[0] - '0');
            mitFunktion = true;
        } else if (s == "--schreibweise") {
            if (wert.size() != 1 || wert[0] < '1' || wert[0] > '4')
                return "rename: --schreibweise ist 1 (klein), 2 (groß), 3 oder 4 (Wortanfänge groß).";
            e.unterfunktion = static_cast<int16_t>(wert[0] - '0');
        } else if (!AttributeLesen(wert, e)) {
            return "rename: --attribute nimmt die Buchstaben R, H, S und A, jeden höchstens einmal.";
        }
    }
    if (!mitFunktion) return "rename braucht --funktion N.";
    if (e.funktion == F::Manuell || e.funktion == F::Listeneintrag)
        return "rename: die Funktionen 3 und 5 fragen je Datei nach einem Namen und gehen nur im Fenster.";
    return UmbenennenFehlendeEingabe(e);
}

int Ausführen(CliKontext& c, const std::vector<std::string>& argumente) {
    EintragsAuswahl auswahl;
    std::vector<std::string> rest;
    if (const std::string fehler = AuswahlLesen(argumente, auswahl, rest); !fehler.empty())
        return GebrauchsFehler(fehler);
    UmbenennenEingaben e;
    if (const std::string fehler = ArgumenteLesen(rest, e); !fehler.empty()) return GebrauchsFehler(fehler);
    if (!IndexFürBefehlLaden(c)) return 1;
    std::vector<int32_t> gewählt;
    if (!AuswahlAnwenden(c, auswahl, gewählt)) return 1;
    const UmbenennenErgebnis r = UmbenennenAusführen(c.k, gewählt, e);
    std::printf("Geändert=%d\nNichtGeändert=%d\n", r.geändert, r.nichtGeändert);
    const bool gesichert = ÄnderungenSpeichern(c.k);
    return gesichert && r.nichtGeändert == 0 && !r.abgebrochen ? 0 : 1;
}
}  // namespace

extern const Befehl BefehlRename = {
    "rename",
    "rename --funktion N [--format F] [--suchen S --ersetzen R] [--basis1 A --zaehler Z --basis2 B] "
    "[--schreibweise 1-4] [--endung E] [--attribute RHSA] [--ersetzen-endung E] [AUSWAHL]",
    "Dateien der Auswahl umbenennen oder ändern (N: 0 Felder, 1 Ersetzen, 2 fortlaufend, 4 Schreibweise, "
    "6 Endung, 7 Attribute, 8 leere Datei) und den Index speichern",
    Ausführen};
