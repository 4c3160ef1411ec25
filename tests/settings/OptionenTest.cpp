// Die Regeln der Programm-Optionen: Prüftexte, Übernehmen, Neu-Einlesen, Zurücksetzen, Profile.
#include "app/Tabelle.h"
#include "settings/EinstellungenSpeicher.h"
#include "settings/EinstellungenTabelle.h"
#include "settings/FarbProfile.h"
#include "settings/Optionen.h"
#include "shell/Fortschritt.h"
#include "support/Attrappen.h"
#include "support/MpegDaten.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {
const std::string kReserveZahl =
    "Bitte geben Sie eine Zahl in das Feld 'Prozent des neuen TAGs in Bytes hinzufügen' ein.";
const std::string kReserveBereich =
    "Bitte geben Sie eine Zahl zwischen 0 und 100 in das Feld 'Prozent des neuen TAGs in Bytes hinzufügen' ein.";
const std::string kSuchenZahl =
    "Bitte geben Sie eine Zahl in das Feld 'Bytes vom Datei-Anfang an nach TAG suchen' ein.";
const std::string kFrage = "Es wurden Einstellungen für das Lesen von Datei-Informationen aktiviert.\n"
                           "Neu hinzugefügte Dateien werden nun mit den gewählten Einstellungen gelesen.\n\n"
                           "Möchten Sie alle im Index befindlichen Dateien neu einlesen?\n\n"
                           "(Dieser Vorgang kann länger dauern.)";

// Drei Einträge mit ID3v1-Tag auf der Platte, im Index noch ohne Tag-Daten.
void DreiLieder(TestUmgebung& u, const TestOrdner& ordner) {
    IndexGrößeÄndern(u.k, 3, false);
    for (int32_t i = 1; i <= 3; ++i) {
        const std::string pfad = ordner / ("lied" + std::to_string(i) + ".mp3");
        DateiSchreiben(pfad,
                       mpeg::Frame(mpeg::Kopf{}) + mpeg::Id3v1("Titel " + std::to_string(i), "Band", "", "", "", 1, 0));
        u.k.DateiPfade[i] = pfad;
        u.k.DateiDaten[i].Datei_AngefordertAnzahl = 5;  // gehört dem Index, nicht der Datei
    }
    u.k.DateiAnzahl = 3;
    u.k.E.Mp3TagLesen = "000";
    u.k.E.StartBildschirm = 1;
}
}  // namespace

TEST(Optionen, PrueftexteInIhrerReihenfolge) {
    TestUmgebung u;
    auto fall = [&](const std::string& reserve, const std::string& suchen) {
        OptionenEingabe e = OptionenEinsetzen(u.k);
        e.txtID3v2Reserve = reserve;
        e.txtID3v2Suchen = suchen;
        return OptionenPrüfen(e);
    };
    using V = std::vector<std::string>;
    EXPECT_EQ(fall("abc", "x"), V{kReserveZahl});
    EXPECT_EQ(fall("", "0"), V{kReserveZahl});
    EXPECT_EQ(fall("101", "0"), V{kReserveBereich});
    EXPECT_EQ(fall("-1", "0"), V{kReserveBereich});
    EXPECT_EQ(fall("100", "zehn"), (V{kSuchenZahl, "Geben Sie '0' ein, um die gesamte Datei zu durchsuchen."}));
    EXPECT_EQ(fall("100", "99999999999"), (V{kSuchenZahl, "Geben Sie '0' ein, um die gesamte Datei zu durchsuchen."}));
    EXPECT_TRUE(fall(" 0", "0").empty());
    EXPECT_TRUE(fall("12,5", "1024").empty());

    // Ein Fehler: Meldungen mit dem Informationssymbol, nichts übernommen.
    OptionenEingabe e = OptionenEinsetzen(u.k);
    e.E.AutoCompleteVerwenden = 0;
    e.txtID3v2Suchen = "";
    EXPECT_FALSE(OptionenÜbernehmen(u.k, e));
    ASSERT_EQ(u.ui.meldungen.size(), 2u);
    EXPECT_EQ(u.ui.meldungen[0].text, kSuchenZahl);
    EXPECT_EQ(u.ui.meldungen[0].schalter, Meldung::Information);
    EXPECT_EQ(u.k.E.AutoCompleteVerwenden, 1);
    EXPECT_TRUE(u.ui.titelTexte.empty());
}

