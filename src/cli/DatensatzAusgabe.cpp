#include "cli/DatensatzAusgabe.h"

#include "cli/CliAusgabe.h"

void DatensatzBlockAnhängen(std::string& aus, int32_t nummer, const std::string& pfad, const DateiInfo& d) {
    aus += "Nummer=" + std::to_string(nummer) + "\n";
    aus += "DateiPfade=" + AusgabeMaskieren(pfad) + "\n";
    int anzahl = 0;
    const DateiInfoFeld* felder = DateiInfoFelder(anzahl);
    std::string wert;
    for (int i = 0; i < anzahl; ++i) {
        DateiInfoFeldLesen(d, felder[i].name, wert);
        aus.append(felder[i].name).append("=").append(AusgabeMaskieren(wert)).append("\n");
    }
    aus += "\n";
}
