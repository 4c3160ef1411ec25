#include "IndexTestHilfen.h"
#include "app/Kartei.h"
#include "index/IndexOptionen.h"
#include "app/Ergebnisliste.h"

#include "app/Pfade.h"
#include "shell/Fortschritt.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <random>
#include <vector>

TEST(IndexLesen, BeispielzeileFülltGenauDieseFelder) {
    TestUmgebung u;
    TestOrdner o;
    const std::string zeile = kBeispielGrößen + kBeispielWerte;
    ASSERT_EQ(kBeispielGrößen.size(), 47u);
    ASSERT_EQ(zeile.size(), 150u);
    ASSERT_TRUE(IndexAusBytesLaden(u, o, StandardKopf() + zeile + "\r\n"));

    ASSERT_EQ(u.k.DateiAnzahl, 1);
    EXPECT_EQ(u.k.DateiPfade.UBound(), 1);
    EXPECT_EQ(u.k.DateiTreffer[1], 1);
    EXPECT_EQ(u.k.DateiPfade[1], "C:\\Musik\\Lied.mp3");
    DateiInfo erwartet;
    erwartet.Mp3_ID3v1_Album = "Album";
    erwartet.Mp3_ID3v1_Interpret = "Band";
    erwartet.Mp3_ID3v1_Genre = std::string(1, char(17));
    erwartet.Mp3_ID3v1_Titel = "Lied";
    erwartet.Mp3_ID3v1_Track = "3";
    erwartet.Mp3_ID3v1_Jahr = "2001";
    erwartet.Datei_Größe = 3145728;
    erwartet.Header_Bitrate = 128;
    erwartet.Header_Dauer = 196;
    erwartet.Header_Frequenz = 44100;
    erwartet.Header_Frames = 7530;
    erwartet.Header_VBR = false;
    erwartet.Datei_HinzugefügtAm = "16.11.2001";
    erwartet.Datei_Typ = 1;
    erwartet.Header_Modus = "Joint Stereo";
    erwartet.Datei_AngefordertAnzahl = 2;
    erwartet.Datei_AngefordertGespieltAm = "16.11.2001 20:15:00";
    erwartet.Mp3_ID3v1_Status = 1;
    erwartet.Mp3_ID3v2_Status = 2;  // 20 Größen: kein ID3v2
    EXPECT_EQ(u.k.DateiDaten[1], erwartet);
    EXPECT_FALSE(u.k.DateiGeändert);
    EXPECT_TRUE(u.ui.meldungen.empty());

    // Zurückgeschrieben: Byte für Byte dieselbe Datei.
    ASSERT_TRUE(DateiSpeichern(u.k, o / "neu.kkt", false));
    EXPECT_EQ(DateiLesen(o / "neu.kkt"), StandardKopf() + zeile + "\r\n");
}

TEST(IndexLesen, FehlendeDateiWirdAlsLeererIndexAngelegt) {
    TestUmgebung u;
    TestOrdner o;
    ASSERT_TRUE(DateiLaden(u.k, o / "neu.kkt"));
    EXPECT_EQ(DateiLesen(o / "neu.kkt"), "#TAG:kk100\r\n");
    EXPECT_EQ(u.k.Dateiname, o / "neu.kkt");
    EXPECT_EQ(u.k.DateiAnzahl, 0);
    EXPECT_EQ(u.k.DateiPfade.UBound(), 1000);  // ein leerer Index behält seine 1000 Plätze
    EXPECT_EQ(u.k.DateiDaten.UBound(), 1000);
    EXPECT_EQ(u.k.DateiTreffer.UBound(), 1000);
    // Format älter als 102 ohne Dateitypen: die 13 Vorgaben kommen hinein, der Index gilt als geändert.
    EXPECT_FALSE(u.k.Optionen.DateitypenLeer);
    EXPECT_EQ(u.k.Optionen.DateitypEintrag.UBound(), 13);
    EXPECT_EQ(u.k.Optionen.DateitypEintrag[1], "mp3=1");
    EXPECT_TRUE(u.k.DateiGeändert);
    // Die Hauptliste ist nach der Vorgabe eingerichtet.
    const auto& spalten = u.k.Liste.lstSongs.spalten;
    ASSERT_EQ(spalten.size(), 4u);
    EXPECT_EQ(spalten[0].kopf, "Dateiname");
    EXPECT_EQ(spalten[3].kopf, "Album");
}

