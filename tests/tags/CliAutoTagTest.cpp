// Der Befehl autotag: erkennen und zeigen (Byte für Byte), für eine Auswahl schreiben, Fehlerwege.
#include "app/Pfade.h"
#include "app/Tabelle.h"
#include "index/IndexDatei.h"
#include "media/Id3v1.h"
#include "media/MedienInfos.h"
#include "support/Attrappen.h"
#include "support/CliAufruf.h"
#include "support/MpegDaten.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>

namespace {
using A = std::vector<std::string>;

CliErgebnis Cli(const TestOrdner& o, A argumente) {
    argumente.insert(argumente.begin(), {"--index", o / "i.kkt"});
    return CliAufrufen(KK_CLI, o, argumente);
}

const std::string kAudio = mpeg::Frame(mpeg::Kopf{}) + mpeg::Füllung(3000);

// Legt die Dateien an (nur Audio, ohne Tags) und einen Index mit ihnen, in dieser Reihenfolge.
void IndexMitDateien(const TestOrdner& o, const std::vector<std::string>& namen) {
    TestUmgebung u;
    for (const auto& name : namen) {
        DateiSchreiben(o / name, kAudio);
        IndexGrößeÄndern(u.k, u.k.DateiAnzahl + 1, true);
        u.k.DateiAnzahl += 1;
        u.k.DateiPfade[u.k.DateiAnzahl] = o / name;
        DateiInfo d;
        d.Datei_HinzugefügtAm = "16.11.2001";
        u.k.DateiDaten[u.k.DateiAnzahl] = MedienInfosLesen(u.k, o / name, d, "11", false, "1", "1");
    }
    ASSERT_TRUE(DateiSpeichern(u.k, o / "i.kkt", false));
}

DateiInfo IndexEintrag(const TestOrdner& o, int32_t n) {
    TestUmgebung u;
    EXPECT_TRUE(DateiLaden(u.k, o / "i.kkt"));
    return u.k.DateiDaten.GültigerIndex(n) ? u.k.DateiDaten[n] : DateiInfo{};
}

const std::string kBlock = "Nummer=0\n"
                           "DateiPfade=/Musik/Abba - 1974 - Waterloo.mp3\n"
                           "Mp3_ID3v1_TAG=TAG\nMp3_ID3v1_Titel=Waterloo\nMp3_ID3v1_Interpret=Abba\nMp3_ID3v1_Album=\n"
                           "Mp3_ID3v1_Jahr=1974\nMp3_ID3v1_Kommentar=\nMp3_ID3v1_Track=\nMp3_ID3v1_Genre=255\n"
                           "Datei_Größe=0\nDatei_Wechselmedium=\nDatei_HinzugefügtAm=\nDatei_Typ=0\n"
                           "Datei_AngefordertAnzahl=0\nDatei_AngefordertGespieltAm=\nHeader_Bitrate=0\n"
                           "Header_Frequenz=0\nHeader_Dauer=0\nHeader_Version=0\nHeader_Layer=0\nHeader_VBR=0\n"
                           "Header_Original=0\nHeader_Emphasis=\nHeader_Copyright=0\nHeader_Modus=\nHeader_Privat=0\n"
                           "Header_Padding=0\nHeader_CRC=0\nHeader_Frames=0\nHeader_Position=0\n"
                           "Mp3_ID3v1_Status=3\nMp3_ID3v2_Status=0\nMp3_ID3v2_Version=\nMp3_ID3v2_TAGGröße=0\n"
                           "Mp3_ID3v2_TAGPosition=0\nMp3_ID3v2_Benutzt=0\nMp3_ID3v2_PCNT=\nMp3_ID3v2_TRCK=\n"
                           "Mp3_ID3v2_TENC=\nMp3_ID3v2_WXXX=\nMp3_ID3v2_TCOP=\nMp3_ID3v2_TOPE=\nMp3_ID3v2_TCOM=\n"
                           "Mp3_ID3v2_TCON=\nMp3_ID3v2_COMM=\nMp3_ID3v2_TYER=\nMp3_ID3v2_TALB=\nMp3_ID3v2_TPE1=\n"
                           "Mp3_ID3v2_TIT2=\nMp3_ID3v2_TLAN=\nMp3_ID3v2_TLEN=\nMp3_ID3v2_TMED=\nMp3_ID3v2_TPUB=\n"
                           "Mp3_ID3v2_TSSE=\nMp3_ID3v2_Weitere=\n\n";
}  // namespace

