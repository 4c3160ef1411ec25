// Die Befehle info, tag und untag als Ganzes: Aufruf, Ausgabe, Rückgabe, Dateien danach.
#include "app/Pfade.h"
#include "media/Id3v1.h"
#include "support/CliAufruf.h"
#include "support/MpegDaten.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>

namespace {
using Ergebnis = CliErgebnis;

Ergebnis Aufruf(const TestOrdner& o, const std::vector<std::string>& argumente) {
    return CliAufrufen(KK_CLI, o, argumente);
}

const std::string kAudio = mpeg::Frame(mpeg::Kopf{}) + mpeg::Füllung(3000);
}  // namespace

TEST(Befehle, Info) {
    TestOrdner o;
    mpeg::V2Tag t;
    t.rahmen = {mpeg::Text("TIT2", "Titel"), mpeg::Text("XYZQ", "a")};
    t.padding = 20;
    const std::string tag = mpeg::Id3v2(t);
    DateiSchreiben(o / "a.mp3", tag + kAudio + mpeg::Id3v1("Back\\slash", "", "", "", "", 4, 17));
    DateiSchreiben(o / "b.mp3", kAudio);

    Ergebnis e = Aufruf(o, {"info", o / "a.mp3", o / "b.mp3"});
    ASSERT_EQ(e.rückgabe, 0) << e.fehler;
    const std::string erster = e.aus.substr(0, e.aus.find("\n\n") + 2);
    EXPECT_EQ(erster.rfind("Nummer=1\nDateiPfade=" + o / "a.mp3" + "\nMp3_ID3v1_TAG=TAG\n", 0), 0u);
    EXPECT_NE(erster.find("\nMp3_ID3v1_Titel=Back\\x5Cslash\n"), std::string::npos);
    EXPECT_NE(erster.find("\nMp3_ID3v1_Track=4\nMp3_ID3v1_Genre=17\n"), std::string::npos);
    EXPECT_NE(erster.find("\nDatei_Typ=1\n"), std::string::npos);
    EXPECT_NE(erster.find("\nHeader_VBR=0\n"), std::string::npos);
    EXPECT_NE(erster.find("\nMp3_ID3v2_TIT2=Titel\n"), std::string::npos);
    EXPECT_NE(erster.find("\nMp3_ID3v2_Weitere=XYZQ\\x00\\x00\\x00\\x02\\x00\\x00\\x00a\n\n"), std::string::npos);
    EXPECT_NE(erster.find("\nHeader_Position=" + std::to_string(tag.size()) + "\n"), std::string::npos);
    EXPECT_NE(e.aus.find("\n\nNummer=2\nDateiPfade=" + o / "b.mp3" + "\n"), std::string::npos);
    EXPECT_EQ(e.aus.size() - e.aus.rfind("\n\n"), 2u);  // jeder Block endet mit einer Leerzeile

    // Schalter: nichts lesen; Suchbereich zu klein für den Tag an Byte 21.
    e = Aufruf(o, {"info", "--flags", "000", o / "a.mp3"});
    EXPECT_NE(e.aus.find("\nMp3_ID3v1_Status=0\nMp3_ID3v2_Status=0\n"), std::string::npos);
    EXPECT_NE(e.aus.find("\nHeader_Bitrate=0\n"), std::string::npos);
    DateiSchreiben(o / "c.mp3", std::string(20, 'x') + tag + kAudio);
    e = Aufruf(o, {"info", "--bytes", "10", "--flags", "010", o / "c.mp3"});
    EXPECT_NE(e.aus.find("\nMp3_ID3v2_Status=2\n"), std::string::npos);
    e = Aufruf(o, {"info", "--bytes", "0", "--flags", "010", o / "c.mp3"});
    EXPECT_NE(e.aus.find("\nMp3_ID3v2_TAGPosition=21\n"), std::string::npos);

    e = Aufruf(o, {"info", o / "fehlt.mp3"});
    EXPECT_EQ(e.rückgabe, 1);
    EXPECT_NE(e.aus.find("\nDatei_Größe=-1\n"), std::string::npos);
    EXPECT_EQ(Aufruf(o, {"info", "--flags", "12", o / "a.mp3"}).rückgabe, 2);
    EXPECT_EQ(Aufruf(o, {"info"}).rückgabe, 2);
}