TEST(IndexLesen, FormatKennungen) {
    TestOrdner o;
    {  // kk101 mit eigenen Dateitypen: keine Vorgaben, nicht geändert
        TestUmgebung u;
        ASSERT_TRUE(IndexAusBytesLaden(u, o, "#TAG:kk101\r\n#OPT:VERWALTEN=ogg=1,010\r\n"));
        EXPECT_EQ(u.k.Optionen.DateitypEintrag.UBound(), 1);
        EXPECT_FALSE(u.k.DateiGeändert);
    }
    {  // neueres Format: Hinweis, geladen wie 102
        TestUmgebung u;
        ASSERT_TRUE(IndexAusBytesLaden(u, o, "#TAG:kk103\r\n" + kBeispielGrößen + kBeispielWerte + "\r\n"));
        ASSERT_EQ(u.ui.meldungen.size(), 1u);
        EXPECT_EQ(u.ui.meldungen[0].schalter, 64);
        EXPECT_EQ(u.ui.meldungen[0].text,
                  "Die Indexdatei '" + o / "index.kkt" +
                      "' liegt in einem neueren Datei-Format ('103') vor.\nMöglicherweise stehen einige Funktionen "
                      "nicht zur Verfügung oder es können beim Speichern Daten verloren gehen.\n\nInstallieren Sie "
                      "eine neuere Version dieses Programmes, um diesen Hinweis zu verhindern.");
        EXPECT_EQ(u.k.DateiAnzahl, 1);
        EXPECT_TRUE(u.k.Optionen.DateitypenLeer);  // Format 2: keine Übernahme der Vorgaben
    }
    {  // "0" ist als Text nicht größer als "102": kein Hinweis
        TestUmgebung u;
        ASSERT_TRUE(IndexAusBytesLaden(u, o, "#TAG:kk0\r\n"));
        EXPECT_TRUE(u.ui.meldungen.empty());
        EXPECT_TRUE(u.k.Optionen.DateitypenLeer);
    }
    {  // unbekannte Kennung, abgelehnt: false, Dateiname bleibt gesetzt, Datei unberührt
        TestUmgebung u;
        u.ui.antworten = {Meldung::Nein};
        EXPECT_FALSE(IndexAusBytesLaden(u, o, "#TAG:abc\r\n/a.mp3\r\n"));
        ASSERT_EQ(u.ui.meldungen.size(), 1u);
        EXPECT_EQ(u.ui.meldungen[0].schalter, 36);
        EXPECT_EQ(u.ui.meldungen[0].text,
                  "Die Indexdatei '" + o / "index.kkt" +
                      "' liegt in einem älteren Dateiformat vor oder ist ungültig.\nZum Aktualisieren werden nun die "
                      "Datei-Informationen der enthaltenen Dateien neu eingelesen.\n\nSoll die Datei geladen und "
                      "Aktualisierung versucht werden?");
        EXPECT_EQ(u.k.Dateiname, o / "index.kkt");
        EXPECT_EQ(DateiLesen(o / "index.kkt"), "#TAG:abc\r\n/a.mp3\r\n");
    }
}

