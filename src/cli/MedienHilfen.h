#pragma once
// Gemeinsames der Befehle info, tag und untag.
#include <string>

struct CliKontext;

// Ein Pfad von der Kommandozeile als voller Pfad, wie ihn der Index führt.
std::string VollerDateiPfad(const std::string& pfad);
// Lädt den Index (--index oder einen bestehenden Standard-Index) für seine Dateitypen; ohne
// Index gelten die 13 Vorgaben. true: ein Index ist geladen.
bool MedienBefehlVorbereiten(CliKontext& c);
