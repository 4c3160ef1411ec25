#include "app/Kartei.h"
#include "app/Pfade.h"
#include "media/Id3v2Lesen.h"
#include "media/Id3v2Schreiben.h"
#include "support/Attrappen.h"
#include "support/MpegDaten.h"
#include "support/OhneVorrechte.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {
using mpeg::Text;
using mpeg::V2Tag;
const std::string kAudio = mpeg::Frame(mpeg::Kopf{}) + mpeg::Füllung(5000) + mpeg::Id3v1("v1", "", "", "", "", 1, 2);

std::string Rahmen(const std::string& id, const std::string& text) {
    return id + mpeg::BigEndian(static_cast<uint32_t>(text.size() + 1), 4) + std::string(3, '\0') + text;
}

// Ein alter Tag genau der Gesamtgröße groesse (Kopf eingeschlossen), aus Auffüllung.
std::string AlterTag(size_t größe) {
    V2Tag t;
    t.rahmen = {Text("TIT2", "alt")};
    t.padding = größe - 10 - 14;
    return mpeg::Id3v2(t);
}

DateiInfo Felder(const std::string& interpret, const std::string& titel) {
    DateiInfo d;
    d.Mp3_ID3v2_TPE1 = interpret;
    d.Mp3_ID3v2_TIT2 = titel;
    return d;
}

DateiInfo Lesen(const std::string& pfad) {
    DateiInfo d;
    Mp3TAGLesenV2(pfad, d, 0);
    return d;
}
}  // namespace

TEST(Id3v2Schreiben, KoepfeUndRahmenfolge) {
    EXPECT_EQ(Mp3TAGSpeichernV2TAGHeaderZurückgeben(511), std::string("ID3\x03\0\0\0\0\x03\x7F", 10));
    EXPECT_EQ(Mp3TAGSpeichernV2TAGHeaderZurückgeben(70000), std::string("ID3\x03\0\0", 6) + mpeg::SyncSafe(70000));
    EXPECT_EQ(Mp3TAGSpeichernV2TAGHeaderZurückgeben(0x0FFFFFFF), std::string("ID3\x03\0\0\x7F\x7F\x7F\x7F", 10));
    EXPECT_EQ(Mp3TAGSpeichernV2FrameHeaderZurückgeben(70000, "TIT2"),
              "TIT2" + mpeg::BigEndian(70000, 4) + std::string(2, '\0'));

    TestUmgebung u;
    TestOrdner o;
    const std::string pfad = o / "a.mp3";
    DateiSchreiben(pfad, kAudio);
    DateiInfo d;
    const struct {
        const char* id;
        KText DateiInfo::*feld;
    } liste[] = {{"PCNT", &DateiInfo::Mp3_ID3v2_PCNT}, {"TRCK", &DateiInfo::Mp3_ID3v2_TRCK},
                 {"TENC", &DateiInfo::Mp3_ID3v2_TENC}, {"WXXX", &DateiInfo::Mp3_ID3v2_WXXX},
                 {"TCOP", &DateiInfo::Mp3_ID3v2_TCOP}, {"TOPE", &DateiInfo::Mp3_ID3v2_TOPE},
                 {"TCOM", &DateiInfo::Mp3_ID3v2_TCOM}, {"TCON", &DateiInfo::Mp3_ID3v2_TCON},
                 {"COMM", &DateiInfo::Mp3_ID3v2_COMM}, {"TYER", &DateiInfo::Mp3_ID3v2_TYER},
                 {"TALB", &DateiInfo::Mp3_ID3v2_TALB}, {"TPE1", &DateiInfo::Mp3_ID3v2_TPE1},
                 {"TIT2", &DateiInfo::Mp3_ID3v2_TIT2}, {"TLAN", &DateiInfo::Mp3_ID3v2_TLAN},
                 {"TLEN", &DateiInfo::Mp3_ID3v2_TLEN}, {"TMED", &DateiInfo::Mp3_ID3v2_TMED},
                 {"TPUB", &DateiInfo::Mp3_ID3v2_TPUB}, {"TSSE", &DateiInfo::Mp3_ID3v2_TSSE}};
    std::string erwartet;
    for (const auto& r : liste) {
        d.*r.feld = std::string("Wert ") + r.id + " \xC3\xA4";  // "ä" steht als Windows-1252 im Tag
        const std::string text = std::string("Wert ") + r.id + " \xE4";
        const bool sprache = r.id == std::string("WXXX") || r.id == std::string("COMM");
        erwartet += Rahmen(r.id, sprache ? std::string("eng", 3) + '\0' + text : text);
    }
    erwartet += Rahmen("PCNT", "Wert PCNT \xE4");  // der Zähler ein zweites Mal
    std::string fehler;
    u.k.E.TAGsProzentHinzufügen = 0;
    ASSERT_TRUE(MP3TagSpeichernV2Datei(u.k, pfad, fehler, d)) << fehler;
    EXPECT_EQ(DateiLesen(pfad),
              Mp3TAGSpeichernV2TAGHeaderZurückgeben(static_cast<int32_t>(erwartet.size())) + erwartet + kAudio);
    const DateiInfo zurück = Lesen(pfad);
    for (const auto& r : liste) EXPECT_EQ(zurück.*r.feld, d.*r.feld) << r.id;

    // 19 Plätze sind voll: weitere Rahmen lassen das Speichern scheitern, die Datei bleibt.
    DateiSchreiben(pfad, kAudio);
    const std::string vorher = DateiLesen(pfad);
    d.Mp3_ID3v2_Weitere = Rahmen("XTRA", "x");
    EXPECT_FALSE(MP3TagSpeichernV2Datei(u.k, pfad, fehler, d));
    EXPECT_EQ(fehler, "Der ID3v2-TAG der Datei '" + pfad +
                          "' konnte nicht gespeichert werden.\nIndex außerhalb des gültigen Bereichs (Fehler 9).");
    EXPECT_EQ(DateiLesen(pfad), vorher);

    EXPECT_FALSE(MP3TagSpeichernV2Datei(u.k, o / "fehlt.mp3", fehler, d));
    EXPECT_EQ(fehler, "Die ID3v2-TAG der Datei '" + o / "fehlt.mp3" +
                          "' konnte nicht gespeichert werden.\nDie Datei existiert nicht.");
}

