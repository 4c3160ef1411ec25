#include "cli/MedienHilfen.h"

#include "cli/CliKontext.h"
#include "app/Pfade.h"
#include "app/Tabelle.h"
#include "cli/IndexLaden.h"
#include "index/IndexDatei.h"
#include "media/MedienInfos.h"
#include "platform/Verzeichnisse.h"
#include "index/Dateitypen.h"

#include <filesystem>

std::string VollerDateiPfad(const std::string& pfad) {
    std::error_code fehler;
    const auto voll = std::filesystem::absolute(pfad, fehler);
    return fehler ? pfad : voll.lexically_normal().string();
}

bool MedienBefehlVorbereiten(CliKontext& c) {
    // Die Einstellungen liest schon CliKontext. Ein Index wird nur geladen, wenn er genannt ist
    // oder der Standard-Index besteht: ein bloßes "info" legt keinen neuen an.
    bool geladen = false;
    if (!c.indexPfad.empty() || DoesExist(StandardIndexPfad())) geladen = IndexFürBefehlLaden(c);
    if (c.k.Optionen.DateitypenLeer) DateitypenVorgabenEinsetzen(c.k.Optionen);
    return geladen;
}

bool IndexEintragAuffrischen(CliKontext& c, const std::string& pfad) {
    bool gefunden = false;
    for (int32_t n = 1; n <= c.k.DateiAnzahl; ++n) {
        if (c.k.DateiPfade[n] != pfad) continue;
        c.k.DateiDaten[n] = MedienInfosLesen(c.k, pfad, c.k.DateiDaten[n], "11", false, "1", "1");
        DateiGeändertSetzen(c.k);
        gefunden = true;
    }
    return !gefunden || DateiSpeichern(c.k, c.k.Dateiname, false);
}
