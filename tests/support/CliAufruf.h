#pragma once
// Ruft klangkartei-cli als eigenen Prozess auf, mit eigenen XDG-Ordnern im Testordner.
#include "support/TestOrdner.h"

#include <string>
#include <utility>
#include <vector>

struct CliErgebnis {
    int rückgabe = -1;
    std::string aus, fehler;
};

// cli: Pfad des Programms (KK_CLI der Test-Programme). Arbeitsordner ist der Testordner.
CliErgebnis CliAufrufen(const char* cli, const TestOrdner& o, const std::vector<std::string>& argumente);

// Dasselbe mit "--index i.kkt" vorweg: der Index im Testordner.
CliErgebnis CliMitIndex(const char* cli, const TestOrdner& o, std::vector<std::string> argumente);

// Ein Befehl über die Shell; Rückgabe und Ausgabe (stdout, mit "2>&1" auch stderr).
std::pair<int, std::string> ShellAufruf(const std::string& befehl);
