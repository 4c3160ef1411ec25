#pragma once
// Die Meldung, wenn das Programm beim Start scheitert (ein Fehler, der bis zum Start durchschlägt).
#include <cstdint>
#include <string>

// Fehlernummern wie beim Start gemeldet: 7 kein Speicher mehr, 339 ein Bestandteil fehlt,
// 5 alles andere.
namespace StartFehler {
constexpr int32_t Allgemein = 5, KeinSpeicher = 7, BestandteilFehlt = 339;
}

// "Das Programm konnte nicht vollständig geladen werden. (Fehler N). …"
std::string StartFehlerText(int32_t nummer);
