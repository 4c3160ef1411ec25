// Der Lauf der Umbenennung: je Datei den neuen Pfad bestimmen und verschieben, den Listeneintrag
// ändern, Attribute setzen oder die Datei durch eine leere ersetzen; der Index folgt sofort.
#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/Tabelle.h"
#include "app/Texte.h"
#include "app/Trace.h"
#include "fileops/Verschieben.h"
#include "fileops/Loeschen.h"
#include "fileops/Umbenennen.h"
#include "fileops/FortlaufendeNamen.h"
#include "fileops/UmbenennenNamen.h"
#include "intake/DateiFormat.h"
#include "intake/NichtVerfuegbar.h"
#include "intake/Wechselmedium.h"
#include "media/MedienInfos.h"
#include "search/Suche.h"
#include "shell/Fortschritt.h"

namespace {
namespace F = UmbenennenFunktion;

// Der neue Pfad der Funktionen, die verschieben; false: die Person hat abgebrochen.
bool NeuerPfad(Kartei& k, int32_t position, const UmbenennenEingaben& e, std::string& neu) {
    const std::string& pfad = k.DateiPfade[position];
    switch (e.funktion) {
    case F::NachFeldern: neu = NachFeldernBenennen(k, position, pfad, e.format); return true;
    case F::ZeichenErsetzen: neu = ZeichenErsetzen(pfad, e.suchen, e.ersetzen); return true;
    case F::Fortlaufend: neu = FortlaufendenDateinamen(pfad, e.basis1, e.zähler, e.basis2); return true;
    case F::Schreibweise: neu = SchreibweiseImPfad(pfad, e.unterfunktion); return true;
    case F::Endung: neu = EndungÄndern(pfad, e.neueEndung); return true;
    default: break;
    }
    // Manuell: der Name ist vorbelegt, gewählt ist er ohne Endung.
    std::string name = DateinameAusPfad(pfad);
    const int32_t länge = ZeichenAnzahl(PfadOhneEndung(name));
    if (!k.ui.NamenEingeben("Datei umbenennen", "umbenennen", name, 1, länge)) return false;
    neu = PfadZurückgeben(pfad) + "/" + name;
    return true;
}

// Verschieben und den Eintrag nachführen; ein Fehler lässt Datei und Eintrag, wie sie waren.
bool Verschieben(Kartei& k, int32_t position, std::string neu) {
    const std::string alt = k.DateiPfade[position];
    std::string fehler;
    bool ergebnis = false;
    if (DateiVerschieben(k, alt, neu, ModusVerschieben, fehler)) {
        // Erst der Eintrag, dann die Frage nach dem alten Ordner: die Frage lässt Ereignisse laufen.
        k.DateiPfade[position] = neu;
        OrdnerLöschenFragen(k, PfadZurückgeben(alt));
        if (k.E.Mp3TagLesen.size() >= 3 && k.E.Mp3TagLesen[2] == '1')
            k.DateiDaten[position].Datei_Wechselmedium = WechselmediumZuPfad(k, neu);
        ergebnis = true;
    } else if (!fehler.empty()) {
        k.ui.MeldungZeigen(fehler, Meldung::Ausrufezeichen);
    }
    DateiGeändertSetzen(k);
    return ergebnis;
}

// Funktion 5: nur der Pfad des Eintrags; die Datei bleibt unberührt.
bool ListeneintragÄndern(Kartei& k, int32_t position, bool& abbruch) {
    KK_TRACE("DateiNachKriterienUmbenennen", "Ändern-Formatierung");
    std::string neu = k.DateiPfade[position];
    if (!k.ui.NamenEingeben("Listeneintrag ändern", "ändern", neu, 1, 0)) {
        KK_TRACE("DateiNachKriterienUmbenennen", "Abbruch");
        abbruch = true;
        return false;
    }
    if (!DoesExist(neu)) {
        k.ui.MeldungZeigen("Die angegebene Datei '" + neu +
                               "' existiert nicht.\n\nBitte ändern Sie den Listeneintrag nochmals, um einen gültigen "
                               "Namen zu hinterlegen.",
                           Meldung::Ausrufezeichen);
        return false;
    }
    k.DateiPfade[position] = neu;
    if (DateiFormatUnterstützt(k, neu, false, false, false, false))
        k.DateiDaten[position] = MedienInfosLesen(k, neu, k.DateiDaten[position], "00", false, "0", "0");
    DateiGeändertSetzen(k);
    return true;
}

bool AttributeÄndern(Kartei& k, int32_t position, const UmbenennenEingaben& e) {
    const std::string& pfad = k.DateiPfade[position];
    std::string fehler;
    if (!DateiAttributeSetzen(pfad, e.schreibschutz, e.archiv, e.system, e.versteckt, fehler)) {
        k.ui.MeldungZeigen("Die Datei-Attribute der Datei '" + pfad + "' ...\n" + fehler, Meldung::Ausrufezeichen);
        return false;
    }
    DateiGeändertSetzen(k);
    return true;
}

bool DurchLeereErsetzen(Kartei& k, int32_t position, const UmbenennenEingaben& e) {
    if (!DateiDurchLeereErsetzen(k.DateiPfade[position], e.ersetzenEndung, true)) {
        k.ui.MeldungZeigen("Die Datei '' konnte nicht gelöscht werden.", Meldung::Ausrufezeichen);
        return false;
    }
    // Der Pfad bleibt der alte: der Eintrag gilt als fehlende Datei, bis die Liste bereinigt wird.
    k.DateiDaten[position] = DateiInfo{};
    DateiGeändertSetzen(k);
    return true;
}
}  // namespace

