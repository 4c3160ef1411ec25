#pragma once
// Die Abfragezeilen: Feld, Suchtext und Bedingung je Zeile, alle Zeilen mit UND verknüpft.
#include "app/EinsBasiert.h"

#include <cstdint>
#include <string>
#include <vector>

struct SuchZustand;

// Die Felder, die die Suche anbietet, in der Reihenfolge von cboSuche.
const std::vector<std::string>& SuchFelderListe();
inline constexpr const char* Standardsuche = "(Standardsuche)";
inline constexpr const char* MehrereAbfragenText = "(Mehrere Such-Abfragen)";

// Zahl 0, jedes Feld ein leeres Element.
bool SuchbegriffeZurücksetzen(int32_t& SuchAnzahl, EinsBasiert<std::string>& SuchFelder,
                              EinsBasiert<std::string>& SuchBegriffe, EinsBasiert<std::string>& SuchBedingungen);
// Eine Zeile hinten anfügen.
bool SuchbegriffeHinzufügen(int32_t& SuchAnzahl, EinsBasiert<std::string>& SuchFelder,
                            EinsBasiert<std::string>& SuchBegriffe, EinsBasiert<std::string>& SuchBedingungen,
                            const std::string& Begriff, const std::string& Feld, const std::string& Bedingung);
// Zeile Nummer überschreiben; false, wenn es sie nicht gibt.
bool SuchbegriffeÄndern(EinsBasiert<std::string>& SuchFelder, EinsBasiert<std::string>& SuchBegriffe,
                        EinsBasiert<std::string>& SuchBedingungen, int32_t Nummer, const std::string& Begriff,
                        const std::string& Feld, const std::string& Bedingung);
// Zeile Nummer entfernen, die folgenden rücken auf; false, wenn es sie nicht gibt.
bool SuchbegriffeLöschen(int32_t& SuchAnzahl, EinsBasiert<std::string>& SuchFelder,
                         EinsBasiert<std::string>& SuchBegriffe, EinsBasiert<std::string>& SuchBedingungen,
                         int32_t Nummer);

// Dasselbe über dem Suchzustand.
bool SuchbegriffeZurücksetzen(SuchZustand& s);
bool SuchbegriffeHinzufügen(SuchZustand& s, const std::string& Begriff, const std::string& Feld,
                            const std::string& Bedingung);
bool SuchbegriffeÄndern(SuchZustand& s, int32_t Nummer, const std::string& Begriff, const std::string& Feld,
                        const std::string& Bedingung);
bool SuchbegriffeLöschen(SuchZustand& s, int32_t Nummer);

// Text einer Zeile in lstSucheAuflistung: "Suche nach '…' im Feld '…'".
std::string SuchZeileText(const SuchZustand& s, int32_t Nummer);
// Bedingung aus der Wahl von cboSucheMussDarfNicht (0 MUSS, 1 DARF NICHT): die Ziffer zweimal.
std::string SuchBedingungAusWahl(int32_t mussDarfNicht);
