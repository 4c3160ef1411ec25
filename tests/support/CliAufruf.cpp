#include "support/CliAufruf.h"

#include <cstdio>
#include <cstdlib>
#include <sys/wait.h>

namespace {
// Einfache Anführungszeichen für die Shell; ein ' im Argument wird '\''.
std::string Quoten(const std::string& s) {
    std::string aus = "'";
    for (char c : s) aus += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return aus + "'";
}
}  // namespace

CliErgebnis CliAufrufen(const char* cli, const TestOrdner& o, const std::vector<std::string>& argumente) {
    std::string befehl = "cd " + Quoten(o.Pfad()) + " && XDG_CONFIG_HOME=" + Quoten(o / "konfig") +
                         " XDG_DATA_HOME=" + Quoten(o / "daten") + " XDG_CACHE_HOME=" + Quoten(o / "cache") +
                         " ASAN_OPTIONS=detect_leaks=0 " + Quoten(cli);
    for (const auto& a : argumente) befehl += " " + Quoten(a);
    befehl += " >" + Quoten(o / ".aus") + " 2>" + Quoten(o / ".fehler") + " </dev/null";
    const int status = std::system(befehl.c_str());
    CliErgebnis e;
    e.rückgabe = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    e.aus = DateiLesen(o / ".aus");
    e.fehler = DateiLesen(o / ".fehler");
    return e;
}

CliErgebnis CliMitIndex(const char* cli, const TestOrdner& o, std::vector<std::string> argumente) {
    argumente.insert(argumente.begin(), {"--index", "i.kkt"});
    return CliAufrufen(cli, o, argumente);
}

std::pair<int, std::string> ShellAufruf(const std::string& befehl) {
    FILE* p = ::popen(befehl.c_str(), "r");
    if (!p) return {-1, "popen"};
    std::string aus;
    char puffer[4096];
    while (size_t n = std::fread(puffer, 1, sizeof puffer, p)) aus.append(puffer, n);
    const int status = ::pclose(p);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, aus};
}