TEST(IndexLesen, EinfacheListeAlterFassungen) {
    TestUmgebung u;
    TestOrdner o;
    u.ui.antworten = {Meldung::Ja};
    DateiSchreiben(o / "da.mp3", "x");
    // Zeile 1 ist die Kennung und kein Eintrag; CR, LF und CR LF trennen; "#TAG:" und Leerzeilen fallen weg.
    const std::string liste = "/erste.mp3\r\n" + (o / "da.mp3") + "\r\n\r\n/b.mp3\n#TAG:kk102\r/c/\xE4rger.mp3";
    ASSERT_TRUE(IndexAusBytesLaden(u, o, liste));
    ASSERT_EQ(u.k.DateiAnzahl, 3);
    EXPECT_EQ(u.k.DateiPfade[1], o / "da.mp3");
    EXPECT_EQ(u.k.DateiPfade[2], "/b.mp3");
    EXPECT_EQ(u.k.DateiPfade[3], "/c/ärger.mp3");  // Windows-1252 wird zu UTF-8
    EXPECT_EQ(u.k.DateiDaten[2].Mp3_ID3v1_Status, 0);
    EXPECT_EQ(u.k.DateiDaten[2].Datei_Größe, 0);
    EXPECT_EQ(u.k.DateiTreffer[3], 1);
    EXPECT_TRUE(u.k.DateiGeändert);  // Zustimmung zur Aktualisierung
    EXPECT_EQ(u.k.Optionen.DateitypEintrag.UBound(), 13);
    // Die Lücken wurden nur für die vorhandene Datei nachgelesen (die anderen überspringt die Prüfung).
    bool nachgelesen = false;
    for (const auto& a : u.ui.fortschritte) nachgelesen |= a.vorgang == "Datei-Informationen lesen";
    EXPECT_TRUE(nachgelesen);
}

TEST(IndexLesen, Optionszeilen) {
    TestUmgebung u;
    TestOrdner o;
    u.k.Optionen.SpaltenGitter = 1;  // vom vorigen Index
    const std::string bytes = "#TAG:kk102\r\n"
                              "#OPT:SYNC=/musik/neu,1,/musik/ziel\r\n"
                              "#OPT:SYNC=/musik/alt,x\r\n"
                              "#OPT:SYNC_ENTFERNEN=12\r\n"
                              "#OPT:VERWALTEN=ogg=1,110\r\n"
                              "#OPT:VERWALTEN=flac=1,abc\r\n"
                              "#OPT:VERWALTEN=kaputt\r\n"
                              "#OPT:SPALTEN_LEISTE=12\r\n"
                              "#OPT:SPALTEN_NUTZERFORMAT=%Titel% (%Jahr%)\r\n"
                              "#OPT:UNBEKANNT=1\r\n"
                              "#TERMIN:5/1/1/0/1/0/1|Probe11010\r\n"
                              "Kommentarzeile\r\n";
    ASSERT_TRUE(IndexAusBytesLaden(u, o, bytes));
    const IndexOptionen& op = u.k.Optionen;
    EXPECT_FALSE(op.SyncLeer);
    ASSERT_EQ(op.SyncOrdner.UBound(), 2);
    EXPECT_EQ(op.SyncOrdner[1], "/musik/neu");
    EXPECT_EQ(op.SyncUnterordner[1], 1);
    EXPECT_EQ(op.SyncKopierenInOrdner[1], "/musik/ziel");
    EXPECT_EQ(op.SyncOrdner[2], "/musik/alt");
    EXPECT_EQ(op.SyncUnterordner[2], 0);  // "x" ist keine Zahl
    EXPECT_EQ(op.SyncKopierenInOrdner[2], "");
    EXPECT_EQ(op.SyncEntfernen, 1);  // "12" hat zwei Zeichen
    ASSERT_EQ(op.DateitypEintrag.UBound(), 3);
    EXPECT_EQ(op.DateitypEintrag[1], "ogg=1");
    EXPECT_EQ(op.DateitypKlasse[1], "110");
    EXPECT_EQ(op.DateitypEintrag[2], "flac=1");  // halb gefüllt
    EXPECT_EQ(op.DateitypKlasse[2], "");
    EXPECT_EQ(op.DateitypEintrag[3], "");
    EXPECT_EQ(op.SpaltenLeiste, 1);
    EXPECT_EQ(op.SpaltenGitter, 1);  // wird beim Laden nicht zurückgesetzt
    EXPECT_EQ(op.SpaltenNutzerformat, "%Titel% (%Jahr%)");
    EXPECT_TRUE(op.TerminListe.empty());
    EXPECT_EQ(u.k.DateiAnzahl, 0);
    EXPECT_TRUE(u.k.Liste.lstSongs.gitter);

    // Der nächste Index setzt alles außer dem Gitter zurück; Leiste 0 blendet die Kopfleiste aus.
    ASSERT_TRUE(IndexAusBytesLaden(u, o, "#TAG:kk102\r\n#OPT:SPALTEN_LEISTE=0\r\n#OPT:SYNC_ENTFERNEN=0\r\n", "b.kkt"));
    EXPECT_TRUE(u.k.Optionen.SyncLeer);
    EXPECT_TRUE(u.k.Optionen.DateitypenLeer);
    EXPECT_EQ(u.k.Optionen.SyncEntfernen, 0);
    EXPECT_EQ(u.k.Optionen.SpaltenNutzerformat, "%Interpret% - %Titel%");
    EXPECT_EQ(u.k.Optionen.SpaltenGitter, 1);
    EXPECT_FALSE(u.k.Liste.lstSongs.kopfleiste);
}

