#include "IndexTestHilfen.h"
#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/Tabelle.h"
#include "index/IndexFeld.h"
#include "shell/Fortschritt.h"
#include "support/IndexGenerator.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {
// Felder, die die Datei nicht kennt, auf ihre Nullwerte; Status wie nach dem Laden.
DateiInfo WieGeladen(DateiInfo d) {
    d.Mp3_ID3v1_TAG.clear();
    d.Header_Version = d.Header_Layer = 0;
    d.Header_Original = d.Header_Copyright = d.Header_Privat = d.Header_Padding = d.Header_CRC = false;
    d.Header_Emphasis.clear();
    d.Header_Position = d.Mp3_ID3v2_TAGPosition = d.Mp3_ID3v2_Benutzt = 0;
    d.Mp3_ID3v2_Weitere.clear();
    return d;
}
}  // namespace

TEST(IndexSchreiben, RundreiseAllerZeilenformen) {
    TestOrdner o;
    TestUmgebung a;
    IndexErzeugen(a.k, 3000, 7);
    a.k.DateiDaten[5].Mp3_ID3v1_Genre = std::string(1, char(255));
    a.k.DateiDaten[6].Datei_Größe = -1;  // unbekannt, wird als "-1" geschrieben
    a.k.DateiDaten[6].Datei_Typ = 1;
    auto& o2 = a.k.Optionen;
    o2.SyncLeer = false;
    o2.SyncOrdner.ReDim(2), o2.SyncUnterordner.ReDim(2), o2.SyncKopierenInOrdner.ReDim(2);
    o2.SyncOrdner[1] = "/musik/eingang", o2.SyncUnterordner[1] = 1, o2.SyncKopierenInOrdner[1] = "/musik/ziel";
    o2.SyncOrdner[2] = "/musik/zwei";
    o2.DateitypenLeer = false;
    o2.DateitypEintrag.ReDim(1), o2.DateitypKlasse.ReDim(1);
    o2.DateitypEintrag[1] = "ogg=1", o2.DateitypKlasse[1] = "010";
    o2.SyncEntfernen = 0;
    o2.SpaltenLeiste = 0;
    o2.SpaltenGitter = 1;
    o2.Spalten = ListenSpalten();
    o2.SpaltenNutzerformat = "%Titelnummer%. %Titel%";
    a.k.E.Mp3TagLesen = "000";
    ASSERT_TRUE(DateiSpeichern(a.k, o / "a.kkt", false));
    const std::string erste = DateiLesen(o / "a.kkt");
    EXPECT_TRUE(erste.starts_with("#TAG:kk102\r\n#OPT:SYNC=/musik/eingang,1,/musik/ziel\r\n#OPT:SYNC=/musik/zwei,0,\r\n"
                                  "#OPT:SYNC_ENTFERNEN=0\r\n#OPT:VERWALTEN=ogg=1,010\r\n#OPT:SPALTEN_LEISTE=0\r\n"
                                  "#OPT:SPALTEN_GITTER=1\r\n#OPT:SPALTEN=" +
                                  ListenSpalten() + "\r\n#OPT:SPALTEN_NUTZERFORMAT=%Titelnummer%. %Titel%\r\n#TAG:"));

    TestUmgebung b;
    b.k.E.Mp3TagLesen = "000";
    ASSERT_TRUE(DateiLaden(b.k, o / "a.kkt"));
    ASSERT_EQ(b.k.DateiAnzahl, 3000);
    for (int32_t i = 1; i <= 3000; ++i) {
        ASSERT_EQ(b.k.DateiPfade[i], a.k.DateiPfade[i]) << i;
        ASSERT_EQ(b.k.DateiDaten[i], WieGeladen(a.k.DateiDaten[i])) << i;
    }
    EXPECT_EQ(b.k.Optionen.SyncKopierenInOrdner[1], "/musik/ziel");
    EXPECT_FALSE(b.k.Liste.lstSongs.kopfleiste);
    ASSERT_TRUE(DateiSpeichern(b.k, o / "b.kkt", false));
    EXPECT_EQ(DateiLesen(o / "b.kkt"), erste);
}

