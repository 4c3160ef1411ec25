#pragma once
// Der Start des Fensterprogramms nach dem Einlesen der Einstellungen (StartVorbereiten) und dem
// Bau des Hauptfensters: Index öffnen, Fenster platzieren und zeigen, Begrüßung, beim ersten
// Start Willkommen, dann der Hinweis, zuletzt der Fokus im Suchfeld.
#include <string>

struct Kartei;
class frmMain;
class GuiOberfläche;

void FensterStarten(Kartei& k, frmMain& fenster, GuiOberfläche& ui);

// Für Bildschirmfotos: KLANGKARTEI_ZEIGEN=liste zeigt nach dem Start alle Einträge,
// =fortschritt öffnet das Fortschrittsfenster (stehend), =sucheerweitert die erweiterte Suche mit
// zwei Abfragezeilen.
void VorführungStarten(Kartei& k, frmMain& fenster);
