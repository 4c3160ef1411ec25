// dupes: Mehrfacheinträge und Aufräumkandidaten unter den gewählten Einträgen.
#include "cli/AuswahlArgumente.h"
#include "cli/Befehle.h"
#include "cli/IndexLaden.h"
#include "index/IndexDatei.h"
#include "reports/Aufraeumen.h"

#include <cstdio>

namespace {
struct DupesWahl {
    int32_t methode = -1;
    int32_t aktion1 = Aktion::Keine, aktion2 = Aktion::Keine;  // für alle Zeilen
};

// Leer: in Ordnung; sonst der Grund für den Gebrauchsfehler.
std::string ArgumenteLesen(const std::vector<std::string>& rest, DupesWahl& w) {
    for (size_t i = 0; i < rest.size(); ++i) {
        const std::string& a = rest[i];
        int32_t* ziel = a == "--methode"   ? &w.methode
                        : a == "--aktion1" ? &w.aktion1
                        : a == "--aktion2" ? &w.aktion2
                                           : nullptr;
        if (!ziel || i + 1 >= rest.size() || !NummerLesen(rest[++i], *ziel))
            return "dupes: unbekanntes Argument '" + a + "'.";
    }
    std::string hilfe;
    if (w.methode < 0 || w.methode >= Suchmethode::Anzahl) {
        hilfe = "Aufruf: dupes --methode N [AUSWAHL]; N ist eine der Methoden:";
        for (size_t i = 0; i < SuchmethodenTexte().size(); ++i)
            hilfe += "\n  " + std::to_string(i) + " " + SuchmethodenTexte()[i];
    } else if (w.aktion1 < 0 || w.aktion1 >= Aktion::Anzahl || w.aktion2 < 0 || w.aktion2 >= Aktion::Anzahl) {
        hilfe = "--aktion1 und --aktion2 kennen die Aktionen:";
        for (size_t i = 0; i < AktionenTexte().size(); ++i)
            hilfe += "\n  " + std::to_string(i) + " " + AktionenTexte()[i];
    }
    return hilfe;
}

// Jede Zeile bekommt links aktion1 und rechts aktion2; dann wie cmdOk (Fragen nur mit --yes).
int AktionenAnwenden(CliKontext& c, const DupesWahl& w, std::vector<DuplikatTreffer> treffer) {
    Aufräumen a;
    AufräumenBeginnen(c.k, a, int16_t(w.methode), std::move(treffer));
    std::vector<int32_t> zeilen(a.treffer.size());
    for (size_t i = 0; i < zeilen.size(); ++i) zeilen[i] = int32_t(i);
    AktionSetzen(a, zeilen, false, w.aktion1);
    AktionSetzen(a, zeilen, true, w.aktion2);
    if (!AktionenBestätigen(c.k, a)) return 1;
    AktionenAusführen(c.k, a);
    return ÄnderungenSpeichern(c.k) ? 0 : 1;
}

int Ausführen(CliKontext& c, const std::vector<std::string>& argumente) {
    EintragsAuswahl auswahl;
    std::vector<std::string> rest;
    DupesWahl w;
    if (std::string fehler = AuswahlLesen(argumente, auswahl, rest); !fehler.empty()) return GebrauchsFehler(fehler);
    if (std::string fehler = ArgumenteLesen(rest, w); !fehler.empty()) return GebrauchsFehler(fehler);
    if (!IndexFürBefehlLaden(c)) return 1;
    std::vector<int32_t> gewählt;
    if (!AuswahlAnwenden(c, auswahl, gewählt)) return 1;
    auto treffer = DuplikateSuchen(c.k, int16_t(w.methode), gewählt);
    for (const auto& t : treffer)
        std::printf("%s\n", AusgabeMaskieren(TrefferZeile(c.k, int16_t(w.methode), t)).c_str());
    std::printf("%s\n", GefundenAnzahlText(treffer.size()).c_str());
    if (std::fflush(stdout) != 0) return 1;
    if (w.aktion1 == Aktion::Keine && w.aktion2 == Aktion::Keine) return 0;
    return AktionenAnwenden(c, w, std::move(treffer));
}
}  // namespace

extern const Befehl BefehlDupes = {"dupes", "dupes --methode N [--aktion1 A] [--aktion2 A] [AUSWAHL]",
                                   "Mehrfacheinträge, fehlende Dateien oder Dateien ohne Tag finden (N = 0..9); "
                                   "mit A = 1..4 für die linke bzw. rechte Datei jeder Zeile aufräumen",
                                   Ausführen};
