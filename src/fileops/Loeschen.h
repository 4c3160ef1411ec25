#pragma once
// Dateien löschen oder in den Papierkorb legen, leer gewordene Ordner anbieten, Einträge aus
// dem Index nehmen. Eine Entfernliste hat Nummern ab 1; 0 in einem Platz heißt "Eintrag bleibt",
// und das schreiben diese Routinen für jede Datei, die nicht gelöscht werden konnte.
#include "app/EinsBasiert.h"

#include <cstdint>
#include <string>
#include <string_view>

struct Kartei;

namespace LöschModus {
constexpr int16_t NurIndex = 0, Endgültig = 1, Papierkorb = 2;
}

// Modus 0: nichts auf dem Datenträger; 1: endgültig löschen (je Fehlschlag eine Frage, ob es
// weitergeht); 2: Papierkorb. Danach, mit ausIndexEntfernen, die übrigen Plätze aus dem Index.
// false: der Lauf wurde angehalten (die schon gelöschten Einträge sind trotzdem entfernt).
bool DateienLöschen(Kartei& k, EinsBasiert<int32_t>& liste, int16_t modus, bool ausIndexEntfernen);

// Legt die Dateien der Liste nach einer Bestätigung in den Papierkorb; danach werden leer
// gewordene Ordner angeboten. Ohne Pfad keine Frage und kein Aufruf. Ergebnis: Zahl der Dateien
// im Papierkorb. Was nicht hineinkam und noch da ist, hat danach 0 in seinem Platz.
int32_t DateiInPapierkorb(Kartei& k, EinsBasiert<int32_t>& liste);

// Ist der Ordner leer, fragen, ob er weg soll (Ja/Nein). false: kein leerer Ordner, oder er ließ
// sich nicht entfernen (dann mit Meldung); true: entfernt oder "Nein".
bool OrdnerLöschenFragen(Kartei& k, std::string ordner);
// Enthält der Ordner etwas außer "." und ".." (auch Verborgenes)? Nicht lesbar: false.
bool WeitereDateienInOrdner(std::string_view ordner);
// Entfernt einen leeren Ordner; was kein Ordner ist, gilt als erledigt.
bool OrdnerLöschen(std::string_view ordner);

// frmLöschen, cmdLöschen: die Frage mit Stoppzeichen; true bei "Ja".
bool EndgültigLöschenBestätigen(Kartei& k, int32_t anzahl);
