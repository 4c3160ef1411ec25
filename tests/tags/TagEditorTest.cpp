// Der Tag-Editor ohne Fenster: Informationstexte, Steuerelemente lesen, Kopieren, Öffnen und
// Blättern, automatisches Speichern, Entfernen, Funktionen, OK.
#include "app/Tabelle.h"
#include "index/Dateitypen.h"
#include "media/Genres.h"
#include "media/MedienInfos.h"
#include "support/Attrappen.h"
#include "support/MpegDaten.h"
#include "support/TestOrdner.h"
#include "tags/TagEditor.h"

#include <gtest/gtest.h>

namespace {
// Ein Eintrag im Index, wie ihn das Hinzufügen anlegt.
int32_t Eintragen(Kartei& k, const std::string& pfad) {
    IndexGrößeÄndern(k, k.DateiAnzahl + 1, true);
    k.DateiAnzahl += 1;
    k.DateiPfade[k.DateiAnzahl] = pfad;
    k.DateiDaten[k.DateiAnzahl] = MedienInfosLesen(k, pfad, DateiInfo{}, "11", false, "1", "1");
    k.DateiDaten[k.DateiAnzahl].Datei_HinzugefügtAm = "01.02.2003";
    return k.DateiAnzahl;
}

std::string Mp3(const std::string& titel, const std::string& v2Titel) {
    mpeg::V2Tag v2;
    v2.rahmen = {mpeg::Text("TIT2", v2Titel), mpeg::Text("TPE1", "Wer2"),
                 mpeg::Text("TXXX", std::string("info\0wert", 9))};
    v2.padding = 40;
    std::string audio;
    for (int i = 0; i < 5; ++i) audio += mpeg::Frame(mpeg::Kopf{});
    return mpeg::Id3v2(v2) + audio + mpeg::Id3v1(titel, "Wer", "Album", "1999", "Nr. 4", 3, 17);
}

struct Editor {
    TestOrdner o;
    TestUmgebung u;
    TagEditor e;
    Editor() {
        DateitypenVorgabenWennLeer(u.k.Optionen);
        u.k.E.TAGsSoftwareFeldSchreiben = 0;
        for (const char* name : {"a.mp3", "b.mp3", "c.mp3"}) {
            DateiSchreiben(o / name, Mp3(std::string("Titel ") + name[0], std::string("Lied ") + name[0]));
            Eintragen(u.k, o / name);
        }
    }
    DateiInfo Datei(const char* name) { return MedienInfosLesen(u.k, o / name, DateiInfo{}, "11", false, "0", "0"); }
};
}  // namespace

