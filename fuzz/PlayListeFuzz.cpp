// Fuzz-Ziel: Zeilen einer M3U- oder PLS-Playliste. Die Liste liegt in einem eigenen leeren
// Ordner, damit relative Zeilen nichts Fremdes finden.
#include "app/Tabelle.h"
#include "intake/PlayListe.h"
#include "FuzzUmgebung.h"

#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace {
std::string ListenPfad() {
    char ordner[] = "/dev/shm/kk-fuzz-liste-XXXXXX";
    if (!::mkdtemp(ordner)) std::abort();
    return std::string(ordner) + "/liste.m3u";
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* daten, size_t größe) {
    static const std::string pfad = ListenPfad();
    const int fd = ::open(pfad.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    if (fd < 0) return 0;
    const bool ganz = ::write(fd, daten, größe) == ssize_t(größe);
    ::close(fd);
    if (!ganz) return 0;
    static FuzzKartei fk;  // eine Kartei für alle Läufe: ihr Aufbau kostete mehr als das Lesen
    IndexGrößeÄndern(fk.k(), 0, false);
    fk.k().DateiAnzahl = 0;
    PlayListLesen(fk.k(), pfad, false, false, false);
    return 0;
}
