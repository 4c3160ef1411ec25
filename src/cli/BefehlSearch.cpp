// search: eine Suche wie im Hauptfenster (ein Feld, ein Text) oder über mehrere Abfragezeilen.
#include "cli/Befehle.h"
#include "cli/IndexLaden.h"
#include "search/Suchbegriffe.h"
#include "search/Suche.h"

#include <algorithm>
#include <cstdio>

namespace {
constexpr const char* kAufruf = "search [--field FELD] [--not] TEXT | search --row FELD:BEDINGUNG:TEXT ...";

struct Abfrage {
    std::string feld = Standardsuche;
    bool nicht = false, feldGesetzt = false, mitText = false;
    std::string text;
    std::vector<std::string> zeilen;
};

// "FELD:BEDINGUNG:TEXT"; der Text darf selbst ":" enthalten (Dauer "3:25").
bool ZeileLesen(const std::string& a, std::string& feld, std::string& bedingung, std::string& text) {
    const auto p1 = a.find(':');
    const auto p2 = p1 == std::string::npos ? p1 : a.find(':', p1 + 1);
    if (p2 == std::string::npos) return false;
    feld = a.substr(0, p1);
    bedingung = a.substr(p1 + 1, p2 - p1 - 1);
    text = a.substr(p2 + 1);
    const auto ziffer = [](char c) { return c >= '0' && c <= '9'; };
    return !feld.empty() && bedingung.size() == 2 && ziffer(bedingung[0]) && ziffer(bedingung[1]);
}

// Leerer Text: alles in Ordnung; sonst der Grund für den Gebrauchsfehler.
std::string ArgumenteLesen(const std::vector<std::string>& argumente, Abfrage& a) {
    bool nurText = false;
    for (size_t i = 0; i < argumente.size(); ++i) {
        const std::string& arg = argumente[i];
        if (!nurText && arg == "--") {
            nurText = true;
        } else if (!nurText && (arg == "--field" || arg == "--row")) {
            if (i + 1 >= argumente.size()) return arg + " braucht einen Wert.";
            if (arg == "--row") {
                a.zeilen.push_back(argumente[++i]);
            } else {
                a.feld = argumente[++i];
                a.feldGesetzt = true;
            }
        } else if (!nurText && arg == "--not") {
            a.nicht = true;
        } else if (!nurText && arg.starts_with("--")) {
            return "Unbekannter Schalter '" + arg + "'.";
        } else if (a.mitText) {
            return "Nur ein Suchtext ist erlaubt; Wörter trennt ein Leerzeichen im selben Argument.";
        } else {
            a.text = arg;
            a.mitText = true;
        }
    }
    if (!a.zeilen.empty() && (a.mitText || a.feldGesetzt || a.nicht))
        return "--row lässt sich nicht mit --field, --not oder einem Suchtext verbinden.";
    if (a.zeilen.empty() && !a.mitText) return "Kein Suchtext angegeben (\"\" findet alle Einträge).";
    const auto& felder = SuchFelderListe();
    if (std::find(felder.begin(), felder.end(), a.feld) == felder.end())
        return "Das Feld '" + a.feld + "' gibt es in der Suche nicht.";
    return {};
}

// Die Abfrage in den Suchzustand, so wie das Fenster sie hinterlässt (Zeilen sind geprüft).
void AbfrageEinrichten(Kartei& k, const Abfrage& a) {
    auto& s = k.Suche;
    if (a.zeilen.empty()) {
        const auto& felder = s.cboSuche.List;
        s.cboSuche.ListIndex = int32_t(std::find(felder.begin(), felder.end(), a.feld) - felder.begin());
        s.cboSuche.Text = a.feld;
        s.txtSongname.Text = a.text;
        // Die Bedingung der einen Zeile bleibt beim Lauf erhalten.
        if (a.nicht) SuchbegriffeHinzufügen(s, a.text, a.feld, "11");
        return;
    }
    for (const auto& zeile : a.zeilen) {
        std::string feld, bedingung, text;
        ZeileLesen(zeile, feld, bedingung, text);
        SuchbegriffeHinzufügen(s, text, feld, bedingung);
    }
    s.cboSuche.Enabled = s.txtSongname.Enabled = false;
    s.cboSuche.ListIndex = -1;
    s.txtSongname.Text = MehrereAbfragenText;
}

int Ausführen(CliKontext& c, const std::vector<std::string>& argumente) {
    Abfrage a;
    const std::string fehler = ArgumenteLesen(argumente, a);
    if (!fehler.empty()) return GebrauchsFehler(fehler + "\nAufruf: " + kAufruf);
    for (const auto& zeile : a.zeilen) {
        std::string feld, bedingung, text;
        if (!ZeileLesen(zeile, feld, bedingung, text))
            return GebrauchsFehler("Die Abfragezeile '" + zeile +
                                   "' hat nicht die Form FELD:BEDINGUNG:TEXT "
                                   "(BEDINGUNG zwei Ziffern, z. B. 00 oder 11).");
    }
    if (!IndexFürBefehlLaden(c)) return 1;
    AbfrageEinrichten(c.k, a);
    tmrListe_Timer(c.k);
    for (const auto& zeile : c.k.Liste.lstSongs.zeilen) {
        const int32_t e = zeile.eintrag;
        std::printf("%d\t%d\t%s\n", e, int(c.k.DateiTreffer[e]), AusgabeMaskieren(c.k.DateiPfade[e]).c_str());
    }
    std::fprintf(stderr, "%s\n", c.k.Liste.DateiAnzahlText.c_str());
    return 0;
}
}  // namespace

extern const Befehl BefehlSearch = {
    "search", "search [--field FELD] [--not] TEXT",
    "Suchen wie im Hauptfenster; --row FELD:BEDINGUNG:TEXT (mehrfach) für mehrere Abfragezeilen", Ausführen};
