// MedienInfosLesen mit "111" über 10.000 erzeugte MP3-Dateien von 3 bis 5 MB (dünn angelegt:
// Anfang und Ende geschrieben, die Mitte ausgelassen), mit ID3v1 und ID3v2, warmer Cache.
#include "app/Kartei.h"
#include "media/MedienInfos.h"
#include "platform/LinuxDatentraeger.h"
#include "settings/Dateitypen.h"
#include "support/Attrappen.h"
#include "support/MpegDaten.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <random>
#include <stdlib.h>

namespace {
constexpr int kDateien = 10000;

// Legt die Dateien einmal an und räumt sie am Ende wieder weg.
class Sammlung {
public:
    Sammlung() {
        std::string vorlage = (std::filesystem::temp_directory_path() / "kk-bench-XXXXXX").string();
        ordner_ = mkdtemp(vorlage.data()) ? vorlage : "";
        std::mt19937 z(42);
        for (int i = 0; i < kDateien; ++i) {
            mpeg::V2Tag t;
            t.rahmen = {mpeg::Text("TIT2", "Titel " + std::to_string(i)), mpeg::Text("TPE1", "Interpret"),
                        mpeg::Text("TALB", "Album"), mpeg::Kommentar("COMM", "Kommentar"),
                        mpeg::Text("TCON", "Rock"), mpeg::Text("TRCK", std::to_string(i % 20))};
            t.padding = 512;
            mpeg::Kopf k;
            std::string anfang = mpeg::Id3v2(t);
            for (int f = 0; f < 8; ++f) anfang += mpeg::Frame(k);
            std::string ende;
            for (int f = 0; f < 4; ++f) ende += mpeg::Frame(k);
            ende += mpeg::Id3v1("Titel", "Interpret", "Album", "2001", "Kommentar", i % 20, 17);
            const int64_t länge = 3000000 + static_cast<int64_t>(z() % 2000000);
            pfade_.push_back(ordner_ + "/lied" + std::to_string(i) + ".mp3");
            mpeg::DünneDateiSchreiben(pfade_.back(), anfang, länge, ende);
        }
    }
    ~Sammlung() {
        std::error_code fehler;
        std::filesystem::remove_all(ordner_, fehler);
    }
    const std::vector<std::string>& Pfade() const { return pfade_; }

private:
    std::string ordner_;
    std::vector<std::string> pfade_;
};

const Sammlung& Dateien() {
    static const Sammlung sammlung;
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
