// Fuzz-Ziel: Zeilen einer Indexdatei, verteilt wie beim Laden ("#TAG:" Datensatz, "#OPT:" Option).
#include "app/BlockLeser.h"
#include "app/DateiInfo.h"
#include "index/IndexOptionen.h"
#include "index/IndexZeilen.h"
#include "FuzzUmgebung.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* daten, size_t größe) {
    static SpeicherDatei datei;
    if (!datei.Füllen({reinterpret_cast<const char*>(daten), größe})) return 0;
    BlockLeser leser(4096);  // kleine Blöcke: auch das Nachladen über Blockgrenzen wird geprüft
    if (!leser.Öffnen(datei.Pfad())) return 0;
    IndexOptionen optionen;
    IndexOptionenVorgaben(optionen);
    std::string_view zeile;
    Größenliste größen;
    while (leser.ZeileCrLf(zeile)) {
        if (zeile.starts_with("#TAG:")) {
            if (!GrößenlisteLesen(zeile, größen)) continue;
            KText pfad;
            DateiInfo d;
            DatensatzFelderLesen(zeile, größen, pfad, d);
        } else if (zeile.starts_with("#OPT:")) {
            OptionZeileLesen(optionen, zeile);
        }
    }
    KTextSpeicherZurücksetzen();  // kein Text dieses Laufs lebt noch
    return 0;
}
