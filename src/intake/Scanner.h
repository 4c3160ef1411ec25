#pragma once
// Der Ordner-Durchlauf: sammelt die vollen Pfade aller Dateien eines Ordners (auf Wunsch mit
// seinen Unterordnern), deren Name auf eine der Masken endet, in k.Aufnahme.Suchliste.
#include "app/EinsBasiert.h"

#include <cstdint>
#include <string>

struct Kartei;

// modus 1 leert die Liste (eintrag wird nicht beachtet), jeder andere Modus hängt eintrag an.
// Die Liste wächst in Schritten von 1000. Ergebnis immer true.
bool SuchlisteHinzufügen(Kartei& k, const std::string& eintrag, int16_t modus);

// Trifft die Maske den Dateinamen? Der Name muss länger als die Maske sein; gesucht wird ohne
// Groß/Klein ab einem Zeichen vor dem Ende, so dass hinter der Maske noch ein Zeichen stehen darf.
bool MaskePasst(const std::string& name, const std::string& maske);

// Durchsucht pfad (hängt dem Text des Aufrufers ein fehlendes "/" an). masken: Namensenden wie
// ".kkt"; eine leere erste Maske (oder keine) nimmt jede Datei. Nur unterordner == 1 steigt ab.
// Innerhalb eines Ordners in Byte-Reihenfolge der Namen, seine Dateien vor denen der Unterordner.
// fortschrittBeachten: FortschrittZeigen je Schritt, false davon bricht ab.
// false: auf dieser Ebene abgebrochen; was gesammelt ist, bleibt in der Suchliste.
// Ein Ordner, der fehlt oder sich nicht lesen lässt, zählt als leer.
bool DateienSuchenAPI(Kartei& k, std::string& pfad, const EinsBasiert<std::string>& masken, int16_t unterordner,
                      bool fortschrittBeachten);