TEST(TagEditor, InformationstexteZeileFürZeile) {
    TestOrdner o;
    TestUmgebung u;
    DateiSchreiben(o / "x.mp3", "irgendwas");
    TagEditorAnsicht a;
    DateiInfo d;
    d.Datei_Größe = 3145728;
    d.Header_Version = 1, d.Header_Layer = 3, d.Header_Modus = "Joint Stereo", d.Header_Frequenz = 44100;
    d.Header_Bitrate = 192, d.Header_VBR = true, d.Header_Dauer = 245, d.Header_Frames = 9388;
    d.Header_CRC = true, d.Header_Emphasis = "50/15 ms", d.Header_Original = true;
    d.Mp3_ID3v1_Status = 1, d.Mp3_ID3v1_Genre = std::string(1, '\x11');
    d.Mp3_ID3v2_Status = 1, d.Mp3_ID3v2_TAGGröße = 2048, d.Mp3_ID3v2_Benutzt = 1500, d.Mp3_ID3v2_Version = "3.0";
    d.Mp3_ID3v2_Weitere = "TXXX";
    u.k.E.TAGsSoftwareFeldSchreiben = 1;
    ASSERT_TRUE(MedienInfosEintragen(u.k, a, d, o / "x.mp3", "000"));
    EXPECT_EQ(a.lblTrackInfos, "Hinweis: Hier finden Sie einige Informationen über die gewählte Datei.\n\n"
                               "Dateiname: " +
                                   (o / "x.mp3") +
                                   "\nDateigröße: 3.145.728 Bytes\n"
                                   "MPEG Version: 1 Layer 3\nModus: Joint Stereo, 44100 Hz\nBitrate: 192 kbps VBR\n"
                                   "Dauer: 4:05\nAnzahl Frames: 9388\nCopyright: Nein\nCRC: Ja\nEmphasis: 50/15 ms\n"
                                   "Original: Ja\nPadding: Nein\nPrivat: Nein");
    EXPECT_EQ(a.lblID3v1Info, "Der gefundene ID3v1-TAG belegt 128 Bytes.");
    EXPECT_EQ(a.lblID3v2Info, "Der gefundene ID3v2-TAG belegt 2048 Bytes und liegt in der Version 3.0 vor. Dieser "
                              "enthält noch weitere, hier nicht angezeigte Felder. 549 Bytes sind ungenutzt.");
    EXPECT_TRUE(a.cmdTAGEntfernen && a.cmdTAGEntfernenv2);
    EXPECT_EQ(a.cboMusikrichtung, 18);  // Code 17 + 1
    EXPECT_EQ(a.txtv2Link, "https://klangkartei.example.org/");
    EXPECT_EQ(a.txtv2Software, "Klangkartei");

    // Ohne Kopf, kleine Größe, voller Tag, kein ID3v1: und ein eigener Link bleibt.
    d.Datei_Größe = 999, d.Header_Version = 0, d.Mp3_ID3v2_Benutzt = 0, d.Mp3_ID3v2_Weitere.clear();
    d.Mp3_ID3v1_Status = 2, d.Mp3_ID3v2_WXXX = "http://eigen";
    ASSERT_TRUE(MedienInfosEintragen(u.k, a, d, o / "x.mp3", "000"));
    EXPECT_EQ(a.lblTrackInfos.substr(a.lblTrackInfos.find("Dateigröße")),
              "Dateigröße: 999 Bytes\nKein Dateiheader gefunden - keine weiteren Informationen verfügbar");
    EXPECT_EQ(a.lblID3v2Info,
              "Der gefundene ID3v2-TAG belegt 2048 Bytes und liegt in der Version 3.0 vor. 0 Bytes sind ungenutzt.");
    EXPECT_EQ(a.lblID3v1Info, "Es wurde kein gültiger ID3v1-TAG gefunden.");
    EXPECT_FALSE(a.cmdTAGEntfernen);
    EXPECT_EQ(a.txtv2Link, "http://eigen");

    // Status 3 (nur im Datensatz) lässt den letzten Text stehen; ohne Tag der Hinweis.
    d.Datei_Größe = 1000, d.Mp3_ID3v2_Status = 3;
    ASSERT_TRUE(MedienInfosEintragen(u.k, a, d, o / "x.mp3", "000"));
    EXPECT_NE(a.lblTrackInfos.find("Dateigröße: 1.000 Bytes"), std::string::npos);
    EXPECT_EQ(a.lblID3v2Info.substr(0, 31), "Der gefundene ID3v2-TAG belegt ");
    d.Mp3_ID3v2_Status = 2;
    ASSERT_TRUE(MedienInfosEintragen(u.k, a, d, o / "x.mp3", "000"));
    EXPECT_EQ(a.lblID3v2Info, "Es wurde kein gültiger ID3v2-TAG gefunden.");
    EXPECT_FALSE(a.cmdTAGEntfernenv2);

    // Eine fehlende Datei: alle drei Texte sagen es, die Gruppen sind leer.
    a.txtTitel = "alt";
    EXPECT_FALSE(MedienInfosEintragen(u.k, a, d, o / "fort.mp3", "111"));
    EXPECT_EQ(a.lblTrackInfos, "Diese Datei existiert nicht (mehr).");
    EXPECT_EQ(a.lblID3v2Info, a.lblTrackInfos);
    EXPECT_EQ(a.txtTitel, "");
    EXPECT_EQ(d.Mp3_ID3v1_Status, 0);
}

