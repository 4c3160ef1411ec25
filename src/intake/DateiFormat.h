#pragma once
// Darf eine Datei nach ihrer Endung in den Index, und zu welcher Klasse gehört sie?
#include <string>

struct Kartei;

// Sucht die Endung in der Dateityp-Tabelle des Index. Jeder Schalter sperrt, was sein Name
// sagt (die Klasse "110" heißt MPEG-Audio und Audio, "001" Bild). nurFreigegebene: nur Typen
// mit "=1"; eine unbekannte Endung gilt dann genau, wenn die Tabelle "*=1" enthält. Ohne
// nurFreigegebene ist eine unbekannte Endung nie unterstützt.
bool DateiFormatUnterstützt(Kartei& k, const std::string& datei, bool keineVideos, bool keineAudios, bool keineBilder,
                            bool nurFreigegebene);
