#include "platform/LinuxDienste.h"

#include "platform/Verzeichnisse.h"

std::string EinstellungsDatei() { return KonfigOrdner() + "/klangkartei.conf"; }

std::string StandardIndexBereitstellen() {
    OrdnerAnlegen(DatenOrdner());
    return StandardIndexPfad();
}

LinuxDienste::LinuxDienste() : registrierung(EinstellungsDatei()) {}

Dienste LinuxDienste::Mit(Oberfläche& ui) {
    return Dienste{ui, registrierung, spieler, shell, datenträger, uhr, zufall};
}
