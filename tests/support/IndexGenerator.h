#pragma once
// Erfundene, aber lebensnahe Index-Einträge für Tests und Benchmarks: Pfade um 80 Bytes,
// ID3v1- und ID3v2-Felder (auch mit Umlauten), Daten, Kopfdaten. Gleiche Saat, gleiche Daten.
// Gefüllt werden nur Felder, die die Indexdatei speichert, so dass Laden(Speichern(x)) == x gilt.
#include "app/DateiInfo.h"

#include <cstdint>
#include <random>
#include <string>

struct Kartei;

// Ein Eintrag; pfad bekommt den ganzen Pfad.
DateiInfo ErfundenerEintrag(std::mt19937& zufall, std::string& pfad);
// Füllt die Tabelle mit anzahl Einträgen (DateiAnzahl = Obergrenze = anzahl).
void IndexErzeugen(Kartei& k, int32_t anzahl, uint32_t saat = 1);
