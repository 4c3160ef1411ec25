#pragma once
// Der Programmstart ohne Fensterarbeit: Einstellungen, Kommandozeile, Reparatur der
// Spielerwerte, erster Start oder Update, Begrüßung, Willkommen und Tipp. Das Fenster und die
// Kommandozeile rufen das auf; dazwischen öffnet der Aufrufer den Index (IndexÖffnen).
#include "app/Kartei.h"

#include <cstdint>
#include <string>
#include <vector>

// Was das Hauptfenster nach dem Öffnen des Index braucht.
struct StartDaten {
    bool fensterZentrieren = false;  // erster Start oder neue Version
    bool geometrieAnwenden = false;  // FensterWidth und FensterHeight sind gespeichert
    bool maximieren = false;         // FensterMax ist 1
    std::string begrüßung;           // Statuszeile, 500 Einheiten lang
    bool willkommenZeigen = false;   // frmWillkommen modal
    int16_t tipp = 0;                // Nummer des Tipps für frmHinweise, 0 = keiner
};

// Die Kommandozeile aus den Argumenten (ohne Programmnamen): mit einem Leerzeichen verbunden;
// beginnt sie mit einem Anführungszeichen, fallen das erste und das letzte Zeichen weg.
// Leer: kein Index genannt.
std::string KommandozeileLesen(const std::vector<std::string>& argumente);

// "10" für Version 1.0: Haupt- und Nebenversion als Text hintereinander.
std::string VersionsStartText();
// Die Zahl, die dieser Text liest (10), für den Wert Start.
int16_t VersionsStart();

// Vor dem Index: Zeit des Starts als letzte Speicherung, EinstellungenLesen, Kommandozeile.
// Ein genannter Index wird k.Dateiname, für diesen Lauf und (gespeichert) den nächsten.
void StartVorbereiten(Kartei& k, const std::vector<std::string>& argumente);

// Lautstärke außerhalb 0..255 wird 128, Balance außerhalb -128..128 wird 0.
void SpielerEinstellungenReparieren(Kartei& k);

// Statuszeile nach dem Start, je nachdem, ob der Index Einträge hat.
std::string BegrüßungsText(const Kartei& k);

// Der nächste Tipp: TippsAktueller 0 bleibt 0 (keine Tipps). Sonst eins weiter, oder zurück
// auf 1, wenn die Zahl der Tipps erreicht ist. Speichert ihn in TippsAktueller.
int16_t NächsterTipp(Kartei& k, int32_t tippAnzahl);

// Nach dem Index: Reparatur, Entscheidungen fürs Fenster, Tipp weiterzählen, zuletzt
// Start = VersionsStart(). Die Entscheidungen sehen Start noch vor dieser Änderung.
StartDaten StartAbschließen(Kartei& k, int32_t tippAnzahl);
