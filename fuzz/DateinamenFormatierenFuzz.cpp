// Fuzz-Ziel: Muster mit "%Feldname%" über einem Eintrag, dessen Werte selbst Muster sein können.
// Eingabe: Muster, Nullbyte, Wert für die Textfelder und das Nutzerformat.
#include "app/Tabelle.h"
#include "fileops/DateinamenFormatieren.h"
#include "FuzzUmgebung.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* daten, size_t größe) {
    auto [muster, wert] = AmNullbyteTeilen(daten, größe);
    static FuzzKartei fk;  // jeder Lauf setzt alles, was das Muster liest
    Kartei& k = fk.k();
    IndexGrößeÄndern(k, 1, false);
    k.DateiAnzahl = 1;
    k.DateiPfade[1] = "/musik/" + std::string(wert) + ".mp3";
    DateiInfo& d = k.DateiDaten[1];
    d.Mp3_ID3v1_Titel = d.Mp3_ID3v2_TIT2 = std::string(wert);
    d.Mp3_ID3v1_Interpret = "Interpret";
    d.Mp3_ID3v2_TPE1 = "%Titel%";
    d.Header_Dauer = 215;
    k.Optionen.SpaltenNutzerformat = std::string(wert);
    DateinamenFormatieren(k, muster, 1);
    DateinamenFormatieren(k, muster, 0);  // Position außerhalb der Tabelle
    return 0;
}
