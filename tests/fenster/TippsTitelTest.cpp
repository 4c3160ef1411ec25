// Hinweise, Willkommen und die Titel-Animation des Hauptfensters.
#include "shell/Tipps.h"
#include "shell/TitelNachricht.h"
#include "support/Attrappen.h"

#include <gtest/gtest.h>

TEST(Tipps, ZweiundzwanzigTexteUndBlätternImKreis) {
    TestUmgebung u;
    ASSERT_EQ(TippsAnzahl(), 22);
    EXPECT_EQ(TippsTexte(20), "Nutzen Sie Tastenkombinationen!\r\n[STRG+A] markiert alle Dateien, [ENTF] entfernt "
                              "einen Index-Eintrag.");
    const std::string ende = "Diese Datei können Sie dann auch drucken";  // ohne Punkt
    EXPECT_EQ(TippsTexte(13).substr(TippsTexte(13).size() - ende.size()), ende);
    EXPECT_TRUE(TippsTexte(0).empty());
    EXPECT_TRUE(TippsTexte(23).empty());
    for (int32_t i = 1; i <= 22; ++i) EXPECT_FALSE(TippsTexte(i).empty()) << i;
    EXPECT_FALSE(WillkommenText().empty());

    EXPECT_EQ(TippVor(u.k, 22), 1);
    EXPECT_EQ(u.k.E.TippsAktueller, 1);
    EXPECT_EQ(TippVor(u.k, 5), 6);
    EXPECT_EQ(TippZurück(u.k, 1), 22);
    EXPECT_EQ(u.k.E.TippsAktueller, 22);
    EXPECT_EQ(TippZurück(u.k, 7), 6);
    EXPECT_EQ(u.k.E.TippsAktueller, 6);
}

TEST(Tipps, SchließenMitUndOhneWiederZeigen) {
    TestUmgebung u;
    TippsSchließen(u.k, 9, true);
    EXPECT_EQ(u.k.E.TippsAktueller, 9);
    EXPECT_TRUE(u.ui.meldungen.empty());
    TippsSchließen(u.k, 9, false);
    EXPECT_EQ(u.k.E.TippsAktueller, 0);
    ASSERT_EQ(u.ui.meldungen.size(), 1u);
    EXPECT_EQ(u.ui.meldungen[0].schalter, 64);
    EXPECT_EQ(u.ui.meldungen[0].text, "Wenn Sie dieses Fenster wieder sehen möchten, können Sie es in den "
                                      "'Optionen' wieder aktivieren.");
}

TEST(TitelNachricht, MitVerzögerungWartenTippenHaltenZurück) {
    TitelAnimation a;
    auto s = TitelNachrichtStarten(a, "Größe", 750);
    EXPECT_TRUE(s.normalerTitel);
    EXPECT_EQ(s.timer2Ms, 750);
    EXPECT_EQ(s.timer1Ms, 0);
    s = TitelTimer2(a);
    EXPECT_EQ(s.timer1Ms, 15);
    EXPECT_EQ(s.timer2Ms, 0);
    s = TitelTimer1(a, 15);
    EXPECT_EQ(*s.titel, "Gr");
    s = TitelTimer1(a, 15);
    EXPECT_EQ(*s.titel, "Größ");  // Zeichen, nicht Bytes: kein halber Umlaut
    EXPECT_EQ(s.timer1Ms, 15);
    s = TitelTimer1(a, 15);  // 6 >= 5 Zeichen: ganz, dann halten
    EXPECT_EQ(*s.titel, "Größe");
    EXPECT_EQ(s.timer1Ms, 2500);
    s = TitelTimer1(a, 2500);
    EXPECT_TRUE(s.normalerTitel);
    EXPECT_EQ(s.timer1Ms, 0);
    EXPECT_FALSE(s.titel);
}

TEST(TitelNachricht, OhneVerzögerungSofortUndNormalerTitel) {
    TitelAnimation a;
    auto s = TitelNachrichtStarten(a, "ab", 0);
    EXPECT_FALSE(s.normalerTitel);  // der alte Titel bleibt, bis getippt wird
    EXPECT_EQ(s.timer1Ms, 15);
    EXPECT_EQ(s.timer2Ms, 0);
    s = TitelTimer1(a, 15);
    EXPECT_EQ(*s.titel, "ab");
    EXPECT_EQ(s.timer1Ms, 2500);
    // Ein neuer Text mitten im Halten beginnt von vorn.
    s = TitelNachrichtStarten(a, "xyz", 0);
    EXPECT_EQ(a.TitelPosition, 0);
    EXPECT_EQ(*TitelTimer1(a, 15).titel, "xy");
    EXPECT_EQ(NormalerTitel("/home/a/Musik.kkt"), "KlangKartei 1.0 - Musik.kkt");
    EXPECT_EQ(NormalerTitel(""), "KlangKartei 1.0");
}
