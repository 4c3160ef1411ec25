// MedienInfosLesen mit "111" über 10.000 erzeugte MP3-Dateien von 3 bis 5 MB (dünn angelegt:
// Anfang und Ende geschrieben, die Mitte ausgelassen), mit ID3v1 und ID3v2, warmer Cache.
#include "app/Kartei.h"
#include "media/MedienInfos.h"
#include "platform/LinuxDatentraeger.h"
#include "index/Dateitypen.h"
#include "MpegSammlung.h"
#include "support/Attrappen.h"
#include "support/MpegDaten.h"

#include <benchmark/benchmark.h>

#include <filesystem>

namespace {
constexpr int kDateien = 10000;

const MpegSammlung& Dateien() {
    static const MpegSammlung sammlung(kDateien, false);
    return sammlung;
}

void AlleLesen(benchmark::State& state, Kartei& k) {
    DateitypenVorgabenEinsetzen(k.Optionen);
    const auto& pfade = Dateien().Pfade();
    for (const auto& p : pfade) benchmark::DoNotOptimize(MedienInfosLesen(k, p, DateiInfo{}, "11", false, "1", "1"));
    for (auto _ : state)
        for (const auto& p : pfade) {
            DateiInfo d = MedienInfosLesen(k, p, DateiInfo{}, "11", false, "1", "1");
            benchmark::DoNotOptimize(d);
        }
    state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(pfade.size()));
}

// Der Kern allein: ein Datenträger, der ohne Systemaufruf antwortet.
void BM_MedienInfosLesen(benchmark::State& state) {
    TestUmgebung u;
    AlleLesen(state, u.k);
}
BENCHMARK(BM_MedienInfosLesen)->Unit(benchmark::kMillisecond)->UseRealTime();

// Mit dem Linux-Datenträger: die Wurzel je Datei aus /proc/self/mountinfo.
void BM_MedienInfosLesenLinuxDatenträger(benchmark::State& state) {
    TestUmgebung u;
    LinuxDatenträger plattform;
    Kartei k{Dienste{u.ui, u.registrierung, u.spieler, u.shell, plattform, u.uhr, u.zufall}};
    AlleLesen(state, k);
}
BENCHMARK(BM_MedienInfosLesenLinuxDatenträger)->Unit(benchmark::kMillisecond)->UseRealTime();
}  // namespace

BENCHMARK_MAIN();
