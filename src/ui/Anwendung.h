#pragma once
// Was das Fensterprogramm vor dem ersten Fenster einrichtet: den Namen für Einstellungen und
// Ordner und Qts eigene Texte (Dateiwahl, Kontextmenüs der Eingabefelder) auf Deutsch, gleich
// welche Sprache das System eingestellt hat.
class QApplication;
class QIcon;

// false, wenn Qts deutsche Übersetzung fehlt (das Programm läuft dann mit Qts englischen Texten).
bool AnwendungEinrichten(QApplication& app);

// Das Programmsymbol in allen mitgelieferten Größen (leer, wenn keine Datei da ist).
QIcon ProgrammSymbol();
