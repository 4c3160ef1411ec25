#include "cli/CliKontext.h"

#include "app/Start.h"

#include <cstdio>

CliKontext::CliKontext(std::string pfad, bool j) : indexPfad(std::move(pfad)), ja(j), ui(j), k(dienste.Mit(ui)) {
    // Laden, Ändern, Speichern ist ein Vorgang: ein zweiter Aufruf wartet, statt dazwischenzufahren.
    k.IndexZugriff.SperreHalten = true;
    // Wie beim Fensterstart, nur ohne Index auf der Zeile: den nennt --index.
    StartVorbereiten(k, {});
}

int GebrauchsFehler(const std::string& text) {
    std::fprintf(stderr,
                 "klangkartei-cli: %s\nAufruf: klangkartei-cli [--index PFAD] [--yes] BEFEHL [ARGUMENTE]\n"
                 "Mit --help erscheint die Liste der Befehle.\n",
                 text.c_str());
    return 2;
}
