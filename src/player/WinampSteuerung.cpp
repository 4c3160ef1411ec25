// Die Nachrichtentabelle des Spielers über die Schnittstelle Spielerfenster.
#include "player/WinampSteuerung.h"

#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/Texte.h"
#include "app/Trace.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <string_view>
#include <thread>

namespace N = WinampNachricht;

namespace {
// Wie lange WinAMP_Start(true) höchstens wartet, und wie oft es nachsieht.
constexpr int64_t WarteGrenzeMs = 15000;
constexpr auto WarteRunde = std::chrono::milliseconds(20);

int32_t Senden(Kartei& k, uint32_t nachricht, int32_t w, int32_t l) {
    return k.spieler.NachrichtSenden(k.Spieler.WinampHandle, nachricht, w, l);
}

bool KeinSpieler(const Kartei& k, const char* prozedur) {
    if (k.Spieler.WinampHandle != 0) return false;
    KK_TRACE(prozedur, "Winamp wurde nicht im Speicher gefunden");
    return true;
}

bool IstProgramm(const std::string& pfad) {
    struct stat st {};
    return ::stat(pfad.c_str(), &st) == 0 && S_ISREG(st.st_mode) && ::access(pfad.c_str(), X_OK) == 0;
}
}  // namespace

const std::vector<std::string>& BekannteSpieler() {
    static const std::vector<std::string> namen = {"audacious",  "vlc",        "mpv",       "qmmp",
                                                   "clementine", "strawberry", "rhythmbox", "deadbeef",
                                                   "elisa",      "lollypop",   "quodlibet", "gmusicbrowser"};
    return namen;
}

bool SpielerNameBekannt(const std::string& pfad) {
    const std::string name = Klein(DateinameAusPfad(pfad));
    const auto& bekannt = BekannteSpieler();
    return std::find(bekannt.begin(), bekannt.end(), name) != bekannt.end();
}

void WinAMP_SendCommandMessage(Kartei& k, int32_t Befehl, bool AlsBenutzerNachricht) {
    if (KeinSpieler(k, "WinAMP_SendCommandMessage")) return;
    if (AlsBenutzerNachricht) Senden(k, N::Benutzer, 0, Befehl);
    else Senden(k, N::Befehl, Befehl, 0);
}

void WinAMP_SeekToPosition(Kartei& k, int32_t Sekunden) {
    if (KeinSpieler(k, "WinAMP_SeekToPosition")) return;
    if (Sekunden < 0 || Sekunden > WinAMP_GetTrackLength(k)) return;
    // Bis 2147483 s passt die Zahl in 32 Bit; mehr gibt es bei einer Titellänge in Sekunden nicht.
    Senden(k, N::Benutzer, static_cast<int32_t>(std::min<int64_t>(int64_t{Sekunden} * 1000, INT32_MAX)), N::Springen);
}

int32_t WinAMP_GetTrackLength(Kartei& k) {
    if (KeinSpieler(k, "WinAMP_GetTrackLength")) return 0;
    return Senden(k, N::Benutzer, 1, N::Zeit);
}

int32_t WinAMP_GetTrackPosition(Kartei& k) {
    if (KeinSpieler(k, "WinAMP_GetTrackPosition")) return 0;
    const int32_t ms = Senden(k, N::Benutzer, 0, N::Zeit);
    return ms == -1 ? -1 : ms / 1000;
}

std::string WinAMP_GetStatus(Kartei& k) {
    if (KeinSpieler(k, "WinAMP_GetStatus")) return {};
    switch (Senden(k, N::Benutzer, 0, N::Status)) {
    case 1: return "PLAYING";
    case 3: return "PAUSED";
    default: return "STOPPED";
    }
}

void WinAMP_SetVolume(Kartei& k, int32_t Wert) {
    if (KeinSpieler(k, "WinAMP_SetVolume") || Wert < 0 || Wert > 255) return;
    Senden(k, N::Benutzer, Wert, N::Lautstärke);
}

void WinAMP_SetBalance(Kartei& k, int32_t Wert) {
    if (KeinSpieler(k, "WinAMP_SetBalance") || Wert < -127 || Wert > 127) return;
    Senden(k, N::Benutzer, Wert < 0 ? Wert + 255 : Wert, N::Balance);
}

