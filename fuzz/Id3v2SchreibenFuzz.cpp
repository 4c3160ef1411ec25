// Fuzz-Ziel: einen beliebigen alten ID3v2-Tag lesen und neu schreiben (Ausdehnung, Rahmen in
// 2.3-Form, Übernahme Byte für Byte). Scheitert das Schreiben, muss die Datei unverändert sein;
// gelingt es, muss alles hinter dem alten Tag unverändert hinter dem neuen stehen.
#include "app/Kartei.h"
#include "media/DateiLeser.h"
#include "media/Id3v2Bestand.h"
#include "media/Id3v2Lesen.h"
#include "media/Id3v2Schreiben.h"
#include "FuzzUmgebung.h"

#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace {
std::string Ordner() {
    char ordner[] = "/dev/shm/kk-fuzz-tag-XXXXXX";
    if (!::mkdtemp(ordner)) std::abort();
    return ordner;
}

bool Schreiben(const std::string& pfad, std::string_view inhalt) {
    const int fd = ::open(pfad.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    if (fd < 0) return false;
    const bool ganz = ::write(fd, inhalt.data(), inhalt.size()) == ssize_t(inhalt.size());
    ::close(fd);
    return ganz;
}

std::string Lesen(const std::string& pfad) {
    DateiLeser leser(pfad);
    return leser.StückKopie(0, leser.Länge());
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* daten, size_t größe) {
    static const std::string pfad = Ordner() + "/lied.mp3";
    static FuzzKartei fk;
    const std::string_view alt(reinterpret_cast<const char*>(daten), größe);
    if (!Schreiben(pfad, alt)) return 0;
    DateiInfo info;
    const bool gefunden = Mp3TAGLesenV2(pfad, info, 0) && info.Mp3_ID3v2_TAGGröße >= 0;
    // Was hinter dem alten Tag steht, muss das Schreiben genau so hinter den neuen setzen.
    std::string hinten(alt);
    if (gefunden) {
        Id3v2Bestand bestand;
        Id3v2BestandLesen(pfad, info.Mp3_ID3v2_TAGPosition, bestand);
        if (!bestand.plausibel || bestand.anfang != 0) hinten.clear();
        else hinten = alt.substr(size_t(bestand.ende));
    }
    info.Mp3_ID3v2_TIT2 = "Neuer Titel";
    std::string fehler;
    const bool geschrieben = MP3TagSpeichernV2Datei(fk.k(), pfad, fehler, info);
    const std::string neu = Lesen(pfad);
    if (!geschrieben && neu != alt) std::abort();             // gescheitert, aber die Datei ist verändert
    if (geschrieben && !neu.ends_with(hinten)) std::abort();  // Audiodaten verändert
    return 0;
}
