#include "index/Dateitypen.h"

#include "index/IndexOptionen.h"

namespace {
constexpr DateitypVorgabe kVorgaben[] = {
    {"mp3=1", "110"}, {"mp2=1", "110"},  {"mp1=1", "110"}, {"wma=1", "010"}, {"wmf=1", "010"},
    {"wav=1", "010"}, {"gif=0", "001"},  {"jpg=0", "001"}, {"bmp=0", "001"}, {"aac=1", "110"},
    {"vqf=1", "010"}, {"jpeg=0", "001"}, {"*=0", "000"},
};
constexpr int kAnzahl = sizeof kVorgaben / sizeof kVorgaben[0];
}  // namespace

const DateitypVorgabe* DateitypenVorgaben(int& anzahl) {
    anzahl = kAnzahl;
    return kVorgaben;
}

void DateitypenVorgabenEinsetzen(IndexOptionen& o) {
    o.DateitypEintrag.ReDim(kAnzahl);
    o.DateitypKlasse.ReDim(kAnzahl);
    for (int i = 0; i < kAnzahl; ++i) {
        o.DateitypEintrag[i + 1] = kVorgaben[i].eintrag;
        o.DateitypKlasse[i + 1] = kVorgaben[i].klasse;
    }
    o.DateitypenLeer = false;
}

void DateitypenVorgabenWennLeer(IndexOptionen& o) {
    if (o.DateitypenLeer) DateitypenVorgabenEinsetzen(o);
}
