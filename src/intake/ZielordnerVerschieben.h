#pragma once
// Ordner mit Zielordner (Abgleich): jede gefundene Datei wird vor dem Aufnehmen in den Zielordner
// verschoben, der Baum unter dem Ordner bleibt erhalten.
#include <cstdint>
#include <string>

struct Kartei;

// Verschiebt Suchliste[i] aus ordner nach zielordner und trägt den neuen Pfad dort ein.
// true: die Datei aufnehmen (am neuen Platz, oder nach "Ja" auf die Fehlerfrage am alten);
// false: die Schleife verlassen (ungültiger Zielordner oder "Nein").
bool InZielordnerVerschieben(Kartei& k, std::string ordner, std::string zielordner, int32_t i);
