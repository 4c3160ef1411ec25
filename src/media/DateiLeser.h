#pragma once
// Liest eine Mediendatei blockweise: der Dateianfang wird einmal gepuffert und bei Bedarf
// verlängert, andere Stellen kommen in einem Zug. So sehen Kopf-Suche, ID3v2-Suche und ID3v1
// dieselben Bytes, ohne dass eine Datei Byte für Byte gelesen wird.
#include <cstdint>
#include <ctime>
#include <string>
#include <string_view>

class DateiLeser {
public:
    // Öffnet nur gewöhnliche Dateien (Ordner, Geräte und FIFOs gelten als nicht vorhanden).
    explicit DateiLeser(const std::string& pfad);
    ~DateiLeser();
    DateiLeser(const DateiLeser&) = delete;
    DateiLeser& operator=(const DateiLeser&) = delete;

    bool Offen() const { return fd_ >= 0; }
    // Länge in Bytes; -1, wenn die Datei nicht offen ist.
    int64_t Länge() const { return länge_; }
    // Zeitstempel der letzten Änderung (Sekunden seit 1970); nur gültig, wenn Offen().
    std::time_t Änderungszeit() const { return änderung_; }

    // Die ersten n Bytes (weniger am Dateiende oder bei einem Lesefehler). Die Ansicht gilt
    // bis zum nächsten Aufruf von Anfang().
    std::string_view Anfang(int64_t n);
    // Bis zu n Bytes ab dem 0-basierten versatz. Die Ansicht gilt bis zum nächsten Aufruf.
    std::string_view Stück(int64_t versatz, int64_t n);
    // Dasselbe als eigener Text: ein großer Block wird so nur einmal kopiert.
    std::string StückKopie(int64_t versatz, int64_t n);

private:
    int fd_ = -1;
    int64_t länge_ = -1;
    std::time_t änderung_ = 0;
    std::string anfang_;  // gepufferter Dateianfang
    bool anfangFehler_ = false;
    std::string stück_;  // zuletzt gelesenes Stück außerhalb des Anfangs
};
