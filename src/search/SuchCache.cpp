#include "search/SuchCache.h"

#include "app/Kartei.h"
#include "app/Texte.h"
#include "index/IndexFeld.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace {
// Einträge, für die es Text in der Tabelle gibt.
int32_t Anzahl(const Kartei& k) {
    return std::max(0, std::min({k.DateiAnzahl, k.DateiPfade.UBound(), k.DateiDaten.UBound()}));
}

uint64_t Mischen(uint64_t h, uint64_t w) {
    h = (h ^ w) * 0xBF58476D1CE4E5B9ULL;
    return h ^ (h >> 31);
}

// Baut den Puffer neu: unveränderte Einträge werden umkopiert, die anderen neu gefaltet.
void NeuAufbauen(const Kartei& k, StandardsuchCache& c, const std::vector<uint64_t>& prüfsummen) {
    const int32_t n = static_cast<int32_t>(prüfsummen.size());
    const IndexFeld feld = IndexFeldVorbereiten("(Standardsuche)");
    std::vector<StandardsuchCache::Eintrag> neu(prüfsummen.size());
    std::string puffer, roh;
    puffer.reserve(c.puffer.empty() ? size_t(n) * 160 : c.puffer.size() + c.puffer.size() / 8);
    int16_t art = 0;
    for (int32_t i = 1; i <= n; ++i) {
        auto& e = neu[size_t(i - 1)];
        e.prüfsumme = prüfsummen[size_t(i - 1)];
        e.anfang = puffer.size();
        const bool alt = size_t(i) <= c.einträge.size() && c.einträge[size_t(i - 1)].prüfsumme == e.prüfsumme;
        if (alt) {
            puffer.append(SuchCacheText(c, i));
        } else {
            IndexFeldZurückgeben(k, i, feld, false, roh, art);
            KleinAnhängen(puffer, roh);
        }
        e.länge = static_cast<uint32_t>(puffer.size() - e.anfang);
    }
    c.puffer.swap(puffer);
    c.einträge.swap(neu);
}
}  // namespace

uint64_t TextPrüfsumme(std::string_view text) {
    uint64_t h = 0x9E3779B97F4A7C15ULL ^ text.size();
    size_t i = 0;
    for (; i + 8 <= text.size(); i += 8) {
        uint64_t w;
        std::memcpy(&w, text.data() + i, 8);
        h = Mischen(h, w);
    }
    uint64_t rest = 0;
    std::memcpy(&rest, text.data() + i, text.size() - i);
    return Mischen(Mischen(h, rest), 0x94D049BB133111EBULL);
}

bool SuchCacheAktuell(const Kartei& k, const StandardsuchCache& c) {
    return c.gültig && c.stand == k.TabellenStand && c.einträge.size() == size_t(Anzahl(k));
}

bool SuchCacheAktualisieren(const Kartei& k, StandardsuchCache& c) {
    if (SuchCacheAktuell(k, c)) return true;
    c.gültig = false;
    const int32_t n = Anzahl(k);
    try {
        // Erst nur prüfen: nach den meisten Änderungen stimmt fast alles noch.
        std::vector<uint64_t> prüfsummen(size_t(n), 0);
        const IndexFeld feld = IndexFeldVorbereiten("(Standardsuche)");
        std::string roh;
        int16_t art = 0;
        bool gleich = c.einträge.size() == size_t(n);
        for (int32_t i = 1; i <= n; ++i) {
            IndexFeldZurückgeben(k, i, feld, false, roh, art);
            prüfsummen[size_t(i - 1)] = TextPrüfsumme(roh);
            gleich = gleich && c.einträge[size_t(i - 1)].prüfsumme == prüfsummen[size_t(i - 1)];
        }
        if (!gleich) NeuAufbauen(k, c, prüfsummen);
    } catch (const std::bad_alloc&) {
        c.puffer = std::string();
        c.einträge = {};
        return false;
    }
    c.gültig = true;
    c.stand = k.TabellenStand;
    return true;
}

void SuchCacheUmordnen(const Kartei& k, StandardsuchCache& c, bool warAktuell, int32_t von,
                       const std::vector<int32_t>& herkunft) {
    const size_t n = c.einträge.size();
    const bool passt = warAktuell && von >= 1 && size_t(von - 1) + herkunft.size() <= n;
    if (!passt) {
        c.gültig = false;
        return;
    }
    std::vector<StandardsuchCache::Eintrag> alt(c.einträge.begin() + (von - 1),
                                                c.einträge.begin() + (von - 1) + long(herkunft.size()));
    for (size_t i = 0; i < herkunft.size(); ++i) {
        const int32_t quelle = herkunft[i] - von;
        if (quelle < 0 || size_t(quelle) >= alt.size()) {
            c.gültig = false;
            return;
        }
        c.einträge[size_t(von - 1) + i] = alt[size_t(quelle)];
    }
    c.stand = k.TabellenStand;
}

void SuchCacheUmkehren(const Kartei& k, StandardsuchCache& c, bool warAktuell, int32_t n) {
    if (!warAktuell || n < 0 || size_t(n) != c.einträge.size()) {
        c.gültig = false;
        return;
    }
    std::reverse(c.einträge.begin(), c.einträge.end());
    c.stand = k.TabellenStand;
}
