// Löscht eine halb geschriebene Datei, wenn ein Signal das Programm beendet.
#include "app/HalbeDatei.h"

#include <csignal>
#include <cstring>
#include <initializer_list>
#include <unistd.h>

namespace {
// Im Signal-Handler ist nur unlink erlaubt: der Pfad liegt daher fertig in einem festen Puffer.
char gPfad[4096];
volatile std::sig_atomic_t gGemerkt = 0;

void BeiSignal(int signal) {
    if (gGemerkt) ::unlink(gPfad);
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}
}  // namespace

void HalbeDateiMerken(const char* pfad) {
    gGemerkt = 0;
    const size_t n = std::strlen(pfad);
    if (n >= sizeof gPfad) return;
    std::memcpy(gPfad, pfad, n + 1);
    gGemerkt = 1;
}

void HalbeDateiFertig() { gGemerkt = 0; }

void HalbeDateiSignaleEinrichten() {
    for (int s : {SIGINT, SIGTERM, SIGHUP}) std::signal(s, BeiSignal);
}
