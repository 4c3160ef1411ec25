#pragma once
// frmKopieren ohne das Fenster: gewählte Dateien in einen Ordner verschieben oder kopieren, und
// Zielordner für die erste Datei vorschlagen.
#include <cstdint>
#include <string>
#include <vector>

struct Kartei;

struct KopierenErgebnis {
    int32_t erfolgreich = 0, fehlgeschlagen = 0, übersprungen = 0;
    bool abgebrochen = false;  // durch Fortschritt, "Nein" oder einen fehlenden Datenträger
};

// cmdOk, Schritt 1: ein leerer Ordner meldet sich; false heißt, der Dialog bleibt offen.
bool ZielordnerPrüfen(Kartei& k, const std::string& ordner);

// cmdOk ab Schritt 2 für einträge in ihrer Reihenfolge: merkt Ordner und Modus in den
// Einstellungen, verschiebt (modus 1) oder kopiert jede Datei nach ordner und führt beim
// Verschieben den Index nach (Pfad, Datenträger, Frage nach dem alten Ordner). Jeder fertige
// Eintrag bleibt, auch wenn später abgebrochen wird. Danach eine neue Suche.
KopierenErgebnis DateienKopieren(Kartei& k, const std::vector<int32_t>& einträge, std::string ordner, int16_t modus);

// cmdVorschlagen: der eigene Ordner des Eintrags erste, dann jeder Ordner des Index, dessen Pfad
// einen Begriff enthält (Interpret und Album des ID3v1-Tags, ohne Tag die Wörter des Pfades), in
// der Reihenfolge des ersten Vorkommens und je einmal. Nie leer für einen gültigen Eintrag.
std::vector<std::string> ZielordnerVorschlagen(const Kartei& k, int32_t erste);