TEST(IndexSchreiben, StatusUndId3v2Felder) {
    TestOrdner o;
    TestUmgebung a;
    IndexGrößeÄndern(a.k, 3, false);
    a.k.DateiAnzahl = 3;
    a.k.DateiPfade[1] = "/1.mp3";
    a.k.DateiDaten[1].Mp3_ID3v2_Status = 1;  // ID3v2 ohne ein gefülltes Feld: 40 Größen
    a.k.DateiPfade[2] = "/2.mp3";
    a.k.DateiDaten[2].Mp3_ID3v2_Status = 3;  // nicht 1: ID3v2-Felder werden nicht geschrieben
    a.k.DateiDaten[2].Mp3_ID3v2_TIT2 = "weg";
    a.k.DateiDaten[2].Header_VBR = true;
    a.k.DateiPfade[3] = "/3.mp3";
    a.k.DateiDaten[3].Mp3_ID3v2_Status = 1;
    a.k.DateiDaten[3].Mp3_ID3v2_TIT2 = "Titel";
    a.k.DateiDaten[3].Mp3_ID3v2_Version = "2.3.0";
    ASSERT_TRUE(DateiSpeichern(a.k, o / "a.kkt", false));
    // Eine Liste ohne Spalten (nie eingerichtet) lässt die Beschreibung "0" stehen.
    EXPECT_EQ(DateiLesen(o / "a.kkt"),
              StandardKopf("0") +
                  "#TAG:6////////1//1/1/1/1/1//1//1/////////////////1////|/1.mp3000000000\r\n"
                  "#TAG:6////////1//1/1/1/1/1//1//1/|/2.mp300000100\r\n"
                  "#TAG:6////////1//1/1/1/1/1//1//1/////////////////1/5///5|/3.mp30000000002.3.0Titel\r\n");
    TestUmgebung b;
    b.k.E.Mp3TagLesen = "000";
    ASSERT_TRUE(DateiLaden(b.k, o / "a.kkt"));
    EXPECT_EQ(b.k.DateiDaten[1].Mp3_ID3v2_Status, 1);  // TAGGröße "0" ist ein nicht leeres Feld
    EXPECT_EQ(b.k.DateiDaten[2].Mp3_ID3v2_Status, 2);
    EXPECT_EQ(b.k.DateiDaten[2].Mp3_ID3v2_TIT2, "");
    EXPECT_TRUE(b.k.DateiDaten[2].Header_VBR);
    EXPECT_EQ(b.k.DateiDaten[3].Mp3_ID3v2_TIT2, "Titel");
    EXPECT_EQ(b.k.DateiDaten[1].Mp3_ID3v1_Status, 2);  // 0 wird zu 2: untersucht, nichts gefunden
}

TEST(IndexSchreiben, HilfenDerDatensatzzeile) {
    EXPECT_EQ(GrößeText("0"), "");
    EXPECT_EQ(GrößeText("10"), "10");
    EXPECT_EQ(BoolAlsZahl(0), 0);
    EXPECT_EQ(BoolAlsZahl(-1), 1);
    EXPECT_EQ(BoolAlsZahl(7), 1);
    EXPECT_EQ(GenreAlsZahl(""), "");
    EXPECT_EQ(GenreAlsZahl(std::string(1, char(255))), "255");
    EXPECT_EQ(GenreAlsZahl(std::string(1, char(0))), "0");
}

TEST(IndexSchreiben, JedeZeileBleibtLesbar) {
    TestOrdner o;
    TestUmgebung a;
    IndexGrößeÄndern(a.k, 2, false);
    a.k.DateiAnzahl = 2;
    // 1 + 600 × 2 Bytes: Byte 1000 liegt mitten in einem "ä", gekürzt wird auf 999.
    std::string lang = "a";
    for (int i = 0; i < 600; ++i) lang += "ä";
    a.k.DateiPfade[1] = "/1.mp3";
    a.k.DateiDaten[1].Mp3_ID3v1_Titel = lang;
    a.k.DateiDaten[1].Mp3_ID3v1_Kommentar = "zwei\r\nZeilen\nund\rmehr";
    a.k.DateiDaten[1].Mp3_ID3v1_Status = 1;
    a.k.DateiPfade[2] = "/2.mp3";
    a.k.Optionen.SpaltenNutzerformat = "%Titel%\n%Album%";
    ASSERT_TRUE(DateiSpeichern(a.k, o / "a.kkt", false));
    const std::string bytes = DateiLesen(o / "a.kkt");
    EXPECT_NE(bytes.find("#OPT:SPALTEN_NUTZERFORMAT=%Titel% %Album%\r\n"), std::string::npos);

    TestUmgebung b;
    b.k.E.Mp3TagLesen = "000";
    ASSERT_TRUE(DateiLaden(b.k, o / "a.kkt"));
    ASSERT_EQ(b.k.DateiAnzahl, 2);
    EXPECT_EQ(b.k.DateiDaten[1].Mp3_ID3v1_Titel, lang.substr(0, 999));
    EXPECT_EQ(b.k.DateiDaten[1].Mp3_ID3v1_Kommentar, "zwei  Zeilen und mehr");
    EXPECT_EQ(b.k.DateiPfade[2], "/2.mp3");
}

