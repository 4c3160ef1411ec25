#include "fileops/FortlaufendeNamen.h"

#include "app/Pfade.h"
#include "app/Trace.h"
#include "app/Zahlen.h"

std::string ZuNächsterZahl(std::string_view text) {
    const auto wert = ZahlWert(text);
    int32_t zahl = 0, nächste = 0;
    if (!wert || !LongAus(*wert, zahl) || !LongAddieren(zahl, 1, nächste)) return {};
    return std::to_string(nächste);
}

std::string FortlaufendenDateinamen(std::string_view pfad, std::string_view basis1, std::string_view start,
                                    std::string_view basis2) {
    const std::string vorn = PfadZurückgeben(pfad) + "/" + std::string(basis1);
    const std::string hinten = std::string(basis2) + DateiEndung(pfad);
    std::string zahl(start);
    std::string kandidat = vorn + zahl + hinten;
    for (int32_t runde = 1; DoesExist(kandidat); ++runde) {
        if (runde > 10000) {
            KK_TRACE("FortlaufendenDateinamen", "Zu viele Durchläufe (>10.000)");
            return {};
        }
        zahl = ZuNächsterZahl(zahl);
        kandidat = vorn + zahl + hinten;
    }
    return kandidat;
}
