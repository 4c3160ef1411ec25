#include "app/Tabelle.h"

#include "app/Kartei.h"

#include <algorithm>
#include <cstdint>
#include <new>
#include <unistd.h>
#include <vector>

void IndexGrößeÄndern(Kartei& k, int32_t neueGröße, bool erhalten) {
    ++k.TabellenStand;
    if (erhalten) {
        k.DateiPfade.ReDimPreserve(neueGröße);
        k.DateiTreffer.ReDimPreserve(neueGröße);
        k.DateiDaten.ReDimPreserve(neueGröße);
    } else {
        k.DateiPfade.ReDim(neueGröße);
        k.DateiTreffer.ReDim(neueGröße);
        k.DateiDaten.ReDim(neueGröße);
    }
}

void DateiGeändertSetzen(Kartei& k) {
    k.DateiGeändert = true;
    ++k.TabellenStand;
}

void TabelleFürNummerVergrößern(Kartei& k, int32_t nummer, TabellenWachstum& wachstum) {
    if (nummer <= k.DateiPfade.UBound()) return;
    wachstum.zähler += 2000;
    IndexGrößeÄndern(k, std::max(wachstum.zähler, nummer), true);
}

void TabelleZuschneiden(Kartei& k, int32_t anzahl) {
    if (anzahl > 0 && k.DateiPfade.UBound() != anzahl) IndexGrößeÄndern(k, anzahl, true);
}

void TabelleVorbereiten(Kartei& k, int64_t erwartet) {
    // Nie mehr als die Hälfte des Arbeitsspeichers vormerken: eine Schätzung aus einer
    // merkwürdigen Datei darf das Laden nicht zum Absturz bringen.
    const long seiten = ::sysconf(_SC_PHYS_PAGES), seite = ::sysconf(_SC_PAGESIZE);
    const int64_t grenze = seiten > 0 && seite > 0 ? int64_t(seiten) * seite / 2 / int64_t(sizeof(DateiInfo)) : 0;
    erwartet = std::min({erwartet, grenze, int64_t(INT32_MAX)});
    if (erwartet <= k.DateiDaten.UBound()) return;
    try {
        k.DateiPfade.Vektor().reserve(size_t(erwartet));
        k.DateiTreffer.Vektor().reserve(size_t(erwartet));
        k.DateiDaten.Vektor().reserve(size_t(erwartet));
    } catch (const std::bad_alloc&) {
        // Dann wächst die Tabelle eben schrittweise.
    }
}

void EinträgeTauschen(Kartei& k, int32_t a, int32_t b) {
    if (a == b) return;
    k.DateiPfade.Tauschen(a, b);
    k.DateiDaten.Tauschen(a, b);
    k.DateiTreffer.Tauschen(a, b);
    DateiGeändertSetzen(k);
}

int32_t EinträgeEntfernen(Kartei& k, const EinsBasiert<int32_t>& entfernen) {
    const int32_t anzahl = std::min(k.DateiAnzahl, k.DateiPfade.UBound());
    std::vector<char> marke(size_t(anzahl) + 1, 0);
    for (int32_t nummer : entfernen)
        if (nummer >= 1 && nummer <= anzahl) marke[size_t(nummer)] = 1;
    // In einem Durchgang nach vorn schieben: kein Verschieben je entferntem Eintrag.
    int32_t neu = 0;
    for (int32_t i = 1; i <= anzahl; ++i) {
        if (marke[size_t(i)]) continue;
        if (++neu != i) {
            k.DateiPfade[neu] = std::move(k.DateiPfade[i]);
            k.DateiDaten[neu] = std::move(k.DateiDaten[i]);
            k.DateiTreffer[neu] = k.DateiTreffer[i];
        }
    }
    const int32_t entfernt = anzahl - neu;
    if (entfernt == 0) return 0;
    k.DateiAnzahl = neu;
    IndexGrößeÄndern(k, neu, true);
    DateiGeändertSetzen(k);
    return entfernt;
}
