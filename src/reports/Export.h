#pragma once
// Export einer Liste von Einträgen als getrennter Text, als HTML-Tabelle oder als Playliste.
// Die Spalten von Text und HTML sind die der Hauptliste, in ihrer Anzeigereihenfolge.
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

struct Kartei;
struct Ergebnisliste;

// Exportart, wie ExportModus sie speichert.
namespace ExportArt {
constexpr int16_t Text = 0, Html = 1, Playliste = 2;
}

// Die Trenner der Textform nach ExportUntermodus: 0 Komma, 1 Tabulator, 2 Semikolon, 3 Leerzeichen.
// Leer außerhalb.
std::string_view ExportTrenner(int16_t untermodus);

// Leer für einen leeren Text und für einen Text aus einem mehrfach wiederholten Zeichen ("-----");
// sonst anführung & Text ohne äußere Leerzeichen & anführung.
std::string Zitieren(std::string_view text, std::string_view anführung);

// Die Spaltenliste: je Spalte der Liste in Anzeigereihenfolge ihre Überschrift, bei Tag "b"
// "Benutzerdefiniert".
std::vector<std::string> ExportSpalten(const Ergebnisliste& liste);

// Schreibt die Einträge liste (Indexpositionen) nach datei. modus: ExportArt. anführung: "" oder
// ein Anführungszeichen; trenner: das Trennzeichen der Textform. Eine vorhandene Datei wird
// ersetzt; lässt sie sich nicht löschen oder schreiben, kommt eine Meldung und das Ergebnis ist
// false (eine halb geschriebene Datei bleibt dann, wie sie ist). Danach fragt die Routine, ob die
// Datei angezeigt werden soll. Zeilen enden mit CR LF.
bool ListeExportieren(Kartei& k, const std::vector<int32_t>& liste, const std::string& datei, int16_t modus,
                      std::string_view anführung, std::string_view trenner, const Ergebnisliste& lstSongs);

// Nur der Inhalt der Datei, wie ListeExportieren ihn schreibt (für Tests und Messungen).
std::string ExportText(const Kartei& k, const std::vector<int32_t>& liste, const std::string& datei, int16_t modus,
                       std::string_view anführung, std::string_view trenner, const std::vector<std::string>& spalten);

// Was frmExportieren gewählt hat: modus/untermodus -1 = nichts gewählt.
struct ExportWahl {
    int16_t modus = -1;
    int16_t untermodus = -1;
    bool anführung = false;
    std::string datei;
};
// Die Wahl aus den gespeicherten Einstellungen (ExportDatei, ExportModus, …), zum Vorbelegen.
ExportWahl ExportWahlAusEinstellungen(const Kartei& k);
// Die Endung von datei passend zur Art: ".csv"/".txt", ".htm"/".html", ".m3u"/".pls" bleiben,
// sonst wird die Endung ersetzt (Text .csv, HTML .htm, Playliste .m3u). Leer bleibt leer.
std::string ExportEndungAnpassen(const std::string& datei, int16_t modus);
// ListeExportieren mit der Wahl: Trenner und Anführung gelten nur für die Textform.
bool WahlExportieren(Kartei& k, const ExportWahl& w, const std::vector<int32_t>& liste, const Ergebnisliste& lstSongs);
// cmdOk: prüft die Wahl (Meldung bei Lücken), speichert sie in den Einstellungen, fragt vor dem
// Überschreiben und exportiert liste. true: fertig, der Dialog schließt sich.
bool ExportDialogAusführen(Kartei& k, const ExportWahl& w, const std::vector<int32_t>& liste,
                           const Ergebnisliste& lstSongs);