bool DateiNachKriterienUmbenennen(Kartei& k, int32_t position, const UmbenennenEingaben& e, bool& abbruch) {
    if (!k.DateiPfade.GültigerIndex(position) || position > k.DateiAnzahl) return false;
    switch (e.funktion) {
    case F::Listeneintrag: return ListeneintragÄndern(k, position, abbruch);
    case F::Attribute: return AttributeÄndern(k, position, e);
    case F::LeereDatei: return DurchLeereErsetzen(k, position, e);
    case F::NachFeldern:
    case F::ZeichenErsetzen:
    case F::Fortlaufend:
    case F::Manuell:
    case F::Schreibweise:
    case F::Endung: break;
    default: return false;
    }
    std::string neu;
    if (!NeuerPfad(k, position, e, neu)) {
        KK_TRACE("DateiNachKriterienUmbenennen", "Abbruch");
        abbruch = true;
        return false;
    }
    return Verschieben(k, position, neu);
}

UmbenennenErgebnis UmbenennenAusführen(Kartei& k, const std::vector<int32_t>& einträge, const UmbenennenEingaben& e) {
    UmbenennenErgebnis r;
    const auto anzahl = static_cast<int32_t>(einträge.size());
    FortschrittZeigenStarten(k, anzahl, true, true, false, "Benenne Dateien um");
    NichtVerfügbarFragenZurücksetzen(k);
    // stand zählt wie die Schleife des Dialogs: nach einem vollen Lauf steht er hinter dem Ende.
    int32_t stand = 1;
    for (; stand <= anzahl; ++stand) {
        const int32_t position = einträge[static_cast<size_t>(stand - 1)];
        if (e.funktion != F::Listeneintrag) {
            const int16_t verfügbar = DateiNichtVerfügbarPrüfen(k, position, true, false);
            if (verfügbar == 1) continue;
            if (verfügbar == 2) break;
        }
        bool abbruch = false;
        if (DateiNachKriterienUmbenennen(k, position, e, abbruch)) {
            ++r.geändert;
        } else {
            ++r.nichtGeändert;
            // Auch nach einem Abbruch kommt die Frage; aufgehört wird danach ohnehin.
            if (stand < anzahl && k.ui.MeldungZeigen("Möchten Sie mit der nächsten Datei fortfahren?",
                                                     Meldung::JaNeinFrage) != Meldung::Ja)
                break;
        }
        if (!FortschrittZeigen(k, static_cast<double>(stand), "") || abbruch) break;
    }
    r.abgebrochen = stand <= anzahl;
    UmbenennenZuletztSichern(k, e);
    // Die Schlussmeldung kommt nur, wenn der Lauf bei der letzten Datei angehalten wurde.
    if (stand == anzahl) k.ui.TitelNachrichtZeigen(std::to_string(stand) + " Dateien wurden umbenannt/geändert.", 750);
    FortschrittZeigenEnde(k);
    SucheAktualisieren(k, false);
    return r;
}
