#include "cli/MedienHilfen.h"

#include "app/Pfade.h"
#include "cli/CliKontext.h"
#include "cli/IndexLaden.h"
#include "index/Dateitypen.h"
#include "platform/Verzeichnisse.h"
#include "tags/TagDateien.h"

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
    DateitypenVorgabenWennLeer(c.k.Optionen);
    return lage;
}

bool IndexNachführen(CliKontext& c, IndexLage lage, const std::string& pfad) {
    if (lage == IndexLage::Keiner) return true;
    if (lage == IndexLage::Geladen) return IndexEintragAuffrischen(c.k, pfad);
    std::fprintf(stderr, "Der Eintrag von '%s' im Index wurde nicht nachgeführt.\n", pfad.c_str());
    return false;
}
