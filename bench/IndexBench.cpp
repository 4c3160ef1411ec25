// Laden und Speichern großer Indexdateien. Zusätzlich drei Aufrufe für die Speichermessung in
// einem frischen Prozess:
//   kk_bench_index --erzeugen PFAD ANZAHL   schreibt einen erfundenen Index
//   kk_bench_index --laden PFAD             lädt ihn und nennt den höchsten Speicherbedarf (RSS)
//   kk_bench_index --rundreise PFAD ZIEL    lädt, speichert nach ZIEL und vergleicht die Bytes
//     (PFAD schon einmal vom Programm gespeichert: beim ersten Laden kommt die Spaltenbeschreibung dazu)
#include "app/Kartei.h"
#include "index/IndexDatei.h"
#include "support/Attrappen.h"
#include "support/IndexGenerator.h"
#include "support/TestOrdner.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <memory>
#include <sys/resource.h>

namespace {
std::string BenchOrdner() {
    const char* tmp = std::getenv("TMPDIR");
    std::string ordner = std::string(tmp && *tmp ? tmp : "/tmp") + "/kk_bench_index";
    std::filesystem::create_directories(ordner);
    return ordner;
}

bool Erzeugen(const std::string& pfad, int32_t anzahl) {
    auto u = std::make_unique<TestUmgebung>();
    IndexErzeugen(u->k, anzahl);
    return DateiSpeichern(u->k, pfad, false);
}

// Ein Index dieser Größe, einmal erzeugt und für spätere Läufe liegen gelassen.
std::string Vorbereitet(int32_t anzahl) {
    const std::string pfad = BenchOrdner() + "/index_" + std::to_string(anzahl) + ".kkt";
    if (!std::filesystem::exists(pfad) && !Erzeugen(pfad, anzahl)) std::abort();
    return pfad;
}

long HöchsterSpeicherKb() {
    rusage r{};
    getrusage(RUSAGE_SELF, &r);
    return r.ru_maxrss;
}

void BM_Laden(benchmark::State& state) {
    const std::string pfad = Vorbereitet(int32_t(state.range(0)));
    for (auto _ : state) {
        state.PauseTiming();
        auto u = std::make_unique<TestUmgebung>();
        state.ResumeTiming();
        if (!DateiLaden(u->k, pfad) || u->k.DateiAnzahl != state.range(0)) state.SkipWithError("Laden misslungen");
        state.PauseTiming();
        u.reset();  // Freigeben zählt nicht zum Laden
        state.ResumeTiming();
    }
    state.SetBytesProcessed(int64_t(state.iterations()) * int64_t(std::filesystem::file_size(pfad)));
    state.SetItemsProcessed(int64_t(state.iterations()) * state.range(0));
}

void Speichern(benchmark::State& state, bool mitFortschritt) {
    const std::string pfad = Vorbereitet(int32_t(state.range(0)));
    auto u = std::make_unique<TestUmgebung>();
    DateiLaden(u->k, pfad);
    const std::string ziel = BenchOrdner() + "/gespeichert.kkt";
    for (auto _ : state)
        if (!DateiSpeichern(u->k, ziel, mitFortschritt)) state.SkipWithError("Speichern misslungen");
    state.SetBytesProcessed(int64_t(state.iterations()) * int64_t(std::filesystem::file_size(ziel)));
    state.SetItemsProcessed(int64_t(state.iterations()) * state.range(0));
    std::filesystem::remove(ziel);
}
void BM_Speichern(benchmark::State& state) { Speichern(state, false); }
void BM_SpeichernMitFortschritt(benchmark::State& state) { Speichern(state, true); }

BENCHMARK(BM_Laden)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_Speichern)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_SpeichernMitFortschritt)->Arg(100'000)->Unit(benchmark::kMillisecond)->UseRealTime();

// Laden und wieder Speichern muss dieselben Bytes ergeben.
int Rundreise(const std::string& pfad, const std::string& ziel) {
    TestUmgebung u;
    u.k.E.StartBildschirm = 0;
    if (!DateiLaden(u.k, pfad) || !DateiSpeichern(u.k, ziel, false)) return 1;
    const bool gleich = DateiLesen(pfad) == DateiLesen(ziel);
    std::printf("Einträge=%d\nGleicheBytes=%d\n", u.k.DateiAnzahl, gleich ? 1 : 0);
    return gleich ? 0 : 1;
}

int Speichermessung(int argc, char** argv) {
    if (argc == 4 && std::strcmp(argv[1], "--erzeugen") == 0) return Erzeugen(argv[2], std::atoi(argv[3])) ? 0 : 1;
    if (argc == 4 && std::strcmp(argv[1], "--rundreise") == 0) return Rundreise(argv[2], argv[3]);
    const long vorher = HöchsterSpeicherKb();
    TestUmgebung u;
    const auto start = std::chrono::steady_clock::now();
    const bool gut = DateiLaden(u.k, argv[2]);
    const double sekunden = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    std::printf("Einträge=%d\nSekunden=%.3f\nRSSVorherMB=%.1f\nRSSHöchstensMB=%.1f\nTextspeicherMB=%.1f\n",
                u.k.DateiAnzahl, sekunden, double(vorher) / 1024, double(HöchsterSpeicherKb()) / 1024,
                double(KTextSpeicherBytes()) / (1024 * 1024));
    return gut ? 0 : 1;
}
}  // namespace

int main(int argc, char** argv) {
    if (argc >= 3 && (std::strcmp(argv[1], "--erzeugen") == 0 || std::strcmp(argv[1], "--laden") == 0 ||
                      std::strcmp(argv[1], "--rundreise") == 0))
        return Speichermessung(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