TEST(Optionen, UebernehmenSchreibtFelderUndMeldetImTitel) {
    TestUmgebung u;
    OptionenEingabe e = OptionenEinsetzen(u.k);
    EXPECT_EQ(e.txtID3v2Reserve, "25");
    EXPECT_EQ(e.txtID3v2Suchen, "102400");
    EXPECT_FALSE(e.chkRegelmäßigSpeichern);
    EXPECT_TRUE(e.chkID3auslesenV1 && !e.chkID3auslesenV2 && e.chkID3auslesenHeader);
    e.txtID3v2Reserve = "40,5";  // gerundet wie überall: halbe zur geraden Zahl
    e.txtID3v2Suchen = "0";
    e.chkRegelmäßigSpeichern = true;
    e.txtRegelmäßigSpeichern = "";  // angehakt, aber leer: aus
    e.chkID3auslesenV1 = false;     // ein Schalter aus: keine Frage
    e.E.BeendenReaktion = 3;
    EXPECT_TRUE(OptionenÜbernehmen(u.k, e));
    EXPECT_EQ(u.k.E.TAGsProzentHinzufügen, 40);
    EXPECT_EQ(u.k.E.TAGsBytesSuchen, 0);
    EXPECT_EQ(u.k.E.RegelmäßigSpeichernAlle, 0);
    EXPECT_EQ(u.k.E.Mp3TagLesen, "001");
    EXPECT_EQ(u.k.E.BeendenReaktion, 3);
    EXPECT_TRUE(u.ui.meldungen.empty());
    EXPECT_EQ(u.ui.titelTexte, std::vector<std::string>{"Die Programm-Optionen wurden übernommen"});

    EXPECT_EQ(RegelmäßigSpeichernWert(true, "15"), 15);
    EXPECT_EQ(RegelmäßigSpeichernWert(true, "0"), 0);
    EXPECT_EQ(RegelmäßigSpeichernWert(true, "-5"), 0);
    EXPECT_EQ(RegelmäßigSpeichernWert(true, "viel"), 0);
    EXPECT_EQ(RegelmäßigSpeichernWert(false, "15"), 0);
    EXPECT_EQ(TippsWertAusHaken(7, true), 7);
    EXPECT_EQ(TippsWertAusHaken(0, true), 1);
    EXPECT_EQ(TippsWertAusHaken(7, false), 0);
}

TEST(Optionen, WeitereWerteGanzOderGarNicht) {
    TestUmgebung u;
    u.k.Dateiname = "/musik/index.kkt";
    OptionenEingabe e = OptionenEinsetzen(u.k);
    // Jeder Wert der Tabelle steht genau einmal: auf einer Seite oder unter den weiteren.
    size_t weitere = 0;
    for (const auto& eintrag : EinstellungsTabelle())
        if (!EinstellungAufEigenerSeite(eintrag.name)) ++weitere;
    EXPECT_EQ(e.weitere.size(), weitere);
    for (const auto& [name, text] : e.weitere) EXPECT_FALSE(EinstellungAufEigenerSeite(name)) << name;

    auto setzen = [&](const std::string& name, const std::string& wert) {
        for (auto& [n, t] : e.weitere)
            if (n == name) t = wert;
    };
    setzen("ExportDatei", "/tmp/liste.txt");
    setzen("WinampLautstärke", "laut");
    e.E.AutoCompleteVerwenden = 0;
    EXPECT_FALSE(OptionenÜbernehmen(u.k, e));
    ASSERT_EQ(u.ui.meldungen.size(), 1u);
    EXPECT_EQ(u.ui.meldungen[0].text,
              "Bitte prüfen Sie den Wert 'WinampLautstärke': Der Wert 'laut' ist keine ganze Zahl zwischen -32768 und "
              "32767.");
    EXPECT_EQ(u.k.E.ExportDatei, "");  // nichts halb übernommen
    EXPECT_EQ(u.k.E.AutoCompleteVerwenden, 1);

    setzen("WinampLautstärke", "200");
    EXPECT_TRUE(OptionenÜbernehmen(u.k, e));
    EXPECT_EQ(u.k.E.ExportDatei, "/tmp/liste.txt");
    EXPECT_EQ(u.k.E.WinampLautstärke, 200);
    EXPECT_EQ(u.k.Dateiname, "/musik/index.kkt");
}

