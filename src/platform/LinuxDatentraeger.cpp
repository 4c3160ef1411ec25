#include "platform/LinuxDatentraeger.h"

#include "app/Pfade.h"

#include <fstream>
#include <sstream>

std::string LinuxDatenträger::Wurzel(const std::string& pfad) {
    // Längster Einhängepunkt, der den Pfad enthält.
    std::ifstream ein("/proc/self/mountinfo");
    std::string zeile, beste = "/";
    while (std::getline(ein, zeile)) {
        std::istringstream z(zeile);
        std::string id, eltern, nummern, wurzel, punkt;
        z >> id >> eltern >> nummern >> wurzel >> punkt;
        if (punkt.size() > beste.size() && pfad.compare(0, punkt.size(), punkt) == 0 &&
            (pfad.size() == punkt.size() || pfad[punkt.size()] == '/'))
            beste = punkt;
    }
    return beste;
}

bool LinuxDatenträger::IstWechselmedium(const std::string&) { return false; }

std::string LinuxDatenträger::Bezeichnung(const std::string& wurzel) { return DateinameAusPfad(wurzel); }
