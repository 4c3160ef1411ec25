#pragma once
// Gemeinsames der Befehle, die einen Index brauchen: laden und Werte ausgeben.
#include "cli/CliKontext.h"

#include <string>
#include <string_view>

// Lädt --index oder den Standard-Index (sein Ordner wird bei Bedarf angelegt). Meldungen und
// Fragen gehen nach stderr. false: nicht geladen, der Grund steht schon auf stderr.
bool IndexFürBefehlLaden(CliKontext& c);

// Wert für eine Zeile "Name=Wert": Zeichen unter 32 und "\" als \xNN, alles andere unverändert.
std::string AusgabeText(std::string_view text);

// Eine Eintragsnummer aus einem Argument; false bei Unsinn.
bool NummerLesen(const std::string& text, int32_t& nummer);
