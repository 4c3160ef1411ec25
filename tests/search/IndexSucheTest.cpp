// Die Suchmaschine: Vergleichsarten, Wörter, Bedingungen, genaue Entsprechung, Suchbereich.
#include "SuchTestHilfen.h"

#include "search/ListeErstellen.h"

#include <gtest/gtest.h>

using V = std::vector<int>;
using Z = std::vector<int32_t>;

TEST(IndexSuche, BeispielEinTag) {
    TestUmgebung u;
    TitelEintrag(u.k, "Ein Tag");
    TitelEintrag(u.k, "Ein Tag am Meer");
    TitelEintrag(u.k, "Tag ein");
    Suchen(u.k, "Titel", "ein tag");
    EXPECT_EQ(Marken(u.k), (V{2, 0, 0}));
    EXPECT_EQ(u.k.Suche.SuchCacheAnfang, 1);
    EXPECT_EQ(u.k.Suche.SuchCacheEnde, 1);
    EXPECT_EQ(Zeilen(u.k), (Z{1}));
    EXPECT_EQ(u.k.Liste.DateiAnzahlText, "1 Datei(en) gefunden\n3 Datei(en) im Index");

    // Ohne genaue Entsprechung bleiben alle drei; "tag ein" ist für Eintrag 3 genau.
    Suchen(u.k, "Titel", "tag");
    EXPECT_EQ(Marken(u.k), (V{1, 1, 1}));
    Suchen(u.k, "Titel", "TAG EIN");
    EXPECT_EQ(Marken(u.k), (V{0, 0, 2}));
    EXPECT_EQ(Zeilen(u.k), (Z{3}));
    // Der Suchtext muss ganz drinstehen: "ein  tag" (zwei Leerzeichen) ist nicht genau.
    Suchen(u.k, "Titel", "ein  tag");
    EXPECT_EQ(Marken(u.k), (V{1, 1, 1}));
}

TEST(IndexSuche, LeererTextUndLeereWörter) {
    TestUmgebung u;
    Neu(u.k, "/a/eins.mp3").Mp3_ID3v1_Album = "Blau";
    Neu(u.k, "/a/zwei.mp3");
    Neu(u.k, "/a/drei.mp3").Mp3_ID3v1_Album = "Grün";
    // Leerer Text in der Standardsuche: alles.
    Suchen(u.k, "(Standardsuche)", "");
    EXPECT_EQ(Marken(u.k), (V{1, 1, 1}));
    EXPECT_EQ(u.k.Liste.DateiAnzahlText, "3 Datei(en) gefunden\n3 Datei(en) im Index");
    // Leerer Text in einem Feld: nur Einträge, die dort etwas haben.
    Suchen(u.k, "Album", "");
    EXPECT_EQ(Marken(u.k), (V{1, 0, 1}));
    EXPECT_EQ(Zeilen(u.k), (Z{1, 3}));
    // Ein abschließendes oder doppeltes Leerzeichen ist ein leeres Wort: es trifft alles.
    Suchen(u.k, "(Standardsuche)", "zwei ");
    EXPECT_EQ(Marken(u.k), (V{0, 1, 0}));
    Suchen(u.k, "(Standardsuche)", "a/  DREI");
    EXPECT_EQ(Marken(u.k), (V{0, 0, 1}));
}

TEST(IndexSuche, VergleichsartenDerFelder) {
    TestUmgebung u;
    DateiInfo& a = Neu(u.k, "/m/a.mp3");
    a.Mp3_ID3v1_Jahr = "2001";
    a.Mp3_ID3v1_Interpret = "Die Ärzte";
    a.Datei_HinzugefügtAm = "16.11.2001";
    a.Datei_AngefordertGespieltAm = "03.02.2004 20:15:00";
    a.Header_Dauer = 200;
    a.Header_Bitrate = 128;
    DateiInfo& b = Neu(u.k, "/m/b.MP3");
    b.Mp3_ID3v1_Jahr = "20";
    b.Header_Dauer = 65;
    b.Header_Bitrate = 192;
    b.Header_VBR = true;

    // Zahlen: genau gleich, Zeichen für Zeichen.
    Suchen(u.k, "Jahr", "20");
    EXPECT_EQ(Marken(u.k), (V{0, 2}));
    Suchen(u.k, "Jahr", "2001");
    EXPECT_EQ(Marken(u.k), (V{2, 0}));
    // Text: irgendwo, Groß/Klein egal, auch bei Umlauten.
    Suchen(u.k, "Interpret", "ärz");
    EXPECT_EQ(Marken(u.k), (V{1, 0}));
    Suchen(u.k, "Bitrate", "vbr");
    EXPECT_EQ(Marken(u.k), (V{0, 1}));
    Suchen(u.k, "Datei-Endung", ".mp3");
    EXPECT_EQ(Marken(u.k), (V{2, 2}));
    // Daten: mindestens vier Zeichen, in der Anzeigeform, Groß/Klein zählt.
    Suchen(u.k, "Hinzufüge-Datum", "2001");
    EXPECT_EQ(Marken(u.k), (V{1, 0}));
    Suchen(u.k, "Hinzufüge-Datum", "16.11");
    EXPECT_EQ(Marken(u.k), (V{1, 0}));
    Suchen(u.k, "Hinzufüge-Datum", "200");
    EXPECT_EQ(Marken(u.k), (V{0, 0}));
    EXPECT_TRUE(u.k.Liste.lstSongs.zeilen.empty());
    Suchen(u.k, "Abspiel-Datum", "20:15");
    EXPECT_EQ(Marken(u.k), (V{1, 0}));
    Suchen(u.k, "Abspiel-Datum", "03.");
    EXPECT_EQ(Marken(u.k), (V{0, 0}));

    // Dauer: mindestens vier Zeichen mit ":".
    ZeilenSuchen(u.k, {{"Dauer", "1:05"}});
    EXPECT_EQ(Marken(u.k), (V{0, 2}));
    ZeilenSuchen(u.k, {{"Dauer", ":20"}});
    EXPECT_EQ(Marken(u.k), (V{0, 0}));
    ZeilenSuchen(u.k, {{"Dauer", "3:20"}});
    EXPECT_EQ(Marken(u.k), (V{2, 0}));
    ZeilenSuchen(u.k, {{"Dauer", "3200"}});
    EXPECT_EQ(Marken(u.k), (V{0, 0}));
}

