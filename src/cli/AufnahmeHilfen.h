#pragma once
// Gemeinsames der Befehle add und import.
struct CliKontext;

// Gibt den Statustext des Laufs ("N Datei(en) hinzugefügt") auf stdout aus und speichert den
// Index, wenn er sich geändert hat. Rückgabe des Befehls: 0, oder 1 wenn das Speichern scheitert.
int AufnahmeAbschließen(CliKontext& c);
