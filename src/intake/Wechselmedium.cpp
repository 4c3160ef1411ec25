#include "intake/Wechselmedium.h"

#include "app/Kartei.h"
#include "app/Texte.h"

std::string DatenträgerName(Kartei& k, const std::string& wurzel) {
    if (!k.datenträger.IstWechselmedium(wurzel)) return {};
    return NullAbschneiden(k.datenträger.Bezeichnung(wurzel));
}

std::string WechselmediumZuPfad(Kartei& k, const std::string& pfad) {
    return DatenträgerName(k, k.datenträger.Wurzel(pfad));
}
