#include "cli/Befehle.h"

// Jeder Befehl steht in seiner eigenen Datei; hier nur die Liste.
const std::vector<Befehl>& AlleBefehle() {
    static const std::vector<Befehl> befehle = {};
    return befehle;
}
