#include "shell/Fortschritt.h"

#include "app/Kartei.h"
#include "app/Zahlen.h"

namespace {
// Dem Fenster nur Änderungen zeigen: bei 100.000 Meldungen zählt jeder Aufruf.
void Darstellen(Kartei& k, const FortschrittAnsicht& vorher) {
    const auto& a = k.Fortschritt.ansicht;
    if (!a.offen && !vorher.offen) return;  // geschlossen bleibt unsichtbar
    if (a.offen == vorher.offen && a.titel == vorher.titel && a.vorgang == vorher.vorgang &&
        a.balkenSichtbar == vorher.balkenSichtbar && a.balkenBreite == vorher.balkenBreite &&
        a.prozessSichtbar == vorher.prozessSichtbar && a.prozess == vorher.prozess &&
        a.abbrechenSichtbar == vorher.abbrechenSichtbar)
        return;
    k.ui.FortschrittDarstellen(a);
}

bool Melden(Kartei& k, const double* wert, const std::string& prozess) {
    auto& f = k.Fortschritt;
    auto& a = f.ansicht;
    if (!a.offen) return k.E.StartBildschirm <= 0;
    const FortschrittAnsicht vorher = a;
    a.balkenSichtbar = f.mitBalken;
    // Ein Maximum von 0 hätte hier durch null geteilt; der Balken bleibt dann stehen.
    if (a.balkenSichtbar && wert && f.maximum != 0) {
        double neu = Int(*wert * (100.0 / f.maximum) * 45.0);
        if (neu > a.balkenBreite + 10) a.balkenBreite = static_cast<int32_t>(neu > 4500 ? 4500 : neu);
    }
    a.prozessSichtbar = f.mitProzess;
    if (a.prozessSichtbar) a.prozess = prozess;
    a.abbrechenSichtbar = f.mitAbbrechen;
    Darstellen(k, vorher);
    if (!f.FortschrittAbgebrochen) {
        k.ui.EreignisseVerarbeiten();
        return true;
    }
    FortschrittZeigenEnde(k);
    return false;
}
}  // namespace

bool FortschrittZeigenStarten(Kartei& k, int32_t maximum, bool mitAbbrechen, bool mitBalken, bool mitProzess,
                              const std::string& vorgang) {
    auto& f = k.Fortschritt;
    auto& a = f.ansicht;
    const FortschrittAnsicht vorher = a;
    a.balkenSichtbar = false;
    if (a.abbrechenSichtbar && !mitAbbrechen) a.abbrechenSichtbar = false;
    a.titel = ProgrammTitel;
    f.FortschrittAbgebrochen = false;
    if (mitBalken) {
        a.balkenBreite = 0;
        if (maximum < 0) {
            Darstellen(k, vorher);
            return false;
        }
        f.maximum = maximum;
    }
    f.mitBalken = mitBalken;
    f.mitProzess = mitProzess;
    f.mitAbbrechen = mitAbbrechen;
    if (mitProzess) a.prozessSichtbar = true;
    a.vorgang = vorgang;
    if (!a.offen && k.E.StartBildschirm == 1) a.offen = true;
    Darstellen(k, vorher);
    k.ui.EreignisseVerarbeiten();
    return true;
}

bool FortschrittZeigen(Kartei& k, double wert, const std::string& prozess) { return Melden(k, &wert, prozess); }

bool FortschrittZeigen(Kartei& k, const std::string& prozess) { return Melden(k, nullptr, prozess); }

void FortschrittZeigenEnde(Kartei& k) {
    auto& f = k.Fortschritt;
    const FortschrittAnsicht vorher = f.ansicht;
    f.ansicht.offen = false;
    Darstellen(k, vorher);
    f.FortschrittAbgebrochen = false;
}

void FortschrittAbbrechenGedrückt(Kartei& k) { k.Fortschritt.FortschrittAbgebrochen = true; }

bool FortschrittFensterOffen(const Kartei& k) { return k.Fortschritt.ansicht.offen; }
