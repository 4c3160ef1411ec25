#pragma once
// Die fünf fertigen Farbprofile und der Farbsatz, den Einstellungen, Muster und Profile teilen.
// Farbwerte wie gespeichert: Rot im niedrigsten Byte.
#include <cstdint>
#include <string>
#include <vector>

struct Einstellungen;

// Die sieben Farben und das Unterstreichen der Funktionen.
struct Farbsatz {
    int32_t Funktionen = 0;
    int32_t FunktionenHintergrund = 0;
    int32_t Listen = 0;
    int32_t ListenHintergrund = 0;
    int32_t Überschrift = 0;
    int32_t Beschreibungen = 0;
    int32_t FunktionenBesucht = 0;
    int16_t FunktionenUnterstreichen = 0;
    bool operator==(const Farbsatz&) const = default;
};

struct FarbProfil {
    std::string name;
    Farbsatz farben;
};

// Die fünf Profile in der Reihenfolge der Auswahlliste; das erste sind die Vorgaben.
const std::vector<FarbProfil>& FarbProfile();

Farbsatz FarbsatzAusEinstellungen(const Einstellungen& e);
void FarbsatzSpeichern(Einstellungen& e, const Farbsatz& f);

// Nummer (ab 0) des Profils, dem der Farbsatz genau gleicht; -1, wenn keinem (eigene Farben).
int32_t FarbProfilFinden(const Farbsatz& f);
