#pragma once
// Die Felder von DateiInfo an einer Stelle: Name, Form, Platz in der Indexdatei, ID3v2-Rahmen
// und Spalte der Hauptliste. Leser, Schreiber, Spalten, "show"/"tag" und die Tag-Routinen holen
// ihr Wissen über die Felder von hier; ihre eigene Reihenfolge ist eine Liste über diese Tabelle.
#include "app/DateiInfo.h"

#include <cstdint>
#include <string_view>

// Wie ein Wert als Text aussieht (Indexdatei, "show", "tag Name=Wert").
enum class FeldForm : uint8_t {
    Text,
    Datum,     // Text, den die Indexdatei nur als Datum annimmt
    Genre,     // ein Zeichen, als Text sein Code (0..255) oder leer
    Zahl,      // Long, Integer oder Byte, dezimal
    Wahrheit,  // "1" oder "0"
};
enum class FeldTyp : uint8_t { Text, Long, Integer, Byte, Wahrheit };

// Zeiger auf ein Mitglied von DateiInfo samt seinem Typ.
struct FeldZeiger {
    FeldTyp typ;
    union {
        KText DateiInfo::*text;
        int32_t DateiInfo::*long32;
        int16_t DateiInfo::*integer;
        uint8_t DateiInfo::*byte;
        bool DateiInfo::*wahrheit;
    };
};
constexpr FeldZeiger ZeigerAuf(KText DateiInfo::*m) { return {.typ = FeldTyp::Text, .text = m}; }
constexpr FeldZeiger ZeigerAuf(int32_t DateiInfo::*m) { return {.typ = FeldTyp::Long, .long32 = m}; }
constexpr FeldZeiger ZeigerAuf(int16_t DateiInfo::*m) { return {.typ = FeldTyp::Integer, .integer = m}; }
constexpr FeldZeiger ZeigerAuf(uint8_t DateiInfo::*m) { return {.typ = FeldTyp::Byte, .byte = m}; }
constexpr FeldZeiger ZeigerAuf(bool DateiInfo::*m) { return {.typ = FeldTyp::Wahrheit, .wahrheit = m}; }

struct DateiFeld {
    std::string_view name;  // der Name des Mitglieds, zugleich Name in "show" und "tag"
    FeldForm form;
    FeldZeiger zeiger;
    int8_t platz;                  // Feldnummer der Datensatzzeile 2..40; 0 = nicht gespeichert
    std::string_view rahmen22;     // Rahmenkennung in ID3v2.2, "" = keine
    std::string_view rahmen23;     // in ID3v2.3 und 2.4, "" = kein Rahmenfeld
    int8_t spalte;                 // Spaltennummer 1..30 der Hauptliste, 0 = keine eigene
    std::string_view spaltenName;  // deren Name

    // Der Text eines Feldes der Formen Text, Datum und Genre.
    KText& Text(DateiInfo& d) const { return d.*zeiger.text; }
    const KText& Text(const DateiInfo& d) const { return d.*zeiger.text; }
    // Der Wert eines Feldes der Formen Zahl und Wahrheit (wahr = 1).
    int32_t Zahl(const DateiInfo& d) const;
    // Setzt ihn; false, wenn er nicht in den Typ passt (das Feld bleibt dann).
    bool ZahlSetzen(DateiInfo& d, int32_t wert) const;
};

