// Ein Takt des Spielers und die Bedienelemente seiner Tafel.
#include "player/SpielerTakt.h"

#include "app/Kartei.h"
#include "app/Zeitformat.h"
#include "index/IndexDatei.h"
#include "player/Erkennung.h"
#include "player/WinampSteuerung.h"

namespace N = WinampNachricht;

namespace {
// Kein Spieler oder gestoppt: die Tafel verschwindet, der Regler steht auf 1 von 100.
void Ruhe(Kartei& k, SpielerAnzeige& a, const std::string& kopf) {
    if (!k.Spieler.PositionGeändert) {
        k.Spieler.TrackPosMaximum = 100;
        k.Spieler.TrackPosWert = 1;
        a.reglerSetzen = true;
    }
    a.fraLinks3 = false;
    a.knöpfe = false;
    a.regler = false;
    a.cmdAbspielen = "Spielen";
    a.titel = kopf;
    a.titelAktiv = false;
    a.position = "Titelposition";
}

// Spielt oder pausiert: Regler, Beschriftungen, Kopfzeile und Erkennung.
void Aktiv(Kartei& k, SpielerAnzeige& a, bool pausiert) {
    auto& s = k.Spieler;
    const int32_t position = WinAMP_GetTrackPosition(k);
    const int32_t länge = WinAMP_GetTrackLength(k);
    a.fraLinks3 = true;
    // Ein Strom (Länge 0) zeigt nur die Tafel; pausiert zählt der Regler, wie er steht.
    if (pausiert ? s.TrackPosMaximum < 1 : länge <= 0) return;
    if (!s.PositionGeändert) {
        s.TrackPosMaximum = länge;
        s.TrackPosWert = pausiert || (position >= 0 && position < länge) ? position : 0;
        a.reglerSetzen = true;
    }
    a.position = "Titelposition - " + SekundenFormatieren(position) + "/" + SekundenFormatieren(s.TrackPosMaximum);
    a.cmdAbspielen = pausiert ? "Spielen" : "Pause";
    a.knöpfe = true;
    const std::string titel = WinampFensterTitel(k, s.WinampHandle);
    a.titel = SpielerKopfzeile(titel, s.TitelErkannt);
    a.titelAktiv = true;
    WinampDateiErkennen(k, titel, k.uhr.Jetzt());
    a.regler = true;
}
}  // namespace

std::string SpielerKopfzeile(const std::string& titel, bool erkannt) {
    return "Audio-Player - '" + titel + (erkannt ? "' - [Erkannt]" : "'");
}

SpielerAnzeige SpielerTakt(Kartei& k, bool speichernErlaubt) {
    SpielerAnzeige a;
    if (!Winamp_Check(k, false)) {
        Ruhe(k, a, "Audio-Player (Winamp nicht aktiv)");
    } else {
        const std::string status = WinAMP_GetStatus(k);
        if (status == "PLAYING") Aktiv(k, a, false);
        else if (status == "PAUSED") Aktiv(k, a, true);
        else if (status == "STOPPED") Ruhe(k, a, "Audio-Player");
        else Ruhe(k, a, "Audio-Player (Status unbenannt)");
    }
    if (speichernErlaubt) a.gespeichert = RegelmäßigSpeichernPrüfen(k);
    return a;
}

void TrackPosGezogen(Kartei& k) { k.Spieler.PositionGeändert = true; }

void TrackPosGeändert(Kartei& k, int32_t wert) {
    k.Spieler.TrackPosWert = wert;
    if (!k.Spieler.PositionGeändert) return;
    WinAMP_SeekToPosition(k, wert);
    k.Spieler.PositionGeändert = false;
}

void LautstärkeGeändert(Kartei& k, int32_t wert) {
    k.E.WinampLautstärke = static_cast<int16_t>(wert);
    WinAMP_SetVolume(k, wert);
}

void BalanceGeändert(Kartei& k, int32_t wert) {
    k.E.WinampBalance = static_cast<int16_t>(wert);
    WinAMP_SetBalance(k, wert);
}

std::string cmdAbspielen_Click(Kartei& k, const std::string& beschriftung) {
    if (beschriftung == "Spielen") {
        WinAMP_SendCommandMessage(k, N::Spielen, false);
        return "Pause";
    }
    WinAMP_SendCommandMessage(k, N::Pause, false);
    return "Spielen";
}

void cmdAbspielenStopp_Click(Kartei& k) {
    if (Winamp_Check(k, false)) WinAMP_SendCommandMessage(k, N::Stopp, false);
}

void cmdWinampNächster_Click(Kartei& k) { WinAMP_SendCommandMessage(k, N::Nächster, false); }
void cmdWinampVorheriger_Click(Kartei& k) { WinAMP_SendCommandMessage(k, N::Vorheriger, false); }