TEST(Id3v2Schreiben, AnOrtUndStelleOderNeu) {
    TestUmgebung u;
    TestOrdner o;
    const std::string pfad = o / "a.mp3";
    const DateiInfo d = Felder("Wer", "Was");  // Summe = 14 + 14
    const int32_t summe = 28;
    std::string fehler;

    // Alter Tag genau Summe + 10: an Ort und Stelle, ohne Auffüllung, Länge bleibt.
    DateiSchreiben(pfad, AlterTag(summe + 10) + kAudio);
    ASSERT_TRUE(MP3TagSpeichernV2Datei(u.k, pfad, fehler, d)) << fehler;
    EXPECT_EQ(DateiLesen(pfad),
              Mp3TAGSpeichernV2TAGHeaderZurückgeben(summe) + Rahmen("TPE1", "Wer") + Rahmen("TIT2", "Was") + kAudio);

    // Größerer alter Tag: der Rest wird Auffüllung, die Länge bleibt auf das Byte.
    DateiSchreiben(pfad, AlterTag(200) + kAudio);
    ASSERT_TRUE(MP3TagSpeichernV2Datei(u.k, pfad, fehler, d));
    std::string inhalt = DateiLesen(pfad);
    EXPECT_EQ(inhalt.size(), 200 + kAudio.size());
    EXPECT_EQ(inhalt.substr(200), kAudio);
    EXPECT_EQ(Lesen(pfad).Mp3_ID3v2_TAGGröße, 200);
    EXPECT_EQ(Lesen(pfad).Mp3_ID3v2_Benutzt, 10 + summe);

    // Ein Byte weniger: neu geschrieben, mit 25 % Auffüllung (38 × 25 / 100 = 9,5 → 10).
    DateiSchreiben(pfad, AlterTag(summe + 9) + kAudio);
    ASSERT_TRUE(MP3TagSpeichernV2Datei(u.k, pfad, fehler, d));
    EXPECT_EQ(DateiLesen(pfad), Mp3TAGSpeichernV2TAGHeaderZurückgeben(summe + 10) + Rahmen("TPE1", "Wer") +
                                    Rahmen("TIT2", "Was") + std::string(10, '\0') + kAudio);
    EXPECT_FALSE(DoesExist(pfad + "-neu"));

    // Ohne alten Tag, alle Felder leer: TPE1 und TIT2 machen 32 Bytes, dazu 8 Auffüllung.
    DateiSchreiben(pfad, kAudio);
    ASSERT_TRUE(MP3TagSpeichernV2Datei(u.k, pfad, fehler, DateiInfo{}));
    EXPECT_EQ(DateiLesen(pfad), Mp3TAGSpeichernV2TAGHeaderZurückgeben(22 + 8) + Rahmen("TPE1", "") +
                                    Rahmen("TIT2", "") + std::string(8, '\0') + kAudio);
    u.k.E.TAGsProzentHinzufügen = 0;
    DateiSchreiben(pfad, kAudio);
    ASSERT_TRUE(MP3TagSpeichernV2Datei(u.k, pfad, fehler, DateiInfo{}));
    EXPECT_EQ(DateiLesen(pfad).size(), 32 + kAudio.size());
}

