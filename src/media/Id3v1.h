#pragma once
// Der 128-Byte-ID3v1-Tag am Dateiende: lesen, in Felder teilen, zusammensetzen, schreiben,
// entfernen. Im Block stehen Windows-1252-Bytes, in den Feldern des Datensatzes UTF-8.
#include "app/DateiInfo.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

struct Kartei;
class DateiLeser;

// Die 128 Bytes am Dateiende, wenn sie mit "TAG" beginnen; sonst "" (auch bei fehlender oder
// zu kurzer Datei).
std::string Mp3tagLesenStr(const std::string& dateiname);
std::string Mp3tagLesenStr(DateiLeser& datei);

// Entfernt die Zeichen 0 und 1, ohne zeilenumbrücheLassen auch 10 und 13, dann Leerzeichen am
// Ende. Leerzeichen am Anfang bleiben.
std::string TagTextBereinigen(std::string_view text, bool zeilenumbrücheLassen);

// Teilt einen Block von Mp3tagLesenStr in die Mp3_ID3v1_*-Felder und setzt Mp3_ID3v1_Status
// (1 mit Tag, 2 ohne). zeilenumbrücheLassen gilt nur für den Kommentar.
void Id3v1FelderAufteilen(const std::string& tag, DateiInfo& info, bool zeilenumbrücheLassen);

// Die Felder, wie der Tag-Editor sie hält (Texte UTF-8). genreAuswahl ist der Itemwert des
// gewählten Genres (Code + 1) oder 0, wenn keines gewählt ist.
struct Id3v1Felder {
    std::string tag = "TAG";
    std::string titel;
    std::string interpret;
    std::string album;
    std::string jahr;
    std::string kommentar;
    std::string titelnummer;
    int32_t genreAuswahl = 0;
};
// Die Felder eines Datensatzes, so wie der Tag-Editor sie zeigt (Genre über seinen Code).
Id3v1Felder Id3v1FelderAusDatensatz(const DateiInfo& info);
// Der 128-Byte-Block zum Schreiben; Breiten zählen Bytes in Windows-1252.
std::string TAGAusFeldernZusammensetzen(const Id3v1Felder& felder);

// Schreibt den Block über einen alten Tag oder hängt ihn an. index ist eine Zeile (ab 1) der
// Ergebnisliste; die Datei-Form nimmt den Pfad. Bei false steht die Meldung in fehlertext.
bool Mp3TAGSpeichernV1(Kartei& k, int32_t index, const std::string& tag, std::string& fehlertext);
bool Mp3TAGSpeichernV1Datei(const std::string& dateiname, const std::string& tag, std::string& fehlertext);

// Schneidet den Tag über eine Datei dateiname + "-neu" ab und zeigt eigene Meldungen.
// rückgabe wird danach mit den Schaltern "101" aufgefrischt; eintrag (ab 1, 0 = keiner) ist
// der Tabelleneintrag, der den aufgefrischten Datensatz erhält. vorHinweis läuft vor den beiden
// Hinweisen (der Tag-Editor lädt dann neu). true, wenn der Tag entfernt wurde.
bool TAGEntfernen(Kartei& k, DateiInfo& rückgabe, const std::string& dateiname, int32_t eintrag = 0,
                  const std::function<void()>& vorHinweis = {});
