#include "app/DateiInfo.h"
#include "support/Attrappen.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

TEST(DateiInfo, FelderInDeklarierterReihenfolge) {
    int n = 0;
    const DateiInfoFeld* f = DateiInfoFelder(n);
    ASSERT_EQ(n, 54);
    EXPECT_STREQ(f[0].name, "Mp3_ID3v1_TAG");
    EXPECT_STREQ(f[8].name, "Datei_Größe");
    EXPECT_STREQ(f[29].name, "Mp3_ID3v1_Status");
    EXPECT_STREQ(f[53].name, "Mp3_ID3v2_Weitere");
}

TEST(DateiInfo, FeldLesenUndSetzen) {
    DateiInfo d;
    std::string w;
    EXPECT_TRUE(DateiInfoFeldSetzen(d, "Mp3_ID3v1_Genre", "17"));
    EXPECT_EQ(d.Mp3_ID3v1_Genre, "\x11");
    EXPECT_TRUE(DateiInfoFeldLesen(d, "Mp3_ID3v1_Genre", w));
    EXPECT_EQ(w, "17");
    EXPECT_TRUE(DateiInfoFeldSetzen(d, "Mp3_ID3v1_Genre", "255"));
    EXPECT_TRUE(DateiInfoFeldLesen(d, "Mp3_ID3v1_Genre", w));
    EXPECT_EQ(w, "255");
    EXPECT_FALSE(DateiInfoFeldSetzen(d, "Mp3_ID3v1_Genre", "256"));

    EXPECT_TRUE(DateiInfoFeldSetzen(d, "Header_VBR", "1"));
    EXPECT_TRUE(d.Header_VBR);
    EXPECT_FALSE(DateiInfoFeldSetzen(d, "Header_VBR", "ja"));
    EXPECT_TRUE(DateiInfoFeldSetzen(d, "Datei_Größe", "-1"));
    EXPECT_EQ(d.Datei_Größe, -1);
    EXPECT_FALSE(DateiInfoFeldSetzen(d, "Datei_Typ", "40000"));  // Integer läuft über
    EXPECT_FALSE(DateiInfoFeldSetzen(d, "Mp3_ID3v1_Status", "300"));
    EXPECT_FALSE(DateiInfoFeldSetzen(d, "Gibtsnicht", "1"));
    EXPECT_TRUE(DateiInfoFeldSetzen(d, "Mp3_ID3v2_TIT2", "Lied"));
    EXPECT_TRUE(DateiInfoFeldLesen(d, "Mp3_ID3v2_TIT2", w));
    EXPECT_EQ(w, "Lied");
}

TEST(Attrappen, UngeplanteFrageScheitert) {
    TestUmgebung u;
    u.ui.antworten = {Meldung::Nein};
    EXPECT_EQ(u.k.ui.MeldungZeigen("Speichern?", Meldung::JaNeinAbbrechen), Meldung::Nein);
    EXPECT_EQ(u.k.ui.MeldungZeigen("Hinweis", Meldung::Information), Meldung::Ok);
    ASSERT_EQ(u.ui.meldungen.size(), 2u);
    EXPECT_EQ(u.ui.meldungen[0].schalter, 35);
    EXPECT_NONFATAL_FAILURE(u.k.ui.MeldungZeigen("Noch eine?", Meldung::JaNeinFrage), "Ungeplante Frage");
}

#include "media/Genres.h"

TEST(Genres, TabelleWieSieSteht) {
    EXPECT_EQ(GenreAnzahl(), 145);
    EXPECT_EQ(GenreName(0), "Blues");
    EXPECT_EQ(GenreName(40), "Alt. Rock");
    EXPECT_EQ(GenreName(142), "Dance Hall");
    EXPECT_EQ(GenreName(144), "Thrash Metal");
    EXPECT_EQ(GenreName(145), "");
    EXPECT_EQ(GenreName(255), "");
    EXPECT_EQ(GenreCode("Dance Hall"), 125);  // Suche von vorn
    EXPECT_EQ(GenreCode("Beat"), -1);
}
