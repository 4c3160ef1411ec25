#include "cli/MedienHilfen.h"

#include "cli/CliKontext.h"
#include "app/Pfade.h"
#include "app/Tabelle.h"
#include "cli/IndexLaden.h"
#include "index/IndexDatei.h"
#include "media/MedienInfos.h"
#include "platform/Verzeichnisse.h"
#include "settings/Dateitypen.h"

#include <cstdio>
#include <filesystem>

std::string VollerDateiPfad(const std::string& pfad) {
    std::error_code fehler;
    const auto voll = std::filesystem::absolute(pfad, fehler);
    return fehler ? pfad : voll.lexically_normal().string();
}

IndexLage MedienBefehlVorbereiten(CliKontext& c) {
    // Die Einstellungen liest schon CliKontext. Ein Index wird nur geladen, wenn er genannt ist
    // oder der Standard-Index besteht: ein bloßes "info" legt keinen neuen an.
    IndexLage lage = IndexLage::Keiner;
    if (!c.indexPfad.empty() || DoesExist(StandardIndexPfad()))
        lage = IndexFürBefehlLaden(c) ? IndexLage::Geladen : IndexLage::NichtGeladen;
    if (c.k.Optionen.DateitypenLeer) DateitypenVorgabenEinsetzen(c.k.Optionen);
    return lage;
}

bool IndexEintragAuffrischen(CliKontext& c, IndexLage lage, const std::string& pfad) {
    if (lage == IndexLage::Keiner) return true;
    if (lage == IndexLage::NichtGeladen) {
        std::fprintf(stderr, "Der Eintrag von '%s' im Index wurde nicht nachgeführt.\n", pfad.c_str());
        return false;
    }
    bool gefunden = false;
    for (int32_t n = 1; n <= c.k.DateiAnzahl; ++n) {
        if (c.k.DateiPfade[n] != pfad) continue;
        c.k.DateiDaten[n] = MedienInfosLesen(c.k, pfad, c.k.DateiDaten[n], "11", false, "1", "1");
        DateiGeändertSetzen(c.k);
        gefunden = true;
    }
    return !gefunden || DateiSpeichern(c.k, c.k.Dateiname, false);
}
