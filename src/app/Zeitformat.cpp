#include "app/Zeitformat.h"

#include <cstdio>

std::string SekundenFormatieren(int64_t sekunden, bool mitStunden) {
    const bool negativ = sekunden < 0;
    const uint64_t s = negativ ? 0 - static_cast<uint64_t>(sekunden) : static_cast<uint64_t>(sekunden);
    char puffer[40];
    if (mitStunden || s >= 3600)
        std::snprintf(puffer, sizeof puffer, "%s%llu:%02llu:%02llu", negativ ? "-" : "",
                      static_cast<unsigned long long>(s / 3600), static_cast<unsigned long long>(s / 60 % 60),
                      static_cast<unsigned long long>(s % 60));
    else
        std::snprintf(puffer, sizeof puffer, "%s%llu:%02llu", negativ ? "-" : "",
                      static_cast<unsigned long long>(s / 60), static_cast<unsigned long long>(s % 60));
    return puffer;
}
