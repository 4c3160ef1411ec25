#include "intake/PlayListe.h"

#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/Texte.h"
#include "app/Trace.h"
#include "app/BlockLeser.h"
#include "intake/Hinzufuegen.h"
#include "app/Ergebnisliste.h"
#include "shell/Fortschritt.h"

#include <algorithm>
#include <climits>

namespace {
std::string Verbinden(const std::string& ordner, const std::string& name) {
    if (!ordner.empty() && ordner.back() == '/') return ordner + name;
    return ordner + "/" + name;
}

// Der Pfad, für den eine Zeile steht, oder "" wenn es dort keine Datei gibt.
std::string ZeilenPfad(const std::string& zeile, const std::string& ordner, const std::string& wurzel) {
    if (IstVollerPfad(zeile)) return DoesExist(zeile) ? zeile : std::string();
    // Erst neben der Playliste, dann ab der Wurzel ihres Datenträgers.
    std::string pfad = Verbinden(ordner, zeile);
    if (DoesExist(pfad)) return pfad;
    pfad = Verbinden(wurzel, zeile);
    return DoesExist(pfad) ? pfad : std::string();
}
}  // namespace

bool PlayListLesen(Kartei& k, const std::string& datei, bool listeAktualisieren, bool, bool neueMarkieren) {
    const int32_t vorher = k.DateiAnzahl;
    const std::string ordner = PfadZurückgeben(datei);
    const std::string wurzel = k.datenträger.Wurzel(datei);

    BlockLeser leser(size_t(64) << 10);
    if (!leser.Öffnen(datei)) {
        KK_TRACE("PlayListLesen", "nicht lesbar: " + datei);
        return false;
    }
    FortschrittZeigenStarten(k, static_cast<int32_t>(std::min<int64_t>(leser.Länge(), INT32_MAX)), true, true, true,
                             "Playliste einlesen...");
    DateiListeHinzuStarten(k);
    // Die Position schätzt jedes Zeilenende als zwei Bytes; so braucht der Balken keinen
    // Vorlauf über die Datei.
    double position = 0;
    std::string_view roh;
    while (leser.ZeileEinfach(roh)) {
        position += double(roh.size()) + 2;
        const std::string zeile = DateiTextLesen(roh);
        if (ZeichenAnzahl(zeile) < 5) {
            KK_TRACE("PlayListLesen", "Zeile zu kurz: " + zeile);
            continue;
        }
        if (zeile[0] == '#') continue;
        const std::string pfad = ZeilenPfad(zeile, ordner, wurzel);
        if (pfad.empty()) continue;
        DateienZurListeHinzufügen(k, pfad);
        if (!FortschrittZeigen(k, position, zeile)) {
            DateiListeHinzuBeenden(k);  // was gelesen ist, bleibt
            NachHinzufügenAktualisieren(k, listeAktualisieren, neueMarkieren, k.DateiAnzahl - vorher);
            k.ui.TitelNachrichtZeigen("Hinzufügen abgebrochen", 0);
            return false;
        }
    }
    DateiListeHinzuBeenden(k);
    FortschrittZeigenEnde(k);
    const int32_t neu = k.DateiAnzahl - vorher;
    NachHinzufügenAktualisieren(k, listeAktualisieren, neueMarkieren, neu);
    k.ui.TitelNachrichtZeigen(HinzugefügtText(neu), 750);
    return true;
}

void NeueInListeMarkieren(Kartei& k, int32_t anzahl, Ergebnisliste& lstSongs) {
    auto& zeilen = lstSongs.zeilen;
    if (anzahl < 0 || static_cast<size_t>(anzahl) > zeilen.size()) {
        KK_TRACE("NeueInListeMarkieren", "Auführung nicht möglich - nicht genug Listenelemente");
        return;
    }
    const int64_t grenze = int64_t(k.DateiAnzahl) - anzahl;
    int32_t ersteNeue = -1;
    // Von hinten: die zuerst getroffene neue Zeile ist die letzte der Liste.
    for (size_t i = zeilen.size(); i-- > 0;) {
        const bool neu = zeilen[i].eintrag > grenze;
        zeilen[i].ausgewählt = neu;
        if (neu && ersteNeue < 0) ersteNeue = static_cast<int32_t>(i);
    }
    if (ersteNeue >= 0) lstSongs.sichtbareZeile = ersteNeue;
    lstSongs.Geändert();
}
