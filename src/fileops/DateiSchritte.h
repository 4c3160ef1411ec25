#pragma once
// Die Schritte im Dateisystem, aus denen Verschieben und Kopieren bestehen. Jeder gibt 0 bei
// Erfolg oder die errno-Nummer des Fehlers. Ein vorhandenes Ziel wird nie still ersetzt.
#include <string>

// Legt den Ordner mit allen fehlenden Ebenen an, von oben nach unten. Ein leerer Pfad ist in Ordnung.
int ZielordnerAnlegen(const std::string& ordner);
// Benennt quelle in ziel um. Gibt es ziel schon: EEXIST; auf einem anderen Dateisystem: EXDEV.
int DateiUmbenennen(const std::string& quelle, const std::string& ziel);
// Kopiert Inhalt, Rechte und Zeiten nach ziel. Die Kopie entsteht als verborgene Datei daneben
// und erscheint erst vollständig und auf dem Datenträger unter ihrem Namen; ein Fehler lässt
// nichts zurück. Gibt es ziel schon: EEXIST.
int DateiKopieren(const std::string& quelle, const std::string& ziel);
// Sind beide Pfade dieselbe Datei (Gerät und Knoten)? Fehlt eine, nein.
bool DieselbeDatei(const std::string& a, const std::string& b);