TEST(Befehle, TagUndUntag) {
    TestOrdner o;
    const std::string pfad = o / "a.mp3";
    const std::string v1 = mpeg::Id3v1("Alt", "Wer", "", "1990", "", 2, 3);
    DateiSchreiben(pfad, kAudio + v1);

    // Nur ID3v1 genannt: der Block wie vom Editor, kein ID3v2-Tag.
    Ergebnis e = Aufruf(o, {"tag", pfad, "Mp3_ID3v1_Titel=Grüße", "Mp3_ID3v1_Genre=17"});
    ASSERT_EQ(e.rückgabe, 0) << e.fehler;
    Id3v1Felder f;
    f.titel = "Grüße", f.interpret = "Wer", f.jahr = "1990", f.titelnummer = "2", f.genreAuswahl = 18;
    EXPECT_EQ(DateiLesen(pfad), kAudio + TAGAusFeldernZusammensetzen(f));

    // Nur ID3v2 genannt: der ID3v1-Block bleibt Byte für Byte.
    const std::string vorher = DateiLesen(pfad);
    e = Aufruf(o, {"tag", pfad, "Mp3_ID3v2_TIT2=Neu"});
    ASSERT_EQ(e.rückgabe, 0) << e.fehler;
    const std::string danach = DateiLesen(pfad);
    EXPECT_EQ(danach.substr(0, 3), "ID3");
    EXPECT_EQ(danach.substr(danach.size() - vorher.size()), vorher);

    EXPECT_EQ(Aufruf(o, {"tag", pfad, "Gibtsnicht=1"}).rückgabe, 2);
    EXPECT_EQ(Aufruf(o, {"tag", pfad, "Mp3_ID3v1_Genre=300"}).rückgabe, 2);
    e = Aufruf(o, {"tag", o / "fehlt.mp3", "Mp3_ID3v1_Titel=x"});
    EXPECT_EQ(e.rückgabe, 1);
    EXPECT_NE(e.fehler.find("Die ID3v1-TAG der Datei '" + o / "fehlt.mp3" +
                            "' konnte nicht gespeichert werden.\nDie Datei existiert nicht."),
              std::string::npos);

    // Ein Typ ohne Tags: die Frage des Editors, ohne --yes mit Nein beantwortet.
    DateiSchreiben(o / "a.txt", "Text");
    e = Aufruf(o, {"tag", o / "a.txt", "Mp3_ID3v1_Titel=x"});
    EXPECT_EQ(e.rückgabe, 1);
    EXPECT_NE(e.fehler.find("Sie sollten ID3-TAGs nur in Dateien des Typs 'MPEG Audio/AAC' speichern."),
              std::string::npos);
    EXPECT_EQ(DateiLesen(o / "a.txt"), "Text");
    EXPECT_EQ(Aufruf(o, {"--yes", "tag", o / "a.txt", "Mp3_ID3v1_Titel=x"}).rückgabe, 0);
    EXPECT_EQ(DateiLesen(o / "a.txt").size(), 4u + 128u);

    // untag: beide Tags weg, dann ist keiner mehr da.
    EXPECT_EQ(Aufruf(o, {"untag", "--v2", pfad}).rückgabe, 0);
    EXPECT_EQ(Aufruf(o, {"untag", "--v1", pfad}).rückgabe, 0);
    EXPECT_EQ(DateiLesen(pfad), kAudio);
    e = Aufruf(o, {"untag", "--v1", pfad});
    EXPECT_EQ(e.rückgabe, 1);
    EXPECT_NE(e.fehler.find("Diese enthält keinen ID3v1-TAG."), std::string::npos);
    EXPECT_EQ(Aufruf(o, {"untag", pfad}).rückgabe, 2);
    EXPECT_EQ(Aufruf(o, {"untag", "--v1", "--v2", pfad}).rückgabe, 2);
}

TEST(Befehle, TagFrischtDenIndexeintragAuf) {
    TestOrdner o;
    DateiSchreiben(o / "a.mp3", kAudio);
    // Ein Index mit der Datei als einziger Zeile (alte Form: bloßer Pfad, wird beim Laden gelesen).
    DateiSchreiben(o / "i.kkt", "Liste\r\n" + o / "a.mp3" + "\r\n");
    Ergebnis e = Aufruf(o, {"--yes", "--index", o / "i.kkt", "save"});  // in die neue Form bringen
    ASSERT_EQ(e.rückgabe, 0) << e.fehler;

    e = Aufruf(o, {"--index", o / "i.kkt", "tag", o / "a.mp3", "Mp3_ID3v1_Titel=Neu", "Mp3_ID3v2_TIT2=Zwei"});
    ASSERT_EQ(e.rückgabe, 0) << e.fehler;
    e = Aufruf(o, {"--index", o / "i.kkt", "show", "--entry", "1"});
    ASSERT_EQ(e.rückgabe, 0) << e.fehler;
    EXPECT_NE(e.aus.find("\nMp3_ID3v1_Titel=Neu\n"), std::string::npos) << e.aus;
    EXPECT_NE(e.aus.find("\nMp3_ID3v2_TIT2=Zwei\n"), std::string::npos);

    e = Aufruf(o, {"--index", o / "i.kkt", "untag", "--v1", o / "a.mp3"});
    ASSERT_EQ(e.rückgabe, 0) << e.fehler;
    e = Aufruf(o, {"--index", o / "i.kkt", "show", "--entry", "1"});
    EXPECT_NE(e.aus.find("\nMp3_ID3v1_Titel=\n"), std::string::npos) << e.aus;
    EXPECT_NE(e.aus.find("\nMp3_ID3v1_Status=2\n"), std::string::npos);
}

TEST(Befehle, TagOhneNachgeführtenIndexeintragScheitert) {
    TestOrdner o;
    DateiSchreiben(o / "a.mp3", kAudio);
    DateiSchreiben(o / "i.kkt", "Liste\r\n" + o / "a.mp3" + "\r\n");
    ASSERT_EQ(Aufruf(o, {"--yes", "--index", o / "i.kkt", "save"}).rückgabe, 0);
    DateiSchreiben(o / "i.kkt~", "Rest einer abgebrochenen Speicherung");  // die Frage beim Laden: Nein
    const Ergebnis e = Aufruf(o, {"--index", o / "i.kkt", "tag", o / "a.mp3", "Mp3_ID3v1_Titel=Neu"});
    EXPECT_EQ(e.rückgabe, 1);
    EXPECT_NE(e.fehler.find("Der Eintrag von '" + o / "a.mp3" + "' im Index wurde nicht nachgeführt.\n"),
              std::string::npos)
        << e.fehler;
    EXPECT_TRUE(DoesExist(o / "i.kkt~"));
}
