#pragma once
// Die eine Routine, über die die Daten einer Datei in einen Datensatz kommen.
#include "app/DateiInfo.h"

#include <string>

struct Kartei;

// Arbeitet auf einer Kopie von info und gibt sie zurück. tagFlags: erstes Zeichen ID3v1,
// zweites ID3v2 ("0" nein, andere Ziffern ja); kopfLesen "1": MPEG-Kopf; größeLesen "1":
// Größe und Wechselmedium.
DateiInfo MedienInfosLesen(Kartei& k, const std::string& dateiname, const DateiInfo& info, const std::string& tagFlags,
                           bool zeilenumbrücheLassen, const std::string& kopfLesen, const std::string& größeLesen);
