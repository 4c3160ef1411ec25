// Der Sammelbereich eines Stapels und die Prüfung jeder einzelnen Datei.
#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/Tabelle.h"
#include "app/Texte.h"
#include "intake/DateiFormat.h"
#include "intake/Hinzufuegen.h"
#include "media/MedienInfos.h"

#include <algorithm>
#include <climits>
#include <utility>

namespace {
constexpr int32_t kSammelSchritt = 1000;

// Außerhalb eines Stapels hält der Sammelbereich je ein Element; die Doppelten-Sperre wird
// beim nächsten Stapel neu gebaut, denn bis dahin kann sich der Index ändern.
void SammelbereichLeeren(AufnahmeZustand& a) {
    a.NeueDateien.ReDim(1);
    a.NeueMedien.ReDim(1);
    a.SammlungOffen = false;
    a.IndexPfadTabelle = {};  // bis zu Megabytes: nicht über den Stapel hinaus halten
    a.IndexPfadeGebautFür = -1;
}

// Die oberen Bits des Streuwerts; die unteren wählen schon den Platz.
uint32_t Marke(uint64_t streuwert) { return static_cast<uint32_t>(streuwert >> 32); }

// Einmal je Stapel: alle Indexpfade in eine Streutabelle. Danach kostet eine Datei einen
// Streuwert und nur bei gleichem Wert einen echten Vergleich.
void IndexPfadeErfassen(Kartei& k) {
    auto& a = k.Aufnahme;
    const int32_t anzahl = std::max(0, std::min(k.DateiAnzahl, k.DateiPfade.UBound()));
    size_t plätze = 16;
    while (plätze < size_t(anzahl) * 2) plätze *= 2;
    // Erst alle Streuwerte der Reihe nach, dann einsortieren: so überlappen sich die Zugriffe
    // auf die verstreuten Plätze, statt aufeinander zu warten.
    std::vector<uint64_t> streuwerte(size_t(anzahl) + 1);
    for (int32_t i = 1; i <= anzahl; ++i) streuwerte[size_t(i)] = NamenStreuwert(k.DateiPfade[i]);
    a.IndexPfadTabelle.assign(plätze, {0, 0});
    for (int32_t i = 1; i <= anzahl; ++i) {
        if (i + 8 <= anzahl) __builtin_prefetch(&a.IndexPfadTabelle[streuwerte[size_t(i + 8)] & (plätze - 1)], 1);
        size_t platz = streuwerte[size_t(i)] & (plätze - 1);
        while (a.IndexPfadTabelle[platz].second != 0) platz = (platz + 1) & (plätze - 1);
        a.IndexPfadTabelle[platz] = {Marke(streuwerte[size_t(i)]), i};
    }
    a.IndexPfadeGebautFür = k.DateiAnzahl;
}

// Steht datei (gleiche Länge, Groß/Klein egal) schon im Index?
bool SchonImIndex(Kartei& k, const std::string& datei) {
    auto& a = k.Aufnahme;
    if (a.IndexPfadeGebautFür != k.DateiAnzahl || a.IndexPfadTabelle.empty()) IndexPfadeErfassen(k);
    const size_t maske = a.IndexPfadTabelle.size() - 1;
    const uint64_t streuwert = NamenStreuwert(datei);
    for (size_t platz = streuwert & maske; a.IndexPfadTabelle[platz].second != 0; platz = (platz + 1) & maske) {
        const auto [marke, nummer] = a.IndexPfadTabelle[platz];
        if (marke == Marke(streuwert) && nummer <= k.DateiAnzahl && k.DateiPfade.GültigerIndex(nummer) &&
            NamenGleich(k.DateiPfade[nummer], datei))
            return true;
    }
    return false;
}
}  // namespace

void DateiListeHinzuStarten(Kartei& k) {
    auto& a = k.Aufnahme;
    a.NeueAnzahl = 0;
    a.SammlungOffen = true;
    a.IndexPfadeGebautFür = -1;
}

bool DateienZurListeHinzufügen(Kartei& k, const std::string& datei) {
    if (!DoesExist(datei) || IstOrdner(datei)) return false;
    if (!DateiFormatUnterstützt(k, datei, false, false, false, true)) return false;
    if (k.E.HinzufügenKeineDoppelten == 1 && SchonImIndex(k, datei)) return false;

    auto& a = k.Aufnahme;
    if (!a.SammlungOffen) {  // ohne Start: ein Stapel beginnt mit dieser Datei
        a.NeueAnzahl = 0;
        a.SammlungOffen = true;
    }
    ++a.NeueAnzahl;
    if (a.NeueAnzahl == 1) {
        a.NeueDateien.ReDim(kSammelSchritt);
        a.NeueMedien.ReDim(kSammelSchritt);
    } else if (a.NeueAnzahl > a.NeueDateien.UBound()) {
        a.NeueDateien.ReDimPreserve(a.NeueAnzahl + kSammelSchritt);
        a.NeueMedien.ReDimPreserve(a.NeueAnzahl + kSammelSchritt);
    }
    a.NeueDateien[a.NeueAnzahl] = datei;
    // Mp3TagLesen: die ersten beiden Zeichen sind die Tag-Schalter, das dritte gilt für Kopf und Größe.
    const std::string& flags = k.E.Mp3TagLesen;
    const std::string kopf = Mid(flags, 3, 1);
    a.NeueMedien[a.NeueAnzahl] = MedienInfosLesen(k, datei, DateiInfo{}, Left(flags, 2), false, kopf, kopf);
    return true;
}

void DateiListeHinzuBeenden(Kartei& k) {
    auto& a = k.Aufnahme;
    const int32_t neu = std::min(a.NeueAnzahl, a.NeueDateien.UBound());
    if (neu < 1 || !a.SammlungOffen || k.DateiAnzahl > INT32_MAX - neu) {
        SammelbereichLeeren(a);
        return;
    }
    DateiGeändertSetzen(k);
    const int32_t alt = k.DateiAnzahl;
    IndexGrößeÄndern(k, alt + neu, true);
    for (int32_t i = 1; i <= neu; ++i) {
        k.DateiPfade[alt + i] = std::move(a.NeueDateien[i]);
        k.DateiDaten[alt + i] = std::move(a.NeueMedien[i]);
    }
    k.DateiAnzahl = alt + neu;
    SammelbereichLeeren(a);
}
