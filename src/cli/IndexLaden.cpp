#include "cli/IndexLaden.h"

#include "app/IndexOeffnen.h"
#include "platform/Verzeichnisse.h"

#include <charconv>
#include <cstdio>

bool IndexFürBefehlLaden(CliKontext& c) {
    std::string standard;
    if (c.indexPfad.empty()) {
        OrdnerAnlegen(DatenOrdner());
        standard = StandardIndexPfad();
    }
    c.k.Dateiname = c.indexPfad;
    if (IndexÖffnen(c.k, standard)) return true;
    std::fprintf(stderr, "Die Indexdatei '%s' wurde nicht geladen.\n", c.k.Dateiname.c_str());
    return false;
}

std::string AusgabeText(std::string_view text) {
    static constexpr char kHex[] = "0123456789ABCDEF";
    std::string aus;
    aus.reserve(text.size());
    for (char z : text) {
        const auto b = static_cast<unsigned char>(z);
        if (b < 32 || z == '\\') {
            aus += "\\x";
            aus += kHex[b >> 4];
            aus += kHex[b & 15];
        } else {
            aus += z;
        }
    }
    return aus;
}

bool NummerLesen(const std::string& text, int32_t& nummer) {
    const char* ende = text.data() + text.size();
    auto [p, fehler] = std::from_chars(text.data(), ende, nummer);
    return fehler == std::errc() && p == ende;
}
