#pragma once
// Der Inhalt eines ID3v2-Rahmens als Text des Programms (UTF-8), und der Rückweg.
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

enum class RahmenArt { Text, Wxxx, Kommentar };

// Kodierungsbyte (0 ISO-8859-1/Windows-1252, 1 UTF-16 mit BOM, 2 UTF-16BE, 3 UTF-8) abtrennen,
// nach UTF-8 wandeln und wie jedes Tag-Feld bereinigen. größe ist die Rahmengröße aus dem Kopf.
// Text: ein Sprachfeld mit leerer Beschreibung fällt weg. Wxxx: die Adresse hinter der
// Beschreibung steht immer in ISO-8859-1. Kommentar (COMM, COM): Sprache und Beschreibung
// werden abgetrennt, es bleibt der Text.
std::string RahmenTextLesen(std::string_view inhalt, int32_t größe, RahmenArt art);

// Ein Kommentar-Rahmen in seinen Teilen, Beschreibung und Text noch in ihrer Kodierung.
struct KommentarTeile {
    int kodierung = 0;
    std::string sprache;
    std::string_view beschreibung;
    std::string_view text;
};
// Zerlegt den Inhalt (Kodierungsbyte, 3 Bytes Sprache, Beschreibung mit Ende, Text); nullopt,
// wenn er so nicht gebaut ist.
std::optional<KommentarTeile> KommentarZerlegen(std::string_view inhalt);
// Text in einer Kodierung (0, 1 mit BOM, 2, 3) nach UTF-8.
std::string KodiertZuUtf8(std::string_view bytes, int kodierung);

// Kodierung für neue Rahmen: 0 (Windows-1252), wenn alle Texte hineinpassen, sonst 1.
int KodierungWählen(std::string_view a, std::string_view b = {});
// UTF-8 in Kodierung 0 oder 1 (UTF-16 mit BOM); mitEnde hängt das Ende-Zeichen an.
std::string TextKodieren(std::string_view text, int kodierung, bool mitEnde);
