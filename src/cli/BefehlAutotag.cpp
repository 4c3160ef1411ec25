// autotag: Tag-Felder aus einem Pfad erkennen und zeigen, oder für gewählte Einträge schreiben.
#include "app/Pfade.h"
#include "cli/AuswahlArgumente.h"
#include "cli/Befehle.h"
#include "cli/DatensatzAusgabe.h"
#include "cli/IndexLaden.h"
#include "cli/MedienHilfen.h"
#include "index/Dateitypen.h"
#include "index/IndexDatei.h"
#include "platform/Verzeichnisse.h"
#include "tags/AutoTag.h"
#include "tags/AutoTagStapel.h"

#include <cstdio>
#include <optional>

namespace {
struct AutoTagArgumente {
    std::string pfad;
    std::optional<std::string> format, anwenden;
    int16_t modus = AutoTagModusBeide;
};

// Liest die eigenen Schalter aus dem Rest hinter der Auswahl. Leer: in Ordnung, sonst der Grund.
std::string ArgumenteLesen(const std::vector<std::string>& rest, AutoTagArgumente& a) {
    for (size_t i = 0; i < rest.size(); ++i) {
        const std::string& s = rest[i];
        const bool mitWert = s == "--format" || s == "--apply" || s == "--modus";
        if (mitWert && i + 1 >= rest.size()) return "autotag: " + s + " braucht einen Wert.";
        if (s == "--format") {
            a.format = rest[++i];
        } else if (s == "--apply") {
            a.anwenden = rest[++i];
        } else if (s == "--modus") {
            const std::string& m = rest[++i];
            if (m != "0" && m != "1" && m != "2")
                return "autotag: --modus ist 0 (beide Tags), 1 (ID3v1) oder 2 (ID3v2).";
            a.modus = static_cast<int16_t>(m[0] - '0');
        } else if (a.pfad.empty() && !(s.size() > 1 && s[0] == '-')) {
            a.pfad = s;
        } else {
            return "autotag: unerwartetes Argument '" + s + "'.";
        }
    }
    if (a.anwenden && (a.format || !a.pfad.empty()))
        return "autotag: --apply nimmt Einträge des Index, keinen Pfad und kein --format.";
    if (!a.anwenden && (a.pfad.empty() || !a.format)) return "autotag braucht PFAD --format F oder --apply F.";
    return {};
}

// Erkennen ohne zu schreiben; Ausgangsdaten sind der Indexeintrag des Pfades (Nummer 0: keiner).
int Zeigen(CliKontext& c, const AutoTagArgumente& a) {
    // Nur ein bestehender Index wird gelesen: dieser Weg legt keine Datei an.
    if (DoesExist(c.indexPfad.empty() ? StandardIndexPfad() : c.indexPfad) && !IndexFürBefehlLaden(c)) return 1;
    const std::string pfad = VollerDateiPfad(a.pfad);
    int32_t nummer = 0;
    for (int32_t n = 1; n <= c.k.DateiAnzahl && nummer == 0; ++n)
        if (c.k.DateiPfade[n] == pfad) nummer = n;
    const DateiInfo ausgang = nummer != 0 ? c.k.DateiDaten[nummer] : DateiInfo{};
    DateiInfo ergebnis;
    if (!AutoTagVersuchen(c.k, pfad, *a.format, ergebnis, ausgang, a.modus)) return 1;
    std::string aus;
    DatensatzBlockAnhängen(aus, nummer, pfad, ergebnis);
    std::fwrite(aus.data(), 1, aus.size(), stdout);
    return std::fflush(stdout) == 0 ? 0 : 1;
}

int Anwenden(CliKontext& c, const AutoTagArgumente& a, const EintragsAuswahl& auswahl) {
    if (!IndexFürBefehlLaden(c)) return 1;
    DateitypenVorgabenWennLeer(c.k.Optionen);  // wie tag: die Typfrage braucht eine Typtabelle
    std::vector<int32_t> gewählt;
    if (!AuswahlAnwenden(c, auswahl, gewählt)) return 1;
    const AutoTagStapelErgebnis e = AutoTagStapel(c.k, gewählt, *a.anwenden, a.modus);
    std::printf("Gespeichert=%d\nNichtGespeichert=%d\n", e.gespeichert, e.nichtGespeichert);
    const bool gesichert = ÄnderungenSpeichern(c.k);
    return gesichert && e.nichtGespeichert == 0 && !e.abgebrochen ? 0 : 1;
}

int Ausführen(CliKontext& c, const std::vector<std::string>& argumente) {
    EintragsAuswahl auswahl;
    std::vector<std::string> rest;
    if (const std::string fehler = AuswahlLesen(argumente, auswahl, rest); !fehler.empty())
        return GebrauchsFehler(fehler);
    AutoTagArgumente a;
    if (const std::string fehler = ArgumenteLesen(rest, a); !fehler.empty()) return GebrauchsFehler(fehler);
    if (!a.anwenden && (auswahl.mitSuche || !auswahl.einträge.empty()))
        return GebrauchsFehler("autotag: eine Auswahl gilt nur mit --apply.");
    return a.anwenden ? Anwenden(c, a, auswahl) : Zeigen(c, a);
}
}  // namespace

extern const Befehl BefehlAutotag = {
    "autotag", "autotag PFAD --format F [--modus 0|1|2] | autotag --apply F [--modus 0|1|2] [AUSWAHL]",
    "Tag-Felder aus dem Pfad erkennen und zeigen (Nummer=0: nicht im Index), oder für die Auswahl schreiben",
    Ausführen};
