// Was ein Speichern oder Entfernen nicht zerstören darf: große Bilder, den Ton hinter einer
// falschen Größe, Text außerhalb von Windows-1252, Sprache und Beschreibung eines Kommentars,
// die Rahmen eines 2.2-Tags, eine schreibgeschützte Datei.
#include "app/Kartei.h"
#include "app/Pfade.h"
#include "media/Id3v1.h"
#include "media/Id3v2Lesen.h"
#include "media/Id3v2Schreiben.h"
#include "support/Attrappen.h"
#include "support/MpegDaten.h"
#include "support/OhneVorrechte.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {
using mpeg::Rahmen;
using mpeg::Text;
using mpeg::V2Tag;

std::string TonBauen() {
    std::string ton;
    for (int i = 0; i < 8; ++i) ton += mpeg::Frame(mpeg::Kopf{});
    return ton + mpeg::Id3v1("v1", "", "", "", "", 1, 2);
}
const std::string kTon = TonBauen();

// Bilddaten mit FF FB mittendrin: ein falscher Frame-Kopf darf den Tag nicht kürzen.
Rahmen Bild(size_t n) {
    std::string d;
    for (size_t i = 0; d.size() < n; ++i) d += i % 97 == 0 ? std::string("\xFF\xFB\x90\x00", 4) : std::string(1, 'j');
    d.resize(n);
    return Rahmen{"APIC", std::string(1, '\0') + "image/jpeg" + '\0' + "\x03" + '\0' + d};
}

DateiInfo Lesen(const std::string& pfad) {
    DateiInfo d;
    Mp3TAGLesenV2(pfad, d, 102400);
    return d;
}

bool Enthält(const std::string& text, const std::string& teil) { return text.find(teil) != std::string::npos; }
}  // namespace

TEST(TagErhalt, BildUeber64KBBleibtGanz) {
    TestUmgebung u;
    TestOrdner o;
    const std::string pfad = o / "a.mp3";
    V2Tag t;
    t.rahmen = {Text("TIT2", "Alt"), Bild(100 * 1024)};
    t.padding = 2000;
    const std::string tag = mpeg::Id3v2(t);
    DateiSchreiben(pfad, tag + kTon);
    // Der Leser meldet die Größe, wie er sie liest (zu klein); das bleibt so.
    DateiInfo d = Lesen(pfad);
    EXPECT_LT(d.Mp3_ID3v2_TAGGröße, static_cast<int32_t>(tag.size()));
    d.Mp3_ID3v2_TIT2 = "Neu";
    std::string fehler;
    ASSERT_TRUE(MP3TagSpeichernV2Datei(u.k, pfad, fehler, d)) << fehler;
    // An Ort und Stelle: gleiche Länge, das Bild Byte für Byte, der Ton unberührt.
    const std::string danach = DateiLesen(pfad);
    EXPECT_EQ(danach.size(), tag.size() + kTon.size());
    EXPECT_TRUE(Enthält(danach, mpeg::RahmenBytes(t.rahmen[1], 3)));
    EXPECT_EQ(danach.substr(tag.size()), kTon);
    EXPECT_EQ(Lesen(pfad).Mp3_ID3v2_TIT2, "Neu");

    // Entfernen nimmt den ganzen Tag, nicht nur die gelesene Größe.
    DateiRest rest;
    ASSERT_TRUE(TAGEntfernenV2(u.k, pfad, 0, false, rest));
    EXPECT_EQ(DateiLesen(pfad), kTon);
}

TEST(TagErhalt, GroesseUeberDasDateiende) {
    TestUmgebung u;
    TestOrdner o;
    const std::string pfad = o / "a.mp3";
    V2Tag t;
    t.rahmen = {Text("TIT2", "Titel"), Text("TPE1", "Wer")};
    t.padding = 1000;
    const std::string heil = mpeg::Id3v2(t);
    // Ein oberes Bit im ersten Größenbyte: der Leser rechnet mit allen 32 Bit, die Norm nicht.
    for (const char erstesByte : {'\x80', '\x7F'}) {
        std::string kaputt = heil;
        kaputt[6] = erstesByte;
        DateiSchreiben(pfad, kaputt + kTon);
        DateiInfo d = Lesen(pfad);
        d.Mp3_ID3v2_TIT2 = "Test";
        std::string fehler;
        ASSERT_TRUE(MP3TagSpeichernV2Datei(u.k, pfad, fehler, d)) << fehler;
        std::string danach = DateiLesen(pfad);
        EXPECT_EQ(danach.substr(danach.size() - kTon.size()), kTon);
        EXPECT_EQ(Lesen(pfad).Mp3_ID3v2_TPE1, "Wer");

        DateiSchreiben(pfad, kaputt + kTon);
        DateiRest rest;
        ASSERT_TRUE(TAGEntfernenV2(u.k, pfad, 0, false, rest));
        EXPECT_EQ(DateiLesen(pfad), kTon);
    }

    // Kein Frame begrenzt den Tag: Speichern und Entfernen weigern sich, die Datei bleibt.
    std::string ohneTon = heil;
    ohneTon[6] = '\x7F';
    DateiSchreiben(pfad, ohneTon);
    std::string fehler;
    EXPECT_FALSE(MP3TagSpeichernV2Datei(u.k, pfad, fehler, Lesen(pfad)));
    EXPECT_EQ(fehler, "Der ID3v2-TAG konnte nicht gespeichert werden.\nDer ID3v2-TAG der Datei '" + pfad +
                          "' konnte nicht entfernt werden.\nDie Größenangabe des ID3v2-TAGs reicht über das "
                          "Dateiende hinaus; die Datei bleibt unverändert.");
    DateiRest rest;
    EXPECT_FALSE(TAGEntfernenV2(u.k, pfad, 0, false, rest));
    ASSERT_FALSE(u.ui.meldungen.empty());
    EXPECT_EQ(u.ui.meldungen.back().text, "Der ID3v2-TAG der Datei '" + pfad +
                                              "' kann nicht entfernt werden.\nDie Größenangabe des ID3v2-TAGs "
                                              "reicht über das Dateiende hinaus; die Datei bleibt unverändert.");
    EXPECT_EQ(DateiLesen(pfad), ohneTon);
}

