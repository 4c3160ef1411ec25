#include "shell/Hilfe.h"

#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/Version.h"

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
    return k.shell.Öffnen(datei);
}

std::string ProgrammVersionText() {
    return "Version " + std::to_string(KK_VERSION_MAJOR) + "." + std::to_string(KK_VERSION_MINOR) + "." +
           std::to_string(KK_VERSION_REVISION);
}

std::string ProgrammCopyright() { return KK_COPYRIGHT; }