TEST(TagEditor, SteuerelementeLesenUndKopieren) {
    TagEditorAnsicht a;
    DateiInfo d;
    a.txtTitelnummer = "300", a.cboMusikrichtung = 0;
    a.txtIndexAbspielDatum = "gestern", a.txtIndexHinzugefügtAm = "", a.txtIndexAbspielAnzahl = "x";
    TagEditorAnsichtLesen(a, d);
    EXPECT_EQ(d.Mp3_ID3v1_Track, "");
    EXPECT_EQ(d.Mp3_ID3v1_Genre, std::string(1, '\xFF'));
    EXPECT_EQ(d.Datei_AngefordertGespieltAm, "");
    EXPECT_EQ(d.Datei_AngefordertAnzahl, 0);
    a.txtTitelnummer = "12", a.cboMusikrichtung = 126, a.txtIndexAbspielDatum = "3.4.2005 10:00:00";
    a.txtIndexAbspielAnzahl = "7", a.txtIndexHinzugefügtAm = "24.12.2001", a.txtIndexDatenträger = "CD 1";
    a.cbov2Musikrichtung = "Eigenes Genre";
    TagEditorAnsichtLesen(a, d);
    EXPECT_EQ(d.Mp3_ID3v1_Track, "12");
    EXPECT_EQ(d.Mp3_ID3v1_Genre, std::string(1, '\x7D'));
    EXPECT_EQ(d.Mp3_ID3v2_TCON, "Eigenes Genre");
    EXPECT_EQ(d.Datei_AngefordertGespieltAm, "3.4.2005 10:00:00");
    EXPECT_EQ(d.Datei_AngefordertAnzahl, 7);
    EXPECT_EQ(d.Datei_HinzugefügtAm, "24.12.2001");
    EXPECT_EQ(d.Datei_Wechselmedium, "CD 1");

    // Kopieren: Genre über seinen Namen, ein unbekannter Name heißt keine Wahl.
    a.txtv2Titel = "Titel2", a.txtv2Kommentar = "K2", a.cbov2Musikrichtung = "DANCE HALL";
    cmdDatenKopierenNachV1(a);
    EXPECT_EQ(a.txtTitel, "Titel2");
    EXPECT_EQ(a.txtKommentar, "K2");
    EXPECT_EQ(a.cboMusikrichtung, 126);
    a.cbov2Musikrichtung = "gibt es nicht";
    cmdDatenKopierenNachV1(a);
    EXPECT_EQ(a.cboMusikrichtung, 0);
    a.txtAlbum = "A1", a.cboMusikrichtung = 18;
    cmdDatenKopierenNachV2(a);
    EXPECT_EQ(a.txtv2Album, "A1");
    EXPECT_EQ(a.cbov2Musikrichtung, GenreName(17));

    EXPECT_TRUE(TitelnummerZeichenErlaubt('7'));
    EXPECT_TRUE(TitelnummerZeichenErlaubt(8));
    EXPECT_FALSE(TitelnummerZeichenErlaubt('a'));
    EXPECT_FALSE(TitelnummerZeichenErlaubt('-'));
}

TEST(TagEditor, ÖffnenBlätternUndAutomatischSpeichern) {
    Editor t;
    auto& k = t.u.k;
    t.u.k.E.AutoTagAktuell.clear();
    t.u.k.E.AutoTagLeer = 0;
    t.u.k.E.AutoTagFormate.ReDim(1);
    t.u.k.E.AutoTagFormate[1] = "/%Titel%";
    t.u.k.E.TAGAutomatischSpeichernV2 = 1;
    ASSERT_TRUE(TagEditorÖffnen(k, t.e, {3, 1, 2}));
    EXPECT_EQ(k.E.AutoTagAktuell, "/%Titel%");
    EXPECT_EQ(t.e.a.txtDateiname, (std::vector<std::string>{"c.mp3", "a.mp3", "b.mp3"}));
    EXPECT_EQ(t.e.AktuellerEintrag, 1);
    EXPECT_EQ(t.e.a.txtDateinameToolTip, t.o / "c.mp3");
    EXPECT_EQ(t.e.a.txtTitel, "Titel c");
    EXPECT_EQ(t.e.a.txtv2Titel, "Lied c");
    EXPECT_EQ(t.e.a.txtTitelnummer, "3");
    EXPECT_EQ(t.e.a.txtIndexHinzugefügtAm, "01.02.2003");
    EXPECT_FALSE(t.e.a.cmdVorheriger);
    EXPECT_TRUE(t.e.a.cmdNächster && t.e.a.sichtbar && t.e.a.chkAutomatischSpeichernV2);
    EXPECT_FALSE(TagEditorBlättern(k, t.e, -1));

    // Geändert wird in beiden Tags, angehakt ist nur ID3v2: nur das geht beim Wechsel in die Datei.
    t.e.a.txtTitel = "Neu v1";
    t.e.a.txtv2Titel = "Neu v2";
    t.e.a.txtv2Sprache = "deu";
    ASSERT_TRUE(TagEditorBlättern(k, t.e, +1));
    EXPECT_EQ(t.e.AktuellerEintrag, 2);
    EXPECT_EQ(t.e.a.txtTitel, "Titel a");
    const DateiInfo c = t.Datei("c.mp3");
    EXPECT_EQ(c.Mp3_ID3v2_TIT2, "Neu v2");
    EXPECT_EQ(c.Mp3_ID3v2_TLAN, "deu");
    EXPECT_EQ(c.Mp3_ID3v1_Titel, "Titel c");
    EXPECT_EQ(k.DateiDaten[3].Mp3_ID3v2_TIT2, "Neu v2");
    EXPECT_TRUE(t.u.ui.meldungen.empty());

    // Am Ende kein Umlauf; die letzte Zeile sperrt "Nächste".
    ASSERT_TRUE(TagEditorBlättern(k, t.e, +1));
    EXPECT_FALSE(t.e.a.cmdNächster);
    EXPECT_FALSE(TagEditorBlättern(k, t.e, +1));
    EXPECT_EQ(t.e.AktuellerEintrag, 3);
}

