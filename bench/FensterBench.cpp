// Die Ergebnisliste im Fenster mit 100.000 und 1.000.000 Einträgen (offscreen): Abgleich nach
// einer Suche, Zeichnen einer Seite, Rollen, Alle wählen, Auswahl der Person zurückschreiben.
#include "app/Kartei.h"
#include "search/Ergebnisliste.h"
#include "search/Hauptfenster.h"
#include "support/Attrappen.h"
#include "support/IndexGenerator.h"
#include "ui/SongListe.h"

#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>

#include <benchmark/benchmark.h>

#include <map>
#include <memory>

namespace {
struct Liste {
    TestUmgebung u;
    std::unique_ptr<SongListeAnsicht> ansicht;

    explicit Liste(int32_t anzahl) {
        IndexErzeugen(u.k, anzahl);
        auto& l = u.k.Liste.lstSongs;
        for (int32_t spalte : {3, 4, 5, 6, 12, 13}) l.spalten.push_back({"", "", 1400, spalte});
        const char* köpfe[] = {"Dateiname", "Interpret", "Titel", "Album", "Bitrate", "Dauer"};
        for (size_t i = 0; i < l.spalten.size(); ++i) l.spalten[i].kopf = köpfe[i];
        ZeilenSetzen(anzahl);
        ansicht = std::make_unique<SongListeAnsicht>(u.k, nullptr);
        ansicht->resize(1000, 700);
        ansicht->show();
        ansicht->Abgleichen();
    }
    void ZeilenSetzen(int32_t anzahl, int32_t schritt = 1) {
        auto& z = u.k.Liste.lstSongs.zeilen;
        z.clear();
        for (int32_t i = 1; i <= anzahl; i += schritt) z.push_back({i, false});
        u.k.Liste.lstSongs.Geändert();
    }
};

// Eine Liste je Größe für alle Läufe: das Erzeugen zählt nicht.
Liste& Vorbereitet(int64_t anzahl) {
    static std::map<int64_t, std::unique_ptr<Liste>> listen;
    auto& l = listen[anzahl];
    if (!l) l = std::make_unique<Liste>(int32_t(anzahl));
    return *l;
}

// Nach einer Suche: jede zweite Zeile bleibt, dann wieder alle (Zeilen anhängen/abschneiden).
void BM_ListeAbgleichen(benchmark::State& state) {
    Liste& l = Vorbereitet(state.range(0));
    bool halb = false;
    for (auto _ : state) {
        state.PauseTiming();
        l.ZeilenSetzen(int32_t(state.range(0)), halb ? 1 : 2);
        halb = !halb;
        state.ResumeTiming();
        l.ansicht->Abgleichen();
        QApplication::processEvents();
    }
}

void BM_SeiteZeichnen(benchmark::State& state) {
    Liste& l = Vorbereitet(state.range(0));
    l.ZeilenSetzen(int32_t(state.range(0)));
    l.ansicht->Abgleichen();
    for (auto _ : state) benchmark::DoNotOptimize(l.ansicht->viewport()->grab());
}

void BM_SeiteRollen(benchmark::State& state) {
    Liste& l = Vorbereitet(state.range(0));
    l.ZeilenSetzen(int32_t(state.range(0)));
    l.ansicht->Abgleichen();
    QScrollBar* leiste = l.ansicht->verticalScrollBar();
    int wert = 0;
    for (auto _ : state) {
        wert = (wert + leiste->pageStep() * 97) % (leiste->maximum() + 1);
        leiste->setValue(wert);
        benchmark::DoNotOptimize(l.ansicht->viewport()->grab());
    }
}

// Strg+A: alle Flaggen im Kern, dann die Auswahl der Ansicht abgleichen.
void BM_AlleWählen(benchmark::State& state) {
    Liste& l = Vorbereitet(state.range(0));
    l.ZeilenSetzen(int32_t(state.range(0)));
    l.ansicht->Abgleichen();
    bool alle = false;
    for (auto _ : state) {
        alle = !alle;
        if (alle)
            mnu_wählealle(l.u.k.Liste.lstSongs);
        else
            mnu_wählekeine(l.u.k.Liste.lstSongs);
        l.ansicht->Abgleichen();
    }
}

// Die Person wählt in der Ansicht (Maus, Umschalt+Ende): die Flaggen gehen in die Ergebnisliste.
void BM_AuswahlDerPerson(benchmark::State& state) {
    Liste& l = Vorbereitet(state.range(0));
    l.ZeilenSetzen(int32_t(state.range(0)));
    l.ansicht->Abgleichen();
    bool alle = false;
    for (auto _ : state) {
        alle = !alle;
        if (alle)
            l.ansicht->selectAll();
        else
            l.ansicht->clearSelection();
    }
}
}  // namespace

BENCHMARK(BM_ListeAbgleichen)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SeiteZeichnen)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SeiteRollen)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_AlleWählen)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_AuswahlDerPerson)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
