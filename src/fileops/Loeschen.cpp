// Löschen und Papierkorb mit den Fragen nach leeren Ordnern.
#include "fileops/Loeschen.h"

#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/Trace.h"
#include "fileops/AusIndexEntfernen.h"
#include "intake/NichtVerfuegbar.h"

#include <cerrno>
#include <dirent.h>
#include <unistd.h>
#include <vector>

namespace {
std::string LeerFrage(const std::string& ordner) {
    return "Der Ordner '" + PfadText(ordner) + "' ist (nun) leer.\n\nMöchten Sie diesen entfernen?";
}

bool OrdnerEntfernenOderMelden(Kartei& k, const std::string& ordner) {
    if (OrdnerLöschen(ordner)) return true;
    k.ui.MeldungZeigen("Der Ordner '" + PfadText(ordner) +
                           "' konnte nicht gelöscht werden.\n\nMöglicherweise ist dieser schreibgeschützt oder es "
                           "befinden sich noch (versteckte) Dateien darin.",
                       Meldung::Ausrufezeichen);
    return false;
}

// Nach der letzten Datei eines Ordners: ist er jetzt leer, fragen.
void LeerenOrdnerAnbieten(Kartei& k, const std::string& ordner) {
    if (!IstOrdner(ordner) || WeitereDateienInOrdner(ordner)) return;
    if (k.ui.MeldungZeigen(LeerFrage(ordner), Meldung::JaNeinFrage) == Meldung::Ja)
        OrdnerEntfernenOderMelden(k, ordner);
}

// Der Ordner je Platz der Liste ("" für leere oder ungültige Plätze), vor allen Änderungen.
std::vector<std::string> OrdnerDerListe(const Kartei& k, const EinsBasiert<int32_t>& liste) {
    std::vector<std::string> ordner(static_cast<size_t>(liste.UBound()) + 2);
    for (int32_t i = 1; i <= liste.UBound(); ++i)
        if (k.DateiPfade.GültigerIndex(liste[i]) && liste[i] >= 1 && liste[i] <= k.DateiAnzahl)
            ordner[static_cast<size_t>(i)] = PfadZurückgeben(k.DateiPfade[liste[i]]);
    return ordner;
}

bool GültigerPlatz(const Kartei& k, int32_t position) { return position >= 1 && position <= k.DateiAnzahl; }

void RestBehalten(EinsBasiert<int32_t>& liste, int32_t ab) {
    for (int32_t i = ab; i <= liste.UBound(); ++i) liste[i] = 0;
}

// Modus 1. false: angehalten.
bool EndgültigLöschen(Kartei& k, EinsBasiert<int32_t>& liste) {
    const auto ordner = OrdnerDerListe(k, liste);
    const int32_t n = liste.UBound();
    for (int32_t i = 1; i <= n; ++i) {
        if (!GültigerPlatz(k, liste[i])) {
            liste[i] = 0;
            continue;
        }
        const int16_t verfügbar = DateiNichtVerfügbarPrüfen(k, liste[i], false, false);
        if (verfügbar == 2) return RestBehalten(liste, i), false;
        if (verfügbar == 1) {
            liste[i] = 0;
            continue;
        }
        const std::string pfad = k.DateiPfade[liste[i]];
        if (!DateiLöschenEinfach(pfad)) {
            liste[i] = 0;
            if (k.ui.MeldungZeigen("Dei Datei '" + PfadText(pfad) +
                                       "' konnte nicht gelöscht werden.\n\nMöchten Sie mit der nächsten fortfahren?",
                                   Meldung::JaNeinAusruf) != Meldung::Ja)
                return RestBehalten(liste, i + 1), false;
        }
        const auto p = static_cast<size_t>(i);
        if (i == n || ordner[p + 1] != ordner[p]) LeerenOrdnerAnbieten(k, ordner[p]);
    }
    return true;
}
}  // namespace