TEST(Optionen, NeuerLeseschalterFragtUndLiestAllesNeu) {
    EXPECT_TRUE(LeseSchalterNeuAn("000", "100"));
    EXPECT_TRUE(LeseSchalterNeuAn("10", "101"));
    EXPECT_FALSE(LeseSchalterNeuAn("111", "101"));
    EXPECT_FALSE(LeseSchalterNeuAn("101", "101"));
    EXPECT_EQ(LeseSchalterText(true, false, true), "101");

    TestOrdner ordner;
    // Nein: gespeichert wird der Schalter, gelesen wird nichts.
    {
        TestUmgebung u;
        DreiLieder(u, ordner);
        OptionenEingabe e = OptionenEinsetzen(u.k);
        e.chkID3auslesenV1 = true;
        u.ui.antworten = {Meldung::Nein};
        EXPECT_TRUE(OptionenÜbernehmen(u.k, e));
        ASSERT_EQ(u.ui.meldungen.size(), 1u);
        EXPECT_EQ(u.ui.meldungen[0].text, kFrage);
        EXPECT_EQ(u.ui.meldungen[0].schalter, Meldung::JaNeinFrage);
        EXPECT_EQ(u.k.E.Mp3TagLesen, "100");
        EXPECT_EQ(u.k.DateiDaten[1].Mp3_ID3v1_Titel, "");
        EXPECT_FALSE(u.k.DateiGeändert);
    }
    // Ja: jeder Eintrag neu gelesen, was dem Index gehört bleibt; eine fehlende Datei behält ihren
    // Datensatz.
    TestUmgebung u;
    DreiLieder(u, ordner);
    u.k.DateiPfade[3] = ordner / "fehlt.mp3";
    u.k.DateiDaten[3].Mp3_ID3v1_Titel = "Alt";
    OptionenEingabe e = OptionenEinsetzen(u.k);
    e.chkID3auslesenV1 = true;
    e.chkID3auslesenHeader = true;
    u.ui.antworten = {Meldung::Ja};
    EXPECT_TRUE(OptionenÜbernehmen(u.k, e));
    EXPECT_EQ(u.k.DateiDaten[1].Mp3_ID3v1_Titel, "Titel 1");
    EXPECT_EQ(u.k.DateiDaten[2].Mp3_ID3v1_Titel, "Titel 2");
    EXPECT_GT(u.k.DateiDaten[2].Header_Bitrate, 0);
    EXPECT_EQ(u.k.DateiDaten[2].Datei_AngefordertAnzahl, 5);
    EXPECT_EQ(u.k.DateiDaten[3].Mp3_ID3v1_Titel, "Alt");
    EXPECT_TRUE(u.k.DateiGeändert);
    ASSERT_FALSE(u.ui.fortschritte.empty());
    const FortschrittAnsicht& f = u.ui.fortschritte.back();
    EXPECT_TRUE(!f.offen);
    EXPECT_TRUE(std::any_of(u.ui.fortschritte.begin(), u.ui.fortschritte.end(), [](const FortschrittAnsicht& a) {
        return a.offen && a.vorgang == "Lese Dateien" && a.abbrechenSichtbar && a.balkenSichtbar && a.prozessSichtbar;
    }));
    EXPECT_FALSE(FortschrittFensterOffen(u.k));
}

