#pragma once
// Was die Knöpfe von frmHinzufügen tun: Dateien mit einem Filter aus der Typentabelle wählen,
// einen Ordner wählen, eine Playliste wählen, und das Gewählte hinzufügen. Das Fenster versteckt
// den Dialog zwischen Wählen und Hinzufügen.
#include "app/EinsBasiert.h"

#include <string>

struct Kartei;

// "Unterstützte Dateiformate (*.mp3,*.mp2)|*.mp3;*.mp2|Alle Dateien (*.*)|*.*" aus den
// freigegebenen Typen. false mit Hinweis, wenn kein Typ eingerichtet oder keiner freigegeben ist.
bool DateienHinzufügenFilter(Kartei& k, std::string& filter);
// cmdDateienHinzufügen, erster Teil: Filter bauen, Dateien wählen. false: nichts gewählt.
bool DateienFürIndexWählen(Kartei& k, EinsBasiert<std::string>& dateien);
// Zweiter Teil: hinzufügen (Markierungen der Liste gelten dabei nicht), neue Zeilen markieren.
void GewählteDateienHinzufügen(Kartei& k, const EinsBasiert<std::string>& dateien);

// cmdOrdnerHinzufügen: Ordner wählen (false: abgebrochen), dann mit Unterordnern nach
// HinzufügenUnterordner hinzufügen.
bool OrdnerFürIndexWählen(Kartei& k, std::string& ordner);
void GewähltenOrdnerHinzufügen(Kartei& k, const std::string& ordner);

// cmdImportieren: eine Playliste wählen (false: abgebrochen), dann einlesen.
bool PlaylisteFürIndexWählen(Kartei& k, std::string& datei);
void GewähltePlaylisteImportieren(Kartei& k, const std::string& datei);
