#pragma once
// Eine halb geschriebene temporäre Datei (Index, "-neu" einer Tag-Schreibung) soll nicht liegen
// bleiben, wenn das Programm mitten im Schreiben durch SIGINT, SIGTERM oder SIGHUP endet.
// Es gibt höchstens eine zur Zeit: geschrieben wird nacheinander.

// pfad wird gelöscht, falls eines der Signale kommt, bis HalbeDateiFertig gerufen wird.
void HalbeDateiMerken(const char* pfad);
void HalbeDateiFertig();
// Richtet die Signale ein (einmal beim Start der Kommandozeile); danach endet das Programm wie
// ohne Einrichtung durch das Signal.
void HalbeDateiSignaleEinrichten();
