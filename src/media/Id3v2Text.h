#pragma once
// Der Inhalt eines ID3v2-Rahmens als Text des Programms (UTF-8).
#include <cstdint>
#include <string>
#include <string_view>

// Kodierungsbyte (0 ISO-8859-1/Windows-1252, 1 UTF-16 mit BOM, 2 UTF-16BE, 3 UTF-8) abtrennen,
// ein Sprachfeld mit leerer Beschreibung entfernen, nach UTF-8 wandeln und wie jedes Tag-Feld
// bereinigen. größe ist die Rahmengröße aus dem Kopf; istWxxx: die Adresse hinter der
// Beschreibung steht immer in ISO-8859-1.
std::string RahmenTextLesen(std::string_view inhalt, int32_t größe, bool istWxxx);
