#include "search/Sortieren.h"

#include "app/Kartei.h"
#include "app/Tabelle.h"
#include "app/Texte.h"
#include "app/Trace.h"
#include "app/Zahlen.h"
#include "index/IndexFeld.h"
#include "index/Spalten.h"
#include "search/Suche.h"
#include "search/SuchCache.h"
#include "shell/Fortschritt.h"

#include <algorithm>
#include <vector>

namespace {
// "1:02:03" → 3723; was keine Zeitangabe ist, zählt 0.
int64_t DauerSekunden(std::string_view text) {
    int64_t summe = 0, teil = 0;
    bool ziffern = false;
    for (char c : text) {
        if (c >= '0' && c <= '9') {
            if (teil > INT32_MAX) return 0;
            teil = teil * 10 + (c - '0');
            ziffern = true;
        } else if (c == ':' && ziffern) {
            summe = summe * 60 + teil;
            teil = 0;
            ziffern = false;
        } else {
            return 0;
        }
    }
    return ziffern ? summe * 60 + teil : 0;
}

// Die Schlüssel der Positionen Von..Bis, einmal geholt; getauscht wird hier und in herkunft,
// die Tabelle selbst wird erst am Ende umgeordnet.
class Schlüssel {
public:
    Schlüssel(const Kartei& k, const std::string& spalte, int32_t von, int32_t bis);
    // Vergleich mit dem Pivot-Schlüssel.
    bool Kleiner(size_t a) const { return zahl_ ? zahlen_[a] < pivotZahl_ : texte_[a] < pivotText_; }
    bool Größer(size_t a) const { return zahl_ ? zahlen_[a] > pivotZahl_ : texte_[a] > pivotText_; }
    void PivotNehmen(size_t p) {
        if (zahl_) pivotZahl_ = zahlen_[p];
        else pivotText_ = texte_[p];
    }
    void Tauschen(size_t a, size_t b) {
        if (zahl_) std::swap(zahlen_[a], zahlen_[b]);
        else std::swap(texte_[a], texte_[b]);
        std::swap(herkunft[a], herkunft[b]);
    }
    std::vector<int32_t> herkunft;  // Eintragsnummer, die jetzt an Position von + i steht

private:
    bool zahl_ = false;
    std::vector<std::string> texte_;
    std::vector<int64_t> zahlen_;
    std::string pivotText_;
    int64_t pivotZahl_ = 0;
};

Schlüssel::Schlüssel(const Kartei& k, const std::string& spalte, int32_t von, int32_t bis) {
    const IndexFeld feld = IndexFeldVorbereiten(spalte);
    const size_t n = size_t(bis - von + 1);
    herkunft.resize(n);
    std::string text;
    int16_t art = IndexFeldArt::Text;
    IndexFeldZurückgeben(k, von, feld, true, text, art);
    zahl_ = art == IndexFeldArt::Zahl || art == IndexFeldArt::Dauer;
    if (zahl_) zahlen_.resize(n);
    else texte_.resize(n);
    for (size_t i = 0; i < n; ++i) {
        const int32_t eintrag = von + int32_t(i);
        herkunft[i] = eintrag;
        IndexFeldZurückgeben(k, eintrag, feld, true, text, art);
        // Datum und Datum mit Zeit: der Sortiertext, Zeichen für Zeichen.
        if (art == IndexFeldArt::Text) texte_[i] = Groß(text);
        else if (art == IndexFeldArt::Zahl) zahlen_[i] = ZahlLesen(text);
        else if (art == IndexFeldArt::Dauer) zahlen_[i] = DauerSekunden(text);
        else texte_[i] = text;
    }
}

// Setzt in v (0-basiert, ab basis) Position i auf den früheren Inhalt von herkunft[i] - von.
template <typename T> void Umordnen(std::vector<T>& v, int32_t von, const std::vector<int32_t>& herkunft) {
    const size_t basis = size_t(von - 1), n = herkunft.size();
    std::vector<bool> erledigt(n, false);
    for (size_t start = 0; start < n; ++start) {
        if (erledigt[start] || size_t(herkunft[start] - von) == start) continue;
        T merker = std::move(v[basis + start]);
        size_t p = start;
        while (true) {
            erledigt[p] = true;
            const size_t q = size_t(herkunft[p] - von);
            if (q == start) {
                v[basis + p] = std::move(merker);
                break;
            }
            v[basis + p] = std::move(v[basis + q]);
            p = q;
        }
    }
}
}  // namespace

