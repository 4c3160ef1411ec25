#include "media/Id3v2Text.h"

#include "app/Texte.h"
#include "media/Id3v1.h"

namespace {
bool BomAmAnfang(std::string_view b) {
    return b.size() >= 2 && ((b[0] == '\xFF' && b[1] == '\xFE') || (b[0] == '\xFE' && b[1] == '\xFF'));
}

bool ZweiNull(std::string_view b, size_t i) { return b.size() >= i + 2 && b[i] == '\0' && b[i + 1] == '\0'; }

// Stelle des Endes einer Zeichenkette: 00 in Einzelbyte-Kodierungen, ausgerichtetes 00 00 in
// UTF-16. npos, wenn es fehlt.
size_t EndeFinden(std::string_view b, bool utf16) {
    if (!utf16) return b.find('\0');
    for (size_t i = 0; i + 1 < b.size(); i += 2)
        if (ZweiNull(b, i)) return i;
    return std::string_view::npos;
}

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
    const size_t ende = EndeFinden(b, true);
    if (ende == std::string_view::npos) return Utf16ZuUtf8(b, bigEndian);
    return Utf16ZuUtf8(b.substr(0, ende), bigEndian) + Windows1252ZuUtf8(b.substr(ende + 2));
}
}  // namespace

std::string KodiertZuUtf8(std::string_view bytes, int kodierung) {
    if (kodierung == 1 || kodierung == 2) return Utf16ZuUtf8(bytes, kodierung == 2);
    if (kodierung == 3) return DateiTextLesen(bytes);
    return Windows1252ZuUtf8(bytes);
}

std::optional<KommentarTeile> KommentarZerlegen(std::string_view inhalt) {
    if (inhalt.size() < 4 || static_cast<unsigned char>(inhalt[0]) > 3) return std::nullopt;
    KommentarTeile t;
    t.kodierung = static_cast<unsigned char>(inhalt[0]);
    t.sprache = std::string(inhalt.substr(1, 3));
    const std::string_view rest = inhalt.substr(4);
    const bool utf16 = t.kodierung == 1 || t.kodierung == 2;
    const size_t ende = EndeFinden(rest, utf16);
    if (ende == std::string_view::npos) return std::nullopt;
    t.beschreibung = rest.substr(0, ende);
    t.text = rest.substr(ende + (utf16 ? 2 : 1));
    return t;
}

std::string RahmenTextLesen(std::string_view inhalt, int32_t größe, RahmenArt art) {
    if (art == RahmenArt::Kommentar && größe > 0) {
        if (const auto teile = KommentarZerlegen(inhalt))
            return TagTextBereinigen(KodiertZuUtf8(teile->text, teile->kodierung), false);
    }
    int kodierung = -1;  // kein Kodierungsbyte: die Bytes gelten als Windows-1252
    if (größe > 0 && !inhalt.empty() && static_cast<unsigned char>(inhalt[0]) <= 3) {
        kodierung = static_cast<unsigned char>(inhalt[0]);
        inhalt.remove_prefix(1);
    }
    const bool utf16 = kodierung == 1 || kodierung == 2;
    // Das Sprachfeld wird bei jedem Rahmen geprüft, benannt oder nicht; eine nicht leere
    // Beschreibung bleibt hier im Text stehen.
    if (utf16) inhalt = Utf16SpracheEntfernen(inhalt);
    else if (inhalt.size() >= 4 && inhalt[3] == '\0') inhalt.remove_prefix(4);

    std::string text;
    if (utf16 && art == RahmenArt::Wxxx) text = WxxxUtf16(inhalt, kodierung == 2);
    else text = KodiertZuUtf8(inhalt, kodierung);
    return TagTextBereinigen(text, false);
}

int KodierungWählen(std::string_view a, std::string_view b) {
    return PasstInWindows1252(a) && PasstInWindows1252(b) ? 0 : 1;
}

std::string TextKodieren(std::string_view text, int kodierung, bool mitEnde) {
    if (kodierung == 1) return "\xFF\xFE" + Utf8ZuUtf16(text, false) + (mitEnde ? std::string(2, '\0') : std::string());
    return Utf8ZuWindows1252(text) + (mitEnde ? std::string(1, '\0') : std::string());
}