TEST(Id3v2Schreiben, AuffuellungUndVerschobenerTag) {
    TestUmgebung u;
    TestOrdner o;
    const std::string pfad = o / "a.mp3";
    std::string fehler;
    // Summe 100: 110 × 25 / 100 = 27,5 → 28; Größenfeld Summe + 28.
    const DateiInfo hundert = Felder(std::string(39, 'i'), std::string(39, 't'));
    DateiSchreiben(pfad, kAudio);
    ASSERT_TRUE(MP3TagSpeichernV2Datei(u.k, pfad, fehler, hundert));
    std::string inhalt = DateiLesen(pfad);
    EXPECT_EQ(inhalt.substr(6, 4), mpeg::SyncSafe(128));
    EXPECT_EQ(inhalt.size(), 10 + 128 + kAudio.size());
    EXPECT_EQ(inhalt.substr(138), kAudio);

    // Ein Tag an Byte 5000 wird nie überschrieben: der neue steht vorn, was davor stand, dahinter.
    const std::string davor = mpeg::Füllung(4999);
    DateiSchreiben(pfad, davor + AlterTag(300) + kAudio);
    ASSERT_TRUE(MP3TagSpeichernV2Datei(u.k, pfad, fehler, Felder("Wer", "Was")));
    inhalt = DateiLesen(pfad);
    const DateiInfo neu = Lesen(pfad);
    EXPECT_EQ(neu.Mp3_ID3v2_TAGPosition, 1);
    EXPECT_EQ(neu.Mp3_ID3v2_TIT2, "Was");
    EXPECT_EQ(inhalt.substr(static_cast<size_t>(neu.Mp3_ID3v2_TAGGröße)), davor + kAudio);
}

TEST(Id3v2Schreiben, FremdeVersionenUndFusszeile) {
    TestUmgebung u;
    TestOrdner o;
    const std::string pfad = o / "a.mp3";
    std::string fehler;
    // 2.4 mit unbekanntem Rahmen: danach 2.3.0, der Rahmen unverändert (mit seiner SyncSafe-Größe;
    // unter 128 Bytes, sonst liest schon der Leser die Größe anders).
    V2Tag v24;
    v24.major = 4;
    v24.rahmen = {Text("TIT2", "Alt"), Text("XUNB", std::string(100, 'u'))};
    v24.padding = 10;
    DateiSchreiben(pfad, mpeg::Id3v2(v24) + kAudio);
    DateiInfo d = Lesen(pfad);
    const std::string unbekannt = mpeg::RahmenBytes(v24.rahmen[1], 4);
    EXPECT_EQ(d.Mp3_ID3v2_Weitere, unbekannt);
    d.Mp3_ID3v2_TIT2 = "Neu";
    ASSERT_TRUE(MP3TagSpeichernV2Datei(u.k, pfad, fehler, d));
    const DateiInfo danach = Lesen(pfad);
    EXPECT_EQ(danach.Mp3_ID3v2_Version, "2.3.0");
    EXPECT_EQ(danach.Mp3_ID3v2_TIT2, "Neu");
    EXPECT_NE(DateiLesen(pfad).find(unbekannt), std::string::npos);
    EXPECT_EQ(DateiLesen(pfad).substr(static_cast<size_t>(danach.Mp3_ID3v2_TAGGröße)), kAudio);

    // 2.2 mit unbekanntem Rahmen: der Leser vermerkt nur " ", der Schreiber behält ihn als
    // Versuchsrahmen von 2.3.
    V2Tag v22;
    v22.major = 2;
    v22.rahmen = {Text("XYZ", "bleibt")};
    DateiSchreiben(pfad, mpeg::Id3v2(v22) + kAudio);
    d = Lesen(pfad);
    EXPECT_EQ(d.Mp3_ID3v2_Weitere, " ");
    ASSERT_TRUE(MP3TagSpeichernV2Datei(u.k, pfad, fehler, d));
    EXPECT_NE(DateiLesen(pfad).find(mpeg::RahmenBytes(Text("XXYZ", "bleibt"), 3)), std::string::npos);

    // Eine Fußzeile wird an Ort und Stelle zu Auffüllung; die Gesamtgröße bleibt.
    V2Tag fuß;
    fuß.major = 4;
    fuß.fußzeile = true;
    fuß.padding = 100;
    const std::string alt = mpeg::Id3v2(fuß);
    DateiSchreiben(pfad, alt + kAudio);
    ASSERT_TRUE(MP3TagSpeichernV2Datei(u.k, pfad, fehler, Felder("a", "b")));
    EXPECT_EQ(DateiLesen(pfad).size(), alt.size() + kAudio.size());
    EXPECT_EQ(DateiLesen(pfad).substr(alt.size()), kAudio);
    EXPECT_EQ(DateiLesen(pfad).find("3DI"), std::string::npos);
    EXPECT_EQ(Lesen(pfad).Mp3_ID3v2_TAGGröße, static_cast<int32_t>(alt.size()));
}

