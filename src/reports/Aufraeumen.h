#pragma once
// Die Aktionen der Indexverwaltung: je Indexposition ein Code, gesetzt über die Zeilen der
// Trefferliste, gezählt und vor dem Ausführen bestätigt.
#include "reports/Duplikate.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

struct Kartei;

// Aktionscodes, zugleich die Position in cboAktion1/cboAktion2.
namespace Aktion {
constexpr int32_t Keine = 0, Löschen = 1, Papierkorb = 2, AusIndex = 3, Ersetzen = 4, Anzahl = 5;
}
// Die Listentexte der Aktionen, Code 0..4.
const std::vector<std::string>& AktionenTexte();

// GefundenAktionen: der Code je Indexposition (ab 1; Position 0 bleibt ungenutzt). Eine Datei, die
// in mehreren Zeilen steht, hat eine Aktion.
struct Aufräumen {
    int16_t Suchmethode = -1;
    std::vector<DuplikatTreffer> treffer;
    std::vector<int32_t> GefundenAktionen;
};

// Neue Treffer: Aktionen für alle DateiAnzahl Positionen auf "Keine Aktion".
void AufräumenBeginnen(const Kartei& k, Aufräumen& a, int16_t methode, std::vector<DuplikatTreffer> treffer);
// cboAktion1_Click / cboAktion2_Click: code für die linke (zweite = false) bzw. rechte Datei jeder
// gewählten Zeile (0-basiert). Zeilen außerhalb und fehlende rechte Dateien zählen nicht.
void AktionSetzen(Aufräumen& a, const std::vector<int32_t>& zeilen, bool zweite, int32_t code);
// Die Zahl der Dateien je Code.
std::array<int32_t, Aktion::Anzahl> AktionenZählen(const Aufräumen& a);
// cmdOk, Schritt 1 und 2: ohne Aktion eine Meldung und false; sonst die Frage mit den Zahlen,
// true bei "Ja".
bool AktionenBestätigen(Kartei& k, const Aufräumen& a);
