#pragma once
// Ein echter Audacious ohne Oberfläche auf dem (privaten) Sitzungsbus des Testprogramms: eigenes
// HOME und XDG-Ordner, SDL-Ausgabe ins Leere, damit die Wiedergabe ohne Soundkarte in Echtzeit läuft.
#include <QProcess>

#include <functional>
#include <string>

class AudaciousSitzung {
public:
    ~AudaciousSitzung();
    // Richtet das Profil unter ordner ein und startet den Spieler. false: grund sagt, warum nicht
    // (kein Audacious, kein Bus, Start misslungen).
    bool Starten(const std::string& ordner, std::string& grund);
    void Beenden();
    // Eine Methode von org.atheme.audacious rufen; das erste Ergebnis (oder ungültig).
    static QVariant Audacious(const char* methode, const QVariantList& argumente = {});

private:
    bool Laufen(std::string& grund);
    QProcess prozess_;
};

// Wartet (mit Ereignissen) bis bedingung wahr ist, höchstens ms Millisekunden.
bool WartenBis(const std::function<bool()>& bedingung, int ms);
