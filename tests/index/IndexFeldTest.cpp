#include "app/Kartei.h"
#include "app/Tabelle.h"
#include "app/Zeitformat.h"
#include "fileops/DateinamenFormatieren.h"
#include "index/IndexFeld.h"
#include "support/Attrappen.h"

#include <gtest/gtest.h>

namespace {
struct Feld {
    std::string wert;
    int16_t art = -1;
    bool ok = false;
};
Feld Lesen(const Kartei& k, int32_t nummer, const std::string& feld, const std::string& modus = "") {
    Feld f;
    f.ok = IndexFeldZurückgeben(k, nummer, feld, modus, f.wert, f.art);
    return f;
}

// Eintrag 1: das Beispiel-Lied mit beiden Tags; Eintrag 2: ohne Tags und Kopfdaten.
void Füllen(Kartei& k) {
    IndexGrößeÄndern(k, 2, false);
    k.DateiAnzahl = 2;
    k.DateiPfade[1] = "/Musik/Band/Lied.mp3";
    DateiInfo& d = k.DateiDaten[1];
    d.Mp3_ID3v1_Status = 1;
    d.Mp3_ID3v1_Titel = "Lied";
    d.Mp3_ID3v1_Interpret = "Band";
    d.Mp3_ID3v1_Album = "Album";
    d.Mp3_ID3v1_Jahr = "2001";
    d.Mp3_ID3v1_Track = "3";
    d.Mp3_ID3v1_Kommentar = "gut";
    d.Mp3_ID3v1_Genre = std::string(1, char(17));
    d.Datei_Größe = 3145728;
    d.Header_Bitrate = 128;
    d.Header_Dauer = 196;
    d.Header_Frequenz = 44100;
    d.Header_Modus = "Joint Stereo";
    d.Header_Frames = 7530;
    d.Datei_HinzugefügtAm = "16.11.2001";
    d.Datei_AngefordertAnzahl = 2;
    d.Datei_AngefordertGespieltAm = "16.11.2001 20:15:00";
    d.Datei_Wechselmedium = "CD 3";
    d.Mp3_ID3v2_Status = 1;
    d.Mp3_ID3v2_TPE1 = "Die Band";
    d.Mp3_ID3v2_TIT2 = "Das Lied";
    d.Mp3_ID3v2_TALB = "Das Album";
    d.Mp3_ID3v2_TYER = "2002";
    d.Mp3_ID3v2_COMM = "sehr gut";
    d.Mp3_ID3v2_TRCK = "12/14";
    d.Mp3_ID3v2_TCON = "(17)Rock";
    d.Mp3_ID3v2_Version = ".3.0";
    d.Mp3_ID3v2_TAGGröße = 4096;
    k.DateiPfade[2] = "/Musik/ohne";
    k.DateiDaten[2].Mp3_ID3v1_Status = 2;
    k.DateiDaten[2].Mp3_ID3v1_Titel = "versteckt";  // Status nicht 1: nicht gezeigt
    k.DateiDaten[2].Mp3_ID3v1_Genre = std::string(1, char(255));
    k.DateiDaten[2].Datei_Größe = -1;
    k.DateiDaten[2].Header_Dauer = -1;
    k.DateiDaten[2].Datei_HinzugefügtAm = "gestern";
    k.DateiDaten[2].Mp3_ID3v2_TCON = "(17)Rock";
}
}  // namespace

