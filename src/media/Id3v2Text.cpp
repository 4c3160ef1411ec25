#include "media/Id3v2Text.h"

#include "app/Texte.h"
#include "media/Id3v1.h"

namespace {
bool BomAmAnfang(std::string_view b) {
    return b.size() >= 2 && ((b[0] == '\xFF' && b[1] == '\xFE') || (b[0] == '\xFE' && b[1] == '\xFF'));
}

bool ZweiNull(std::string_view b, size_t i) { return b.size() >= i + 2 && b[i] == '\0' && b[i + 1] == '\0'; }

// Sprache (3 Bytes) und leere Beschreibung fallen weg, wie bei Einzelbyte-Texten das Muster
// "xxx" NUL. In UTF-16 endet die leere Beschreibung auf 00 00, davor darf ein BOM stehen. Ein
// Text, der selbst mit einem BOM beginnt, hat kein Sprachfeld.
std::string_view Utf16SpracheEntfernen(std::string_view b) {
    if (b.size() < 5 || BomAmAnfang(b)) return b;
    std::string_view nach = b.substr(3);
    if (BomAmAnfang(nach) && ZweiNull(nach, 2)) return b.substr(7);
    if (ZweiNull(nach, 0)) return b.substr(5);
    return b;
}

// WXXX in UTF-16: Beschreibung bis zum ausgerichteten 00 00, dahinter die Adresse in ISO-8859-1.
std::string WxxxUtf16(std::string_view b, bool bigEndian) {
    for (size_t i = 0; i + 1 < b.size(); i += 2)
        if (ZweiNull(b, i)) return Utf16ZuUtf8(b.substr(0, i), bigEndian) + Windows1252ZuUtf8(b.substr(i + 2));
    return Utf16ZuUtf8(b, bigEndian);
}
}  // namespace

std::string RahmenTextLesen(std::string_view inhalt, int32_t größe, bool istWxxx) {
    int kodierung = -1;  // kein Kodierungsbyte: die Bytes gelten als Windows-1252
    if (größe > 0 && !inhalt.empty() && static_cast<unsigned char>(inhalt[0]) <= 3) {
        kodierung = static_cast<unsigned char>(inhalt[0]);
        inhalt.remove_prefix(1);
    }
    const bool utf16 = kodierung == 1 || kodierung == 2;
    // Das Sprachfeld wird bei jedem Rahmen geprüft, benannt oder nicht; eine nicht leere
    // Beschreibung bleibt im Text stehen.
    if (utf16) inhalt = Utf16SpracheEntfernen(inhalt);
    else if (inhalt.size() >= 4 && inhalt[3] == '\0') inhalt.remove_prefix(4);

    std::string text;
    if (utf16) text = istWxxx ? WxxxUtf16(inhalt, kodierung == 2) : Utf16ZuUtf8(inhalt, kodierung == 2);
    else if (kodierung == 3) text = DateiTextLesen(inhalt);
    else text = Windows1252ZuUtf8(inhalt);
    return TagTextBereinigen(text, false);
}
