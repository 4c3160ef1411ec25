#pragma once
// Die Standardanwendung des Desktops für einen MIME-Typ (an Stelle einer Dateizuordnung):
// "xdg-mime query default TYP" nennt eine Desktop-Datei, deren Exec-Zeile den Befehl hält.
#include <string>
#include <string_view>

// Der Befehl der Standardanwendung, Feldcodes und Anführungszeichen entfernt, getrimmt;
// "" wenn es keine gibt (auch wenn xdg-mime fehlt).
std::string StandardAnwendungsBefehl(const std::string& mimeTyp);

// Die Desktop-Datei zur Kennung ("audacious.desktop") unter $XDG_DATA_HOME/applications,
// dann $XDG_DATA_DIRS/*/applications; ein "-" der Kennung darf für einen Unterordner stehen.
// "" wenn keine da ist.
std::string DesktopDateiSuchen(const std::string& kennung);

// Der Exec-Wert der Gruppe [Desktop Entry], bereinigt wie bei ExecBereinigen; "" ohne ihn.
std::string DesktopDateiBefehl(const std::string& pfad);

// Exec-Wert → Befehl: Feldcodes (%U, %f, %i, ...) samt Leerzeichen davor weg, "%%" wird "%",
// Anführungszeichen weg (Maskierungen darin aufgelöst), getrimmt.
std::string ExecBereinigen(std::string_view exec);
