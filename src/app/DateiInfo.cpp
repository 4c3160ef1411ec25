#include "app/DateiInfo.h"

#include "app/FeldTabelle.h"
#include "app/Zahlen.h"

#include <array>

namespace {
FeldArt ArtVon(const DateiFeld& f) {
    if (f.form == FeldForm::Zahl) return FeldArt::Zahl;
    if (f.form == FeldForm::Wahrheit) return FeldArt::Wahrheit;
    return FeldArt::Text;
}

std::array<DateiInfoFeld, DateiFeldAnzahl> FelderAufbauen() {
    std::array<DateiInfoFeld, DateiFeldAnzahl> felder{};
    for (int i = 0; i < DateiFeldAnzahl; ++i)
        felder[size_t(i)] = {DateiFeldTabelle[i].name.data(), ArtVon(DateiFeldTabelle[i])};
    return felder;
}

bool GanzzahlLesen(const std::string& wert, int32_t& z) { return IstNumerisch(wert) && LongAus(*ZahlWert(wert), z); }
}  // namespace

const DateiInfoFeld* DateiInfoFelder(int& anzahl) {
    static const std::array<DateiInfoFeld, DateiFeldAnzahl> felder = FelderAufbauen();
    anzahl = DateiFeldAnzahl;
    return felder.data();
}

bool DateiInfoFeldLesen(const DateiInfo& d, const std::string& name, std::string& wert) {
    const DateiFeld* f = DateiFeldNamens(name);
    if (!f) return false;
    switch (f->form) {
    case FeldForm::Genre:
        wert = f->Text(d).empty() ? "" : std::to_string(static_cast<unsigned char>(f->Text(d)[0]));
        break;
    case FeldForm::Zahl:
    case FeldForm::Wahrheit: wert = std::to_string(f->Zahl(d)); break;
    default: wert = f->Text(d); break;
    }
    return true;
}

bool DateiInfoFeldSetzen(DateiInfo& d, const std::string& name, const std::string& wert) {
    const DateiFeld* f = DateiFeldNamens(name);
    if (!f) return false;
    int32_t z = 0;
    switch (f->form) {
    case FeldForm::Genre:
        if (wert.empty()) {
            f->Text(d).clear();
            return true;
        }
        if (!GanzzahlLesen(wert, z) || z < 0 || z > 255) return false;
        f->Text(d).assign(1, static_cast<char>(z));
        return true;
    case FeldForm::Wahrheit:
        if (wert != "1" && wert != "0") return false;
        return f->ZahlSetzen(d, wert == "1");
    case FeldForm::Zahl: return GanzzahlLesen(wert, z) && f->ZahlSetzen(d, z);
    default: f->Text(d) = wert; return true;
    }
}
