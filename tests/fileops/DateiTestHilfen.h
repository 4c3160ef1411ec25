#pragma once
// Gemeinsames der Dateioperationen-Tests: Einträge setzen, Pfade lesen, ein zweites Dateisystem.
#include "app/Kartei.h"
#include "app/Tabelle.h"

#include <string>
#include <sys/stat.h>
#include <vector>

// Die Tabelle besteht genau aus diesen Pfaden (leere Datensätze).
inline void EinträgeSetzen(Kartei& k, const std::vector<std::string>& pfade) {
    const auto n = static_cast<int32_t>(pfade.size());
    IndexGrößeÄndern(k, n, false);
    k.DateiAnzahl = n;
    for (int32_t i = 1; i <= n; ++i) k.DateiPfade[i] = pfade[static_cast<size_t>(i - 1)];
}

inline std::vector<std::string> IndexPfade(const Kartei& k) {
    std::vector<std::string> pfade;
    for (int32_t i = 1; i <= k.DateiAnzahl; ++i) pfade.push_back(k.DateiPfade[i]);
    return pfade;
}

// /dev/shm, wenn es auf einem anderen Dateisystem als der Testordner liegt; sonst "".
inline std::string FremdesDateisystem(const std::string& hier) {
    struct stat a {
    }, b{};
    if (::stat("/dev/shm", &a) != 0 || ::stat(hier.c_str(), &b) != 0 || a.st_dev == b.st_dev) return {};
    return "/dev/shm";
}
