#include "cli/MedienHilfen.h"

#include "cli/CliKontext.h"
#include "settings/Dateitypen.h"

#include <filesystem>

std::string VollerDateiPfad(const std::string& pfad) {
    std::error_code fehler;
    const auto voll = std::filesystem::absolute(pfad, fehler);
    return fehler ? pfad : voll.lexically_normal().string();
}

void MedienBefehlVorbereiten(CliKontext& c) {
    // INTEGRATION: hier die Einstellungen lesen (TAGsBytesSuchen, TAGsProzentHinzufügen) und,
    // wenn vorhanden, die Dateityp-Tabelle des Index (--index) übernehmen.
    if (c.k.Optionen.DateitypenLeer) DateitypenVorgabenEinsetzen(c.k.Optionen);
}