TEST(TagErhalt, TexteUndKommentare) {
    TestUmgebung u;
    TestOrdner o;
    const std::string pfad = o / "a.mp3";
    u.k.E.TAGsProzentHinzufügen = 0;
    // Passt nicht in Windows-1252: UTF-16 mit BOM; passt: ein Byte je Zeichen.
    DateiSchreiben(pfad, kTon);
    DateiInfo d;
    d.Mp3_ID3v2_TIT2 = "Ελλάδα \xE2\x98\x83";
    d.Mp3_ID3v2_TPE1 = "Grüße €";
    std::string fehler;
    ASSERT_TRUE(MP3TagSpeichernV2Datei(u.k, pfad, fehler, d)) << fehler;
    std::string danach = DateiLesen(pfad);
    const std::string utf16 = std::string("\xFF\xFE\x95\x03\xBB\x03\xBB\x03\xAC\x03\xB4\x03\xB1\x03 \0\x03\x26", 18);
    EXPECT_TRUE(Enthält(danach, "TIT2" + mpeg::BigEndian(19, 4) + std::string(2, '\0') + '\x01' + utf16));
    EXPECT_TRUE(Enthält(danach, "TPE1" + mpeg::BigEndian(8, 4) + std::string(3, '\0') + "Gr\xFC\xDF" + "e \x80"));
    EXPECT_EQ(Lesen(pfad).Mp3_ID3v2_TIT2, d.Mp3_ID3v2_TIT2);
    EXPECT_EQ(Lesen(pfad).Mp3_ID3v2_TPE1, d.Mp3_ID3v2_TPE1);

    // Kommentare: gelesen wird nur der Text; geschrieben behält der letzte Sprache und Beschreibung,
    // der davor bleibt Byte für Byte.
    V2Tag t;
    const Rahmen norm =
        mpeg::Kommentar("COMM", mpeg::Utf16(" 0000031C", false, true), mpeg::Utf16("iTunNORM", false, true), 1);
    t.rahmen = {norm,
                mpeg::Kommentar("COMM", mpeg::Utf16("Alt", true, false), mpeg::Utf16("Notiz", true, false), 2, "deu")};
    t.padding = 100;
    DateiSchreiben(pfad, mpeg::Id3v2(t) + kTon);
    d = Lesen(pfad);
    EXPECT_EQ(d.Mp3_ID3v2_COMM, "Alt");
    d.Mp3_ID3v2_COMM = "Neu";
    ASSERT_TRUE(MP3TagSpeichernV2Datei(u.k, pfad, fehler, d)) << fehler;
    danach = DateiLesen(pfad);
    EXPECT_TRUE(Enthält(danach, mpeg::RahmenBytes(norm, 3)));
    EXPECT_TRUE(Enthält(danach, mpeg::RahmenBytes(mpeg::Kommentar("COMM", "Neu", "Notiz", 0, "deu"), 3)));
    EXPECT_EQ(Lesen(pfad).Mp3_ID3v2_COMM, "Neu");
    d.Mp3_ID3v2_COMM = "Ω";
    ASSERT_TRUE(MP3TagSpeichernV2Datei(u.k, pfad, fehler, d)) << fehler;
    const std::string omega("\xFF\xFE\xA9\x03", 4);
    EXPECT_TRUE(
        Enthält(DateiLesen(pfad),
                mpeg::RahmenBytes(mpeg::Kommentar("COMM", omega, mpeg::Utf16("Notiz", false, true), 1, "deu"), 3)));
    EXPECT_EQ(Lesen(pfad).Mp3_ID3v2_COMM, "Ω");

    // UTF-8 mit Beschreibung liest sich ebenso getrennt.
    t.rahmen = {mpeg::Kommentar("COMM", "Grüße", "Beschreibung", 3)};
    DateiSchreiben(pfad, mpeg::Id3v2(t) + kTon);
    EXPECT_EQ(Lesen(pfad).Mp3_ID3v2_COMM, "Grüße");
}

