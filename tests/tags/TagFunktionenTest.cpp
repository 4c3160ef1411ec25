// Die Funktionen des Tag-Editors: Einträge, Frage, Tauschen, Zahl aus dem Kommentar, Schreibweisen,
// Felder kopieren.
#include "app/Tabelle.h"
#include "index/Dateitypen.h"
#include "media/Id3v1.h"
#include "media/MedienInfos.h"
#include "support/Attrappen.h"
#include "support/MpegDaten.h"
#include "support/TestOrdner.h"
#include "tags/AutoTagStapel.h"
#include "tags/TagFunktionen.h"

#include <gtest/gtest.h>

namespace {
DateiInfo Beispiel() {
    DateiInfo d;
    d.Mp3_ID3v1_Titel = "waterloo";
    d.Mp3_ID3v1_Interpret = "ABBA";
    d.Mp3_ID3v1_Album = "arrival";
    d.Mp3_ID3v1_Kommentar = "Track 07 von 12";
    d.Mp3_ID3v2_TIT2 = "t2";
    d.Mp3_ID3v2_TPE1 = "i2";
    d.Mp3_ID3v2_TALB = "a2";
    d.Mp3_ID3v2_COMM = "ohne Zahl";
    return d;
}
}  // namespace

TEST(TagFunktionen, EinträgeUndFrage) {
    EXPECT_STREQ(TagFunktionen()[0], "AutoTAG ausführen");
    EXPECT_STREQ(TagFunktionen()[5], "Zahl aus Kommentar in Titelnummer");
    EXPECT_STREQ(TagFunktionen()[10], "Felder kopieren...");
    EXPECT_STREQ(TagFunktionZiele()[5], "Alle ID3v1- und ID3v2-TAGs");
    EXPECT_EQ(TagFunktionModus(0), 1);
    EXPECT_EQ(TagFunktionModus(4), 2);
    EXPECT_EQ(TagFunktionModus(5), 0);
    EXPECT_FALSE(TagFunktionFürAlle(2));
    EXPECT_TRUE(TagFunktionFürAlle(3));

    TestUmgebung u;
    EXPECT_FALSE(TagFunktionBestätigen(u.k, -1, 0));
    u.ui.antworten = {Meldung::Ja, Meldung::Nein};
    EXPECT_TRUE(TagFunktionBestätigen(u.k, 2, 4));
    EXPECT_FALSE(TagFunktionBestätigen(u.k, 9, 0));
    ASSERT_EQ(u.ui.meldungen.size(), 3u);
    EXPECT_EQ(u.ui.meldungen[0].text, "Bitte wählen Sie eine Funktion.");
    EXPECT_EQ(u.ui.meldungen[1].text, "Möchten Sie die Funktion 'Vertauschen: Titel <-> Interpret' tatsächlich für "
                                      "'Alle ID3v2-TAGs' anwenden?");
    EXPECT_EQ(u.ui.meldungen[1].schalter, Meldung::JaNeinFrage);
}

TEST(TagFunktionen, TauschenNachModus) {
    TestUmgebung u;
    DateiInfo d = Beispiel();
    ASSERT_TRUE(TagFunktionAnwenden(u.k, 2, d, 1));
    EXPECT_EQ(d.Mp3_ID3v1_Titel, "ABBA");
    EXPECT_EQ(d.Mp3_ID3v1_Interpret, "waterloo");
    EXPECT_EQ(d.Mp3_ID3v2_TIT2, "t2");
    ASSERT_TRUE(TagFunktionAnwenden(u.k, 3, d, 2));
    EXPECT_EQ(d.Mp3_ID3v2_TIT2, "a2");
    EXPECT_EQ(d.Mp3_ID3v2_TALB, "t2");
    EXPECT_EQ(d.Mp3_ID3v1_Album, "arrival");
    ASSERT_TRUE(TagFunktionAnwenden(u.k, 4, d, 0));
    EXPECT_EQ(d.Mp3_ID3v1_Album, "waterloo");
    EXPECT_EQ(d.Mp3_ID3v2_TPE1, "t2");
    EXPECT_TRUE(u.ui.meldungen.empty());
}

