#pragma once
// Der Start des Fensterprogramms nach dem Einlesen der Einstellungen (StartVorbereiten) und dem
// Bau des Hauptfensters: Index öffnen, Fenster platzieren und zeigen, Begrüßung, beim ersten
// Start Willkommen, dann der Hinweis, zuletzt der Fokus im Suchfeld.
#include <string>

struct Kartei;
class frmMain;
class GuiOberfläche;

void FensterStarten(Kartei& k, frmMain& fenster, GuiOberfläche& ui);