bool Winamp_Check(Kartei& k, bool StartenErlaubt) {
    if (!SpielerNameBekannt(k.E.WinampPfad)) {
        KK_TRACE("WinAMP_Start", "Winamp soll nicht verwendet werden und wird deshalb nicht gestartet");
        return false;
    }
    if (WinAMP_Start(k, false)) return true;
    if (StartenErlaubt && WinampProgrammStarten(k)) return WinAMP_Start(k, true);
    KK_TRACE("Winamp_Check", "Winamp-Fenster nicht gefunden und Start nicht erfolgreich");
    return false;
}

bool WinAMP_Start(Kartei& k, bool Warten) {
    const int64_t start = k.uhr.Millisekunden();
    for (;;) {
        k.Spieler.WinampHandle = k.spieler.FensterFinden(WinampKlasse);
        if (k.Spieler.WinampHandle != 0) return true;
        k.ui.EreignisseVerarbeiten();
        // Ein Spieler, der nie erscheint, hält das Programm nicht fest.
        if (!Warten || k.uhr.Millisekunden() - start >= WarteGrenzeMs) return false;
        std::this_thread::sleep_for(WarteRunde);
    }
}

bool WinampProgrammStarten(Kartei& k) {
    if (!SpielerNameBekannt(k.E.WinampPfad)) return false;
    // Auch die Fehlerwerte 1..32 der Shell gelten als Erfolg; nur 0 nicht.
    return ProgrammStarten(k, SpielerProgramm(k.E.WinampPfad), "") != 0;
}

std::string WinampFensterTitel(Kartei& k, int64_t Handle) {
    std::string text = k.spieler.FensterText(Handle);
    if (text.empty()) return {};
    if (text[0] >= '0' && text[0] <= '9') {
        const int32_t p = InStr(1, text, ". ");
        if (p > 0) text = Mid(text, p + 2);
    }
    const int32_t w = InStrText(1, text, " - Winamp");
    if (w > 0) text = Left(text, w - 1);
    return text;
}

std::vector<std::string> ParameterZerlegen(const std::string& parameter) {
    std::vector<std::string> argumente;
    std::string aktuell;
    bool inAnführung = false, begonnen = false;
    for (char c : parameter) {
        if (c == '"') {
            inAnführung = !inAnführung;
            begonnen = true;
        } else if (c == ' ' && !inAnführung) {
            if (begonnen) argumente.push_back(aktuell);
            aktuell.clear();
            begonnen = false;
        } else {
            aktuell += c;
            begonnen = true;
        }
    }
    if (begonnen) argumente.push_back(aktuell);
    return argumente;
}

int32_t ProgrammStarten(Kartei& k, const std::string& Datei, const std::string& Parameter) {
    constexpr int32_t Erfolg = 42, NichtGefunden = 2;
    bool gestartet = false;
    if (IstProgramm(Datei)) gestartet = k.shell.ProgrammStarten(Datei, ParameterZerlegen(Parameter), true) != 0;
    else gestartet = k.shell.Öffnen(Datei);
    return gestartet ? Erfolg : NichtGefunden;
}

int64_t ProgrammStartenVB(Kartei& k, const std::string& Datei, const std::string& Parameter) {
    return k.shell.ProgrammStarten(Datei, ParameterZerlegen(Parameter), false);
}

std::string SpielerProgramm(const std::string& WinampPfad) {
    if (WinampPfad.empty() || WinampPfad.find('/') != std::string::npos) return WinampPfad;
    const char* path = std::getenv("PATH");
    std::string_view rest = path ? path : "";
    while (!rest.empty()) {
        const size_t doppelpunkt = rest.find(':');
        const std::string ordner(rest.substr(0, doppelpunkt));
        rest = doppelpunkt == std::string_view::npos ? std::string_view{} : rest.substr(doppelpunkt + 1);
        if (!ordner.empty() && IstProgramm(ordner + "/" + WinampPfad)) return ordner + "/" + WinampPfad;
    }
    return WinampPfad;
}
