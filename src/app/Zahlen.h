#pragma once
// Zahlen mit den Regeln des Programms: Long = int32_t, Integer = int16_t,
// Runden zur nächsten Zahl mit Hälften zur geraden, Int() = abrunden.
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// IsNumeric: Leerzeichen und Vorzeichen erlaubt, Ziffern, Nachkommateil mit "." oder ",".
// Kein Exponent, keine Tausenderpunkte, leer ist nicht numerisch.
bool IstNumerisch(std::string_view text);
// Der Wert eines numerischen Textes; nullopt, wenn er nicht numerisch ist.
std::optional<double> ZahlWert(std::string_view text);

// Hälften zur geraden Zahl: 2.5 → 2, 3.5 → 4, -2.5 → -2.
double RundenGerade(double wert);
// Int(): größte ganze Zahl <= wert.
double Int(double wert);
// Auf stellen Nachkommastellen runden, Hälften zur geraden.
double Runden(double wert, int32_t stellen);

// CLng/CInt: runden wie oben; false bei Überlauf (Ziel behält dann seinen Wert).
bool LongAus(double wert, int32_t& ziel);
bool IntegerAus(double wert, int16_t& ziel);
// Ganzzahlige Summen mit Überlaufprüfung.
bool LongAddieren(int32_t a, int32_t b, int32_t& ziel);

// IsNumeric und CLng in einem: true, wenn der Text numerisch ist und in 32 Bit passt.
// Schneller Weg für reine Ziffern (Indexdatei: Millionen Felder).
bool LongLesen(std::string_view text, int32_t& ziel);
// Die Zahl im Text (CLng), 0 wenn leer, nicht numerisch oder zu groß. Tausenderpunkte zwischen
// Dreiergruppen ("3.145.728", wie TausenderFormat schreibt) gelten als solche, nicht als Komma.
int32_t ZahlLesen(std::string_view text);
// Streng: nur optionales Vorzeichen und Ziffern, ohne Leerzeichen; nullopt sonst oder
// wenn die Zahl nicht in 64 Bit passt. Für gespeicherte Zahlen und Eingaben auf der Kommandozeile.
std::optional<int64_t> GanzeZahlLesen(std::string_view text);

// Zahl als Text ohne Tausenderzeichen; Nachkommastellen mit "," wie die deutsche Anzeige.
std::string ZahlText(int64_t wert);
// Format "##,##0": Tausenderpunkte, keine Nachkommastellen (gerundet, Hälften zur geraden).
std::string TausenderFormat(double wert);
// Dasselbe für ganze Zahlen, an ziel angehängt (ohne eigene Zeichenkette).
void TausenderFormatAnhängen(std::string& ziel, int64_t wert);
// Format "0,00": zwei Nachkommastellen mit Komma, Tausenderpunkte.
std::string ZweiStellenFormat(double wert);
