#include "cli/DatensatzAusgabe.h"

std::string FeldwertMaskieren(std::string_view wert) {
    static const char hex[] = "0123456789ABCDEF";
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

void DatensatzBlockAnhängen(std::string& aus, int32_t nummer, const std::string& pfad, const DateiInfo& d) {
    aus += "Nummer=" + std::to_string(nummer) + "\n";
    aus += "DateiPfade=" + FeldwertMaskieren(pfad) + "\n";
    int anzahl = 0;
    const DateiInfoFeld* felder = DateiInfoFelder(anzahl);
    std::string wert;
    for (int i = 0; i < anzahl; ++i) {
        DateiInfoFeldLesen(d, felder[i].name, wert);
        aus.append(felder[i].name).append("=").append(FeldwertMaskieren(wert)).append("\n");
    }
    aus += "\n";
}
