#include "fileops/DateinamenFormatieren.h"

#include "app/Kartei.h"
#include "app/Texte.h"
#include "app/Trace.h"
#include "index/IndexFeld.h"

namespace {
// Grenzen gegen Muster, die sich selbst wieder einsetzen: ohne sie liefe die Ersetzung endlos.
constexpr int32_t kMaxTiefe = 8;
constexpr int32_t kMaxRunden = 1000;
constexpr size_t kMaxLänge = 65536;
}  // namespace

std::string DateinamenFormatieren(const Kartei& k, std::string_view format, int32_t position, int32_t tiefe) {
    std::string text(format);
    if (tiefe > kMaxTiefe) return text;
    std::string wert;
    int16_t art = 0;
    for (int32_t runde = 0; runde < kMaxRunden; ++runde) {
        const auto anfang = text.find('%');
        if (anfang == std::string::npos) return text;
        const auto ende = text.find('%', anfang + 1);
        if (ende == std::string::npos) {
            KK_TRACE("DateinamenFormatieren", "Format ungültig, Ende bei " + std::to_string(anfang + 1));
            return text;
        }
        const std::string name = text.substr(anfang + 1, ende - anfang - 1);
        if (!IndexFeldZurückgeben(k, position, IndexFeldVorbereiten(name), false, wert, art, tiefe)) {
            // Ein unbekannter Platzhalter bleibt stehen; hier ist Schluss.
            KK_TRACE("DateinamenFormatieren", "Fehler beim Auslesen des Feldes '" + name + "'");
            return text;
        }
        // Ein Wert mit seinem eigenen Platzhalter wüchse mit jeder Runde und jeder Schachtelung.
        if (wert.find("%" + name + "%") != std::string::npos) return text;
        std::string neu = Ersetzen(text, "%" + name + "%", wert);
        if (neu == text || neu.size() > kMaxLänge) return neu;
        text = std::move(neu);
    }
    return text;
}
