// Export: Textdatei mit Trennern, HTML-Tabelle, PLS- oder M3U-Playliste.
#include "reports/Export.h"

#include "app/Ergebnisliste.h"
#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/Texte.h"
#include "app/Zahlen.h"
#include "index/IndexFeld.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace {
constexpr std::string_view Zeilenende = "\r\n";

// Die Werte der Spalten eines Eintrags; ein Feld ohne Wert (die Abfrage scheitert) fehlt ganz.
struct SpaltenWerte {
    std::vector<IndexFeld> felder;
    std::string wert;
    int16_t art = 0;
    bool Lesen(const Kartei& k, int32_t eintrag, size_t spalte) {
        return IndexFeldZurückgeben(k, eintrag, felder[spalte], false, wert, art);
    }
};

SpaltenWerte FelderVorbereiten(const std::vector<std::string>& spalten) {
    SpaltenWerte w;
    for (const auto& name : spalten) w.felder.push_back(IndexFeldVorbereiten(name));
    return w;
}

// Eine Zeile der Textform: Zitat je Wert, der Trenner nach jeder Spalte außer der letzten.
void TextZeile(std::string& aus, const std::vector<const std::string*>& werte, std::string_view anführung,
               std::string_view trenner) {
    for (size_t i = 0; i < werte.size(); ++i) {
        if (werte[i] == nullptr) continue;  // ohne Wert: weder Zelle noch Trenner
        aus += Zitieren(*werte[i], anführung);
        if (i + 1 < werte.size()) aus += trenner;
    }
    aus += Zeilenende;
}

void TextForm(std::string& aus, const Kartei& k, const std::vector<int32_t>& liste, std::string_view anführung,
              std::string_view trenner, const std::vector<std::string>& spalten) {
    std::vector<const std::string*> werte;
    for (const auto& s : spalten) werte.push_back(&s);
    TextZeile(aus, werte, anführung, trenner);
    SpaltenWerte w = FelderVorbereiten(spalten);
    std::vector<std::string> texte(spalten.size());
    for (const int32_t eintrag : liste) {
        for (size_t i = 0; i < spalten.size(); ++i) {
            werte[i] = w.Lesen(k, eintrag, i) ? &texte[i] : nullptr;
            texte[i].swap(w.wert);
        }
        TextZeile(aus, werte, anführung, trenner);
    }
}

void HtmlForm(std::string& aus, const Kartei& k, const std::vector<int32_t>& liste,
              const std::vector<std::string>& spalten) {
    const auto q = [](std::string_view text) { return Zitieren(text, "\""); };
    const std::string titel = ProgrammTitel;
    aus += "<html><head><title>" + titel + "-HTML-Export</title></head><body>";
    aus += Zeilenende;
    aus += "<center><font face=" + q("Arial") + "><h2><a href=" + q(ProgrammWebAdresse) + ">" + titel +
           "</a>-HTML-Export</h2></font></center>";
    aus += Zeilenende;
    aus += "<table border=" + q("0") + " cellpadding=" + q("3") + " cellspacing=" + q("1") + " width=" + q("100%") +
           " style=" + q("font-size: 9pt; font-family: Verdana; font-weight: bold") + ">";
    aus += Zeilenende;
    aus += "<tr bgcolor=#dddddd>";
    aus += Zeilenende;
    // Ohne Spalten gibt es keine Zelle, die eine Breite bräuchte.
    const double breite = spalten.empty() ? 0 : Runden(100.0 / double(spalten.size()), 0);
    const std::string zelle = "<td width=" + q(ZahlText(int64_t(breite)) + "%") + ">";
    for (const auto& kopf : spalten) aus += zelle + kopf + "</td>";
    aus += "</tr>";
    aus += Zeilenende;
    SpaltenWerte w = FelderVorbereiten(spalten);
    bool hell = false;
    for (const int32_t eintrag : liste) {
        hell = !hell;
        aus += hell ? "<tr bgcolor=#ffffff>" : "<tr bgcolor=#dddddd>";
        aus += Zeilenende;
        for (size_t i = 0; i < spalten.size(); ++i) {
            if (!w.Lesen(k, eintrag, i)) continue;
            aus += "<td>";
            aus += w.wert;  // Werte gehen unverändert hinein, auch "<" und "&"
            aus += "</td>";
            aus += Zeilenende;
        }
        aus += "</tr>";
        aus += Zeilenende;
    }
    aus += "</table></body></html>";
    aus += Zeilenende;
}

void Zeile(std::string& aus, std::string_view a, std::string_view b = {}, std::string_view c = {}) {
    aus += a;
    aus += b;
    aus += c;
    aus += Zeilenende;
}

