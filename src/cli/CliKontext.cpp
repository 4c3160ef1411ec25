#include "cli/CliKontext.h"

#include "platform/Verzeichnisse.h"
#include "settings/EinstellungenSpeicher.h"

#include <cstdio>

CliKontext::CliKontext(std::string pfad, bool j)
    : indexPfad(std::move(pfad)), ja(j), ui(j), registrierung(KonfigOrdner() + "/klangkartei.conf"),
      k(Dienste{ui, registrierung, spieler, shell, datenträger, uhr, zufall}) {
    k.LetzteSpeicherung = uhr.Jetzt();
    // Laden, Ändern, Speichern ist ein Vorgang: ein zweiter Aufruf wartet, statt dazwischenzufahren.
    k.IndexZugriff.SperreHalten = true;
    EinstellungenLesen(k);  // jeder Befehl arbeitet mit den Einstellungen des Benutzers
}

int GebrauchsFehler(const std::string& text) {
    std::fprintf(stderr,
                 "klangkartei-cli: %s\nAufruf: klangkartei-cli [--index PFAD] [--yes] BEFEHL [ARGUMENTE]\n"
                 "Mit --help erscheint die Liste der Befehle.\n",
                 text.c_str());
    return 2;
}
