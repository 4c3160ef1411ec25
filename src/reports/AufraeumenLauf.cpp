// Die gewählten Aktionen der Indexverwaltung in sechs Schritten ausführen.
#include "app/Kartei.h"
#include "app/Pfade.h"
#include "fileops/Loeschen.h"
#include "fileops/Umbenennen.h"
#include "reports/Aufraeumen.h"
#include "search/Suche.h"
#include "shell/Fortschritt.h"

#include <array>

namespace {
// An dieser Endung erkennt man auf dem Datenträger, was hier durch eine leere Datei ersetzt wurde.
constexpr const char* ErsetzenEndung = "inanderemordner";

using Listen = std::array<EinsBasiert<int32_t>, Aktion::Anzahl>;

// Schritt 1: je Code die Indexpositionen in ihrer Reihenfolge.
Listen ListenJeCode(const Kartei& k, const Aufräumen& a) {
    Listen listen;
    for (int32_t p = 1; p <= k.DateiAnzahl && size_t(p) < a.GefundenAktionen.size(); ++p) {
        const int32_t code = a.GefundenAktionen[size_t(p)];
        if (code > Aktion::Keine && code < Aktion::Anzahl) listen[size_t(code)].Anhängen(p);
    }
    return listen;
}

void Leeren(EinsBasiert<int32_t>& liste, int32_t ab) {
    for (int32_t i = ab; i <= liste.UBound(); ++i) liste[i] = 0;
}

// Schritt 5. Was sich nicht ersetzen ließ, bleibt im Index (Platz 0) und wird am Ende einmal
// gemeldet; ein Abbruch zwischen zwei Dateien lässt den Rest, wie er ist. false: abgebrochen.
bool DateienErsetzen(Kartei& k, EinsBasiert<int32_t>& liste) {
    std::string fehlgeschlagen;
    bool weiter = true;
    for (int32_t i = 1; i <= liste.UBound(); ++i) {
        if (!weiter) {
            Leeren(liste, i);
            break;
        }
        const std::string pfad = k.DateiPfade[liste[i]];
        if (!DateiDurchLeereErsetzen(pfad, ErsetzenEndung, true)) {
            liste[i] = 0;
            fehlgeschlagen += "\n" + PfadText(pfad);
        }
        weiter = FortschrittZeigen(k, "Dateien ersetzen");
    }
    if (!fehlgeschlagen.empty())
        k.ui.MeldungZeigen("Diese Dateien konnten nicht ersetzt werden und bleiben im Index:" + fehlgeschlagen,
                           Meldung::Ausrufezeichen);
    return weiter;
}

// Schritte 2 bis 5 für einen Code; false: abgebrochen.
bool CodeAusführen(Kartei& k, int32_t code, EinsBasiert<int32_t>& liste) {
    if (code == Aktion::Ersetzen) return DateienErsetzen(k, liste);
    if (liste.UBound() < 1) return true;
    const int16_t modus = code == Aktion::Löschen      ? LöschModus::Endgültig
                          : code == Aktion::Papierkorb ? LöschModus::Papierkorb
                                                       : LöschModus::NurIndex;
    // Ein angehaltenes Löschen betrifft nur diesen Schritt; seine übrigen Plätze sind 0.
    DateienLöschen(k, liste, modus, false);
    return true;
}

// Schritt 6: alle Listen in eine, dann in einem Durchgang aus dem Index. Die Positionen gelten
// noch, weil vorher nichts entfernt wurde.
void IndexAnpassen(Kartei& k, const Listen& listen) {
    EinsBasiert<int32_t> alle;
    for (const auto& liste : listen)
        for (int32_t i = 1; i <= liste.UBound(); ++i) alle.Anhängen(liste[i]);
    if (alle.UBound() >= 1) DateienLöschen(k, alle, LöschModus::NurIndex, true);
}
}  // namespace

bool AktionenAusführen(Kartei& k, const Aufräumen& a) {
    struct Schritt {
        int32_t code;
        const char* text;  // nullptr: der Schritt tut nichts Sichtbares und meldet sich nicht
    };
    static constexpr Schritt schritte[] = {{Aktion::Löschen, "Dateien löschen"},
                                           {Aktion::Papierkorb, "Dateien in Papierkorb verschieben"},
                                           {Aktion::AusIndex, nullptr},
                                           {Aktion::Ersetzen, "Dateien ersetzen"}};
    FortschrittZeigenStarten(k, 6, true, true, true, "Vorgänge werden ausgeführt");
    bool weiter = FortschrittZeigen(k, 1, "Dateien prüfen");
    Listen listen = ListenJeCode(k, a);
    for (size_t s = 0; s < std::size(schritte); ++s) {
        auto& liste = listen[size_t(schritte[s].code)];
        if (weiter && schritte[s].text) weiter = FortschrittZeigen(k, double(s + 2), schritte[s].text);
        // Nach einem Abbruch bleiben die Einträge der ausgelassenen Schritte im Index.
        if (!weiter) {
            Leeren(liste, 1);
            continue;
        }
        weiter = CodeAusführen(k, schritte[s].code, liste);
        // Ein Klick auf "Abbrechen" während des Schritts kommt erst hier an und wirkt vor dem nächsten.
        if (weiter && schritte[s].text) weiter = FortschrittZeigen(k, double(s + 2), schritte[s].text);
    }
    if (weiter) weiter = FortschrittZeigen(k, 6, "Index anpassen");
    IndexAnpassen(k, listen);
    FortschrittZeigenEnde(k);
    SucheAktualisieren(k);
    k.ui.TitelNachrichtZeigen("Der Index wurde aufgeräumt", 750);
    return weiter;
}
