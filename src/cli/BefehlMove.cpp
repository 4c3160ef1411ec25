// move und copy: gewählte Dateien in einen Ordner verschieben oder kopieren (wie frmKopieren).
#include "cli/AuswahlArgumente.h"
#include "cli/Befehle.h"
#include "cli/IndexLaden.h"
#include "cli/MedienHilfen.h"
#include "fileops/Kopieren.h"
#include "fileops/Verschieben.h"
#include "index/IndexDatei.h"

#include <cstdio>

namespace {
int Übertragen(CliKontext& c, const std::vector<std::string>& argumente, int16_t modus, const std::string& name) {
    EintragsAuswahl auswahl;
    std::vector<std::string> rest;
    if (const std::string fehler = AuswahlLesen(argumente, auswahl, rest); !fehler.empty())
        return GebrauchsFehler(fehler);
    if (rest.size() != 1 || (rest[0].size() > 1 && rest[0][0] == '-'))
        return GebrauchsFehler(name + " braucht genau einen ZIELORDNER.");
    if (!IndexFürBefehlLaden(c)) return 1;
    std::vector<int32_t> gewählt;
    if (!AuswahlAnwenden(c, auswahl, gewählt)) return 1;
    const KopierenErgebnis e = DateienKopieren(c.k, gewählt, VollerDateiPfad(rest[0]), modus);
    std::printf("Erfolgreich=%d\nFehlgeschlagen=%d\nÜbersprungen=%d\nAbgebrochen=%d\n", e.erfolgreich, e.fehlgeschlagen,
                e.übersprungen, e.abgebrochen ? 1 : 0);
    std::fflush(stdout);
    // Was verschoben ist, steht schon am neuen Platz: auch nach einem Fehler wird gespeichert.
    const bool gesichert = ÄnderungenSpeichern(c.k);
    return gesichert && e.fehlgeschlagen == 0 && !e.abgebrochen ? 0 : 1;
}

int Verschieben(CliKontext& c, const std::vector<std::string>& a) { return Übertragen(c, a, ModusVerschieben, "move"); }
int Kopieren(CliKontext& c, const std::vector<std::string>& a) { return Übertragen(c, a, ModusKopieren, "copy"); }
}  // namespace

extern const Befehl BefehlMove = {
    "move", "move ZIELORDNER [AUSWAHL]",
    "Dateien in den Ordner verschieben, der Index folgt; besteht ein Ziel, mit --yes umbenennen (-0, -1, …)",
    Verschieben};
extern const Befehl BefehlCopy = {"copy", "copy ZIELORDNER [AUSWAHL]",
                                  "Dateien in den Ordner kopieren; der Index bleibt, wie er ist", Kopieren};
