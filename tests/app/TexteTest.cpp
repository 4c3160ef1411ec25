#include "app/Texte.h"

#include <gtest/gtest.h>

TEST(Texte, Windows1252HinUndZurück) {
    // Alle Bytes 0x80–0xFF, auch die fünf unbelegten, kommen unverändert zurück.
    std::string alle;
    for (int b = 0x20; b <= 0xFF; ++b) alle.push_back(static_cast<char>(b));
    std::string utf8 = Windows1252ZuUtf8(alle);
    EXPECT_TRUE(IstGültigesUtf8(utf8));
    EXPECT_EQ(Utf8ZuWindows1252(utf8), alle);
    EXPECT_EQ(Windows1252ZuUtf8("\x80"), "€");
    EXPECT_EQ(Windows1252ZuUtf8("\x9f"), "Ÿ");
    EXPECT_EQ(Windows1252ZuUtf8("\xe4"), "ä");
    EXPECT_EQ(Utf8ZuWindows1252("€ä"), "\x80\xe4");
    EXPECT_EQ(Utf8ZuWindows1252("日本"), "??");
}

TEST(Texte, DateiTextNimmtUtf8OderWindows1252) {
    EXPECT_EQ(DateiTextLesen("K\xc3\xa4se"), "Käse");  // gültiges UTF-8 bleibt
    EXPECT_EQ(DateiTextLesen("K\xe4se"), "Käse");      // sonst Windows-1252
    EXPECT_FALSE(IstGültigesUtf8("\xc3"));
    EXPECT_FALSE(IstGültigesUtf8("\xed\xa0\x80"));  // Ersatzzeichenbereich ist kein UTF-8
}

TEST(Texte, GroßKleinNachUnicode) {
    EXPECT_EQ(Groß("äöü straße"), "ÄÖÜ STRAßE");  // ß bleibt ß
    EXPECT_EQ(Klein("ÄÖÜ ÉCOLE"), "äöü école");
    EXPECT_EQ(Groß("\xff"), "\xff");  // ungültige Bytes gehen unverändert durch
    EXPECT_EQ(ZeichenAnzahl("äb"), 2);
}

TEST(Texte, VergleicheOhneGroßKlein) {
    EXPECT_TRUE(TexteGleich("ä", "Ä"));
    EXPECT_TRUE(TexteGleich("", ""));
    EXPECT_FALSE(TexteGleich("abc", "abcd"));
    EXPECT_FALSE(TexteGleich("", "a"));
    EXPECT_TRUE(NamenGleich("/Musik/Ärger.MP3", "/musik/ärger.mp3"));
    EXPECT_FALSE(NamenGleich("/Musik/a.mp3", "/Musik/a.mp"));

    EXPECT_EQ(InStrText(1, "Die Ärzte", "ärz"), 5);
    EXPECT_EQ(InStrText(6, "Die Ärzte", "ärz"), 0);
    EXPECT_EQ(InStrText(1, "abc", ""), 1);
    EXPECT_EQ(InStrText(5, "abc", "a"), 0);
    EXPECT_EQ(InStr(1, "abcabc", "C"), 0);
    EXPECT_EQ(InStr(4, "abcabc", "c"), 6);
    EXPECT_EQ(InStrRev("a/b/c", "/"), 4);

    // Der Vorfilter für BeginntMitText: gleich, wo der Vergleich gleich ist, -1 nur für leer.
    EXPECT_EQ(ErstesZeichenKlein("Ärger"), ErstesZeichenKlein("ä"));
    EXPECT_EQ(ErstesZeichenKlein("Abba"), 'a');
    EXPECT_EQ(ErstesZeichenKlein(""), -1);
    EXPECT_NE(ErstesZeichenKlein("\xFF"), -1);
    EXPECT_NE(ErstesZeichenKlein("\xFF"), ErstesZeichenKlein("\xFE"));
}

TEST(Texte, SchneidenUndErsetzen) {
    EXPECT_EQ(Trim("  a b  "), "a b");
    EXPECT_EQ(Trim("\ta "), "\ta");  // nur Leerzeichen
    EXPECT_EQ(Mid("abcdef", 2, 3), "bcd");
    EXPECT_EQ(Mid("abc", 4), "");
    EXPECT_EQ(Mid("abc", 2), "bc");
    EXPECT_EQ(Left("abc", 5), "abc");
    EXPECT_EQ(Right("abc", 2), "bc");
    EXPECT_EQ(Ersetzen("a-b-c", "-", "--"), "a--b--c");
}

