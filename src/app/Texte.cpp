#include "app/Texte.h"

#include <utf8proc.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

namespace {

// Windows-1252, Bytes 0x80–0x9F; unbelegte Stellen behalten ihren Code.
constexpr std::array<char32_t, 32> kCp1252Oben = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                  0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                  0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                  0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void Utf8Anhängen(std::string& ziel, char32_t cp) {
    utf8proc_uint8_t puffer[4];
    auto n = utf8proc_encode_char(static_cast<utf8proc_int32_t>(cp), puffer);
    ziel.append(reinterpret_cast<const char*>(puffer), static_cast<size_t>(n));
}

// Liest einen Codepunkt ab pos; ungültige Bytes gelten als je ein Zeichen (-1).
utf8proc_int32_t CodepunktLesen(std::string_view t, size_t& pos) {
    if (static_cast<unsigned char>(t[pos]) < 0x80) return static_cast<unsigned char>(t[pos++]);
    utf8proc_int32_t cp = -1;
    auto n = utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(t.data() + pos),
                              static_cast<utf8proc_ssize_t>(t.size() - pos), &cp);
    if (n <= 0) {
        cp = -1 - static_cast<unsigned char>(t[pos]);  // ungültiges Byte, eindeutig markiert
        n = 1;
    }
    pos += static_cast<size_t>(n);
    return cp;
}

template <typename Abbildung> std::string Abbilden(std::string_view text, Abbildung f) {
    std::string aus;
    aus.reserve(text.size());
    size_t pos = 0;
    while (pos < text.size()) {
        size_t anfang = pos;
        auto cp = CodepunktLesen(text, pos);
        if (cp < 0) aus.append(text.substr(anfang, pos - anfang));
        else if (cp < 0x80) aus.push_back(static_cast<char>(f(cp)));
        else Utf8Anhängen(aus, static_cast<char32_t>(f(cp)));
    }
    return aus;
}

utf8proc_int32_t KleinCp(utf8proc_int32_t cp) {
    if (cp < 0) return cp;
    if (cp < 0x80) return (cp >= 'A' && cp <= 'Z') ? cp + 32 : cp;
    return utf8proc_tolower(cp);
}

// Vergleicht ohne Groß/Klein, ob suche ab Byte pos in text steht.
bool StehtAn(std::string_view text, size_t pos, std::string_view suche) {
    size_t a = pos, b = 0;
    while (b < suche.size()) {
        if (a >= text.size()) return false;
        if (KleinCp(CodepunktLesen(text, a)) != KleinCp(CodepunktLesen(suche, b))) return false;
    }
    return true;
}

}  // namespace

bool IstGültigesUtf8(std::string_view bytes) {
    size_t pos = 0;
    // Reines ASCII (der Normalfall in der Indexdatei) acht Bytes auf einmal überspringen.
    while (pos + 8 <= bytes.size()) {
        uint64_t block;
        std::memcpy(&block, bytes.data() + pos, 8);
        if (block & 0x8080808080808080ULL) break;
        pos += 8;
    }
    while (pos < bytes.size()) {
        if (static_cast<unsigned char>(bytes[pos]) < 0x80) {
            ++pos;
            continue;
        }
        if (CodepunktLesen(bytes, pos) < 0) return false;
    }
    return true;
}

std::string Windows1252ZuUtf8(std::string_view bytes) {
    std::string aus;
    aus.reserve(bytes.size() + bytes.size() / 8);
    for (unsigned char c : bytes) {
        if (c < 0x80) aus.push_back(static_cast<char>(c));
        else if (c < 0xA0) Utf8Anhängen(aus, kCp1252Oben[c - 0x80]);
        else Utf8Anhängen(aus, c);
    }
    return aus;
}

