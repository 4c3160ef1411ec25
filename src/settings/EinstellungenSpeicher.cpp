#include "settings/EinstellungenSpeicher.h"

#include "app/Texte.h"
#include "app/Trace.h"
#include "app/Zahlen.h"
#include "settings/EinstellungenTabelle.h"
#include "tags/AutoTagVorgaben.h"

#include <limits>
#include <string_view>
#include <type_traits>

namespace {
// Die Vorgaben stehen in der Struktur selbst; ein frisches Exemplar liefert sie.
const Einstellungen& Vorgaben() {
    static const Einstellungen vorgaben;
    return vorgaben;
}

// Den gelesenen Wert übernehmen, wenn er von der erwarteten Art ist. Die Registrierung hängte an
// Texte eine abschließende Null; der getypte Speicher nicht, also kommt der Text unverändert zurück.
bool Übernehmen(RegistrierungsWert& w, std::string& ziel) {
    if (w.istZahl) return false;
    ziel = std::move(w.text);
    return true;
}

template <typename T> bool Übernehmen(const RegistrierungsWert& w, T& ziel) {
    if (!w.istZahl || w.zahl < std::numeric_limits<T>::min() || w.zahl > std::numeric_limits<T>::max()) return false;
    ziel = static_cast<T>(w.zahl);
    return true;
}

// Rücksetz-Modus oder fehlender/unpassender Wert geben die Vorgabe.
template <typename T> bool EinstellungLesen(Kartei& k, const std::string& name, T& ergebnis, const T& vorgabe) {
    if (k.E.RücksetzModus) {
        ergebnis = vorgabe;
        return true;
    }
    RegistrierungsWert w;
    if (!ValueLesen(k, name, w)) {
        ergebnis = vorgabe;
        return false;
    }
    if (Übernehmen(w, ergebnis)) return true;
    KK_TRACE("SpezielleEinstellungLesen", "Wert der falschen Art - " + name);
    ergebnis = vorgabe;
    return false;
}
}  // namespace

bool ValueLesen(Kartei& k, const std::string& name, RegistrierungsWert& ergebnis) {
    auto w = k.registrierung.WertLesen(name);
    if (!w) return false;
    ergebnis = std::move(*w);
    return true;
}

bool SpezielleEinstellungLesen(Kartei& k, const std::string& name, std::string& ergebnis, const std::string& vorgabe) {
    return EinstellungLesen(k, name, ergebnis, vorgabe);
}

bool SpezielleEinstellungLesen(Kartei& k, const std::string& name, int32_t& ergebnis, int32_t vorgabe) {
    return EinstellungLesen(k, name, ergebnis, vorgabe);
}

bool SpezielleEinstellungLesen(Kartei& k, const std::string& name, int16_t& ergebnis, int16_t vorgabe) {
    return EinstellungLesen(k, name, ergebnis, vorgabe);
}

bool SpezielleEinstellungSpeichern(Kartei& k, const std::string& name, const std::string& wert) {
    if (k.registrierung.TextSetzen(name, wert)) return true;
    KK_TRACE("SpezielleEinstellungSpeichern", "Fehler beim Setzen eines Wertes - " + name);
    return false;
}

bool SpezielleEinstellungSpeichern(Kartei& k, const std::string& name, int32_t wert) {
    if (k.registrierung.ZahlSetzen(name, wert)) return true;
    KK_TRACE("SpezielleEinstellungSpeichern", "Fehler beim Setzen eines Wertes - " + name);
    return false;
}

bool EinstellungLöschen(Kartei& k, const std::string& name) { return k.registrierung.WertLöschen(name); }

bool EinstellungsSchlüsselVorhanden(Kartei& k) { return k.registrierung.SchlüsselÖffnen(); }

