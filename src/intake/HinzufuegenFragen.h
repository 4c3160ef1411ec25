#pragma once
// Die drei Knöpfe von frmHinzufügen ohne das Fenster: Dateien, Ordner oder eine Playliste
// erfragen (über die Oberfläche) und aufnehmen. Das Fenster verbirgt sich vorher selbst.
#include <string>

struct Kartei;

// Dateiauswahl mit dem Filter der freigegebenen Typen; meldet, wenn es keine gibt.
void DateienHinzufügenFragen(Kartei& k);
// Ordnerauswahl; mit Unterordnern nach HinzufügenUnterordner.
void OrdnerHinzufügenFragen(Kartei& k);
// Auswahl einer Playliste (M3U, PLS).
void PlaylisteImportierenFragen(Kartei& k);

// "*.mp3,*.mp2,…": die freigegebenen Typen der Tabelle, ohne "*"; "" wenn keiner.
std::string FreigegebeneMasken(const Kartei& k);
