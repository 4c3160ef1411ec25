// Ein ID3v2-Speichern: der Schreiber allein (wie der Tag-Editor, der den Datensatz schon hat) und
// der ganze Befehl "tag DATEI Mp3_ID3v2_TIT2=..." (Datei lesen, Feld setzen, schreiben).
// Verglichen werden eine 4-MB-Datei mit kleinem Tag und dieselbe mit einem 200-KB-Bild im Tag,
// an Ort und Stelle (Platz genug) und beim Neuschreiben (der Tag wächst über seinen Platz).
#include "app/Kartei.h"
#include "media/Id3v2Schreiben.h"
#include "media/MedienInfos.h"
#include "support/Attrappen.h"
#include "support/MpegDaten.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <stdlib.h>

namespace {
std::string DateiBauen(bool mitBild, size_t padding) {
    mpeg::V2Tag t;
    t.rahmen = {mpeg::Text("TIT2", "Titel A"), mpeg::Text("TPE1", "Interpret"), mpeg::Text("TALB", "Album")};
    if (mitBild) {
        std::string bild(200 * 1024, '\0');
        for (size_t i = 0; i < bild.size(); ++i) bild[i] = static_cast<char>(i * 131 % 251);
        t.rahmen.push_back({"APIC", std::string(1, '\0') + "image/jpeg" + '\0' + "\x03" + '\0' + bild});
    }
    t.padding = padding;
    std::string ton;
    while (ton.size() < 4 * 1024 * 1024) ton += mpeg::Frame(mpeg::Kopf{});
    return mpeg::Id3v2(t) + ton + mpeg::Id3v1("Titel", "", "", "", "", 1, 17);
}

void Schreiben(const std::string& pfad, const std::string& inhalt) {
    std::ofstream(pfad, std::ios::binary | std::ios::trunc).write(inhalt.data(), std::streamsize(inhalt.size()));
}

void Speichern(Kartei& k, const std::string& pfad, DateiInfo& d, const std::string& titel) {
    d.Mp3_ID3v2_TIT2 = titel;
    std::string fehler;
    if (!MP3TagSpeichernV2Datei(k, pfad, fehler, d)) throw std::runtime_error(fehler);
}

// befehl: wie die Kommandozeile vor jedem Speichern alle Felder lesen; sonst nur schreiben.
void TagSpeichern(benchmark::State& state, bool befehl) {
    const bool mitBild = state.range(0) != 0, neuSchreiben = state.range(1) != 0;
    std::string ordner = (std::filesystem::temp_directory_path() / "kk-bench-XXXXXX").string();
    if (!mkdtemp(ordner.data())) throw std::runtime_error("mkdtemp");
    const std::string pfad = ordner + "/a.mp3";
    const std::string inhalt = DateiBauen(mitBild, neuSchreiben ? 0 : 1000);
    Schreiben(pfad, inhalt);
    TestUmgebung u;
    DateiInfo d = MedienInfosLesen(u.k, pfad, DateiInfo{}, "11", false, "1", "1");
    int runde = 0;
    for (auto _ : state) {
        if (neuSchreiben) {
            state.PauseTiming();
            Schreiben(pfad, inhalt);
            state.ResumeTiming();
        }
        // Gleich lange Titel bleiben an Ort und Stelle; ein längerer sprengt den Platz von 0.
        if (befehl) d = MedienInfosLesen(u.k, pfad, DateiInfo{}, "11", false, "1", "1");
        Speichern(u.k, pfad, d, neuSchreiben ? "Ein längerer Titel" : (++runde % 2 ? "Titel B" : "Titel A"));
    }
    std::filesystem::remove_all(ordner);
}
void BM_TagSpeichern(benchmark::State& state) { TagSpeichern(state, false); }
void BM_TagBefehl(benchmark::State& state) { TagSpeichern(state, true); }
BENCHMARK(BM_TagSpeichern)
    ->ArgNames({"Bild", "neu"})
    ->ArgsProduct({{0, 1}, {0, 1}})
    ->Unit(benchmark::kMicrosecond)
    ->UseRealTime();
BENCHMARK(BM_TagBefehl)
    ->ArgNames({"Bild", "neu"})
    ->ArgsProduct({{0, 1}, {0, 1}})
    ->Unit(benchmark::kMicrosecond)
    ->UseRealTime();
}  // namespace

BENCHMARK_MAIN();
