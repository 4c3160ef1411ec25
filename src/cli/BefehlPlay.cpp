// play: Einträge abspielen oder an die Playlist des Spielers anhängen (--new: vorher leeren).
#include "app/Kartei.h"
#include "cli/AuswahlArgumente.h"
#include "cli/Befehle.h"
#include "cli/IndexLaden.h"
#include "index/IndexDatei.h"
#include "player/Abspielen.h"
#include "player/WinampSteuerung.h"

#include <cstdio>

namespace {
int Ausführen(CliKontext& c, const std::vector<std::string>& argumente) {
    EintragsAuswahl auswahl;
    std::vector<std::string> rest;
    if (std::string fehler = AuswahlLesen(argumente, auswahl, rest); !fehler.empty()) return GebrauchsFehler(fehler);
    bool anhängen = false, neu = false;
    for (const auto& a : rest) {
        if (a == "--add") anhängen = true;
        else if (a == "--new") neu = true;
        else return GebrauchsFehler("play: unbekanntes Argument '" + a + "'.");
    }
    if (!IndexFürBefehlLaden(c)) return 1;
    std::vector<int32_t> gewählt;
    if (!AuswahlAnwenden(c, auswahl, gewählt)) return 1;
    EinsBasiert<int32_t> dateien;
    for (int32_t n : gewählt) dateien.Anhängen(n);
    c.ui.bildÖffnen = [&c](const std::string& pfad) { c.k.shell.Öffnen(pfad); };
    // Im Fenster kennt der Takt den laufenden Spieler schon; hier wird er einmal gesucht.
    Winamp_Check(c.k, false);
    const bool ok = AbspielenMediaPlayer(c.k, dateien, anhängen, false, neu, "");
    if (!c.ui.LetzterTitelText().empty()) std::printf("%s\n", c.ui.LetzterTitelText().c_str());
    // Ein anderer Spieler als die bekannten wird hier gezählt: das gehört gespeichert.
    if (!ÄnderungenSpeichern(c.k)) return 1;
    return ok ? 0 : 1;
}
}  // namespace

extern const Befehl BefehlPlay = {"play", "play [AUSWAHL] [--add] [--new]",
                                  "Einträge abspielen (--add: an die Playlist anhängen, --new: Playlist vorher leeren)",
                                  Ausführen};
