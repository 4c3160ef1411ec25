// export: die gewählten Einträge als Text, HTML oder Playliste in eine Datei.
#include "cli/AuswahlArgumente.h"
#include "cli/Befehle.h"
#include "cli/IndexLaden.h"
#include "reports/Export.h"

#include <array>
#include <cstdio>

namespace {
int16_t NachName(const std::string& wert, const std::vector<std::string>& namen) {
    for (size_t i = 0; i < namen.size(); ++i)
        if (namen[i] == wert) return int16_t(i);
    return -1;
}

// Leer: in Ordnung; sonst der Grund für den Gebrauchsfehler.
std::string ArgumenteLesen(const std::vector<std::string>& rest, ExportWahl& e) {
    for (size_t i = 0; i < rest.size(); ++i) {
        const std::string& a = rest[i];
        const bool mitWert = i + 1 < rest.size();
        if (a == "--format" && mitWert) {
            e.modus = NachName(rest[++i], {"text", "html", "playlist"});
            if (e.modus < 0) return "--format kennt text, html und playlist.";
        } else if (a == "--sep" && mitWert) {
            e.untermodus = NachName(rest[++i], {"komma", "tab", "semikolon", "leerzeichen"});
            if (e.untermodus < 0) return "--sep kennt komma, tab, semikolon und leerzeichen.";
        } else if (a == "--quote") {
            e.anführung = true;
        } else if (a.rfind("--", 0) == 0 || !e.datei.empty()) {
            return "export: unbekanntes Argument '" + a + "'.";
        } else {
            e.datei = a;
        }
    }
    if (e.modus < 0) return "Bitte wählen Sie ein Export-Format (--format).";
    if (e.datei.empty()) return "Bitte geben Sie einen Dateinamen ein.";
    return {};
}

int Ausführen(CliKontext& c, const std::vector<std::string>& argumente) {
    EintragsAuswahl auswahl;
    std::vector<std::string> rest;
    ExportWahl e;
    e.untermodus = 0;
    if (std::string fehler = AuswahlLesen(argumente, auswahl, rest); !fehler.empty()) return GebrauchsFehler(fehler);
    if (std::string fehler = ArgumenteLesen(rest, e); !fehler.empty()) return GebrauchsFehler(fehler);
    if (!IndexFürBefehlLaden(c)) return 1;
    std::vector<int32_t> gewählt;
    if (!AuswahlAnwenden(c, auswahl, gewählt)) return 1;
    c.ui.DreiKnopfFragenAbbrechen();
    return WahlExportieren(c.k, e, gewählt, c.k.Liste.lstSongs) ? 0 : 1;
}
}  // namespace

extern const Befehl BefehlExport = {
    "export", "export [AUSWAHL] --format text|html|playlist DATEI [--sep komma|tab|semikolon|leerzeichen] [--quote]",
    "Einträge exportieren: Text mit den Spalten der Hauptliste, HTML-Tabelle, Playliste (.pls sonst M3U)", Ausführen};
