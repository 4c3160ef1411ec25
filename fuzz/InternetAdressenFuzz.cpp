// Fuzz-Ziel: die Liste der Such-Dienste (Ineturl.dat) und das Verschlüsseln des Suchtexts.
#include "shell/Internet.h"
#include "FuzzUmgebung.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* daten, size_t größe) {
    static SpeicherDatei datei;
    static FuzzKartei fk;
    const std::string_view text(reinterpret_cast<const char*>(daten), größe);
    if (!datei.Füllen(text)) return 0;
    EinsBasiert<std::string> adressen, namen;
    InternetAdressenLaden(fk.k(), datei.Pfad(), adressen, namen);
    InternetFormat(std::string(text.substr(0, 256)));
    return 0;
}
