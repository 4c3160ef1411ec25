#include "intake/Synchronisieren.h"

#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/Trace.h"
#include "fileops/AusIndexEntfernen.h"
#include "intake/Hinzufuegen.h"
#include "intake/NichtVerfuegbar.h"
#include "intake/PlayListe.h"
#include "search/Suche.h"
#include "shell/Fortschritt.h"

namespace {
void Abgebrochen(Kartei& k, AbgleichErgebnis& e, const char* stelle) {
    KK_TRACE("cmdListeAufräumen_Click", stelle);
    (void)stelle;
    e.abgebrochen = true;
    e.text = "Synchronisation abgebrochen: " + AbgleichText(0, e.hinzugefügt);
    k.ui.TitelNachrichtZeigen(e.text, 0);
}

// Schritt 3: die Ordner der Liste. false: abgebrochen.
bool OrdnerAbgleichen(Kartei& k, AbgleichErgebnis& e, int32_t vorher) {
    const auto& o = k.Optionen;
    if (o.SyncLeer) {
        k.ui.MeldungZeigen("Diese Funktion synchronisiert Ordner mit dem Index und entfernt nicht mehr vorhandene "
                           "Dateien.\nSie haben jedoch noch keine Ordner zum Synchronisieren angegeben.\n\nKlicken Sie "
                           "dazu einfach in den 'Optionen' auf 'Index-Optionen'.",
                           Meldung::Information);
        return true;
    }
    for (int32_t i = 1; i <= o.SyncOrdner.UBound(); ++i) {
        // Kopien: das Hinzufügen darf die Optionen nicht unter uns verändern.
        const std::string ordner = o.SyncOrdner[i];
        const int16_t unterordner = o.SyncUnterordner.GültigerIndex(i) ? o.SyncUnterordner[i] : 0;
        const std::string ziel = o.SyncKopierenInOrdner.GültigerIndex(i) ? o.SyncKopierenInOrdner[i] : "";
        if (!EinfachOrdnerHinzufügen(k, ordner, false, unterordner, false, ziel, false, true)) {
            e.hinzugefügt = k.DateiAnzahl - vorher;
            Abgebrochen(k, e, "Fehler beim Einlesen eines Ordners oder Abbruch");
            return false;
        }
    }
    return true;
}

// Schritt 5: fehlende Dateien suchen und erst am Ende entfernen. false: abgebrochen.
bool FehlendeEntfernen(Kartei& k, AbgleichErgebnis& e) {
    const int32_t anzahl = k.DateiAnzahl;
    EinsBasiert<int32_t> liste(anzahl);
    int32_t fehlend = 0;
    FortschrittZeigenStarten(k, anzahl, true, true, false, "Datei-Existenzen prüfen");
    for (int32_t i = 1; i <= anzahl; ++i) {
        if (!FortschrittZeigen(k, i, "")) return Abgebrochen(k, e, "Abbruch beim FortschrittZeigen"), false;
        const int16_t verfügbar = DateiNichtVerfügbarPrüfen(k, i, true, false);
        if (verfügbar == 2) return Abgebrochen(k, e, "Abbruch beim DateiNichtVerfügbarPrüfen"), false;
        // Übersprungen heißt: der Datenträger fehlte, die Datei bleibt.
        if (verfügbar == 0 && !DoesExist(k.DateiPfade[i])) liste[++fehlend] = i;
    }
    if (fehlend > 0) {
        DateienAusListeEntfernenStarten(k, liste);
        e.entfernt = anzahl - k.DateiAnzahl;
    }
    return true;
}
}  // namespace

std::string AbgleichText(int32_t entfernt, int32_t hinzugefügt) {
    return std::to_string(entfernt) + " Datei(en) entfernt, " + std::to_string(hinzugefügt) + " Datei(en) hinzugefügt";
}

AbgleichErgebnis ListeAufräumen(Kartei& k) {
    AbgleichErgebnis e;
    NichtVerfügbarFragenZurücksetzen(k);
    const int32_t vorher = k.DateiAnzahl;
    if (OrdnerAbgleichen(k, e, vorher)) {
        e.hinzugefügt = k.DateiAnzahl - vorher;
        if (k.DateiAnzahl == 0 || k.Optionen.SyncEntfernen != 1 || FehlendeEntfernen(k, e)) {
            FortschrittZeigenEnde(k);
            e.text = AbgleichText(e.entfernt, e.hinzugefügt);
            k.ui.TitelNachrichtZeigen(e.text, 750);
        }
    }
    FortschrittZeigenEnde(k);
    if (e.hinzugefügt < 1 && e.entfernt < 1) return e;
    SucheAktualisieren(k);
    if (e.hinzugefügt > 0) NeueInListeMarkieren(k, e.hinzugefügt, k.Liste.lstSongs);
    return e;
}