TEST(IndexFeld, AlleFelderMitArt) {
    TestUmgebung u;
    Füllen(u.k);
    struct Fall {
        const char* feld;
        const char* wert;
        int16_t art;
    };
    const Fall fälle[] = {
        {"Nummer", "1", 1},
        {"Pfad", "/Musik/Band", 0},
        {"Dateiname", "Lied.mp3", 0},
        {"Interpret", "Band", 0},
        {"Titel", "Lied", 0},
        {"Album", "Album", 0},
        {"Jahr", "2001", 0},
        {"Track", "3", 1},
        {"Titelnummer", "03", 1},
        {"Genre", "Rock", 0},
        {"Kommentar", "gut", 0},
        {"Größe", "3.145.728", 1},
        {"Bitrate", "128 CBR", 0},
        {"Dauer", "3:16", 4},
        {"Frequenz", "44100 Hz, Joint Stereo", 0},
        {"Frames", "7530", 1},
        {"Wechselmedium", "CD 3", 0},
        {"Hinzufüge-Datum", "16.11.2001", 2},
        {"Datei-Endung", ".mp3", 0},
        {"Abspiel-Datum", "16.11.2001 20:15:00", 3},
        {"Abspiel-Häufigkeit", "2", 1},
        {"Pfad+Dateiname", "/Musik/Band/Lied.mp3", 0},
        {"Benutzerdefiniert", "Band - Lied", 0},
        {"Interpret-ID3v2", "Die Band", 0},
        {"Titel-ID3v2", "Das Lied", 0},
        {"Album-ID3v2", "Das Album", 0},
        {"Jahr-ID3v2", "2002", 0},
        {"Track-ID3v2", "12/14", 1},
        {"Genre-ID3v2", "Rock", 0},
        {"Kommentar-ID3v2", "sehr gut", 0},
        {"ID3v2-TAG-Version", "2.3.0", 0},
        {"ID3v2-TAG-Größe", "4.096", 1},
        {"(Standardsuche)", "Die Band Das Lied Band Lied Album /Musik/Band/Lied.mp3", 0},
        {"%Jahr%: %Titel-ID3v2%", "2001: Das Lied", 0},
    };
    for (const auto& f : fälle) {
        const Feld e = Lesen(u.k, 1, f.feld);
        EXPECT_TRUE(e.ok) << f.feld;
        EXPECT_EQ(e.wert, f.wert) << f.feld;
        EXPECT_EQ(e.art, f.art) << f.feld;
    }
    // Sortierform der Daten
    EXPECT_EQ(Lesen(u.k, 1, "Hinzufüge-Datum", "1").wert, "2001|11|16");
    EXPECT_EQ(Lesen(u.k, 1, "Abspiel-Datum", "1").wert, "2001|11|16 20:15:00");
    EXPECT_EQ(Lesen(u.k, 1, "Abspiel-Datum", "0").wert, "16.11.2001 20:15:00");
    // Dieselben Werte über Spaltennummer und vorab erkanntes Feld
    std::string wert = "alter Inhalt";
    int16_t art = -1;
    EXPECT_TRUE(IndexFeldZurückgeben(u.k, 1, 13, false, wert, art));
    EXPECT_EQ(wert, "3:16");
    EXPECT_EQ(art, 4);
    EXPECT_TRUE(IndexFeldZurückgeben(u.k, 1, IndexFeldVorbereiten("Titelnummer"), false, wert, art));
    EXPECT_EQ(wert, "03");
}

TEST(IndexFeld, Grenzfälle) {
    TestUmgebung u;
    Füllen(u.k);
    // Ohne Tag-Status 1 bleiben die Tag-Felder leer, die Art bleibt.
    EXPECT_EQ(Lesen(u.k, 2, "Titel").wert, "");
    EXPECT_EQ(Lesen(u.k, 2, "Titelnummer").wert, "");
    EXPECT_EQ(Lesen(u.k, 2, "Genre-ID3v2").wert, "");
    const Feld größe = Lesen(u.k, 2, "Größe");
    EXPECT_EQ(größe.wert, "");
    EXPECT_EQ(größe.art, 1);
    const Feld datum = Lesen(u.k, 2, "Hinzufüge-Datum");
    EXPECT_EQ(datum.wert, "");
    EXPECT_EQ(datum.art, 2);
    EXPECT_EQ(Lesen(u.k, 2, "Dauer").wert, "");  // negativ
    EXPECT_EQ(Lesen(u.k, 2, "Bitrate").wert, "");
    EXPECT_EQ(Lesen(u.k, 2, "Frequenz").wert, "");
    EXPECT_EQ(Lesen(u.k, 2, "Frames").wert, "");
    EXPECT_EQ(Lesen(u.k, 2, "Dateiname").wert, "ohne");
    EXPECT_EQ(Lesen(u.k, 2, "Datei-Endung").wert, "");
    u.k.DateiDaten[2].Mp3_ID3v1_Status = 1;
    EXPECT_EQ(Lesen(u.k, 2, "Genre").wert, "");  // Code 255 liegt hinter der Tabelle
    u.k.DateiDaten[2].Mp3_ID3v1_Genre = std::string(1, char(144));
    EXPECT_FALSE(Lesen(u.k, 2, "Genre").wert.empty());
    u.k.DateiDaten[2].Mp3_ID3v1_Genre = std::string(1, char(145));
    EXPECT_EQ(Lesen(u.k, 2, "Genre").wert, "");
    // Frequenz ohne Modus, VBR, lange Tracknummer, TCON ohne Klammer, Version ohne Punkt
    DateiInfo& d = u.k.DateiDaten[1];
    d.Header_Modus.clear();
    d.Header_VBR = true;
    d.Mp3_ID3v1_Track = "123";
    d.Mp3_ID3v2_TCON = "Rock";
    d.Mp3_ID3v2_Version = "2.4.0";
    d.Header_Dauer = 3600;
    d.Mp3_ID3v2_TRCK = "7";
    EXPECT_EQ(Lesen(u.k, 1, "Frequenz").wert, "44100 Hz");
    EXPECT_EQ(Lesen(u.k, 1, "Bitrate").wert, "128 VBR");
    EXPECT_EQ(Lesen(u.k, 1, "Titelnummer").wert, "123");
    EXPECT_EQ(Lesen(u.k, 1, "Genre-ID3v2").wert, "Rock");
    EXPECT_EQ(Lesen(u.k, 1, "ID3v2-TAG-Version").wert, "2.4.0");
    EXPECT_EQ(Lesen(u.k, 1, "Dauer").wert, "1:00:00");
    EXPECT_EQ(Lesen(u.k, 1, "Track-ID3v2").wert, "07");
    // Unbekannte Namen (Groß/Klein zählt) und Nummern außerhalb: leer und false
    EXPECT_FALSE(Lesen(u.k, 1, "titel").ok);
    EXPECT_EQ(Lesen(u.k, 1, "titel").wert, "");
    EXPECT_FALSE(Lesen(u.k, 0, "Titel").ok);
    EXPECT_FALSE(Lesen(u.k, 3, "Nummer").ok);
    // Leeres Muster der benutzerdefinierten Spalte
    u.k.Optionen.SpaltenNutzerformat.clear();
    EXPECT_EQ(Lesen(u.k, 1, "Benutzerdefiniert").wert, "");
}

