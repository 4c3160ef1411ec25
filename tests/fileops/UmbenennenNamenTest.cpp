// Neue Namen der Umbenennung: Zähler, fortlaufende Namen, Schreibweise, Endungen, Muster.
#include "app/Kartei.h"
#include "app/Pfade.h"
#include "fileops/FortlaufendeNamen.h"
#include "fileops/UmbenennenNamen.h"
#include "support/Attrappen.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>

TEST(UmbenennenNamen, ZuNaechsterZahl) {
    EXPECT_EQ(ZuNächsterZahl("5"), "6");
    EXPECT_EQ(ZuNächsterZahl("007"), "8");  // keine führenden Nullen
    EXPECT_EQ(ZuNächsterZahl("-1"), "0");
    EXPECT_EQ(ZuNächsterZahl("2147483646"), "2147483647");
    EXPECT_EQ(ZuNächsterZahl("2147483647"), "");  // passt nicht mehr in 32 Bit
    EXPECT_EQ(ZuNächsterZahl("abc"), "");
    EXPECT_EQ(ZuNächsterZahl(""), "");
}

TEST(UmbenennenNamen, FortlaufendSuchtDieErsteFreieZahl) {
    TestOrdner o;
    DateiSchreiben(o / "Lied5.mp3", "x");
    DateiSchreiben(o / "Lied6.mp3", "x");
    // Zähler 5, belegt sind 5 und 6: die 7.
    EXPECT_EQ(FortlaufendenDateinamen(o / "alt.mp3", "Lied", "5", ""), o / "Lied7.mp3");
    // Die Endung kommt vom alten Pfad, basis2 davor; ohne Endung bleibt nichts dahinter.
    EXPECT_EQ(FortlaufendenDateinamen(o / "alt.mp3", "A-", "1", "-B"), o / "A-1-B.mp3");
    EXPECT_EQ(FortlaufendenDateinamen(o / "ohne", "Lied", "5", ""), o / "Lied5");
    // Ein Ordner gleichen Namens ist keine Datei und belegt die Zahl nicht.
    ASSERT_EQ(::mkdir((o / "Ordner1.mp3").c_str(), 0755), 0);
    EXPECT_EQ(FortlaufendenDateinamen(o / "x.mp3", "Ordner", "1", ""), o / "Ordner1.mp3");
}

TEST(UmbenennenNamen, FortlaufendGibtNachZehntausendAuf) {
    TestOrdner o("/dev/shm");
    for (int i = 0; i <= 10000; ++i) DateiSchreiben(o / ("n" + std::to_string(i) + ".mp3"), "");
    // 0 bis 10.000 belegt: nach 10.000 Schritten ist Schluss.
    EXPECT_EQ(FortlaufendenDateinamen(o / "a.mp3", "n", "0", ""), "");
    ASSERT_TRUE(DateiLöschenEinfach(o / "n10000.mp3"));
    EXPECT_EQ(FortlaufendenDateinamen(o / "a.mp3", "n", "0", ""), o / "n10000.mp3");
    // Kein Start als Zahl und der Name belegt: die nächste "Zahl" ist leer.
    DateiSchreiben(o / "nx.mp3", "");
    EXPECT_EQ(FortlaufendenDateinamen(o / "a.mp3", "n", "x", ""), o / "n.mp3");
}

TEST(UmbenennenNamen, GrossKleinNachZeichen) {
    // Nach einem Punkt groß, in beiden Arten.
    EXPECT_EQ(GroßKlein("dr.dre", true), "Dr.Dre");
    EXPECT_EQ(GroßKlein("dr.dre", false), "Dr.Dre");
    // Nach einem Leerzeichen nur, wenn nicht nur der erste Buchstabe gemeint ist.
    EXPECT_EQ(GroßKlein("DIE ÄRZTE - schrei nach liebe", false), "Die Ärzte - Schrei Nach Liebe");
    EXPECT_EQ(GroßKlein("DIE ÄRZTE - schrei nach liebe", true), "Die ärzte - schrei nach liebe");
    // Nach einem Unterstrich bleibt es klein, nach Klammern wird es groß.
    EXPECT_EQ(GroßKlein("a_b_C", false), "A_b_c");
    EXPECT_EQ(GroßKlein("(live)[remix]{x}#1", true), "(Live)[Remix]{X}#1");
    EXPECT_EQ(GroßKlein("so§ja;nein,ok'dann", false), "So§ja;nein,ok'dann");
    EXPECT_EQ(GroßKlein("über", true), "Über");
    EXPECT_EQ(GroßKlein("", false), "");
}

TEST(UmbenennenNamen, SchreibweiseEndungUndErsetzen) {
    EXPECT_EQ(SchreibweiseImPfad("/m/Mein Lied.MP3", 1), "/m/mein lied.MP3");  // Endung bleibt
    EXPECT_EQ(SchreibweiseImPfad("/m/Mein Lied.mp3", 2), "/m/MEIN LIED.mp3");
    EXPECT_EQ(SchreibweiseImPfad("/m/mein lied.mp3", 3), "/m/Mein lied.mp3");
    EXPECT_EQ(SchreibweiseImPfad("/m/mein lied.mp3", 4), "/m/Mein Lied.mp3");
    // Zwei Punkte: die Endung ist der Teil hinter dem letzten.
    EXPECT_EQ(SchreibweiseImPfad("/m/a.b.c", 2), "/m/A.B.c");
    EXPECT_EQ(EndungÄndern("/m/a.b.c", "ogg"), "/m/a.b.ogg");
    EXPECT_EQ(EndungÄndern("/m/ohne", "mp3"), "/m/ohne.mp3");
    EXPECT_EQ(EndungÄndern("/m.d/ohne", "mp3"), "/m.d/ohne.mp3");
    EXPECT_EQ(EndungÄndern("/m/a.mp3", ".ogg"), "/m/a..ogg");              // der Punkt der Eingabe bleibt
    EXPECT_EQ(ZeichenErsetzen("/m/a_b_A.mp3", "a", "x"), "/m/x_b_A.mp3");  // Groß/Klein zählt
    EXPECT_EQ(ZeichenErsetzen("/m/a_b.mp3", "_", "/"), "/m/a/b.mp3");      // "/" macht Ordner
    EXPECT_EQ(ZeichenErsetzen("/m/mp3.mp3", "mp3", "ogg"), "/m/ogg.mp3");
}

TEST(UmbenennenNamen, NachFeldernRelativOderVoll) {
    TestUmgebung u;
    auto& k = u.k;
    k.DateiPfade.ReDim(1);
    k.DateiDaten.ReDim(1);
    k.DateiTreffer.ReDim(1);
    k.DateiAnzahl = 1;
    k.DateiPfade[1] = "/musik/alt/x.mp3";
    k.DateiDaten[1].Mp3_ID3v1_Interpret = "Queen";
    k.DateiDaten[1].Mp3_ID3v1_Titel = "Bicycle?";
    k.DateiDaten[1].Mp3_ID3v1_Status = 1;
    EXPECT_EQ(NachFeldernBenennen(k, 1, k.DateiPfade[1], "%Interpret% - %Titel%"), "/musik/alt/Queen - Bicycle?.mp3");
    EXPECT_EQ(NachFeldernBenennen(k, 1, k.DateiPfade[1], "/neu/%Interpret%/%Titel%"), "/neu/Queen/Bicycle?.mp3");
    EXPECT_EQ(NachFeldernBenennen(k, 1, k.DateiPfade[1], "%Interpret%/100% %Titel"),
              "/musik/alt/Queen/100% %Titel.mp3");
}