TEST(TagEditor, SpeichernEinesTagsLässtDenAnderenStehen) {
    Editor t;
    auto& k = t.u.k;
    ASSERT_TRUE(TagEditorÖffnen(k, t.e, {1}));
    t.e.a.txtTitel = "Nur v1";
    t.e.a.txtv2Titel = "noch nicht gespeichert";
    t.e.a.txtIndexAbspielAnzahl = "5";
    Mp3TAGAnzeigeInfosSpeichern(k, t.e, 1);
    EXPECT_EQ(t.Datei("a.mp3").Mp3_ID3v1_Titel, "Nur v1");
    EXPECT_EQ(t.Datei("a.mp3").Mp3_ID3v2_TIT2, "Lied a");
    EXPECT_EQ(t.e.a.txtv2Titel, "noch nicht gespeichert");
    EXPECT_EQ(k.DateiDaten[1].Mp3_ID3v1_Titel, "Nur v1");
    EXPECT_EQ(k.DateiDaten[1].Datei_AngefordertAnzahl, 5);
    EXPECT_TRUE(t.e.TagGespeichert);

    // Eine Datei, deren Endung keine Tags erwarten lässt: Nein schreibt nichts.
    DateiSchreiben(t.o / "d.wav", DateiLesen(t.o / "b.mp3"));
    Eintragen(k, t.o / "d.wav");
    ASSERT_TRUE(TagEditorÖffnen(k, t.e, {4}));
    t.e.a.txtTitel = "Wav";
    t.u.ui.antworten = {Meldung::Nein};
    Mp3TAGAnzeigeInfosSpeichern(k, t.e, 0);
    ASSERT_EQ(t.u.ui.meldungen.size(), 1u);
    EXPECT_EQ(t.u.ui.meldungen[0].schalter, Meldung::JaNeinAusruf);
    EXPECT_EQ(t.u.ui.meldungen[0].text.substr(0, 28), "Sie sollten ID3-TAGs nur in ");
    EXPECT_EQ(DateiLesen(t.o / "d.wav"), DateiLesen(t.o / "b.mp3"));
}

TEST(TagEditor, TagEntfernenMitFrage) {
    Editor t;
    auto& k = t.u.k;
    ASSERT_TRUE(TagEditorÖffnen(k, t.e, {2}));
    const std::string vorher = DateiLesen(t.o / "b.mp3");
    t.u.ui.antworten = {Meldung::Nein};
    EXPECT_FALSE(TagEditorTagEntfernen(k, t.e, true));
    EXPECT_EQ(t.u.ui.meldungen.at(0).text, "Möchten Sie den ID3v2-TAG entfernen?");
    EXPECT_EQ(t.u.ui.meldungen.at(0).schalter, Meldung::JaNeinFrage);
    EXPECT_EQ(DateiLesen(t.o / "b.mp3"), vorher);

    t.e.a.txtTitel = "ungespeichert";
    t.u.ui.antworten = {Meldung::Ja};
    ASSERT_TRUE(TagEditorTagEntfernen(k, t.e, true));
    const std::string ohneV2 = DateiLesen(t.o / "b.mp3");
    EXPECT_EQ(ohneV2, vorher.substr(vorher.size() - 5 * 417 - 128));
    EXPECT_EQ(t.e.a.lblID3v2Info, "Es wurde kein gültiger ID3v2-TAG gefunden.");
    EXPECT_FALSE(t.e.a.cmdTAGEntfernenv2);
    EXPECT_EQ(t.e.a.txtv2Titel, "");
    EXPECT_EQ(t.e.a.txtTitel, "ungespeichert");
    EXPECT_LT(k.DateiDaten[2].Mp3_ID3v2_TAGGröße, 1);

    t.u.ui.antworten = {Meldung::Ja};
    ASSERT_TRUE(TagEditorTagEntfernen(k, t.e, false));
    EXPECT_EQ(DateiLesen(t.o / "b.mp3"), ohneV2.substr(0, 5 * 417));
    EXPECT_EQ(t.e.a.lblID3v1Info, "Es wurde kein gültiger ID3v1-TAG gefunden.");
}