std::string Utf8ZuWindows1252(std::string_view text) {
    std::string aus;
    aus.reserve(text.size());
    size_t pos = 0;
    while (pos < text.size()) {
        size_t anfang = pos;
        auto cp = CodepunktLesen(text, pos);
        if (cp < 0) {
            aus.append(text.substr(anfang, pos - anfang));
        } else if (cp < 0x80 || (cp >= 0xA0 && cp <= 0xFF)) {
            aus.push_back(static_cast<char>(cp));
        } else {
            auto it = std::find(kCp1252Oben.begin(), kCp1252Oben.end(), static_cast<char32_t>(cp));
            aus.push_back(it == kCp1252Oben.end() ? '?' : static_cast<char>(0x80 + (it - kCp1252Oben.begin())));
        }
    }
    return aus;
}

std::string Utf16ZuUtf8(std::string_view bytes, bool bigEndian) {
    std::string aus;
    aus.reserve(bytes.size() / 2);
    auto einheit = [&](size_t i) -> char32_t {
        const auto a = static_cast<unsigned char>(bytes[i]), b = static_cast<unsigned char>(bytes[i + 1]);
        return bigEndian ? char32_t(a << 8 | b) : char32_t(b << 8 | a);
    };
    for (size_t i = 0; i + 1 < bytes.size(); i += 2) {
        char32_t u = einheit(i);
        if (u == 0xFEFF) continue;
        if (u == 0xFFFE) {
            bigEndian = !bigEndian;
            continue;
        }
        if (u >= 0xD800 && u <= 0xDBFF && i + 3 < bytes.size()) {
            const char32_t tief = einheit(i + 2);
            if (tief >= 0xDC00 && tief <= 0xDFFF) {
                Utf8Anhängen(aus, 0x10000 + ((u - 0xD800) << 10) + (tief - 0xDC00));
                i += 2;
                continue;
            }
        }
        Utf8Anhängen(aus, u >= 0xD800 && u <= 0xDFFF ? char32_t(0xFFFD) : u);
    }
    return aus;
}

std::string DateiTextLesen(std::string_view bytes) {
    if (IstGültigesUtf8(bytes)) return std::string(bytes);
    return Windows1252ZuUtf8(bytes);
}

std::string Groß(std::string_view text) {
    return Abbilden(text, [](utf8proc_int32_t cp) {
        if (cp < 0x80) return (cp >= 'a' && cp <= 'z') ? cp - 32 : cp;
        if (cp == 0xDF) return cp;  // "ß" bleibt "ß" (neuere utf8proc liefern sonst "ẞ")
        return utf8proc_toupper(cp);
    });
}

std::string Klein(std::string_view text) {
    std::string aus;
    KleinAnhängen(aus, text);
    return aus;
}

void KleinAnhängen(std::string& ziel, std::string_view text) {
    ziel.reserve(ziel.size() + text.size());
    size_t pos = 0;
    while (pos < text.size()) {
        // ASCII-Strecken am Stück: der Normalfall in Tags und Pfaden.
        size_t ende = pos;
        while (ende < text.size() && static_cast<unsigned char>(text[ende]) < 0x80) ++ende;
        if (ende > pos) {
            const size_t alt = ziel.size();
            ziel.resize(alt + (ende - pos));
            char* aus = ziel.data() + alt;
            for (size_t i = pos; i < ende; ++i, ++aus)
                *aus = (text[i] >= 'A' && text[i] <= 'Z') ? char(text[i] + 32) : text[i];
            pos = ende;
            continue;
        }
        const size_t anfang = pos;
        const auto cp = CodepunktLesen(text, pos);
        if (cp < 0) ziel.append(text.substr(anfang, pos - anfang));
        else Utf8Anhängen(ziel, static_cast<char32_t>(KleinCp(cp)));
    }
}

int32_t ZeichenAnzahl(std::string_view text) {
    int32_t n = 0;
    for (size_t pos = 0; pos < text.size(); ++n) CodepunktLesen(text, pos);
    return n;
}

int32_t ZeichenStelle(std::string_view text, int32_t zeichen) {
    size_t pos = 0;
    for (int32_t i = 1; i < zeichen && pos < text.size(); ++i) CodepunktLesen(text, pos);
    return static_cast<int32_t>(pos) + 1;
}