TEST(IndexSuche, DarfNichtZeilen) {
    TestUmgebung u;
    Neu(u.k, "/m/1.mp3").Mp3_ID3v1_Album = "Rot und Blau";
    Neu(u.k, "/m/2.mp3");  // kein Album
    Neu(u.k, "/m/3.mp3").Mp3_ID3v1_Album = "Grün";
    Neu(u.k, "/m/4.mp3").Mp3_ID3v1_Album = "Blau";
    // Ein leerer Feldtext trifft nie: DARF NICHT behält den Eintrag.
    ZeilenSuchen(u.k, {{"Album", "rot", "11"}});
    EXPECT_EQ(Marken(u.k), (V{0, 1, 1, 1}));
    // Zwei Wörter: übrig bleibt, was keines enthält.
    ZeilenSuchen(u.k, {{"Album", "rot grün", "11"}});
    EXPECT_EQ(Marken(u.k), (V{0, 1, 0, 1}));
    EXPECT_EQ(Zeilen(u.k), (Z{2, 4}));
    // Eine DARF-NICHT-Zeile ist nie genau; ist die genaue Entsprechung schon an, bleibt eine
    // Marke 2 auch bei einem Treffer stehen.
    ZeilenSuchen(u.k, {{"Album", "blau"}, {"Album", "blau", "11"}});
    EXPECT_EQ(Marken(u.k), (V{0, 0, 0, 2}));
    ZeilenSuchen(u.k, {{"Album", "blau"}, {"Album", "gelb", "11"}});
    EXPECT_EQ(Marken(u.k), (V{0, 0, 0, 1}));
    ZeilenSuchen(u.k, {{"Album", "blau", "11"}});
    EXPECT_EQ(Marken(u.k), (V{0, 1, 1, 0}));
}

TEST(IndexSuche, GenaueEntsprechungUndSuchbereich) {
    TestUmgebung u;
    for (const char* interpret : {"Nena & Kim Wilde", "Nena", "Can", "nena", "Nenas"})
        Neu(u.k, "/m/x.mp3").Mp3_ID3v1_Interpret = interpret;
    Suchen(u.k, "Interpret", "nena");
    // Alles vor der ersten genauen Entsprechung fällt weg, danach nur genaue.
    EXPECT_EQ(Marken(u.k), (V{0, 2, 0, 2, 0}));
    EXPECT_EQ(u.k.Suche.SuchCacheAnfang, 2);
    EXPECT_EQ(u.k.Suche.SuchCacheEnde, 4);
    EXPECT_EQ(Zeilen(u.k), (Z{2, 4}));

    // Zwei Zeilen, beide genau: der zweite Durchgang setzt keinen ersten Treffer mehr, die
    // Liste bleibt leer, obwohl die Marken 2 sind.
    ZeilenSuchen(u.k, {{"Interpret", "nena"}, {"Interpret", "NENA"}});
    EXPECT_EQ(Marken(u.k), (V{0, 2, 0, 2, 0}));
    EXPECT_EQ(u.k.Suche.SuchCacheAnfang, 0);
    EXPECT_EQ(u.k.Suche.SuchCacheEnde, 4);
    EXPECT_TRUE(Zeilen(u.k).empty());
    EXPECT_EQ(u.k.Liste.DateiAnzahlText, "0 Datei(en) gefunden\n5 Datei(en) im Index");

    // Ein Bereich, der leer wird, beendet die Suche: spätere Zeilen ändern nichts mehr.
    ZeilenSuchen(u.k, {{"Interpret", "gibtsnicht"}, {"Interpret", "", "11"}});
    EXPECT_EQ(Marken(u.k), (V{0, 0, 0, 0, 0}));
    EXPECT_EQ(u.k.Suche.SuchCacheAnfang, 0);
    EXPECT_EQ(u.k.Suche.SuchCacheEnde, 0);

    // Zweites Zeichen "1": voller Durchgang, gleiches Ergebnis (Einträge außerhalb sind 0).
    // Kein Treffer in einer DARF-NICHT-Zeile setzt eine 2 auf 1 zurück.
    Neu(u.k, "/m/a1.mp3").Mp3_ID3v1_Interpret = "A1";
    ZeilenSuchen(u.k, {{"Interpret", "nena"}, {"Interpret", "a1 x", "11"}});
    EXPECT_EQ(Marken(u.k), (V{0, 1, 0, 1, 0, 0}));
    EXPECT_EQ(u.k.Suche.SuchCacheAnfang, 2);
    EXPECT_EQ(u.k.Suche.SuchCacheEnde, 4);
}

