#pragma once
// Der Herzschlag des Hauptfensters (tmrScrollUpdate, alle 500 ms): Zustand des Spielers in der
// linken Spalte, Erkennung des gespielten Titels, regelmäßiges Speichern. Der Kern sagt, was zu
// zeigen ist; das Fenster (oder der Befehl monitor) zeigt es nur.
#include <cstdint>
#include <optional>
#include <string>

struct Kartei;

struct SpielerAnzeige {
    bool fraLinks3 = false;                   // Tafel des Spielers sichtbar
    std::optional<bool> knöpfe;               // cmdAbspielen, -Stopp, Nächster, Vorheriger
    std::optional<bool> regler;               // die drei Regler und ihre Beschriftungen
    std::optional<std::string> cmdAbspielen;  // "Spielen" oder "Pause"
    // lblWinampSteuerungTitel; aktiv: Farbe der Funktionen, unterstrichen nach Einstellung.
    std::optional<std::string> titel;
    bool titelAktiv = false;
    std::optional<std::string> position;  // lblWinampSteuerungPosition
    bool reglerSetzen = false;            // hscrlTrackPos aus k.Spieler.TrackPos… übernehmen
    bool gespeichert = false;             // das regelmäßige Speichern hat geschrieben
};

// Ein Takt. speichernErlaubt: false, solange ein Vorgang läuft (dessen Fortschrittsfenster
// würde sonst vom Speichern geschlossen).
SpielerAnzeige SpielerTakt(Kartei& k, bool speichernErlaubt);

// Die Kopfzeile der Spielertafel für einen Titel: mit " - [Erkannt]", wenn er erkannt ist.
std::string SpielerKopfzeile(const std::string& titel, bool erkannt);

// Regler der Person: Position nach dem Ziehen (nur dann), Lautstärke und Balance bei jeder
// Änderung (gemerkt in den Einstellungen).
void TrackPosGezogen(Kartei& k);
void TrackPosGeändert(Kartei& k, int32_t wert);
void LautstärkeGeändert(Kartei& k, int32_t wert);
void BalanceGeändert(Kartei& k, int32_t wert);

// Die Knöpfe der Tafel. cmdAbspielen gibt die neue Beschriftung zurück.
std::string cmdAbspielen_Click(Kartei& k, const std::string& beschriftung);
void cmdAbspielenStopp_Click(Kartei& k);
void cmdWinampNächster_Click(Kartei& k);
void cmdWinampVorheriger_Click(Kartei& k);
