// Verschieben/Kopieren über der Auswahl und der Vorschlag von Zielordnern.
#include "fileops/Kopieren.h"

#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/Tabelle.h"
#include "app/Texte.h"
#include "fileops/Loeschen.h"
#include "fileops/Verschieben.h"
#include "intake/NichtVerfuegbar.h"
#include "intake/Wechselmedium.h"
#include "search/Suche.h"
#include "shell/Fortschritt.h"
#include "tags/AutoTag.h"

namespace {
// Schritt 5: nach einem Fehler fragen, ob es weitergeht; bei der letzten Datei nur melden.
bool NachFehlerWeiter(Kartei& k, const std::string& fehlertext, bool letzte) {
    const std::string text = "Beim Kopieren ist ein Fehler aufgetreten: " + fehlertext;
    if (letzte) {
        k.ui.MeldungZeigen(text, Meldung::Ausrufezeichen);
        return false;
    }
    return k.ui.MeldungZeigen(text + "\n\nMöchten Sie mit der nächsten Datei fortfahren?", Meldung::JaNeinAusruf) ==
           Meldung::Ja;
}

// Schritt 6: der Eintrag folgt der verschobenen Datei.
void EintragNachführen(Kartei& k, int32_t position, const std::string& ziel) {
    const std::string alt = k.DateiPfade[position];
    k.DateiPfade[position] = ziel;
    k.DateiDaten[position].Datei_Wechselmedium = WechselmediumZuPfad(k, ziel);
    DateiGeändertSetzen(k);
    OrdnerLöschenFragen(k, PfadZurückgeben(alt));
}

std::vector<std::string> Begriffe(const Kartei& k, int32_t erste) {
    const DateiInfo& d = k.DateiDaten[erste];
    std::vector<std::string> begriffe;
    if (d.Mp3_ID3v1_Status == 1) {
        // Mit Tag zählt nur der Tag, auch wenn beide Felder leer sind.
        for (const KText* feld : {&d.Mp3_ID3v1_Interpret, &d.Mp3_ID3v1_Album})
            if (!feld->empty()) begriffe.push_back(*feld);
        return begriffe;
    }
    EinsBasiert<std::string> wörter;
    int32_t anzahl = 0;
    if (DateinamenLesen(k, k.DateiPfade[erste], wörter, anzahl, true))
        for (int32_t i = 1; i <= anzahl && i <= wörter.UBound(); ++i) begriffe.push_back(wörter[i]);
    return begriffe;
}
}  // namespace

bool ZielordnerPrüfen(Kartei& k, const std::string& ordner) {
    if (!ordner.empty()) return true;
    k.ui.MeldungZeigen("Bitte geben Sie einen Zielordner ein.", Meldung::Information);
    return false;
}

KopierenErgebnis DateienKopieren(Kartei& k, const std::vector<int32_t>& einträge, std::string ordner, int16_t modus) {
    KopierenErgebnis e;
    if (ordner.empty() || ordner.back() != '/') ordner += '/';
    k.E.KopierenModus = modus;
    k.E.KopierenOrdner = ordner;
    NichtVerfügbarFragenZurücksetzen(k);
    const auto anzahl = static_cast<int32_t>(einträge.size());
    FortschrittZeigenStarten(k, anzahl, true, true, true, "Dateien kopieren/verschieben");
    for (int32_t i = 1; i <= anzahl && !e.abgebrochen; ++i) {
        const int32_t position = einträge[static_cast<size_t>(i - 1)];
        const int16_t verfügbar = DateiNichtVerfügbarPrüfen(k, position, true, false);
        if (verfügbar == 1) {
            ++e.übersprungen;
            continue;
        }
        const std::string quelle = verfügbar == 2 ? std::string() : k.DateiPfade[position].str();
        if (verfügbar == 2 || !FortschrittZeigen(k, i, DateinameAusPfad(quelle))) {
            e.abgebrochen = true;
            break;
        }
        std::string ziel = ordner + DateinameAusPfad(quelle);
        std::string fehlertext;
        if (!DateiVerschieben(k, quelle, ziel, modus, fehlertext)) {
            ++e.fehlgeschlagen;
            e.abgebrochen = !NachFehlerWeiter(k, fehlertext, i == anzahl) && i < anzahl;
            continue;
        }
        ++e.erfolgreich;
        // Kopien kennt der Index nicht; nur verschobene Einträge folgen ihrer Datei.
        if (modus == ModusVerschieben) EintragNachführen(k, position, ziel);
    }
    FortschrittZeigenEnde(k);
    SucheAktualisieren(k);
    return e;
}

std::vector<std::string> ZielordnerVorschlagen(const Kartei& k, int32_t erste) {
    if (erste < 1 || erste > k.DateiAnzahl) return {};
    const std::string eigener = PfadZurückgeben(k.DateiPfade[erste]);
    const std::vector<std::string> begriffe = Begriffe(k, erste);
    std::vector<std::string> vorschläge;
    for (int32_t i = 1; i <= k.DateiAnzahl && !begriffe.empty(); ++i) {
        const std::string ordner = PfadZurückgeben(k.DateiPfade[i]);
        bool passt = false;
        for (const std::string& b : begriffe)
            if ((passt = InStrText(1, ordner, b) > 0)) break;
        if (!passt) continue;
        bool bekannt = false;
        for (const std::string& v : vorschläge)
            if ((bekannt = NamenGleich(v, ordner))) break;
        if (!bekannt) vorschläge.push_back(ordner);
    }
    std::vector<std::string> liste{eigener};
    for (std::string& v : vorschläge)
        if (v != eigener) liste.push_back(std::move(v));
    return liste;
}
