#include "shell/Hilfe.h"

#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/Version.h"

bool AnzeigenOderMelden(Kartei& k, const std::string& dateiOderAdresse) {
    if (k.shell.Öffnen(dateiOderAdresse)) return true;
    k.ui.MeldungZeigen("'" + dateiOderAdresse +
                           "' konnte nicht geöffnet werden.\n\nEs ist kein Programm zum Anzeigen eingerichtet "
                           "(xdg-open aus dem Paket xdg-utils und ein Browser).",
                       Meldung::Ausrufezeichen);
    return false;
}

std::string HilfeDatei(const std::string& datenOrdner) { return datenOrdner + "/hilfe/index.htm"; }

bool HilfeAnzeigen(Kartei& k, const std::string& datenOrdner) {
    const std::string datei = HilfeDatei(datenOrdner);
    if (!DoesExist(datei) || IstOrdner(datei)) {
        k.ui.MeldungZeigen("Die Hilfedatei '" + datei +
                               "' wurde nicht gefunden.\n\nBitte installieren Sie dieses Programm neu, um diese "
                               "Informationen anzuzeigen.",
                           Meldung::Ausrufezeichen);
        return false;
    }
    return AnzeigenOderMelden(k, datei);
}

std::string ProgrammVersionText() {
    return "Version " + std::to_string(KK_VERSION_MAJOR) + "." + std::to_string(KK_VERSION_MINOR) + "." +
           std::to_string(KK_VERSION_REVISION);
}

std::string ProgrammCopyright() { return KK_COPYRIGHT; }
