#include "app/Kartei.h"
#include "app/Pfade.h"
#include "media/Id3v1.h"
#include "support/Attrappen.h"
#include "support/MpegDaten.h"
#include "support/OhneVorrechte.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {
const std::string kAudio = mpeg::Frame(mpeg::Kopf{}) + mpeg::Füllung(3000);

DateiInfo Aufteilen(const std::string& tag, bool zeilen = false, DateiInfo d = {}) {
    Id3v1FelderAufteilen(tag, d, zeilen);
    return d;
}
}  // namespace

TEST(Id3v1, LesenUndAufteilen) {
    TestOrdner o;
    // "Ä" und "€" stehen als Windows-1252-Bytes im Tag und kommen als UTF-8 heraus.
    const std::string tag = mpeg::Id3v1("Titel \xC4", "Interpret", "Album  ", "1999", "Kommentar \x80", 7, 17);
    DateiSchreiben(o / "a.mp3", kAudio + tag);
    EXPECT_EQ(Mp3tagLesenStr(o / "a.mp3"), tag);
    DateiInfo d = Aufteilen(Mp3tagLesenStr(o / "a.mp3"));
    EXPECT_EQ(d.Mp3_ID3v1_TAG, "TAG");
    EXPECT_EQ(d.Mp3_ID3v1_Titel, "Titel Ä");
    EXPECT_EQ(d.Mp3_ID3v1_Album, "Album");
    EXPECT_EQ(d.Mp3_ID3v1_Jahr, "1999");
    EXPECT_EQ(d.Mp3_ID3v1_Kommentar, "Kommentar €");
    EXPECT_EQ(d.Mp3_ID3v1_Track, "7");
    EXPECT_EQ(d.Mp3_ID3v1_Genre, "\x11");
    EXPECT_EQ(d.Mp3_ID3v1_Status, 1);

    // 127 Bytes, kleines "tag", fehlende Datei: kein Tag, alle Felder leer, Status 2.
    DateiSchreiben(o / "kurz", tag.substr(1));
    DateiSchreiben(o / "klein", kAudio + "tag" + tag.substr(3));
    EXPECT_EQ(Mp3tagLesenStr(o / "kurz"), "");
    EXPECT_EQ(Mp3tagLesenStr(o / "klein"), "");
    EXPECT_EQ(Mp3tagLesenStr(o / "fehlt"), "");
    DateiInfo leer = d;
    Id3v1FelderAufteilen("", leer, false);
    EXPECT_EQ(leer.Mp3_ID3v1_Titel, "");
    EXPECT_EQ(leer.Mp3_ID3v1_Genre, "");
    EXPECT_EQ(leer.Mp3_ID3v1_Track, "");
    EXPECT_EQ(leer.Mp3_ID3v1_Status, 2);
}

TEST(Id3v1, TitelnummerKommentarUndGenre) {
    // Ohne NUL vor dem Paar gehört es zum Kommentar, wenn dieser volle 28 Zeichen hat.
    const std::string dreißig = "123456789012345678901234567890";
    DateiInfo voll = Aufteilen(mpeg::Id3v1("", "", "", "", dreißig, -1, 0));
    EXPECT_EQ(voll.Mp3_ID3v1_Kommentar, dreißig);
    DateiInfo vorher;
    vorher.Mp3_ID3v1_Track = "5";
    std::string kurz = mpeg::Id3v1("", "", "", "", "kurz", -1, 0);
    kurz[125] = 'X', kurz[126] = 'Y';
    DateiInfo k = Aufteilen(kurz, false, vorher);
    EXPECT_EQ(k.Mp3_ID3v1_Kommentar, "kurz");  // das Paar geht still verloren
    EXPECT_EQ(k.Mp3_ID3v1_Track, "5");         // und die Titelnummer bleibt

    EXPECT_EQ(Aufteilen(mpeg::Id3v1("", "", "", "", "", 0, 0)).Mp3_ID3v1_Track, "");  // 0 heißt keine
    EXPECT_EQ(Aufteilen(mpeg::Id3v1("", "", "", "", "", 255, 0)).Mp3_ID3v1_Track, "255");

    EXPECT_EQ(Aufteilen(mpeg::Id3v1("", "", "", "", "", 1, 144)).Mp3_ID3v1_Genre, "\x90");
    EXPECT_EQ(Aufteilen(mpeg::Id3v1("", "", "", "", "", 1, 145)).Mp3_ID3v1_Genre, "\xFF");
    EXPECT_EQ(Aufteilen(mpeg::Id3v1("", "", "", "", "", 1, 200)).Mp3_ID3v1_Genre, "\xFF");

    // Zeilenumbrüche nur im Kommentar auf Wunsch erhalten.
    const std::string umbruch = mpeg::Id3v1("a\r\nb", "", "", "", "x\ny", 1, 0);
    EXPECT_EQ(Aufteilen(umbruch).Mp3_ID3v1_Titel, "ab");
    EXPECT_EQ(Aufteilen(umbruch).Mp3_ID3v1_Kommentar, "xy");
    EXPECT_EQ(Aufteilen(umbruch, true).Mp3_ID3v1_Kommentar, "x\ny");
    EXPECT_EQ(Aufteilen(umbruch, true).Mp3_ID3v1_Titel, "ab");

    EXPECT_EQ(TagTextBereinigen(std::string("  a\0b\x01"
                                            "c \r\n  ",
                                            12),
                                false),
              "  abc");
    EXPECT_EQ(TagTextBereinigen("a\r\n", true), "a\r\n");
}

