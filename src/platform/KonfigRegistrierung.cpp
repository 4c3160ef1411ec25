#include "platform/KonfigRegistrierung.h"

#include "app/Pfade.h"
#include "app/Zahlen.h"
#include "platform/Verzeichnisse.h"

#include <cstdio>
#include <fstream>

namespace {
std::string Maskieren(const std::string& t) {
    std::string aus;
    for (char c : t) {
        if (c == '\\') aus += "\\\\";
        else if (c == '\n') aus += "\\n";
        else if (c == '\r') aus += "\\r";
        else aus.push_back(c);
    }
    return aus;
}

std::string Demaskieren(const std::string& t) {
    std::string aus;
    for (size_t i = 0; i < t.size(); ++i) {
        if (t[i] != '\\' || i + 1 == t.size()) {
            aus.push_back(t[i]);
            continue;
        }
        char n = t[++i];
        aus.push_back(n == 'n' ? '\n' : n == 'r' ? '\r' : n);
    }
    return aus;
}
}  // namespace

KonfigRegistrierung::KonfigRegistrierung(std::string dateipfad) : pfad_(std::move(dateipfad)) {}

KonfigRegistrierung::~KonfigRegistrierung() { Schließen(); }

void KonfigRegistrierung::Laden() {
    if (geladen_) return;
    geladen_ = true;
    std::ifstream ein(pfad_, std::ios::binary);
    std::string zeile;
    while (std::getline(ein, zeile)) {
        auto gleich = zeile.find('=');
        if (gleich == std::string::npos || gleich == 0 || zeile.size() < gleich + 3 || zeile[gleich + 2] != ':')
            continue;  // Kommentar oder kaputte Zeile
        RegistrierungsWert w;
        std::string wert = zeile.substr(gleich + 3);
        char art = zeile[gleich + 1];
        if (art == 'z') {
            if (!IstNumerisch(wert)) continue;
            w.istZahl = true;
            w.zahl = ZahlLesen(wert);
        } else if (art == 't') {
            w.text = Demaskieren(wert);
        } else {
            continue;
        }
        werte_[zeile.substr(0, gleich)] = std::move(w);
    }
}

bool KonfigRegistrierung::SchlüsselÖffnen() {
    Laden();
    return OrdnerAnlegen(PfadZurückgeben(pfad_));
}

std::optional<RegistrierungsWert> KonfigRegistrierung::WertLesen(const std::string& name) {
    Laden();
    auto it = werte_.find(name);
    if (it == werte_.end()) return std::nullopt;
    return it->second;
}

bool KonfigRegistrierung::TextSetzen(const std::string& name, const std::string& wert) {
    Laden();
    RegistrierungsWert w;
    w.text = wert;
    werte_[name] = w;
    geändert_ = true;
    return true;
}

bool KonfigRegistrierung::ZahlSetzen(const std::string& name, int32_t wert) {
    Laden();
    RegistrierungsWert w;
    w.istZahl = true;
    w.zahl = wert;
    werte_[name] = w;
    geändert_ = true;
    return true;
}

bool KonfigRegistrierung::WertLöschen(const std::string& name) {
    Laden();
    if (werte_.erase(name) == 0) return false;
    geändert_ = true;
    return true;
}

bool KonfigRegistrierung::Schließen() {
    if (!geändert_) return true;
    if (!OrdnerAnlegen(PfadZurückgeben(pfad_))) return false;
    const std::string temp = pfad_ + "~";
    {
        std::ofstream aus(temp, std::ios::binary | std::ios::trunc);
        aus << "# Klangkartei-Einstellungen: Name=t:Text oder Name=z:Zahl\n";
        for (const auto& [name, w] : werte_)
            aus << name << (w.istZahl ? "=z:" + std::to_string(w.zahl) : "=t:" + Maskieren(w.text)) << '\n';
        if (!aus.flush()) return false;
    }
    if (std::rename(temp.c_str(), pfad_.c_str()) != 0) return false;
    geändert_ = false;
    return true;
}
