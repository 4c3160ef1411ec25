#include "cli/MedienHilfen.h"

#include "app/Pfade.h"
#include "cli/CliKontext.h"
#include "cli/IndexLaden.h"
#include "index/Dateitypen.h"
#include "platform/Verzeichnisse.h"

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
    DateitypenVorgabenWennLeer(c.k.Optionen);
    return geladen;
}
