#pragma once
// Gemeinsames der Befehle, die einen Index brauchen: laden und Werte ausgeben.
#include "cli/CliAusgabe.h"
#include "cli/CliKontext.h"

#include <string>
#include <string_view>

// Lädt --index oder den Standard-Index (sein Ordner wird bei Bedarf angelegt). Meldungen und
// Fragen gehen nach stderr. false: nicht geladen, der Grund steht schon auf stderr.
bool IndexFürBefehlLaden(CliKontext& c);

// Eine Eintragsnummer aus einem Argument; false bei Unsinn.
bool NummerLesen(const std::string& text, int32_t& nummer);