namespace {
// Eine Datensatzzeile aus Größentexten (wie sie in der Datei stehen) und den Werten dahinter.
std::string Zeile(const std::vector<std::string>& größen, const std::string& werte) {
    std::string z = "#TAG:";
    for (size_t i = 0; i < größen.size(); ++i) z += (i ? "/" : "") + größen[i];
    return z + "|" + werte + "\r\n";
}
std::vector<std::string> Größen(size_t anzahl, std::vector<std::pair<size_t, std::string>> gesetzt) {
    std::vector<std::string> g(anzahl);
    for (auto& [feld, text] : gesetzt) g[feld - 1] = text;
    return g;
}
}  // namespace

TEST(IndexLesen, GrößenlistenMitFehlern) {
    TestUmgebung u;
    TestOrdner o;
    const std::string bytes =
        "#TAG:kk102\r\n" +
        // leere Größen zählen als 0, die Werte stehen dicht
        Zeile(Größen(20, {{1, "6"}}), "/a.mp3") +
        // zu große, zu kleine und unlesbare Größen bleiben 0
        Zeile(Größen(20, {{1, "6"}, {2, "1001"}, {3, "-5"}, {4, "x"}}), "/b.mp3") +
        // -1 ist eine gültige Größe, trägt aber keinen Wert
        Zeile(Größen(20, {{1, "6"}, {2, "-1"}, {3, "4"}}), "/c.mp3Band") +
        // nur eine Größe: fällt weg
        "#TAG:6|/d.mp3\r\n"
        // ohne "|" endet die Liste nie: fällt weg, ohne zu hängen
        "#TAG:6/3/4\r\n"
        "#TAG:" +
        std::string(5000, '/') + "\r\n" +
        // nur Größen, keine Werte: ein leerer Eintrag
        "#TAG:6/5/4|\r\n" +
        // ungültige Zahlen und Daten lassen die Vorgaben stehen
        Zeile(Größen(20,
                     {{1, "6"}, {5, "3"}, {9, "3"}, {11, "3"}, {15, "2"}, {16, "10"}, {17, "5"}, {19, "1"}, {20, "4"}}),
              "/f.mp3300abc12x-331.02.200199999xkein") +
        // 41 Größen: Feld 40 wird gelesen, Feld 41 nicht
        Zeile(Größen(41, {{1, "6"}, {40, "4"}, {41, "3"}}), "/g.mp3TIT2neu") +
        // 42 Größen: die 42. zählt nicht einmal für die Lage
        Zeile(Größen(42, {{1, "6"}, {40, "4"}, {41, "3"}, {42, "5"}}), "/h.mp3TIT2neu12345");
    ASSERT_TRUE(IndexAusBytesLaden(u, o, bytes));
    ASSERT_EQ(u.k.DateiAnzahl, 7);
    const auto& p = u.k.DateiPfade;
    const auto& d = u.k.DateiDaten;
    EXPECT_EQ(p[1], "/a.mp3");
    EXPECT_EQ(d[1].Mp3_ID3v1_Status, 2);
    EXPECT_EQ(d[1].Mp3_ID3v2_Status, 2);  // 20 Größen
    EXPECT_EQ(d[1].Datei_Größe, -1);
    EXPECT_EQ(p[2], "/b.mp3");
    EXPECT_EQ(d[2].Mp3_ID3v1_Status, 2);
    EXPECT_EQ(p[3], "/c.mp3");
    EXPECT_EQ(d[3].Mp3_ID3v1_Interpret, "Band");
    EXPECT_EQ(p[4], "");
    EXPECT_EQ(d[4].Mp3_ID3v1_Album, "");

    const DateiInfo& f = d[5];
    EXPECT_EQ(p[5], "/f.mp3");
    EXPECT_EQ(f.Mp3_ID3v1_Genre, "");  // 300 ist kein Zeichen
    EXPECT_EQ(f.Mp3_ID3v1_Status, 1);  // das Feld war trotzdem nicht leer
    EXPECT_EQ(f.Datei_Größe, -1);
    EXPECT_EQ(f.Header_Bitrate, 0);
    EXPECT_FALSE(f.Header_VBR);
    EXPECT_EQ(f.Datei_HinzugefügtAm, "");
    EXPECT_EQ(f.Datei_Typ, 0);  // 99999 passt nicht in 16 Bit
    EXPECT_EQ(f.Datei_AngefordertAnzahl, 0);
    EXPECT_EQ(f.Datei_AngefordertGespieltAm, "");

    EXPECT_EQ(p[6], "/g.mp3");
    EXPECT_EQ(d[6].Mp3_ID3v2_TIT2, "TIT2");
    EXPECT_EQ(d[6].Mp3_ID3v2_Status, 1);
    EXPECT_EQ(p[7], "/h.mp3");
    EXPECT_EQ(d[7].Mp3_ID3v2_TIT2, "TIT2");
    EXPECT_TRUE(u.ui.meldungen.empty());  // nichts davon erreicht die Person
}

