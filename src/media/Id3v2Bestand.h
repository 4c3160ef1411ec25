#pragma once
// Was ein alter ID3v2-Tag wirklich umfasst, für Schreiben und Entfernen: seine Ausdehnung nach
// der Norm seiner Version, begrenzt durch die Dateilänge und den ersten MPEG-Frame, und seine
// Rahmen in der Form von Version 2.3. Der Leser für die Anzeige bleibt davon unberührt.
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

class DateiLeser;

struct BestandRahmen {
    std::string id;          // Kennung in Version 2.3
    std::string_view bytes;  // der ganze Rahmen in 2.3-Form, Kopf eingeschlossen
    std::string_view Inhalt() const { return bytes.substr(10); }
};

// Die Rahmen zeigen in den Bestand selbst; darum wird er weder kopiert noch verschoben.
struct Id3v2Bestand {
    Id3v2Bestand() = default;
    Id3v2Bestand(const Id3v2Bestand&) = delete;
    Id3v2Bestand& operator=(const Id3v2Bestand&) = delete;

    bool plausibel = false;  // false: die Größe reicht über das Dateiende und kein Frame begrenzt sie
    int64_t anfang = 0;      // 0-basiert
    int64_t ende = 0;        // das erste Byte hinter dem Tag
    int major = 0;
    std::vector<BestandRahmen> rahmen;  // in Dateireihenfolge
    // Die Bytes der Datei von anfang bis ende.
    std::string_view AlteBytes() const { return std::string_view(daten).substr(0, static_cast<size_t>(ende - anfang)); }

    std::string daten;                  // gelesen ab anfang, etwas über das Ende hinaus
    std::string entsynchron;            // der Körper ohne Entsynchronisierung (2.2, 2.3)
    std::deque<std::string> umgesetzt;  // Rahmen aus 2.2 und 2.4 in 2.3-Form
};

// position: die Stelle (ab 1), an der der Leser "ID3" fand. Füllt b, das neu sein muss.
void Id3v2BestandLesen(DateiLeser& datei, int64_t position, Id3v2Bestand& b);
void Id3v2BestandLesen(const std::string& pfad, int64_t position, Id3v2Bestand& b);

// Die 2.3-Kennung zu einer Kennung aus Version 2.2; eine unbekannte wird mit "X" davor zum
// Versuchsrahmen.
std::string Kennung22Zu23(std::string_view id22);

// Text des Hinweises, wenn ein Tag keine glaubwürdige Ausdehnung hat.
extern const char* const kTagGrößeUnplausibel;
