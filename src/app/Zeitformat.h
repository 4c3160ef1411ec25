#pragma once
// Zeitspannen als Text: "m:ss", ab einer Stunde (oder auf Wunsch immer) "h:mm:ss".
#include <cstdint>
#include <string>

std::string SekundenFormatieren(int64_t sekunden, bool mitStunden = false);
