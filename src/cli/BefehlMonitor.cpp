// monitor: den Takt des Fensters N Sekunden lang laufen lassen, Erkennungen ausgeben, zählen.
#include "app/Kartei.h"
#include "app/Zahlen.h"
#include "cli/Befehle.h"
#include "cli/IndexLaden.h"
#include "index/IndexDatei.h"
#include "player/SpielerTakt.h"

#include <chrono>
#include <cstdio>
#include <thread>

namespace {
int Ausführen(CliKontext& c, const std::vector<std::string>& a) {
    const auto sekunden = a.size() == 2 && a[0] == "--seconds" ? GanzeZahlLesen(a[1]) : std::nullopt;
    if (!sekunden || *sekunden < 1 || *sekunden > 86400)
        return GebrauchsFehler("monitor: --seconds N angeben (1 bis 86400).");
    if (!IndexFürBefehlLaden(c)) return 1;
    std::string kopf, meldung;
    const auto takt = std::chrono::milliseconds(500);
    auto nächster = std::chrono::steady_clock::now();
    for (int64_t i = 0; i < *sekunden * 2; ++i) {
        const SpielerAnzeige anzeige = SpielerTakt(c.k, true);
        if (anzeige.titel && *anzeige.titel != kopf) {
            kopf = *anzeige.titel;
            std::printf("%s\n", kopf.c_str());
        }
        if (c.ui.LetzterTitelText() != meldung) {
            meldung = c.ui.LetzterTitelText();
            std::printf("%s\n", meldung.c_str());
        }
        std::fflush(stdout);
        nächster += takt;
        std::this_thread::sleep_until(nächster);
    }
    return ÄnderungenSpeichern(c.k) ? 0 : 1;
}
}  // namespace

extern const Befehl BefehlMonitor = {"monitor", "monitor --seconds N",
                                     "Den Spieler N Sekunden beobachten: gespielte Titel erkennen und zählen",
                                     Ausführen};
