#include "media/MpegKopf.h"
#include "support/MpegDaten.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>

#include <random>

namespace {
using mpeg::Kopf;

// Ein Datensatz mit auffälligen Werten, um "behält seinen Wert" zu sehen.
DateiInfo Vorbelegt() {
    DateiInfo d;
    d.Header_Bitrate = 999;
    d.Header_Frequenz = 12345;
    d.Header_Dauer = 4242;
    d.Header_Frames = 777;
    d.Header_Position = 77;
    return d;
}

DateiInfo Lesen(const std::string& pfad, DateiInfo d = Vorbelegt()) { return HeaderLesen(pfad, d); }
}  // namespace

TEST(MpegKopf, RechenbeispielKonstanteBitrate) {
    TestOrdner o;
    const std::string pfad = o / "cbr.mp3";
    mpeg::DünneDateiSchreiben(pfad, mpeg::Füllung(1000) + mpeg::Frame(Kopf{}), 4000000,
                              mpeg::Id3v1("T", "I", "A", "2001", "K", 1, 17));
    DateiInfo d;
    d.Datei_Größe = 4000000;
    d.Mp3_ID3v1_Status = 1;
    d = HeaderLesen(pfad, d);
    EXPECT_EQ(d.Header_Position, 1000);
    EXPECT_EQ(d.Header_Version, 1);
    EXPECT_EQ(d.Header_Layer, 3);
    EXPECT_EQ(d.Header_Frequenz, 44100);
    EXPECT_EQ(d.Header_Bitrate, 128);
    EXPECT_FALSE(d.Header_VBR);
    EXPECT_EQ(d.Header_Dauer, 249);
    EXPECT_EQ(d.Header_Frames, 9568);  // aus 9567,6 gerundet
    EXPECT_EQ(d.Header_Modus, "Stereo");
    EXPECT_EQ(d.Header_Emphasis, "Nein");
    EXPECT_FALSE(d.Header_CRC);
}

TEST(MpegKopf, RechenbeispielXing) {
    TestOrdner o;
    const std::string pfad = o / "vbr.mp3";
    mpeg::DünneDateiSchreiben(pfad, mpeg::Füllung(1000) + mpeg::XingFrame(Kopf{}, 6000), 4000000,
                              mpeg::Id3v1("T", "I", "A", "2001", "K", 1, 17));
    DateiInfo d;
    d.Datei_Größe = 4000000;
    d.Mp3_ID3v1_Status = 1;
    d = HeaderLesen(pfad, d);
    EXPECT_TRUE(d.Header_VBR);
    EXPECT_EQ(d.Header_Bitrate, 204);  // 204,16... gerundet
    EXPECT_EQ(d.Header_Dauer, 156);
    EXPECT_EQ(d.Header_Frames, 6000);
}

TEST(MpegKopf, KleineDateienUndSuchgrenze) {
    TestOrdner o;
    const std::string vier = o / "vier", fünf = o / "fuenf";
    DateiSchreiben(vier, mpeg::KopfBytes(Kopf{}));
    DateiSchreiben(fünf, mpeg::KopfBytes(Kopf{}) + "x");
    EXPECT_EQ(Lesen(vier), Vorbelegt());  // 4 Bytes: unverändert
    const DateiInfo d5 = Lesen(fünf);
    EXPECT_EQ(d5.Header_Position, 0);
    EXPECT_EQ(d5.Header_Bitrate, 128);
    EXPECT_EQ(Lesen(o / "fehlt"), Vorbelegt());

    // Anfang: ein MPEG-2-Kopf, den die Suche überspringt, aus dem aber ohne Fund gelesen wird.
    Kopf mpeg2;
    mpeg2.version = 2;
    mpeg2.bitrate = 8;
    std::string daten = mpeg::KopfBytes(mpeg2) + mpeg::Füllung(102500 - 4);
    std::string grenze = daten;
    grenze[102399] = '\xFF', grenze[102400] = '\xFB';  // Stellen 102400/102401: gefunden
    DateiSchreiben(o / "grenze", grenze);
    DateiInfo g = Lesen(o / "grenze");
    EXPECT_EQ(g.Header_Position, 102399);
    EXPECT_EQ(g.Header_Version, 1);

    std::string dahinter = daten;
    dahinter[102400] = '\xFF', dahinter[102401] = '\xFB';  // Stellen 102401/102402: nicht mehr
    DateiSchreiben(o / "dahinter", dahinter);
    DateiInfo h = Lesen(o / "dahinter");
    EXPECT_EQ(h.Header_Position, 77);  // bleibt
    EXPECT_EQ(h.Header_Version, 2);    // vom Dateianfang entschlüsselt
    EXPECT_EQ(h.Header_Frequenz, 22050);
    EXPECT_EQ(h.Header_Bitrate, 64);

    // MPEG 2 wird übersprungen, der spätere MPEG-1-Frame gefunden.
    DateiSchreiben(o / "zwei", mpeg::Frame(mpeg2, 500) + mpeg::Frame(Kopf{}));
    EXPECT_EQ(Lesen(o / "zwei").Header_Position, 500);
}

