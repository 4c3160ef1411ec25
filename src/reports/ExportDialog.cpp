// Die Entscheidungen von frmExportieren: Prüfen der Wahl, Endungen, Überschreiben.
#include "app/Kartei.h"
#include "app/Pfade.h"
#include "reports/Export.h"

ExportWahl ExportWahlAusEinstellungen(const Kartei& k) {
    ExportWahl w;
    w.modus = k.E.ExportModus;
    w.untermodus = k.E.ExportUntermodus;
    w.anführung = k.E.ExportStriche == 1;
    w.datei = k.E.ExportDatei;
    return w;
}

std::string ExportEndungAnpassen(const std::string& datei, int16_t modus) {
    if (datei.empty()) return datei;
    static const char* const endungen[3][2] = {{".csv", ".txt"}, {".htm", ".html"}, {".m3u", ".pls"}};
    if (modus < 0 || modus > 2) return datei;
    const std::string alt = DateiEndung(datei);
    for (const char* e : endungen[modus])
        if (alt == e) return datei;
    return datei.substr(0, datei.size() - alt.size()) + endungen[modus][0];
}

bool ExportDialogAusführen(Kartei& k, const ExportWahl& w, const std::vector<int32_t>& liste,
                           const Ergebnisliste& lstSongs) {
    const auto hinweis = [&k](const std::string& text) {
        k.ui.MeldungZeigen(text, Meldung::Information);
        return false;
    };
    if (w.datei.empty()) return hinweis("Bitte geben Sie einen Dateinamen ein.");
    if (w.modus == ExportArt::Text && ExportTrenner(w.untermodus).empty())
        return hinweis("Bitte wählen Sie das Unterformat zur Auswahl 'Text'.");
    if (w.modus < ExportArt::Text || w.modus > ExportArt::Playliste)
        return hinweis("Bitte wählen Sie ein Export-Format.");
    const bool text = w.modus == ExportArt::Text;
    k.E.ExportDatei = w.datei;
    k.E.ExportModus = w.modus;
    if (text) k.E.ExportUntermodus = w.untermodus;
    k.E.ExportStriche = w.anführung ? 1 : 0;
    if (DoesExist(w.datei) &&
        k.ui.MeldungZeigen("Die Datei '" + w.datei + "' existiert bereits.\n\nMöchten Sie diese überschreiben?",
                           Meldung::JaNeinAusruf) != Meldung::Ja)
        return false;
    return WahlExportieren(k, w, liste, lstSongs);
}

bool WahlExportieren(Kartei& k, const ExportWahl& w, const std::vector<int32_t>& liste, const Ergebnisliste& lstSongs) {
    const bool text = w.modus == ExportArt::Text;
    return ListeExportieren(k, liste, w.datei, w.modus, text && w.anführung ? "\"" : "",
                            text ? ExportTrenner(w.untermodus) : "", lstSongs);
}
