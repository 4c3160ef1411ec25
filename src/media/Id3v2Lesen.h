#pragma once
// Findet einen ID3v2-Tag der Versionen 2.2 bis 2.4 und füllt die Mp3_ID3v2_*-Felder.
// Gebaut zum Anzeigen und zum Erhalten über ein Neuschreiben, nicht für volle Konformität.
#include "app/DateiInfo.h"

#include <cstdint>
#include <string>
#include <string_view>

class DateiLeser;

// true, wenn ein Tag bekannter Version durchlaufen wurde. bytesSuchen ist die Einstellung
// TAGsBytesSuchen (0 oder weniger: die ganze Datei). Fehlt die Datei, fehlt "ID3" oder passt die
// Hauptversion nicht, ist das Ergebnis false und der Datensatz zurückgesetzt (Status 2,
// Größe und Position -1).
bool Mp3TAGLesenV2(const std::string& dateiname, DateiInfo& info, int32_t bytesSuchen);
bool Mp3TAGLesenV2(DateiLeser& datei, DateiInfo& info, int32_t bytesSuchen);

// Größenfeld aus drei oder vier Zeichen. Die Gewichte 16384, 2048, 256 und 1 auf 8-Bit-Gruppen
// sind gewollt: Werte unter 65536 stimmen, größere werden zu klein gelesen. Ohne nichtSyncSafe
// gilt ein Byte mit gesetztem oberem Bit als Zeichen, dass die Größe nicht SyncSafe ist.
bool Mp3TAGLesenV2GrößeLesen(std::string_view bytes, int32_t& größe, bool nichtSyncSafe);
