#pragma once
// Gemeinsames der Befehle info, tag und untag.
#include <string>

struct CliKontext;

// Ein Pfad von der Kommandozeile als voller Pfad, wie ihn der Index führt.
std::string VollerDateiPfad(const std::string& pfad);
enum class IndexLage { Keiner, Geladen, NichtGeladen };
// Lädt den Index (--index oder einen bestehenden Standard-Index) für seine Dateitypen; ohne
// Index gelten die 13 Vorgaben. NichtGeladen: es gibt einen, aber er ließ sich nicht laden.
IndexLage MedienBefehlVorbereiten(CliKontext& c);
// Nach einer Tag-Schreibung den Eintrag im Index nachführen. false, wenn das Speichern scheitert
// oder der Index nicht geladen werden konnte (Meldung auf stderr).
bool IndexNachführen(CliKontext& c, IndexLage lage, const std::string& pfad);
