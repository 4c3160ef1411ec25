// Fuzz-Ziel: ID3v2-Tags der Versionen 2.2 bis 2.4 am Dateianfang oder weiter hinten.
#include "media/DateiLeser.h"
#include "media/Id3v2Lesen.h"
#include "FuzzUmgebung.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* daten, size_t größe) {
    static SpeicherDatei datei;
    if (größe < 1 || !datei.Füllen({reinterpret_cast<const char*>(daten) + 1, größe - 1})) return 0;
    // Das erste Byte wählt die Suchweite: ganze Datei oder nur die ersten Bytes.
    const int32_t bytesSuchen = daten[0] < 128 ? 0 : int32_t(daten[0]) * 8;
    {
        DateiLeser leser(datei.Pfad());
        DateiInfo info;
        Mp3TAGLesenV2(leser, info, bytesSuchen);
    }
    KTextSpeicherZurücksetzen();  // kein Text dieses Laufs lebt noch: der Textspeicher wächst nicht
    int32_t größeFeld = 0;
    Mp3TAGLesenV2GrößeLesen({reinterpret_cast<const char*>(daten), größe < 4 ? größe : 4}, größeFeld, daten[0] & 1);
    return 0;
}