TEST(IndexSchreiben, LeererIndex) {
    TestOrdner o;
    TestUmgebung u;
    ASSERT_TRUE(DateiLaden(u.k, o / "leer.kkt"));
    ASSERT_TRUE(DateiSpeichern(u.k, o / "leer.kkt", true));
    std::string erwartet = StandardKopf();
    erwartet.insert(erwartet.find("#OPT:SPALTEN_LEISTE"), [] {
        std::string v;
        for (const char* z : {"mp3=1,110", "mp2=1,110", "mp1=1,110", "wma=1,010", "wmf=1,010", "wav=1,010", "gif=0,001",
                              "jpg=0,001", "bmp=0,001", "aac=1,110", "vqf=1,010", "jpeg=0,001", "*=0,000"})
            v += std::string("#OPT:VERWALTEN=") + z + "\r\n";
        return v;
    }());
    EXPECT_EQ(DateiLesen(o / "leer.kkt"), erwartet);
    EXPECT_FALSE(u.k.DateiGeändert);
    EXPECT_FALSE(DoesExist(o / "leer.kkt~"));
    EXPECT_EQ(u.k.LetzteSpeicherung, u.uhr.Jetzt());
}

TEST(IndexSchreiben, AbbrechenLässtDieAlteDateiStehen) {
    TestOrdner o;
    TestUmgebung u;
    IndexErzeugen(u.k, 50);
    DateiSchreiben(o / "a.kkt", "alt");
    u.k.DateiGeändert = true;
    int runden = 0;
    u.ui.beiEreignissen = [&] {
        if (++runden == 3) FortschrittAbbrechenGedrückt(u.k);
    };
    EXPECT_FALSE(DateiSpeichern(u.k, o / "a.kkt", true));
    EXPECT_EQ(DateiLesen(o / "a.kkt"), "alt");
    EXPECT_FALSE(DoesExist(o / "a.kkt~"));
    EXPECT_TRUE(u.k.DateiGeändert);
    EXPECT_FALSE(u.k.Fortschritt.ansicht.offen);
    EXPECT_TRUE(u.ui.meldungen.empty());
    // Ohne Startbildschirm gibt es kein Fenster und damit auch keinen Abbruch.
    u.k.E.StartBildschirm = 0;
    runden = 0;
    EXPECT_TRUE(DateiSpeichern(u.k, o / "a.kkt", true));
}

TEST(IndexSchreiben, FehlschlägeMitDeutschemGrund) {
    TestOrdner o;
    TestUmgebung u;
    IndexErzeugen(u.k, 3);
    u.k.DateiGeändert = true;
    EXPECT_FALSE(DateiSpeichern(u.k, o / "fehlt/c.kkt", true));  // der Ordner fehlt
    ASSERT_EQ(u.ui.meldungen.size(), 1u);
    EXPECT_EQ(u.ui.meldungen[0].text, "Die Indexdatei '" + o / "fehlt/c.kkt" +
                                          "' konnte nicht gespeichert werden.\nIm Ordner '" + o / "fehlt" +
                                          "' kann keine temporäre Datei angelegt werden: Datei oder Ordner nicht "
                                          "gefunden.");
    EXPECT_EQ(u.ui.meldungen[0].schalter, 48);
    EXPECT_FALSE(u.k.Fortschritt.ansicht.offen);
    EXPECT_TRUE(u.k.DateiGeändert);
}

TEST(IndexSchreiben, RegelmäßigUndBeimSchließen) {
    TestOrdner o;
    TestUmgebung u;
    ASSERT_TRUE(DateiLaden(u.k, o / "a.kkt"));
    u.k.LetzteSpeicherung = u.uhr.Jetzt();
    u.k.E.RegelmäßigSpeichernAlle = 10;
    u.k.DateiGeändert = true;
    u.uhr.jetzt.Minute += 9;
    EXPECT_FALSE(RegelmäßigSpeichernPrüfen(u.k));  // erst 9 Minuten
    u.uhr.jetzt.Minute += 1;
    u.k.E.StartBildschirmNichtBeiSpeichern = 1;
    u.ui.fortschritte.clear();
    EXPECT_TRUE(RegelmäßigSpeichernPrüfen(u.k));
    EXPECT_TRUE(u.ui.fortschritte.empty());  // ohne Fortschrittsfenster
    EXPECT_EQ(u.ui.titelTexte.back(), "Die Indexdatei wurde automatisch gespeichert");
    EXPECT_FALSE(u.k.DateiGeändert);
    u.uhr.jetzt.Minute += 20;
    EXPECT_FALSE(RegelmäßigSpeichernPrüfen(u.k));  // nichts geändert: nichts zu tun
    EXPECT_EQ(u.k.LetzteSpeicherung, u.uhr.Jetzt());
    u.k.DateiGeändert = true;
    u.uhr.jetzt.Minute += 20;
    u.k.E.RegelmäßigSpeichernAlle = 0;
    EXPECT_FALSE(RegelmäßigSpeichernPrüfen(u.k));  // 0 schaltet es ab

    u.ui.antworten = {Meldung::Ja, Meldung::Nein, Meldung::Abbrechen};
    const size_t vorher = u.ui.meldungen.size();
    EXPECT_EQ(SpeichernVorSchließenFragen(u.k), SchließenAktion::Speichern);
    EXPECT_EQ(SpeichernVorSchließenFragen(u.k), SchließenAktion::OhneSpeichern);
    EXPECT_EQ(SpeichernVorSchließenFragen(u.k), SchließenAktion::Abbrechen);
    ASSERT_EQ(u.ui.meldungen.size(), vorher + 3);
    EXPECT_EQ(u.ui.meldungen.back().text, "Die Indexdatei wurde geändert.\nMöchten Sie diese speichern?");
    EXPECT_EQ(u.ui.meldungen.back().schalter, 35);
    u.k.E.DateiAutomatischSpeichern = 1;  // ohne Frage
    EXPECT_EQ(SpeichernVorSchließenFragen(u.k), SchließenAktion::Speichern);
    u.k.DateiGeändert = false;
    EXPECT_EQ(SpeichernVorSchließenFragen(u.k), SchließenAktion::OhneSpeichern);
    EXPECT_EQ(u.ui.meldungen.size(), vorher + 3);
}