TEST(Id3v1, ZusammensetzenWieDerEditor) {
    Id3v1Felder f;
    f.titel = "Ein Titel, der viel länger ist als dreißig Zeichen";
    f.interpret = "Interpret";
    f.jahr = "19999";
    f.kommentar = "123456789012345678901234567890";
    f.titelnummer = "12";
    f.genreAuswahl = 18;  // Itemwert = Code + 1
    const std::string tag = TAGAusFeldernZusammensetzen(f);
    ASSERT_EQ(tag.size(), 128u);
    EXPECT_EQ(tag.substr(0, 3), "TAG");
    EXPECT_EQ(tag.substr(3, 30), "Ein Titel, der viel l\xE4nger ist");  // Bytes in Windows-1252
    EXPECT_EQ(tag.substr(33, 30), "Interpret" + std::string(21, ' '));
    EXPECT_EQ(tag.substr(63, 30), std::string(30, ' '));
    EXPECT_EQ(tag.substr(93, 4), "1999");
    EXPECT_EQ(tag.substr(97, 28), "1234567890123456789012345678");  // 29 und 30 gehen verloren
    EXPECT_EQ(tag.substr(125, 2), std::string("\0\x0C", 2));
    EXPECT_EQ(tag[127], '\x11');

    f.kommentar = "kurz";
    f.genreAuswahl = 0;
    for (const char* nummer : {"", "x", "-1", "256"}) {
        f.titelnummer = nummer;
        const std::string t = TAGAusFeldernZusammensetzen(f);
        EXPECT_EQ(t.substr(125, 2), std::string(2, '\0')) << nummer;
        EXPECT_EQ(t.substr(97, 28), "kurz" + std::string(24, '\0'));
        EXPECT_EQ(t[127], '\xFF');
    }
    f.titelnummer = "0";  // wird geschrieben, liest sich aber als keine
    EXPECT_EQ(TAGAusFeldernZusammensetzen(f).substr(125, 2), std::string(2, '\0'));

    // Rundreise über den Datensatz: Genre 145+ wird als 255 zurückgeschrieben.
    DateiInfo d = Aufteilen(mpeg::Id3v1("Titel", "Wer", "Was", "2001", "K", 3, 200));
    EXPECT_EQ(TAGAusFeldernZusammensetzen(Id3v1FelderAusDatensatz(d))[127], '\xFF');
    d = Aufteilen(mpeg::Id3v1("Titel", "Wer", "Was", "2001", "K", 3, 144));
    DateiInfo zurück = Aufteilen(TAGAusFeldernZusammensetzen(Id3v1FelderAusDatensatz(d)));
    EXPECT_EQ(zurück, d);
}