TEST(Optionen, AbbruchDesNeuEinlesensBehaeltDasGelesene) {
    TestOrdner ordner;
    TestUmgebung u;
    DreiLieder(u, ordner);
    u.k.E.Mp3TagLesen = "100";
    int runden = 0;
    // Nach dem ersten Eintrag "Abbrechen" drücken.
    u.ui.beiEreignissen = [&] {
        if (u.k.DateiDaten[1].Mp3_ID3v1_Titel == "Titel 1" && ++runden == 1) FortschrittAbbrechenGedrückt(u.k);
    };
    EXPECT_FALSE(AlleDateienNeuEinlesen(u.k));
    EXPECT_EQ(u.k.DateiDaten[1].Mp3_ID3v1_Titel, "Titel 1");
    EXPECT_EQ(u.k.DateiDaten[3].Mp3_ID3v1_Titel, "");
    EXPECT_TRUE(u.k.DateiGeändert);
    EXPECT_FALSE(FortschrittFensterOffen(u.k));
}

TEST(Optionen, ZuruecksetzenFragtUndBehaeltDenIndex) {
    TestUmgebung u;
    u.k.Dateiname = "/musik/index.kkt";
    u.k.E.FarbeListen = 0x123456;
    u.k.E.BeendenReaktion = 2;
    u.ui.antworten = {Meldung::Nein, Meldung::Ja};
    EXPECT_FALSE(OptionenZurücksetzen(u.k));
    EXPECT_EQ(u.k.E.FarbeListen, 0x123456);
    EXPECT_TRUE(OptionenZurücksetzen(u.k));
    ASSERT_EQ(u.ui.meldungen.size(), 2u);
    EXPECT_EQ(u.ui.meldungen[0].text, "Möchten Sie tatsächlich alle Programmeinstellungen zurücksetzen?");
    EXPECT_EQ(u.ui.meldungen[0].schalter, Meldung::JaNeinFrageNein);
    EXPECT_EQ(u.k.E.FarbeListen, 0x800000);
    EXPECT_EQ(u.k.E.BeendenReaktion, 0);
    EXPECT_EQ(u.k.Dateiname, "/musik/index.kkt");
    EXPECT_TRUE(u.registrierung.werte.empty());  // erst das nächste Speichern schreibt
}

TEST(Optionen, FarbprofileWieVorgegeben) {
    const auto& p = FarbProfile();
    ASSERT_EQ(p.size(), 5u);
    EXPECT_EQ(p[0].name, "Standard (hell, grau-blau)");
    EXPECT_EQ(p[1].name, "Abend/Disco (dunkel, schwarz-orange)");
    EXPECT_EQ(p[2].name, "Gute Laune (farbenfroh, organge-rot)");
    EXPECT_EQ(p[3].name, "Dunkle Nacht (sehr dunkel, schwarz-grau)");
    EXPECT_EQ(p[4].name, "Cool (hell, blau-weiss)");
    EXPECT_EQ(p[2].farben, (Farbsatz{0x000080, 0xDDEFFF, 0x0F0F0F, 0x93C9FF, 0, 0, 0x804000, 0}));
    // Die Vorgaben der Einstellungen sind das erste Profil.
    EXPECT_EQ(FarbsatzAusEinstellungen(Einstellungen{}), p[0].farben);
    EXPECT_EQ(FarbProfilFinden(p[4].farben), 4);
    Einstellungen e;
    FarbsatzSpeichern(e, p[3].farben);
    EXPECT_EQ(e.FarbeFunktionenBesucht, 0xAFAFAF);
    EXPECT_EQ(FarbProfilFinden(FarbsatzAusEinstellungen(e)), 3);
    e.FarbeListen = 1;
    EXPECT_EQ(FarbProfilFinden(FarbsatzAusEinstellungen(e)), -1);
}
