// VORLÄUFIG: hält den Platz für das Lesen der Mediendaten frei, bis es da ist; gibt den
// Datensatz unverändert zurück. Beim Zusammenführen löschen (samt Eintrag in CMakeLists.txt).
#include "media/MedienInfos.h"

DateiInfo MedienInfosLesen(Kartei&, const std::string&, const DateiInfo& info, const std::string&, bool,
                           const std::string&, const std::string&) {
    return info;
}
