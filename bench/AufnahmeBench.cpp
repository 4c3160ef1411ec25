// Ordner durchsuchen und hinzufügen: 10.000 erzeugte MP3-Dateien von 3 bis 5 MB (dünn angelegt,
// mit ID3v1 und ID3v2) in 10 × 10 Ordnern, Mp3TagLesen "101", warmer Cache, Linux-Datenträger.
// Dazu 10.000 Dateien in einen Index mit 100.000 Einträgen, mit und ohne Doppelten-Sperre.
#include "app/Kartei.h"
#include "app/Tabelle.h"
#include "intake/Hinzufuegen.h"
#include "intake/Scanner.h"
#include "platform/LinuxDatentraeger.h"
#include "index/Dateitypen.h"
#include "shell/Fortschritt.h"
#include "MpegSammlung.h"
#include "support/Attrappen.h"
#include "support/IndexGenerator.h"
#include "support/MpegDaten.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <random>
#include <stdlib.h>

namespace {
constexpr int kDateien = 10000;
constexpr int32_t kGroßerIndex = 100000;

const MpegSammlung& Dateien() {
    static const MpegSammlung sammlung(kDateien, true);
    return sammlung;
}

// Die Kartei des Programms: Test-Oberfläche, aber der echte Linux-Datenträger.
struct Umgebung {
    TestUmgebung u;
    LinuxDatenträger datenträger;
    Kartei k{Dienste{u.ui, u.registrierung, u.spieler, u.shell, datenträger, u.uhr, u.zufall}};
    Umgebung() { DateitypenVorgabenEinsetzen(k.Optionen); }
};

void BM_OrdnerDurchsuchen(benchmark::State& state) {
    Umgebung e;
    const EinsBasiert<std::string> masken(1);
    std::string wärmen = Dateien().Ordner();
    DateienSuchenAPI(e.k, wärmen, masken, 1, false);
    for (auto _ : state) {
        FortschrittZeigenStarten(e.k, 0, true, false, false, "Durchsuche Ordner");
        SuchlisteHinzufügen(e.k, "", 1);
        std::string pfad = Dateien().Ordner();
        DateienSuchenAPI(e.k, pfad, masken, 1, true);
        FortschrittZeigenEnde(e.k);
        if (e.k.Aufnahme.SuchlisteAnzahl != kDateien) state.SkipWithError("falsche Zahl gefunden");
    }
    state.SetItemsProcessed(state.iterations() * kDateien);
}
BENCHMARK(BM_OrdnerDurchsuchen)->Unit(benchmark::kMillisecond)->UseRealTime();

// Durchsuchen und Hinzufügen in einen leeren Index, wie "Ordner hinzufügen".
void BM_OrdnerHinzufuegen(benchmark::State& state) {
    Umgebung e;
    EinfachOrdnerHinzufügen(e.k, Dateien().Ordner(), false, 1, false, "", false, false);  // Cache wärmen
    for (auto _ : state) {
        state.PauseTiming();
        IndexGrößeÄndern(e.k, 0, false);
        e.k.DateiAnzahl = 0;
        state.ResumeTiming();
        EinfachOrdnerHinzufügen(e.k, Dateien().Ordner(), false, 1, false, "", false, false);
        if (e.k.DateiAnzahl != kDateien) state.SkipWithError("falsche Zahl hinzugefügt");
    }
    state.SetItemsProcessed(state.iterations() * kDateien);
}
BENCHMARK(BM_OrdnerHinzufuegen)->Unit(benchmark::kMillisecond)->UseRealTime();

// 10.000 Dateien zu 100.000 Einträgen; Argument: HinzufügenKeineDoppelten.
void BM_HinzufuegenZuGrossemIndex(benchmark::State& state) {
    Umgebung e;
    e.k.E.HinzufügenKeineDoppelten = static_cast<int16_t>(state.range(0));
    IndexErzeugen(e.k, kGroßerIndex);
    EinsBasiert<std::string> liste;
    for (const auto& p : Dateien().Pfade()) liste.Anhängen(p);
    for (auto _ : state) {
        state.PauseTiming();
        IndexGrößeÄndern(e.k, kGroßerIndex, true);
        e.k.DateiAnzahl = kGroßerIndex;
        state.ResumeTiming();
        EinfachDateiHinzufügen(e.k, liste, false, false, false);
        if (e.k.DateiAnzahl != kGroßerIndex + kDateien) state.SkipWithError("falsche Zahl hinzugefügt");
    }
    state.SetItemsProcessed(state.iterations() * kDateien);
}
BENCHMARK(BM_HinzufuegenZuGrossemIndex)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->UseRealTime();

// Was die Sperre je Stapel einmal kostet: die Streuwerte der 100.000 Indexpfade (mit einer Datei).
void BM_DoppeltenSperreAufbauen(benchmark::State& state) {
    Umgebung e;
    IndexErzeugen(e.k, kGroßerIndex);
    const std::string& datei = Dateien().Pfade().front();
    for (auto _ : state) {
        DateiListeHinzuStarten(e.k);
        benchmark::DoNotOptimize(DateienZurListeHinzufügen(e.k, datei));
        e.k.Aufnahme.SammlungOffen = false;
    }
}
BENCHMARK(BM_DoppeltenSperreAufbauen)->Unit(benchmark::kMillisecond)->UseRealTime();
}  // namespace

BENCHMARK_MAIN();
