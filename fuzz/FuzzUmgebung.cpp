// Stille Dienste und Speicherdateien für die Fuzz-Ziele.
#include "FuzzUmgebung.h"

#include <cstdlib>
#include <sys/mman.h>
#include <unistd.h>

int StilleOberfläche::MeldungZeigen(const std::string&, int schalter) {
    if (schalter == Meldung::JaNeinAbbrechen) return Meldung::Abbrechen;
    if (schalter == Meldung::JaNeinFrage || schalter == Meldung::JaNeinAusruf || schalter == Meldung::JaNeinStopp)
        return Meldung::Nein;
    return Meldung::Ok;
}

namespace {
class LeereRegistrierung final : public Registrierung {
public:
    bool SchlüsselÖffnen() override { return false; }
    bool SchlüsselAnlegen() override { return false; }
    std::optional<RegistrierungsWert> WertLesen(const std::string&) override { return std::nullopt; }
    bool TextSetzen(const std::string&, const std::string&) override { return false; }
    bool ZahlSetzen(const std::string&, int32_t) override { return false; }
    bool WertLöschen(const std::string&) override { return false; }
    std::string StandardAudioBefehl() override { return {}; }
};
class OhneSpieler final : public Spielerfenster {
public:
    int64_t FensterFinden(const std::string&) override { return 0; }
    int32_t NachrichtSenden(int64_t, uint32_t, int32_t, int32_t) override { return 0; }
    std::string FensterText(int64_t) override { return {}; }
};
// Startet und öffnet nichts: ein Fuzz-Lauf darf keine Programme starten.
class OhneShell final : public Shell {
public:
    bool Öffnen(const std::string&) override { return false; }
    int64_t ProgrammStarten(const std::string&, const std::vector<std::string>&, bool) override { return 0; }
    bool InPapierkorb(const std::string&, std::string& fehler) override {
        fehler = "nicht im Fuzz-Lauf";
        return false;
    }
    bool InZwischenablage(const std::string&) override { return false; }
};
class FesterDatenträger final : public Datenträger {
public:
    std::string Wurzel(const std::string&) override { return "/"; }
    bool IstWechselmedium(const std::string&) override { return false; }
    std::string Bezeichnung(const std::string&) override { return {}; }
};
class FesteUhr final : public Uhr {
public:
    Datum Jetzt() override { return Datum{2001, 11, 16, 20, 15, 0}; }
    int64_t Millisekunden() override { return ms += 1000; }  // Warteschleifen enden sofort
    int64_t ms = 0;
};
class FesterZufall final : public Zufall {
public:
    double Nächste() override { return 0.5; }
};
}  // namespace

struct FuzzKartei::Dienstteile {
    StilleOberfläche ui;
    LeereRegistrierung registrierung;
    OhneSpieler spieler;
    OhneShell shell;
    FesterDatenträger datenträger;
    FesteUhr uhr;
    FesterZufall zufall;
};

FuzzKartei::FuzzKartei(Registrierung* registrierung) : teile_(std::make_unique<Dienstteile>()) {
    Dienstteile& t = *teile_;
    Registrierung& r = registrierung ? *registrierung : t.registrierung;
    kartei_ = std::make_unique<Kartei>(Dienste{t.ui, r, t.spieler, t.shell, t.datenträger, t.uhr, t.zufall});
}

// Die Texte eines Laufs brauchen danach niemanden mehr; ohne Freigeben wüchse der Textspeicher
// über Millionen Läufe.
FuzzKartei::~FuzzKartei() {
    kartei_.reset();
    teile_.reset();
    KTextSpeicherZurücksetzen();
}

SpeicherDatei::SpeicherDatei() {
    fd_ = ::memfd_create("kk-fuzz", MFD_CLOEXEC);
    if (fd_ < 0) std::abort();  // ohne Speicherdatei kann kein Ziel laufen
    pfad_ = "/proc/self/fd/" + std::to_string(fd_);
}

SpeicherDatei::~SpeicherDatei() { ::close(fd_); }

bool SpeicherDatei::Füllen(std::string_view inhalt) {
    if (::ftruncate(fd_, 0) != 0) return false;
    size_t geschrieben = 0;
    while (geschrieben < inhalt.size()) {
        const ssize_t n = ::pwrite(fd_, inhalt.data() + geschrieben, inhalt.size() - geschrieben, off_t(geschrieben));
        if (n <= 0) return false;
        geschrieben += size_t(n);
    }
    return true;
}

std::pair<std::string_view, std::string_view> AmNullbyteTeilen(const uint8_t* daten, size_t größe) {
    const std::string_view alles(reinterpret_cast<const char*>(daten), größe);
    const size_t null = alles.find('\0');
    if (null == std::string_view::npos) return {alles, {}};
    return {alles.substr(0, null), alles.substr(null + 1)};
}
