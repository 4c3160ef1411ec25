// Fuzz-Ziel: AutoTag-Formate über einem Pfad. Eingabe: Format, Nullbyte, Pfad; das erste Byte
// des Formats wählt den Modus.
#include "tags/AutoTag.h"
#include "FuzzUmgebung.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* daten, size_t größe) {
    if (größe < 1) return 0;
    const int16_t modus = int16_t(daten[0] % 3);
    auto [format, pfad] = AmNullbyteTeilen(daten + 1, größe - 1);
    EinsBasiert<std::string> platzhalter, trenner;
    int32_t anzahl = 0;
    FormatLesen(format, platzhalter, trenner, anzahl);
    static FuzzKartei fk;  // AutoTag ändert die Kartei nicht
    DateiInfo ergebnis, ausgang;
    ausgang.Mp3_ID3v1_Titel = "Titel";
    AutoTagVersuchen(fk.k(), std::string(pfad), std::string(format), ergebnis, ausgang, modus);
    return 0;
}
