#pragma once
// Die Tabelle des Index: DateiPfade, DateiDaten und DateiTreffer laufen immer im Gleichschritt.
// Jede Änderung an ihr setzt DateiGeändert; gelöscht wird der Merker nur beim Speichern und zu
// Beginn eines Ladevorgangs.
#include "app/EinsBasiert.h"

#include <cstdint>

struct Kartei;

// Alle drei Felder auf 1..neueGröße; erhalten = false beginnt mit leeren Feldern.
void IndexGrößeÄndern(Kartei& k, int32_t neueGröße, bool erhalten);

// DateiGeändert setzen (die Tabelle oder die Index-Optionen weichen von der Datei ab). Erhöht
// auch TabellenStand: wer einen Eintrag ändert, ruft dies (oder danach SucheAktualisieren).
void DateiGeändertSetzen(Kartei& k);

// Wachstum beim Füllen: 1000 Plätze zu Beginn, dann 2100, 4100, 6100, … Der Zähler gehört
// dem Ladevorgang.
struct TabellenWachstum {
    int32_t zähler = 100;
};
inline constexpr int32_t TabelleAnfangsgröße = 1000;
// Vergrößert die Tabelle, wenn nummer über der Obergrenze liegt.
void TabelleFürNummerVergrößern(Kartei& k, int32_t nummer, TabellenWachstum& wachstum);
// Schneidet die Tabelle nach dem Füllen auf anzahl zu (bei 0 bleiben die Plätze).
void TabelleZuschneiden(Kartei& k, int32_t anzahl);
// Platz für erwartet Einträge vorab holen, ohne die Obergrenze zu ändern: spart das Umkopieren
// beim Wachsen. Schlägt still fehl, wenn der Speicher dafür nicht reicht.
void TabelleVorbereiten(Kartei& k, int64_t erwartet);

// Zwei Einträge in allen drei Feldern tauschen (Sortieren).
void EinträgeTauschen(Kartei& k, int32_t a, int32_t b);
// Entfernt die Einträge einer Entfernliste (Nummern ab 1, 0 = Platz bleibt, doppelte Nummern
// schaden nicht). Reihenfolge bleibt, DateiAnzahl und Obergrenze werden angepasst.
// Ergebnis: Zahl der entfernten Einträge.
int32_t EinträgeEntfernen(Kartei& k, const EinsBasiert<int32_t>& entfernen);