TEST(TagEditor, FunktionenFürDieseUndAlleDateien) {
    Editor t;
    auto& k = t.u.k;
    ASSERT_TRUE(TagEditorÖffnen(k, t.e, {1, 2, 3}));
    // Diese Datei: wirkt auf das Eingegebene, nichts wird geschrieben.
    const std::string vorher = DateiLesen(t.o / "a.mp3");
    t.e.a.txtTitel = "eingegeben";
    TagEditorFunktionAusführen(k, t.e, 2, 0, {});
    EXPECT_EQ(t.e.a.txtTitel, "Wer");
    EXPECT_EQ(t.e.a.txtInterpret, "eingegeben");
    EXPECT_EQ(t.e.a.txtv2Titel, "Lied a");
    EXPECT_EQ(DateiLesen(t.o / "a.mp3"), vorher);

    // Felder aus dem anderen Tag: ID3v1 bekommt Titel und Genre aus ID3v2.
    t.e.a.cbov2Musikrichtung = "Jazz";
    TagEditorFunktionAusführen(k, t.e, 10, 0, {0, 5});
    EXPECT_EQ(t.e.a.txtTitel, "Lied a");
    EXPECT_EQ(t.e.a.cboMusikrichtung, 9);  // Jazz ist Code 8

    // Alle Dateien, beide Tags groß: jede Datei geschrieben, die gezeigte neu geladen.
    t.u.ui.antworten.clear();
    TagEditorFunktionAusführen(k, t.e, 9, 5, {});
    EXPECT_EQ(t.Datei("b.mp3").Mp3_ID3v1_Titel, "TITEL B");
    EXPECT_EQ(t.Datei("c.mp3").Mp3_ID3v2_TIT2, "LIED C");
    EXPECT_EQ(t.Datei("c.mp3").Mp3_ID3v2_TPE1, "WER2");
    EXPECT_EQ(t.e.a.txtv2Titel, "LIED A");
    EXPECT_EQ(t.e.AktuellerEintrag, 1);

    // Felder kopieren über alle: das Album der gezeigten Datei in alle ID3v2-Tags.
    t.e.a.txtv2Album = "Gemeinsam";
    TagEditorFunktionAusführen(k, t.e, 10, 4, {2});
    EXPECT_EQ(t.Datei("b.mp3").Mp3_ID3v2_TALB, "Gemeinsam");
    EXPECT_EQ(t.Datei("c.mp3").Mp3_ID3v2_TIT2, "LIED C");
    EXPECT_EQ(t.Datei("c.mp3").Mp3_ID3v1_Album, "ALBUM");
}

TEST(TagEditor, OkSpeichertHakenUndFrischtDieListeAuf) {
    Editor t;
    auto& k = t.u.k;
    k.Liste.lstSongs.zeilen = {{1, true}, {2, false}};
    k.E.SucheNichtBeiTAGEditor = 1;
    ASSERT_TRUE(TagEditorÖffnen(k, t.e, {1}));
    t.e.a.chkAutomatischSpeichernFelder = true;
    t.e.a.txtIndexDatenträger = "Archiv";
    const uint64_t stand = k.Liste.lstSongs.version;
    TagEditorOk(k, t.e);
    EXPECT_FALSE(t.e.a.sichtbar);
    EXPECT_EQ(k.E.TAGAutomatischSpeichernFelder, 1);
    EXPECT_EQ(k.E.TAGAutomatischSpeichern, 0);
    EXPECT_EQ(k.DateiDaten[1].Datei_Wechselmedium, "Archiv");
    EXPECT_GT(k.Liste.lstSongs.version, stand);
    EXPECT_EQ(k.Liste.lstSongs.zeilen.size(), 2u);

    // Nichts zu laden: das Fenster bleibt zu.
    TagEditor leer;
    EXPECT_FALSE(TagEditorÖffnen(k, leer, {}));
    EXPECT_FALSE(leer.a.sichtbar);
}
