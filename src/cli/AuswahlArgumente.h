#pragma once
// Die Schalter, mit denen jeder Befehl seine Einträge wählt, und die Such-Schalter von search.
// Hier wird nur gelesen; suchen und wählen tut der Kern (EinträgeWählen).
#include "search/Abfrage.h"

#include <cstddef>
#include <string>
#include <vector>

struct CliKontext;

// Gebrauch der Auswahl für Aufruf- und Hilfetexte.
inline constexpr const char* AuswahlAufruf =
    "[--entry N]... | [--search TEXT [--field FELD] [--not]] | [--row FELD:BEDINGUNG:TEXT]...";

// Such-Schalter, wie search sie nimmt, und was davon genannt war.
struct SuchArgumente {
    SuchAbfrage abfrage;
    bool feldGesetzt = false, mitText = false;
};

// Liest an argumente[i] einen Such-Schalter (--field FELD, --not, --row ZEILE) und rückt i hinter
// seinen Wert. 1: gelesen, 0: kein Such-Schalter, -1: falsch (fehler nennt den Grund).
int SuchSchalterLesen(const std::vector<std::string>& argumente, size_t& i, SuchArgumente& s, std::string& fehler);
// Nach dem Lesen: passen die Schalter zusammen und kennt die Suche das Feld? Leer: ja.
std::string SuchArgumentePrüfen(const SuchArgumente& s);

// Liest --entry N (mehrfach) oder eine Suche (--search TEXT mit --field, --not, oder --row
// mehrfach); nichts davon heißt alle Einträge. Alle übrigen Argumente kommen in ihrer
// Reihenfolge nach rest. Leer: in Ordnung; sonst der Grund für einen Gebrauchsfehler.
std::string AuswahlLesen(const std::vector<std::string>& argumente, EintragsAuswahl& auswahl,
                         std::vector<std::string>& rest);

// EinträgeWählen im geladenen Index; eine Nummer außerhalb meldet sich auf stderr (dann false).
bool AuswahlAnwenden(CliKontext& c, const EintragsAuswahl& auswahl, std::vector<int32_t>& gewählt);
