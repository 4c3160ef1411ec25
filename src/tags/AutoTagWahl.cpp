#include "tags/AutoTagWahl.h"

#include "app/Kartei.h"
#include "app/Texte.h"
#include "tags/AutoTag.h"

#include <algorithm>

namespace {
// Eine gespeicherte Liste ohne ihre leeren Plätze (eine leere Liste hält einen leeren Platz).
std::vector<std::string> Einträge(const EinsBasiert<std::string>& liste, int16_t zustand) {
    std::vector<std::string> aus;
    if (zustand == 1) return aus;
    for (int32_t i = 1; i <= liste.UBound(); ++i)
        if (!liste[i].empty()) aus.push_back(liste[i]);
    return aus;
}

void Speichern(const std::vector<std::string>& einträge, EinsBasiert<std::string>& liste, int16_t& zustand) {
    liste.ReDim(einträge.empty() ? 1 : static_cast<int32_t>(einträge.size()));
    for (size_t i = 0; i < einträge.size(); ++i) liste[static_cast<int32_t>(i + 1)] = einträge[i];
    zustand = einträge.empty() ? 1 : 0;
}

int32_t Stelle(const std::vector<std::string>& liste, const std::string& text) {
    const auto it = std::find(liste.begin(), liste.end(), text);
    return it == liste.end() ? -1 : static_cast<int32_t>(it - liste.begin());
}
}  // namespace

AutoTagWahl AutoTagWahlLaden(const Kartei& k) {
    AutoTagWahl w;
    w.formate = Einträge(k.E.AutoTagFormate, k.E.AutoTagLeer);
    w.gewählt = Stelle(w.formate, k.E.AutoTagAktuell);
    w.ausschluss = Einträge(k.E.AutoTagAusschluß, k.E.AutoTagAusschlußLeer);
    w.unterstrichEntfernen = k.E.AutoTagUnterstrichEntfernen == 1;
    w.felderLöschen = k.E.AutoTagFelderLöschen == 1;
    return w;
}

void AutoTagWahlÜbernehmen(Kartei& k, const AutoTagWahl& w) {
    Speichern(w.formate, k.E.AutoTagFormate, k.E.AutoTagLeer);
    Speichern(w.ausschluss, k.E.AutoTagAusschluß, k.E.AutoTagAusschlußLeer);
    const bool gültig = w.gewählt >= 0 && w.gewählt < static_cast<int32_t>(w.formate.size());
    if (gültig) k.E.AutoTagAktuell = w.formate[static_cast<size_t>(w.gewählt)];
    k.E.AutoTagUnterstrichEntfernen = w.unterstrichEntfernen ? 1 : 0;
    k.E.AutoTagFelderLöschen = w.felderLöschen ? 1 : 0;
}

bool AutoTagFormatHinzufügen(Kartei& k, AutoTagWahl& w, const std::string& format) {
    const std::string f = Trim(format);
    if (!AutoTagFormatPrüfen(k, f)) return false;
    w.gewählt = Stelle(w.formate, f);
    if (w.gewählt < 0) {
        w.formate.push_back(f);
        w.gewählt = static_cast<int32_t>(w.formate.size()) - 1;
    }
    return true;
}

bool AutoTagFormatÄndern(Kartei& k, AutoTagWahl& w, const std::string& format) {
    if (w.gewählt < 0 || w.gewählt >= static_cast<int32_t>(w.formate.size())) return false;
    const std::string f = Trim(format);
    if (!AutoTagFormatPrüfen(k, f)) return false;
    w.formate[static_cast<size_t>(w.gewählt)] = f;
    return true;
}

bool AutoTagFormatEntfernen(AutoTagWahl& w) {
    if (w.gewählt < 0 || w.gewählt >= static_cast<int32_t>(w.formate.size())) return false;
    w.formate.erase(w.formate.begin() + w.gewählt);
    w.gewählt = std::min(w.gewählt, static_cast<int32_t>(w.formate.size()) - 1);
    return true;
}

bool AutoTagAusschlussHinzufügen(AutoTagWahl& w, const std::string& wort) {
    const std::string t = Trim(wort);
    if (t.empty()) return false;
    for (const auto& vorhanden : w.ausschluss)
        if (TexteGleich(vorhanden, t)) return false;
    w.ausschluss.push_back(t);
    return true;
}

bool AutoTagAusschlussEntfernen(AutoTagWahl& w, int32_t zeile) {
    if (zeile < 0 || zeile >= static_cast<int32_t>(w.ausschluss.size())) return false;
    w.ausschluss.erase(w.ausschluss.begin() + zeile);
    return true;
}