TEST(IndexLesen, UnsinnLädtOhneAbsturzUndOhneHängen) {
    TestOrdner o;
    std::mt19937 zufall(4711);
    for (int runde = 0; runde < 20; ++runde) {
        TestUmgebung u;
        std::string bytes = runde % 2 ? "#TAG:kk102\r\n" : "";
        const size_t länge = std::uniform_int_distribution<size_t>(0, 20000)(zufall);
        for (size_t i = 0; i < länge; ++i) {
            // Viele Trennzeichen und Zeilenanfänge, damit der Leser auch tief hineinläuft.
            static const char kSatz[] = "#TAG:/|0123456789\r\n";
            bytes.push_back(zufall() % 3 ? kSatz[zufall() % (sizeof kSatz - 1)] : char(zufall()));
        }
        u.ui.antworten = {Meldung::Ja};
        EXPECT_TRUE(IndexAusBytesLaden(u, o, bytes));
        EXPECT_LE(u.k.DateiAnzahl, u.k.DateiPfade.UBound());
    }
    {  // Ein Gerät ohne Ende ist keine Indexdatei: abgelehnt wie ein ungültiges Format, ohne zu hängen.
        TestUmgebung u;
        u.ui.antworten = {Meldung::Nein};
        EXPECT_FALSE(DateiLaden(u.k, "/dev/zero"));
    }
    // Mitten in einer Zeile abgeschnitten: der Rest zählt als letzte Zeile.
    TestUmgebung u;
    const std::string ganz = kBeispielGrößen + kBeispielWerte;
    ASSERT_TRUE(IndexAusBytesLaden(u, o, "#TAG:kk102\r\n" + ganz.substr(0, 80)));
    ASSERT_EQ(u.k.DateiAnzahl, 1);
    EXPECT_EQ(u.k.DateiDaten[1].Mp3_ID3v1_Album, "Album");
    EXPECT_EQ(u.k.DateiDaten[1].Datei_Größe, -1);  // stand hinter dem Schnitt
}