TEST(CliAutoTag, ErkennenUndZeigen) {
    TestOrdner o;
    // Nicht im Index (hier: kein Index): leere Ausgangsdaten, Nummer 0; es entsteht keine Datei.
    CliErgebnis e = Cli(o, {"autotag", "/Musik/Abba - 1974 - Waterloo.mp3", "--format",
                            "/%Interpret% - %Jahr% - %Titel%", "--modus", "1"});
    EXPECT_EQ(e.rückgabe, 0) << e.fehler;
    EXPECT_EQ(e.aus, kBlock);
    EXPECT_EQ(e.fehler, "");
    EXPECT_FALSE(DoesExist(o / "i.kkt"));

    // Im Index: sein Datensatz ist der Ausgangspunkt, %Automatik% schlägt im Index nach.
    IndexMitDateien(o, {"ABBA Gold - Lied.mp3", "Abba - 05 - Waterloo.mp3"});
    ASSERT_EQ(Cli(o, {"autotag", "--apply", "/%Interpret% - %Titel%", "--entry", "1"}).rückgabe, 0);
    const std::string vorher = DateiLesen(o / "i.kkt");
    e = Cli(o, {"autotag", o / "Abba - 05 - Waterloo.mp3", "--format", "%Automatik%"});
    EXPECT_EQ(e.rückgabe, 0) << e.fehler;
    EXPECT_EQ(e.aus.rfind("Nummer=2\nDateiPfade=" + o / "Abba - 05 - Waterloo.mp3" +
                              "\nMp3_ID3v1_TAG=TAG\nMp3_ID3v1_Titel=Waterloo\nMp3_ID3v1_Interpret=Abba\n"
                              "Mp3_ID3v1_Album=\nMp3_ID3v1_Jahr=\nMp3_ID3v1_Kommentar=\nMp3_ID3v1_Track=05\n",
                          0),
              0u)
        << e.aus;
    EXPECT_NE(e.aus.find("\nDatei_HinzugefügtAm=16.11.2001\n"), std::string::npos);
    EXPECT_NE(e.aus.find("\nMp3_ID3v2_TPE1=Abba\nMp3_ID3v2_TIT2=Waterloo\n"), std::string::npos);
    EXPECT_EQ(DateiLesen(o / "i.kkt"), vorher);
    EXPECT_TRUE(DateiLesen(o / "Abba - 05 - Waterloo.mp3") == kAudio);

    // Scheitern: die Meldung auf stderr, Rückgabe 1, keine Ausgabe.
    e = Cli(o, {"autotag", "/Musik/Abba - Waterloo.mp3", "--format", "%Automatik% %Titel%"});
    EXPECT_EQ(e.rückgabe, 1);
    EXPECT_EQ(e.aus, "");
    EXPECT_EQ(
        e.fehler,
        "Bei Verwendung der Erkennungs-Variable '%Automatik%' können keine weiteren Variablen verwendet werden.\n");
}

TEST(CliAutoTag, FalscheAufrufe) {
    TestOrdner o;
    for (const A& a :
         {A{"autotag"}, A{"autotag", "/a - b.mp3"}, A{"autotag", "/a - b.mp3", "--format"},
          A{"autotag", "/a.mp3", "--format", "%Titel%", "--modus", "3"}, A{"autotag", "/a.mp3", "--apply", "%Titel%"},
          A{"autotag", "--apply", "%Titel%", "--format", "x"},
          A{"autotag", "/a.mp3", "--format", "%Titel%", "--entry", "1"},
          A{"autotag", "/a.mp3", "/b.mp3", "--format", "%Titel%"}}) {
        const CliErgebnis e = Cli(o, a);
        EXPECT_EQ(e.rückgabe, 2) << a.size();
        EXPECT_EQ(e.aus, "");
    }
    EXPECT_EQ(Cli(o, {"autotag", "--apply", "%Titel%", "--modus"})
                  .fehler.rfind("klangkartei-cli: autotag: --modus braucht einen Wert.\n", 0),
              0u);
}

