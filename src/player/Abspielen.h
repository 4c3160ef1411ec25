#pragma once
// Abspielen, an die Playlist anhängen, mit einem Programm ausführen oder als Bild zeigen: der
// eine Weg, auf dem Einträge des Index zum Spieler kommen. Die Audiodateien gehen über eine
// M3U-Datei in $XDG_CACHE_HOME/klangkartei an den Spieler.
#include "app/EinsBasiert.h"

#include <cstdint>
#include <functional>
#include <string>

struct Kartei;

// Dateien: Eintragsnummern ab 1. Hinzufügen: nur anhängen, nicht spielen. Ausführen: mit dem
// Standardprogramm bzw. Programm öffnen. NeuePlaylist (Umschalt): die Playlist des Spielers
// vorher leeren. false nur, wenn ein Fehler den Vorgang beendet hat (die Meldung kam schon).
bool AbspielenMediaPlayer(Kartei& k, const EinsBasiert<int32_t>& Dateien, bool Hinzufügen, bool Ausführen,
                          bool NeuePlaylist, const std::string& Programm);

// Beginnt die Playlist-Datei (mit "#EXTM3U", wenn eingestellt). false ohne Spielerprogramm
// (nach einer Meldung); die Datei ist dann nicht offen.
bool DateienAbspielenHinzufügen(Kartei& k);
// Schreibt die Zeilen des Eintrags Dateien(Nummer). false, wenn er nicht verfügbar ist oder keine
// Datei offen ist (dann steht k.Spieler.PlaylistFehler).
bool PlaylistEintragSchreiben(Kartei& k, const EinsBasiert<int32_t>& Dateien, int32_t Nummer);
// Schließt die Datei und gibt sie dem Spieler: angehängt oder zum Spielen, ohne Fokus gestartet
// oder über die Shell.
bool PlaylistÜbergeben(Kartei& k, bool Hinzufügen, bool OhneFokus);
// $XDG_CACHE_HOME/klangkartei/klangkartei.m3u (ohne die Variable ~/.cache/…).
std::string PlaylistPfad();

// Doppelklick und Eingabetaste in der Liste, nach BeiDoppelklick. tagEditor öffnet die
// Datei-Infos (Fall 3).
bool BeiDoppelklickAusführen(Kartei& k, const EinsBasiert<int32_t>& Dateien, bool Umschalt,
                             const std::function<void()>& tagEditor);

// "Ausführen mit": fragt nach dem Programm (vorbelegt mit dem zuletzt benutzten) und öffnet die
// Dateien damit. false bei Abbruch.
bool EintragAusführenMit(Kartei& k, const EinsBasiert<int32_t>& Dateien);
// Prüft die Eingabe des Dialogs: leer oder nicht vorhanden gibt eine Meldung und false; sonst
// wird das Programm als zuletzt benutzt gemerkt.
bool AusführenMitPrüfen(Kartei& k, const std::string& programm);
