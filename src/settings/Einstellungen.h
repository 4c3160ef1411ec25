#pragma once
// Die gespeicherten Einstellungen: ein Mitglied je Wert, benannt wie der Wert.
struct Einstellungen {};
