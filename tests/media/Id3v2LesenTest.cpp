#include "media/Id3v2Lesen.h"
#include "support/MpegDaten.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>

namespace {
using mpeg::Kommentar;
using mpeg::Text;
using mpeg::V2Tag;
const std::string kAudio = mpeg::Frame(mpeg::Kopf{}) + mpeg::Füllung(2000);

struct Gelesen {
    bool ok;
    DateiInfo d;
};
Gelesen Lesen(const TestOrdner& o, const std::string& inhalt, int32_t bytes = 102400) {
    DateiSchreiben(o / "t.mp3", inhalt);
    DateiInfo d;
    d.Mp3_ID3v2_TIT2 = "vorher";
    bool ok = Mp3TAGLesenV2(o / "t.mp3", d, bytes);
    return {ok, d};
}
}  // namespace

TEST(Id3v2Lesen, Groessenfeld) {
    int32_t g = -1;
    EXPECT_TRUE(Mp3TAGLesenV2GrößeLesen(std::string("\0\0\x03\x7F", 4), g, false));
    EXPECT_EQ(g, 511);
    EXPECT_TRUE(Mp3TAGLesenV2GrößeLesen(std::string("\0\0\x03\xFF", 4), g, false));  // nicht mehr SyncSafe
    EXPECT_EQ(g, 1023);
    Mp3TAGLesenV2GrößeLesen(mpeg::SyncSafe(70000), g, false);
    EXPECT_EQ(g, 6512);  // 2048 + 17 × 256 + 112
    Mp3TAGLesenV2GrößeLesen(mpeg::BigEndian(70000, 4), g, true);
    EXPECT_EQ(g, 6512);
    for (uint32_t wert : {0u, 1u, 127u, 128u, 4095u, 65535u}) {
        Mp3TAGLesenV2GrößeLesen(mpeg::BigEndian(wert, 4), g, true);
        EXPECT_EQ(g, static_cast<int32_t>(wert));
        Mp3TAGLesenV2GrößeLesen(mpeg::SyncSafe(wert), g, false);
        EXPECT_EQ(g, static_cast<int32_t>(wert));
    }
    EXPECT_TRUE(Mp3TAGLesenV2GrößeLesen(mpeg::BigEndian(12, 3), g, true));
    EXPECT_EQ(g, 3072);  // drei Zeichen: Byte 2 × 2048 + Byte 3 × 256
    EXPECT_FALSE(Mp3TAGLesenV2GrößeLesen("\x01\x02", g, true));
    EXPECT_EQ(g, 0);
}

TEST(Id3v2Lesen, FundstelleUndSuchbereich) {
    TestOrdner o;
    V2Tag t;
    t.rahmen = {Text("TIT2", "Titel")};
    t.padding = 20;
    const std::string tag = mpeg::Id3v2(t);
    const std::string davor = mpeg::Füllung(200000);
    EXPECT_FALSE(Lesen(o, davor + tag + kAudio, 102400).ok);
    Gelesen g = Lesen(o, davor + tag + kAudio, 0);
    ASSERT_TRUE(g.ok);
    EXPECT_EQ(g.d.Mp3_ID3v2_TAGPosition, 200001);
    EXPECT_EQ(g.d.Mp3_ID3v2_TIT2, "Titel");
    EXPECT_EQ(g.d.Mp3_ID3v2_Version, "2.3.0");
    EXPECT_EQ(g.d.Mp3_ID3v2_TAGGröße, static_cast<int32_t>(tag.size()));

    // Das erste "ID3" entscheidet, auch wenn seine Version nicht passt.
    Gelesen falsch = Lesen(o, "xxID3\x09\x00" + tag + kAudio);
    EXPECT_FALSE(falsch.ok);
    EXPECT_EQ(falsch.d.Mp3_ID3v2_Status, 2);
    EXPECT_EQ(falsch.d.Mp3_ID3v2_TIT2, "");
    EXPECT_EQ(falsch.d.Mp3_ID3v2_TAGGröße, -1);
    EXPECT_EQ(falsch.d.Mp3_ID3v2_TAGPosition, -1);
    EXPECT_EQ(falsch.d.Mp3_ID3v2_Version, "");
    EXPECT_FALSE(Lesen(o, kAudio).ok);
    DateiInfo d;
    EXPECT_FALSE(Mp3TAGLesenV2(o / "fehlt", d, 0));
    EXPECT_EQ(d.Mp3_ID3v2_Status, 2);

    // Ein Tag über den Suchbereich hinaus wird nachgelesen ...
    V2Tag lang;
    lang.rahmen = {Text("XLNG", mpeg::Füllung(5000)), Text("TALB", "Album")};
    EXPECT_EQ(Lesen(o, mpeg::Id3v2(lang) + kAudio, 1000).d.Mp3_ID3v2_TALB, "Album");
    // ... aber gemessen an größe + 20, nicht an der Fundstelle: steht er weiter hinten, fehlt
    // sein Ende.
    V2Tag mittel;
    mittel.rahmen = {Text("XLNG", mpeg::Füllung(1500)), Text("TALB", "Album")};
    Gelesen hinten = Lesen(o, mpeg::Füllung(3000) + mpeg::Id3v2(mittel) + kAudio, 4000);
    EXPECT_TRUE(hinten.ok);
    EXPECT_EQ(hinten.d.Mp3_ID3v2_TAGPosition, 3001);
    EXPECT_EQ(hinten.d.Mp3_ID3v2_TALB, "");
}

