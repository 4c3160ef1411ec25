// autodj: eine Liste aus den Abspielzahlen der gewählten Genres vorschlagen.
#include "cli/Befehle.h"
#include "cli/IndexLaden.h"
#include "player/AutoDJ.h"

#include <cstdio>

namespace {
constexpr const char* Aufruf = "autodj --genre G… [--max N] [--zeit N --einheit minuten|stunden|tage] [--seltener] "
                               "[--haeufiger]";

bool IstSchalter(const std::string& a) { return a.size() > 2 && a.compare(0, 2, "--") == 0; }

// Übersetzt die Schalter in die Felder der ersten Seite; leerer Text heißt gelungen.
std::string SchalterLesen(const std::vector<std::string>& a, AutoDJOptionen& o, bool& mitMax) {
    bool mitZeit = false, mitEinheit = false;
    for (size_t i = 0; i < a.size(); ++i) {
        const std::string& s = a[i];
        const bool wert = i + 1 < a.size();
        if (s == "--genre") {
            // Nach --genre folgen ein oder mehrere Genres bis zum nächsten Schalter.
            if (!wert || IstSchalter(a[i + 1])) return "autodj: --genre braucht ein Genre.";
            while (i + 1 < a.size() && !IstSchalter(a[i + 1])) o.Genres.push_back(a[++i]);
        } else if (s == "--max" && wert) {
            o.txtMaximum = a[++i];
            mitMax = true;
        } else if (s == "--zeit" && wert) {
            o.txtZeit = a[++i];
            mitZeit = true;
        } else if (s == "--einheit" && wert) {
            const std::string& e = a[++i];
            o.cboZeiteinheit = e == "minuten" ? 0 : e == "stunden" ? 1 : e == "tage" ? 2 : -1;
            if (o.cboZeiteinheit < 0) return "autodj: --einheit ist minuten, stunden oder tage, nicht '" + e + "'.";
            mitEinheit = true;
        } else if (s == "--seltener") {
            o.chkAlteSeltener = true;
        } else if (s == "--haeufiger") {
            o.chkSehrAlteHäufiger = true;
        } else {
            return "autodj: unbekanntes oder unvollständiges Argument '" + s + "'.";
        }
    }
    if (mitZeit != mitEinheit) return "autodj: --zeit und --einheit gehören zusammen.";
    return {};
}

int Ausführen(CliKontext& c, const std::vector<std::string>& argumente) {
    AutoDJOptionen o;
    bool mitMax = false;
    if (std::string fehler = SchalterLesen(argumente, o, mitMax); !fehler.empty())
        return GebrauchsFehler(fehler + "\nAufruf: " + Aufruf);
    if (!IndexFürBefehlLaden(c)) return 1;
    if (!mitMax) o.txtMaximum = c.k.E.AutoDJFindeAnzahl;
    std::vector<AutoDJZeile> zeilen;
    if (!AutoDJErstellen(c.k, o, zeilen)) return 1;
    for (const auto& z : zeilen) std::printf("%d\t%s\n", z.eintrag, AusgabeMaskieren(z.text).c_str());
    std::printf("%s\n", GefundenAnzahlText(zeilen.size()).c_str());
    return std::fflush(stdout) == 0 ? 0 : 1;
}
}  // namespace

extern const Befehl BefehlAutodj = {
    "autodj", Aufruf, "AutoDJ: oft gespielte Dateien der Genres gemischt vorschlagen (Nummer<TAB>Text)", Ausführen};
