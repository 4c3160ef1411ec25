// Die Befehle move, copy, propose, delete und sync als Ganzes.
#include "app/Pfade.h"
#include "support/CliAufruf.h"
#include "support/MpegDaten.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>

#include <cstdio>

namespace {
const std::string kMp3 = mpeg::Frame(mpeg::Kopf{}) + mpeg::Füllung(1000);
const std::string kMitTag = kMp3 + mpeg::Id3v1("Titel", "Queen", "Jazz", "1978", "", 1, 17);

CliErgebnis Aufruf(const TestOrdner& o, std::vector<std::string> argumente) {
    return CliMitIndex(KK_CLI, o, std::move(argumente));
}

// Die Pfade aller Einträge, je einer mit "\n".
std::string Pfade(const TestOrdner& o) {
    const std::string aus = Aufruf(o, {"show"}).aus;
    std::string pfade;
    for (size_t p = aus.find("DateiPfade="); p != std::string::npos; p = aus.find("DateiPfade=", p + 1))
        pfade += aus.substr(p + 11, aus.find('\n', p) - p - 10);
    return pfade;
}
}  // namespace

TEST(CliDatei, MoveCopyPropose) {
    TestOrdner o;
    DateiSchreiben(o / "neu/x.mp3", kMitTag);
    DateiSchreiben(o / "Rock/Queen/a.mp3", kMp3);
    DateiSchreiben(o / "Pop/d.mp3", kMp3);
    ASSERT_EQ(Aufruf(o, {"add", o / "neu", o / "Rock", o / "Pop"}).rückgabe, 0);

    CliErgebnis e = Aufruf(o, {"propose", "--entry", "1"});
    ASSERT_EQ(e.rückgabe, 0) << e.fehler;
    EXPECT_EQ(e.aus, "Ordner=" + o / "neu\nOrdner=" + o / "Rock/Queen\n");

    e = Aufruf(o, {"copy", o / "kopie", "--entry", "2"});
    ASSERT_EQ(e.rückgabe, 0) << e.fehler;
    EXPECT_EQ(e.aus, "Erfolgreich=1\nFehlgeschlagen=0\nÜbersprungen=0\nAbgebrochen=0\n");
    EXPECT_EQ(DateiLesen(o / "kopie/a.mp3"), kMp3);

    e = Aufruf(o, {"move", o / "ziel", "--entry", "3", "--entry", "1"});
    ASSERT_EQ(e.rückgabe, 0) << e.fehler;
    EXPECT_EQ(e.aus, "Erfolgreich=2\nFehlgeschlagen=0\nÜbersprungen=0\nAbgebrochen=0\n");
    EXPECT_EQ(Pfade(o), o / "ziel/x.mp3\n" + o / "Rock/Queen/a.mp3\n" + o / "ziel/d.mp3\n");

    // Ziel besteht: ohne --yes abbrechen (Rückgabe 1, nichts verändert), mit --yes umbenennen.
    DateiSchreiben(o / "ziel2/a.mp3", "anders");
    e = Aufruf(o, {"move", o / "ziel2", "--entry", "2"});
    EXPECT_EQ(e.rückgabe, 1);
    EXPECT_EQ(e.aus, "Erfolgreich=0\nFehlgeschlagen=1\nÜbersprungen=0\nAbgebrochen=0\n");
    EXPECT_EQ(DateiLesen(o / "Rock/Queen/a.mp3"), kMp3);
    e = Aufruf(o, {"--yes", "move", o / "ziel2", "--entry", "2"});
    ASSERT_EQ(e.rückgabe, 0) << e.fehler;
    EXPECT_EQ(DateiLesen(o / "ziel2/a-0.mp3"), kMp3);
    EXPECT_EQ(DateiLesen(o / "ziel2/a.mp3"), "anders");

    EXPECT_EQ(Aufruf(o, {"move"}).rückgabe, 2);
    EXPECT_EQ(Aufruf(o, {"copy", "a", "b"}).rückgabe, 2);
    EXPECT_EQ(Aufruf(o, {"propose", "x"}).rückgabe, 2);
    EXPECT_EQ(Aufruf(o, {"propose", "--entry", "9"}).rückgabe, 1);
}

TEST(CliDatei, DeleteUndSync) {
    TestOrdner o;
    for (const char* n : {"m/a.mp3", "m/b.mp3", "m/c.mp3", "m/d.mp3"}) DateiSchreiben(o / n, kMp3);
    ASSERT_EQ(Aufruf(o, {"add", o / "m"}).rückgabe, 0);

    EXPECT_EQ(Aufruf(o, {"delete", "--entry", "1"}).rückgabe, 2);
    EXPECT_EQ(Aufruf(o, {"delete", "--trash", "--permanent"}).rückgabe, 2);

    // Endgültig fragt: ohne --yes bleibt alles.
    CliErgebnis e = Aufruf(o, {"delete", "--permanent", "--entry", "1"});
    EXPECT_EQ(e.rückgabe, 1);
    EXPECT_EQ(e.aus, "Entfernt=0\nBehalten=1\n");
    EXPECT_NE(e.fehler.find("1 Datei(en) vom Datenträger löschen?"), std::string::npos);
    e = Aufruf(o, {"--yes", "delete", "--permanent", "--entry", "1"});
    ASSERT_EQ(e.rückgabe, 0) << e.fehler;
    EXPECT_EQ(e.aus, "Entfernt=1\nBehalten=0\n");
    EXPECT_FALSE(DoesExist(o / "m/a.mp3"));

    e = Aufruf(o, {"delete", "--index-only", "--entry", "1"});
    ASSERT_EQ(e.rückgabe, 0) << e.fehler;
    EXPECT_EQ(e.aus, "Entfernt=1\nBehalten=0\n");
    EXPECT_TRUE(DoesExist(o / "m/b.mp3"));
    EXPECT_EQ(Pfade(o), o / "m/c.mp3\n" + o / "m/d.mp3\n");

    // sync ohne Abgleich-Ordner: die Meldung, dann fehlende Dateien entfernen.
    std::remove((o / "m/c.mp3").c_str());
    e = Aufruf(o, {"sync"});
    ASSERT_EQ(e.rückgabe, 0) << e.fehler;
    EXPECT_EQ(e.aus, "1 Datei(en) entfernt, 0 Datei(en) hinzugefügt\n");
    EXPECT_NE(e.fehler.find("Sie haben jedoch noch keine Ordner zum Synchronisieren angegeben."), std::string::npos);
    EXPECT_EQ(Pfade(o), o / "m/d.mp3\n");
    EXPECT_EQ(Aufruf(o, {"sync", "x"}).rückgabe, 2);
}
