#include "cli/Befehle.h"

// Jeder Befehl steht in seiner eigenen Datei (BefehlXyz.cpp) und meldet sich hier an.
// Index
// Einstellungen
// Mediendateien
extern const Befehl BefehlInfo, BefehlTag, BefehlUntag;
// Aufnahme
// Suche

const std::vector<Befehl>& AlleBefehle() {
    static const std::vector<Befehl> befehle = {
        // Index
        // Einstellungen
        // Mediendateien
        BefehlInfo, BefehlTag, BefehlUntag,
        // Aufnahme
        // Suche
    };
    return befehle;
}