TEST(TagFunktionen, ZahlAusKommentar) {
    TestUmgebung u;
    DateiInfo d = Beispiel();
    // ID3v1 gelingt, ID3v2 hat keine Zahl: das Gelungene bleibt, die Meldung nennt den Tag.
    EXPECT_FALSE(TagFunktionAnwenden(u.k, 5, d, 0));
    EXPECT_EQ(d.Mp3_ID3v1_Track, "7");
    EXPECT_EQ(d.Mp3_ID3v2_TRCK, "");
    ASSERT_EQ(u.ui.meldungen.size(), 1u);
    EXPECT_EQ(u.ui.meldungen[0].text, "Es wurde keine Zahl im Kommentar-Feld des ID3v2-TAGs gefunden.");

    u.ui.meldungen.clear();
    d.Mp3_ID3v1_Kommentar = "  ";
    d.Mp3_ID3v2_COMM = "Nr. 40000";
    EXPECT_FALSE(TagFunktionAnwenden(u.k, 5, d, 0));
    ASSERT_EQ(u.ui.meldungen.size(), 2u);
    EXPECT_EQ(u.ui.meldungen[0].text, "Das Kommentar-Feld des ID3v1-TAGs ist leer.");
    EXPECT_EQ(u.ui.meldungen[1].text, "Die gefundene Zahl im Kommentar-Feld des ID3v2-TAGs '40000' ist zu groß.");

    u.ui.meldungen.clear();
    d.Mp3_ID3v1_Kommentar = "256 Takte";
    d.Mp3_ID3v2_COMM = "0256";
    EXPECT_FALSE(TagFunktionAnwenden(u.k, 5, d, 0));
    EXPECT_EQ(u.ui.meldungen[0].text, "Die gefundene Zahl im Kommentar-Feld des ID3v1-TAGs '256' ist zu groß.");
    EXPECT_EQ(d.Mp3_ID3v2_TRCK, "256");
    EXPECT_EQ(u.ui.meldungen.size(), 1u);
}

TEST(TagFunktionen, Schreibweisen) {
    EXPECT_EQ(ErsterBuchstabeGroß("  dIE ärzte - LIVE"), "  Die ärzte - live");
    EXPECT_EQ(ErsterBuchstabeGroß("99 LUFTBALLONS"), "99 Luftballons");
    EXPECT_EQ(WortanfängeGroß("don't STOP me (live)/ac-dc"), "Don't Stop Me (Live)/Ac-Dc");
    EXPECT_EQ(WortanfängeGroß("über ÖSTERREICH 2000er"), "Über Österreich 2000er");

    TestUmgebung u;
    DateiInfo d = Beispiel();
    ASSERT_TRUE(TagFunktionAnwenden(u.k, 7, d, 1));
    EXPECT_EQ(d.Mp3_ID3v1_Interpret, "Abba");
    EXPECT_EQ(d.Mp3_ID3v1_Kommentar, "Track 07 Von 12");
    EXPECT_EQ(d.Mp3_ID3v2_COMM, "ohne Zahl");
    ASSERT_TRUE(TagFunktionAnwenden(u.k, 9, d, 0));
    EXPECT_EQ(d.Mp3_ID3v1_Titel, "WATERLOO");
    EXPECT_EQ(d.Mp3_ID3v2_COMM, "OHNE ZAHL");
    ASSERT_TRUE(TagFunktionAnwenden(u.k, 8, d, 2));
    EXPECT_EQ(d.Mp3_ID3v2_TALB, "a2");
    EXPECT_EQ(d.Mp3_ID3v1_Titel, "WATERLOO");
    ASSERT_TRUE(TagFunktionAnwenden(u.k, 6, d, 1));
    EXPECT_EQ(d.Mp3_ID3v1_Album, "Arrival");
    EXPECT_FALSE(TagFunktionAnwenden(u.k, 0, d, 1));
    EXPECT_EQ(u.ui.meldungen.back().text,
              "Es ist ein Fehler beim Ausführen der gewählten Funktion aufgetreten. (Fehler 5).");
}

