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
    a.IndexPfadStreuwerte.clear();
    a.IndexPfadeGebautFür = -1;
}

// Einmal je Stapel: Streuwerte aller Indexpfade, sortiert. Danach kostet eine Datei eine Suche
// im sortierten Feld und nur bei gleichem Streuwert einen echten Vergleich.
void IndexPfadeErfassen(Kartei& k) {
    auto& a = k.Aufnahme;
    const int32_t anzahl = std::min(k.DateiAnzahl, k.DateiPfade.UBound());
    a.IndexPfadStreuwerte.clear();
    a.IndexPfadStreuwerte.reserve(static_cast<size_t>(std::max(anzahl, 0)));
    for (int32_t i = 1; i <= anzahl; ++i) a.IndexPfadStreuwerte.emplace_back(NamenStreuwert(k.DateiPfade[i]), i);
    std::sort(a.IndexPfadStreuwerte.begin(), a.IndexPfadStreuwerte.end());
    a.IndexPfadeGebautFür = k.DateiAnzahl;
}

// Steht datei (gleiche Länge, Groß/Klein egal) schon im Index?
bool SchonImIndex(Kartei& k, const std::string& datei) {
    auto& a = k.Aufnahme;
    if (a.IndexPfadeGebautFür != k.DateiAnzahl) IndexPfadeErfassen(k);
    const uint64_t streuwert = NamenStreuwert(datei);
    auto it = std::lower_bound(a.IndexPfadStreuwerte.begin(), a.IndexPfadStreuwerte.end(),
                               std::pair<uint64_t, int32_t>{streuwert, INT32_MIN});
    for (; it != a.IndexPfadStreuwerte.end() && it->first == streuwert; ++it)
        if (it->second <= k.DateiAnzahl && k.DateiPfade.GültigerIndex(it->second) &&
            NamenGleich(k.DateiPfade[it->second], datei))
            return true;
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
