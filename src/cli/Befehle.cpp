#include "cli/Befehle.h"

// Jeder Befehl steht in seiner eigenen Datei (BefehlXyz.cpp) und meldet sich hier an.
// Index
extern const Befehl BefehlShow, BefehlField, BefehlSave;
// Einstellungen
extern const Befehl BefehlSettings;
// Mediendateien
extern const Befehl BefehlInfo, BefehlTag, BefehlUntag;
// Tag-Werkzeuge
extern const Befehl BefehlAutotag;
// Aufnahme
extern const Befehl BefehlAdd, BefehlImport, BefehlScan, BefehlTypes;
// Suche
extern const Befehl BefehlSearch, BefehlSort, BefehlComplete;
// Berichte
extern const Befehl BefehlExport, BefehlStats, BefehlDupes;
// Spieler
extern const Befehl BefehlAutodj;
extern const Befehl BefehlPlay, BefehlPlayer, BefehlMonitor;
// Dateien
extern const Befehl BefehlRename;
// Dateioperationen
extern const Befehl BefehlMove, BefehlCopy, BefehlPropose, BefehlDelete, BefehlSync;

const std::vector<Befehl>& AlleBefehle() {
    static const std::vector<Befehl> befehle = {
        // Index
        BefehlShow,
        BefehlField,
        BefehlSave,
        // Einstellungen
        BefehlSettings,
        // Mediendateien
        BefehlInfo,
        BefehlTag,
        BefehlUntag,
        // Tag-Werkzeuge
        BefehlAutotag,
        // Aufnahme
        BefehlAdd,
        BefehlImport,
        BefehlScan,
        BefehlTypes,
        // Suche
        BefehlSearch,
        BefehlSort,
        BefehlComplete,
        // Berichte
        BefehlExport,
        BefehlStats,
        BefehlDupes,
        // Spieler
        BefehlAutodj,
        BefehlPlay,
        BefehlPlayer,
        BefehlMonitor,
        // Dateien
        BefehlRename,
        // Dateioperationen
        BefehlMove,
        BefehlCopy,
        BefehlPropose,
        BefehlDelete,
        BefehlSync,
    };
    return befehle;
}
