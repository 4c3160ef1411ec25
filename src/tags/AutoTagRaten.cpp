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

// Der erste Eintrag, dessen Interpret bzw. Album mit dem Wort beginnt (0: keiner), ohne
// Querprüfung. So läuft das Raten für alle Wörter zusammen nur einmal durch den Index.
struct ErsterKandidat {
    int32_t interpret = 0, album = 0;
};

// Zählt ein Eintrag beim Nachschlagen? Nicht der eigene, nur mit gelesenem ID3v1-Tag.
bool Nachschlagbar(const Kartei& k, int32_t n, const std::string& dateiname) {
    return k.DateiDaten[n].Mp3_ID3v1_Status == 1 && k.DateiPfade[n] != dateiname;
}

// Beginnt feld mit wort? Ein leeres Feld beginnt mit nichts, auch nicht mit dem leeren Wort.
bool FeldBeginntMit(const std::string& feld, const std::string& wort) {
    return !feld.empty() && BeginntMitText(feld, wort);
}

// Ein Lauf durch den Index für alle Wörter. Ungleiche erste Zeichen schließen ein Wort aus, bevor
// verglichen wird; sind alle Kandidaten gefunden, endet der Lauf.
std::vector<ErsterKandidat> KandidatenSuchen(const Kartei& k, const std::string& dateiname,
                                             const EinsBasiert<std::string>& wörter) {
    const auto anzahl = static_cast<size_t>(wörter.UBound());
    std::vector<ErsterKandidat> erste(anzahl + 1);
    std::vector<int32_t> anfang(anzahl + 1);
    for (size_t i = 1; i <= anzahl; ++i) anfang[i] = ErstesZeichenKlein(wörter[static_cast<int32_t>(i)]);
    size_t offen = 2 * anzahl;
    const auto prüfen = [&](int32_t n, const std::string& feld, int32_t ErsterKandidat::*ziel) {
        if (feld.empty()) return;
        const int32_t zeichen = ErstesZeichenKlein(feld);
        for (size_t i = 1; i <= anzahl; ++i) {
            if (erste[i].*ziel != 0 || (anfang[i] != -1 && anfang[i] != zeichen)) continue;
            if (!BeginntMitText(feld, wörter[static_cast<int32_t>(i)]) || !Nachschlagbar(k, n, dateiname)) continue;
            erste[i].*ziel = n;
            --offen;
        }
    };
    for (int32_t n = 1; n <= k.DateiAnzahl && offen > 0; ++n) {
        // Der Status wird erst bei passendem Anfang gelesen: so berührt der Lauf je Eintrag weniger Speicher.
        // Die Einträge liegen weit auseinander: den übernächsten Block schon anfordern.
        if (n + 8 <= k.DateiAnzahl) __builtin_prefetch(&k.DateiDaten[n + 8].Mp3_ID3v1_Interpret);
        if (n + 4 <= k.DateiAnzahl) {
            __builtin_prefetch(k.DateiDaten[n + 4].Mp3_ID3v1_Interpret.data());
            __builtin_prefetch(k.DateiDaten[n + 4].Mp3_ID3v1_Album.data());
        }
        const DateiInfo& d = k.DateiDaten[n];
        prüfen(n, d.Mp3_ID3v1_Interpret, &ErsterKandidat::interpret);
        prüfen(n, d.Mp3_ID3v1_Album, &ErsterKandidat::album);
    }
    return erste;
}

// Ab dem ersten Kandidaten einen suchen, der zum schon erkannten anderen Feld passt: dessen Feld
// leer oder mit dem erkannten Text beginnend.
bool PassenderKandidat(const Kartei& k, const std::string& dateiname, int32_t ab, const std::string& wort,
                       KText DateiInfo::*feld, KText DateiInfo::*anderes, const std::string& erkannt,
                       [[maybe_unused]] const char* ablehnung) {
    for (int32_t n = ab; n >= 1 && n <= k.DateiAnzahl; ++n) {
        const DateiInfo& d = k.DateiDaten[n];
        if (!FeldBeginntMit(d.*feld, wort) || !Nachschlagbar(k, n, dateiname)) continue;
        if (const std::string& seins = d.*anderes; seins.empty() || BeginntMitText(seins, erkannt)) return true;
        KK_TRACE("AutoTagVersuchen", ablehnung);
    }
    return false;
}

