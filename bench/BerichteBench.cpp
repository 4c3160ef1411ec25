// Berichte über einem erfundenen Index mit 100.000 Einträgen: Mehrfacheinträge nach Dateinamen
// (mit offener Fortschrittsanzeige, wie im Fenster), der HTML-Export in eine Datei und das
// Aufräumen, das jeden zweiten Eintrag nur aus dem Index nimmt.
#include "app/Ergebnisliste.h"
#include "app/Kartei.h"
#include "reports/Aufraeumen.h"
#include "reports/Duplikate.h"
#include "reports/Export.h"
#include "support/Attrappen.h"
#include "support/IndexGenerator.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <memory>

namespace {
TestUmgebung& Index(int64_t anzahl) {
    static std::map<int64_t, std::unique_ptr<TestUmgebung>> indexe;
    auto& u = indexe[anzahl];
    if (!u) {
        u = std::make_unique<TestUmgebung>();
        IndexErzeugen(u->k, int32_t(anzahl), 1);
        // Die vier Spalten der Vorgabe: Dateiname, Interpret, Titel, Album.
        u->k.Liste.lstSongs.spalten = {
            {"Dateiname", "", 1400, 3}, {"Interpret", "", 1400, 4}, {"Titel", "", 1400, 5}, {"Album", "", 1400, 6}};
    }
    return *u;
}

std::vector<int32_t> Alle(const Kartei& k) {
    std::vector<int32_t> l(size_t(k.DateiAnzahl));
    for (size_t i = 0; i < l.size(); ++i) l[i] = int32_t(i) + 1;
    return l;
}

void BM_DuplikateDateiname(benchmark::State& state) {
    TestUmgebung& u = Index(state.range(0));
    const auto liste = Alle(u.k);
    size_t treffer = 0;
    for (auto _ : state) treffer = DuplikateSuchen(u.k, Suchmethode::Dateiname, liste).size();
    u.ui.fortschritte.clear();
    state.counters["Treffer"] = double(treffer);
    state.SetItemsProcessed(int64_t(state.iterations()) * state.range(0));
}

void BM_ExportHtml(benchmark::State& state) {
    TestUmgebung& u = Index(state.range(0));
    const auto liste = Alle(u.k);
    const std::string datei = "/tmp/kk_bench_export.htm";
    for (auto _ : state) {
        u.ui.antworten.push_back(Meldung::Abbrechen);
        benchmark::DoNotOptimize(ListeExportieren(u.k, liste, datei, ExportArt::Html, "", "", u.k.Liste.lstSongs));
    }
    u.ui.meldungen.clear();
    std::remove(datei.c_str());
    state.SetItemsProcessed(int64_t(state.iterations()) * state.range(0));
}

// Sechs Schritte ohne Dateizugriff: Listen bilden, Index in einem Durchgang anpassen, neu suchen.
void BM_AufräumenNurIndex(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        TestUmgebung u;
        IndexErzeugen(u.k, int32_t(state.range(0)), 1);
        Aufräumen a;
        AufräumenBeginnen(u.k, a, Suchmethode::OhneId3v1Index, {});
        for (size_t p = 1; p < a.GefundenAktionen.size(); p += 2) a.GefundenAktionen[p] = Aktion::AusIndex;
        state.ResumeTiming();
        benchmark::DoNotOptimize(AktionenAusführen(u.k, a));
    }
    state.SetItemsProcessed(int64_t(state.iterations()) * state.range(0));
}
}  // namespace

BENCHMARK(BM_AufräumenNurIndex)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_DuplikateDateiname)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ExportHtml)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK_MAIN();
