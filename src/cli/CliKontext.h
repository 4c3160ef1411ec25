#pragma once
// Alles, was ein Unterbefehl braucht: Dienste, Kartei und die allgemeinen Schalter.
#include "app/Kartei.h"
#include "cli/CliOberflaeche.h"
#include "platform/LinuxDienste.h"

#include <string>
#include <vector>

struct CliKontext {
    CliKontext(std::string indexPfad, bool ja);

    std::string indexPfad;  // leer: der Standard-Index
    bool ja;
    CliOberfläche ui;
    LinuxDienste dienste;
    Kartei k;
};

// Fehlermeldung mit Gebrauchshinweis auf stderr; Rückgabe 2.
int GebrauchsFehler(const std::string& text);
