// Hinzufügen: ein Ordnerbaum samt Playliste als Ablage, Doppelte, Abbruch, Meldungen.
#include "app/Texte.h"
#include "intake/Hinzufuegen.h"
#include "intake/HinzufuegenFragen.h"
#include "intake/PlayListe.h"
#include "index/Dateitypen.h"
#include "shell/Fortschritt.h"
#include "support/Attrappen.h"
#include "support/MpegDaten.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

namespace {
const std::string kMp3 =
    mpeg::Frame(mpeg::Kopf{}) + mpeg::Füllung(2000) + mpeg::Id3v1("Titel", "Interpret", "", "2001", "", 1, 17);

EinsBasiert<std::string> Liste(const std::vector<std::string>& pfade) {
    EinsBasiert<std::string> e;
    for (const auto& p : pfade) e.Anhängen(p);
    return e;
}

std::vector<std::string> IndexPfade(const Kartei& k) {
    std::vector<std::string> pfade;
    for (int32_t i = 1; i <= k.DateiAnzahl; ++i) pfade.push_back(k.DateiPfade[i]);
    return pfade;
}

struct Umgebung : TestUmgebung {
    Umgebung() { DateitypenVorgabenEinsetzen(k.Optionen); }
};
}  // namespace

TEST(Hinzufuegen, OrdnerbaumUndPlaylisteAlsAblage) {
    Umgebung u;
    TestOrdner o;
    for (const char* n : {"musik/b.mp3", "musik/A.MP3", "musik/sub/c.mp3", "musik/x.mp3/innen.mp3",
                          "musik/sub/tief/d.aac", "extra.mp3", "liste/eins.mp3", "liste/zwei.mp3"})
        DateiSchreiben(o / n, kMp3);
    for (const char* n : {"musik/bild.jpg", "musik/notiz.txt", "musik/klang.wav", "musik/lied.wma", "musik/liste.m3u"})
        DateiSchreiben(o / n, "RIFF....");
    DateiSchreiben(o / "liste/liste.m3u", "#EXTM3U\r\neins.mp3\r\n" + o / "liste/zwei.mp3" + "\nfehlt.mp3\n");

    DragDropVerarbeiten(u.k, Liste({o / "liste/liste.m3u", o / "musik", o / "extra.mp3", o / "gibtsnicht.mp3"}));

    // Playliste, dann der Ordner (eigene Dateien vor den Unterordnern), dann die einzelne Datei.
    const std::vector<std::string> erwartet = {
        o / "liste/eins.mp3",        o / "liste/zwei.mp3", o / "musik/A.MP3",     o / "musik/b.mp3",
        o / "musik/klang.wav",       o / "musik/lied.wma", o / "musik/sub/c.mp3", o / "musik/sub/tief/d.aac",
        o / "musik/x.mp3/innen.mp3", o / "extra.mp3"};
    EXPECT_EQ(IndexPfade(u.k), erwartet);
    const std::vector<int16_t> typen = {1, 1, 1, 1, 3, 2, 1, 1, 1, 1};
    for (int32_t i = 1; i <= u.k.DateiAnzahl; ++i) EXPECT_EQ(u.k.DateiDaten[i].Datei_Typ, typen[size_t(i - 1)]) << i;
    // "101": ID3v1 und Kopf gelesen, Größe gesetzt; ID3v2 nicht.
    EXPECT_EQ(u.k.DateiDaten[1].Mp3_ID3v1_Titel, "Titel");
    EXPECT_EQ(u.k.DateiDaten[1].Header_Bitrate, 128);
    EXPECT_EQ(u.k.DateiDaten[1].Datei_Größe, int32_t(kMp3.size()));
    EXPECT_EQ(u.k.DateiDaten[1].Mp3_ID3v2_Status, 0);
    EXPECT_TRUE(u.k.DateiGeändert);
    // Jeder Teil meldet sich, zuletzt steht die Gesamtzahl da.
    EXPECT_EQ(u.ui.titelTexte, (std::vector<std::string>{"2 Datei(en) hinzugefügt", "7 Datei(en) hinzugefügt",
                                                         "10 Datei(en) hinzugefügt"}));
    EXPECT_TRUE(u.ui.meldungen.empty());
    EXPECT_FALSE(FortschrittFensterOffen(u.k));

    // Noch einmal: alles ist doppelt, nichts ändert sich.
    u.k.DateiGeändert = false;
    DragDropVerarbeiten(u.k, Liste({o / "liste/liste.m3u", o / "musik", o / "extra.mp3"}));
    EXPECT_EQ(u.k.DateiAnzahl, 10);
    EXPECT_FALSE(u.k.DateiGeändert);
    EXPECT_EQ(u.ui.titelTexte.back(), "0 Datei(en) hinzugefügt");
}