void QSort(Kartei& k, const std::string& Spalte, int32_t Von, int32_t Bis) {
    const int32_t grenze = std::min({k.DateiPfade.UBound(), k.DateiDaten.UBound(), k.DateiTreffer.UBound()});
    if (Bis <= Von || Von < 1 || Bis > grenze) {
        // Nichts zu sortieren; der Aufruf meldet sich trotzdem wie jeder andere.
        FortschrittZeigen(k, Von, "");
        return;
    }
    Schlüssel s(k, Spalte, Von, Bis);
    bool getauscht = false;
    struct Bereich {
        int32_t von, bis;
    };
    // Eigener Stapel statt Rekursion, in derselben Reihenfolge: erst links, dann rechts.
    std::vector<Bereich> stapel{{Von, Bis}};
    while (!stapel.empty()) {
        const Bereich b = stapel.back();
        stapel.pop_back();
        // Abgebrochen: dieser Aufruf endet sofort, die folgenden ebenso.
        if (!FortschrittZeigen(k, b.von, "")) continue;
        if (b.bis <= b.von) continue;
        auto pos = [&](int32_t e) { return size_t(e - Von); };
        s.PivotNehmen(pos((b.von + b.bis) / 2));
        int32_t i = b.von, j = b.bis;
        while (i <= j) {
            while (s.Kleiner(pos(i)) && i < b.bis) ++i;
            while (s.Größer(pos(j)) && j > b.von) --j;
            if (i <= j) {
                s.Tauschen(pos(i), pos(j));
                ++i;
                --j;
                getauscht = true;
            }
        }
        if (i < b.bis) stapel.push_back({i, b.bis});
        if (b.von < j) stapel.push_back({b.von, j});
    }
    if (!getauscht) return;
    const bool cacheAktuell = SuchCacheAktuell(k, k.Suche.standardsuche);
    Umordnen(k.DateiPfade.Vektor(), Von, s.herkunft);
    Umordnen(k.DateiDaten.Vektor(), Von, s.herkunft);
    Umordnen(k.DateiTreffer.Vektor(), Von, s.herkunft);
    DateiGeändertSetzen(k);
    SuchCacheUmordnen(k, k.Suche.standardsuche, cacheAktuell, Von, s.herkunft);
}

void SortierungUmkehrenPrüfen(Kartei& k, const std::string& Spalte) {
    auto& s = k.Suche;
    if (Spalte == s.SortierSpalteZuletzt && s.SortierUmkehren == 1) {
        const bool cacheAktuell = SuchCacheAktuell(k, s.standardsuche);
        // Über die ganze Obergrenze, nicht nur bis DateiAnzahl; alle drei Felder gleich groß.
        const int32_t n = k.DateiPfade.UBound();
        IndexGrößeÄndern(k, n, true);
        std::reverse(k.DateiPfade.begin(), k.DateiPfade.end());
        std::reverse(k.DateiDaten.begin(), k.DateiDaten.end());
        std::reverse(k.DateiTreffer.begin(), k.DateiTreffer.end());
        SuchCacheUmkehren(k, s.standardsuche, cacheAktuell, n);
    }
    s.SortierSpalteZuletzt = Spalte;
    s.SortierUmkehren = s.SortierUmkehren == 0 ? 1 : 0;
}

void lstSongs_ColumnClick(Kartei& k, int32_t spalte) {
    const auto& spalten = k.Liste.lstSongs.spalten;
    if (spalte < 0 || size_t(spalte) >= spalten.size()) return;
    const ListenSpalte kopf = spalten[size_t(spalte)];  // Kopie: die Liste wird neu aufgebaut
    SpalteSortieren(k, kopf.kopf, kopf.tag);
}

void SpalteSortieren(Kartei& k, const std::string& kopf, const std::string& tag) {
    if (kopf.empty()) {
        k.ui.MeldungZeigen("Diese Spalte kann nicht sortiert werden.", Meldung::Information);
        return;
    }
    if (!k.Liste.lstSongs.zeilen.empty())
        FortschrittZeigenStarten(k, k.DateiAnzahl, true, true, false, "Sortiere Liste");
    // Die Spalte "Benutzerdefiniert" trägt ihr Muster als Kopf.
    const std::string schlüssel = tag == "b" ? "Benutzerdefiniert" : kopf;
    QSort(k, schlüssel, 1, k.DateiAnzahl);
    SortierungUmkehrenPrüfen(k, schlüssel);
    FortschrittZeigenEnde(k);
    auto& s = k.Suche;
    s.AusgewähltAnzahl = 0;
    s.AusgewählteDateien.ReDim(1);
    s.AusgewählteZeilen.ReDim(1);
    SucheAktualisieren(k, false);
    k.ui.TitelNachrichtZeigen("Die Liste wurde sortiert nach der Spalte '" + schlüssel + "'", 750);
    KK_TRACE("lstSongs_ColumnClick", "sortiert nach " + schlüssel);
}

void SpalteNachNummerSortieren(Kartei& k, int32_t nummer) {
    for (const auto& s : k.Liste.lstSongs.spalten) {
        if (s.spalte != nummer) continue;
        const ListenSpalte kopf = s;  // Kopie: die Liste wird neu aufgebaut
        SpalteSortieren(k, kopf.kopf, kopf.tag);
        return;
    }
    SpalteSortieren(k, SpaltenKopftext(k, nummer), SpaltenTag(nummer));
}
