#pragma once
// Was das Hauptfenster über die Auswahl wissen muss, ohne Fenster: die Zusammenfassung der
// Auswahl (lblIndexdateiUntertitel1/2), die Regeln der Kontextmenüs (MenüAktualisieren), die
// Auswahlhelfer mnu_wähle… und die Suchen des Menüs "Datei-Funktionen".
// Die Auswahl kommt als AusgewählteDateien (Eintragsnummern ab 1) und AusgewähltAnzahl.
#include "app/EinsBasiert.h"

#include <cstdint>
#include <string>

struct Kartei;
struct Ergebnisliste;

// --- Zusammenfassung der Auswahl (AuswahlBeschreibungAnzeigen) ---
enum class BeschreibungsFarbe { Normal, Funktionen, Beschreibungen };
struct AuswahlBeschreibung {
    std::string text1;  // lblIndexdateiUntertitel1
    bool fett1 = false;
    BeschreibungsFarbe farbe1 = BeschreibungsFarbe::Normal;
    bool unterstrichen1 = false;
    bool hand1 = false;  // Hand-Mauszeiger: ein Verweis
    std::string text2;   // lblIndexDateiUntertitel2
    BeschreibungsFarbe farbe2 = BeschreibungsFarbe::Normal;
    bool hand2 = false;
    bool nurBeiAusgewähltSichtbar = false;  // fraNurBeiAusgewählt
};
// Liest nur die Pfade der Einträge; braucht weder Datei noch Tag.
AuswahlBeschreibung AuswahlBeschreibungBerechnen(const Kartei& k, const EinsBasiert<int32_t>& AusgewählteDateien,
                                                 int32_t AusgewähltAnzahl);

// --- Zustand der Menüs vor dem Aufklappen (MenüAktualisieren) ---
struct MenüZustand {
    bool mnu_song_mitdiesemnamen = false;
    bool mnu_song_allesongsimordner = false;
    bool mnu_song_allesongsmittitel = false;
    bool mnu_song_allesongsvonalbum = false;
    bool mnu_song_allesongsvoninterpret = false;
    bool mnu_song_zwischenablage = false;
    bool mnu_song_InfosInternet = false;
    bool mnu_song_wähletrennzeichen2 = false;
    bool mnu_wähleabhier = false;
    bool mnu_wählebishier = false;
};
// NurTitel: der Aufruf vom Titel des Spielers, dann gilt nur "mit diesem Namen".
MenüZustand MenüAktualisieren(const Kartei& k, bool NurTitel, const EinsBasiert<int32_t>& AusgewählteDateien,
                              int32_t AusgewähltAnzahl);

// --- Auswahlhelfer auf der Liste (die Aufrufer aktualisieren danach Auswahl und Zusammenfassung) ---
void mnu_wählealle(Ergebnisliste& liste);
void mnu_wählekeine(Ergebnisliste& liste);
void mnu_wähleumkehren(Ergebnisliste& liste);
// Von der letzten gewählten Zeile bis zur letzten Zeile alles wählen.
void mnu_wähleabhier(Ergebnisliste& liste);
// Von der ersten Zeile bis zur letzten gewählten Zeile alles wählen.
void mnu_wählebishier(Ergebnisliste& liste);

// --- Suchen aus "Datei-Funktionen": welches Feld von cboSuche mit welchem Text ---
enum class SongSuche { Titel, Interpret, Album, Ordner };
struct SongSucheZiel {
    int32_t feld = 0;  // Eintrag von cboSuche (ab 0)
    std::string text;
};
// Braucht genau einen gewählten Eintrag; sonst die Meldung "Bitte wählen Sie eine Datei." und false.
bool SongSucheBestimmen(Kartei& k, SongSuche art, const EinsBasiert<int32_t>& AusgewählteDateien,
                        int32_t AusgewähltAnzahl, SongSucheZiel& ziel);
// mnu_song_mitdiesemnamen: der spielende Titel mit " - " durch ein Leerzeichen ersetzt, in der
// Standardsuche.
SongSucheZiel SongSucheNachNamen(const std::string& spielenderTitel);

// Der Pfad des einen gewählten Eintrags für die Zwischenablage; leer ohne genau einen.
std::string ZwischenablagePfad(const Kartei& k, const EinsBasiert<int32_t>& AusgewählteDateien,
                               int32_t AusgewähltAnzahl);
