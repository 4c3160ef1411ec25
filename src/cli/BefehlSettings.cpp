// klangkartei-cli settings: die Einstellungen zeigen, einzeln lesen, setzen, zurücksetzen.
// Ausgabe in der Reihenfolge der Tabelle; die nummerierten Listen (AutoTagFormate1, ...)
// folgen jeweils gleich auf ihren Zustandswert (AutoTagLeer, AutoTagAusschlußLeer), und zwar
// so, wie sie gespeichert werden: bei Zustand 1 (leer) gar nicht.
#include "app/Texte.h"
#include "app/Zahlen.h"
#include "cli/Befehle.h"
#include "cli/CliAusgabe.h"
#include "settings/EinstellungenSpeicher.h"
#include "settings/EinstellungenTabelle.h"

#include <cstdio>

namespace {
void Meldung(const std::string& text) { std::fprintf(stderr, "%s\n", text.c_str()); }

void ListeAusgeben(const Kartei& k, const EinstellungsListe& l) {
    const auto* liste = GespeicherteListe(k, l);
    if (!liste) return;
    for (int32_t n = 1; n <= liste->UBound(); ++n) NameWertAusgeben(l.name + ZahlText(n), (*liste)[n]);
}

int AlleAusgeben(const Kartei& k) {
    for (const auto& e : EinstellungsTabelle()) {
        NameWertAusgeben(e.name, EinstellungAlsText(k, e));
        for (const auto& l : EinstellungsListen())
            if (std::holds_alternative<int16_t Einstellungen::*>(e.ziel) &&
                std::get<int16_t Einstellungen::*>(e.ziel) == l.zustand)
                ListeAusgeben(k, l);
    }
    return 0;
}

int Lesen(const Kartei& k, const std::string& name) {
    if (const auto* e = EinstellungFinden(name)) {
        NameWertAusgeben(e->name, EinstellungAlsText(k, *e));
        return 0;
    }
    if (auto w = ListenWertFinden(name)) {
        const auto* liste = GespeicherteListe(k, *w->liste);
        if (liste && w->nummer <= liste->UBound()) {
            NameWertAusgeben(w->liste->name + ZahlText(w->nummer), (*liste)[w->nummer]);
            return 0;
        }
        Meldung("Die Liste '" + std::string(w->liste->name) + "' hat keinen Eintrag " + ZahlText(w->nummer) + ".");
        return 1;
    }
    Meldung("Unbekannte Einstellung '" + name + "'.");
    return 1;
}

int Setzen(CliKontext& c, const std::string& name, const std::string& wert) {
    std::string fehler;
    if (const auto* e = EinstellungFinden(name)) {
        if (!EinstellungAusText(c.k, *e, wert, fehler)) {
            Meldung("Die Einstellung '" + std::string(e->name) + "' wurde nicht geändert. " + fehler);
            return 1;
        }
    } else if (auto w = ListenWertFinden(name)) {
        if (!ListenWertSetzen(c.k, *w, wert, fehler)) {
            Meldung(fehler);
            return 1;
        }
    } else {
        Meldung("Unbekannte Einstellung '" + name + "'.");
        return 1;
    }
    return 0;
}

int Speichern(CliKontext& c) {
    if (EinstellungenSpeichern(c.k)) return 0;
    Meldung("Die Einstellungen konnten nicht in '" + c.dienste.registrierung.Dateipfad() + "' gespeichert werden.");
    return 1;
}

int SettingsAusführen(CliKontext& c, const std::vector<std::string>& a) {
    if (a.empty()) return AlleAusgeben(c.k);
    const std::string& was = a[0];
    if (was == "get") {
        if (a.size() != 2) return GebrauchsFehler("settings get braucht genau einen Namen.");
        return Lesen(c.k, a[1]);
    }
    if (was == "set") {
        if (a.size() != 3) return GebrauchsFehler("settings set braucht einen Namen und einen Wert.");
        const int rc = Setzen(c, a[1], a[2]);
        return rc != 0 ? rc : Speichern(c);
    }
    if (was == "reset") {
        if (a.size() != 1) return GebrauchsFehler("settings reset erwartet keine weiteren Argumente.");
        EinstellungenZurücksetzen(c.k);
        return Speichern(c);
    }
    return GebrauchsFehler("Unbekannte Aufgabe '" + was + "' für settings (get, set oder reset).");
}
}  // namespace

extern const Befehl BefehlSettings;
const Befehl BefehlSettings = {"settings", "settings [get NAME | set NAME WERT | reset]",
                               "Einstellungen zeigen, lesen, setzen oder zurücksetzen", SettingsAusführen};