TEST(Id3v2Lesen, RahmenDurchlauf) {
    TestOrdner o;
    V2Tag t;
    t.rahmen = {Text("TIT2", "Erster"),    Text("TPE1", "Interpret  "), Kommentar("COMM", "Nur der Text"),
                Text("xyzq", "unbekannt"), Text("1abc", "Ziffer"),      Text("{abc", "Byte 123"),
                Text("TIT2", "Zweiter"),  // der letzte gewinnt
                Text("PCNT", "5")};
    t.padding = 30;
    Gelesen g = Lesen(o, mpeg::Id3v2(t) + kAudio);
    ASSERT_TRUE(g.ok);
    EXPECT_EQ(g.d.Mp3_ID3v2_Status, 1);
    EXPECT_EQ(g.d.Mp3_ID3v2_TIT2, "Zweiter");
    EXPECT_EQ(g.d.Mp3_ID3v2_TPE1, "Interpret");
    EXPECT_EQ(g.d.Mp3_ID3v2_COMM, "Nur der Text");
    EXPECT_EQ(g.d.Mp3_ID3v2_PCNT, "5");
    EXPECT_EQ(g.d.Mp3_ID3v2_Weitere, mpeg::RahmenBytes(Text("xyzq", "unbekannt"), 3));
    int32_t rahmen = 0;
    for (const auto& r : t.rahmen) rahmen += static_cast<int32_t>(mpeg::RahmenBytes(r, 3).size());
    EXPECT_EQ(g.d.Mp3_ID3v2_Benutzt, 10 + rahmen);
    EXPECT_EQ(g.d.Mp3_ID3v2_TAGGröße, 10 + rahmen + 30);

    // Sprache und Beschreibung eines Kommentars bleiben vom Text getrennt, in jeder Kodierung.
    V2Tag b;
    b.rahmen = {Kommentar("COMM", "Text", "d")};
    Gelesen mitBeschreibung = Lesen(o, mpeg::Id3v2(b) + kAudio);
    EXPECT_EQ(mitBeschreibung.d.Mp3_ID3v2_COMM, "Text");
    EXPECT_EQ(mitBeschreibung.d.Mp3_ID3v2_Benutzt, 0);  // ohne Auffüllung endet der Durchlauf am Ende

    V2Tag leer;
    leer.padding = 50;
    Gelesen nurPadding = Lesen(o, mpeg::Id3v2(leer) + kAudio);
    EXPECT_TRUE(nurPadding.ok);
    EXPECT_EQ(nurPadding.d.Mp3_ID3v2_Benutzt, 10);
    EXPECT_EQ(nurPadding.d.Mp3_ID3v2_TIT2, "");

    V2Tag aaaa;  // vier gleiche Zeichen gelten auch als Auffüllung
    aaaa.rahmen = {Text("TALB", "A"), Text("AAAA", "x"), Text("TIT2", "nie gelesen")};
    Gelesen a = Lesen(o, mpeg::Id3v2(aaaa) + kAudio);
    EXPECT_EQ(a.d.Mp3_ID3v2_TIT2, "");
    EXPECT_EQ(a.d.Mp3_ID3v2_Benutzt, 10 + 12);
}

