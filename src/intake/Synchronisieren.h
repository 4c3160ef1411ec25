#pragma once
// Index synchronisieren (cmdListeAufräumen): Neues aus den Abgleich-Ordnern aufnehmen und, wenn
// eingestellt, Einträge fehlender Dateien entfernen.
#include <cstdint>
#include <string>

struct Kartei;

struct AbgleichErgebnis {
    int32_t hinzugefügt = 0, entfernt = 0;
    bool abgebrochen = false;
    std::string text;  // was in der Titelzeile stand
};

// Jeder Abgleich-Ordner wird hinzugefügt (mit seinem Zielordner), danach – bei SYNC_ENTFERNEN 1 –
// jede fehlende Datei gesucht und ihr Eintrag entfernt. Ein Abbruch beim Prüfen entfernt nichts;
// ein Abbruch beim Hinzufügen behält, was schon aufgenommen ist. Ohne Ordner eine Meldung, das
// Prüfen läuft trotzdem. Mit einer Änderung folgt eine neue Suche, Neues wird markiert.
AbgleichErgebnis ListeAufräumen(Kartei& k);

// "N Datei(en) entfernt, M Datei(en) hinzugefügt"
std::string AbgleichText(int32_t entfernt, int32_t hinzugefügt);
