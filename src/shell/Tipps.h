#pragma once
// Die Hinweise (frmHinweise) und der Willkommenstext (frmWillkommen): Texte als Daten und das
// Blättern, ohne Fenster.
#include <cstdint>
#include <string>

struct Kartei;

// Zahl der Hinweise (Obergrenze von TippsTexte).
int32_t TippsAnzahl();
// Hinweis nummer (1..TippsAnzahl()); zwei Sätze stehen mit CR LF getrennt. Außerhalb: leer.
const std::string& TippsTexte(int32_t nummer);
// Der Text des Willkommensfensters.
const std::string& WillkommenText();

// cmdVor: der nächste Hinweis, nach dem letzten wieder der erste. Merkt ihn in TippsAktueller.
int32_t TippVor(Kartei& k, int32_t aktuell);
// cmdZurück: der vorige Hinweis, vor dem ersten der letzte. Merkt ihn in TippsAktueller.
int32_t TippZurück(Kartei& k, int32_t aktuell);
// cmdOk: ohne Haken "wieder zeigen" ein Hinweis auf die Optionen und TippsAktueller 0,
// sonst TippsAktueller = aktuell.
void TippsSchließen(Kartei& k, int32_t aktuell, bool wiederZeigen);
