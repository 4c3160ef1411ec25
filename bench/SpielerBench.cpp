// Der Spieler über einem erfundenen Index mit 100.000 Einträgen: die Erkennung eines Titels
// (beide Stufen, jeder Eintrag wird angesehen) und ein Takt, in dem sich nichts ändert.
#include "app/Datum.h"
#include "app/Kartei.h"
#include "player/Erkennung.h"
#include "player/SpielerTakt.h"
#include "support/Attrappen.h"
#include "support/IndexGenerator.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace {
TestUmgebung& Index() {
    static std::unique_ptr<TestUmgebung> u;
    if (!u) {
        u = std::make_unique<TestUmgebung>();
        IndexErzeugen(u->k, 100000, 1);
    }
    return *u;
}

// Je Durchlauf ein neuer Titel, 31 Sekunden gespielt: die volle Erkennung über alle Einträge.
void Erkennen(benchmark::State& state, const std::string& titel) {
    Kartei& k = Index().k;
    const Datum start{2024, 1, 1, 12, 0, 0};
    const Datum danach = AusSekundenzahl(Sekundenzahl(start) + 31);
    for (auto _ : state) {
        k.Spieler.AktuellerTitel.clear();
        WinampDateiErkennen(k, titel, start);
        WinampDateiErkennen(k, titel, danach);
        benchmark::DoNotOptimize(k.Spieler.TitelErkannt);
    }
}

// Kein Treffer über die Tags: beide Stufen laufen ganz durch.
void BM_ErkennungNichtErkannt(benchmark::State& state) { Erkennen(state, "Niemand Bekanntes - Kein Titel"); }
BENCHMARK(BM_ErkennungNichtErkannt)->Unit(benchmark::kMillisecond);

// Ohne " - ": nur Stufe 2, mit dem ganzen Titel gegen jeden Dateinamen.
void BM_ErkennungOhneTrenner(benchmark::State& state) { Erkennen(state, "Radiosendung am Abend"); }
BENCHMARK(BM_ErkennungOhneTrenner)->Unit(benchmark::kMillisecond);

// Ein Takt, in dem der Titel schon erkannt ist und sich nichts ändert.
void BM_TaktOhneÄnderung(benchmark::State& state) {
    TestUmgebung& u = Index();
    u.k.E.WinampPfad = "/usr/bin/audacious";
    u.spieler.fenster = 1;
    u.spieler.titel = "Interpret - Titel";
    u.spieler.beantworten = [](uint32_t, int32_t w, int32_t l) { return l == 104 ? 1 : w == 1 ? 240 : 61000; };
    SpielerTakt(u.k, false);
    u.uhr.ms += 31000;
    SpielerTakt(u.k, false);  // erkannt: ab jetzt ändert sich nichts mehr
    for (auto _ : state) {
        u.spieler.gesendet.clear();
        benchmark::DoNotOptimize(SpielerTakt(u.k, true));
    }
}
BENCHMARK(BM_TaktOhneÄnderung)->Unit(benchmark::kMicrosecond);
}  // namespace

BENCHMARK_MAIN();