void PlsForm(std::string& aus, const Kartei& k, const std::vector<int32_t>& liste) {
    Zeile(aus, "[playlist]");
    int32_t n = 0;
    for (const int32_t eintrag : liste) {
        if (!k.DateiDaten.GültigerIndex(eintrag)) continue;
        const std::string nr = ZahlText(++n);
        Zeile(aus, "File" + nr + "=", k.DateiPfade[eintrag]);
        const DateiInfo& d = k.DateiDaten[eintrag];
        if (k.E.PlaylistFürWinamp != 1 || d.Mp3_ID3v1_Status != 1) continue;
        if (!d.Mp3_ID3v1_Interpret.empty() && !d.Mp3_ID3v1_Titel.empty())
            Zeile(aus, "Title" + nr + "=", d.Mp3_ID3v1_Interpret + " - ", d.Mp3_ID3v1_Titel);
        Zeile(aus, "Length" + nr + "=", ZahlText(d.Header_Dauer));
    }
}

void M3uForm(std::string& aus, const Kartei& k, const std::vector<int32_t>& liste) {
    const bool erweitert = k.E.PlaylistFürWinamp == 1;
    if (erweitert) Zeile(aus, "#EXTM3U");
    for (const int32_t eintrag : liste) {
        if (!k.DateiDaten.GültigerIndex(eintrag)) continue;
        const DateiInfo& d = k.DateiDaten[eintrag];
        if (erweitert && d.Mp3_ID3v1_Status == 1)
            Zeile(aus, "#EXTINF:" + ZahlText(d.Header_Dauer) + ",", d.Mp3_ID3v1_Interpret + " - ", d.Mp3_ID3v1_Titel);
        Zeile(aus, k.DateiPfade[eintrag]);
    }
}

bool DateiSchreiben(Kartei& k, const std::string& datei, const std::string& inhalt) {
    std::FILE* f = std::fopen(datei.c_str(), "wb");
    bool gut = f != nullptr && std::fwrite(inhalt.data(), 1, inhalt.size(), f) == inhalt.size();
    const int grund = errno;
    if (f != nullptr && std::fclose(f) != 0) gut = false;
    if (!gut)
        k.ui.MeldungZeigen("Die Datei '" + datei + "' konnte nicht geschrieben werden.\n\n" + std::strerror(grund),
                           Meldung::Ausrufezeichen);
    return gut;
}

void AnzeigenFragen(Kartei& k, const std::string& datei) {
    const int antwort = k.ui.MeldungZeigen(
        "Die Datei wurde gespeichert unter dem Dateinamen " + datei +
            "\n\nSie können diese Datei mit dem Programm 'Notepad' oder dem verknüpften Programm anzeigen.\n"
            "Möchten Sie diese Datei mit 'Notepad' anzeigen?\n"
            " - Klicken Sie auf 'Ja', um die Datei mit Notepad anzuzeigen\n"
            " - Klicken Sie auf 'Nein', um sie mit dem verknüpften Programm anzuzeigen.",
        Meldung::JaNeinAbbrechen);
    if (antwort != Meldung::Ja && antwort != Meldung::Nein) return;
    k.ui.TitelNachrichtZeigen("Die Datei wird angezeigt...", 750);
    // Unter Linux öffnet beides über die Zuordnung des Desktops; einen eigenen Texteditor kennt
    // der Kern nicht.
    k.shell.Öffnen(datei);
}
}  // namespace

std::string_view ExportTrenner(int16_t untermodus) {
    switch (untermodus) {
    case 0: return ",";
    case 1: return "\t";
    case 2: return ";";
    case 3: return " ";
    default: return {};
    }
}

std::string Zitieren(std::string_view text, std::string_view anführung) {
    if (text.empty()) return {};
    if (text.size() > 1 && text.find_first_not_of(text[0]) == std::string_view::npos) return {};
    std::string aus(anführung);
    aus += Trim(text);
    aus += anführung;
    return aus;
}

std::vector<std::string> ExportSpalten(const Ergebnisliste& liste) {
    std::vector<std::string> spalten;
    for (const auto& s : liste.spalten) spalten.push_back(s.tag == "b" ? "Benutzerdefiniert" : s.kopf);
    return spalten;
}

std::string ExportText(const Kartei& k, const std::vector<int32_t>& liste, const std::string& datei, int16_t modus,
                       std::string_view anführung, std::string_view trenner, const std::vector<std::string>& spalten) {
    std::string aus;
    if (modus == ExportArt::Text) TextForm(aus, k, liste, anführung, trenner, spalten);
    else if (modus == ExportArt::Html) HtmlForm(aus, k, liste, spalten);
    else if (Right(datei, 3) == "pls") PlsForm(aus, k, liste);  // Groß/Klein zählt: ".PLS" wird M3U
    else M3uForm(aus, k, liste);
    return aus;
}

bool ListeExportieren(Kartei& k, const std::vector<int32_t>& liste, const std::string& datei, int16_t modus,
                      std::string_view anführung, std::string_view trenner, const Ergebnisliste& lstSongs) {
    const std::vector<std::string> spalten = ExportSpalten(lstSongs);
    if (DoesExist(datei) && !DateiLöschenEinfach(datei)) {
        k.ui.MeldungZeigen("Die Datei '" + datei +
                               "' konnte nicht gespeichert werden, da die Datei nicht gelöscht werden kann.",
                           Meldung::Ausrufezeichen);
        return false;
    }
    if (!DateiSchreiben(k, datei, ExportText(k, liste, datei, modus, anführung, trenner, spalten))) return false;
    AnzeigenFragen(k, datei);
    return true;
}
