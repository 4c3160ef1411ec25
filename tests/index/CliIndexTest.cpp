// Die Index-Befehle der Kommandozeile als Ganzes: Ausgaben Byte für Byte, Rückgabewerte.
#include "IndexTestHilfen.h"
#include "support/CliAufruf.h"

#include <gtest/gtest.h>

namespace {
// Die Kommandozeile mit eigenem XDG-Bereich im Testordner.
CliErgebnis Cli(const TestOrdner& o, const std::vector<std::string>& argumente) {
    return CliAufrufen(KK_CLI, o, argumente);
}

const char* const kBeispielBlock =
    "Nummer=1\nDateiPfade=C:\\x5CMusik\\x5CLied.mp3\nMp3_ID3v1_TAG=\nMp3_ID3v1_Titel=Lied\n"
    "Mp3_ID3v1_Interpret=Band\nMp3_ID3v1_Album=Album\nMp3_ID3v1_Jahr=2001\nMp3_ID3v1_Kommentar=\n"
    "Mp3_ID3v1_Track=3\nMp3_ID3v1_Genre=17\nDatei_Größe=3145728\nDatei_Wechselmedium=\n"
    "Datei_HinzugefügtAm=16.11.2001\nDatei_Typ=1\nDatei_AngefordertAnzahl=2\n"
    "Datei_AngefordertGespieltAm=16.11.2001 20:15:00\nHeader_Bitrate=128\nHeader_Frequenz=44100\n"
    "Header_Dauer=196\nHeader_Version=0\nHeader_Layer=0\nHeader_VBR=0\nHeader_Original=0\nHeader_Emphasis=\n"
    "Header_Copyright=0\nHeader_Modus=Joint Stereo\nHeader_Privat=0\nHeader_Padding=0\nHeader_CRC=0\n"
    "Header_Frames=7530\nHeader_Position=0\nMp3_ID3v1_Status=1\nMp3_ID3v2_Status=2\nMp3_ID3v2_Version=\n"
    "Mp3_ID3v2_TAGGröße=0\nMp3_ID3v2_TAGPosition=0\nMp3_ID3v2_Benutzt=0\nMp3_ID3v2_PCNT=\nMp3_ID3v2_TRCK=\n"
    "Mp3_ID3v2_TENC=\nMp3_ID3v2_WXXX=\nMp3_ID3v2_TCOP=\nMp3_ID3v2_TOPE=\nMp3_ID3v2_TCOM=\nMp3_ID3v2_TCON=\n"
    "Mp3_ID3v2_COMM=\nMp3_ID3v2_TYER=\nMp3_ID3v2_TALB=\nMp3_ID3v2_TPE1=\nMp3_ID3v2_TIT2=\nMp3_ID3v2_TLAN=\n"
    "Mp3_ID3v2_TLEN=\nMp3_ID3v2_TMED=\nMp3_ID3v2_TPUB=\nMp3_ID3v2_TSSE=\nMp3_ID3v2_Weitere=\n\n";
}  // namespace

