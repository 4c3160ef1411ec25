// Die Ergebnisliste im Fenster mit 100.000 und 1.000.000 Einträgen (offscreen): Abgleich nach
// einer Suche, Zeichnen einer Seite, Rollen, Alle wählen, Auswahl der Person zurückschreiben.
#include "app/Kartei.h"
#include "app/Ergebnisliste.h"
#include "search/Hauptfenster.h"
#include "support/Attrappen.h"
#include "support/IndexGenerator.h"
#include "index/IndexDatei.h"
#include "platform/SystemDienste.h"
#include "ui/GuiOberflaeche.h"
#include "ui/Programmstart.h"
#include "ui/SongListe.h"
#include "ui/frmMain.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>
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

// Ein Aufbau je Größe für alle Läufe: das Erzeugen zählt nicht.
template <typename T> T& EinmalJeGröße(int64_t anzahl) {
    static std::map<int64_t, std::unique_ptr<T>> vorrat;
    auto& v = vorrat[anzahl];
    if (!v) v = std::make_unique<T>(int32_t(anzahl));
    return *v;
}

Liste& Vorbereitet(int64_t anzahl) { return EinmalJeGröße<Liste>(anzahl); }

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
        if (alle) mnu_wählealle(l.u.k.Liste.lstSongs);
        else mnu_wählekeine(l.u.k.Liste.lstSongs);
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
        if (alle) l.ansicht->selectAll();
        else l.ansicht->clearSelection();
    }
}
// Das ganze Hauptfenster über einem erfundenen Index: eine Taste im Suchfeld bis zur fertigen Liste
// (tmrListe ohne Wartezeit, damit nur die Arbeit zählt).
struct Hauptfenster {
    QWidget* besitzer = nullptr;
    GuiOberfläche ui{[this] { return besitzer; }};
    TestRegistrierung registrierung;
    KeinSpielerfenster spieler;
    TestShell shell;
    TestDatenträger datenträger;
    SystemUhr uhr;
    TestZufall zufall;
    Kartei k{Dienste{ui, registrierung, spieler, shell, datenträger, uhr, zufall}};
    std::unique_ptr<frmMain> f;
    QLineEdit* eingabe = nullptr;
    QTimer* tmrListe = nullptr;

    static std::string IndexDatei(int32_t anzahl) {
        const std::string pfad = "/tmp/kk_bench_fenster_" + std::to_string(anzahl) + ".kkt";
        TestUmgebung u;
        IndexErzeugen(u.k, anzahl);
        u.k.E.StartBildschirm = 0;
        DateiSpeichern(u.k, pfad, false);
        return pfad;
    }
    explicit Hauptfenster(int32_t anzahl, bool tippen = true) : Hauptfenster(IndexDatei(anzahl), tippen) {}
    Hauptfenster(const std::string& pfad, bool tippen) {
        ui.meldungsSkript = [](const std::string&, int) { return Meldung::Ok; };
        ui.dialogSkript = [](QDialog&) {};
        k.Dateiname = pfad;
        k.E.TippsAktueller = 0;
        k.E.StartBildschirm = 0;
        f = std::make_unique<frmMain>(k, ui, pfad);
        besitzer = f.get();
        FensterStarten(k, *f, ui);
        eingabe = f->findChild<QComboBox*>(QStringLiteral("txtSongname"))->lineEdit();
        tmrListe = f->findChild<QTimer*>(QStringLiteral("tmrListe"));
        tmrListe->setInterval(0);
        QApplication::processEvents();
        if (!tippen) return;
        Taste(Qt::Key_C, QStringLiteral("c"));
        Taste(Qt::Key_A, QStringLiteral("a"));
    }
    void Taste(int taste, const QString& text) {
        QKeyEvent drücken(QEvent::KeyPress, taste, Qt::NoModifier, text);
        QApplication::sendEvent(eingabe, &drücken);
        while (tmrListe->isActive()) QApplication::processEvents();
        QApplication::processEvents();
    }
};

Hauptfenster& HauptfensterVorbereitet(int64_t anzahl) { return EinmalJeGröße<Hauptfenster>(anzahl); }

void BM_TasteBisZurListe(benchmark::State& state) {
    Hauptfenster& h = HauptfensterVorbereitet(state.range(0));
    for (auto _ : state) {
        h.Taste(Qt::Key_L, QStringLiteral("l"));  // "ca" → "cal"
        state.PauseTiming();
        h.Taste(Qt::Key_Backspace, QString());
        state.ResumeTiming();
    }
    state.counters["Zeilen"] = double(h.k.Liste.lstSongs.zeilen.size());
}

// Vom Anlegen des Hauptfensters bis zur gefüllten Liste (die Indexdatei liegt schon da).
void BM_FensterStart(benchmark::State& state) {
    static std::map<int64_t, std::string> dateien;
    auto& pfad = dateien[state.range(0)];
    if (pfad.empty()) pfad = Hauptfenster::IndexDatei(int32_t(state.range(0)));
    for (auto _ : state) {
        auto h = std::make_unique<Hauptfenster>(pfad, false);
        state.PauseTiming();
        if (h->k.DateiAnzahl != state.range(0)) state.SkipWithError("Index nicht geladen");
        state.counters["Zeilen"] = double(h->k.Liste.lstSongs.zeilen.size());
        h.reset();
        state.ResumeTiming();
    }
}
}  // namespace

BENCHMARK(BM_FensterStart)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond)->Iterations(2);
BENCHMARK(BM_TasteBisZurListe)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);
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
