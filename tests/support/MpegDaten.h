#pragma once
// Testdaten Byte für Byte: MPEG-Frames, Xing-Blöcke, ID3v1- und ID3v2-Tags.
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace mpeg {

// Die Felder eines Frame-Kopfes als rohe Bitwerte.
struct Kopf {
    int version = 3;   // 3 = MPEG 1, 2 = MPEG 2, 0 = MPEG 2.5, 1 = reserviert
    int layer = 1;     // 1 = Layer III, 2 = Layer II, 3 = Layer I, 0 = reserviert
    bool crc = false;  // true: Schutzbit 0 (mit Prüfsumme)
    int bitrate = 9;   // Index 0..15 (9 = 128 kbit/s bei MPEG 1 Layer III)
    int frequenz = 0;  // Index 0..3
    bool padding = false;
    bool privat = false;
    int modus = 0;  // 0 Stereo .. 3 Single Channel
    int erweiterung = 0;
    bool copyright = false;
    bool original = false;
    int emphasis = 0;
};
std::string KopfBytes(const Kopf& k);
// Bytes ohne 0xFF, damit nirgends ein Frame vorgetäuscht wird.
std::string Füllung(size_t n, uint8_t start = 0);
// Kopf und Füllung, zusammen länge Bytes.
std::string Frame(const Kopf& k, size_t länge = 417);
// Frame mit Xing-Block: kennung an Versatz 36, Frame-Zahl (höchstes Byte zuerst) an 44.
std::string XingFrame(const Kopf& k, uint32_t frames, const std::string& kennung = "Xing", size_t länge = 417);

// ID3v1: 128 Bytes, Texte als Windows-1252-Bytes. track < 0: kein Titelnummer-Paar (der
// Kommentar darf dann 30 Zeichen haben).
std::string Id3v1(const std::string& titel, const std::string& interpret, const std::string& album,
                  const std::string& jahr, const std::string& kommentar, int track, uint8_t genre);

std::string BigEndian(uint32_t wert, int bytes);
std::string SyncSafe(uint32_t wert);
// UTF-16 aus ASCII/Latin-1-Bytes, mit oder ohne BOM.
std::string Utf16(std::string_view latin1, bool bigEndian, bool bom);

struct Rahmen {
    std::string id;
    std::string inhalt;  // roh, Kodierungsbyte eingeschlossen
    std::string flags = std::string(2, '\0');
};
// Textrahmen: Kodierungsbyte und Text (schon in der Kodierung).
Rahmen Text(const std::string& id, const std::string& text, uint8_t kodierung = 0);
// COMM/COM: Kodierung, Sprache, Beschreibung + Ende, Text.
Rahmen Kommentar(const std::string& id, const std::string& text, const std::string& beschreibung = "",
                 uint8_t kodierung = 0, const std::string& sprache = "eng");

struct V2Tag {
    int major = 3;
    int minor = 0;
    uint8_t flags = 0;            // zusätzlich zu Fußzeile/erweitertem Kopf
    std::string erweiterterKopf;  // roh; nicht leer setzt Flag 0x40
    std::vector<Rahmen> rahmen;
    size_t padding = 0;
    bool fußzeile = false;  // setzt Flag 0x10 und hängt "3DI" an
};
// Rahmenkopf je Version: 2.2 drei Zeichen + drei Größenbytes, 2.3 Größe als Zahl, 2.4 SyncSafe.
std::string RahmenBytes(const Rahmen& r, int major);
std::string Id3v2(const V2Tag& t);

// Datei mit anfang, ende und einer Lücke bis zur Gesamtlänge (dünn, nichts dazwischen belegt).
void DünneDateiSchreiben(const std::string& pfad, const std::string& anfang, int64_t länge, const std::string& ende);

}  // namespace mpeg
