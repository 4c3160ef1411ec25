#pragma once
// Welcher Eintrag spielt gerade? Der Titel des Spielers wird nach 30 Sekunden mit dem Index
// verglichen, und jeder passende Eintrag zählt einmal als gespielt.
#include "app/Datum.h"

#include <cstdint>
#include <string>

struct Kartei;

// Titel: wie WinampFensterTitel ihn liefert; Jetzt: der Augenblick des Takts. false nur bei
// einem Fehler (den es hier nicht gibt); ob erkannt wurde, steht in k.Spieler.TitelErkannt.
bool WinampDateiErkennen(Kartei& k, const std::string& Titel, const Datum& Jetzt);

// Zählt ein Abspielen: Datum (Jetzt) und Anzahl + 1; der Index ist danach geändert.
void AbspielenZählen(Kartei& k, int32_t nummer, const Datum& Jetzt);
