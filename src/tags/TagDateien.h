#pragma once
// Was vor und nach dem Schreiben eines Tags in eine Datei gilt, gleich ob der Tag-Editor oder die
// Kommandozeile schreibt.
#include <string>
#include <string_view>

struct Kartei;

// Die Frage vor dem Speichern in eine Datei, deren Endung keine Tags erwarten lässt (Ja/Nein,
// Warnzeichen). true: schreiben – der Typ passt, oder die Person hat Ja gesagt.
bool TagDateitypFragen(Kartei& k, const std::string& pfad);

// Steht pfad im Index, werden seine Einträge aus der Datei neu gelesen und der Index (ohne
// Fortschritt) gespeichert. false nur, wenn das Speichern scheitert.
bool IndexEintragAuffrischen(Kartei& k, const std::string& pfad);

// Zu welchem Tag ein Feld des Datensatzes gehört: 1 ID3v1 ("Mp3_ID3v1_…"), 2 ID3v2
// ("Mp3_ID3v2_…"), 0 keinem.
int TagDesFeldes(std::string_view name);