TEST(IndexLesen, WachstumDerTabelle) {
    TestUmgebung u;
    TestOrdner o;
    std::string bytes = "#TAG:kk102\r\n";
    for (int i = 1; i <= 1001; ++i) {
        const std::string pfad = "/m/" + std::to_string(i) + ".mp3";
        bytes += Zeile(Größen(20, {{1, std::to_string(pfad.size())}}), pfad);
    }
    ASSERT_TRUE(IndexAusBytesLaden(u, o, bytes));
    EXPECT_EQ(u.k.DateiAnzahl, 1001);
    EXPECT_EQ(u.k.DateiPfade.UBound(), 1001);
    EXPECT_EQ(u.k.DateiDaten.UBound(), 1001);
    EXPECT_EQ(u.k.DateiTreffer.UBound(), 1001);
    EXPECT_EQ(u.k.DateiPfade[1001], "/m/1001.mp3");
    // Der Fortschritt meldet sich nur alle 500 Einträge (plus Anfang und Ende).
    int meldungen = 0;
    for (const auto& a : u.ui.fortschritte) meldungen += a.vorgang.starts_with("Lade '");
    EXPECT_LE(meldungen, 6);
}

TEST(IndexLesen, WartetAufLaufendeSpeicherung) {
    TestOrdner o;
    const std::string index = o / "index.kkt", temp = index + "~";
    DateiSchreiben(index, "#TAG:kk102\r\n" + kBeispielGrößen + kBeispielWerte + "\r\n");
    const std::string frage =
        "Klangkartei wurde entweder nicht korrekt beendet oder speichert gerade Ihre Indexdatei.\nDurch den "
        "Ladevorgang dieser Datei würde der Speicher-Vorgang unterbrochen und Datenverlust könnte die Folge "
        "sein.\n\nMöchten Sie den Ladevorgang fortsetzen?";
    {  // die "~"-Datei verschwindet während des Wartens: keine Frage
        TestUmgebung u;
        u.uhr.schrittMs = 500;
        DateiSchreiben(temp, "x");
        u.ui.beiEreignissen = [&] { std::remove(temp.c_str()); };
        ASSERT_TRUE(DateiLaden(u.k, index));
        EXPECT_TRUE(u.ui.meldungen.empty());
        EXPECT_EQ(u.k.DateiAnzahl, 1);
        ASSERT_FALSE(u.ui.fortschritte.empty());
        EXPECT_EQ(u.ui.fortschritte.front().vorgang, "Warte auf Verfügbarkeit von 'index.kkt'");
    }
    {  // sie bleibt; Nein: nichts geladen, nichts gelöscht
        TestUmgebung u;
        u.uhr.schrittMs = 1000;
        u.ui.antworten = {Meldung::Nein};
        DateiSchreiben(temp, "x");
        EXPECT_FALSE(DateiLaden(u.k, index));
        ASSERT_EQ(u.ui.meldungen.size(), 1u);
        EXPECT_EQ(u.ui.meldungen[0].text, frage);
        EXPECT_EQ(u.ui.meldungen[0].schalter, 52);
        EXPECT_TRUE(DoesExist(temp));
        EXPECT_FALSE(u.k.Fortschritt.ansicht.offen);
    }
    {  // Ja, ohne Startbildschirm: die "~"-Datei wird gelöscht, der Index geladen
        TestUmgebung u;
        u.k.E.StartBildschirm = 0;
        u.uhr.schrittMs = 1000;
        u.ui.antworten = {Meldung::Ja};
        EXPECT_TRUE(DateiLaden(u.k, index));
        EXPECT_FALSE(DoesExist(temp));
        EXPECT_EQ(u.k.DateiAnzahl, 1);
        EXPECT_TRUE(u.ui.fortschritte.empty());
    }
}

