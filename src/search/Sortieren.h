#pragma once
// Sortieren der Tabelle selbst (nicht nur der Ansicht) nach einer Spalte, aufsteigend;
// absteigend durch Umdrehen beim zweiten Klick auf dieselbe Spalte.
#include <cstdint>
#include <string>

struct Kartei;

// Sortiert die Einträge Von..Bis nach dem Feld Spalte (Hoare, Pivot (Von + Bis) / 2). Die
// Schlüssel werden einmal geholt (Sortierform), verglichen nach ihrer Art: Text in Großschrift,
// Zahl über ZahlLesen, Datum und Datum mit Zeit als Sortiertext, Dauer als Sekunden. Jeder
// Teilaufruf meldet Von an die Fortschrittsanzeige; sagt sie "aufhören", bleibt die Tabelle halb
// sortiert. Jeder Tausch setzt DateiGeändert.
void QSort(Kartei& k, const std::string& Spalte, int32_t Von, int32_t Bis);
// Beim zweiten Sortieren nach derselben Spalte die Tabelle bis zu ihrer Obergrenze umdrehen;
// merkt sich Spalte und kippt SortierUmkehren.
void SortierungUmkehrenPrüfen(Kartei& k, const std::string& Spalte);
// Klick auf den Spaltenkopf spalte (ab 0, Anzeigereihenfolge) von k.Liste.lstSongs.
void lstSongs_ColumnClick(Kartei& k, int32_t spalte);
// Derselbe Klick, mit Kopftext und Tag der Spalte.
void SpalteSortieren(Kartei& k, const std::string& kopf, const std::string& tag);
// Derselbe Klick auf die Spalte nummer (1..30) der Spaltentabelle; eine ausgeblendete Spalte mit
// dem Kopf, den sie beim Einblenden bekäme.
void SpalteNachNummerSortieren(Kartei& k, int32_t nummer);
