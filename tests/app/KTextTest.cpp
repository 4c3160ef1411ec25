// KText: Inhalt, Vergleiche nach Inhalt, lange Texte, geteilte Griffe, Ablegen aus zwei Threads.
#include "app/DateiInfo.h"
#include "app/KText.h"

#include <gtest/gtest.h>

#include <cstring>
#include <sstream>
#include <thread>
#include <vector>

TEST(KText, LeerUndInhaltWieEinString) {
    KText t;
    EXPECT_TRUE(t.empty());
    EXPECT_EQ(t.Griff(), 0u);
    EXPECT_EQ(t.size(), 0u);
    EXPECT_STREQ(t.c_str(), "");
    t = std::string("");  // leerer Text kostet keinen Platz
    EXPECT_EQ(t.Griff(), 0u);

    t = "Motörhead";
    EXPECT_EQ(t.size(), 10u);
    EXPECT_STREQ(t.c_str(), "Motörhead");
    EXPECT_EQ(t[3], char(0xC3));
    EXPECT_EQ(t.front(), 'M');
    EXPECT_EQ(t.back(), 'd');
    EXPECT_EQ(t.substr(0, 3), "Mot");
    EXPECT_EQ(t.find("head"), 6u);
    EXPECT_TRUE(t.starts_with("Mot") && t.ends_with("head"));
    const std::string s = t;
    EXPECT_EQ(s, "Motörhead");

    // Bytes, die kein UTF-8 sind, und eingebettete Nullbytes bleiben, wie sie sind.
    const std::string roh("a\0b\xE4\xFF", 5);
    t = roh;
    EXPECT_EQ(t.size(), 5u);
    EXPECT_EQ(t.str(), roh);
    t.clear();
    EXPECT_TRUE(t.empty());
}

TEST(KText, VergleicheUndVerkettungNachInhalt) {
    KText a = "Nacht", b = std::string("Nacht"), c = "Nachts";
    EXPECT_TRUE(a == b);
    EXPECT_TRUE(a == "Nacht");
    EXPECT_TRUE(std::string("Nacht") == a);
    EXPECT_TRUE(a != c);
    EXPECT_TRUE(a < c);
    EXPECT_TRUE(c > "Nacht");
    EXPECT_EQ(a + " " + c, "Nacht Nachts");
    EXPECT_EQ("<" + a + '>', "<Nacht>");
    EXPECT_EQ(a + c, "NachtNachts");

    // Gleicher Inhalt mit verschiedenen Griffen (lang genug, dass nichts geteilt wird) ist gleich.
    const std::string lang(200, 'x');
    KText l1 = lang, l2 = lang;
    EXPECT_NE(l1.Griff(), l2.Griff());
    EXPECT_TRUE(l1 == l2);
    DateiInfo d1, d2;
    d1.Mp3_ID3v2_COMM = lang;
    d2.Mp3_ID3v2_COMM = lang;
    EXPECT_TRUE(d1 == d2);
    d2.Mp3_ID3v2_COMM += "y";
    EXPECT_FALSE(d1 == d2);

    std::ostringstream aus;
    aus << a;
    EXPECT_EQ(aus.str(), "Nacht");
}

TEST(KText, ÄndernLegtNeuAbUndAlteSichtBleibt) {
    KText t = "Regen";
    const std::string_view alt = t;
    KText kopie = t;
    t += " über allem";
    EXPECT_EQ(t, "Regen über allem");
    EXPECT_EQ(alt, "Regen");  // der alte Text liegt noch da
    EXPECT_EQ(kopie, "Regen");
    t.assign(3, 'z');
    EXPECT_EQ(t, "zzz");
    t.assign(std::string_view("abc"));
    EXPECT_EQ(t, "abc");
}

TEST(KText, LangeTexteÜberDieGrenzenDerKöpfeUndBlöcke) {
    for (size_t länge : {size_t(254), size_t(255), size_t(256), size_t(70'000), size_t(5'000'000)}) {
        std::string text(länge, 'a');
        for (size_t i = 0; i < länge; i += 997) text[i] = char('A' + i % 26);
        KText t = text;
        ASSERT_EQ(t.size(), länge);
        ASSERT_EQ(t.str(), text);
        ASSERT_EQ(t.c_str()[länge], '\0');
    }
    // Nach einem großen Text geht es im laufenden Block weiter.
    KText klein = "nach dem großen";
    EXPECT_EQ(klein, "nach dem großen");
}

TEST(KText, KurzeGleicheTexteTeilenDenGriff) {
    KText a = "2.3.0", b = std::string("2.3.0");
    EXPECT_EQ(a.Griff(), b.Griff());
    KText c = "2.4.0";
    EXPECT_NE(a.Griff(), c.Griff());
    EXPECT_EQ(a, "2.3.0");
    EXPECT_EQ(c, "2.4.0");
}

TEST(KText, ZweiThreadsLegenZugleichAb) {
    constexpr int kJeThread = 60'000;
    std::vector<KText> links(kJeThread), rechts(kJeThread);
    auto füllen = [](std::vector<KText>& ziel, char art) {
        for (int i = 0; i < kJeThread; ++i)
            ziel[size_t(i)] = std::string(1, art) + std::to_string(i) + std::string(size_t(i % 300), art);
    };
    std::thread t1(füllen, std::ref(links), 'L');
    std::thread t2(füllen, std::ref(rechts), 'R');
    t1.join();
    t2.join();
    for (int i = 0; i < kJeThread; ++i) {
        ASSERT_EQ(links[size_t(i)], std::string("L") + std::to_string(i) + std::string(size_t(i % 300), 'L'));
        ASSERT_EQ(rechts[size_t(i)], std::string("R") + std::to_string(i) + std::string(size_t(i % 300), 'R'));
    }
}

// Zurücksetzen (nur für Fuzz-Ziele) behält den laufenden Block: danach abgelegte Texte stimmen,
// auch lange in eigenen Blöcken. Im eigenen Prozess, weil es alle Texte des Prozesses ungültig macht.
TEST(KText, ZurücksetzenBehältEinenBlockUndLegtRichtigAb) {
    EXPECT_EXIT(
        {
            for (int i = 0; i < 3; ++i) {
                const KText kurz(std::string("Lauf ") + std::to_string(i));
                const KText lang(std::string(size_t(2) << 20, char('a' + i)));
                if (kurz.sicht() != "Lauf " + std::to_string(i) || lang.size() != (size_t(2) << 20) ||
                    lang[7] != 'a' + i)
                    std::exit(1);
                KTextSpeicherZurücksetzen();
                if (KTextSpeicherBytes() != (size_t(4) << 20)) std::exit(2);
            }
            const KText danach("Jahr 2024");
            std::exit(danach == std::string_view("Jahr 2024") && danach.Griff() != 0 ? 0 : 3);
        },
        ::testing::ExitedWithCode(0), "");
}
