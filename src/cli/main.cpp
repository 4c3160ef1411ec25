// klangkartei-cli: allgemeine Schalter lesen, Unterbefehl aufrufen.
#include "app/HalbeDatei.h"
#include "app/Version.h"
#include "cli/AuswahlArgumente.h"
#include "cli/Befehle.h"

#include <QCoreApplication>

#include <cstdio>

namespace {
void HilfeZeigen() {
    std::printf("Klangkartei %s – Kommandozeile\n\n"
                "Aufruf: klangkartei-cli [--index PFAD] [--yes] BEFEHL [ARGUMENTE]\n\n"
                "Allgemeine Schalter:\n"
                "  --index PFAD  Indexdatei (Standard: der Standard-Index)\n"
                "  --yes         Fragen mit Ja beantworten (sonst Nein/Abbrechen)\n"
                "  --help        diese Hilfe\n"
                "  --version     Versionsnummer\n\n"
                "Befehle:\n",
                KK_VERSION_TEXT);
    for (const auto& b : AlleBefehle()) std::printf("  %-40s %s\n", b.aufruf, b.hilfe);
    std::printf("\nAUSWAHL (ohne: alle Einträge):\n  %s\n", AuswahlAufruf);
}
}  // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);  // für Pfade und D-Bus der Plattform
    HalbeDateiSignaleEinrichten();
    std::string index;
    bool ja = false;
    // --index und --yes gelten überall auf der Zeile, der Rest gehört dem Befehl.
    std::vector<std::string> args;
    for (int i = 1; i < argc; ++i) {
        std::string a = argv[i];
        if (a == "--yes") {
            ja = true;
        } else if (a == "--index") {
            if (++i >= argc) return GebrauchsFehler("--index braucht einen Pfad.");
            index = argv[i];
        } else {
            args.push_back(a);
        }
    }
    if (args.empty()) return GebrauchsFehler("Kein Befehl angegeben.");
    const std::string name = args.front();
    if (name == "--help" || name == "-h" || name == "help") {
        HilfeZeigen();
        return 0;
    }
    if (name == "--version") {
        std::printf("klangkartei-cli %d.%d.%d\n", KK_VERSION_MAJOR, KK_VERSION_MINOR, KK_VERSION_REVISION);
        return 0;
    }
    if (name[0] == '-') return GebrauchsFehler("Unbekannter Schalter '" + name + "'.");
    args.erase(args.begin());
    for (const auto& b : AlleBefehle()) {
        if (name != b.name) continue;
        CliKontext kontext(index, ja);
        return b.ausführen(kontext, args);
    }
    return GebrauchsFehler("Unbekannter Befehl '" + name + "'.");
}