TEST(MpegKopf, KopfbitsUndTabellen) {
    TestOrdner o;
    auto mit = [&](const Kopf& k) {
        DateiSchreiben(o / "f.mp3", mpeg::Frame(k));
        return Lesen(o / "f.mp3");
    };
    Kopf crc;
    crc.crc = true;  // FF FA
    EXPECT_TRUE(mit(crc).Header_CRC);
    EXPECT_FALSE(mit(Kopf{}).Header_CRC);

    Kopf bits{3, 1, false, 9, 0, true, true, 3, 0, true, true, 3};
    DateiInfo b = mit(bits);
    EXPECT_TRUE(b.Header_Padding && b.Header_Privat && b.Header_Copyright && b.Header_Original);
    EXPECT_EQ(b.Header_Modus, "Single Channel");
    EXPECT_EQ(b.Header_Emphasis, "CCITT J 17");

    Kopf frequenz11;
    frequenz11.frequenz = 3;  // keine Zeile: Wert bleibt, der Rest wird entschlüsselt
    DateiInfo f = mit(frequenz11);
    EXPECT_EQ(f.Header_Frequenz, 12345);
    EXPECT_EQ(f.Header_Bitrate, 128);

    Kopf bitrate1111;
    bitrate1111.bitrate = 15;
    DateiInfo r = mit(bitrate1111);
    EXPECT_EQ(r.Header_Bitrate, 999);
    EXPECT_EQ(r.Header_Frequenz, 44100);

    Kopf frei;
    frei.bitrate = 0;  // freies Format: Bitrate 0, die Dauer bleibt stehen
    DateiInfo fr = mit(frei);
    EXPECT_EQ(fr.Header_Bitrate, 0);
    EXPECT_EQ(fr.Header_Dauer, 4242);

    Kopf reserviert;
    reserviert.version = 1;  // Version 0
    DateiInfo v = mit(reserviert);
    EXPECT_EQ(v.Header_Version, 0);
    EXPECT_EQ(v.Header_Frequenz, 0);
    EXPECT_EQ(v.Header_Bitrate, 1);
    EXPECT_EQ(v.Header_Frames, -1);

    // Die Suche kennt nur MPEG 1 Layer III; andere Köpfe werden vom Dateianfang gelesen.
    Kopf mpeg25;
    mpeg25.version = 0;
    mpeg25.layer = 2;  // Layer II
    mpeg25.frequenz = 2;
    mpeg25.bitrate = 14;
    DateiInfo m = mit(mpeg25);
    EXPECT_EQ(m.Header_Version, 25);
    EXPECT_EQ(m.Header_Layer, 2);
    EXPECT_EQ(m.Header_Frequenz, 16000);  // teilt die MPEG-2-Zeile
    EXPECT_EQ(m.Header_Bitrate, 160);     // Schlüssel "252"
}

