// Zufällige und verstümmelte Dateien: nichts darf abstürzen oder hängen (Schreiben: TagFuzzTest).
#include "app/Kartei.h"
#include "app/Pfade.h"
#include "media/Id3v2Lesen.h"
#include "media/Id3v2Schreiben.h"
#include "media/MedienInfos.h"
#include "index/Dateitypen.h"
#include "support/Attrappen.h"
#include "support/MpegDaten.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>

#include <random>

namespace {
using mpeg::Text;

// Eine gültige Vorlage mit allem, was die Leser kennen.
std::string Vorlage(std::mt19937& z) {
    mpeg::V2Tag t;
    t.major = 2 + static_cast<int>(z() % 3);
    const bool v22 = t.major == 2;
    t.rahmen = {Text(v22 ? "TT2" : "TIT2", "Titel"), mpeg::Kommentar(v22 ? "COM" : "COMM", "Kommentar"),
                Text(v22 ? "XYZ" : "XYZQ", mpeg::Füllung(z() % 300)),
                Text(v22 ? "TP1" : "TPE1", mpeg::Utf16("Wer", false, true), 1)};
    t.padding = z() % 64;
    t.fußzeile = t.major == 4 && z() % 2;
    if (z() % 4 == 0) t.erweiterterKopf = mpeg::BigEndian(6, 4) + std::string(6, '\0');
    mpeg::Kopf k;
    k.bitrate = static_cast<int>(z() % 16);
    k.frequenz = static_cast<int>(z() % 4);
    const std::string frame = z() % 3 == 0 ? mpeg::XingFrame(k, z() % 5000) : mpeg::Frame(k);
    return mpeg::Id3v2(t) + frame + mpeg::Füllung(z() % 4000) + mpeg::Id3v1("T", "I", "A", "2000", "K", 1, z() % 256);
}

std::string Verstümmeln(std::string d, std::mt19937& z) {
    static const std::string muster[] = {"ID3", "\xFF\xFB", "\xFF\xFA",           "3DI",
                                         "TAG", "Xing",     std::string(4, '\0'), std::string("\xFF\xFF\xFF\xFF", 4)};
    const int schritte = 1 + static_cast<int>(z() % 8);
    for (int i = 0; i < schritte && !d.empty(); ++i) {
        const size_t pos = z() % d.size();
        switch (z() % 5) {
        case 0: d[pos] = static_cast<char>(z()); break;
        case 1: d.resize(pos); break;
        case 2: d.insert(pos, muster[z() % std::size(muster)]); break;
        case 3: d.erase(pos, z() % 64); break;
        default: d.replace(pos, std::min<size_t>(4, d.size() - pos), std::string(4, static_cast<char>(z()))); break;
        }
    }
    return d;
}
}  // namespace

TEST(Robustheit, ZufaelligeUndVerstuemmelteDateien) {
    TestUmgebung u;
    TestOrdner o;
    DateitypenVorgabenEinsetzen(u.k.Optionen);
    std::mt19937 z(20011116);
    const int32_t suchbereiche[] = {0, 1, 10, 200, 102400};
    const std::string pfad = o / "f.mp3";
    for (int i = 0; i < 3000; ++i) {
        std::string daten;
        if (i % 5 == 0) {
            daten.resize(z() % 3000);
            for (auto& c : daten) c = static_cast<char>(z());
        } else {
            daten = Verstümmeln(Vorlage(z), z);
        }
        DateiSchreiben(pfad, daten);
        u.k.E.TAGsBytesSuchen = suchbereiche[z() % std::size(suchbereiche)];
        DateiInfo d = MedienInfosLesen(u.k, pfad, DateiInfo{}, "11", i % 2 == 0, "1", "1");
        ASSERT_EQ(d.Datei_Größe, static_cast<int32_t>(daten.size()));
        ASSERT_TRUE(d.Mp3_ID3v2_Status == 1 || d.Mp3_ID3v2_Status == 2);
    }
}