TEST(Texte, TextDatensätzeLesen) {
    EinsBasiert<std::string> e;
    EXPECT_FALSE(TextDatensätzeLesen("", " ", 1, -1, e));
    ASSERT_EQ(e.UBound(), 1);
    EXPECT_EQ(e[1], "");

    EXPECT_TRUE(TextDatensätzeLesen("ein tag", " ", 1, -1, e));
    ASSERT_EQ(e.UBound(), 2);
    EXPECT_EQ(e[2], "tag");

    // Doppelte und abschließende Trennzeichen geben leere Teile.
    EXPECT_TRUE(TextDatensätzeLesen("a  b ", " ", 1, -1, e));
    ASSERT_EQ(e.UBound(), 4);
    EXPECT_EQ(e[2], "");
    EXPECT_EQ(e[4], "");

    EXPECT_TRUE(TextDatensätzeLesen("a,b,c", ",", 1, 3, e));
    EXPECT_FALSE(TextDatensätzeLesen("a,b,c", ",", 1, 2, e));
    EXPECT_EQ(e.UBound(), 3);  // die Teile stehen trotzdem da
    EXPECT_TRUE(TextDatensätzeLesen("xx=a==b", "==", 4, -1, e));
    ASSERT_EQ(e.UBound(), 2);
    EXPECT_EQ(e[1], "a");
    EXPECT_EQ(e[2], "b");
}

TEST(Texte, TextZerlegenUndNull) {
    EinsBasiert<std::string> e;
    EXPECT_FALSE(TextZerlegen("", 1, 3, ",", e));
    EXPECT_TRUE(TextZerlegen("1=0=0,2=0=0,", 1, 3, ",", e));
    ASSERT_EQ(e.UBound(), 3);
    EXPECT_EQ(e[3], "");
    EXPECT_TRUE(TextZerlegen("#OPT:SYNC=a,1,b", 11, 3, ",", e));
    EXPECT_EQ(e[1], "a");

    EXPECT_EQ(NullAbschneiden(std::string("ab\0cd\0", 6)), "ab");
    EXPECT_EQ(NullAbschneiden(std::string("ab\0cd", 5)), std::string("ab\0cd", 5));  // endet nicht auf NUL
}

TEST(Texte, Utf16ZuUtf8) {
    using namespace std::string_literals;
    EXPECT_EQ(Utf16ZuUtf8("\xFF\xFE"
                          "A\0\xE4\0"s,
                          false),
              "Aä");
    EXPECT_EQ(Utf16ZuUtf8("\xFE\xFF\0A\0\xE4"s, false), "Aä");  // vertauschtes BOM wechselt die Reihenfolge
    EXPECT_EQ(Utf16ZuUtf8("\0A\x20\xAC"s, true), "A€");
    EXPECT_EQ(Utf16ZuUtf8("\x3D\xD8\x00\xDE"s, false), "\xF0\x9F\x98\x80");  // Ersatzpaar
    EXPECT_EQ(Utf16ZuUtf8("\x3D\xD8"
                          "A\0"s,
                          false),
              "\xEF\xBF\xBD"
              "A");                               // einzelne Hälfte
    EXPECT_EQ(Utf16ZuUtf8("A\0B"s, false), "A");  // Restbyte entfällt
}

TEST(Texte, NamenStreuwertFolgtNamenGleich) {
    // Paare, die NamenGleich gleich nennt, an allen Stellen der Achter-Blöcke; das Kelvin-Zeichen
    // wird zu ASCII "k" und muss wie eines zählen.
    const std::vector<std::pair<std::string, std::string>> gleich = {
        {"/Musik/Die Ärzte/Lied.MP3", "/musik/die ärzte/lied.mp3"},
        {"\u212Aabcdefgh", "kABCDEFGH"},
        {"abcdefg\u212Aabcdefgh", "ABCDEFGKabcdefgh"},
        {"abc\xFF"
         "defghijk",
         "ABC\xFF"
         "DEFGHIJK"},
        {"", ""}};
    for (const auto& [a, b] : gleich) {
        ASSERT_TRUE(NamenGleich(a, b)) << a;
        EXPECT_EQ(NamenStreuwert(a), NamenStreuwert(b)) << a;
    }
    EXPECT_NE(NamenStreuwert("/musik/a.mp3"), NamenStreuwert("/musik/b.mp3"));
    EXPECT_NE(NamenStreuwert("abcdefgh"), NamenStreuwert("abcdefghi"));
}