TEST(Hinzufuegen, DoppelteOhneGrossKlein) {
    Umgebung u;
    TestOrdner o;
    DateiSchreiben(o / "Ärger.mp3", kMp3);
    DateiSchreiben(o / "b.mp3", kMp3);
    // Der Index kennt den ersten Pfad anders geschrieben (die Datei muss dafür nicht da sein).
    u.k.DateiPfade.ReDim(2);
    u.k.DateiDaten.ReDim(2);
    u.k.DateiTreffer.ReDim(2);
    u.k.DateiPfade[1] = Groß(o / "ärger.mp3");
    u.k.DateiPfade[2] = o / "b.mp3x";
    u.k.DateiAnzahl = 2;

    EinfachDateiHinzufügen(u.k, Liste({o / "Ärger.mp3", o / "b.mp3", o / "b.mp3"}), false, true, false);
    // Derselbe Pfad zweimal in einem Stapel kommt zweimal hinein: nur der Index wird verglichen.
    EXPECT_EQ(IndexPfade(u.k),
              (std::vector<std::string>{Groß(o / "ärger.mp3"), o / "b.mp3x", o / "b.mp3", o / "b.mp3"}));
    EXPECT_EQ(u.ui.titelTexte.back(), "2 Datei(en) hinzugefügt");
    // Ohne Sperre kommen beide trotzdem.
    u.k.E.HinzufügenKeineDoppelten = 0;
    EinfachDateiHinzufügen(u.k, Liste({o / "Ärger.mp3", o / "b.mp3"}), false, false, false);
    EXPECT_EQ(u.k.DateiAnzahl, 6);
}

TEST(Hinzufuegen, TypenUndSternZeile) {
    Umgebung u;
    TestOrdner o;
    for (const char* n : {"a.ogg", "b.jpg", "LISTE.M3U"}) DateiSchreiben(o / n, "x");
    DateiListeHinzuStarten(u.k);
    EXPECT_FALSE(DateienZurListeHinzufügen(u.k, o / "a.ogg"));
    EXPECT_FALSE(DateienZurListeHinzufügen(u.k, o.Pfad()));  // ein Ordner
    u.k.Optionen.DateitypEintrag[13] = "*=1";
    EXPECT_TRUE(DateienZurListeHinzufügen(u.k, o / "a.ogg"));
    EXPECT_FALSE(DateienZurListeHinzufügen(u.k, o / "b.jpg"));  // "jpg=0" bleibt gesperrt
    DateiListeHinzuBeenden(u.k);
    EXPECT_EQ(u.k.DateiAnzahl, 1);
    EXPECT_EQ(u.k.Aufnahme.NeueAnzahl, 1);  // bleibt bis zum nächsten Start stehen
    EXPECT_EQ(u.k.Aufnahme.NeueDateien.UBound(), 1);
    // Großgeschriebene Playliste: eine gewöhnliche Datei, die "*=1" jetzt zulässt.
    DragDropVerarbeiten(u.k, Liste({o / "LISTE.M3U"}));
    EXPECT_EQ(u.k.DateiPfade[2], o / "LISTE.M3U");
    DragDropVerarbeiten(u.k, {});
    EXPECT_EQ(u.ui.titelTexte.back(), "0 Datei(en) hinzugefügt");
}

TEST(Hinzufuegen, AbbruchBehaeltDasGelesene) {
    Umgebung u;
    TestOrdner o;
    std::vector<std::string> dateien;
    for (int i = 1; i <= 5; ++i) {
        dateien.push_back(o / ("d" + std::to_string(i) + ".mp3"));
        DateiSchreiben(dateien.back(), kMp3);
    }
    // "Abbrechen" nach der zweiten Datei wirkt beim nächsten Schritt: drei sind dann gelesen.
    u.ui.beiEreignissen = [&] {
        if (u.k.Aufnahme.NeueAnzahl == 2) FortschrittAbbrechenGedrückt(u.k);
    };
    EXPECT_FALSE(EinfachDateiHinzufügen(u.k, Liste(dateien), true, true, true));
    EXPECT_EQ(IndexPfade(u.k), std::vector<std::string>(dateien.begin(), dateien.begin() + 3));
    EXPECT_EQ(u.ui.titelTexte, std::vector<std::string>{"Hinzufügen abgebrochen"});

    // Derselbe Abbruch beim Ordner: gelesen ist gelesen.
    u.ui.titelTexte.clear();
    u.k.E.HinzufügenKeineDoppelten = 0;
    const int32_t vorher = u.k.DateiAnzahl;
    u.ui.beiEreignissen = [&] {
        if (u.k.Aufnahme.NeueAnzahl == 1) FortschrittAbbrechenGedrückt(u.k);
    };
    EXPECT_FALSE(EinfachOrdnerHinzufügen(u.k, o.Pfad(), true, 1, false, "", false, false));
    EXPECT_EQ(u.k.DateiAnzahl, vorher + 2);
    EXPECT_EQ(u.ui.titelTexte, std::vector<std::string>{"Hinzufügen abgebrochen"});
}

