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

// Die Felder der Standardsuche liegen verstreut im Speicher; ohne Vorladen wartet jeder Eintrag
// auf mehrere Speicherzugriffe. Nur ein Hinweis an den Prozessor: der Text kommt aus
// IndexFeldZurückgeben.
constexpr int32_t kVorlauf = 16;
void StrukturVorladen(const Kartei& k, int32_t i) {
    const DateiInfo& d = k.DateiDaten[i];
    __builtin_prefetch(&d.Mp3_ID3v1_Titel);
    __builtin_prefetch(&d.Mp3_ID3v1_Album);
    __builtin_prefetch(&d.Mp3_ID3v2_TPE1);
    __builtin_prefetch(&d.Mp3_ID3v2_TIT2);
    __builtin_prefetch(&k.DateiPfade[i]);
}
void TexteVorladen(const Kartei& k, int32_t i) {
    const DateiInfo& d = k.DateiDaten[i];
    for (const KText* t :
         {&d.Mp3_ID3v2_TPE1, &d.Mp3_ID3v2_TIT2, &d.Mp3_ID3v1_Interpret, &d.Mp3_ID3v1_Titel, &d.Mp3_ID3v1_Album})
        __builtin_prefetch(t->data());
    __builtin_prefetch(k.DateiPfade[i].data());
}

uint64_t Mischen(uint64_t h, uint64_t w) {
    h = (h ^ w) * 0xBF58476D1CE4E5B9ULL;
    return h ^ (h >> 31);
}

// Ein neuer Puffer, sobald der erste Eintrag nicht mehr stimmt; bis dahin wird nur geprüft.
class Neubau {
public:
    Neubau(const StandardsuchCache& alt, int32_t n) : alt_(alt), n_(size_t(n)) {}
    bool Begonnen() const { return begonnen_; }
    // Übernimmt die Einträge 1..bis - 1 aus dem alten Puffer.
    void Beginnen(int32_t bis) {
        begonnen_ = true;
        einträge_.reserve(n_);
        puffer_.reserve(alt_.puffer.empty() ? n_ * 160 : alt_.puffer.size() + alt_.puffer.size() / 8);
        for (int32_t i = 1; i < bis; ++i) Übernehmen(i, alt_.einträge[size_t(i - 1)].prüfsumme);
    }
    void Übernehmen(int32_t i, uint64_t prüfsumme) { Anhängen(SuchCacheText(alt_, i), prüfsumme, false); }
    void Falten(std::string_view roh, uint64_t prüfsumme) { Anhängen(roh, prüfsumme, true); }
    void Einsetzen(StandardsuchCache& c) {
        c.puffer.swap(puffer_);
        c.einträge.swap(einträge_);
    }

private:
    void Anhängen(std::string_view text, uint64_t prüfsumme, bool falten) {
        StandardsuchCache::Eintrag e;
        e.prüfsumme = prüfsumme;
        e.anfang = puffer_.size();
        if (falten) KleinAnhängen(puffer_, text);
        else puffer_.append(text);
        e.länge = static_cast<uint32_t>(puffer_.size() - e.anfang);
        einträge_.push_back(e);
    }
    const StandardsuchCache& alt_;
    size_t n_;
    bool begonnen_ = false;
    std::string puffer_;
    std::vector<StandardsuchCache::Eintrag> einträge_;
};
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
    if (i < text.size()) std::memcpy(&rest, text.data() + i, text.size() - i);
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
        // Ein Durchgang: prüfen, und erst ab dem ersten geänderten Eintrag neu aufbauen. Nach den
        // meisten Änderungen stimmt fast alles noch.
        Neubau neu(c, n);
        const IndexFeld feld = IndexFeldVorbereiten("(Standardsuche)");
        std::string roh;
        int16_t art = 0;
        for (int32_t i = 1; i <= n; ++i) {
            if (i + kVorlauf <= n) StrukturVorladen(k, i + kVorlauf);
            if (i + kVorlauf / 2 <= n) TexteVorladen(k, i + kVorlauf / 2);
            IndexFeldZurückgeben(k, i, feld, false, roh, art);
            const uint64_t prüfsumme = TextPrüfsumme(roh);
            const bool gleich = size_t(i) <= c.einträge.size() && c.einträge[size_t(i - 1)].prüfsumme == prüfsumme;
            if (gleich && !neu.Begonnen()) continue;
            if (!neu.Begonnen()) neu.Beginnen(i);
            if (gleich) neu.Übernehmen(i, prüfsumme);
            else neu.Falten(roh, prüfsumme);
        }
        if (neu.Begonnen()) neu.Einsetzen(c);
        else c.einträge.resize(size_t(n));  // nur hinten weggefallen
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
