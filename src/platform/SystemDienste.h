#pragma once
// Uhr, Zufall und Spielerfenster-Ersatz des laufenden Programms.
#include "app/Dienste.h"

#include <random>

class SystemUhr final : public Uhr {
public:
    Datum Jetzt() override;
    int64_t Millisekunden() override;
};

class SystemZufall final : public Zufall {
public:
    SystemZufall();
    double Nächste() override;

private:
    std::mt19937_64 gen_;
};

// Solange kein Spieler angebunden ist: kein Fenster, wie ein nicht laufender Spieler.
class KeinSpielerfenster final : public Spielerfenster {
public:
    int64_t FensterFinden(const std::string&) override { return 0; }
    int32_t NachrichtSenden(int64_t, uint32_t, int32_t, int32_t) override { return 0; }
    std::string FensterText(int64_t) override { return {}; }
};