TEST(Hinzufuegen, OrdnerFehltOderIstLeer) {
    Umgebung u;
    TestOrdner o;
    const std::string fehlt = o / "weg";
    EXPECT_TRUE(EinfachOrdnerHinzufügen(u.k, fehlt, true, 1, true, "", true, false));
    ASSERT_EQ(u.ui.meldungen.size(), 1u);
    EXPECT_EQ(u.ui.meldungen[0].schalter, 48);
    EXPECT_EQ(u.ui.meldungen[0].text,
              "Beim Hinzufügen des Ordners '" + fehlt +
                  "' ist ein Fehler aufgetreten: \nDer Ordner existiert "
                  "nicht oder ist kein gültiger Ordnername.\n\nÄndern Sie den Ordner-Namen in den Optionen und stellen "
                  "sie sicher, daß sich dieser Ordner auf einem Datenträger befindet, auf den Zugriff möglich ist.");
    EXPECT_EQ(u.ui.titelTexte.back(), "Hinzufügen abgebrochen");

    // Ein Stapel vorher, dann ein leerer Ordner: der alte Stapel wird nicht noch einmal übernommen.
    DateiSchreiben(o / "voll/a.mp3", kMp3);
    std::filesystem::create_directory(o / "leer");
    EXPECT_TRUE(EinfachOrdnerHinzufügen(u.k, o / "voll", true, 1, false, "", false, false));
    EXPECT_TRUE(EinfachOrdnerHinzufügen(u.k, o / "leer", true, 1, true, "", true, false));
    EXPECT_EQ(u.k.DateiAnzahl, 1);
    EXPECT_EQ(u.ui.titelTexte.back(), "0 Datei(en) hinzugefügt");
    EXPECT_FALSE(FortschrittFensterOffen(u.k));
}

TEST(Hinzufuegen, NeueInListeMarkieren) {
    Umgebung u;
    u.k.DateiAnzahl = 6;
    Ergebnisliste liste;
    for (int32_t e : {2, 6, 1, 5, 3}) liste.zeilen.push_back({e, e == 1});
    NeueInListeMarkieren(u.k, 2, liste);
    std::vector<bool> markiert;
    for (const auto& z : liste.zeilen) markiert.push_back(z.ausgewählt);
    EXPECT_EQ(markiert, (std::vector<bool>{false, true, false, true, false}));
    EXPECT_EQ(liste.sichtbareZeile, 3);  // die letzte neue Zeile der Liste

    // Mehr neue als Zeilen: nichts geschieht.
    const auto vorher = liste.version;
    NeueInListeMarkieren(u.k, 6, liste);
    EXPECT_EQ(liste.version, vorher);
    EXPECT_TRUE(liste.zeilen[1].ausgewählt);
}

TEST(Hinzufuegen, KnoepfeDesDialogs) {
    Umgebung u;
    TestOrdner o;
    DateiSchreiben(o / "a.mp3", kMp3);
    DateiSchreiben(o / "ordner/b.mp3", kMp3);
    DateiSchreiben(o / "liste.m3u", "b.mp3\n");  // liegt nicht daneben: nichts
    EXPECT_EQ(FreigegebeneMasken(u.k), "*.mp3,*.mp2,*.mp1,*.wma,*.wmf,*.wav,*.aac,*.vqf");

    u.ui.dateiListen = {{o / "a.mp3"}};
    DateienHinzufügenFragen(u.k);
    u.ui.ordner = {o / "ordner"};
    OrdnerHinzufügenFragen(u.k);
    u.ui.dateiListen = {{o / "liste.m3u"}};
    PlaylisteImportierenFragen(u.k);
    EXPECT_EQ(IndexPfade(u.k), (std::vector<std::string>{o / "a.mp3", o / "ordner/b.mp3"}));
    EXPECT_EQ(u.ui.titelTexte, (std::vector<std::string>{"1 Datei(en) hinzugefügt", "1 Datei(en) hinzugefügt",
                                                         "0 Datei(en) hinzugefügt"}));
    // Abbrechen im Dialog: still.
    u.ui.dateiListen = {{}};
    DateienHinzufügenFragen(u.k);
    EXPECT_TRUE(u.ui.meldungen.empty());

    for (int i = 1; i <= 13; ++i) u.k.Optionen.DateitypEintrag[i] = "x" + std::to_string(i) + "=0";
    DateienHinzufügenFragen(u.k);
    u.k.Optionen.DateitypEintrag.ReDim(1);
    DateienHinzufügenFragen(u.k);
    ASSERT_EQ(u.ui.meldungen.size(), 2u);
    EXPECT_EQ(u.ui.meldungen[0].text, "Sie können keine Dateien hinzufügen, da kein Dateityp für die Verwaltung "
                                      "freigegeben wurde.\n\nÄndern Sie diese Einstellung in den 'Optionen'.");
    EXPECT_EQ(u.ui.meldungen[1].text, "Sie können keine Dateien hinzufügen, da kein Dateityp eingerichtet wurde.\n\n"
                                      "Installieren Sie dieses Programm neu, um die Dateitypen wiederherzustellen.");
    EXPECT_EQ(u.ui.meldungen[1].schalter, 64);
}
