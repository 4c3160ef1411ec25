#pragma once
// Gemeinsames der Berichtstests: eine kleine Kartei mit Tags, Sonderzeichen und leeren Werten.
#include "search/SuchTestHilfen.h"

#include <string>

// Vier Einträge: mit Tag und Strichen im Album, mit Leerzeichen, Anführungszeichen, "<" und "&",
// ohne Tag, mit Tag ohne Titel.
inline void BerichtsKartei(Kartei& k) {
    DateiInfo& a = Neu(k, "/m/a b.mp3");
    a.Mp3_ID3v1_Interpret = "Nena";
    a.Mp3_ID3v1_Titel = "99 Luftballons";
    a.Mp3_ID3v1_Album = "-----";
    a.Header_Dauer = 230;
    DateiInfo& b = Neu(k, "/m/zwei.mp3");
    b.Mp3_ID3v1_Interpret = " Can ";
    b.Mp3_ID3v1_Titel = "Vitamin \"C\" & <mehr>";
    b.Mp3_ID3v1_Album = "-";
    b.Header_Dauer = 180;
    DateiInfo& c = Neu(k, "/m/ohne.mp3");
    c.Mp3_ID3v1_Status = 0;
    c.Mp3_ID3v1_Interpret = "unsichtbar";
    DateiInfo& d = Neu(k, "/m/vier.mp3");
    d.Mp3_ID3v1_Interpret = "Abba";
    d.Header_Dauer = 61;
}
