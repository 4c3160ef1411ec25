#pragma once
// Bit-Arbeit an MPEG-Köpfen und Tag-Größen geschieht auf Texten aus "0" und "1".
#include <cstdint>
#include <string>
#include <string_view>

// Jede "1" an Stelle i (von n) zählt 2^(n-i); andere Zeichen zählen als "0"; "" gibt 0.
// Die Summe wird in Gleitkomma gebildet und je Schritt gerundet; Überlauf gibt false.
bool BitStringZuLong(std::string_view bits, int32_t& ergebnis);
int32_t BitStringZuLong(std::string_view bits);  // 0 bei Überlauf
double BitStringZuDouble(std::string_view bits);
// Acht Zeichen je Byte, höchstes Bit zuerst.
std::string BytesZuBitString(std::string_view bytes);
// 8n Zeichen, höchstes zuerst; eine zu große Zahl sättigt nicht (siehe Test).
std::string ZahlZuBitString(double zahl, int32_t byteAnzahl);

// Wahrheitswerte: 0 → 0, sonst 1; -1 oder ab 1 → wahr, 0 → falsch.
int32_t WahrheitswertZuZahl(double wert);
inline int32_t WahrheitswertZuZahl(bool wert) { return wert ? 1 : 0; }
bool ZahlZuWahrheitswert(double wert);
// "Ja" / "Nein"; ein Text geht unverändert durch.
std::string JaNeinText(bool wert);
std::string JaNeinText(std::string_view wert);
inline std::string JaNeinText(const char* wert) { return JaNeinText(std::string_view(wert)); }
