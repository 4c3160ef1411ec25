#pragma once
// frmMp3TagAutoTagWählen als Daten: die Liste der AutoTag-Formate mit der Wahl, die
// Ausschlussliste und die beiden Schalter. Der Dialog arbeitet auf einer Kopie; erst OK
// übernimmt sie in die Einstellungen.
#include <cstdint>
#include <string>
#include <vector>

struct Kartei;

struct AutoTagWahl {
    std::vector<std::string> formate;
    int32_t gewählt = -1;  // Zeile in formate (ab 0), -1 = keine
    std::vector<std::string> ausschluss;
    bool unterstrichEntfernen = false;
    bool felderLöschen = false;
};

// Aus den Einstellungen; gewählt ist die Zeile von AutoTagAktuell (sonst keine).
AutoTagWahl AutoTagWahlLaden(const Kartei& k);
// In die Einstellungen: beide Listen mit ihrem Zustand (leer: 1), die Wahl als AutoTagAktuell.
void AutoTagWahlÜbernehmen(Kartei& k, const AutoTagWahl& w);

// Ein Format (getrimmt) anhängen und wählen; ein schon vorhandenes wird nur gewählt. false mit
// der Meldung von AutoTag, wenn es sich nicht anwenden ließe.
bool AutoTagFormatHinzufügen(Kartei& k, AutoTagWahl& w, const std::string& format);
// Das gewählte Format ersetzen; geprüft wie beim Hinzufügen. false ohne Wahl.
bool AutoTagFormatÄndern(Kartei& k, AutoTagWahl& w, const std::string& format);
// Das gewählte Format entfernen; gewählt ist danach die Zeile an seiner Stelle (oder die letzte).
bool AutoTagFormatEntfernen(AutoTagWahl& w);

// Ein Wort (getrimmt) in die Ausschlussliste; leer oder schon enthalten (Groß/Klein egal): false.
bool AutoTagAusschlussHinzufügen(AutoTagWahl& w, const std::string& wort);
bool AutoTagAusschlussEntfernen(AutoTagWahl& w, int32_t zeile);
