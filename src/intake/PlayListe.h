#pragma once
// Playlisten einlesen (M3U und PLS mit einer Zeilenregel für beide) und die neuen Einträge in
// der Ergebnisliste markieren.
#include <cstdint>
#include <string>

struct Kartei;
struct Ergebnisliste;

// Jede Zeile ab fünf Zeichen, die nicht mit "#" beginnt, ist ein Pfad: mit führendem "/" ein
// voller, sonst einer relativ zum Ordner der Playliste, dann zu deren Wurzel. Was es gibt, geht
// in DateienZurListeHinzufügen; "File1=..."-Zeilen einer PLS-Datei sind kein Pfad und fallen
// so heraus. Zeilen enden auf CR LF oder LF. Am Ende (auch bei meldung = false) steht
// "N Datei(en) hinzugefügt" in der Statuszeile. false: abgebrochen oder nicht lesbar.
bool PlayListLesen(Kartei& k, const std::string& datei, bool listeAktualisieren, bool meldung, bool neueMarkieren);

// Markiert die Zeilen, deren Eintrag zu den letzten anzahl der Tabelle gehört, hebt jede andere
// Markierung auf und holt die letzte neue Zeile ins Bild. Mehr neue als Zeilen: nichts geschieht.
void NeueInListeMarkieren(Kartei& k, int32_t anzahl, Ergebnisliste& lstSongs);