int32_t DateiInPapierkorb(Kartei& k, EinsBasiert<int32_t>& liste) {
    const auto ordner = OrdnerDerListe(k, liste);
    const int32_t n = liste.UBound();
    std::vector<int32_t> plätze;  // Plätze mit einer Datei für den Papierkorb
    for (int32_t i = 1; i <= n; ++i) {
        if (!GültigerPlatz(k, liste[i])) {
            liste[i] = 0;
            continue;
        }
        const int16_t verfügbar = DateiNichtVerfügbarPrüfen(k, liste[i], false, false);
        // Was nicht eingesammelt wird, bleibt im Index: die Datei ist ja nicht weg.
        if (verfügbar == 2) {
            RestBehalten(liste, i);
            break;
        }
        if (verfügbar == 1) liste[i] = 0;
        else plätze.push_back(i);
    }
    if (plätze.empty()) return 0;
    if (k.ui.MeldungZeigen("Möchten Sie " + std::to_string(plätze.size()) + " Datei(en) in den Papierkorb verschieben?",
                           Meldung::JaNeinFrage) != Meldung::Ja) {
        for (int32_t i : plätze) liste[i] = 0;
        return 0;
    }
    int32_t verschoben = 0;
    std::string fehlgeschlagen;
    for (int32_t i : plätze) {
        const std::string pfad = k.DateiPfade[liste[i]];
        std::string fehler;
        if (k.shell.InPapierkorb(pfad, fehler)) ++verschoben;
        else if (DoesExist(pfad)) {
            liste[i] = 0;
            fehlgeschlagen += "\n" + PfadText(pfad) + " (" + fehler + ")";
        }
    }
    KK_TRACE("DateiInPapierkorb", "Ergebnis - " + std::to_string(verschoben));
    if (!fehlgeschlagen.empty())
        k.ui.MeldungZeigen("Diese Dateien konnten nicht in den Papierkorb verschoben werden und bleiben im Index:" +
                               fehlgeschlagen,
                           Meldung::Ausrufezeichen);
    for (int32_t i = 1; i <= n; ++i) {
        const auto p = static_cast<size_t>(i);
        if (!ordner[p].empty() && (i == n || ordner[p + 1] != ordner[p])) LeerenOrdnerAnbieten(k, ordner[p]);
    }
    return verschoben;
}

bool DateienLöschen(Kartei& k, EinsBasiert<int32_t>& liste, int16_t modus, bool ausIndexEntfernen) {
    NichtVerfügbarFragenZurücksetzen(k);
    bool vollständig = true;
    if (modus == LöschModus::Endgültig) vollständig = EndgültigLöschen(k, liste);
    else if (modus == LöschModus::Papierkorb) DateiInPapierkorb(k, liste);
    if (ausIndexEntfernen) DateienAusListeEntfernenStarten(k, liste);
    return vollständig;
}

bool OrdnerLöschenFragen(Kartei& k, std::string ordner) {
    if (ordner.empty() || ordner.back() != '/') ordner += '/';
    if (!IstOrdner(ordner) || WeitereDateienInOrdner(ordner)) return false;
    if (k.ui.MeldungZeigen(LeerFrage(ordner), Meldung::JaNeinAusruf) != Meldung::Ja) return true;
    return OrdnerEntfernenOderMelden(k, ordner);
}

bool WeitereDateienInOrdner(std::string_view ordner) {
    DIR* d = ::opendir(std::string(ordner).c_str());
    if (!d) return false;
    bool weitere = false;
    while (const dirent* e = ::readdir(d)) {
        const std::string_view name = e->d_name;
        if (name != "." && name != "..") {
            weitere = true;
            break;
        }
    }
    ::closedir(d);
    return weitere;
}

bool OrdnerLöschen(std::string_view ordner) {
    if (!IstOrdner(ordner)) return true;
    return ::rmdir(std::string(ordner).c_str()) == 0;
}

bool EndgültigLöschenBestätigen(Kartei& k, int32_t anzahl) {
    return k.ui.MeldungZeigen(std::to_string(anzahl) + " Datei(en) vom Datenträger löschen?", Meldung::JaNeinStopp) ==
           Meldung::Ja;
}
