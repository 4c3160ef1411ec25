// Fuzz-Ziel: die Suche nach dem ersten MPEG-Frame-Kopf und der Xing-Block dahinter.
#include "media/DateiLeser.h"
#include "media/MpegKopf.h"
#include "FuzzUmgebung.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* daten, size_t größe) {
    static SpeicherDatei datei;
    if (!datei.Füllen({reinterpret_cast<const char*>(daten), größe})) return 0;
    {
        DateiLeser leser(datei.Pfad());
        DateiInfo info;
        info.Datei_Größe = int32_t(größe);
        HeaderLesen(leser, info);
    }
    KTextSpeicherZurücksetzen();  // kein Text dieses Laufs lebt noch: der Textspeicher wächst nicht
    return 0;
}
