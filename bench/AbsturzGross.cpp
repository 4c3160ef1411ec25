// SIGKILL auf das Speichern eines großen Index, außerhalb der Tests (Release-Bau):
//   kk_absturz_gross [ANZAHL [SCHÜSSE [ORDNER]]]   Vorgabe 1000000 Einträge, 100 Schüsse, /tmp
// Schreibt einen erfundenen Index, schießt dann auf Läufe, die ihn laden, umschalten und
// speichern, und nennt die Zahlen. Rückgabe 1, wenn einmal weder alt noch neu auf der Platte stand.
#include "app/Kartei.h"
#include "index/IndexDatei.h"
#include "support/AbsturzProbe.h"
#include "support/Attrappen.h"
#include "support/IndexGenerator.h"
#include "support/TestOrdner.h"

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

int main(int argc, char** argv) {
    const int32_t anzahl = argc > 1 ? std::atoi(argv[1]) : 1000000;
    const int schüsse = argc > 2 ? std::atoi(argv[2]) : 100;
    const TestOrdner ordner(argc > 3 ? argv[3] : "/tmp");
    const std::string pfad = ordner / "gross.kkt";
    {
        auto u = std::make_unique<TestUmgebung>();
        IndexErzeugen(u->k, anzahl);
        if (!DateiSpeichern(u->k, pfad, false)) {
            std::fprintf(stderr, "Der Index ließ sich nicht anlegen: %s\n", pfad.c_str());
            return 1;
        }
    }
    const AbsturzBericht b = AbsturzProben(
        IndexUmschalten(pfad), [&] { return DateiLesen(pfad); }, schüsse, 1);
    std::printf("Einträge=%d\nSchüsse=%d\nGetötet=%d\nVorherFertig=%d\nAlt=%d\nNeu=%d\nSchreibenMs=%lld\nFehler=%zu\n",
                anzahl, b.schüsse, b.getötet, b.vorherFertig, b.alt, b.neu,
                static_cast<long long>(b.schreibenUs / 1000), b.fehler.size());
    for (const auto& f : b.fehler) std::printf("  %s\n", f.c_str());
    // Der nächste Start lädt, was dasteht.
    auto u = std::make_unique<TestUmgebung>();
    u->k.E.Mp3TagLesen = "000";
    const bool geladen = DateiLaden(u->k, pfad);
    std::printf("NächsterStartLädt=%s\nGeladen=%d\n", geladen ? "ja" : "nein", u->k.DateiAnzahl);
    return b.fehler.empty() && geladen && b.schüsse == schüsse ? 0 : 1;
}
