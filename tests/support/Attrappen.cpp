#include "support/Attrappen.h"

#include <gtest/gtest.h>

int TestOberfläche::MeldungZeigen(const std::string& text, int schalter) {
    meldungen.push_back({text, schalter});
    if (schalter == Meldung::Ausrufezeichen || schalter == Meldung::Information || schalter == 0 || schalter == 16)
        return Meldung::Ok;
    if (antworten.empty()) {
        ADD_FAILURE() << "Ungeplante Frage (" << schalter << "): " << text;
        return Meldung::Abbrechen;
    }
    int a = antworten.front();
    antworten.pop_front();
    return a;
}

void TestOberfläche::EreignisseVerarbeiten() {
    ++ereignisRunden;
    if (beiEreignissen) beiEreignissen();
}

NichtVerfügbarAntwort TestOberfläche::DateiNichtVerfügbar(const std::string& pfad, const std::string& text,
                                                          const std::function<bool()>& dateiDa) {
    nichtVerfügbarFragen.push_back({pfad, text});
    if (währendNichtVerfügbar) währendNichtVerfügbar();
    if (dateiDa && dateiDa()) return NichtVerfügbarAntwort::Weiter;
    if (nichtVerfügbarAntworten.empty()) {
        ADD_FAILURE() << "Ungeplante Frage: Datei nicht verfügbar " << pfad;
        return NichtVerfügbarAntwort::Abbrechen;
    }
    auto a = nichtVerfügbarAntworten.front();
    nichtVerfügbarAntworten.pop_front();
    return a;
}

namespace {
template <typename T> bool Nimm(std::deque<T>& quelle, T& ziel, const char* frage) {
    if (quelle.empty()) {
        ADD_FAILURE() << "Ungeplante Frage: " << frage;
        return false;
    }
    ziel = quelle.front();
    quelle.pop_front();
    return true;
}
}  // namespace

bool TestOberfläche::NamenEingeben(const std::string& titel, const std::string& knopf, std::string& text, int32_t start,
                                   int32_t länge) {
    namenFragen.push_back({titel, knopf, text, start, länge});
    std::string antwort;
    if (!Nimm(namen, antwort, "Namen eingeben") || antwort == "\x01") return false;
    text = antwort;
    return true;
}

bool TestOberfläche::OrdnerWählen(const std::string&, std::string& o) {
    std::string antwort;
    if (!Nimm(ordner, antwort, "Ordner wählen") || antwort.empty()) return false;
    o = antwort;
    return true;
}

bool TestOberfläche::DateienWählen(const std::string&, const std::string&, std::vector<std::string>& dateien) {
    std::vector<std::string> antwort;
    if (!Nimm(dateiListen, antwort, "Dateien wählen") || antwort.empty()) return false;
    dateien = antwort;
    return true;
}

// Jede Eingabe geht durch die Prüfung, wie ein Druck auf OK; die erste gültige gilt.
bool TestOberfläche::AusführenMitWählen(std::string& programm, const std::function<bool(const std::string&)>& prüfen) {
    while (!ausführenMitEingaben.empty()) {
        std::string eingabe = ausführenMitEingaben.front();
        ausführenMitEingaben.pop_front();
        if (!prüfen(eingabe)) continue;
        programm = eingabe;
        return true;
    }
    return false;
}

int16_t TestOberfläche::VerschiebenDateiExistiert(const std::string& text) {
    existiertFragen.push_back(text);
    int16_t antwort = 3;
    Nimm(existiertAntworten, antwort, "Datei existiert");
    return antwort;
}

std::optional<RegistrierungsWert> TestRegistrierung::WertLesen(const std::string& name) {
    auto it = werte.find(name);
    if (it == werte.end()) return std::nullopt;
    return it->second;
}

bool TestRegistrierung::TextSetzen(const std::string& name, const std::string& wert) {
    RegistrierungsWert w;
    w.text = wert;
    werte[name] = w;
    return true;
}

bool TestRegistrierung::ZahlSetzen(const std::string& name, int32_t wert) {
    RegistrierungsWert w;
    w.istZahl = true;
    w.zahl = wert;
    werte[name] = w;
    return true;
}

int32_t TestSpieler::NachrichtSenden(int64_t, uint32_t n, int32_t w, int32_t l) {
    gesendet.push_back({n, w, l});
    if (beantworten) return beantworten(n, w, l);
    auto it = antworten.find(n);
    return it == antworten.end() ? 0 : it->second;
}

bool TestShell::Öffnen(const std::string& ziel) {
    geöffnet.push_back(ziel);
    return gelingt;
}

int64_t TestShell::ProgrammStarten(const std::string& p, const std::vector<std::string>& a, bool) {
    gestartet.push_back({p, a});
    if (beiStart) beiStart(gestartet.back());
    return gelingt ? 4711 : 0;
}

bool TestShell::InPapierkorb(const std::string& pfad, std::string& fehler) {
    if (!gelingt) {
        fehler = "Papierkorb nicht verfügbar";
        return false;
    }
    papierkorb.push_back(pfad);
    return std::remove(pfad.c_str()) == 0;
}

bool TestShell::InZwischenablage(const std::string& text) {
    zwischenablage.push_back(text);
    return true;
}

std::string TestDatenträger::Wurzel(const std::string& pfad) {
    std::string beste = "/";
    for (const auto& [präfix, wurzel] : wurzeln)
        if (pfad.rfind(präfix, 0) == 0 && wurzel.size() >= beste.size()) beste = wurzel;
    return beste;
}

Datum TestUhr::Jetzt() {
    ms += schrittMs;
    return AusSekundenzahl(Sekundenzahl(jetzt) + ms / 1000);
}

double TestZufall::Nächste() {
    if (werte.empty()) return 0.5;
    double w = werte.front();
    werte.pop_front();
    return w;
}