namespace {
void TabellenwertLesen(Kartei& k, const EinstellungsEintrag& e) {
    std::visit(
        [&](auto ziel) {
            if constexpr (std::is_same_v<decltype(ziel), std::string Kartei::*>) {
                // Der Pfad des offenen Index bleibt beim Zurücksetzen: sonst liefe sein
                // nächstes Speichern ins Leere.
                if (!k.E.RücksetzModus) SpezielleEinstellungLesen(k, e.name, k.*ziel, std::string());
            } else {
                SpezielleEinstellungLesen(k, e.name, k.E.*ziel, Vorgaben().*ziel);
            }
        },
        e.ziel);
}

void TabellenwertSpeichern(Kartei& k, const EinstellungsEintrag& e) {
    std::visit(
        [&](auto ziel) {
            if constexpr (std::is_same_v<decltype(ziel), std::string Kartei::*>)
                SpezielleEinstellungSpeichern(k, e.name, k.*ziel);
            else if constexpr (std::is_same_v<decltype(ziel), std::string Einstellungen::*>)
                SpezielleEinstellungSpeichern(k, e.name, k.E.*ziel);
            else SpezielleEinstellungSpeichern(k, e.name, static_cast<int32_t>(k.E.*ziel));
        },
        e.ziel);
}

// Kürzester Befehl, der als Spielerprogramm gelten kann ("/x"); was kürzer ist, ist keiner.
constexpr std::string_view KürzesterSpielerBefehl = "/x";

void SpielerPfadVorbelegen(Kartei& k) {
    std::string befehl = k.registrierung.StandardAudioBefehl();
    if (ZeichenAnzahl(befehl) < ZeichenAnzahl(KürzesterSpielerBefehl)) return;
    k.E.WinampPfad = Trim(Ersetzen(Ersetzen(befehl, "\"", ""), "%1", ""));
}

void Mp3TagLesenErgänzen(std::string& flags) {
    if (flags.empty()) flags = "101";
    else if (ZeichenAnzahl(flags) == 1) flags += "01";
}

std::string NummerierterName(const EinstellungsListe& l, int32_t nummer) { return l.name + ZahlText(nummer); }

// Die gespeicherten Werte name1, name2, ... bis zum ersten fehlenden.
EinsBasiert<std::string> NummerierteWerteLesen(Kartei& k, const EinstellungsListe& l) {
    EinsBasiert<std::string> liste;
    RegistrierungsWert w;
    for (int32_t n = 1; n < std::numeric_limits<int32_t>::max() && ValueLesen(k, NummerierterName(l, n), w); ++n)
        liste.Anhängen(w.istZahl ? ZahlText(w.zahl) : w.text);  // eine Zahl von Hand: ihr Text
    return liste;
}

// vorgaben: was gilt, wenn die Liste nie gespeichert wurde (nullptr: dann ist sie leer).
// Ein unbekannter Zustand zählt wie "nie gespeichert".
void ListeLesen(Kartei& k, const EinstellungsListe& l, const EinsBasiert<std::string>* vorgaben) {
    int16_t& zustand = k.E.*l.zustand;
    EinsBasiert<std::string>& liste = k.E.*l.liste;
    const bool nieGespeichert = k.E.RücksetzModus || (zustand != 0 && zustand != 1);
    if (nieGespeichert && vorgaben) {
        liste = *vorgaben;
        zustand = 0;
        return;
    }
    if (!nieGespeichert && zustand == 0) {
        liste = NummerierteWerteLesen(k, l);
        if (liste.UBound() > 0) return;
    }
    // Leer: ein leerer Platz, damit Auswahllisten etwas zu zeigen haben.
    liste.ReDim(1);
    zustand = 1;
}

// Löscht name<ab>, name<ab+1>, ... bis zur ersten Nummer, die es nicht gibt.
void ÜberzähligeLöschen(Kartei& k, const EinstellungsListe& l, int32_t ab) {
    RegistrierungsWert w;
    for (int32_t n = ab; n < std::numeric_limits<int32_t>::max() && ValueLesen(k, NummerierterName(l, n), w); ++n)
        EinstellungLöschen(k, NummerierterName(l, n));
}

void ListeSpeichern(Kartei& k, const EinstellungsListe& l) {
    int32_t ab = 1;
    if (const auto* liste = GespeicherteListe(k, l)) {  // eine als leer markierte Liste wird nicht geschrieben
        for (int32_t n = 1; n <= liste->UBound(); ++n)
            SpezielleEinstellungSpeichern(k, NummerierterName(l, n), (*liste)[n]);
        ab = liste->UBound() + 1;
    }
    ÜberzähligeLöschen(k, l, ab);
}
}  // namespace

void EinstellungenLesen(Kartei& k) {
    for (const auto& e : EinstellungsTabelle()) TabellenwertLesen(k, e);
    if (!k.E.RücksetzModus)
        if (const std::string hinweis = k.registrierung.LeseHinweis(); !hinweis.empty())
            k.ui.MeldungZeigen(hinweis, Meldung::Ausrufezeichen);

    if (k.E.Start == 0) SpielerPfadVorbelegen(k);
    Mp3TagLesenErgänzen(k.E.Mp3TagLesen);
    const auto vorgabeFormate = AutoTagVorgabeFormate();
    for (const auto& l : EinstellungsListen())
        ListeLesen(k, l, l.liste == &Einstellungen::AutoTagFormate ? &vorgabeFormate : nullptr);
}

bool EinstellungenSpeichern(Kartei& k) {
    if (!EinstellungsSchlüsselVorhanden(k) && !k.registrierung.SchlüsselAnlegen())
        KK_TRACE("EinstellungenSpeichern", "Schlüssel lässt sich nicht anlegen");
    for (const auto& e : EinstellungsTabelle()) TabellenwertSpeichern(k, e);
    for (const auto& l : EinstellungsListen()) ListeSpeichern(k, l);
    return k.registrierung.Schließen();
}

void EinstellungenZurücksetzen(Kartei& k) {
    k.E.RücksetzModus = true;
    EinstellungenLesen(k);
    k.E.RücksetzModus = false;
}
