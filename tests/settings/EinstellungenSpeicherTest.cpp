// Einstellungen lesen und speichern über die Attrappe des Speichers.
#include "settings/EinstellungenSpeicher.h"
#include "settings/EinstellungenTabelle.h"
#include "support/Attrappen.h"
#include "tags/AutoTagVorgaben.h"

#include <gtest/gtest.h>

namespace {
RegistrierungsWert Text(const std::string& t) { return RegistrierungsWert{false, t, 0}; }
RegistrierungsWert Zahl(int32_t z) { return RegistrierungsWert{true, {}, z}; }

// Die Vorgabe eines Eintrags als Text, aus einer frischen Kartei.
std::string VorgabeText(const EinstellungsEintrag& e) {
    TestUmgebung frisch;
    return EinstellungAlsText(frisch.k, e);
}
}  // namespace

TEST(EinstellungenSpeicher, FrischerRechnerGibtVorgabenUndSpielerAusStandardanwendung) {
    TestUmgebung u;
    u.registrierung.öffnenGelingt = false;
    u.registrierung.standardAudioBefehl = " \"/opt/Mein Spieler/spieler\" %1 ";
    EinstellungenLesen(u.k);

    ASSERT_EQ(EinstellungsTabelle().size(), 74u);
    // Alle Vorgaben, außer was die Korrekturen nach dem Lesen festlegen (unten geprüft).
    for (const auto& e : EinstellungsTabelle()) {
        const std::string name = e.name;
        if (name == "WinampPfad" || name == "AutoTagLeer" || name == "AutoTagAusschlußLeer") continue;
        EXPECT_EQ(EinstellungAlsText(u.k, e), VorgabeText(e)) << name;
    }
    EXPECT_EQ(u.k.E.WinampPfad, "/opt/Mein Spieler/spieler");
    EXPECT_EQ(u.k.E.Start, 0);
    EXPECT_EQ(u.k.E.Mp3TagLesen, "101");
    EXPECT_EQ(u.k.E.WinampParameterHinzufügen, "-e");
    EXPECT_EQ(u.k.E.FarbeFunktionenBesucht, 0x80);
    EXPECT_EQ(u.k.E.AutoTagLeer, 0);
    ASSERT_EQ(u.k.E.AutoTagFormate.UBound(), 23);
    EXPECT_EQ(u.k.E.AutoTagFormate[1], "/%Interpret% - %Titel%");
    EXPECT_EQ(u.k.E.AutoTagFormate[23], "%Automatik%");
    EXPECT_EQ(u.k.E.AutoTagAusschlußLeer, 1);
    ASSERT_EQ(u.k.E.AutoTagAusschluß.UBound(), 1);
    EXPECT_EQ(u.k.E.AutoTagAusschluß[1], "");

    // Speichern legt den Schlüssel an und schreibt 74 Werte und die 23 Formate, getypt.
    EXPECT_TRUE(EinstellungenSpeichern(u.k));
    EXPECT_TRUE(u.registrierung.angelegt);
    EXPECT_EQ(u.registrierung.schließenAnzahl, 1);
    auto& w = u.registrierung.werte;
    EXPECT_EQ(w.size(), 74u + 23u);
    EXPECT_FALSE(w["Mp3TagLesen"].istZahl);
    EXPECT_EQ(w["Mp3TagLesen"].text, "101");
    EXPECT_TRUE(w["FensterMax"].istZahl);
    EXPECT_EQ(w["FarbeFunktionen"].zahl, 0xC00000);
    EXPECT_EQ(w["AutoTagLeer"].zahl, 0);
    EXPECT_EQ(w["AutoTagAusschlußLeer"].zahl, 1);
    EXPECT_EQ(w["AutoTagFormate23"].text, "%Automatik%");
    EXPECT_EQ(w.count("AutoTagAusschluß1"), 0u);
    EXPECT_EQ(w["WinampPfad"].text, "/opt/Mein Spieler/spieler");
}

TEST(EinstellungenSpeicher, SpielerWirdNurBeimErstenStartGesucht) {
    TestUmgebung u;
    u.registrierung.standardAudioBefehl = "x";  // zu kurz für einen Befehl
    EinstellungenLesen(u.k);
    EXPECT_EQ(u.k.E.WinampPfad, "");

    TestUmgebung später;
    später.registrierung.werte["Start"] = Zahl(10);
    später.registrierung.werte["WinampPfad"] = Text("/usr/bin/mein");
    später.registrierung.standardAudioBefehl = "audacious";
    EinstellungenLesen(später.k);
    EXPECT_EQ(später.k.E.WinampPfad, "/usr/bin/mein");

    später.registrierung.werte["Start"] = Zahl(0);
    EinstellungenLesen(später.k);
    EXPECT_EQ(später.k.E.WinampPfad, "audacious");
}

TEST(EinstellungenSpeicher, Mp3TagLesenWirdAufDreiStellenErgänzt) {
    for (auto [gespeichert, erwartet] :
         {std::pair{"1", "101"}, {"", "101"}, {"0", "001"}, {"11", "11"}, {"010", "010"}}) {
        TestUmgebung u;
        u.registrierung.werte["Mp3TagLesen"] = Text(gespeichert);
        EinstellungenLesen(u.k);
        EXPECT_EQ(u.k.E.Mp3TagLesen, erwartet) << '"' << gespeichert << '"';
    }
}

