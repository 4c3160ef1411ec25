#include "cli/CliOberflaeche.h"

#include <cstdio>
#include <unistd.h>

namespace {
// Antwort auf eine Ja/Nein-Frage ohne Person davor.
int Antwort(int schalter, bool ja) {
    using namespace Meldung;
    switch (schalter) {
    case JaNeinAusruf:
    case JaNeinFrage:
    case JaNeinFrageNein:
    case JaNeinStopp: return ja ? Ja : Nein;
    case JaNeinAbbrechen: return ja ? Ja : Abbrechen;
    default: return Ok;
    }
}
}  // namespace

int CliOberfläche::MeldungZeigen(const std::string& text, int schalter) {
    int antwort = Antwort(schalter, ja_ && !(dreiKnöpfeAbbrechen_ && schalter == Meldung::JaNeinAbbrechen));
    std::fprintf(stderr, "%s\n", text.c_str());
    if (antwort != Meldung::Ok)
        std::fprintf(stderr, "→ %s\n", antwort == Meldung::Ja ? "Ja" : antwort == Meldung::Nein ? "Nein" : "Abbrechen");
    return antwort;
}

void CliOberfläche::TitelNachrichtZeigen(const std::string& text, int32_t) { letzterTitel_ = text; }

void CliOberfläche::FortschrittDarstellen(const FortschrittAnsicht& a) {
    static const bool terminal = isatty(STDERR_FILENO) != 0;
    if (!terminal) return;
    if (!a.offen) {
        if (balkenOffen_) std::fprintf(stderr, "\r\033[K");
        balkenOffen_ = false;
        letzteBreite_ = -1;
        return;
    }
    int32_t breite = a.balkenSichtbar ? a.balkenBreite * 30 / 4500 : 0;
    if (balkenOffen_ && breite == letzteBreite_) return;  // nur zeichnen, wenn sich etwas tut
    std::string balken(static_cast<size_t>(breite), '#');
    balken.resize(30, '.');
    std::fprintf(stderr, "\r\033[K%s [%s]", a.vorgang.c_str(), balken.c_str());
    std::fflush(stderr);
    balkenOffen_ = true;
    letzteBreite_ = breite;
}

NichtVerfügbarAntwort CliOberfläche::DateiNichtVerfügbar(const std::string&, const std::string& text,
                                                         const std::function<bool()>&) {
    // Niemand kann einen Datenträger einlegen: die Datei wird übersprungen.
    std::fprintf(stderr, "%s\n→ Überspringen\n", text.c_str());
    return NichtVerfügbarAntwort::Überspringen;
}

bool CliOberfläche::NamenEingeben(const std::string&, const std::string&, std::string&, int32_t, int32_t) {
    return false;
}

bool CliOberfläche::OrdnerWählen(const std::string&, std::string&) { return false; }

bool CliOberfläche::DateienWählen(const std::string&, const std::string&, std::vector<std::string>&) { return false; }

void CliOberfläche::BildAnzeigen(const std::string& pfad) {
    if (bildÖffnen) bildÖffnen(pfad);
}

int16_t CliOberfläche::VerschiebenDateiExistiert(const std::string& text) {
    std::fprintf(stderr, "%s\n→ %s\n", text.c_str(), ja_ ? "Umbenennen" : "Abbrechen");
    return ja_ ? 1 : 3;
}
