#include "shell/Beenden.h"

#include "app/Kartei.h"
#include "index/IndexDatei.h"
#include "index/Spalten.h"

namespace {
BeendenSchritt Minimieren(const FensterLage& lage) {
    return lage.endeErzwungen || lage.minimiert ? BeendenSchritt::Weiter : BeendenSchritt::Minimieren;
}

// Ohne Symbol im Infobereich käme ein verstecktes Fenster nicht wieder: dann verkleinern.
BeendenSchritt InTray(const FensterLage& lage) {
    if (!lage.trayVorhanden) return Minimieren(lage);
    return lage.endeErzwungen || lage.versteckt ? BeendenSchritt::Weiter : BeendenSchritt::InTray;
}
}  // namespace

BeendenSchritt BeendenReaktionPrüfen(const Kartei& k, SchließGrund grund, const FensterLage& lage) {
    if (grund != SchließGrund::Benutzer) return BeendenSchritt::Weiter;
    switch (k.E.BeendenReaktion) {
    case Beenden::Fragen:
        if (lage.endeErzwungen || lage.versteckt || lage.minimiert) return BeendenSchritt::Weiter;
        return BeendenSchritt::Fragen;
    case Beenden::Minimieren: return Minimieren(lage);
    case Beenden::Tray: return InTray(lage);
    default: return BeendenSchritt::Weiter;
    }
}

BeendenSchritt BeendenAuswahlAnwenden(int16_t BeendenAuswahl, const FensterLage& lage) {
    switch (BeendenAuswahl) {
    case Beenden::Minimieren: return Minimieren(lage);
    case Beenden::Tray: return InTray(lage);
    case Beenden::Ende: return BeendenSchritt::Weiter;
    default: return BeendenSchritt::Abbrechen;
    }
}

int16_t BeendenKnopfGedrückt(Kartei& k, int16_t auswahl, bool immer) {
    if (auswahl == Beenden::Abbrechen) return auswahl;
    k.E.BeendenReaktion = immer ? auswahl : Beenden::Fragen;
    return auswahl;
}

bool GeändertenIndexSichern(Kartei& k) {
    switch (SpeichernVorSchließenFragen(k)) {
    case SchließenAktion::OhneSpeichern: return true;
    case SchließenAktion::Speichern: return DateiSpeichern(k, k.Dateiname, true);
    default: return false;
    }
}

bool SitzungsEndeOhneFrageMöglich(const Kartei& k) { return !k.DateiGeändert || k.E.DateiAutomatischSpeichern == 1; }

bool IndexWechselVorbereiten(Kartei& k) {
    SpaltenSpeichern(k, k.Liste.lstSongs);
    return GeändertenIndexSichern(k);
}
