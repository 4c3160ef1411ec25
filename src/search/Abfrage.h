#pragma once
// Eine Suche von außen (Kommandozeile): ein Feld und ein Text, auf Wunsch verneint, oder mehrere
// Abfragezeilen. Eingerichtet wird sie so, wie das Fenster den Suchzustand hinterlässt; die
// gewählten Einträge sind dann die Ergebnisliste in ihrer Reihenfolge.
#include "search/Suchbegriffe.h"

#include <cstdint>
#include <string>
#include <vector>

struct Kartei;

struct SuchAbfrage {
    std::string feld = Standardsuche;
    bool nicht = false;  // DARF NICHT (Bedingung "11") statt MUSS
    std::string text;
    std::vector<std::string> zeilen;  // "FELD:BEDINGUNG:TEXT"; sonst gelten feld, nicht, text
};

// "FELD:BEDINGUNG:TEXT" zerlegen; der Text darf selbst ":" enthalten (Dauer "3:25"). false, wenn
// das Feld leer ist oder die Bedingung nicht aus zwei Ziffern besteht.
bool AbfrageZeileLesen(const std::string& zeile, std::string& feld, std::string& bedingung, std::string& text);
// Leer, wenn die Suche das Feld anbietet; sonst der Grund.
std::string AbfrageFeldFehler(const SuchAbfrage& a);
// Leer, wenn jede Zeile die Form FELD:BEDINGUNG:TEXT hat; sonst der Grund für die erste andere.
std::string AbfrageZeilenFehler(const SuchAbfrage& a);

// Die Abfrage in den Suchzustand (Felder und Zeilen geprüft), dann ein Suchlauf wie tmrListe:
// danach steht das Ergebnis in k.Liste.lstSongs.
void AbfrageSuchen(Kartei& k, const SuchAbfrage& a);

// Welche Einträge ein Befehl bearbeitet: genannte Nummern, oder eine Suche, oder alle.
struct EintragsAuswahl {
    std::vector<int32_t> einträge;  // in der genannten Reihenfolge
    bool mitSuche = false;
    SuchAbfrage suche;
};

// Die gewählten Einträge: genannte Nummern in ihrer Reihenfolge (doppelte einmal), die
// Ergebnisliste der Suche in ihrer Reihenfolge, oder ohne beides alle Einträge 1..DateiAnzahl.
// false, wenn eine Nummer nicht im Index steht: fehler nennt sie, gewählt bleibt leer.
bool EinträgeWählen(Kartei& k, const EintragsAuswahl& a, std::vector<int32_t>& gewählt, std::string& fehler);
