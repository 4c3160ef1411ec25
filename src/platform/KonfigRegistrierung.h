#pragma once
// Der Einstellungsspeicher unter Linux: getypte Werte in einer Textdatei
// ($XDG_CONFIG_HOME/klangkartei/klangkartei.conf). Zeilen "Name=t:Text" oder "Name=z:Zahl",
// damit ein Text, der wie eine Zahl aussieht, ein Text bleibt. Im Text stehen "\\", "\n" und
// "\r" für Rückstrich, Zeilenumbruch und Wagenrücklauf. Kaputte Zeilen werden übergangen.
// Gelesen wird nur eine gewöhnliche Datei bis 4 MB; ein Ordner, eine FIFO, ein Gerät oder eine
// größere Datei gibt die Vorgaben und einen Hinweis, und sie wird nicht ersetzt.
// Geschrieben wird erst bei Schließen(), über eine temporäre Datei daneben (QSaveFile).
#include "app/Dienste.h"

#include <map>
#include <string>

class KonfigRegistrierung final : public Registrierung {
public:
    explicit KonfigRegistrierung(std::string dateipfad);
    ~KonfigRegistrierung() override;
    KonfigRegistrierung(const KonfigRegistrierung&) = delete;
    KonfigRegistrierung& operator=(const KonfigRegistrierung&) = delete;

    bool SchlüsselÖffnen() override;   // gibt es die Datei?
    bool SchlüsselAnlegen() override;  // Ordner anlegen; die Datei folgt beim Schließen
    std::optional<RegistrierungsWert> WertLesen(const std::string& name) override;
    bool TextSetzen(const std::string& name, const std::string& wert) override;
    bool ZahlSetzen(const std::string& name, int32_t wert) override;
    bool WertLöschen(const std::string& name) override;
    bool Schließen() override;  // schreibt geänderte Werte; false, wenn das misslang
    std::string StandardAudioBefehl() override;
    std::string LeseHinweis() override;

    const std::string& Dateipfad() const { return pfad_; }

private:
    void Laden();
    bool Setzen(const std::string& name, RegistrierungsWert wert);
    std::string pfad_;
    std::map<std::string, RegistrierungsWert> werte_;
    bool geladen_ = false;
    bool geändert_ = false;
    std::string hinweis_;  // die Datei war keine lesbare Einstellungsdatei: nichts überschreiben
};