TEST(IndexSuche, LeererIndexUndFehler) {
    TestUmgebung u;
    Suchen(u.k, "(Standardsuche)", "x");
    EXPECT_EQ(u.k.DateiTreffer.UBound(), 1);
    EXPECT_TRUE(u.k.Liste.lstSongs.zeilen.empty());
    EXPECT_EQ(u.k.Liste.DateiAnzahlText, "0 Datei(en) gefunden\n0 Datei(en) im Index");
    EXPECT_TRUE(u.ui.meldungen.empty());

    TitelEintrag(u.k, "a");
    TitelEintrag(u.k, "b");
    auto& s = u.k.Suche;
    // Zu kurze Felder sind ein Fehler; Marken und Grenzen bleiben, wie sie sind.
    s.SuchAnzahl = 3;
    s.SuchCacheAnfang = -1;
    s.SuchCacheEnde = 2;
    EXPECT_FALSE(IndexSucheDurchführen(u.k));
    EXPECT_EQ(s.SuchCacheAnfang, 1);
    SuchbegriffeZurücksetzen(s);
    SuchbegriffeHinzufügen(s, "a", "Titel", "00");
    u.k.DateiTreffer.ReDim(1);
    EXPECT_FALSE(IndexSucheDurchführen(u.k));
    // Der Lauf meldet den Fehler und baut die Liste trotzdem.
    s.SuchAnzahl = 5;
    s.cboSuche.Enabled = false;
    u.k.Liste.lstSongs.zeilen = {{7, false}};
    tmrListe_Timer(u.k);
    ASSERT_EQ(u.ui.meldungen.size(), 1u);
    EXPECT_EQ(u.ui.meldungen[0].text, "Die Suche konnte aufgrund eines Fehlers nicht durchgeführt werden.");
    EXPECT_EQ(u.ui.meldungen[0].schalter, Meldung::Ausrufezeichen);
    EXPECT_EQ(Zeilen(u.k), (Z{1, 2}));
    // Anfang 0 mit Ende ungleich 0 ist ein leeres Ergebnis.
    s.SuchCacheAnfang = 0;
    s.SuchCacheEnde = 2;
    ListeErstellen(u.k, u.k.Liste.lstSongs, true);
    EXPECT_TRUE(Zeilen(u.k).empty());
}

TEST(Suchbegriffe, ZeilenVerwalten) {
    SuchZustand s;
    ASSERT_TRUE(SuchbegriffeHinzufügen(s, "a", "Titel", "00"));
    ASSERT_TRUE(SuchbegriffeHinzufügen(s, "b", "Album", "11"));
    ASSERT_TRUE(SuchbegriffeHinzufügen(s, "c", "Jahr", "00"));
    EXPECT_EQ(SuchZeileText(s, 2), "Suche nach 'b' im Feld 'Album'");
    ASSERT_TRUE(SuchbegriffeLöschen(s, 1));
    EXPECT_EQ(s.SuchAnzahl, 2);
    EXPECT_EQ(s.SuchFelder.UBound(), 2);
    EXPECT_EQ(s.SuchBegriffe[1], "b");
    EXPECT_EQ(s.SuchBedingungen[1], "11");
    EXPECT_EQ(s.SuchBegriffe[2], "c");
    EXPECT_TRUE(SuchbegriffeÄndern(s, 2, "d", "Titel", "00"));
    EXPECT_FALSE(SuchbegriffeÄndern(s, 3, "d", "Titel", "00"));
    EXPECT_FALSE(SuchbegriffeLöschen(s, 3));
    ASSERT_TRUE(SuchbegriffeLöschen(s, 2));
    ASSERT_TRUE(SuchbegriffeLöschen(s, 1));
    EXPECT_EQ(s.SuchAnzahl, 0);
    EXPECT_EQ(s.SuchFelder.UBound(), 1);
    EXPECT_EQ(s.SuchBegriffe[1], "");
    EXPECT_EQ(SuchBedingungAusWahl(0), "00");
    EXPECT_EQ(SuchBedingungAusWahl(1), "11");
    EXPECT_EQ(SuchFelderListe().size(), 22u);
    EXPECT_EQ(SuchFelderListe()[18], "Hinzufüge-Datum");
}
