#include "intake/NichtVerfuegbar.h"

#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/Trace.h"

namespace {
constexpr const char* kEnde =
    "' ein bzw. stellen Sie die Verfügbarkeit des Laufwerkes sicher, um den Vorgang fortzusetzen oder "
    "ändern Sie den Indexeintrag bzw. löschen Sie diesen.";

// Die Frage stellen und die Antwort in ein Ergebnis übersetzen.
int16_t Fragen(Kartei& k, const std::string& pfad, const std::string& wurzel, const std::string& bezeichnung) {
    auto& a = k.Aufnahme;
    a.DateiNichtVerfügbarDatei = pfad;
    const auto antwort = k.ui.DateiNichtVerfügbar(pfad, NichtVerfügbarText(pfad, wurzel, bezeichnung),
                                                  [&a] { return DoesExist(a.DateiNichtVerfügbarDatei); });
    a.DateiNichtVerfügbarAuswahl = static_cast<int16_t>(antwort);
    switch (antwort) {
    case NichtVerfügbarAntwort::Weiter: return 0;
    case NichtVerfügbarAntwort::Überspringen: return 1;
    case NichtVerfügbarAntwort::AlleÜberspringen: a.NachfolgendNichtFragen = true; return 1;
    case NichtVerfügbarAntwort::Abbrechen: break;
    }
    return 2;
}
}  // namespace

std::string NichtVerfügbarText(const std::string& pfad, const std::string& wurzel, const std::string& bezeichnung) {
    std::string text = "Die Datei '" + pfad + "' ist zurzeit nicht verfügbar.\n";
    if (bezeichnung.empty()) text += "Bitte legen Sie den Quelldatenträger in Laufwerk '" + wurzel + kEnde;
    else text += "Bitte legen Sie den Datenträger '" + bezeichnung + "' in Laufwerk '" + wurzel + kEnde;
    return text;
}

void NichtVerfügbarFragenZurücksetzen(Kartei& k) { k.Aufnahme.NachfolgendNichtFragen = false; }

int16_t DateiNichtVerfügbarPrüfen(Kartei& k, int32_t position, bool, bool festesMediumÜberspringen) {
    if (!k.DateiPfade.GültigerIndex(position) || !k.DateiDaten.GültigerIndex(position)) {
        KK_TRACE("DateiNichtVerfügbarPrüfen", "ungültige Position " + std::to_string(position));
        return 2;
    }
    const std::string pfad = k.DateiPfade[position];  // Kopie: die Frage lässt Ereignisse laufen
    if (DoesExist(pfad)) return 0;
    // Ohne vollen Pfad gibt es keine Wurzel, nach der sich fragen ließe.
    if (IstVollerPfad(pfad)) {
        const std::string wurzel = k.datenträger.Wurzel(pfad);
        if (k.datenträger.IstWechselmedium(wurzel)) {
            if (k.E.NichtVerfügbarFragen == 0 || k.Aufnahme.NachfolgendNichtFragen) return 1;
            return Fragen(k, pfad, wurzel, k.DateiDaten[position].Datei_Wechselmedium);
        }
    }
    // Fehlt die Datei auf einem festen Datenträger, hilft kein Nachfragen.
    return festesMediumÜberspringen ? 1 : 0;
}
