// "%Automatik%": die Wörter eines Pfades raten – erst nach Zahlen und den Daten im Index, dann
// wird verteilt, was übrig ist.
#include "app/Kartei.h"
#include "app/Texte.h"
#include "app/Trace.h"
#include "app/Zahlen.h"
#include "tags/AutoTagIntern.h"

#include <vector>

namespace {
struct Gefunden {
    bool track = false, jahr = false, interpret = false, album = false, titel = false;
};

// Beginnt feld mit wort? Ein leeres Feld beginnt mit nichts, auch nicht mit dem leeren Wort.
bool FeldBeginntMit(const std::string& feld, const std::string& wort) {
    return !feld.empty() && BeginntMitText(feld, wort);
}

// Sucht im Index (ohne den eigenen Eintrag und ohne Einträge ohne gelesenen ID3v1-Tag) einen
// Eintrag, dessen feld mit wort beginnt. Ist das andere Feld schon erkannt, muss der Eintrag dazu
// passen: sein anderes Feld leer oder mit dem erkannten Text beginnend.
bool ImIndexGefunden(const Kartei& k, const std::string& dateiname, const std::string& wort,
                     std::string DateiInfo::*feld, std::string DateiInfo::*anderes, const std::string* erkannt,
                     const char* ablehnung) {
    for (int32_t n = 1; n <= k.DateiAnzahl; ++n) {
        const DateiInfo& d = k.DateiDaten[n];
        if (d.Mp3_ID3v1_Status != 1 || !FeldBeginntMit(d.*feld, wort) || k.DateiPfade[n] == dateiname) continue;
        if (erkannt == nullptr) return true;
        const std::string& seins = d.*anderes;
        if (seins.empty() || BeginntMitText(seins, *erkannt)) return true;
        KK_TRACE("AutoTagVersuchen", ablehnung);
    }
    return false;
}

// Durchlauf 1 für ein Wort; true, wenn es verbraucht ist. Die Titelnummer kommt vor dem Jahr, und
// jede Zahl wird Titelnummer, auch "1974".
bool ErsterDurchlauf(const Kartei& k, const std::string& dateiname, const std::string& w, Gefunden& g,
                     DateiInfo& ergebnis, int16_t modus) {
    const bool zahl = IstNumerisch(w);
    if (zahl && !g.track) {
        AutoTagFeldSetzen(ergebnis, "%track%", w, modus);
        return g.track = true;
    }
    if (zahl && !g.jahr && w.size() == 4) {
        AutoTagFeldSetzen(ergebnis, "%jahr%", w, modus);
        return g.jahr = true;
    }
    if (!g.interpret &&
        ImIndexGefunden(k, dateiname, w, &DateiInfo::Mp3_ID3v1_Interpret, &DateiInfo::Mp3_ID3v1_Album,
                        g.album ? &ergebnis.Mp3_ID3v1_Album : nullptr, "Interpret-Übereinstimmung abgelehnt")) {
        AutoTagFeldSetzen(ergebnis, "%interpret%", w, modus);
        return g.interpret = true;
    }
    if (!g.album &&
        ImIndexGefunden(k, dateiname, w, &DateiInfo::Mp3_ID3v1_Album, &DateiInfo::Mp3_ID3v1_Interpret,
                        g.interpret ? &ergebnis.Mp3_ID3v1_Interpret : nullptr, "Album-Übereinstimmung abgelehnt")) {
        AutoTagFeldSetzen(ergebnis, "%album%", w, modus);
        return g.album = true;
    }
    if (!g.titel) {
        AutoTagFeldSetzen(ergebnis, "%titel%", w, modus);
        return g.titel = true;
    }
    return false;
}
}  // namespace

void AutoTagRaten(const Kartei& k, const std::string& dateiname, const EinsBasiert<std::string>& wörter,
                  DateiInfo& ergebnis, int16_t modus) {
    Gefunden g;
    std::vector<bool> benutzt(static_cast<size_t>(wörter.UBound()) + 1, false);
    KK_TRACE("AutoTagVersuchen", "Durchlauf 1");
    for (int32_t i = wörter.UBound(); i >= 1; --i)
        benutzt[static_cast<size_t>(i)] = ErsterDurchlauf(k, dateiname, wörter[i], g, ergebnis, modus);
    // Durchlauf 2, das große Ratespiel: Übriges wird Titel, dann Interpret; mehr wird nicht geraten.
    KK_TRACE("AutoTagVersuchen", "Durchlauf 2");
    for (int32_t i = wörter.UBound(); i >= 1; --i) {
        if (benutzt[static_cast<size_t>(i)]) continue;
        if (!g.titel) {
            AutoTagFeldSetzen(ergebnis, "%titel%", wörter[i], modus);
            g.titel = true;
        } else if (!g.interpret) {
            AutoTagFeldSetzen(ergebnis, "%interpret%", wörter[i], modus);
            g.interpret = true;
        }
    }
}