TEST(Id3v1, Speichern) {
    TestUmgebung u;
    TestOrdner o;
    const std::string pfad = o / "a.mp3";
    const std::string alt = mpeg::Id3v1("Alt", "", "", "", "", 1, 1);
    const std::string neu = mpeg::Id3v1("Neu", "", "", "", "", 2, 2);
    DateiSchreiben(pfad, kAudio + alt);
    std::string fehler;
    EXPECT_TRUE(Mp3TAGSpeichernV1Datei(pfad, neu, fehler));
    EXPECT_EQ(DateiLesen(pfad), kAudio + neu);  // über den alten Tag

    DateiSchreiben(pfad, kAudio + "tag" + alt.substr(3));  // kleines "tag": angehängt
    EXPECT_TRUE(Mp3TAGSpeichernV1Datei(pfad, neu, fehler));
    EXPECT_EQ(DateiLesen(pfad), kAudio + "tag" + alt.substr(3) + neu);

    EXPECT_FALSE(Mp3TAGSpeichernV1Datei(o / "fehlt.mp3", neu, fehler));
    EXPECT_EQ(fehler, "Die ID3v1-TAG der Datei '" + o / "fehlt.mp3" +
                          "' konnte nicht gespeichert werden.\nDie Datei existiert nicht.");

    // Über die Ergebnisliste: Zeile 1 zeigt Eintrag 2.
    u.k.DateiPfade.ReDim(2);
    u.k.DateiPfade[2] = pfad;
    u.k.Liste.lstSongs.zeilen = {{2, false}};
    DateiSchreiben(pfad, kAudio);
    EXPECT_TRUE(Mp3TAGSpeichernV1(u.k, 1, neu, fehler));
    EXPECT_EQ(DateiLesen(pfad), kAudio + neu);
    EXPECT_FALSE(Mp3TAGSpeichernV1(u.k, 2, neu, fehler));

    // Schreibgeschützt: Meldung, die Datei bleibt.
    ::chmod(o.Pfad().c_str(), 0777);
    ::chmod(pfad.c_str(), 0444);
    const std::string meldung = OhneVorrechteAusführen([&] {
        std::string f;
        return Mp3TAGSpeichernV1Datei(pfad, alt, f) ? std::string("gelungen") : f;
    });
    EXPECT_EQ(meldung.substr(0, meldung.find('\n')),
              "Die ID3v1-TAG der Datei '" + pfad + "' konnte nicht gespeichert werden.");
    EXPECT_NE(meldung.find("(Fehler 75)"), std::string::npos);
    EXPECT_EQ(DateiLesen(pfad), kAudio + neu);
}

TEST(Id3v1, Entfernen) {
    TestUmgebung u;
    TestOrdner o;
    const std::string pfad = o / "a.mp3";
    const std::string tag = mpeg::Id3v1("Titel", "", "", "", "", 1, 1);
    DateiSchreiben(pfad, kAudio + tag);
    DateiSchreiben(pfad + "-neu", "alter Rest");  // wird ohne Frage gelöscht
    u.k.DateiPfade.ReDim(1);
    u.k.DateiDaten.ReDim(1);
    u.k.DateiPfade[1] = pfad;
    DateiInfo arbeit;
    arbeit.Mp3_ID3v1_Titel = "Titel";
    EXPECT_TRUE(TAGEntfernen(u.k, arbeit, pfad, 1));
    EXPECT_EQ(DateiLesen(pfad), kAudio);
    EXPECT_FALSE(DoesExist(pfad + "-neu"));
    EXPECT_TRUE(u.ui.meldungen.empty());
    EXPECT_EQ(arbeit.Mp3_ID3v1_Status, 2);
    EXPECT_EQ(arbeit.Mp3_ID3v1_Titel, "");
    EXPECT_EQ(arbeit.Header_Bitrate, 128);  // mit Kopf aufgefrischt
    EXPECT_EQ(u.k.DateiDaten[1], arbeit);
    EXPECT_TRUE(u.k.DateiGeändert);

    int neuLaden = 0;
    EXPECT_FALSE(TAGEntfernen(u.k, arbeit, pfad, 1, [&] { ++neuLaden; }));
    EXPECT_FALSE(TAGEntfernen(u.k, arbeit, o / "fehlt.mp3", 0, [&] { ++neuLaden; }));
    EXPECT_EQ(neuLaden, 2);
    ASSERT_EQ(u.ui.meldungen.size(), 2u);
    EXPECT_EQ(u.ui.meldungen[0].text,
              "Der ID3v1-TAG der Datei '" + pfad + "' kann nicht entfernt werden.\nDiese enthält keinen ID3v1-TAG.");
    EXPECT_EQ(u.ui.meldungen[0].schalter, 64);
    EXPECT_EQ(u.ui.meldungen[1].text, "Der ID3v1-TAG der Datei '" + o / "fehlt.mp3" +
                                          "' kann nicht entfernt werden.\nDie Datei existiert nicht.");

    // Nur ein Tag: es bleibt eine leere Datei.
    DateiSchreiben(pfad, tag);
    EXPECT_TRUE(TAGEntfernen(u.k, arbeit, pfad));
    EXPECT_EQ(DateiLesen(pfad), "");
}
