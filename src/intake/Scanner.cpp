#include "intake/Scanner.h"

#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/Texte.h"
#include "app/Trace.h"
#include "shell/Fortschritt.h"

#include <algorithm>
#include <dirent.h>
#include <set>
#include <sys/stat.h>
#include <utility>
#include <vector>

namespace {
struct OrdnerEintrag {
    std::string name;
    unsigned char typ;  // d_type; DT_UNKNOWN, wenn das Dateisystem ihn nicht liefert
};

// Alle Namen eines Ordners samt "." und "..", nach Bytes sortiert, damit jeder Lauf dieselbe
// Reihenfolge hat. Ein Ordner, der sich nicht öffnen lässt, ist leer.
std::vector<OrdnerEintrag> OrdnerLesen(const std::string& pfad) {
    std::vector<OrdnerEintrag> namen;
    DIR* ordner = ::opendir(pfad.c_str());
    if (!ordner) return namen;
    while (const dirent* e = ::readdir(ordner)) namen.push_back({e->d_name, e->d_type});
    ::closedir(ordner);
    std::sort(namen.begin(), namen.end(), [](const auto& a, const auto& b) { return a.name < b.name; });
    return namen;
}

// IstOrdner, aber ohne Systemaufruf, wo readdir die Art schon kennt. Verweise zählen wie ihr Ziel.
bool EintragIstOrdner(const std::string& voll, unsigned char typ) {
    if (typ == DT_DIR) return true;
    if (typ == DT_LNK || typ == DT_UNKNOWN) return IstOrdner(voll);
    return false;
}

bool PunktOderPunktPunkt(const std::string& name) { return name == "." || name == ".."; }

// Jeder schon betretene Ordner (Gerät, Knoten).
using Betreten = std::set<std::pair<dev_t, ino_t>>;

struct Durchlauf {
    Kartei& k;
    const EinsBasiert<std::string>& masken;
    int16_t unterordner;
    bool fortschrittBeachten;
    Betreten betreten;

    bool Weiter() { return !fortschrittBeachten || FortschrittZeigen(k, ""); }

    void DateiPrüfen(const std::string& pfad, const std::string& name) {
        if (masken.UBound() < 1 || masken[1].empty()) {
            SuchlisteHinzufügen(k, pfad + name, 0);
            return;
        }
        for (const auto& maske : masken)
            if (MaskePasst(name, maske)) {
                SuchlisteHinzufügen(k, pfad + name, 0);
                return;
            }
    }

    bool Ordner(std::string& pfad) {
        if (pfad.empty() || pfad.back() != '/') pfad += '/';
        // Jeder Ordner einmal: ein Verweis im Kreis liefe sonst ewig, zwei Verweise auf denselben
        // Ordner brächten jede Datei darin doppelt. Ein schon betretener zählt als leer.
        struct stat st {};
        if (::stat(pfad.c_str(), &st) != 0) return true;
        if (!betreten.insert({st.st_dev, st.st_ino}).second) return true;
        return Durchsuchen(pfad);
    }

    bool Durchsuchen(const std::string& pfad) {
        const auto namen = OrdnerLesen(pfad);
        // Ordner-Durchgang: alle Unterordner dieser Ebene kennen, bevor eine Datei genommen wird.
        std::vector<std::string> unterordnerNamen;
        for (const auto& e : namen) {
            if (!PunktOderPunktPunkt(e.name) && EintragIstOrdner(pfad + e.name, e.typ))
                unterordnerNamen.push_back(e.name);
            if (!Weiter()) {
                KK_TRACE("DateienSuchenAPI", "Benutzer-Abbruch 1");
                return false;
            }
        }
        // Datei-Durchgang: die eigenen Dateien vor denen der Unterordner.
        for (const auto& e : namen) {
            if (!PunktOderPunktPunkt(e.name) && !EintragIstOrdner(pfad + e.name, e.typ)) DateiPrüfen(pfad, e.name);
            if (!Weiter()) {
                KK_TRACE("DateienSuchenAPI", "Benutzer-Abbruch 2");
                return false;
            }
        }
        // Abstieg. Das Ergebnis darunter zählt nicht: ein Abbruch dort fällt beim nächsten
        // FortschrittZeigen dieser Ebene auf.
        if (unterordner == 1)
            for (const auto& name : unterordnerNamen) {
                if (!Weiter()) {
                    KK_TRACE("DateienSuchenAPI", "Benutzer-Abbruch 3");
                    return false;
                }
                std::string unter = pfad + name + "/";
                Ordner(unter);
            }
        KK_TRACE("DateiSuchenAPI", "Suche beendet bzw. Unterordner ignoriert");
        return true;
    }
};
}  // namespace

bool SuchlisteHinzufügen(Kartei& k, const std::string& eintrag, int16_t modus) {
    auto& a = k.Aufnahme;
    if (modus == 1) {
        a.Suchliste.ReDim(1);
        a.SuchlisteAnzahl = 0;
        return true;
    }
    ++a.SuchlisteAnzahl;
    if (a.SuchlisteAnzahl > a.Suchliste.UBound()) a.Suchliste.ReDimPreserve(a.SuchlisteAnzahl + 1000);
    a.Suchliste[a.SuchlisteAnzahl] = eintrag;
    return true;
}

bool MaskePasst(const std::string& name, const std::string& maske) {
    // Längen und Startstelle zählen Zeichen: "x.mp3é" hat hinter ".mp3" nur ein Zeichen.
    const int32_t länge = ZeichenAnzahl(name), maskenLänge = ZeichenAnzahl(maske);
    if (länge <= maskenLänge) return false;
    return InStrText(ZeichenStelle(name, länge - maskenLänge), name, maske) > 0;
}

bool DateienSuchenAPI(Kartei& k, std::string& pfad, const EinsBasiert<std::string>& masken, int16_t unterordner,
                      bool fortschrittBeachten) {
    Durchlauf lauf{k, masken, unterordner, fortschrittBeachten, {}};
    return lauf.Ordner(pfad);
}
