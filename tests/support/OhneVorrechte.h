#pragma once
// Schreibschutz lässt sich nur ohne Vorrechte prüfen: root darf jede Datei ändern.
#include <functional>
#include <string>

// Führt f in einem Kindprozess aus, als Nutzer nobody, wenn der Test als root läuft, und gibt
// sein Ergebnis zurück ("<Kindprozess gescheitert>", wenn das Kind nicht sauber endet). Im Kind
// keine EXPECT-Makros: nur das Ergebnis zählt.
std::string OhneVorrechteAusführen(const std::function<std::string()>& f);
