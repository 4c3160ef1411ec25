#pragma once
// Text-Hilfen: Zeichensätze, Groß/Klein nach Unicode, Vergleiche ohne Groß/Klein, Zerlegen.
// Alle Texte sind UTF-8. Positionen zählen Bytes ab 1, wie Mid/InStr des Programms.
#include "app/EinsBasiert.h"

#include <cstdint>
#include <string>
#include <string_view>

// --- Zeichensätze (nur an den Rändern: Indexdatei, ID3-Tags, Exporte) ---
bool IstGültigesUtf8(std::string_view bytes);
// Windows-1252 → UTF-8. Die fünf unbelegten Bytes (0x81, 0x8D, 0x8F, 0x90, 0x9D) werden zu
// den gleich nummerierten Steuerzeichen, damit der Rückweg verlustfrei bleibt.
std::string Windows1252ZuUtf8(std::string_view bytes);
// UTF-8 → Windows-1252; was dort fehlt, wird "?". Ungültiges UTF-8 wird byteweise übernommen.
std::string Utf8ZuWindows1252(std::string_view text);
// UTF-16 → UTF-8. Ein BOM (FEFF) wird übersprungen, ein vertauschtes (FFFE) wechselt die
// Byte-Reihenfolge; einzelne Ersatzzeichen-Hälften werden zu U+FFFD, ein Restbyte entfällt.
std::string Utf16ZuUtf8(std::string_view bytes, bool bigEndian);
// Ein aus einer Datei gelesenes Feld: gültiges UTF-8 bleibt, sonst gilt Windows-1252.
std::string DateiTextLesen(std::string_view bytes);

// --- Groß/Klein: einfache Unicode-Abbildung je Codepunkt ("ß" bleibt "ß") ---
std::string Groß(std::string_view text);
std::string Klein(std::string_view text);
// Klein(text) hinten an ziel anhängen; ziel behält seine Kapazität (Suchen über viele Einträge).
void KleinAnhängen(std::string& ziel, std::string_view text);
// Zahl der Zeichen (Codepunkte); ungültige Bytes zählen je eins.
int32_t ZeichenAnzahl(std::string_view text);
// Byte-Position (ab 1) des Zeichens Nummer zeichen (ab 1); hinter dem Ende: Länge + 1.
int32_t ZeichenStelle(std::string_view text, int32_t zeichen);

// --- Vergleiche ---
// Gleiche Länge und gleich ohne Groß/Klein; zwei leere Texte sind gleich.
bool TexteGleich(std::string_view a, std::string_view b);
// Pfade und Namen: dieselbe Regel (gleiche Länge, Groß/Klein egal).
inline bool NamenGleich(std::string_view a, std::string_view b) { return TexteGleich(a, b); }
// Beginnt text mit anfang, Groß/Klein egal? Ein leerer Anfang passt immer.
bool BeginntMitText(std::string_view text, std::string_view anfang);
// Der erste Codepunkt, klein abgebildet wie bei TexteGleich; -1 bei leerem Text. Ein schneller
// Vorfilter für BeginntMitText über viele Einträge: ungleiche erste Zeichen passen nie.
int32_t ErstesZeichenKlein(std::string_view text);
// Streuwert passend zu TexteGleich/NamenGleich: gleiche Texte geben gleiche Werte. Für
// Nachschlagetabellen, die sonst jeden Pfad mit jedem vergleichen müssten.
uint64_t NamenStreuwert(std::string_view text);
// InStr: erste Fundstelle von suche in text ab Byte-Position start (1-basiert), 0 = keine.
// Leere Suche findet start (wenn start <= Länge + 1).
int32_t InStr(int32_t start, std::string_view text, std::string_view suche);
// InStr ohne Groß/Klein.
int32_t InStrText(int32_t start, std::string_view text, std::string_view suche);
// Letzte Fundstelle (InStrRev, genau), 0 = keine.
int32_t InStrRev(std::string_view text, std::string_view suche);

// --- Zuschneiden und Teilen ---
std::string Trim(std::string_view text);  // nur Leerzeichen, wie VB
std::string LTrim(std::string_view text);
std::string RTrim(std::string_view text);
// Mid(text, start, länge) auf Bytes; länge < 0 bedeutet "bis zum Ende".
std::string Mid(std::string_view text, int32_t start, int32_t länge = -1);
std::string Left(std::string_view text, int32_t länge);
std::string Right(std::string_view text, int32_t länge);
// Alle Vorkommen ersetzen, genau (Groß/Klein zählt).
std::string Ersetzen(std::string_view text, std::string_view suche, std::string_view neu);

// Teilt text ab start am Trennzeichen in ergebnis(1..n). Leerer Text: false.
// Endet der Text auf das Trennzeichen, folgt ein leeres Element. anzahl ist die erwartete Zahl.
bool TextZerlegen(std::string_view text, int32_t start, int32_t anzahl, std::string_view trennzeichen,
                  EinsBasiert<std::string>& ergebnis);
// Der allgemeine Zerleger: setzt ergebnis zuerst auf ein leeres Element. Leerer Text: false.
// sollAnzahl -1: jede Zahl von Teilen ist recht; sonst nur genau sollAnzahl (mindestens 1).
bool TextDatensätzeLesen(std::string_view text, std::string_view trennzeichen, int32_t start, int32_t sollAnzahl,
                         EinsBasiert<std::string>& ergebnis);
// Endet der Text auf NUL, wird er an seinem ersten NUL abgeschnitten.
std::string NullAbschneiden(std::string_view text);