TEST(CliAutoTag, AnwendenSchreibtUndFührtDenIndexNach) {
    TestOrdner o;
    // "," trennt hier, weil der Name des Testordners selbst "-" enthält.
    IndexMitDateien(o, {"Abba, Waterloo.mp3", "Einzeln.mp3", "Nena, Irgendwie.mp3"});
    const std::string format = "/%Interpret%, %Titel%";
    // Ohne --yes: der zweite Eintrag scheitert, die Frage wird mit Nein beantwortet, der dritte
    // bleibt unberührt; was geschrieben ist, steht im gespeicherten Index.
    CliErgebnis e = Cli(o, {"autotag", "--apply", format});
    EXPECT_EQ(e.rückgabe, 1);
    EXPECT_EQ(e.aus, "Gespeichert=1\nNichtGespeichert=1\n");
    EXPECT_NE(e.fehler.find("Der zu erkennende Dateiname enthält nicht gleich viele Elemente wie das Format"),
              std::string::npos);
    EXPECT_NE(e.fehler.find("Es ist ein Fehler in der Funktion 'AutoTAG' aufgetreten.\n"
                            "Möchten Sie mit der nächsten Datei fortfahren?\n→ Nein\n"),
              std::string::npos);
    Id3v1Felder f;
    f.titel = "Waterloo", f.interpret = "Abba";
    EXPECT_EQ(Mp3tagLesenStr(o / "Abba, Waterloo.mp3"), TAGAusFeldernZusammensetzen(f));
    EXPECT_EQ(DateiLesen(o / "Abba, Waterloo.mp3").substr(0, 3), "ID3");
    EXPECT_TRUE(DateiLesen(o / "Nena, Irgendwie.mp3") == kAudio);
    const DateiInfo d = IndexEintrag(o, 1);
    EXPECT_EQ(d.Mp3_ID3v1_Titel, "Waterloo");
    EXPECT_EQ(d.Mp3_ID3v1_Status, 1);
    EXPECT_EQ(d.Mp3_ID3v2_TPE1, "Abba");
    EXPECT_EQ(d.Mp3_ID3v2_Status, 1);
    EXPECT_EQ(d.Datei_HinzugefügtAm, "16.11.2001");

    // Mit --yes geht es nach dem Fehler weiter; --modus 1 schreibt nur den ID3v1-Tag.
    e = Cli(o, {"--yes", "autotag", "--apply", format, "--modus", "1", "--entry", "2", "--entry", "3"});
    EXPECT_EQ(e.rückgabe, 1);
    EXPECT_EQ(e.aus, "Gespeichert=1\nNichtGespeichert=1\n");
    f.titel = "Irgendwie", f.interpret = "Nena";
    EXPECT_TRUE(DateiLesen(o / "Nena, Irgendwie.mp3") == kAudio + TAGAusFeldernZusammensetzen(f));
    EXPECT_EQ(IndexEintrag(o, 3).Mp3_ID3v1_Interpret, "Nena");
    EXPECT_EQ(IndexEintrag(o, 3).Mp3_ID3v2_Status, 2);

    // Eine Auswahl über die Suche; alles gelingt: Rückgabe 0.
    e = Cli(o, {"autotag", "--apply", format, "--modus", "2", "--search", "Nena"});
    EXPECT_EQ(e.rückgabe, 0) << e.fehler;
    EXPECT_EQ(e.aus, "Gespeichert=1\nNichtGespeichert=0\n");
    EXPECT_EQ(IndexEintrag(o, 3).Mp3_ID3v2_TIT2, "Irgendwie");
}
