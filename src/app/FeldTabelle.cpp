#include "app/FeldTabelle.h"

#include <array>
#include <limits>

namespace {
// Form und Typ müssen zusammenpassen; jeder Platz und jede Spalte gehört höchstens einem Feld.
constexpr bool TabelleStimmig() {
    std::array<int, 41> plätze{};
    std::array<int, 31> spalten{};
    for (const DateiFeld& f : DateiFeldTabelle) {
        const bool text = f.form == FeldForm::Text || f.form == FeldForm::Datum || f.form == FeldForm::Genre;
        if (text != (f.zeiger.typ == FeldTyp::Text)) return false;
        if ((f.form == FeldForm::Wahrheit) != (f.zeiger.typ == FeldTyp::Wahrheit)) return false;
        if (f.platz < 0 || f.platz == 1 || f.platz > 40 || f.spalte < 0 || f.spalte > 30) return false;
        if (f.platz > 0 && ++plätze[size_t(f.platz)] > 1) return false;
        if (f.spalte > 0 && ++spalten[size_t(f.spalte)] > 1) return false;
        if ((f.spalte > 0) == f.spaltenName.empty()) return false;
        if (!f.rahmen22.empty() && f.rahmen23.empty()) return false;
    }
    return true;
}
static_assert(DateiFeldAnzahl == 54 && TabelleStimmig());

// Nummer 2..40 einer Datensatzzeile → Zeile der Tabelle (-1 = keine).
constexpr std::array<int8_t, 41> PlätzeAufbauen() {
    std::array<int8_t, 41> zeile{};
    zeile.fill(-1);
    for (int8_t i = 0; i < DateiFeldAnzahl; ++i)
        if (DateiFeldTabelle[i].platz > 0) zeile[size_t(DateiFeldTabelle[i].platz)] = i;
    return zeile;
}
constexpr std::array<int8_t, 41> kPlätze = PlätzeAufbauen();

constexpr std::array<int8_t, 31> SpaltenAufbauen() {
    std::array<int8_t, 31> zeile{};
    zeile.fill(-1);
    for (int8_t i = 0; i < DateiFeldAnzahl; ++i)
        if (DateiFeldTabelle[i].spalte > 0) zeile[size_t(DateiFeldTabelle[i].spalte)] = i;
    return zeile;
}
constexpr std::array<int8_t, 31> kSpalten = SpaltenAufbauen();

template <typename T> bool Setzen(T& ziel, int32_t wert) {
    if (wert < std::numeric_limits<T>::min() || wert > std::numeric_limits<T>::max()) return false;
    ziel = static_cast<T>(wert);
    return true;
}
}  // namespace

int32_t DateiFeld::Zahl(const DateiInfo& d) const {
    switch (zeiger.typ) {
    case FeldTyp::Long: return d.*zeiger.long32;
    case FeldTyp::Integer: return d.*zeiger.integer;
    case FeldTyp::Byte: return d.*zeiger.byte;
    case FeldTyp::Wahrheit: return d.*zeiger.wahrheit ? 1 : 0;
    case FeldTyp::Text: break;
    }
    return 0;
}

bool DateiFeld::ZahlSetzen(DateiInfo& d, int32_t wert) const {
    switch (zeiger.typ) {
    case FeldTyp::Long: return Setzen(d.*zeiger.long32, wert);
    case FeldTyp::Integer: return Setzen(d.*zeiger.integer, wert);
    case FeldTyp::Byte: return Setzen(d.*zeiger.byte, wert);
    case FeldTyp::Wahrheit: d.*zeiger.wahrheit = wert != 0; return true;
    case FeldTyp::Text: break;
    }
    return false;
}

const DateiFeld* DateiFeldNamens(std::string_view name) {
    for (const DateiFeld& f : DateiFeldTabelle)
        if (f.name == name) return &f;
    return nullptr;
}

const DateiFeld* DateiFeldFürPlatz(int32_t platz) {
    if (platz < 0 || platz > 40 || kPlätze[size_t(platz)] < 0) return nullptr;
    return &DateiFeldTabelle[kPlätze[size_t(platz)]];
}

const DateiFeld* DateiFeldFürRahmen(std::string_view kennung, bool v22) {
    if (kennung.empty()) return nullptr;
    for (const DateiFeld& f : DateiFeldTabelle)
        if (kennung == (v22 ? f.rahmen22 : f.rahmen23)) return &f;
    return nullptr;
}

const DateiFeld* DateiFeldFürSpalte(int32_t spalte) {
    if (spalte < 1 || spalte > 30 || kSpalten[size_t(spalte)] < 0) return nullptr;
    return &DateiFeldTabelle[kSpalten[size_t(spalte)]];
}
