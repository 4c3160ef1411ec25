#pragma once
// Liest eine Datei in großen Blöcken und gibt sie Zeile für Zeile als Ansicht in den Puffer
// heraus. Eine Zeile gilt bis zum nächsten Aufruf. Zeilen, die länger als ein Block sind, lassen
// den Puffer wachsen. Lesefehler gelten als Dateiende.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

class BlockLeser {
public:
    explicit BlockLeser(size_t blockGröße = size_t(8) << 20) : blockGröße_(blockGröße) {}
    ~BlockLeser();
    BlockLeser(const BlockLeser&) = delete;
    BlockLeser& operator=(const BlockLeser&) = delete;

    // false: die Datei lässt sich nicht öffnen (dann liefert sie auch keine Zeilen).
    bool Öffnen(const std::string& pfad);
    int64_t Länge() const { return länge_; }                        // Größe beim Öffnen
    int64_t Position() const { return basis_ + int64_t(anfang_); }  // hinter der letzten Zeile

    // Zeile bis CR LF, ohne das Zeilenende. Ein letztes Stück ohne Zeilenende zählt, wenn es
    // nicht leer ist. false am Ende.
    bool ZeileCrLf(std::string_view& zeile);
    // Zeile bis CR, LF oder CR LF (wie eine Zeile einer einfachen Textliste).
    bool ZeileEinfach(std::string_view& zeile);

private:
    bool Nachladen();

    size_t blockGröße_;
    int fd_ = -1;
    int64_t länge_ = 0;
    std::string puffer_;
    size_t anfang_ = 0, ende_ = 0;  // ungelesener Teil des Puffers
    int64_t basis_ = 0;             // Dateiposition von puffer_[0]
    bool dateiEnde_ = false;
};
