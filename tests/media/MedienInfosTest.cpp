#include "app/Kartei.h"
#include "intake/DateiFormat.h"
#include "media/MedienInfos.h"
#include "index/Dateitypen.h"
#include "support/Attrappen.h"
#include "support/MpegDaten.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>
#include <sys/time.h>

#include <ctime>

namespace {
using mpeg::Text;

bool Format(Kartei& k, const std::string& datei, bool videos, bool audios, bool bilder, bool frei) {
    return DateiFormatUnterstützt(k, datei, videos, audios, bilder, frei);
}

// Zeitstempel der Datei auf einen Tag in Ortszeit setzen.
void DateiZeitSetzen(const std::string& pfad, int jahr, int monat, int tag) {
    std::tm t{};
    t.tm_year = jahr - 1900, t.tm_mon = monat - 1, t.tm_mday = tag, t.tm_hour = 12, t.tm_isdst = -1;
    const timeval zeiten[2] = {{std::mktime(&t), 0}, {std::mktime(&t), 0}};
    ::utimes(pfad.c_str(), zeiten);
}
}  // namespace

TEST(DateiFormat, SchalterUndSternZeile) {
    TestUmgebung u;
    Kartei& k = u.k;
    EXPECT_FALSE(Format(k, "/a/b.mp3", false, false, false, false));  // keine Tabelle: nichts
    DateitypenVorgabenEinsetzen(k.Optionen);
    EXPECT_TRUE(Format(k, "/a/b.MP3", false, false, false, true));
    EXPECT_TRUE(Format(k, "/a/b.gif", false, false, false, false));
    EXPECT_FALSE(Format(k, "/a/b.gif", false, false, false, true));  // "gif=0"
    EXPECT_FALSE(Format(k, "/a/b.ogg", false, false, false, true));  // "*=0"
    EXPECT_FALSE(Format(k, "/a/ohne", false, false, false, true));
    k.Optionen.DateitypEintrag[13] = "*=1";
    EXPECT_TRUE(Format(k, "/a/b.ogg", false, false, false, true));
    EXPECT_TRUE(Format(k, "/a/ohne", false, false, false, true));
    EXPECT_FALSE(Format(k, "/a/b.ogg", false, false, false, false));  // ohne nurFreigegebene nie

    // Erster Schalter: nur MPEG-Audio ("1xx") bleibt.
    EXPECT_TRUE(Format(k, "b.mp3", true, false, false, false));
    EXPECT_FALSE(Format(k, "b.wma", true, false, false, false));
    EXPECT_FALSE(Format(k, "b.jpg", true, false, false, false));
    // Zweiter: nur Bilder bleiben.
    EXPECT_FALSE(Format(k, "b.mp3", false, true, false, false));
    EXPECT_FALSE(Format(k, "b.wma", false, true, false, false));
    EXPECT_TRUE(Format(k, "b.jpg", false, true, false, false));
    // Dritter: Bilder fallen weg.
    EXPECT_TRUE(Format(k, "b.mp3", false, false, true, false));
    EXPECT_TRUE(Format(k, "b.wma", false, false, true, false));
    EXPECT_FALSE(Format(k, "b.jpg", false, false, true, false));

    // Eigene Zeilen: Großschreibung in der Tabelle, fehlendes "=", kurze Klasse.
    k.Optionen.DateitypEintrag.Anhängen("OGG=1");
    k.Optionen.DateitypKlasse.Anhängen("01");
    k.Optionen.DateitypEintrag.Anhängen("flac");
    k.Optionen.DateitypKlasse.Anhängen("110");
    k.Optionen.DateitypEintrag[13] = "*=0";
    EXPECT_TRUE(Format(k, "b.ogg", false, false, true, true));
    EXPECT_FALSE(Format(k, "b.ogg", true, false, false, true));
    EXPECT_FALSE(Format(k, "b.flac", false, false, false, false));
}

