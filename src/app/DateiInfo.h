#pragma once
// Der Datensatz einer Mediendatei, Felder in der festen Reihenfolge (Indexdatei, "show").
// Long = int32_t, Integer = int16_t, Byte = uint8_t. Texte sind UTF-8.
#include <cstdint>
#include <string>

struct DateiInfo {
    std::string Mp3_ID3v1_TAG;  // "TAG", wenn ein ID3v1-Tag gelesen wurde; nicht gespeichert
    std::string Mp3_ID3v1_Titel;
    std::string Mp3_ID3v1_Interpret;
    std::string Mp3_ID3v1_Album;
    std::string Mp3_ID3v1_Jahr;
    std::string Mp3_ID3v1_Kommentar;
    std::string Mp3_ID3v1_Track;
    std::string Mp3_ID3v1_Genre;  // genau ein Zeichen (Code = Genre-Nummer) oder leer
    int32_t Datei_Größe = 0;      // -1: unbekannt
    std::string Datei_Wechselmedium;
    std::string Datei_HinzugefügtAm;
    int16_t Datei_Typ = 0;
    int32_t Datei_AngefordertAnzahl = 0;
    std::string Datei_AngefordertGespieltAm;
    int32_t Header_Bitrate = 0;
    int32_t Header_Frequenz = 0;
    int32_t Header_Dauer = 0;
    int16_t Header_Version = 0;
    int16_t Header_Layer = 0;
    bool Header_VBR = false;
    bool Header_Original = false;
    std::string Header_Emphasis;
    bool Header_Copyright = false;
    std::string Header_Modus;
    bool Header_Privat = false;
    bool Header_Padding = false;
    bool Header_CRC = false;
    int32_t Header_Frames = 0;
    int32_t Header_Position = 0;
    uint8_t Mp3_ID3v1_Status = 0;
    uint8_t Mp3_ID3v2_Status = 0;
    std::string Mp3_ID3v2_Version;
    int32_t Mp3_ID3v2_TAGGröße = 0;
    int32_t Mp3_ID3v2_TAGPosition = 0;
    int32_t Mp3_ID3v2_Benutzt = 0;
    std::string Mp3_ID3v2_PCNT;
    std::string Mp3_ID3v2_TRCK;
    std::string Mp3_ID3v2_TENC;
    std::string Mp3_ID3v2_WXXX;
    std::string Mp3_ID3v2_TCOP;
    std::string Mp3_ID3v2_TOPE;
    std::string Mp3_ID3v2_TCOM;
    std::string Mp3_ID3v2_TCON;
    std::string Mp3_ID3v2_COMM;
    std::string Mp3_ID3v2_TYER;
    std::string Mp3_ID3v2_TALB;
    std::string Mp3_ID3v2_TPE1;
    std::string Mp3_ID3v2_TIT2;
    std::string Mp3_ID3v2_TLAN;
    std::string Mp3_ID3v2_TLEN;
    std::string Mp3_ID3v2_TMED;
    std::string Mp3_ID3v2_TPUB;
    std::string Mp3_ID3v2_TSSE;
    std::string Mp3_ID3v2_Weitere;  // Rahmen ohne eigenes Feld; nicht gespeichert

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
