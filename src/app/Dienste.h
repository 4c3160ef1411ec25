#pragma once
// Die Schnittstellen des Kerns zur Außenwelt (außer der Oberfläche): Einstellungsspeicher,
// Spielerfenster, Shell, Datenträger, Uhr und Zufall. Linux-Umsetzungen in src/platform,
// Attrappen für Tests in tests/support.
#include "app/Datum.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// Die vier Grundoperationen des Einstellungsspeichers: getypte Werte (Text oder 32-Bit-Zahl).
struct RegistrierungsWert {
    bool istZahl = false;
    std::string text;
    int32_t zahl = 0;
};
class Registrierung {
public:
    virtual ~Registrierung() = default;
    virtual bool SchlüsselÖffnen() = 0;  // lässt sich der Speicher öffnen?
    // Legt den Speicher an, wenn er fehlt (RegCreateKeyA); true, wenn er danach da ist.
    virtual bool SchlüsselAnlegen() = 0;
    virtual std::optional<RegistrierungsWert> WertLesen(const std::string& name) = 0;
    virtual bool TextSetzen(const std::string& name, const std::string& wert) = 0;
    virtual bool ZahlSetzen(const std::string& name, int32_t wert) = 0;
    virtual bool WertLöschen(const std::string& name) = 0;
    // Schreibt gepufferte Änderungen (RegCloseKey); Standard: nichts zu tun.
    virtual bool Schließen() { return true; }
    // Ein deutscher Hinweis, wenn der Speicher nicht gelesen werden konnte (es gelten dann die
    // Vorgaben); sonst leer.
    virtual std::string LeseHinweis() { return {}; }
    // Befehl der Standardanwendung des Desktops für audio/mpeg (an Stelle der Dateizuordnung
    // Winamp.File), Feldcodes wie %U schon entfernt; "" wenn es keine gibt.
    virtual std::string StandardAudioBefehl() = 0;
};

// Das Fenster des Spielers, der einzige Draht zu ihm.
class Spielerfenster {
public:
    virtual ~Spielerfenster() = default;
    // FindWindowA(klasse): ein Griff, 0 = keiner.
    virtual int64_t FensterFinden(const std::string& klasse) = 0;
    // SendMessageA mit den Nummern der Nachrichtentabelle; 32-Bit-Ergebnis.
    virtual int32_t NachrichtSenden(int64_t fenster, uint32_t nachricht, int32_t wParam, int32_t lParam) = 0;
    virtual std::string FensterText(int64_t fenster) = 0;
};

class Shell {
public:
    virtual ~Shell() = default;
    // Datei oder Adresse mit ihrem Standardprogramm öffnen.
    virtual bool Öffnen(const std::string& dateiOderAdresse) = 0;
    // Programm starten; Prozessnummer, 0 bei Fehlschlag.
    virtual int64_t ProgrammStarten(const std::string& programm, const std::vector<std::string>& argumente,
                                    bool mitFokus) = 0;
    // In den Papierkorb; fehler nennt den Grund.
    virtual bool InPapierkorb(const std::string& pfad, std::string& fehler) = 0;
    virtual bool InZwischenablage(const std::string& text) = 0;
};

class Datenträger {
public:
    virtual ~Datenträger() = default;
    // Wurzel des Pfades (Einhängepunkt oder ausgehängte Wurzel unter /media, /run/media, /mnt).
    virtual std::string Wurzel(const std::string& pfad) = 0;
    virtual bool IstWechselmedium(const std::string& wurzel) = 0;
    virtual std::string Bezeichnung(const std::string& wurzel) = 0;
};

class Uhr {
public:
    virtual ~Uhr() = default;
    virtual Datum Jetzt() = 0;  // Ortszeit
    // Millisekunden seit beliebigem Start (für Wartezeiten).
    virtual int64_t Millisekunden() = 0;
};

class Zufall {
public:
    virtual ~Zufall() = default;
    virtual double Nächste() = 0;  // [0, 1), wie Rnd
};