TEST(Id3v2Lesen, Kodierungen) {
    TestOrdner o;
    V2Tag t;
    t.rahmen = {Text("TIT2", mpeg::Utf16("Titel \xC4", false, true), 1),
                Text("TPE1", mpeg::Utf16("Gro\xDF", true, false), 2),
                Text("TALB",
                     "Gr\xC3\xBC\xC3\x9F"
                     "e",
                     3),
                Text("TCON", "Caf\xE9 \x80", 0),
                Kommentar("COMM", mpeg::Utf16("Kommentar", false, true), mpeg::Utf16("", false, true), 1),
                Text("TYER", mpeg::Utf16("2001", true, true) + std::string(2, '\0'), 1),
                Text("WXXX", mpeg::Utf16("", false, true) + std::string(2, '\0') + "http://x.de/\xE9", 1)};
    t.padding = 10;
    Gelesen g = Lesen(o, mpeg::Id3v2(t) + kAudio);
    EXPECT_EQ(g.d.Mp3_ID3v2_TIT2, "Titel Ä");
    EXPECT_EQ(g.d.Mp3_ID3v2_TPE1, "Groß");
    EXPECT_EQ(g.d.Mp3_ID3v2_TALB, "Grüße");
    EXPECT_EQ(g.d.Mp3_ID3v2_TCON, "Café €");
    EXPECT_EQ(g.d.Mp3_ID3v2_COMM, "Kommentar");
    EXPECT_EQ(g.d.Mp3_ID3v2_TYER, "2001");
    EXPECT_EQ(g.d.Mp3_ID3v2_WXXX, "http://x.de/é");
}

TEST(Id3v2Lesen, VersionenKopfflagsUndFusszeile) {
    TestOrdner o;
    // 2.2: dreistellige Größen werden zu groß gelesen, der erste Rahmen läuft über die folgenden.
    V2Tag v22;
    v22.major = 2;
    v22.rahmen = {Text("TT2", "Titel"), Text("TP1", "Wer")};
    Gelesen g22 = Lesen(o, mpeg::Id3v2(v22) + kAudio);
    ASSERT_TRUE(g22.ok);
    EXPECT_EQ(g22.d.Mp3_ID3v2_Version, "2.2.0");
    EXPECT_EQ(g22.d.Mp3_ID3v2_TIT2, "TitelTP1\x04Wer");
    EXPECT_EQ(g22.d.Mp3_ID3v2_TPE1, "");
    V2Tag unbekannt22;
    unbekannt22.major = 2;
    unbekannt22.rahmen = {Text("XYZ", "x")};
    EXPECT_EQ(Lesen(o, mpeg::Id3v2(unbekannt22) + kAudio).d.Mp3_ID3v2_Weitere, " ");

    // 2.4 mit Fußzeile: "3DI" beendet den Durchlauf, die Größe zählt 20 dazu. Jedes gesetzte
    // Flag gilt auch als erweiterter Kopf: die ersten zehn Rahmenbytes (hier TXXX) fallen weg.
    V2Tag v24;
    v24.major = 4;
    v24.fußzeile = true;
    v24.rahmen = {mpeg::Rahmen{"TXXX", ""}, Text("TIT2", "Vier")};
    const std::string tag24 = mpeg::Id3v2(v24);
    Gelesen g24 = Lesen(o, tag24 + kAudio);
    EXPECT_EQ(g24.d.Mp3_ID3v2_Version, "2.4.0");
    EXPECT_EQ(g24.d.Mp3_ID3v2_TIT2, "Vier");
    EXPECT_EQ(g24.d.Mp3_ID3v2_TAGGröße, static_cast<int32_t>(tag24.size()));
    EXPECT_EQ(g24.d.Mp3_ID3v2_Benutzt, 0);
    EXPECT_EQ(g24.d.Mp3_ID3v2_Weitere, "");
    v24.padding = 5;  // Zähler: 20 für die Fußzeile, 10 für den angenommenen Kopf, 15 für TIT2
    EXPECT_EQ(Lesen(o, mpeg::Id3v2(v24) + kAudio).d.Mp3_ID3v2_Benutzt, 45);

    // Erweiterter Kopf: gilt als 10 Bytes lang, der Zähler beginnt bei 20.
    V2Tag ext;
    ext.erweiterterKopf = mpeg::BigEndian(6, 4) + std::string(6, '\0');
    ext.rahmen = {Text("TIT2", "Mit Kopf")};
    ext.padding = 20;  // unter 11 Bytes endete der Durchlauf vor der Auffüllung
    Gelesen ge = Lesen(o, mpeg::Id3v2(ext) + kAudio);
    EXPECT_EQ(ge.d.Mp3_ID3v2_TIT2, "Mit Kopf");
    EXPECT_EQ(ge.d.Mp3_ID3v2_Benutzt, 20 + 10 + 9);

    // Nur das Unsynchronisations-Flag: die ersten zehn Rahmenbytes fallen weg.
    V2Tag unsync;
    unsync.flags = 0x80;
    unsync.rahmen = {mpeg::Rahmen{"TXXX", ""}, Text("TIT2", "Danach")};
    Gelesen gu = Lesen(o, mpeg::Id3v2(unsync) + kAudio);
    EXPECT_EQ(gu.d.Mp3_ID3v2_TIT2, "Danach");
    EXPECT_EQ(gu.d.Mp3_ID3v2_Weitere, "");
}