struct Raten {
    const Kartei& k;
    const std::string& dateiname;
    DateiInfo& ergebnis;
    int16_t modus;
    Gefunden g;

    bool InterpretGefunden(const std::string& w, const ErsterKandidat& erster) const {
        if (erster.interpret == 0 || !g.album) return erster.interpret != 0;
        return PassenderKandidat(k, dateiname, erster.interpret, w, &DateiInfo::Mp3_ID3v1_Interpret,
                                 &DateiInfo::Mp3_ID3v1_Album, ergebnis.Mp3_ID3v1_Album,
                                 "Interpret-Übereinstimmung abgelehnt");
    }
    bool AlbumGefunden(const std::string& w, const ErsterKandidat& erster) const {
        if (erster.album == 0 || !g.interpret) return erster.album != 0;
        return PassenderKandidat(k, dateiname, erster.album, w, &DateiInfo::Mp3_ID3v1_Album,
                                 &DateiInfo::Mp3_ID3v1_Interpret, ergebnis.Mp3_ID3v1_Interpret,
                                 "Album-Übereinstimmung abgelehnt");
    }
    // Durchlauf 1 für ein Wort; true, wenn es verbraucht ist. Die Titelnummer kommt vor dem
    // Jahr, und jede Zahl wird Titelnummer, auch "1974".
    bool ErsterDurchlauf(const std::string& w, const ErsterKandidat& erster) {
        const bool zahl = IstNumerisch(w);
        if (zahl && !g.track) return Setzen("%track%", w, g.track);
        if (zahl && !g.jahr && w.size() == 4) return Setzen("%jahr%", w, g.jahr);
        if (!g.interpret && InterpretGefunden(w, erster)) return Setzen("%interpret%", w, g.interpret);
        if (!g.album && AlbumGefunden(w, erster)) return Setzen("%album%", w, g.album);
        if (!g.titel) return Setzen("%titel%", w, g.titel);
        return false;
    }
    bool Setzen(std::string_view platzhalter, const std::string& w, bool& merker) {
        AutoTagFeldSetzen(ergebnis, platzhalter, w, modus);
        return merker = true;
    }
};
}  // namespace

void AutoTagRaten(const Kartei& k, const std::string& dateiname, const EinsBasiert<std::string>& wörter,
                  DateiInfo& ergebnis, int16_t modus) {
    Raten r{k, dateiname, ergebnis, modus, {}};
    const std::vector<ErsterKandidat> erste = KandidatenSuchen(k, dateiname, wörter);
    std::vector<bool> benutzt(static_cast<size_t>(wörter.UBound()) + 1, false);
    KK_TRACE("AutoTagVersuchen", "Durchlauf 1");
    for (int32_t i = wörter.UBound(); i >= 1; --i)
        benutzt[static_cast<size_t>(i)] = r.ErsterDurchlauf(wörter[i], erste[static_cast<size_t>(i)]);
    // Durchlauf 2, das große Ratespiel: Übriges wird Titel, dann Interpret; mehr wird nicht geraten.
    KK_TRACE("AutoTagVersuchen", "Durchlauf 2");
    for (int32_t i = wörter.UBound(); i >= 1; --i) {
        if (benutzt[static_cast<size_t>(i)]) continue;
        if (!r.g.titel) r.Setzen("%titel%", wörter[i], r.g.titel);
        else if (!r.g.interpret) r.Setzen("%interpret%", wörter[i], r.g.interpret);
    }
}
