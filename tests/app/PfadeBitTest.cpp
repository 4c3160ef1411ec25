#include "app/BitString.h"
#include "app/Pfade.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

TEST(Pfade, Zerlegen) {
    EXPECT_EQ(PfadZurückgeben("/Musik/Band/Lied.mp3"), "/Musik/Band");
    EXPECT_EQ(PfadZurückgeben("Lied.mp3"), "");
    EXPECT_EQ(DateinameAusPfad("/Musik/Band/Lied.mp3"), "Lied.mp3");
    EXPECT_EQ(DateinameAusPfad("Lied.mp3"), "Lied.mp3");
    EXPECT_EQ(DateinameAusPfad("/Musik/"), "");
    EXPECT_EQ(DateiEndung("/Musik/Lied.MP3"), ".MP3");
    EXPECT_EQ(DateiEndung("a.b/c"), "");
    EXPECT_EQ(DateiEndung("/Musik/Lied"), "");
    EXPECT_EQ(DateiEndung("/a/b.tar.gz"), ".gz");
    EXPECT_TRUE(IstVollerPfad("/a"));
    EXPECT_FALSE(IstVollerPfad("a/b"));
}

TEST(Pfade, DateisystemHilfen) {
    TestOrdner o;
    const std::string datei = o / "a.mp3";
    DateiSchreiben(datei, "123");
    EXPECT_TRUE(DoesExist(datei));
    EXPECT_FALSE(DoesExist(o.Pfad()));  // ein Ordner ist keine Datei
    EXPECT_TRUE(IstOrdner(o.Pfad()));
    EXPECT_FALSE(IstOrdner(datei));
    EXPECT_FALSE(IstOrdner(o / "fehlt"));
    EXPECT_EQ(DateiGrößeLesen(datei), 3);
    EXPECT_EQ(DateiGrößeLesen(o / "fehlt"), -1);

    chmod(datei.c_str(), 0444);  // schreibgeschützt wird trotzdem gelöscht
    EXPECT_TRUE(DateiLöschenEinfach(datei));
    EXPECT_FALSE(DoesExist(datei));
    EXPECT_TRUE(DateiLöschenEinfach(datei));  // schon weg: auch wahr
    EXPECT_FALSE(DateiLöschenEinfach(o.Pfad()));
}

TEST(BitString, Beispiele) {
    EXPECT_EQ(BitStringZuLong(""), 0);
    EXPECT_EQ(BitStringZuLong("101"), 5);
    EXPECT_EQ(BitStringZuLong("1x1"), 5);  // andere Zeichen zählen als 0
    EXPECT_EQ(BitStringZuLong("11111111111"), 2047);
    EXPECT_EQ(BitStringZuLong(std::string(31, '1')), 2147483647);
    int32_t z = 99;
    EXPECT_FALSE(BitStringZuLong("1" + std::string(31, '0'), z));  // 2^31 läuft über
    EXPECT_EQ(z, 99);
    EXPECT_DOUBLE_EQ(BitStringZuDouble(std::string(32, '1')), 4294967295.0);

    EXPECT_EQ(BytesZuBitString(std::string("\xFF\xFB", 2)), "1111111111111011");
    EXPECT_EQ(BytesZuBitString(""), "");
    EXPECT_EQ(ZahlZuBitString(5, 1), "00000101");
    EXPECT_EQ(ZahlZuBitString(511, 2), "0000000111111111");
    EXPECT_EQ(ZahlZuBitString(5, 0), "");
    // 256 passt nicht in ein Byte: keine Sättigung, alle Stellen bleiben 0.
    EXPECT_EQ(ZahlZuBitString(256, 1), "00000000");
    // 300 in einem Byte: 300/128 ist 2, nicht 1 → "0", dann bleibt der Rest zu groß ...
    EXPECT_EQ(ZahlZuBitString(300, 1), "00000000");
    EXPECT_EQ(ZahlZuBitString(200, 1), "11001000");
}

TEST(BitString, Wahrheitswerte) {
    EXPECT_EQ(WahrheitswertZuZahl(0.0), 0);
    EXPECT_EQ(WahrheitswertZuZahl(-1.0), 1);
    EXPECT_EQ(WahrheitswertZuZahl(true), 1);
    EXPECT_TRUE(ZahlZuWahrheitswert(-1));
    EXPECT_TRUE(ZahlZuWahrheitswert(7));
    EXPECT_FALSE(ZahlZuWahrheitswert(0));
    EXPECT_EQ(JaNeinText(true), "Ja");
    EXPECT_EQ(JaNeinText(false), "Nein");
    EXPECT_EQ(JaNeinText("50/15"), "50/15");
}
