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

// cmdOk ab Schritt 3: prüfen, löschen, Papierkorb, nur aus dem Index, durch leere Dateien
// ersetzen, Index anpassen – mit Fortschritt und Abbrechen. Ein Abbruch lässt die übrigen
// Schritte auf dem Datenträger aus; was schon getan ist, bleibt getan, und der Index folgt ihm.
// Was sich nicht löschen oder ersetzen ließ, bleibt im Index. Danach neue Suche und Statustext.
// false: abgebrochen.
bool AktionenAusführen(Kartei& k, const Aufräumen& a);

// Das Detailfeld fraDetails zu einer Zeile der Trefferliste (ab 0).
struct TrefferDetails {
    std::string datei1, dateiname1, datei2, dateiname2;  // lblDatei1/2, lblDateiname1/2
    std::string gleichÜberschrift, gleich;               // was beide gemeinsam haben
    int32_t aktion1 = 0, aktion2 = 0;
    bool zweiteSeite = false;  // nur bei Paaren gibt es eine rechte Datei
};
// false für eine Zeile außerhalb der Liste (d bleibt dann leer).
bool TrefferDetailsLesen(const Kartei& k, const Aufräumen& a, int32_t zeile, TrefferDetails& d);
// Die Indexposition der linken oder rechten Datei einer Zeile; 0, wenn es sie nicht gibt.
int32_t TrefferDatei(const Kartei& k, const Aufräumen& a, int32_t zeile, bool zweite);
// cmdAbspielen1/2 und der Doppelklick: diese eine Datei an den Spieler. false ohne Datei.
bool TrefferAbspielen(Kartei& k, const Aufräumen& a, int32_t zeile, bool zweite);
// Format "##,##": Tausenderpunkte; 0 ergibt einen leeren Text.
std::string GrößeFormat(int64_t bytes);
