#pragma once
// Der ganze geteilte Zustand des Programms in einem Objekt: die Tabelle, je Teilsystem eine
// Struktur und die Dienste nach außen. Jede Routine nimmt ihn als ersten Parameter.
#include "app/DateiInfo.h"
#include "app/Datum.h"
#include "app/Dienste.h"
#include "app/EinsBasiert.h"
#include "app/Oberflaeche.h"
#include "index/IndexOptionen.h"
#include "index/IndexZugriff.h"
#include "intake/AufnahmeZustand.h"
#include "player/SpielerZustand.h"
#include "search/SuchZustand.h"
#include "settings/Einstellungen.h"
#include "shell/FortschrittZustand.h"

#include <cstdint>
#include <string>

// Programmtitel für Meldungen, Einstellungen und Fenster.
inline constexpr const char* ProgrammTitel = "KlangKartei";
// Der Name des Produkts, wie er in Exporten und im Software-Feld der Tags steht.
inline constexpr const char* ProduktName = "Klangkartei";
// Die Web-Adresse des Programms (Link der HTML-Überschrift, Link-Feld der Tags).
inline constexpr const char* ProgrammWebAdresse = "https://klangkartei.example.org/";
// "KlangKartei 1.0"
std::string ProgrammTitelMitVersion();

struct Dienste {
    Oberfläche& ui;
    Registrierung& registrierung;
    Spielerfenster& spieler;
    Shell& shell;
    Datenträger& datenträger;
    Uhr& uhr;
    Zufall& zufall;
};

struct Kartei {
    explicit Kartei(const Dienste& d)
        : ui(d.ui), registrierung(d.registrierung), spieler(d.spieler), shell(d.shell), datenträger(d.datenträger),
          uhr(d.uhr), zufall(d.zufall) {}
    Kartei(const Kartei&) = delete;
    Kartei& operator=(const Kartei&) = delete;

    // Die Tabelle: drei parallele Felder ab 1, immer mit gleicher Obergrenze.
    EinsBasiert<KText> DateiPfade;  // Bytes des Dateisystems, kein UTF-8 nötig
    EinsBasiert<DateiInfo> DateiDaten;
    EinsBasiert<int16_t> DateiTreffer;
    int32_t DateiAnzahl = 0;
    bool DateiGeändert = false;
    // Zählt Änderungen der Tabelle (IndexGrößeÄndern, DateiGeändertSetzen, SucheAktualisieren);
    // daran erkennt die Suche, ob ihr Zwischenspeicher noch stimmt.
    uint64_t TabellenStand = 0;

    std::string Dateiname;    // Pfad des offenen Index
    Datum LetzteSpeicherung;  // Programmstart bzw. letzte Speicherung

    IndexOptionen Optionen;
    IndexDateiZugriff IndexZugriff;  // Sperre, Stand beim Laden, ob überhaupt ein Index geladen ist
    Einstellungen E;
    SuchZustand Suche;
    ListenZustand Liste;
    SpielerZustand Spieler;
    AufnahmeZustand Aufnahme;
    FortschrittZustand Fortschritt;

    Oberfläche& ui;
    Registrierung& registrierung;
    Spielerfenster& spieler;
    Shell& shell;
    Datenträger& datenträger;
    Uhr& uhr;
    Zufall& zufall;
};
