#include "cli/CliAusgabe.h"

#include <cstdio>

std::string AusgabeMaskieren(std::string_view wert) {
    static constexpr char hex[] = "0123456789ABCDEF";
    std::string aus;
    aus.reserve(wert.size());
    for (char c : wert) {
        const auto b = static_cast<unsigned char>(c);
        if (b >= 32 && c != '\\') {
            aus.push_back(c);
            continue;
        }
        aus += "\\x";
        aus.push_back(hex[b >> 4]);
        aus.push_back(hex[b & 15]);
    }
    return aus;
}

void NameWertAusgeben(std::string_view name, std::string_view wert) {
    const std::string zeile = std::string(name) + "=" + AusgabeMaskieren(wert) + "\n";
    std::fwrite(zeile.data(), 1, zeile.size(), stdout);
}
