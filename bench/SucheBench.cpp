// Suche, Ergebnisliste, Sortieren und Vorschlagsliste über erfundenen Indexen mit 100.000 und
// 1.000.000 Einträgen. Ein "Tastendruck" ist ein ganzer Lauf von tmrListe: Zeilen abgleichen,
// alle markieren, suchen, Liste aufbauen.
#include "app/Kartei.h"
#include "app/Tabelle.h"
#include "search/AutoComplete.h"
#include "search/ListeErstellen.h"
#include "search/SuchCache.h"
#include "search/Suche.h"
#include "search/Sortieren.h"
#include "support/Attrappen.h"
#include "support/IndexGenerator.h"

#include <benchmark/benchmark.h>

#include <map>
#include <memory>

namespace {
// Ein erfundener Index je Größe, einmal erzeugt; die Benchmarks lassen ihn unverändert.
TestUmgebung& Index(int64_t anzahl) {
    static std::map<int64_t, std::unique_ptr<TestUmgebung>> indexe;
    auto& u = indexe[anzahl];
    if (!u) {
        u = std::make_unique<TestUmgebung>();
        u->k.E.StartBildschirm = 0;
        IndexErzeugen(u->k, int32_t(anzahl), 1);
    }
    return *u;
}

void FeldWählen(Kartei& k, int32_t feld, const std::string& text) {
    k.Suche.cboSuche.ListIndex = feld;
    k.Suche.txtSongname.Text = text;
}

void Tastendruck(benchmark::State& state, int32_t feld, const std::string& text) {
    Kartei& k = Index(state.range(0)).k;
    FeldWählen(k, feld, text);
    tmrListe_Timer(k);  // Zwischenspeicher füllen: das geschieht beim ersten Tastendruck
    for (auto _ : state) tmrListe_Timer(k);
    state.counters["Zeilen"] = double(k.Liste.lstSongs.zeilen.size());
    state.SetItemsProcessed(int64_t(state.iterations()) * state.range(0));
}

void BM_TastendruckStandardEinWort(benchmark::State& s) { Tastendruck(s, 0, "nacht"); }
void BM_TastendruckStandardDreiWörter(benchmark::State& s) { Tastendruck(s, 0, "nacht stadt mp3"); }
void BM_TastendruckInterpret(benchmark::State& s) { Tastendruck(s, 1, "ton"); }
void BM_TastendruckGenau(benchmark::State& s) { Tastendruck(s, 1, "kraftwerk"); }

// Der erste Tastendruck nach dem Laden baut den Zwischenspeicher auf; nach SucheAktualisieren
// prüft er nur die Prüfsummen.
void BM_ZwischenspeicherAufbauen(benchmark::State& state) {
    Kartei& k = Index(state.range(0)).k;
    for (auto _ : state) {
        k.Suche.standardsuche = StandardsuchCache{};
        SuchCacheAktualisieren(k, k.Suche.standardsuche);
    }
    state.counters["BytesJeEintrag"] = double(k.Suche.standardsuche.puffer.size()) / double(state.range(0));
    state.SetItemsProcessed(int64_t(state.iterations()) * state.range(0));
}

void BM_ZwischenspeicherPrüfen(benchmark::State& state) {
    Kartei& k = Index(state.range(0)).k;
    SuchCacheAktualisieren(k, k.Suche.standardsuche);
    for (auto _ : state) {
        ++k.TabellenStand;
        SuchCacheAktualisieren(k, k.Suche.standardsuche);
    }
    state.SetItemsProcessed(int64_t(state.iterations()) * state.range(0));
}

// ListeErstellen für 100.000 Ergebniszeilen: aus leerer Liste und über die vorhandenen Zeilen
// mit 1.000 gewählten Einträgen.
void BM_ListeErstellen(benchmark::State& state) {
    Kartei& k = Index(state.range(0)).k;
    const bool mitAuswahl = state.range(1) != 0;
    FeldWählen(k, 0, "");
    tmrListe_Timer(k);
    auto& zeilen = k.Liste.lstSongs.zeilen;
    for (auto _ : state) {
        state.PauseTiming();
        if (mitAuswahl) {
            for (size_t i = 0; i < zeilen.size(); i += zeilen.size() / 1000) zeilen[i].ausgewählt = true;
            AuswahlAktualisieren(k, k.Liste.lstSongs);
        } else {
            zeilen.clear();
        }
        state.ResumeTiming();
        ListeErstellen(k, k.Liste.lstSongs, true);
    }
    state.counters["Zeilen"] = double(zeilen.size());
    state.counters["Gewählt"] = double(k.Suche.AusgewähltAnzahl);
}

// Sortieren einer Kopie nach Interpret (die Kopie und ihr Abbau zählen nicht).
void BM_SortierenInterpret(benchmark::State& state) {
    const Kartei& quelle = Index(state.range(0)).k;
    for (auto _ : state) {
        state.PauseTiming();
        auto u = std::make_unique<TestUmgebung>();
        u->k.E.StartBildschirm = 0;
        u->k.DateiPfade = quelle.DateiPfade;
        u->k.DateiDaten = quelle.DateiDaten;
        u->k.DateiTreffer = quelle.DateiTreffer;
        u->k.DateiAnzahl = quelle.DateiAnzahl;
        state.ResumeTiming();
        QSort(u->k, "Interpret", 1, u->k.DateiAnzahl);
        state.PauseTiming();
        u.reset();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(int64_t(state.iterations()) * state.range(0));
}

// Vorschläge für Interpret: 100.000 Einträge mit 10.000 verschiedenen Werten (Groß/Klein gemischt).
void BM_AutoCompleteFüllen(benchmark::State& state) {
    static std::unique_ptr<TestUmgebung> u;
    if (!u) {
        u = std::make_unique<TestUmgebung>();
        IndexErzeugen(u->k, int32_t(state.range(0)), 2);
        for (int32_t i = 1; i <= u->k.DateiAnzahl; ++i) {
            auto& d = u->k.DateiDaten[i];
            d.Mp3_ID3v1_Status = 1;
            d.Mp3_ID3v1_Interpret = (i % 3 ? "Interpret Nummer " : "INTERPRET NUMMER ") + std::to_string(i % 10000);
        }
    }
    KomboFeld liste;
    for (auto _ : state) AutoCompleteFüllen(u->k, liste, "Interpret", 1, "");
    state.counters["Werte"] = double(liste.List.size());
    state.SetItemsProcessed(int64_t(state.iterations()) * state.range(0));
}
}  // namespace

BENCHMARK(BM_ZwischenspeicherAufbauen)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ZwischenspeicherPrüfen)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_TastendruckStandardEinWort)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_TastendruckStandardDreiWörter)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_TastendruckInterpret)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_TastendruckGenau)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ListeErstellen)->Args({100000, 0})->Args({100000, 1})->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SortierenInterpret)->Arg(100000)->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(BM_AutoCompleteFüllen)->Arg(100000)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
