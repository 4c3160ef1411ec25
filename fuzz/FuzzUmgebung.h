#pragma once
// Gemeinsames der Fuzz-Ziele: stille Dienste um eine Kartei und ein Speicherplatz für Eingaben,
// die der Kern nur über einen Pfad lesen kann.
#include "app/Dienste.h"
#include "app/Kartei.h"
#include "app/Oberflaeche.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

// Jede Frage wird verneint oder abgebrochen, jede Meldung geschluckt; nichts verlässt den Prozess.
class StilleOberfläche final : public Oberfläche {
public:
    int MeldungZeigen(const std::string&, int schalter) override;
    void TitelNachrichtZeigen(const std::string&, int32_t) override {}
    void EreignisseVerarbeiten() override {}
    void FortschrittDarstellen(const FortschrittAnsicht&) override {}
    NichtVerfügbarAntwort DateiNichtVerfügbar(const std::string&, const std::string&,
                                              const std::function<bool()>&) override {
        return NichtVerfügbarAntwort::AlleÜberspringen;
    }
    bool NamenEingeben(const std::string&, const std::string&, std::string&, int32_t, int32_t) override {
        return false;
    }
    bool OrdnerWählen(const std::string&, std::string&) override { return false; }
    bool DateienWählen(const std::string&, const std::string&, std::vector<std::string>&) override { return false; }
    int16_t VerschiebenDateiExistiert(const std::string&) override { return 3; }  // abbrechen
    void BildAnzeigen(const std::string&) override {}
    bool AusführenMitWählen(std::string&, const std::function<bool(const std::string&)>&) override { return false; }
};

// Die Dienste und eine frische Kartei darüber. Die Registrierung darf ein Ziel selbst stellen.
class FuzzKartei {
public:
    explicit FuzzKartei(Registrierung* registrierung = nullptr);
    ~FuzzKartei();
    Kartei& k() { return *kartei_; }

private:
    struct Dienstteile;
    std::unique_ptr<Dienstteile> teile_;
    std::unique_ptr<Kartei> kartei_;
};

// Eine Datei im Speicher (memfd): Pfad() öffnet sie wie eine gewöhnliche Datei.
class SpeicherDatei {
public:
    SpeicherDatei();
    ~SpeicherDatei();
    SpeicherDatei(const SpeicherDatei&) = delete;
    SpeicherDatei& operator=(const SpeicherDatei&) = delete;
    // Ersetzt den Inhalt; false, wenn das Schreiben scheiterte (dann gilt die Eingabe nicht).
    bool Füllen(std::string_view inhalt);
    const std::string& Pfad() const { return pfad_; }

private:
    int fd_ = -1;
    std::string pfad_;
};

// Teilt die Eingabe am ersten Nullbyte: vorn ein Text, hinten der Rest (leer ohne Nullbyte).
std::pair<std::string_view, std::string_view> AmNullbyteTeilen(const uint8_t* daten, size_t größe);
