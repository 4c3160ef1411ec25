// SIGKILL mitten im Schreiben: Index, Tag und Datei stehen danach ganz alt oder ganz neu da.
#include "app/Kartei.h"
#include "index/IndexDatei.h"
#include "media/Id3v2Lesen.h"
#include "media/Id3v2Schreiben.h"
#include "support/AbsturzProbe.h"
#include "support/Attrappen.h"
#include "support/IndexGenerator.h"
#include "support/MpegDaten.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>

#include <dirent.h>

namespace {
constexpr int kSchüsse = 100;

// Die Fehler des Berichts; die Zahlen gehen als Eigenschaften ins Testprotokoll.
std::string Fehlerliste(const AbsturzBericht& b) {
    ::testing::Test::RecordProperty("getoetet", b.getötet);
    ::testing::Test::RecordProperty("vorherFertig", b.vorherFertig);
    ::testing::Test::RecordProperty("alt", b.alt);
    ::testing::Test::RecordProperty("neu", b.neu);
    ::testing::Test::RecordProperty("schreibenUs", std::to_string(b.schreibenUs));
    std::string t;
    for (const auto& f : b.fehler) t += f + "\n";
    return t;
}

size_t DateienImOrdner(const std::string& ordner) {
    size_t n = 0;
    DIR* d = ::opendir(ordner.c_str());
    while (const dirent* e = d ? ::readdir(d) : nullptr) n += e->d_name[0] != '.';
    if (d) ::closedir(d);
    return n;
}

// Eine Audiodatei, deren Kopie beim Neuschreiben lange genug dauert, um getroffen zu werden.
std::string Audio() {
    std::string audio;
    const std::string frame = mpeg::Frame(mpeg::Kopf{});
    while (audio.size() < (size_t(4) << 20)) audio += frame;
    return audio;
}

DateiInfo TagLesen(const std::string& pfad) {
    DateiInfo d;
    Mp3TAGLesenV2(pfad, d, 0);
    return d;
}
}  // namespace

TEST(Absturz, IndexSpeichernIstAltOderNeu) {
    TestOrdner o("/dev/shm");
    const std::string pfad = o / "i.kkt";
    constexpr int32_t kAnzahl = 500;
    {
        TestUmgebung u;
        IndexErzeugen(u.k, kAnzahl, 7);
        ASSERT_TRUE(DateiSpeichern(u.k, pfad, false));
    }
    const AbsturzBericht b = AbsturzProben(
        IndexUmschalten(pfad), [&] { return DateiLesen(pfad); }, kSchüsse, 18);
    EXPECT_EQ(Fehlerliste(b), "");
    EXPECT_EQ(b.schüsse, kSchüsse);
    EXPECT_GT(b.getötet, 0);
    EXPECT_GT(b.alt, 0);
    EXPECT_GT(b.neu, 0);
    // Der nächste Start lädt den Index, und ein ungestörtes Speichern räumt die Reste weg.
    ASSERT_TRUE(IndexUmschalten(pfad)());
    TestUmgebung u;
    u.k.E.Mp3TagLesen = "000";
    ASSERT_TRUE(DateiLaden(u.k, pfad));
    EXPECT_TRUE(u.k.DateiAnzahl == kAnzahl || u.k.DateiAnzahl == kAnzahl + 1) << u.k.DateiAnzahl;
    EXPECT_TRUE(u.ui.meldungen.empty());
    EXPECT_EQ(DateienImOrdner(o.Pfad()), 1u);
}

// Tag an und ab: beides schreibt die ganze Datei über eine zweite daneben neu.
TEST(Absturz, TagNeuSchreibenIstAltOderNeu) {
    TestOrdner o("/dev/shm");
    const std::string pfad = o / "lied.mp3";
    const std::string audio = Audio();
    DateiSchreiben(pfad, audio);
    const AbsturzVorgang umschalten = [&] {
        TestUmgebung u;
        DateiInfo d = TagLesen(pfad);
        AbsturzSchreibenBeginnt();
        std::string fehler;
        if (d.Mp3_ID3v2_Status == 1) {
            DateiRest rest;
            return TAGEntfernenV2(u.k, pfad, 0, false, rest);
        }
        d.Mp3_ID3v2_TIT2 = "Titel";
        d.Mp3_ID3v2_TPE1 = "Interpret";
        return MP3TagSpeichernV2Datei(u.k, pfad, fehler, d);
    };
    const AbsturzBericht b = AbsturzProben(
        umschalten, [&] { return DateiLesen(pfad); }, kSchüsse, 19);
    EXPECT_EQ(Fehlerliste(b), "");
    EXPECT_EQ(b.schüsse, kSchüsse);
    EXPECT_GT(b.getötet, 0);
    EXPECT_GT(b.alt + b.neu, 0);
    // Beide Zustände tragen die Audiodaten unverändert: ohne Tag genau sie, mit Tag dahinter.
    const std::string jetzt = DateiLesen(pfad);
    ASSERT_GE(jetzt.size(), audio.size());
    EXPECT_TRUE(jetzt.compare(jetzt.size() - audio.size(), audio.size(), audio) == 0);
    ASSERT_TRUE(umschalten());
    const std::string danach = DateiLesen(pfad);
    ASSERT_GE(danach.size(), audio.size());
    EXPECT_TRUE(danach.compare(danach.size() - audio.size(), audio.size(), audio) == 0);
    EXPECT_NE(jetzt.size(), danach.size());
}

// Ein Titel, der in den alten Tag passt, wird an Ort und Stelle geschrieben.
TEST(Absturz, TagAnOrtUndStelleIstAltOderNeu) {
    TestOrdner o("/dev/shm");
    const std::string pfad = o / "lied.mp3";
    const std::string audio = Audio();
    mpeg::V2Tag tag;
    tag.rahmen = {mpeg::Text("TIT2", "Ein recht langer Titel"), mpeg::Text("TPE1", "Band")};
    tag.padding = 2000;
    DateiSchreiben(pfad, mpeg::Id3v2(tag) + audio);
    const AbsturzVorgang umschalten = [&] {
        TestUmgebung u;
        DateiInfo d = TagLesen(pfad);
        d.Mp3_ID3v2_TIT2 = d.Mp3_ID3v2_TIT2 == "Kurz" ? "Ein recht langer Titel" : "Kurz";
        AbsturzSchreibenBeginnt();
        std::string fehler;
        return MP3TagSpeichernV2Datei(u.k, pfad, fehler, d);
    };
    const AbsturzBericht b = AbsturzProben(
        umschalten, [&] { return DateiLesen(pfad); }, kSchüsse, 20);
    EXPECT_EQ(Fehlerliste(b), "");
    EXPECT_EQ(b.schüsse, kSchüsse);
    const std::string jetzt = DateiLesen(pfad);
    ASSERT_GE(jetzt.size(), audio.size());
    EXPECT_TRUE(jetzt.compare(jetzt.size() - audio.size(), audio.size(), audio) == 0);
}
