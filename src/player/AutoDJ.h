#pragma once
// AutoDJ: aus den Abspielzahlen einer Genre-Auswahl eine kurze, gemischte Liste vorschlagen.
#include "search/ListeErstellen.h"

#include <cstdint>
#include <string>
#include <vector>

struct Kartei;

// Der letzte Eintrag der Genre-Liste; gewählt steht er für das leere Genre.
inline constexpr const char* AutoDJOhneGenre = "(Dateien ohne Genre)";

// Die Felder der ersten Seite, wie sie dort stehen (Zahlen als Text, geprüft wird beim Erstellen).
struct AutoDJOptionen {
    std::vector<std::string> Genres;  // die gewählten Einträge von lstFelder
    std::string txtMaximum;
    std::string txtZeit;         // leer: kein Zeitfenster
    int32_t cboZeiteinheit = 2;  // 0 Minuten, 1 Stunden, 2 Tage
    bool chkAlteSeltener = false;
    bool chkSehrAlteHäufiger = false;
};

// Eine Zeile von lstGefunden: der Text "Interpret - Titel" und die Eintragsnummer dahinter.
struct AutoDJZeile {
    int32_t eintrag = 0;
    std::string text;
};

// Was die Detailzeilen unter lstGefunden zu einer Auswahl zeigen.
struct AutoDJDetails {
    std::string lblDatei1, lblDateiname1, lblStatistik;
};

// lstFelder: die Werte von "Genre-ID3v2" und "Genre" ohne Doppelte, dahinter AutoDJOhneGenre.
std::vector<std::string> AutoDJGenreListe(Kartei& k);
// Die Felder aus den Einstellungen; eine gespeicherte Einheit außerhalb 0..2 gibt Tage.
AutoDJOptionen AutoDJOptionenLaden(const Kartei& k);
// Zahlen, Einheit und beide Schalter zurück in die Einstellungen (beim Schließen).
void AutoDJOptionenSpeichern(Kartei& k, const AutoDJOptionen& o);

// Die Berechnung hinter "Weiter >". false: eine Eingabe fehlt oder es gibt keine Nutzungsdaten;
// die Meldung ist dann schon gezeigt und zeilen bleibt leer. Sonst steht die Liste in zeilen
// (auch leer, wenn das Zeitfenster alle ausschließt). Einträge ohne ID3v1-Tag fehlen in ihr.
bool AutoDJErstellen(Kartei& k, const AutoDJOptionen& o, std::vector<AutoDJZeile>& zeilen);

// Die Details zu den markierten Einträgen (keiner: die Grundstellung).
AutoDJDetails AutoDJAuswahlDetails(const Kartei& k, const std::vector<int32_t>& auswahl);
