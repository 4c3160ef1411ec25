// Fuzz-Ziel: eine Indexdatei hin und zurück. Gelesen wie beim Laden, geschrieben wie beim Speichern;
// was einmal geschrieben wurde, muss nach erneutem Lesen Byte für Byte gleich herauskommen.
// Langsamer als indexzeilen (jedes Schreiben holt sich seinen großen Puffer), daher eigenes Ziel.
#include "app/BlockLeser.h"
#include "app/Tabelle.h"
#include "index/IndexDatei.h"
#include "index/IndexOptionen.h"
#include "index/IndexZeilen.h"
#include "FuzzUmgebung.h"

#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace {
constexpr int32_t kHöchstensEinträge = 8;  // mehr bringt keine neuen Wege, nur Zeit

// Liest die Datei hinter pfad in die Kartei, wie der Lader die Zeilen verteilt.
void Einlesen(Kartei& k, const std::string& pfad) {
    IndexOptionenVorgaben(k.Optionen);
    IndexGrößeÄndern(k, kHöchstensEinträge, false);
    k.DateiAnzahl = 0;
    BlockLeser leser(4096);  // kleine Blöcke: auch das Nachladen über Blockgrenzen wird geprüft
    if (!leser.Öffnen(pfad)) return;
    std::string_view zeile;
    Größenliste größen;
    while (leser.ZeileCrLf(zeile)) {
        if (zeile.starts_with("#TAG:")) {
            if (k.DateiAnzahl == kHöchstensEinträge || !GrößenlisteLesen(zeile, größen)) continue;
            DateiInfo& d = k.DateiDaten[++k.DateiAnzahl];
            d = DateiInfo{};
            d.Mp3_ID3v1_Status = 2;
            d.Mp3_ID3v2_Status = 2;
            d.Datei_Größe = -1;
            DatensatzFelderLesen(zeile, größen, k.DateiPfade[k.DateiAnzahl], d);
        } else if (zeile.starts_with("#OPT:")) {
            OptionZeileLesen(k.Optionen, zeile);
        }
    }
}

std::string Schreiben(Kartei& k, SpeicherDatei& ziel) {
    ziel.Füllen({});
    bool abgebrochen = false;
    const int fd = ::open(ziel.Pfad().c_str(), O_WRONLY | O_CLOEXEC);
    if (fd < 0 || IndexTextSchreiben(k, fd, false, abgebrochen) != 0) std::abort();
    ::close(fd);
    std::string text;
    char puffer[65536];
    const int lesen = ::open(ziel.Pfad().c_str(), O_RDONLY | O_CLOEXEC);
    for (ssize_t n; (n = ::read(lesen, puffer, sizeof puffer)) > 0;) text.append(puffer, size_t(n));
    ::close(lesen);
    return text;
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* daten, size_t größe) {
    static SpeicherDatei eingabe, erste, zweite;
    static FuzzKartei fk;
    if (!eingabe.Füllen({reinterpret_cast<const char*>(daten), größe})) return 0;
    Kartei& k = fk.k();
    Einlesen(k, eingabe.Pfad());
    const std::string einmal = Schreiben(k, erste);
    Einlesen(k, erste.Pfad());
    if (Schreiben(k, zweite) != einmal) std::abort();  // Laden und Speichern verlören etwas
    // Die Tabelle leeren und ihre Texte freigeben, sonst wüchse der Textspeicher mit jedem Lauf.
    IndexGrößeÄndern(k, kHöchstensEinträge, false);
    KTextSpeicherZurücksetzen();
    return 0;
}
