#pragma once
// Die Regeln von frmOptionen: Vorbelegen, Prüfen, Übernehmen, Neu-Einlesen nach neuen
// Lese-Schaltern und Zurücksetzen. Das Fenster zeigt nur an und reicht die Eingaben weiter.
#include "settings/Einstellungen.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

struct Kartei;

// Was der Dialog hält: eine Arbeitskopie der Einstellungen (Haken, Listen, Farben der Muster)
// und die Felder, die erst beim Übernehmen geprüft werden.
struct OptionenEingabe {
    Einstellungen E;
    std::string txtID3v2Reserve;  // TAGsProzentHinzufügen
    std::string txtID3v2Suchen;   // TAGsBytesSuchen
    bool chkRegelmäßigSpeichern = false;
    std::string txtRegelmäßigSpeichern;
    bool chkID3auslesenV1 = false, chkID3auslesenV2 = false, chkID3auslesenHeader = false;
    // Die Werte ohne eigene Seite: Name und Text, in der Reihenfolge der Tabelle.
    std::vector<std::pair<std::string, std::string>> weitere;
};

// Die Eingaben aus dem Stand von k.
OptionenEingabe OptionenEinsetzen(const Kartei& k);

// Werte, die eine Seite des Dialogs zeigt (oder frmIndexÖffnen bzw. frmIndexOptionen); alle
// übrigen stehen auf der Seite der weiteren Werte. Die Zustände der AutoTag-Listen gehören zu
// ihren Listen und erscheinen nirgends.
bool EinstellungAufEigenerSeite(const std::string& name);

// Leer, wenn alles passt; sonst die Meldungen (Information), die der Reihe nach kommen.
std::vector<std::string> OptionenPrüfen(const OptionenEingabe& e);

// Angehakt und eine Zahl ab 1: die Zahl; sonst 0 (aus).
int32_t RegelmäßigSpeichernWert(bool angehakt, const std::string& text);
// Haken "Tipps beim Start": an behält den aktuellen Tipp (oder fängt bei 1 an), aus ist 0.
int16_t TippsWertAusHaken(int16_t aktuell, bool an);
// "101" aus den drei Haken.
std::string LeseSchalterText(bool v1, bool v2, bool kopf);
// Ist ein Schalter von aus auf an gegangen? Jedes Zeichen zählt als Zahl, ein fehlendes als 0.
bool LeseSchalterNeuAn(const std::string& alt, const std::string& neu);

// cmdOk: prüfen (bei einem Fehler die Meldung und false: der Dialog bleibt), alles übernehmen;
// bei neu eingeschalteten Lese-Schaltern fragen und auf Ja alle Einträge neu lesen. Zuletzt die
// Statuszeile. Das Fenster wendet danach die Farben an und frischt die Liste auf.
bool OptionenÜbernehmen(Kartei& k, const OptionenEingabe& e);

// Jeden Eintrag mit den Schaltern von Mp3TagLesen neu lesen, mit Fortschritt "Lese Dateien".
// Nicht erreichbare Dateien werden übersprungen (ihr Datensatz bleibt); ein Abbruch behält, was
// schon gelesen ist. false nach einem Abbruch.
bool AlleDateienNeuEinlesen(Kartei& k);

// cmdRücksetzen: fragen, auf Ja alle Einstellungen auf ihre Vorgaben (der Index bleibt offen).
// true, wenn zurückgesetzt wurde; der Dialog füllt sich dann neu.
bool OptionenZurücksetzen(Kartei& k);