TEST(MpegKopf, XingSonderfaelle) {
    TestOrdner o;
    auto mit = [&](const std::string& frame, DateiInfo d = Vorbelegt()) {
        DateiSchreiben(o / "x.mp3", mpeg::Füllung(300) + frame + mpeg::Füllung(100000));
        return HeaderLesen(o / "x.mp3", d);
    };
    EXPECT_FALSE(mit(mpeg::XingFrame(Kopf{}, 6000, "xing")).Header_VBR);
    std::string verschoben = mpeg::Frame(Kopf{});
    verschoben.replace(37, 4, "Xing");
    EXPECT_FALSE(mit(verschoben).Header_VBR);

    DateiInfo null = mit(mpeg::XingFrame(Kopf{}, 0));  // Division durch 0: Bitrate bleibt
    EXPECT_TRUE(null.Header_VBR);
    EXPECT_EQ(null.Header_Bitrate, 999);
    EXPECT_EQ(null.Header_Frames, 0);

    // Andere Layer findet die Suche nicht; am Dateianfang werden sie trotzdem gelesen.
    auto amAnfang = [&](const Kopf& k) {
        DateiSchreiben(o / "x.mp3", mpeg::XingFrame(k, 100) + mpeg::Füllung(100000));
        return HeaderLesen(o / "x.mp3", Vorbelegt());
    };
    Kopf layer1;
    layer1.layer = 3;  // Layer I trifft die leere Zeile der Faktor-Tabelle
    EXPECT_EQ(amAnfang(layer1).Header_Bitrate, 999);
    EXPECT_TRUE(amAnfang(layer1).Header_VBR);
    Kopf layer2;
    layer2.layer = 2;  // Layer II bekommt 12: 100417 × 44100 / 100 / 1000 / 12
    EXPECT_EQ(amAnfang(layer2).Header_Bitrate, 3690);

    // Zähler ab 2^31: das Lesen endet, gesetzt sind nur Position und VBR.
    DateiInfo groß = mit(mpeg::XingFrame(Kopf{}, 0x80000000u));
    EXPECT_TRUE(groß.Header_VBR);
    EXPECT_EQ(groß.Header_Position, 300);
    EXPECT_EQ(groß.Header_Frames, 777);
    EXPECT_EQ(groß.Header_Version, 0);
}

TEST(MpegKopf, GroesseAusDemDatensatz) {
    TestOrdner o;
    DateiSchreiben(o / "f.mp3", mpeg::Frame(Kopf{}) + mpeg::Füllung(400000));
    DateiInfo d;
    d.Datei_Größe = 0;  // die Frame-Zahl rechnet mit dem Datensatz, die Dauer mit der Datei
    d = HeaderLesen(o / "f.mp3", d);
    EXPECT_EQ(d.Header_Frames, 0);
    EXPECT_EQ(d.Header_Dauer, 25);  // 400417 × 8 / 128 / 1000
    d.Datei_Größe = -50000;
    EXPECT_LT(HeaderLesen(o / "f.mp3", d).Header_Frames, 0);
}

// Die gepufferte Suche muss genau das finden, was die Suche Byte für Byte fände, auch an den
// Grenzen ihrer Lese-Blöcke.
TEST(MpegKopf, SucheWieByteFuerByte) {
    TestOrdner o;
    std::mt19937 zufall(7);
    const int64_t stellen[] = {1, 2, 16383, 16384, 16385, 65535, 65536, 65537, 102399, 102400, 102401};
    for (int runde = 0; runde < 60; ++runde) {
        std::string daten = mpeg::Füllung(103000 + runde);
        const int64_t p = stellen[runde % std::size(stellen)];
        daten[static_cast<size_t>(p - 1)] = '\xFF';
        daten[static_cast<size_t>(p)] = (runde % 3 == 0) ? '\xF3' : (runde % 3 == 1 ? '\xFA' : '\xFB');
        if (runde % 4 == 0) daten[static_cast<size_t>(p - 1 + 2000 < 103000 ? p - 1 + 2000 : 5)] = '\xFF';
        int64_t erwartet = -1;
        for (int64_t i = 1; i <= 102400 && erwartet < 0; ++i)
            if (daten[i - 1] == '\xFF' && (daten[i] == '\xFA' || daten[i] == '\xFB')) erwartet = i - 1;
        DateiSchreiben(o / "s", daten);
        DateiInfo d;
        d.Header_Position = -7;
        Mp3HeaderLesen(o / "s", d);
        EXPECT_EQ(d.Header_Position, erwartet < 0 ? -7 : erwartet) << "Runde " << runde << " Stelle " << p;
    }
}
