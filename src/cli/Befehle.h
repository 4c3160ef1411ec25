#pragma once
// Die Unterbefehle: Name, Kurzbeschreibung, Ausführung mit den restlichen Argumenten.
#include "cli/CliKontext.h"

#include <string>
#include <vector>

struct Befehl {
    const char* name;
    const char* aufruf;  // Gebrauch, z. B. "show [--entry N] [--count]"
    const char* hilfe;
    int (*ausführen)(CliKontext& kontext, const std::vector<std::string>& argumente);
};

const std::vector<Befehl>& AlleBefehle();
