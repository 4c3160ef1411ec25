// Die nummerierten Listen: Lesen bis zur ersten Lücke, Speichern mit Löschen der Überzähligen.
#include "settings/EinstellungenSpeicher.h"
#include "settings/EinstellungenTabelle.h"
#include "support/Attrappen.h"

#include <gtest/gtest.h>

namespace {
RegistrierungsWert Text(const std::string& t) { return RegistrierungsWert{false, t, 0}; }
RegistrierungsWert Zahl(int32_t z) { return RegistrierungsWert{true, {}, z}; }

std::vector<std::string> Namen(const TestRegistrierung& r, const std::string& stamm) {
    std::vector<std::string> namen;
    for (const auto& [name, w] : r.werte)
        if (name.rfind(stamm, 0) == 0 && name != stamm + "Leer") namen.push_back(name);
    return namen;
}
}  // namespace

TEST(EinstellungsListen, GeschrumpfteListeHinterlässtKeineHöherenNummern) {
    TestUmgebung u;
    auto& w = u.registrierung.werte;
    w["AutoTagLeer"] = Zahl(0);
    for (int i = 1; i <= 5; ++i) w["AutoTagFormate" + std::to_string(i)] = Text("/%Titel% " + std::to_string(i));
    w["AutoTagFormate7"] = Text("hinter der Lücke");
    EinstellungenLesen(u.k);
    ASSERT_EQ(u.k.E.AutoTagFormate.UBound(), 5);  // Lesen endet an der ersten Lücke
    EXPECT_EQ(u.k.E.AutoTagFormate[5], "/%Titel% 5");

    u.k.E.AutoTagFormate.ReDimPreserve(3);
    EinstellungenSpeichern(u.k);
    EXPECT_EQ(Namen(u.registrierung, "AutoTagFormate"),
              (std::vector<std::string>{"AutoTagFormate1", "AutoTagFormate2", "AutoTagFormate3", "AutoTagFormate7"}));
    EXPECT_EQ(w["AutoTagFormate3"].text, "/%Titel% 3");
}

TEST(EinstellungsListen, AlsLeerMarkierteListeWirdGelöschtUndNichtGeschrieben) {
    TestUmgebung u;
    auto& w = u.registrierung.werte;
    w["AutoTagAusschlußLeer"] = Zahl(0);
    w["AutoTagAusschluß1"] = Text("live");
    w["AutoTagAusschluß2"] = Text("remix");
    EinstellungenLesen(u.k);
    ASSERT_EQ(u.k.E.AutoTagAusschluß.UBound(), 2);

    u.k.E.AutoTagAusschlußLeer = 1;
    EinstellungenSpeichern(u.k);
    EXPECT_TRUE(Namen(u.registrierung, "AutoTagAusschluß").empty());
    EXPECT_EQ(w["AutoTagAusschlußLeer"].zahl, 1);

    EinstellungenLesen(u.k);
    EXPECT_EQ(u.k.E.AutoTagAusschluß.Vektor(), std::vector<std::string>{""});
}

TEST(EinstellungsListen, ZustandEntscheidetÜberVorgabenLeereUndGelesenes) {
    struct Fall {
        int16_t zustand;
        bool ersterWertDa;
        int32_t formate;        // erwartete Länge der Formatliste
        int16_t formatZustand;  // danach
        int16_t ausschlussZustand;
    };
    for (const Fall& f : {Fall{-1, true, 23, 0, 1}, Fall{1, true, 1, 1, 1}, Fall{0, true, 1, 0, 0},
                          Fall{0, false, 1, 1, 1}, Fall{7, true, 23, 0, 1}}) {
        TestUmgebung u;
        auto& w = u.registrierung.werte;
        w["AutoTagLeer"] = Zahl(f.zustand);
        w["AutoTagAusschlußLeer"] = Zahl(f.zustand);
        if (f.ersterWertDa) {
            w["AutoTagFormate1"] = Text("%Automatik%");
            w["AutoTagAusschluß1"] = Zahl(1999);  // von Hand als Zahl eingetragen: ihr Text
        }
        EinstellungenLesen(u.k);
        SCOPED_TRACE(testing::Message() << "Zustand " << f.zustand << (f.ersterWertDa ? " mit Wert" : " ohne Wert"));
        EXPECT_EQ(u.k.E.AutoTagFormate.UBound(), f.formate);
        EXPECT_EQ(u.k.E.AutoTagLeer, f.formatZustand);
        EXPECT_EQ(u.k.E.AutoTagAusschlußLeer, f.ausschlussZustand);
        ASSERT_EQ(u.k.E.AutoTagAusschluß.UBound(), 1);
        EXPECT_EQ(u.k.E.AutoTagAusschluß[1], f.ausschlussZustand == 0 ? "1999" : "");
        if (f.zustand == 0 && f.ersterWertDa) {
            EXPECT_EQ(u.k.E.AutoTagFormate[1], "%Automatik%");
        }
    }
}

TEST(EinstellungsListen, ListenwerteUndTabellennamenWerdenErkannt) {
    auto w = ListenWertFinden("AutoTagFormate12");
    ASSERT_TRUE(w);
    EXPECT_STREQ(w->liste->name, "AutoTagFormate");
    EXPECT_EQ(w->nummer, 12);
    EXPECT_TRUE(ListenWertFinden("autotagausschluß3"));
    for (const char* kein :
         {"AutoTagFormate", "AutoTagFormate0", "AutoTagFormate01", "AutoTagFormate+1", "AutoTagFormate-1",
          "AutoTagFormate1x", "AutoTagAusschlußLeer", "AutoTagFormate99999999999"})
        EXPECT_FALSE(ListenWertFinden(kein)) << kein;

    const auto* e = EinstellungFinden("winamplautstärke");
    ASSERT_NE(e, nullptr);
    EXPECT_STREQ(e->name, "WinampLautstärke");
    EXPECT_EQ(EinstellungFinden("Lautstärke"), nullptr);

    TestUmgebung u;
    std::string fehler;
    EXPECT_FALSE(EinstellungAusText(u.k, *e, "32768", fehler));
    EXPECT_EQ(fehler, "Der Wert '32768' ist keine ganze Zahl zwischen -32768 und 32767.");
    EXPECT_FALSE(EinstellungAusText(u.k, *e, "1,5", fehler));
    EXPECT_FALSE(EinstellungAusText(u.k, *e, " 5", fehler));
    EXPECT_EQ(u.k.E.WinampLautstärke, 128);
    EXPECT_TRUE(EinstellungAusText(u.k, *e, "-32768", fehler));
    EXPECT_EQ(u.k.E.WinampLautstärke, -32768);
    const auto* farbe = EinstellungFinden("FarbeListen");
    EXPECT_TRUE(EinstellungAusText(u.k, *farbe, "2147483647", fehler));
    EXPECT_FALSE(EinstellungAusText(u.k, *farbe, "2147483648", fehler));
    EXPECT_EQ(EinstellungAlsText(u.k, *farbe), "2147483647");
}
