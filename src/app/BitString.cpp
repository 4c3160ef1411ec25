#include "app/BitString.h"

#include "app/Zahlen.h"

#include <cmath>

double BitStringZuDouble(std::string_view bits) {
    double summe = 0;
    const size_t n = bits.size();
    for (size_t i = 0; i < n; ++i)
        if (bits[i] == '1') summe += std::ldexp(1.0, static_cast<int>(n - 1 - i));
    return summe;
}

bool BitStringZuLong(std::string_view bits, int32_t& ergebnis) {
    int32_t summe = 0;
    const size_t n = bits.size();
    for (size_t i = 0; i < n; ++i) {
        if (bits[i] != '1') continue;
        // Jeder Schritt wird als Long gerundet: 2^31 und mehr läuft über.
        if (!LongAus(double(summe) + std::ldexp(1.0, static_cast<int>(n - 1 - i)), summe)) return false;
    }
    ergebnis = summe;
    return true;
}

int32_t BitStringZuLong(std::string_view bits) {
    int32_t z = 0;
    return BitStringZuLong(bits, z) ? z : 0;
}

std::string BytesZuBitString(std::string_view bytes) {
    std::string aus;
    aus.reserve(bytes.size() * 8);
    for (unsigned char b : bytes)
        for (int bit = 7; bit >= 0; --bit) aus.push_back((b >> bit) & 1 ? '1' : '0');
    return aus;
}

std::string ZahlZuBitString(double zahl, int32_t byteAnzahl) {
    if (byteAnzahl < 1) return {};
    std::string aus;
    double rest = zahl;
    for (int i = 8 * byteAnzahl - 1; i >= 0; --i) {
        double stelle = std::ldexp(1.0, i);
        if (Int(rest / stelle) == 1) {
            aus.push_back('1');
            rest -= stelle;
        } else {
            aus.push_back('0');
        }
    }
    return aus;
}

int32_t WahrheitswertZuZahl(double wert) { return wert == 0 ? 0 : 1; }

bool ZahlZuWahrheitswert(double wert) { return wert == -1 || wert >= 1; }

std::string JaNeinText(bool wert) { return wert ? "Ja" : "Nein"; }
std::string JaNeinText(std::string_view wert) { return std::string(wert); }
