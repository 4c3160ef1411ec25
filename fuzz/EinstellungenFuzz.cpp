// Fuzz-Ziel: die Einstellungsdatei, gelesen vom Speicher der Plattform und ausgewertet vom Kern.
#include "platform/KonfigRegistrierung.h"
#include "settings/EinstellungenSpeicher.h"
#include "FuzzUmgebung.h"

namespace {
// Liest über den echten Speicher, schreibt aber nie und fragt nicht nach dem Standardspieler
// (das startete bei jedem Lauf ein Programm).
class NurLesen final : public Registrierung {
public:
    explicit NurLesen(KonfigRegistrierung& r) : r_(r) {}
    bool SchlüsselÖffnen() override { return r_.SchlüsselÖffnen(); }
    bool SchlüsselAnlegen() override { return false; }
    std::optional<RegistrierungsWert> WertLesen(const std::string& name) override { return r_.WertLesen(name); }
    bool TextSetzen(const std::string&, const std::string&) override { return false; }
    bool ZahlSetzen(const std::string&, int32_t) override { return false; }
    bool WertLöschen(const std::string&) override { return false; }
    std::string StandardAudioBefehl() override { return {}; }
    std::string LeseHinweis() override { return r_.LeseHinweis(); }

private:
    KonfigRegistrierung& r_;
};
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* daten, size_t größe) {
    static SpeicherDatei datei;
    if (!datei.Füllen({reinterpret_cast<const char*>(daten), größe})) return 0;
    KonfigRegistrierung registrierung(datei.Pfad());
    NurLesen nurLesen(registrierung);
    FuzzKartei fk(&nurLesen);
    EinstellungenLesen(fk.k());
    return 0;
}
