#pragma once
// Suche nach Mehrfacheinträgen, fehlenden Dateien und Dateien ohne Tag in der Ergebnisliste
// (frmIndexVerwaltung). Jeder Treffer ist ein Paar von Indexpositionen oder eine einzelne.
#include "search/ListeErstellen.h"

#include <cstdint>
#include <string>
#include <vector>

struct Kartei;

// Die zehn Suchmethoden in der Reihenfolge von cboSuchmethode.
namespace Suchmethode {
constexpr int16_t Dateiname = 0, PfadUndDateiname = 1, Id3v1Felder = 2, Id3v2Felder = 3, Dateigröße = 4,
                  NichtVorhanden = 5, OhneId3v1Index = 6, OhneId3v1Datei = 7, OhneId3v2Index = 8, OhneId3v2Datei = 9,
                  Anzahl = 10;
}

// Die Listentexte von cboSuchmethode, Position 0..9.
const std::vector<std::string>& SuchmethodenTexte();
// Methoden 0..4 finden Paare, 5..9 einzelne Dateien.
bool PaarMethode(int16_t methode);

struct DuplikatTreffer {
    int32_t datei1 = 0;  // Indexposition
    int32_t datei2 = 0;  // zweite Position bei Paaren, sonst 0
};

// Durchsucht die Einträge liste (Indexpositionen in Listenreihenfolge) nach der Methode, mit
// abbrechbarer Fortschrittsanzeige. Bei Paaren bildet jeder Eintrag höchstens ein Paar, mit dem
// ersten späteren gleichen: aus a, b, c werden (a, b) und (b, c). Texte vergleichen wie NamenGleich.
// Ein Abbruch behält die Treffer bis dahin. Die Methoden 7 und 9 lesen die Dateien neu, ohne den
// gespeicherten Datensatz zu ändern; 5, 7 und 9 fragen nach fehlenden Datenträgern.
std::vector<DuplikatTreffer> DuplikateSuchen(Kartei& k, int16_t methode, const std::vector<int32_t>& liste);

// Die Zeile eines Treffers in lstEinträge, mit den Dateinamen ohne Ordner.
std::string TrefferZeile(const Kartei& k, int16_t methode, const DuplikatTreffer& t);
