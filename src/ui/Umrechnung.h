#pragma once
// Gespeicherte Werte nach Qt und zurück: Farben stehen wie unter Windows (Rot im niedrigsten
// Byte), Spaltenbreiten und Fenstermaße in Twips (15 Twips = 1 Pixel bei 96 dpi).
#include "app/Texte.h"

#include <QColor>
#include <QString>

#include <cmath>
#include <cstdint>
#include <string>

inline QColor FarbeAusWert(int32_t wert) {
    const auto w = static_cast<uint32_t>(wert);
    return QColor(static_cast<int>(w & 0xFF), static_cast<int>((w >> 8) & 0xFF), static_cast<int>((w >> 16) & 0xFF));
}

inline int32_t WertAusFarbe(const QColor& farbe) {
    return static_cast<int32_t>(static_cast<uint32_t>(farbe.red()) | (static_cast<uint32_t>(farbe.green()) << 8) |
                                (static_cast<uint32_t>(farbe.blue()) << 16));
}

inline constexpr int TwipsJePixel = 15;
inline int TwipsZuPixel(int32_t twips) { return static_cast<int>(std::lround(twips / double(TwipsJePixel))); }
inline int32_t PixelZuTwips(int pixel) { return static_cast<int32_t>(pixel) * TwipsJePixel; }

// Was kein UTF-8 ist (ein Latin-1-Dateiname in einer Meldung), wird als Windows-1252 gezeigt.
inline QString Q(const std::string& s) { return QString::fromStdString(IstGültigesUtf8(s) ? s : Windows1252ZuUtf8(s)); }
inline std::string S(const QString& s) { return s.toStdString(); }
