// Die Befehle add, import, scan und types als Ganzes.
#include "support/CliAufruf.h"
#include "support/MpegDaten.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>

#include <vector>

namespace {
using Ergebnis = CliErgebnis;

Ergebnis Aufruf(const TestOrdner& o, const std::vector<std::string>& argumente) {
    return CliAufrufen(KK_CLI, o, argumente);
}

const std::string kMp3 = mpeg::Frame(mpeg::Kopf{}) + mpeg::Füllung(1000);
}  // namespace

TEST(CliAufnahme, Scan) {
    TestOrdner o;
    for (const char* n : {"m/b.mp3", "m/a.MP3x", "m/c.mp3xy", "m/bild.jpg", "m/sub/d.mp3", "m/e.mp3/f.mp3"})
        DateiSchreiben(o / n, "x");
    Ergebnis e = Aufruf(o, {"scan", o / "m"});
    ASSERT_EQ(e.rückgabe, 0) << e.fehler;
    EXPECT_EQ(e.aus, o / "m/a.MP3x\n" + o / "m/b.mp3\n" + o / "m/bild.jpg\n" + o / "m/c.mp3xy\n" +
                         o / "m/e.mp3/f.mp3\n" + o / "m/sub/d.mp3\n");
    e = Aufruf(o, {"scan", "--masks", ".mp3,.jpg", o / "m", "--no-subfolders"});
    EXPECT_EQ(e.aus, o / "m/a.MP3x\n" + o / "m/b.mp3\n" + o / "m/bild.jpg\n");
    EXPECT_EQ(Aufruf(o, {"scan", o / "fehlt"}).rückgabe, 1);
    EXPECT_EQ(Aufruf(o, {"scan"}).rückgabe, 2);
    EXPECT_EQ(Aufruf(o, {"scan", o / "m", "--masks"}).rückgabe, 2);
}

TEST(CliAufnahme, AddImportTypes) {
    TestOrdner o;
    const std::string index = o / "i.kkt";
    for (const char* n : {"m/a.mp3", "m/sub/b.mp3", "m/bild.jpg", "c.mp3", "pl/d.mp3"}) DateiSchreiben(o / n, kMp3);
    DateiSchreiben(o / "pl/liste.m3u", "#EXTM3U\r\nd.mp3\r\n" + o / "c.mp3" + "\r\n");

    Ergebnis e = Aufruf(o, {"--index", index, "add", o / "m", o / "c.mp3", o / "gibtsnicht.mp3"});
    ASSERT_EQ(e.rückgabe, 0) << e.fehler;
    EXPECT_EQ(e.aus, "3 Datei(en) hinzugefügt\n");
    const std::string gespeichert = DateiLesen(index);
    EXPECT_NE(gespeichert.find("|" + o / "m/a.mp3"), std::string::npos);
    EXPECT_LT(gespeichert.find(o / "m/a.mp3"), gespeichert.find(o / "m/sub/b.mp3"));
    EXPECT_EQ(Aufruf(o, {"--index", index, "show", "--count"}).aus, "DateiAnzahl=3\n");

    // Die Playliste bringt nur d.mp3 neu; c.mp3 steht schon drin.
    e = Aufruf(o, {"--index", index, "import", o / "pl/liste.m3u"});
    ASSERT_EQ(e.rückgabe, 0) << e.fehler;
    EXPECT_EQ(e.aus, "1 Datei(en) hinzugefügt\n");
    EXPECT_EQ(Aufruf(o, {"--index", index, "show", "--count"}).aus, "DateiAnzahl=4\n");
    EXPECT_EQ(Aufruf(o, {"--index", index, "import", o / "pl/fehlt.m3u"}).rückgabe, 1);
    EXPECT_EQ(Aufruf(o, {"--index", index, "import"}).rückgabe, 2);
    EXPECT_EQ(Aufruf(o, {"--index", index, "add"}).rückgabe, 2);

    // Nichts Neues: die Datei wird nicht neu geschrieben.
    const std::string vorher = DateiLesen(index);
    e = Aufruf(o, {"--index", index, "add", o / "pl/liste.m3u"});
    EXPECT_EQ(e.aus, "0 Datei(en) hinzugefügt\n");
    EXPECT_EQ(DateiLesen(index), vorher);

    e = Aufruf(o, {"--index", index, "types"});
    ASSERT_EQ(e.rückgabe, 0) << e.fehler;
    EXPECT_EQ(e.aus, "mp3=1\t110\nmp2=1\t110\nmp1=1\t110\nwma=1\t010\nwmf=1\t010\nwav=1\t010\ngif=0\t001\njpg=0\t001\n"
                     "bmp=0\t001\naac=1\t110\nvqf=1\t010\njpeg=0\t001\n*=0\t000\n");
    // Ein Index im neuesten Format ohne Tabelle zeigt keine; ein alter bekommt die Vorgaben.
    DateiSchreiben(o / "neu.kkt", "#TAG:kk102\r\n");
    EXPECT_EQ(Aufruf(o, {"--index", o / "neu.kkt", "types"}).aus, "");
    DateiSchreiben(o / "alt.kkt", "#TAG:kk101\r\n#OPT:VERWALTEN=ogg=1,010\r\n");
    EXPECT_EQ(Aufruf(o, {"--index", o / "alt.kkt", "types"}).aus, "ogg=1\t010\n");
    DateiSchreiben(o / "alt.kkt", "#TAG:kk101\r\n");
    EXPECT_EQ(Aufruf(o, {"--index", o / "alt.kkt", "types"}).aus.substr(0, 12), "mp3=1\t110\nmp");
}

TEST(CliAufnahme, Latin1DateinameBleibtSeineDatei) {
    TestOrdner o;
    const std::string index = o / "i.kkt";
    const std::string datei = o / "Lied_\xE4.mp3";  // kein UTF-8
    DateiSchreiben(datei, kMp3);
    Ergebnis e = Aufruf(o, {"--index", index, "add", datei});
    ASSERT_EQ(e.rückgabe, 0) << e.fehler;
    EXPECT_EQ(e.aus, "1 Datei(en) hinzugefügt\n");
    EXPECT_NE(DateiLesen(index).find("|" + datei), std::string::npos);

    // Laden, speichern, wieder laden: derselbe Pfad, Byte für Byte.
    ASSERT_EQ(Aufruf(o, {"--index", index, "save"}).rückgabe, 0);
    EXPECT_NE(DateiLesen(index).find("|" + datei), std::string::npos);
    e = Aufruf(o, {"--index", index, "add", datei});
    EXPECT_EQ(e.aus, "0 Datei(en) hinzugefügt\n");
    EXPECT_EQ(Aufruf(o, {"--index", index, "show", "--count"}).aus, "DateiAnzahl=1\n");
    e = Aufruf(o, {"--index", index, "search", "Lied_ä"});                   // gesucht wird im Text des Namens
    EXPECT_NE(e.aus.find("\t" + datei + "\n"), std::string::npos) << e.aus;  // Skripte bekommen die Bytes

    // Der Tag landet im Eintrag dieser Datei.
    e = Aufruf(o, {"--index", index, "tag", datei, "Mp3_ID3v1_Titel=Neu"});
    ASSERT_EQ(e.rückgabe, 0) << e.fehler;
    e = Aufruf(o, {"--index", index, "show", "--entry", "1"});
    EXPECT_NE(e.aus.find("\nDateiPfade=" + datei + "\n"), std::string::npos) << e.aus;
    EXPECT_NE(e.aus.find("\nMp3_ID3v1_Titel=Neu\n"), std::string::npos) << e.aus;
}
