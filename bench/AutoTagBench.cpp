// AutoTag mit "%Automatik%" über einem erfundenen Index mit 100.000 Einträgen: je Wort bis zu zwei
// Läufe durch den Index. Gemessen wird eine Datei je Durchgang.
#include "app/Kartei.h"
#include "support/Attrappen.h"
#include "support/IndexGenerator.h"
#include "tags/AutoTag.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace {
TestUmgebung& Index() {
    static std::unique_ptr<TestUmgebung> u;
    if (!u) {
        u = std::make_unique<TestUmgebung>();
        IndexErzeugen(u->k, 100000, 1);
        // Das Raten fragt nur Einträge mit gelesenem ID3v1-Tag: alle zählen, das ist der teure Fall.
        for (auto& d : u->k.DateiDaten) d.Mp3_ID3v1_Status = 1;
    }
    return *u;
}

void Automatik(benchmark::State& state, const std::string& pfad) {
    Kartei& k = Index().k;
    DateiInfo ergebnis;
    const DateiInfo ausgang;
    for (auto _ : state) {
        benchmark::DoNotOptimize(AutoTagVersuchen(k, pfad, "%Automatik%", ergebnis, ausgang, 0));
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(int64_t(state.iterations()));
}

// Ein Pfad aus dem Index selbst: Interpret und Album werden gefunden.
void BM_AutomatikBekannt(benchmark::State& s) { Automatik(s, Index().k.DateiPfade[50000]); }
// Kein Wort ist im Index: jedes Wort läuft zweimal durch alle Einträge (der ungünstigste Fall).
void BM_AutomatikUnbekannt(benchmark::State& s) {
    Automatik(s, "/home/nutzer/Musik/Qzxv Ykwp/Wqzj Plorx - Vrrk/2019 - 07 - Zzglorp Yxx_Qwv, Kkrt.mp3");
}
}  // namespace

BENCHMARK(BM_AutomatikBekannt)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_AutomatikUnbekannt)->Unit(benchmark::kMillisecond);
BENCHMARK_MAIN();