TEST(TagErhalt, Version22WirdUmgesetzt) {
    TestUmgebung u;
    TestOrdner o;
    const std::string pfad = o / "a.mp3";
    V2Tag t;
    t.major = 2;
    const std::pair<const char*, const char*> kennungen[] = {
        {"TT2", "TIT2"}, {"TP1", "TPE1"}, {"TP2", "TPE2"}, {"TAL", "TALB"}, {"TYE", "TYER"}, {"TRK", "TRCK"},
        {"TPA", "TPOS"}, {"TCO", "TCON"}, {"TEN", "TENC"}, {"TSS", "TSSE"}, {"TBP", "TBPM"}, {"TCM", "TCOM"},
        {"TXX", "TXXX"}, {"WXX", "WXXX"}, {"ULT", "USLT"}, {"COM", "COMM"}, {"TCP", "TCMP"}, {"XYZ", "XXYZ"}};
    for (const auto& [alt, neu] : kennungen) t.rahmen.push_back(Text(alt, std::string("Wert ") + alt));
    t.rahmen.push_back(Rahmen{"PIC", std::string(1, '\0') + "PNG" + "\x03" + "Bild" + '\0' + "PNGDATEN"});
    t.rahmen.push_back(Rahmen{"PIC", std::string(1, '\0') + "GIF" + std::string(2, '\0') + "GIF89a"});
    t.padding = 50;
    DateiSchreiben(pfad, mpeg::Id3v2(t) + kTon);
    DateiInfo d = Lesen(pfad);
    d.Mp3_ID3v2_TIT2 = "Neu";
    std::string fehler;
    ASSERT_TRUE(MP3TagSpeichernV2Datei(u.k, pfad, fehler, d)) << fehler;
    const std::string danach = DateiLesen(pfad);
    EXPECT_EQ(Lesen(pfad).Mp3_ID3v2_Version, "2.3.0");
    for (const auto& [alt, neu] : kennungen) {
        if (std::string(neu) != "TIT2") {
            EXPECT_TRUE(Enthält(danach, mpeg::RahmenBytes(Text(neu, std::string("Wert ") + alt), 3))) << neu;
        }
    }
    EXPECT_TRUE(Enthält(danach, mpeg::RahmenBytes(Rahmen{"APIC", std::string(1, '\0') + "image/png" + '\0' + "\x03" +
                                                                     "Bild" + '\0' + "PNGDATEN"},
                                                  3)));
    EXPECT_TRUE(Enthält(
        danach,
        mpeg::RahmenBytes(Rahmen{"APIC", std::string(1, '\0') + "image/gif" + '\0' + '\0' + '\0' + "GIF89a"}, 3)));
    EXPECT_EQ(danach.substr(danach.size() - kTon.size()), kTon);
    EXPECT_EQ(Lesen(pfad).Mp3_ID3v2_TIT2, "Neu");
}

TEST(TagErhalt, SchreibgeschuetztBeiTagUndUntag) {
    TestOrdner o;
    ::chmod(o.Pfad().c_str(), 0777);
    const std::string pfad = o / "a.mp3";
    V2Tag t;
    t.rahmen = {Text("TIT2", "Titel")};
    const std::string inhalt = mpeg::Id3v2(t) + kTon;
    DateiSchreiben(pfad, inhalt);
    ::chmod(pfad.c_str(), 0444);
    const std::string meldungen = OhneVorrechteAusführen([&] {
        TestUmgebung u;
        DateiInfo arbeit;
        DateiRest rest;
        std::string fehler, aus;
        aus += MP3TagSpeichernV2Datei(u.k, pfad, fehler, DateiInfo{}) ? "gelungen\n" : fehler + "\n";
        aus += Mp3TAGSpeichernV1Datei(pfad, std::string(128, ' '), fehler) ? "gelungen\n" : fehler + "\n";
        aus += TAGEntfernenV2(u.k, pfad, 0, false, rest) ? "gelungen\n" : u.ui.meldungen.back().text + "\n";
        aus += TAGEntfernen(u.k, arbeit, pfad) ? "gelungen\n" : u.ui.meldungen.back().text + "\n";
        return aus;
    });
    const std::string zugriff = "' konnte nicht gespeichert werden.\nAuf die Datei kann nicht zugegriffen werden "
                                "(Fehler 75).\nStellen Sie sicher, dass diese nicht in einem Programm (z.B. "
                                "Download-Programm, Musikeditor, Audioplayer) geöffnet ist und der Zugriff möglich "
                                "ist.\n";
    auto entfernen = [&](const char* v) {
        return "Die Entfernung des " + std::string(v) + "-TAGs der Datei '" + pfad +
               "' konnte nicht abgeschlossen werden.\nStellen Sie sicher, daß die Datei verfügbar ist und nicht "
               "durch eine andere Anwendung geöffnet wurde.\n";
    };
    EXPECT_EQ(meldungen, "Die ID3v2-TAG der Datei '" + pfad + zugriff + "Die ID3v1-TAG der Datei '" + pfad + zugriff +
                             entfernen("ID3v2") + entfernen("ID3v1"));
    EXPECT_EQ(DateiLesen(pfad), inhalt);
}
