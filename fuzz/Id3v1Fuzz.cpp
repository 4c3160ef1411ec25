// Fuzz-Ziel: der ID3v1-Block am Dateiende, gelesen, aufgeteilt und wieder zusammengesetzt.
#include "media/DateiLeser.h"
#include "media/Id3v1.h"
#include "FuzzUmgebung.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* daten, size_t größe) {
    static SpeicherDatei datei;
    if (!datei.Füllen({reinterpret_cast<const char*>(daten), größe})) return 0;
    DateiLeser leser(datei.Pfad());
    const std::string tag = Mp3tagLesenStr(leser);
    if (tag.empty()) return 0;
    for (bool umbrüche : {false, true}) {
        DateiInfo info;
        Id3v1FelderAufteilen(tag, info, umbrüche);
        // Was gelesen wurde, muss sich wieder als genau ein Block schreiben lassen.
        if (TAGAusFeldernZusammensetzen(Id3v1FelderAusDatensatz(info)).size() != 128) std::abort();
    }
    KTextSpeicherZurücksetzen();  // kein Text dieses Laufs lebt noch: der Textspeicher wächst nicht
    return 0;
}
