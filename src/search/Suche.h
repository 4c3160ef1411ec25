#pragma once
// Einstieg der anderen Teile in die Suche: nach jeder Änderung der Tabelle die Suche neu
// laufen lassen und die Ergebnisliste neu aufbauen.
struct Kartei;

bool SucheAktualisieren(Kartei& k);
