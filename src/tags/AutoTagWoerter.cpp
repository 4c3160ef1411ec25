// AutoTag: Formate und Pfade in Teile zerlegen, Fundstellen von rechts, die Ausschlussliste.
#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/Texte.h"
#include "app/Zahlen.h"
#include "tags/AutoTag.h"

#include <algorithm>
#include <array>

bool FormatLesen(std::string_view format, EinsBasiert<std::string>& platzhalter, EinsBasiert<std::string>& trenner,
                 int32_t& anzahl) {
    const auto prozente = static_cast<int32_t>(std::count(format.begin(), format.end(), '%'));
    // Eine ungerade Zahl rundet zur geraden: aus 1 "%" wird kein Platzhalter, aus 3 werden zwei,
    // deren zweiter dann scheitert.
    anzahl = static_cast<int32_t>(RundenGerade(prozente / 2.0));
    platzhalter.ReDim(anzahl);
    trenner.ReDim(anzahl + 1);
    int32_t p = 1;
    for (int32_t i = 1; i <= anzahl; ++i) {
        const int32_t a = InStr(p, format, "%");
        const int32_t b = a == 0 ? 0 : InStr(a + 1, format, "%");
        if (b == 0) return false;
        platzhalter[i] = Trim(Mid(format, a, b - a + 1));
        trenner[i] = Trim(Mid(format, p, a - p));
        p = b + 1;
    }
    // Hinter dem letzten Platzhalter zählt nur ein Zeichen.
    trenner[anzahl + 1] = Trim(Mid(format, p, 1));
    return true;
}

int32_t LetzteFundstelle(int32_t grenze, std::string_view text, std::string_view suchtext, bool ohneGroßKlein) {
    if (suchtext.empty()) return grenze;
    const auto suchen = [&](int32_t ab) {
        return ohneGroßKlein ? InStrText(ab, text, suchtext) : InStr(ab, text, suchtext);
    };
    int32_t letzte = 0;
    for (int32_t p = suchen(1); p != 0 && p <= grenze; p = suchen(p + 1)) letzte = p;
    return letzte;
}

bool AutoTagWortIgnorieren(const Kartei& k, std::string_view wort) {
    if (k.E.AutoTagAusschlußLeer == 1) return false;
    for (const auto& eintrag : k.E.AutoTagAusschluß)
        if (TexteGleich(eintrag, wort)) return true;
    return false;
}

namespace {
// Das nächste Trennzeichen ab start; 0, wenn keines mehr kommt.
int32_t NächsterTrenner(std::string_view name, int32_t start) {
    static constexpr std::array<std::string_view, 4> trennzeichen = {"-", "_", ",", "/"};
    int32_t nächster = 0;
    for (const auto t : trennzeichen) {
        const int32_t e = InStr(start, name, t);
        if (e != 0 && (nächster == 0 || e < nächster)) nächster = e;
    }
    return nächster;
}
}  // namespace

bool DateinamenLesen(const Kartei& k, std::string_view dateiname, EinsBasiert<std::string>& wörter, int32_t& anzahl,
                     bool ignorieren) {
    wörter.ReDim(0);
    anzahl = 0;
    const auto länge = static_cast<int32_t>(dateiname.size());
    // Das führende "/" eines vollen Pfades trennt kein Wort ab.
    int32_t s = IstVollerPfad(dateiname) ? 2 : 1;
    const auto aufnehmen = [&](std::string wort, bool prüfen) {
        if (prüfen && AutoTagWortIgnorieren(k, wort)) return;
        wörter.Anhängen(std::move(wort));
        ++anzahl;
    };
    for (;;) {
        const int32_t e = NächsterTrenner(dateiname, s);
        if (e == 0) break;
        aufnehmen(Trim(Mid(dateiname, s, e - s)), ignorieren);
        // Endet der Pfad mit dem Trennzeichen (oder einem Zeichen dahinter), gibt es kein letztes Wort.
        if (e + 1 >= länge) return anzahl > 0;
        s = e + 1;
    }
    std::string letztes = Trim(Mid(dateiname, s));
    letztes = Left(letztes, static_cast<int32_t>(letztes.size() - DateiEndungSicht(letztes).size()));
    aufnehmen(std::move(letztes), true);
    return anzahl > 0;
}
