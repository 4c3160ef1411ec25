// save: den Index laden und (neu) schreiben, auf Wunsch unter anderem Namen.
#include "cli/Befehle.h"
#include "cli/IndexLaden.h"
#include "index/IndexDatei.h"

namespace {
int Ausführen(CliKontext& c, const std::vector<std::string>& argumente) {
    std::string ziel;
    for (size_t i = 0; i < argumente.size(); ++i) {
        if (argumente[i] == "--to" && i + 1 < argumente.size()) ziel = argumente[++i];
        else return GebrauchsFehler("Aufruf: save [--to PFAD]");
    }
    if (!IndexFürBefehlLaden(c)) return 1;
    if (ziel.empty()) ziel = c.k.Dateiname;
    return IndexSpeichern(c.k, ziel) ? 0 : 1;
}
}  // namespace

extern const Befehl BefehlSave = {"save", "save [--to PFAD]", "Index laden und speichern (über PFAD~)", Ausführen};
