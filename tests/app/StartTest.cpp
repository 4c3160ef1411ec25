// Programmstart ohne Fenster: Kommandozeile, Reparaturen, erster Start, Begrüßung, Tipps.
#include "app/Start.h"
#include "support/Attrappen.h"

#include <gtest/gtest.h>

TEST(Start, KommandozeileVerbindetArgumenteUndSchneidetAnführungszeichenAb) {
    using V = std::vector<std::string>;
    EXPECT_EQ(KommandozeileLesen(V{}), "");
    EXPECT_EQ(KommandozeileLesen(V{"/musik/a.kkt"}), "/musik/a.kkt");
    EXPECT_EQ(KommandozeileLesen(V{"/musik/Meine", "Kartei.kkt"}), "/musik/Meine Kartei.kkt");
    EXPECT_EQ(KommandozeileLesen(V{"\"/musik/Meine Kartei.kkt\""}), "/musik/Meine Kartei.kkt");
    EXPECT_EQ(KommandozeileLesen(V{"\"/musik/Meine", "Kartei.kkt\""}), "/musik/Meine Kartei.kkt");
    // Nur das erste und das letzte Zeichen fallen weg, was sonst steht, zählt nicht.
    EXPECT_EQ(KommandozeileLesen(V{"\"/a.kkt\"", "--x"}), "/a.kkt\" --");
    EXPECT_EQ(KommandozeileLesen(V{"\""}), "");
    EXPECT_EQ(KommandozeileLesen(V{"\"\""}), "");
    EXPECT_EQ(KommandozeileLesen(V{"", "b"}), " b");
}

TEST(Start, VorbereitenLiestEinstellungenUndNimmtDenIndexDerKommandozeile) {
    TestUmgebung u;
    u.registrierung.werte["Dateiname"] = RegistrierungsWert{false, "/musik/alt.kkt", 0};
    u.registrierung.werte["FensterMax"] = RegistrierungsWert{true, {}, 1};
    StartVorbereiten(u.k, {});
    EXPECT_EQ(u.k.Dateiname, "/musik/alt.kkt");
    EXPECT_EQ(u.k.E.FensterMax, 1);
    EXPECT_EQ(DatumZeitText(u.k.LetzteSpeicherung), "16.11.2001 20:15:00");

    StartVorbereiten(u.k, {"\"/musik/neu.kkt\""});
    EXPECT_EQ(u.k.Dateiname, "/musik/neu.kkt");
}

TEST(Start, SpielerwerteAußerhalbIhresBereichsWerdenRepariert) {
    struct Fall {
        int16_t lautstärke, balance, lautstärkeDanach, balanceDanach;
    };
    for (const Fall& f : {Fall{256, 129, 128, 0}, Fall{-1, -129, 128, 0}, Fall{255, 128, 255, 128},
                          Fall{0, -128, 0, -128}, Fall{30000, -30000, 128, 0}}) {
        TestUmgebung u;
        u.k.E.WinampLautstärke = f.lautstärke;
        u.k.E.WinampBalance = f.balance;
        SpielerEinstellungenReparieren(u.k);
        EXPECT_EQ(u.k.E.WinampLautstärke, f.lautstärkeDanach) << f.lautstärke;
        EXPECT_EQ(u.k.E.WinampBalance, f.balanceDanach) << f.balance;
    }
}

TEST(Start, ErsterStartZeigtWillkommenUndDenZweitenTipp) {
    TestUmgebung u;
    EXPECT_EQ(VersionsStartText(), "10");
    EXPECT_EQ(VersionsStart(), 10);
    u.k.E.WinampLautstärke = 300;
    StartDaten d = StartAbschließen(u.k, 22);
    EXPECT_TRUE(d.fensterZentrieren);
    EXPECT_TRUE(d.willkommenZeigen);
    EXPECT_FALSE(d.geometrieAnwenden);
    EXPECT_FALSE(d.maximieren);
    EXPECT_EQ(d.begrüßung, "Willkommen! Bitte fügen Sie Dateien zum Index hinzu");
    EXPECT_EQ(d.tipp, 2);
    EXPECT_EQ(u.k.E.TippsAktueller, 2);
    EXPECT_EQ(u.k.E.Start, 10);
    EXPECT_EQ(u.k.E.WinampLautstärke, 128);

    // Zweiter Start derselben Version mit Einträgen und gespeicherter Fenstergröße.
    u.k.DateiAnzahl = 1;
    u.k.E.FensterWidth = 9000;
    u.k.E.FensterHeight = 6000;
    u.k.E.FensterMax = 1;
    u.k.E.TippsAktueller = 22;
    d = StartAbschließen(u.k, 22);
    EXPECT_FALSE(d.fensterZentrieren);
    EXPECT_FALSE(d.willkommenZeigen);
    EXPECT_TRUE(d.geometrieAnwenden);
    EXPECT_TRUE(d.maximieren);
    EXPECT_EQ(d.begrüßung, "Willkommen zurück! Bitte wählen Sie eine Datei oder suchen Sie");
    EXPECT_EQ(d.tipp, 1);
}

TEST(Start, UpdateZentriertOhneWillkommenUndAbgeschalteteTippsBleibenAus) {
    TestUmgebung u;
    u.k.E.Start = 9;
    u.k.E.FensterWidth = 9000;  // Höhe 0: das Fenster bleibt, wo es entworfen ist
    u.k.E.TippsAktueller = 0;
    StartDaten d = StartAbschließen(u.k, 22);
    EXPECT_TRUE(d.fensterZentrieren);
    EXPECT_FALSE(d.willkommenZeigen);
    EXPECT_FALSE(d.geometrieAnwenden);
    EXPECT_EQ(d.tipp, 0);
    EXPECT_EQ(u.k.E.TippsAktueller, 0);
    EXPECT_EQ(u.k.E.Start, 10);

    for (auto [gespeichert, nächster] : {std::pair<int16_t, int16_t>{21, 22}, {23, 1}, {-4, 1}}) {
        u.k.E.TippsAktueller = gespeichert;
        EXPECT_EQ(NächsterTipp(u.k, 22), nächster) << gespeichert;
    }
}
