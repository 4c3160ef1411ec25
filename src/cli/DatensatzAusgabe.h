#pragma once
// Ein Datensatz als Block von Zeilen "Name=Wert" (info, show): "Nummer", "DateiPfade", dann jedes
// Feld von DateiInfo in deklarierter Reihenfolge, zuletzt eine Leerzeile.
#include "app/DateiInfo.h"

#include <cstdint>
#include <string>
#include <string_view>

void DatensatzBlockAnhängen(std::string& aus, int32_t nummer, const std::string& pfad, const DateiInfo& d);
