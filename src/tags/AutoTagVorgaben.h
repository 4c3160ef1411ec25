#pragma once
// Die mitgelieferten AutoTag-Formate. Sie gelten, solange der Benutzer die Liste nie
// gespeichert hat oder die Einstellungen zurücksetzt.
#include "app/EinsBasiert.h"

#include <cstdint>
#include <string>

inline constexpr int32_t AutoTagVorgabeAnzahl = 23;

// Die Vorgabe-Formate ab 1, in der Reihenfolge der Auswahlliste. Die ausdrücklichen Formate
// beginnen mit "/", weil sie gegen volle Pfade geprüft werden; "%Automatik%" rät selbst.
EinsBasiert<std::string> AutoTagVorgabeFormate();
