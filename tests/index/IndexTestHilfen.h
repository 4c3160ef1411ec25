#pragma once
// Gemeinsames der Index-Tests: Dateien Byte für Byte, die Beispielzeile, die Vorgabe-Optionen.
#include "app/Pfade.h"
#include "index/IndexDatei.h"
#include "support/Attrappen.h"
#include "support/TestOrdner.h"

#include <string>

// Die Spaltenbeschreibung, wie die Liste sie nach den Vorgabespalten zurückschreibt.
inline std::string ListenSpalten() {
    std::string s = "1=0=0,2=0=0,3=1400=1,4=1400=2,5=1400=3,6=1400=4";
    for (int i = 7; i <= 30; ++i) s += "," + std::to_string(i) + "=0=0";
    return s;
}

// Kopf eines Index ohne eigene Optionen, so wie der Schreiber ihn ausgibt.
inline std::string StandardKopf(const std::string& spalten = ListenSpalten()) {
    return "#TAG:kk102\r\n#OPT:SYNC_ENTFERNEN=1\r\n#OPT:SPALTEN_LEISTE=1\r\n#OPT:SPALTEN_GITTER=0\r\n"
           "#OPT:SPALTEN=" +
           spalten + "\r\n#OPT:SPALTEN_NUTZERFORMAT=%Interpret% - %Titel%\r\n";
}

// Der Eintrag "Lied" als Datensatzzeile ohne ID3v2, 150 Zeichen.
inline const std::string kBeispielGrößen = "#TAG:17/5/4//2/4/1/4/7//3/3/5/4/1/10/1/12/1/19|";
inline const std::string kBeispielWerte =
    "C:\\Musik\\Lied.mp3AlbumBand17Lied320013145728128196441007530016.11.20011Joint Stereo216.11.2001 20:15:00";

// Schreibt bytes als Index in den Ordner und lädt ihn.
inline bool IndexAusBytesLaden(TestUmgebung& u, const TestOrdner& o, const std::string& bytes,
                               const std::string& name = "index.kkt") {
    DateiSchreiben(o / name, bytes);
    return DateiLaden(u.k, o / name);
}