bool TexteGleich(std::string_view a, std::string_view b) {
    size_t i = 0, j = 0;
    while (i < a.size() && j < b.size())
        if (KleinCp(CodepunktLesen(a, i)) != KleinCp(CodepunktLesen(b, j))) return false;
    return i == a.size() && j == b.size();
}

bool BeginntMitText(std::string_view text, std::string_view anfang) { return StehtAn(text, 0, anfang); }

int32_t ErstesZeichenKlein(std::string_view text) {
    if (text.empty()) return -1;
    size_t pos = 0;
    return KleinCp(CodepunktLesen(text, pos));
}

uint64_t NamenStreuwert(std::string_view text) {
    // Über die klein abgebildeten Codepunkte, die TexteGleich vergleicht: ASCII-Zeichen zu je
    // acht in einem Wort, jedes andere einzeln. Die Aufteilung hängt nur an den abgebildeten
    // Zeichen (auch "\u212A" wird zu ASCII "k"), so geben gleiche Texte gleiche Werte.
    uint64_t h = 0x243F6A8885A308D3ull;
    const auto mischen = [&h](uint64_t w) {
        h = (h ^ w) * 0x9E3779B97F4A7C15ull;
        h ^= h >> 32;
    };
    uint64_t wort = 0;
    int gesammelt = 0;
    const auto ascii = [&](uint64_t zeichen) {
        wort |= zeichen << (8 * gesammelt);
        if (++gesammelt == 8) {
            mischen(wort);
            wort = 0;
            gesammelt = 0;
        }
    };
    size_t pos = 0;
    while (pos < text.size()) {
        if (gesammelt == 0 && pos + 8 <= text.size()) {  // acht ASCII-Zeichen auf einmal
            uint64_t block;
            std::memcpy(&block, text.data() + pos, 8);
            if constexpr (std::endian::native == std::endian::big) block = __builtin_bswap64(block);
            if ((block & 0x8080808080808080ull) == 0) {
                const uint64_t eins = 0x0101010101010101ull;
                const uint64_t groß =
                    ((block + (0x80 - 'A') * eins) ^ (block + (0x80 - 'Z' - 1) * eins)) & 0x8080808080808080ull;
                mischen(block | (groß >> 2));
                pos += 8;
                continue;
            }
        }
        const auto b = static_cast<unsigned char>(text[pos]);
        if (b < 0x80) {
            ascii(b >= 'A' && b <= 'Z' ? b + 32u : b);
            ++pos;
            continue;
        }
        const auto cp = KleinCp(CodepunktLesen(text, pos));
        if (cp >= 0 && cp < 0x80) {
            ascii(static_cast<uint64_t>(cp));
            continue;
        }
        if (gesammelt > 0) {
            mischen(wort);
            wort = 0;
            gesammelt = 0;
        }
        mischen((uint64_t(1) << 63) | static_cast<uint32_t>(cp));
    }
    if (gesammelt > 0) mischen(wort);
    // Abschluss, damit auch die unteren Bits von allen Zeichen abhängen (Tabellenplätze).
    h ^= h >> 33;
    h *= 0xFF51AFD7ED558CCDull;
    h ^= h >> 33;
    return h;
}

int32_t InStr(int32_t start, std::string_view text, std::string_view suche) {
    if (start < 1 || static_cast<size_t>(start) > text.size() + 1) return 0;
    auto p = text.find(suche, static_cast<size_t>(start - 1));
    return p == std::string_view::npos ? 0 : static_cast<int32_t>(p + 1);
}

int32_t InStrText(int32_t start, std::string_view text, std::string_view suche) {
    if (start < 1 || static_cast<size_t>(start) > text.size() + 1) return 0;
    if (suche.empty()) return start;
    for (size_t pos = static_cast<size_t>(start - 1); pos < text.size(); ++pos) {
        // Nur an Zeichenanfängen suchen, nicht mitten in einer UTF-8-Folge.
        if ((static_cast<unsigned char>(text[pos]) & 0xC0) == 0x80) continue;
        if (StehtAn(text, pos, suche)) return static_cast<int32_t>(pos + 1);
    }
    return 0;
}