TEST(IndexLesen, LückenWerdenVonDerPlatteNachgelesen) {
    TestOrdner o;
    DateiSchreiben(o / "da.mp3", "x");
    const std::string da = o / "da.mp3";
    const std::string bytes = "#TAG:kk102\r\n" +
                              // ohne Datum: nachlesen (Datei da)
                              Zeile(Größen(20, {{1, std::to_string(da.size())}, {9, "1"}}), da + "1") +
                              // vollständig: bleibt
                              Zeile(Größen(20, {{1, "6"}, {9, "1"}, {16, "10"}}), "/x.mp3101.01.2001") +
                              // Größe -1 und Datei fehlt: übersprungen
                              Zeile(Größen(20, {{1, "6"}, {9, "2"}, {16, "10"}}), "/y.mp3-101.01.2001");
    {
        TestUmgebung u;
        ASSERT_TRUE(IndexAusBytesLaden(u, o, bytes));
        EXPECT_EQ(u.k.DateiAnzahl, 3);
        EXPECT_TRUE(u.k.DateiGeändert);  // ein Eintrag wurde neu gelesen
        std::vector<std::string> gelesen;
        for (const auto& a : u.ui.fortschritte)
            if (a.vorgang == "Datei-Informationen lesen" && a.prozessSichtbar) gelesen.push_back(a.prozess);
        EXPECT_NE(std::find(gelesen.begin(), gelesen.end(), da), gelesen.end());
        EXPECT_EQ(std::find(gelesen.begin(), gelesen.end(), "/x.mp3"), gelesen.end());
    }
    {  // Mp3TagLesen "000": kein Nachlesen
        TestUmgebung u;
        u.k.E.Mp3TagLesen = "000";
        ASSERT_TRUE(IndexAusBytesLaden(u, o, bytes));
        EXPECT_FALSE(u.k.DateiGeändert);
    }
    {  // Abbrechen hält nur das Nachlesen an
        TestUmgebung u;
        u.ui.beiEreignissen = [&] {
            if (u.k.Fortschritt.ansicht.vorgang == "Datei-Informationen lesen") FortschrittAbbrechenGedrückt(u.k);
        };
        ASSERT_TRUE(IndexAusBytesLaden(u, o, bytes));
        EXPECT_EQ(u.k.DateiAnzahl, 3);
        EXPECT_FALSE(u.k.DateiGeändert);
    }
}

TEST(IndexLesen, ZeichensatzJeFeld) {
    TestUmgebung u;
    TestOrdner o;
    const std::string bytes =
        "#TAG:kk102\r\n" +
        // Die Zeile ist gültiges UTF-8, aber die Größen teilen das "ä": beide Hälften gelten als Windows-1252.
        Zeile(Größen(20, {{1, "6"}, {2, "1"}, {3, "2"}, {4, "2"}}), "/x.mp3\xC3\xA4"
                                                                    "b\xC3\xB6") +
        // Windows-1252 einer älteren Fassung
        Zeile(Größen(20, {{1, "6"}, {2, "5"}}), "/y.mp3\xC4rger");
    ASSERT_TRUE(IndexAusBytesLaden(u, o, bytes));
    ASSERT_EQ(u.k.DateiAnzahl, 2);
    EXPECT_EQ(u.k.DateiDaten[1].Mp3_ID3v1_Album, "Ã");
    EXPECT_EQ(u.k.DateiDaten[1].Mp3_ID3v1_Interpret, "¤b");
    EXPECT_EQ(u.k.DateiDaten[1].Mp3_ID3v1_Kommentar, "ö");
    EXPECT_EQ(u.k.DateiDaten[2].Mp3_ID3v1_Album, "Ärger");
}