TEST(IndexSchreiben, PfadeBleibenBytesNurDieAnzeigeWandelt) {
    TestOrdner o;
    TestUmgebung a;
    IndexGrößeÄndern(a.k, 2, false);
    a.k.DateiAnzahl = 2;
    a.k.DateiPfade[1] = "/m/Lied_\xE4.mp3";  // Latin-1 von einer alten Platte
    a.k.DateiDaten[1].Mp3_ID3v1_Status = 1;
    a.k.DateiDaten[1].Mp3_ID3v1_Titel = "Käse";
    a.k.DateiPfade[2] = "/m/Lied_ä.mp3";
    a.k.Optionen.Spalten = ListenSpalten();  // so schreibt die geladene Liste sie wieder
    ASSERT_TRUE(DateiSpeichern(a.k, o / "a.kkt", false));
    const std::string datei = DateiLesen(o / "a.kkt");
    EXPECT_NE(datei.find("|/m/Lied_\xE4.mp3Käse"), std::string::npos);

    TestUmgebung b;
    b.k.E.Mp3TagLesen = "000";
    ASSERT_TRUE(DateiLaden(b.k, o / "a.kkt"));
    ASSERT_EQ(b.k.DateiAnzahl, 2);
    EXPECT_EQ(b.k.DateiPfade[1], "/m/Lied_\xE4.mp3");
    EXPECT_EQ(b.k.DateiDaten[1].Mp3_ID3v1_Titel, "Käse");
    EXPECT_EQ(b.k.DateiPfade[2], "/m/Lied_ä.mp3");
    ASSERT_TRUE(DateiSpeichern(b.k, o / "a.kkt", false));
    EXPECT_EQ(DateiLesen(o / "a.kkt"), datei);

    // Angezeigt, gesucht und sortiert wird der Text: Windows-1252, wo es kein UTF-8 ist.
    std::string text;
    int16_t art = 0;
    for (auto [feld, erwartet] : {std::pair{"Dateiname", "Lied_ä.mp3"},
                                  {"Pfad+Dateiname", "/m/Lied_ä.mp3"},
                                  {"Pfad", "/m"},
                                  {"Datei-Endung", ".mp3"}}) {
        ASSERT_TRUE(IndexFeldZurückgeben(b.k, 1, feld, "", text, art));
        EXPECT_EQ(text, erwartet) << feld;
    }
    ASSERT_TRUE(IndexFeldZurückgeben(b.k, 1, "(Standardsuche)", "", text, art));
    EXPECT_TRUE(text.ends_with(" /m/Lied_ä.mp3")) << text;
}

TEST(IndexSchreiben, BeschreibungOhneSichtbareSpalteSchreibtDieListe) {
    TestOrdner o;
    TestUmgebung u;
    ASSERT_TRUE(IndexAusBytesLaden(u, o, "#TAG:kk102\r\n#OPT:SPALTEN=3=0=1,4=0=2\r\n"));
    EXPECT_TRUE(u.k.Liste.lstSongs.spalten.empty());
    ASSERT_TRUE(DateiSpeichern(u.k, o / "index.kkt", false));
    std::string alle;
    for (int i = 1; i <= 30; ++i) alle += (i > 1 ? "," : "") + std::to_string(i) + "=0=0";
    EXPECT_EQ(DateiLesen(o / "index.kkt"), StandardKopf(alle));
}
