// player: den laufenden Spieler fernsteuern und seinen Zustand ausgeben.
#include "app/Kartei.h"
#include "app/Zahlen.h"
#include "cli/Befehle.h"
#include "cli/CliAusgabe.h"
#include "player/SpielerTakt.h"
#include "player/WinampSteuerung.h"

#include <cstdio>

namespace {
int Status(Kartei& k) {
    NameWertAusgeben("Status", WinAMP_GetStatus(k));
    NameWertAusgeben("Titel", WinampFensterTitel(k, k.Spieler.WinampHandle));
    NameWertAusgeben("Position", ZahlText(WinAMP_GetTrackPosition(k)));
    NameWertAusgeben("Länge", ZahlText(WinAMP_GetTrackLength(k)));
    return 0;
}

// Ein Zahlenwert im Bereich, sonst ein Gebrauchsfehler (Rückgabe 2) über fehler.
bool WertLesen(const std::vector<std::string>& a, int64_t von, int64_t bis, int32_t& wert, int& fehler) {
    const auto zahl = a.size() == 2 ? GanzeZahlLesen(a[1]) : std::nullopt;
    if (!zahl || *zahl < von || *zahl > bis) {
        fehler = GebrauchsFehler("player " + a[0] + ": eine Zahl von " + ZahlText(von) + " bis " + ZahlText(bis) +
                                 " angeben.");
        return false;
    }
    wert = static_cast<int32_t>(*zahl);
    return true;
}

int Ausführen(CliKontext& c, const std::vector<std::string>& a) {
    if (a.empty())
        return GebrauchsFehler("player: status, next, previous, stop, pause, volume, balance oder seek angeben.");
    const std::string& was = a[0];
    const bool mitWert = was == "volume" || was == "balance" || was == "seek";
    if (!mitWert && a.size() > 1) return GebrauchsFehler("player " + was + ": unbekanntes Argument '" + a[1] + "'.");
    int32_t wert = 0;
    int fehler = 0;
    if (was == "volume" && !WertLesen(a, 0, 255, wert, fehler)) return fehler;
    if (was == "balance" && !WertLesen(a, -127, 127, wert, fehler)) return fehler;
    if (was == "seek" && !WertLesen(a, 0, INT32_MAX / 1000, wert, fehler)) return fehler;
    const bool bekannt =
        mitWert || was == "status" || was == "next" || was == "previous" || was == "stop" || was == "pause";
    if (!bekannt) return GebrauchsFehler("player: unbekannter Befehl '" + was + "'.");

    Kartei& k = c.k;
    if (!Winamp_Check(k, false)) {
        std::fprintf(stderr, "Audio-Player (Winamp nicht aktiv)\n");
        return 1;
    }
    if (was == "status") return Status(k);
    if (was == "next") cmdWinampNächster_Click(k);
    else if (was == "previous") cmdWinampVorheriger_Click(k);
    else if (was == "stop") cmdAbspielenStopp_Click(k);
    else if (was == "pause") cmdAbspielen_Click(k, "Pause");
    else if (was == "volume") WinAMP_SetVolume(k, wert);
    else if (was == "balance") WinAMP_SetBalance(k, wert);
    else WinAMP_SeekToPosition(k, wert);
    return 0;
}
}  // namespace

extern const Befehl BefehlPlayer = {
    "player", "player status|next|previous|stop|pause|volume N|balance N|seek S",
    "Den laufenden Audio-Player steuern; status gibt Status, Titel, Position und Länge aus", Ausführen};