TEST(EinstellungenSpeicher, FalscheArtGibtDieVorgabe) {
    TestUmgebung u;
    auto& w = u.registrierung.werte;
    w["FensterMax"] = Text("1");          // Text statt Zahl
    w["Mp3TagLesen"] = Zahl(111);         // Zahl statt Text
    w["WinampLautstärke"] = Zahl(70000);  // passt nicht in einen Integer
    w["WinampBalance"] = Zahl(-200);      // passt, wird erst beim Start repariert
    w["FarbeListen"] = Zahl(-1);          // Long: jeder 32-Bit-Wert
    w["AutoTagAktuell"] = Text("12345");  // Text, der wie eine Zahl aussieht
    EinstellungenLesen(u.k);
    EXPECT_EQ(u.k.E.FensterMax, 0);
    EXPECT_EQ(u.k.E.Mp3TagLesen, "101");
    EXPECT_EQ(u.k.E.WinampLautstärke, 128);
    EXPECT_EQ(u.k.E.WinampBalance, -200);
    EXPECT_EQ(u.k.E.FarbeListen, -1);
    EXPECT_EQ(u.k.E.AutoTagAktuell, "12345");

    int16_t ziel = 5;
    EXPECT_FALSE(SpezielleEinstellungLesen(u.k, "FensterMax", ziel, int16_t{7}));
    EXPECT_EQ(ziel, 7);
    EXPECT_FALSE(SpezielleEinstellungLesen(u.k, "GibtEsNicht", ziel, int16_t{3}));
    EXPECT_EQ(ziel, 3);
    std::string text;
    EXPECT_TRUE(SpezielleEinstellungLesen(u.k, "AutoTagAktuell", text, std::string("v")));
    EXPECT_EQ(text, "12345");
}

TEST(EinstellungenSpeicher, RücksetzModusLiefertVorgabenOhneDenSpeicherZuBerühren) {
    TestUmgebung u;
    auto& w = u.registrierung.werte;
    w["Dateiname"] = Text("/musik/alt.kkt");
    w["Mp3TagLesen"] = Text("111");
    w["FensterMax"] = Zahl(1);
    w["Start"] = Zahl(10);
    w["AutoTagLeer"] = Zahl(1);
    w["AutoTagAusschlußLeer"] = Zahl(0);
    w["AutoTagAusschluß1"] = Text("live");
    EinstellungenLesen(u.k);
    ASSERT_EQ(u.k.E.AutoTagAusschluß[1], "live");
    ASSERT_EQ(u.k.E.AutoTagFormate.UBound(), 1);  // als leer markiert: ein leerer Platz

    const auto vorher = w;
    u.registrierung.standardAudioBefehl = "audacious";
    u.k.Dateiname = "/musik/offen.kkt";
    EinstellungenZurücksetzen(u.k);
    EXPECT_FALSE(u.k.E.RücksetzModus);
    EXPECT_EQ(u.k.E.Mp3TagLesen, "101");
    EXPECT_EQ(u.k.E.FensterMax, 0);
    EXPECT_EQ(u.k.E.Start, 0);
    EXPECT_EQ(u.k.E.WinampPfad, "audacious");  // Start ist 0: der Spieler wird neu gesucht
    EXPECT_EQ(u.k.E.AutoTagLeer, 0);
    EXPECT_EQ(u.k.E.AutoTagFormate.UBound(), AutoTagVorgabeAnzahl);
    EXPECT_EQ(u.k.E.AutoTagAusschlußLeer, 1);
    EXPECT_EQ(u.k.E.AutoTagAusschluß.UBound(), 1);
    EXPECT_EQ(u.k.E.AutoTagAusschluß[1], "");
    EXPECT_EQ(u.k.Dateiname, "/musik/offen.kkt");  // der offene Index bleibt
    EXPECT_EQ(w.size(), vorher.size());
    EXPECT_EQ(u.registrierung.schließenAnzahl, 0);

    // Erst das Speichern schreibt die Vorgaben und löscht die alte Ausschlussliste.
    EinstellungenSpeichern(u.k);
    EXPECT_EQ(w["Mp3TagLesen"].text, "101");
    EXPECT_EQ(w.count("AutoTagAusschluß1"), 0u);
    EXPECT_EQ(w["Dateiname"].text, "/musik/offen.kkt");
}

TEST(EinstellungenSpeicher, JederWertÜberstehtSpeichernUndNeustart) {
    TestUmgebung u;
    EinstellungenLesen(u.k);
    // Jeden Wert auf etwas anderes als die Vorgabe setzen.
    int32_t n = 0;
    for (const auto& e : EinstellungsTabelle()) {
        std::string fehler;
        const std::string neu =
            IstTextEinstellung(e) ? std::string("Wert ") + e.name + " ä\\\n" : std::to_string(-(++n));
        ASSERT_TRUE(EinstellungAusText(u.k, e, neu, fehler)) << e.name << fehler;
    }
    u.k.E.AutoTagLeer = 0;
    u.k.E.AutoTagAusschlußLeer = 0;
    u.k.E.AutoTagAusschluß.ReDim(2);
    u.k.E.AutoTagAusschluß[1] = "live";
    u.k.E.AutoTagAusschluß[2] = "";
    EinstellungenSpeichern(u.k);

    TestUmgebung neu;
    neu.registrierung.werte = u.registrierung.werte;
    EinstellungenLesen(neu.k);
    for (const auto& e : EinstellungsTabelle())
        EXPECT_EQ(EinstellungAlsText(neu.k, e), EinstellungAlsText(u.k, e)) << e.name;
    EXPECT_EQ(neu.k.E.AutoTagFormate.Vektor(), u.k.E.AutoTagFormate.Vektor());
    EXPECT_EQ(neu.k.E.AutoTagAusschluß.Vektor(), (std::vector<std::string>{"live", ""}));
    EXPECT_EQ(neu.k.E.Start, u.k.E.Start);
}
