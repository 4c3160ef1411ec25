#pragma once
// Die Regeln von frmIndexOptionen: Dateitypen (eingebaute Zeilen geschützt), Abgleich-Ordner,
// Spalten, Beschreibungsleiste, Gitter, Format der eigenen Spalte, Doppelklick. Das Fenster
// zeigt eine Arbeitskopie und reicht sie zum Übernehmen zurück.
#include "index/Spalten.h"

#include <cstdint>
#include <string>
#include <vector>

struct Kartei;
struct Ergebnisliste;

struct DateitypZeile {
    std::string endung;  // klein, ohne "="; leer bei einer neuen Zeile
    bool an = false;     // Dateien dieses Typs kommen in den Index
    std::string klasse = "000";
    bool eingebaut = false;     // eine der Vorgabezeilen: Endung und Klasse bleiben
    bool alleWeiteren = false;  // die Zeile "*"
};

struct SyncZeile {
    std::string ordner;
    bool unterordner = true;
    bool kopieren = false;  // neue Dateien in ziel kopieren
    std::string ziel;
};

struct IndexOptionenEingabe {
    std::vector<DateitypZeile> typen;
    std::vector<SyncZeile> sync;
    std::vector<SpaltenWahl> spalten;
    bool chkBeschreibungsleiste = true;
    bool chkGitter = false;
    std::string txtSpaltenBenutzerFormat;
    int16_t BeiDoppelklick = 0;  // 0/1 Media-Player, 2 Standard-Player, 3 TAG-Editor, 4 Ausführen
    bool chkSyncDanachEntfernen = true;
};

// Ohne geladenen Index die Meldung und false.
bool IndexOptionenÖffnenPrüfen(Kartei& k);
IndexOptionenEingabe IndexOptionenEinsetzen(Kartei& k);

// Text der Zeile in lstDateitypen.
std::string DateitypAnzeige(const DateitypZeile& z);
// cmdDateitypenHinzufügen: eine Zeile "(Neuer Dateityp)" am Ende; ihre Nummer (ab 0).
int32_t DateitypHinzufügen(IndexOptionenEingabe& e);
// Nur eigene Zeilen dürfen ihre Endung und Klasse ändern.
bool DateitypÄnderbar(const DateitypZeile& z);
// Eine eingetippte Endung: ohne Punkt davor und Leerzeichen, klein.
std::string DateitypEndungNormal(const std::string& text);
// cmdDateitypenEntfernen (zeile ab 0, -1 = keine gewählt): Meldungen und Frage; true, wenn entfernt.
bool DateitypEntfernen(Kartei& k, IndexOptionenEingabe& e, int32_t zeile);

// cmdSyncOrdnerHinzufügen (neu) und cmdSyncOrdnerÄndern (zeile ab 0): Ordner wählen lassen; true,
// wenn gewählt. zeile ist danach die Nummer der neuen oder geänderten Zeile.
bool SyncOrdnerWählen(Kartei& k, IndexOptionenEingabe& e, bool neu, int32_t& zeile);
bool SyncOrdnerEntfernen(Kartei& k, IndexOptionenEingabe& e, int32_t zeile);

// cmdOk: prüfen (Meldung und false: der Dialog bleibt), übernehmen, Liste neu einrichten,
// Statuszeile, DateiGeändert.
bool IndexOptionenÜbernehmen(Kartei& k, const IndexOptionenEingabe& e, Ergebnisliste& liste);

// Die Wahl der Knöpfe (1 Media-Player, 2 Standard-Player, 3 TAG-Editor, 4 Ausführen) als Wert von
// BeiDoppelklick; eine 0 bleibt 0, solange der Media-Player gewählt ist.
int16_t DoppelklickWert(int16_t bisher, int16_t wahl);