TEST(CliIndex, ShowFieldSave) {
    TestOrdner o;
    // Zweiter Eintrag: ein LF mitten im Kommentar (nur CR LF trennt Zeilen) und ein Tabulator im Pfad.
    DateiSchreiben(o / "a.kkt", "#TAG:kk102\r\n" + kBeispielGrößen + kBeispielWerte +
                                    "\r\n#TAG:7///3////////////////|/\tb.mp3a\nb\r\n");
    CliErgebnis a = Cli(o, {"--index", "a.kkt", "show", "--entry", "1"});
    EXPECT_EQ(a.rückgabe, 0);
    EXPECT_EQ(a.aus, kBeispielBlock);
    EXPECT_EQ(a.fehler, "");

    a = Cli(o, {"--index", "a.kkt", "show"});
    EXPECT_EQ(a.rückgabe, 0);
    ASSERT_TRUE(a.aus.starts_with(kBeispielBlock));
    EXPECT_NE(a.aus.find("Nummer=2\nDateiPfade=/\\x09b.mp3\n"), std::string::npos);
    EXPECT_NE(a.aus.find("\nMp3_ID3v1_Kommentar=a\\x0Ab\n"), std::string::npos);
    EXPECT_TRUE(a.aus.ends_with("Mp3_ID3v2_Weitere=\n\n"));

    a = Cli(o, {"--index", "a.kkt", "show", "--count"});
    EXPECT_EQ(a.aus, "DateiAnzahl=2\n");
    a = Cli(o, {"--index", "a.kkt", "show", "--entry", "3"});
    EXPECT_EQ(a.rückgabe, 1);
    EXPECT_EQ(a.fehler, "Den Eintrag 3 gibt es nicht; der Index hat 2 Einträge.\n");
    EXPECT_EQ(Cli(o, {"--index", "a.kkt", "show", "--entry", "x"}).rückgabe, 2);

    a = Cli(o, {"--index", "a.kkt", "field", "1", "Hinzufüge-Datum"});
    EXPECT_EQ(a.aus, "Wert=16.11.2001\nArt=2\n");
    a = Cli(o, {"--index", "a.kkt", "field", "1", "Hinzufüge-Datum", "--sortform"});
    EXPECT_EQ(a.aus, "Wert=2001|11|16\nArt=2\n");
    a = Cli(o, {"--index", "a.kkt", "field", "1", "%Interpret%\\%Titel%"});
    EXPECT_EQ(a.aus, "Wert=Band\\x5CLied\nArt=0\n");
    a = Cli(o, {"--index", "a.kkt", "field", "1", "Quatsch"});
    EXPECT_EQ(a.rückgabe, 1);
    EXPECT_EQ(a.fehler, "Das Feld 'Quatsch' gibt es nicht.\n");
    EXPECT_EQ(Cli(o, {"--index", "a.kkt", "field", "1"}).rückgabe, 2);

    a = Cli(o, {"--index", "a.kkt", "save", "--to", "b.kkt"});
    EXPECT_EQ(a.rückgabe, 0);
    EXPECT_EQ(DateiLesen(o / "b.kkt"), StandardKopf() + kBeispielGrößen + kBeispielWerte +
                                           "\r\n#TAG:7///3/////2//1/1/1/1/1//1//1/|/\tb.mp3a b-10000000\r\n");
    EXPECT_FALSE(DoesExist(o / "b.kkt~"));
}

TEST(CliIndex, MeldungenUndStandardIndex) {
    TestOrdner o;
    // Ohne --index: der Standard-Index im Datenordner, beim ersten Mal angelegt.
    CliErgebnis a = Cli(o, {"show", "--count"});
    EXPECT_EQ(a.rückgabe, 0);
    EXPECT_EQ(a.aus, "DateiAnzahl=0\n");
    EXPECT_EQ(DateiLesen(o / "daten/klangkartei/Klangkt.kkt"), "#TAG:kk100\r\n");

    // Ungültiges Format: Frage auf stderr, ohne --yes mit Nein beantwortet.
    DateiSchreiben(o / "liste.txt", "kopf\r\n/a.mp3\r\n/b.mp3\r\n");
    a = Cli(o, {"--index", "liste.txt", "show", "--count"});
    EXPECT_EQ(a.rückgabe, 1);
    EXPECT_EQ(a.aus, "");
    EXPECT_TRUE(a.fehler.starts_with("Die Indexdatei 'liste.txt' liegt in einem älteren Dateiformat vor"));
    EXPECT_TRUE(a.fehler.ends_with("→ Nein\nDie Indexdatei 'liste.txt' wurde nicht geladen.\n"));
    a = Cli(o, {"--yes", "--index", "liste.txt", "show", "--count"});
    EXPECT_EQ(a.rückgabe, 0);
    EXPECT_EQ(a.aus, "DateiAnzahl=2\n");

    // Neueres Format: Hinweis auf stderr, geladen wird trotzdem.
    DateiSchreiben(o / "neu.kkt", "#TAG:kk200\r\n");
    a = Cli(o, {"--index", "neu.kkt", "show", "--count"});
    EXPECT_EQ(a.rückgabe, 0);
    EXPECT_NE(a.fehler.find("liegt in einem neueren Datei-Format ('200') vor."), std::string::npos);
}