TEST(TagFunktionen, FelderKopieren) {
    TestUmgebung u;
    const DateiInfo quelle = Beispiel();
    DateiInfo ziel;
    EXPECT_FALSE(TagFelderKopieren(u.k, quelle, ziel, {}, 0));
    EXPECT_EQ(u.ui.meldungen.at(0).text, "Bitte wählen Sie mindestens einen Listeneintrag.");
    ASSERT_TRUE(TagFelderKopieren(u.k, quelle, ziel, {1, 6}, 1));
    EXPECT_EQ(ziel.Mp3_ID3v1_Interpret, "ABBA");
    EXPECT_EQ(ziel.Mp3_ID3v1_Kommentar, "Track 07 von 12");
    EXPECT_EQ(ziel.Mp3_ID3v1_Titel, "");
    EXPECT_EQ(ziel.Mp3_ID3v2_TPE1, "");
    ASSERT_TRUE(TagFelderKopieren(u.k, quelle, ziel, {2}, 2));
    EXPECT_EQ(ziel.Mp3_ID3v2_TALB, "a2");
    EXPECT_EQ(ziel.Mp3_ID3v1_Album, "");
}

TEST(TagFunktionen, StapelÜberAlleDateien) {
    TestOrdner o;
    TestUmgebung u;
    DateitypenVorgabenWennLeer(u.k.Optionen);
    const std::string audio = mpeg::Frame(mpeg::Kopf{}) + mpeg::Füllung(3000);
    const std::vector<std::array<const char*, 3>> dateien = {
        {"a.mp3", "Titel A", "Kommentar 3"}, {"b.mp3", "Titel B", "ohne"}, {"c.mp3", "Titel C", "Nr. 9"}};
    for (const auto& [name, titel, kommentar] : dateien) {
        DateiSchreiben(o / name, audio + mpeg::Id3v1(titel, "Wer", "", "", kommentar, 0, 255));
        IndexGrößeÄndern(u.k, u.k.DateiAnzahl + 1, true);
        u.k.DateiAnzahl += 1;
        u.k.DateiPfade[u.k.DateiAnzahl] = o / name;
        u.k.DateiDaten[u.k.DateiAnzahl] = MedienInfosLesen(u.k, o / name, DateiInfo{}, "11", false, "1", "1");
    }
    // Zahl aus dem Kommentar: b scheitert, die Frage wird mit Ja beantwortet, c kommt noch dran.
    u.ui.antworten = {Meldung::Ja};
    const AutoTagStapelErgebnis e = TagFunktionStapel(u.k, {1, 2, 3}, 5, "", 1);
    EXPECT_EQ(e.gespeichert, 2);
    EXPECT_EQ(e.nichtGespeichert, 1);
    EXPECT_FALSE(e.abgebrochen);
    ASSERT_EQ(u.ui.meldungen.size(), 2u);
    EXPECT_EQ(u.ui.meldungen[0].text, "Es wurde keine Zahl im Kommentar-Feld des ID3v1-TAGs gefunden.");
    EXPECT_EQ(u.ui.meldungen[1].text, "Möchten Sie mit der nächsten Datei fortfahren?");
    EXPECT_EQ(u.k.DateiDaten[1].Mp3_ID3v1_Track, "3");
    EXPECT_EQ(u.k.DateiDaten[3].Mp3_ID3v1_Track, "9");
    EXPECT_EQ(u.k.DateiDaten[2].Mp3_ID3v1_Track, "");
    EXPECT_TRUE(u.k.DateiGeändert);
    // Nur ID3v1 war gemeint: es entsteht kein ID3v2-Tag, die Datei hält die Nummer.
    EXPECT_EQ(DateiLesen(o / "c.mp3").substr(0, 3), audio.substr(0, 3));
    EXPECT_EQ(Id3v1FelderAusDatensatz(MedienInfosLesen(u.k, o / "c.mp3", {}, "10", false, "0", "0")).titelnummer, "9");

    // Vertauschen über beide Tags; ein Nein nach dem ersten Fehler beendet den Stapel.
    u.ui.meldungen.clear();
    const AutoTagStapelErgebnis t = TagFunktionStapel(u.k, {1}, 2, "", 0);
    EXPECT_EQ(t.gespeichert, 1);
    EXPECT_EQ(u.k.DateiDaten[1].Mp3_ID3v1_Interpret, "Titel A");
    EXPECT_EQ(u.k.DateiDaten[1].Mp3_ID3v1_Titel, "Wer");
    u.ui.antworten = {Meldung::Nein};
    const AutoTagStapelErgebnis n = TagFunktionStapel(u.k, {2, 3}, 5, "", 1);
    EXPECT_TRUE(n.abgebrochen);
    EXPECT_EQ(n.gespeichert + n.nichtGespeichert, 1);
}