// Eine Zeile: Mitglied, Form, Platz in der Indexdatei, Rahmen v2.2 und v2.3, Spalte und ihr Name.
#define KK_FELD(mitglied, form, platz, r22, r23, spalte, spaltenName)                                                  \
    DateiFeld { #mitglied, FeldForm::form, ZeigerAuf(&DateiInfo::mitglied), platz, r22, r23, spalte, spaltenName }
// In der deklarierten Reihenfolge von DateiInfo.
inline constexpr DateiFeld DateiFeldTabelle[] = {
    KK_FELD(Mp3_ID3v1_TAG, Text, 0, "", "", 0, ""),
    KK_FELD(Mp3_ID3v1_Titel, Text, 6, "", "", 5, "Titel"),
    KK_FELD(Mp3_ID3v1_Interpret, Text, 3, "", "", 4, "Interpret"),
    KK_FELD(Mp3_ID3v1_Album, Text, 2, "", "", 6, "Album"),
    KK_FELD(Mp3_ID3v1_Jahr, Text, 8, "", "", 7, "Jahr"),
    KK_FELD(Mp3_ID3v1_Kommentar, Text, 4, "", "", 10, "Kommentar"),
    KK_FELD(Mp3_ID3v1_Track, Text, 7, "", "", 8, "Track"),
    KK_FELD(Mp3_ID3v1_Genre, Genre, 5, "", "", 9, "Genre"),
    KK_FELD(Datei_Größe, Zahl, 9, "", "", 11, "Größe"),
    KK_FELD(Datei_Wechselmedium, Text, 10, "", "", 16, "Wechselmedium"),
    KK_FELD(Datei_HinzugefügtAm, Datum, 16, "", "", 17, "Hinzufüge-Datum"),
    KK_FELD(Datei_Typ, Zahl, 17, "", "", 0, ""),
    KK_FELD(Datei_AngefordertAnzahl, Zahl, 19, "", "", 21, "Abspiel-Häufigkeit"),
    KK_FELD(Datei_AngefordertGespieltAm, Datum, 20, "", "", 20, "Abspiel-Datum"),
    KK_FELD(Header_Bitrate, Zahl, 11, "", "", 12, "Bitrate"),
    KK_FELD(Header_Frequenz, Zahl, 13, "", "", 14, "Frequenz"),
    KK_FELD(Header_Dauer, Zahl, 12, "", "", 13, "Dauer"),
    KK_FELD(Header_Version, Zahl, 0, "", "", 0, ""),
    KK_FELD(Header_Layer, Zahl, 0, "", "", 0, ""),
    KK_FELD(Header_VBR, Wahrheit, 15, "", "", 0, ""),
    KK_FELD(Header_Original, Wahrheit, 0, "", "", 0, ""),
    KK_FELD(Header_Emphasis, Text, 0, "", "", 0, ""),
    KK_FELD(Header_Copyright, Wahrheit, 0, "", "", 0, ""),
    KK_FELD(Header_Modus, Text, 18, "", "", 0, ""),
    KK_FELD(Header_Privat, Wahrheit, 0, "", "", 0, ""),
    KK_FELD(Header_Padding, Wahrheit, 0, "", "", 0, ""),
    KK_FELD(Header_CRC, Wahrheit, 0, "", "", 0, ""),
    KK_FELD(Header_Frames, Zahl, 14, "", "", 15, "Frames"),
    KK_FELD(Header_Position, Zahl, 0, "", "", 0, ""),
    KK_FELD(Mp3_ID3v1_Status, Zahl, 0, "", "", 0, ""),
    KK_FELD(Mp3_ID3v2_Status, Zahl, 0, "", "", 0, ""),
    KK_FELD(Mp3_ID3v2_Version, Text, 37, "", "", 29, "ID3v2-TAG-Version"),
    KK_FELD(Mp3_ID3v2_TAGGröße, Zahl, 36, "", "", 30, "ID3v2-TAG-Größe"),
    KK_FELD(Mp3_ID3v2_TAGPosition, Zahl, 0, "", "", 0, ""),
    KK_FELD(Mp3_ID3v2_Benutzt, Zahl, 0, "", "", 0, ""),
    KK_FELD(Mp3_ID3v2_PCNT, Text, 21, "", "PCNT", 0, ""),
    KK_FELD(Mp3_ID3v2_TRCK, Text, 38, "TRK", "TRCK", 26, "Track-ID3v2"),
    KK_FELD(Mp3_ID3v2_TENC, Text, 24, "TEN", "TENC", 0, ""),
    KK_FELD(Mp3_ID3v2_WXXX, Text, 31, "", "WXXX", 0, ""),
    KK_FELD(Mp3_ID3v2_TCOP, Text, 23, "TCR", "TCOP", 0, ""),
    KK_FELD(Mp3_ID3v2_TOPE, Text, 39, "TOA", "TOPE", 0, ""),
    KK_FELD(Mp3_ID3v2_TCOM, Text, 34, "TCM", "TCOM", 0, ""),
    KK_FELD(Mp3_ID3v2_TCON, Text, 25, "TCO", "TCON", 27, "Genre-ID3v2"),
    KK_FELD(Mp3_ID3v2_COMM, Text, 29, "COM", "COMM", 28, "Kommentar-ID3v2"),
    KK_FELD(Mp3_ID3v2_TYER, Text, 28, "TYE", "TYER", 25, "Jahr-ID3v2"),
    KK_FELD(Mp3_ID3v2_TALB, Text, 22, "TAL", "TALB", 24, "Album-ID3v2"),
    KK_FELD(Mp3_ID3v2_TPE1, Text, 27, "TP1", "TPE1", 22, "Interpret-ID3v2"),
    KK_FELD(Mp3_ID3v2_TIT2, Text, 40, "TT2", "TIT2", 23, "Titel-ID3v2"),
    KK_FELD(Mp3_ID3v2_TLAN, Text, 35, "TLA", "TLAN", 0, ""),
    KK_FELD(Mp3_ID3v2_TLEN, Text, 30, "", "TLEN", 0, ""),
    KK_FELD(Mp3_ID3v2_TMED, Text, 32, "TMT", "TMED", 0, ""),
    KK_FELD(Mp3_ID3v2_TPUB, Text, 26, "", "TPUB", 0, ""),
    KK_FELD(Mp3_ID3v2_TSSE, Text, 33, "TSS", "TSSE", 0, ""),
    KK_FELD(Mp3_ID3v2_Weitere, Text, 0, "", "", 0, ""),
};
#undef KK_FELD
inline constexpr int32_t DateiFeldAnzahl = sizeof DateiFeldTabelle / sizeof DateiFeldTabelle[0];

// Die Zeile eines Mitglieds (auch zur Übersetzungszeit: Listen, die auf die Tabelle zeigen).
constexpr const DateiFeld& DateiFeldVon(KText DateiInfo::*mitglied) {
    for (const DateiFeld& f : DateiFeldTabelle)
        if (f.zeiger.typ == FeldTyp::Text && f.zeiger.text == mitglied) return f;
    return DateiFeldTabelle[DateiFeldAnzahl - 1];  // unerreichbar für ein Textfeld von DateiInfo
}
// Nach Namen (genau); nullptr, wenn es kein Feld dieses Namens gibt.
const DateiFeld* DateiFeldNamens(std::string_view name);
// Das Feld auf Platz 2..40 der Datensatzzeile; nullptr für Platz 1 (der Pfad) und alles andere.
const DateiFeld* DateiFeldFürPlatz(int32_t platz);
// Das Feld einer ID3v2-Rahmenkennung (v22: dreistellige Kennungen); nullptr für unbekannte.
const DateiFeld* DateiFeldFürRahmen(std::string_view kennung, bool v22);
// Das Feld, das die Spalte 1..30 zeigt; nullptr für Spalten ohne eigenes Feld.
const DateiFeld* DateiFeldFürSpalte(int32_t spalte);
