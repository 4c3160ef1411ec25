#pragma once
// Pfade unter Linux: "/" trennt, ein voller Pfad beginnt mit "/".
#include <string>
#include <string_view>

// Text vor dem letzten "/", leer wenn keiner.
std::string PfadZurückgeben(std::string_view pfad);
// Text hinter dem letzten "/", der ganze Text wenn keiner.
std::string DateinameAusPfad(std::string_view pfad);
// Vom letzten "." an, mit Punkt; leer ohne Punkt oder wenn danach noch ein "/" kommt.
std::string DateiEndung(std::string_view pfad);
// Dasselbe ohne Kopie, für heiße Schleifen (Suche, Sortieren): Ansichten in pfad hinein.
std::string_view PfadZurückgebenSicht(std::string_view pfad);
std::string_view DateinameAusPfadSicht(std::string_view pfad);
std::string_view DateiEndungSicht(std::string_view pfad);
// Pfade sind Bytes des Dateisystems. Als Text (Anzeige, Suche, Sortieren, Muster) gelten sie als
// UTF-8, was keines ist als Windows-1252; hängt diesen Text an ziel an.
void PfadTextAnhängen(std::string& ziel, std::string_view pfad);
// Dasselbe als neuer Text, für Meldungen.
std::string PfadText(std::string_view pfad);
// Ein voller Pfad beginnt mit "/".
bool IstVollerPfad(std::string_view pfad);

// Eine Datei (kein Ordner) ist da.
bool DoesExist(std::string_view pfad);
// Der Pfad ist ein Ordner.
bool IstOrdner(std::string_view pfad);
// Schreibschutz aufheben und löschen; true, wenn die Datei danach nicht mehr da ist.
bool DateiLöschenEinfach(std::string_view pfad);
// Größe der Datei in Bytes, -1 wenn sie fehlt.
long long DateiGrößeLesen(std::string_view pfad);