TEST(MedienInfos, SchalterTypUndGroesse) {
    TestUmgebung u;
    TestOrdner o;
    DateitypenVorgabenEinsetzen(u.k.Optionen);
    mpeg::V2Tag v2;
    v2.rahmen = {Text("TIT2", "Titel 2")};
    v2.padding = 100;
    const std::string v1 = mpeg::Id3v1("Titel 1", "", "", "", "Zeile\nzwei", 3, 4);
    const std::string inhalt = mpeg::Id3v2(v2) + mpeg::Frame(mpeg::Kopf{}) + mpeg::Füllung(10000) + v1;
    const std::string pfad = o / "lied.mp3";
    DateiSchreiben(pfad, inhalt);

    DateiInfo alle = MedienInfosLesen(u.k, pfad, DateiInfo{}, "11", true, "1", "1");
    EXPECT_EQ(alle.Mp3_ID3v1_Titel, "Titel 1");
    EXPECT_EQ(alle.Mp3_ID3v1_Kommentar, "Zeile\nzwei");
    EXPECT_EQ(alle.Mp3_ID3v2_TIT2, "Titel 2");
    EXPECT_EQ(alle.Header_Position, 128);  // hinter dem Tag aus 10 + 18 + 100 Bytes
    EXPECT_EQ(alle.Header_Bitrate, 128);
    EXPECT_EQ(alle.Datei_Typ, 1);
    EXPECT_EQ(alle.Datei_Größe, static_cast<int32_t>(inhalt.size()));
    EXPECT_EQ(alle.Datei_Wechselmedium, "");

    // "00" und "0": nur Typ, Größe und Datum ändern sich. Keine Ziffer fragt nichts an.
    DateiInfo vorher;
    vorher.Mp3_ID3v1_Titel = "bleibt";
    vorher.Header_Bitrate = 5;
    vorher.Datei_Typ = -1;
    for (const char* flags : {"00", "x-", ""}) {
        DateiInfo nichts = MedienInfosLesen(u.k, pfad, vorher, flags, false, "0", "1");
        DateiInfo erwartet = vorher;
        erwartet.Datei_Typ = 1;
        erwartet.Datei_Größe = static_cast<int32_t>(inhalt.size());
        erwartet.Datei_HinzugefügtAm = nichts.Datei_HinzugefügtAm;
        EXPECT_EQ(nichts, erwartet) << flags;
    }

    // Typen: .wma/.wmf → 2, .wav → 3 (auch im Ordnernamen), sonst bleibt es; Bilder 4; Rest 0.
    auto typ = [&](const std::string& name, int16_t vorher) {
        DateiSchreiben(o / name, "x");
        DateiInfo d;
        d.Datei_Typ = vorher;
        return MedienInfosLesen(u.k, o / name, d, "00", false, "0", "0").Datei_Typ;
    };
    EXPECT_EQ(typ("a.wma", 9), 2);
    EXPECT_EQ(typ("a.WAV", 9), 3);
    EXPECT_EQ(typ("Sammlung.Wav/a.vqf", 9), 3);
    EXPECT_EQ(typ("a.vqf", 9), 9);
    EXPECT_EQ(typ("a.jpg", 9), 4);
    EXPECT_EQ(typ("a.ogg", 9), 0);
    EXPECT_EQ(typ("wav.mp3", 9), 1);

    // Fehlende Datei: Größe -1, Medium bleibt, Datum von heute; Tag-Felder leer.
    DateiInfo fehlt;
    fehlt.Datei_Wechselmedium = "CD";
    fehlt.Mp3_ID3v2_TIT2 = "alt";
    fehlt = MedienInfosLesen(u.k, o / "fehlt.mp3", fehlt, "11", false, "1", "1");
    EXPECT_EQ(fehlt.Datei_Größe, -1);
    EXPECT_EQ(fehlt.Datei_Wechselmedium, "CD");
    EXPECT_EQ(fehlt.Datei_HinzugefügtAm, "16.11.2001");
    EXPECT_EQ(fehlt.Mp3_ID3v2_TIT2, "");
    EXPECT_EQ(fehlt.Mp3_ID3v1_Status, 2);
    EXPECT_EQ(fehlt.Mp3_ID3v2_Status, 2);
}

TEST(MedienInfos, DatumUndWechselmedium) {
    TestUmgebung u;
    TestOrdner o;
    const std::string pfad = o / "lied.mp3";
    DateiSchreiben(pfad, mpeg::Frame(mpeg::Kopf{}));
    DateiZeitSetzen(pfad, 1999, 3, 7);
    EXPECT_EQ(MedienInfosLesen(u.k, pfad, DateiInfo{}, "00", false, "0", "0").Datei_HinzugefügtAm, "07.03.1999");
    DateiInfo schon;
    schon.Datei_HinzugefügtAm = "01.01.2000";  // ein Eintrag behält seinen ersten Tag
    EXPECT_EQ(MedienInfosLesen(u.k, pfad, schon, "00", false, "0", "0").Datei_HinzugefügtAm, "01.01.2000");

    u.datenträger.wurzeln[o.Pfad()] = "/media/cd";
    u.datenträger.bezeichnungen["/media/cd"] = std::string("MEINE_CD\0\0", 10);
    EXPECT_EQ(MedienInfosLesen(u.k, pfad, DateiInfo{}, "00", false, "0", "1").Datei_Wechselmedium, "");
    u.datenträger.wechselmedien["/media/cd"] = true;
    DateiInfo d;
    d.Datei_Wechselmedium = "alt";
    EXPECT_EQ(MedienInfosLesen(u.k, pfad, d, "00", false, "0", "1").Datei_Wechselmedium, "MEINE_CD");
    EXPECT_EQ(MedienInfosLesen(u.k, pfad, d, "00", false, "0", "0").Datei_Wechselmedium, "alt");

    // Ab 2 GiB passt die Größe nicht in Long und bleibt stehen.
    mpeg::DünneDateiSchreiben(o / "gross.mp3", "x", 3000000000LL, "y");
    d.Datei_Größe = 1234;
    EXPECT_EQ(MedienInfosLesen(u.k, o / "gross.mp3", d, "00", false, "0", "1").Datei_Größe, 1234);
}