TEST(IndexFeld, SekundenFormatieren) {
    EXPECT_EQ(SekundenFormatieren(0), "0:00");
    EXPECT_EQ(SekundenFormatieren(196), "3:16");
    EXPECT_EQ(SekundenFormatieren(3599), "59:59");
    EXPECT_EQ(SekundenFormatieren(3600), "1:00:00");
    EXPECT_EQ(SekundenFormatieren(90061), "25:01:01");
    EXPECT_EQ(SekundenFormatieren(59, true), "0:00:59");
    EXPECT_EQ(SekundenFormatieren(-75), "-1:15");
}

TEST(IndexFeld, DateinamenFormatieren) {
    TestUmgebung u;
    Füllen(u.k);
    EXPECT_EQ(DateinamenFormatieren(u.k, "%Interpret% - %Titel%", 1), "Band - Lied");
    EXPECT_EQ(DateinamenFormatieren(u.k, "%Titelnummer%. %Titel% (%Titel%)", 1), "03. Lied (Lied)");
    EXPECT_EQ(DateinamenFormatieren(u.k, "ohne Platzhalter", 1), "ohne Platzhalter");
    EXPECT_EQ(DateinamenFormatieren(u.k, "%Jahr%/%Album%/%Titel", 1), "2001/Album/%Titel");  // einzelnes "%"
    // Ein unbekannter Platzhalter beendet die Ersetzung: was dahinter steht, bleibt auch.
    EXPECT_EQ(DateinamenFormatieren(u.k, "%Titel% %Quatsch% %Jahr%", 1), "Lied %Quatsch% %Jahr%");
    EXPECT_EQ(DateinamenFormatieren(u.k, "%titel%", 1), "%titel%");
    EXPECT_EQ(DateinamenFormatieren(u.k, "50%% %Titel%", 1), "50%% %Titel%");
    // Ein eingesetzter Wert mit "%…%" wird auch ersetzt …
    u.k.DateiDaten[1].Mp3_ID3v1_Kommentar = "aus %Album%";
    EXPECT_EQ(DateinamenFormatieren(u.k, "%Titel%: %Kommentar%", 1), "Lied: aus Album");
    // … und ein Wert, der sich selbst oder den anderen einsetzt, beendet sie, statt zu hängen.
    u.k.DateiDaten[1].Mp3_ID3v1_Kommentar = "%Kommentar%";
    EXPECT_EQ(DateinamenFormatieren(u.k, "[%Kommentar%]", 1), "[%Kommentar%]");
    u.k.DateiDaten[1].Mp3_ID3v1_Titel = "%Interpret%";
    u.k.DateiDaten[1].Mp3_ID3v1_Interpret = "%Titel%";
    EXPECT_FALSE(DateinamenFormatieren(u.k, "%Titel%", 1).empty());
    u.k.DateiDaten[1].Mp3_ID3v1_Titel = "%Titel%%Titel%";
    EXPECT_LE(DateinamenFormatieren(u.k, "%Titel%", 1).size(), 200000u);
    u.k.Optionen.SpaltenNutzerformat = "<%Benutzerdefiniert%>";
    EXPECT_FALSE(Lesen(u.k, 1, "Benutzerdefiniert").wert.empty());
    // Ein Muster, das sich selbst einsetzt und dabei wächst, endet sofort, statt sich über alle
    // Schachtelungen und Runden zu vervielfachen (das hielt die Liste sekundenlang auf).
    u.k.Optionen.SpaltenNutzerformat = "%Benutzerdefiniert%%Titel%";
    EXPECT_EQ(Lesen(u.k, 1, "Benutzerdefiniert").wert, "%Benutzerdefiniert%%Titel%");
    u.k.DateiDaten[1].Mp3_ID3v1_Titel = "x%Titel%";
    EXPECT_EQ(DateinamenFormatieren(u.k, "[%Titel%]", 1), "[%Titel%]");
}
