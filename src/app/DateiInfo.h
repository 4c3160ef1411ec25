#pragma once
// Der Datensatz einer Mediendatei, Felder in der festen Reihenfolge (Indexdatei, "show").
// Long = int32_t, Integer = int16_t, Byte = uint8_t. Texte sind UTF-8.
#include <cstdint>
#include "app/KText.h"

#include <string>

struct DateiInfo {
    KText Mp3_ID3v1_TAG;  // "TAG", wenn ein ID3v1-Tag gelesen wurde; nicht gespeichert
    KText Mp3_ID3v1_Titel;
    KText Mp3_ID3v1_Interpret;
    KText Mp3_ID3v1_Album;
    KText Mp3_ID3v1_Jahr;
    KText Mp3_ID3v1_Kommentar;
    KText Mp3_ID3v1_Track;
    KText Mp3_ID3v1_Genre;    // genau ein Zeichen (Code = Genre-Nummer) oder leer
    int32_t Datei_Größe = 0;  // -1: unbekannt
    KText Datei_Wechselmedium;
    KText Datei_HinzugefügtAm;
    int16_t Datei_Typ = 0;
    int32_t Datei_AngefordertAnzahl = 0;
    KText Datei_AngefordertGespieltAm;
    int32_t Header_Bitrate = 0;
    int32_t Header_Frequenz = 0;
    int32_t Header_Dauer = 0;
    int16_t Header_Version = 0;
    int16_t Header_Layer = 0;
    bool Header_VBR = false;
    bool Header_Original = false;
    KText Header_Emphasis;
    bool Header_Copyright = false;
    KText Header_Modus;
    bool Header_Privat = false;
    bool Header_Padding = false;
    bool Header_CRC = false;
    int32_t Header_Frames = 0;
    int32_t Header_Position = 0;
    uint8_t Mp3_ID3v1_Status = 0;
    uint8_t Mp3_ID3v2_Status = 0;
    KText Mp3_ID3v2_Version;
    int32_t Mp3_ID3v2_TAGGröße = 0;
    int32_t Mp3_ID3v2_TAGPosition = 0;
    int32_t Mp3_ID3v2_Benutzt = 0;
    KText Mp3_ID3v2_PCNT;
    KText Mp3_ID3v2_TRCK;
    KText Mp3_ID3v2_TENC;
    KText Mp3_ID3v2_WXXX;
    KText Mp3_ID3v2_TCOP;
    KText Mp3_ID3v2_TOPE;
    KText Mp3_ID3v2_TCOM;
    KText Mp3_ID3v2_TCON;
    KText Mp3_ID3v2_COMM;
    KText Mp3_ID3v2_TYER;
    KText Mp3_ID3v2_TALB;
    KText Mp3_ID3v2_TPE1;
    KText Mp3_ID3v2_TIT2;
    KText Mp3_ID3v2_TLAN;
    KText Mp3_ID3v2_TLEN;
    KText Mp3_ID3v2_TMED;
    KText Mp3_ID3v2_TPUB;
    KText Mp3_ID3v2_TSSE;
    KText Mp3_ID3v2_Weitere;  // Rahmen ohne eigenes Feld; nicht gespeichert

    bool operator==(const DateiInfo&) const = default;
};

// Zugriff auf die Felder über ihren Namen, in der deklarierten Reihenfolge
// (für "show", "tag Name=Wert" und Tests). Ein Feld ist Text, Zahl oder Wahrheitswert.
enum class FeldArt { Text, Zahl, Wahrheit };
struct DateiInfoFeld {
    const char* name;
    FeldArt art;
};
// Alle Felder in deklarierter Reihenfolge.
const DateiInfoFeld* DateiInfoFelder(int& anzahl);
// Wert als Text: Wahrheitswerte 1/0, Zahlen dezimal, Mp3_ID3v1_Genre als Code oder leer.
bool DateiInfoFeldLesen(const DateiInfo& d, const std::string& name, std::string& wert);
// Setzt ein Feld aus Text (gleiche Form wie beim Lesen); false bei unbekanntem Namen oder Unsinn.
bool DateiInfoFeldSetzen(DateiInfo& d, const std::string& name, const std::string& wert);