TEST(Id3v2Schreiben, RechteUndSchreibschutz) {
    TestOrdner o;
    ::chmod(o.Pfad().c_str(), 0777);
    const std::string pfad = o / "a.mp3";
    // Neu schreiben behält die Rechte der alten Datei.
    DateiSchreiben(pfad, kAudio);
    ::chmod(pfad.c_str(), 0640);
    {
        TestUmgebung u;
        std::string fehler;
        ASSERT_TRUE(MP3TagSpeichernV2Datei(u.k, pfad, fehler, Felder("a", "b")));
        struct stat st {};
        ::stat(pfad.c_str(), &st);
        EXPECT_EQ(st.st_mode & 07777, 0640u);
    }

    // Ein symbolischer Verweis bleibt einer; neu geschrieben wird die Datei, auf die er zeigt.
    {
        TestUmgebung u;
        std::string fehler;
        DateiSchreiben(o / "echt.mp3", kAudio);
        ASSERT_EQ(::symlink((o / "echt.mp3").c_str(), (o / "verweis.mp3").c_str()), 0);
        ASSERT_TRUE(MP3TagSpeichernV2Datei(u.k, o / "verweis.mp3", fehler, Felder("a", "b")));
        struct stat st {};
        ::lstat((o / "verweis.mp3").c_str(), &st);
        EXPECT_TRUE(S_ISLNK(st.st_mode));
        EXPECT_EQ(Lesen(o / "echt.mp3").Mp3_ID3v2_TIT2, "b");
        EXPECT_FALSE(DoesExist(o / "echt.mp3-neu"));
    }

    // Schreibgeschützte Datei: an Ort und Stelle und beim Neuschreiben dieselbe Meldung.
    const std::string geschützt = o / "geschuetzt.mp3";
    for (const std::string& inhalt : {AlterTag(100) + kAudio, kAudio}) {
        DateiSchreiben(geschützt, inhalt);
        ::chmod(geschützt.c_str(), 0444);
        const std::string fehler = OhneVorrechteAusführen([&] {
            TestUmgebung u;
            std::string f;
            return MP3TagSpeichernV2Datei(u.k, geschützt, f, Felder("a", "b")) ? std::string("gelungen") : f;
        });
        EXPECT_EQ(fehler, "Die ID3v2-TAG der Datei '" + geschützt +
                              "' konnte nicht gespeichert werden.\nAuf die Datei kann nicht zugegriffen werden "
                              "(Fehler 75).\nStellen Sie sicher, dass diese nicht in einem Programm (z.B. "
                              "Download-Programm, Musikeditor, Audioplayer) geöffnet ist und der Zugriff möglich ist.");
        EXPECT_EQ(DateiLesen(geschützt), inhalt);
        ::chmod(geschützt.c_str(), 0644);
    }

    // Schreibgeschützter Ordner: an Ort und Stelle geht, Neuschreiben nicht.
    const std::string ordner = o / "nurlesen";
    const std::string datei = ordner + "/a.mp3";
    DateiSchreiben(datei, kAudio);
    ::chmod(datei.c_str(), 0666);
    ::chmod(ordner.c_str(), 0555);
    const std::string fehler = OhneVorrechteAusführen([&] {
        TestUmgebung u;
        std::string f;
        return MP3TagSpeichernV2Datei(u.k, datei, f, Felder("a", "b")) ? std::string("gelungen") : f;
    });
    EXPECT_EQ(fehler, "Der ID3v2-TAG konnte nicht gespeichert werden.\nDie Datei '" + datei +
                          "' konnte nicht gelöscht werden.");
    EXPECT_EQ(DateiLesen(datei), kAudio);
    EXPECT_FALSE(DoesExist(datei + "-neu"));
    ::chmod(ordner.c_str(), 0755);
}

