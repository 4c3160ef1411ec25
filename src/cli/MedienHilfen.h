#pragma once
// Gemeinsames der Befehle info, tag und untag.
#include <string>

struct CliKontext;

// Ein Pfad von der Kommandozeile als voller Pfad, wie ihn der Index führt.
std::string VollerDateiPfad(const std::string& pfad);
// Einstellungen und Dateitypen für einen Befehl ohne geladenen Index.
void MedienBefehlVorbereiten(CliKontext& c);