int32_t InStrRev(std::string_view text, std::string_view suche) {
    auto p = text.rfind(suche);
    return p == std::string_view::npos ? 0 : static_cast<int32_t>(p + 1);
}

std::string LTrim(std::string_view text) {
    auto p = text.find_first_not_of(' ');
    return p == std::string_view::npos ? std::string() : std::string(text.substr(p));
}

std::string RTrim(std::string_view text) {
    auto p = text.find_last_not_of(' ');
    return p == std::string_view::npos ? std::string() : std::string(text.substr(0, p + 1));
}

std::string Trim(std::string_view text) { return LTrim(RTrim(text)); }

std::string Mid(std::string_view text, int32_t start, int32_t länge) {
    if (start < 1 || static_cast<size_t>(start) > text.size()) return {};
    auto von = static_cast<size_t>(start - 1);
    return std::string(text.substr(von, länge < 0 ? std::string_view::npos : static_cast<size_t>(länge)));
}

std::string Left(std::string_view text, int32_t länge) {
    return länge <= 0 ? std::string() : std::string(text.substr(0, static_cast<size_t>(länge)));
}

std::string Right(std::string_view text, int32_t länge) {
    if (länge <= 0) return {};
    auto n = static_cast<size_t>(länge);
    return n >= text.size() ? std::string(text) : std::string(text.substr(text.size() - n));
}

std::string Ersetzen(std::string_view text, std::string_view suche, std::string_view neu) {
    if (suche.empty()) return std::string(text);
    std::string aus;
    size_t pos = 0;
    for (auto p = text.find(suche); p != std::string_view::npos; p = text.find(suche, pos)) {
        aus.append(text.substr(pos, p - pos)).append(neu);
        pos = p + suche.size();
    }
    aus.append(text.substr(pos));
    return aus;
}

namespace {
// Gemeinsamer Kern beider Zerleger.
int32_t Teilen(std::string_view text, int32_t start, std::string_view trenn, EinsBasiert<std::string>& aus) {
    aus.ReDim(0);
    auto rest = start > 1 ? (static_cast<size_t>(start - 1) < text.size() ? text.substr(static_cast<size_t>(start - 1))
                                                                          : std::string_view())
                          : text;
    if (trenn.empty()) {
        aus.Anhängen(std::string(rest));
        return 1;
    }
    size_t pos = 0;
    for (auto p = rest.find(trenn); p != std::string_view::npos; p = rest.find(trenn, pos)) {
        aus.Anhängen(std::string(rest.substr(pos, p - pos)));
        pos = p + trenn.size();
    }
    aus.Anhängen(std::string(rest.substr(pos)));
    return aus.UBound();
}
}  // namespace

bool TextZerlegen(std::string_view text, int32_t start, int32_t anzahl, std::string_view trennzeichen,
                  EinsBasiert<std::string>& ergebnis) {
    (void)anzahl;  // nur ein Hinweis des Aufrufers
    if (text.empty()) {
        ergebnis.ReDim(1);
        return false;
    }
    Teilen(text, start, trennzeichen, ergebnis);
    return true;
}

bool TextDatensätzeLesen(std::string_view text, std::string_view trennzeichen, int32_t start, int32_t sollAnzahl,
                         EinsBasiert<std::string>& ergebnis) {
    ergebnis.ReDim(1);
    if (text.empty()) return false;
    int32_t n = Teilen(text, start, trennzeichen, ergebnis);
    if (sollAnzahl == -1) return true;
    return n == sollAnzahl && n >= 1;
}

std::string NullAbschneiden(std::string_view text) {
    if (text.empty() || text.back() != '\0') return std::string(text);
    return std::string(text.substr(0, text.find('\0')));
}