TEST(Id3v2Schreiben, Entfernen) {
    TestUmgebung u;
    TestOrdner o;
    const std::string pfad = o / "a.mp3";
    const std::string davor = mpeg::Füllung(4999);
    const std::string tag = AlterTag(300);
    DateiSchreiben(pfad, davor + tag + kAudio);
    u.k.DateiPfade.ReDim(1);
    u.k.DateiDaten.ReDim(1);
    u.k.DateiPfade[1] = pfad;
    u.k.E.TAGsBytesSuchen = 0;

    // Nur zurückgeben: die Datei bleibt, der Rest ist alles außer dem Tag.
    DateiRest rest;
    ASSERT_TRUE(TAGEntfernenV2(u.k, pfad, 1, true, rest));
    std::string text;
    ASSERT_TRUE(DateiRestLesen(rest, text));
    EXPECT_EQ(text, davor + kAudio);
    EXPECT_EQ(DateiLesen(pfad), davor + tag + kAudio);
    EXPECT_EQ(u.k.DateiDaten[1].Mp3_ID3v2_TIT2, "alt");  // der Eintrag wurde mit "010" aufgefrischt
    EXPECT_FALSE(u.k.DateiGeändert);

    DateiSchreiben(pfad + "-neu", "alt");
    DateiInfo arbeit;
    arbeit.Mp3_ID3v2_TIT2 = "alt";
    ASSERT_TRUE(TAGEntfernenV2(u.k, pfad, 1, false, rest, &arbeit));
    EXPECT_EQ(DateiLesen(pfad), davor + kAudio);
    EXPECT_FALSE(DoesExist(pfad + "-neu"));
    EXPECT_EQ(arbeit.Mp3_ID3v2_TIT2, "");
    EXPECT_EQ(arbeit.Mp3_ID3v2_Status, 2);
    EXPECT_EQ(arbeit.Header_Position, 4999);  // mit Kopf aufgefrischt
    EXPECT_EQ(u.k.DateiDaten[1], arbeit);
    EXPECT_TRUE(u.k.DateiGeändert);
    EXPECT_TRUE(u.ui.meldungen.empty());

    int neuLaden = 0;
    EXPECT_FALSE(TAGEntfernenV2(u.k, pfad, 0, false, rest));
    EXPECT_FALSE(TAGEntfernenV2(u.k, o / "fehlt", 0, false, rest, nullptr, [&] { ++neuLaden; }));
    EXPECT_EQ(neuLaden, 1);
    ASSERT_EQ(u.ui.meldungen.size(), 2u);
    EXPECT_EQ(u.ui.meldungen[0].text,
              "Der ID3v2-TAG der Datei '" + pfad + "' kann nicht entfernt werden.\nDiese enthält keinen ID3v2-TAG.");
    EXPECT_EQ(u.ui.meldungen[1].text,
              "Der ID3v2-TAG der Datei '" + o / "fehlt" + "' kann nicht entfernt werden.\nDie Datei existiert nicht.");
    EXPECT_EQ(u.ui.meldungen[1].schalter, 64);

    // Tag am Dateianfang, schreibgeschützter Ordner: Meldung, Datei unverändert.
    const std::string ordner = o / "nurlesen";
    const std::string datei = ordner + "/b.mp3";
    DateiSchreiben(datei, tag + kAudio);
    ::chmod(o.Pfad().c_str(), 0777);
    ::chmod(datei.c_str(), 0666);
    ::chmod(ordner.c_str(), 0555);
    const std::string meldung = OhneVorrechteAusführen([&] {
        TestUmgebung v;
        DateiRest r;
        TAGEntfernenV2(v.k, datei, 0, false, r);
        return v.ui.meldungen.empty() ? std::string() : v.ui.meldungen.back().text;
    });
    EXPECT_EQ(meldung, "Die Entfernung des ID3v2-TAGs der Datei '" + datei +
                           "' konnte nicht abgeschlossen werden.\nStellen Sie sicher, daß die Datei verfügbar ist "
                           "und nicht durch eine andere Anwendung geöffnet wurde.");
    EXPECT_EQ(DateiLesen(datei), tag + kAudio);
    ::chmod(ordner.c_str(), 0755);
}
