// Die Stapel des Hinzufügens: Dateiliste, Ordner, Ablage.
#include "intake/Hinzufuegen.h"

#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/Texte.h"
#include "app/Trace.h"
#include "intake/DateiFormat.h"
#include "intake/PlayListe.h"
#include "intake/Scanner.h"
#include "intake/ZielordnerVerschieben.h"
#include "fileops/Loeschen.h"
#include "search/Suche.h"
#include "shell/Fortschritt.h"

#include <vector>

namespace {
constexpr const char* kAbgebrochen = "Hinzufügen abgebrochen";

void OrdnerFehltMelden(Kartei& k, const std::string& ordner) {
    k.ui.MeldungZeigen("Beim Hinzufügen des Ordners '" + ordner +
                           "' ist ein Fehler aufgetreten: \n"
                           "Der Ordner existiert nicht oder ist kein gültiger Ordnername.\n\n"
                           "Ändern Sie den Ordner-Namen in den Optionen und stellen sie sicher, daß sich dieser "
                           "Ordner auf einem Datenträger befindet, auf den Zugriff möglich ist.",
                       Meldung::Ausrufezeichen);
}

// Die gefundenen Dateien eines Ordners aufnehmen (Suchliste schon gefüllt). false: abgebrochen.
// Mit einem Zielordner wird jede Datei vorher dorthin verschoben; ein Abbruch dabei beendet nur die Schleife.
bool GefundeneHinzufügen(Kartei& k, const std::string& ordner, const std::string& zielordner, bool listeAktualisieren,
                         bool neueMarkieren, int32_t& hinzugefügt) {
    auto& a = k.Aufnahme;
    FortschrittZeigenStarten(k, a.SuchlisteAnzahl, true, true, true, "Füge gefundene Dateien hinzu");
    DateiListeHinzuStarten(k);
    for (int32_t i = 1; i <= a.SuchlisteAnzahl; ++i) {
        const std::string datei = a.Suchliste[i];
        // Fremde Typen zeigen keinen Fortschrittsschritt.
        if (!DateiFormatUnterstützt(k, datei, false, false, false, true)) continue;
        if (!zielordner.empty() && !InZielordnerVerschieben(k, ordner, zielordner, i)) break;
        const std::string& pfad = a.Suchliste[i];  // nach dem Verschieben der neue Platz
        const bool aufgenommen = DateienZurListeHinzufügen(k, pfad);
        if (aufgenommen) ++hinzugefügt;
        if (!FortschrittZeigen(k, i, aufgenommen ? pfad : std::string())) {
            DateiListeHinzuBeenden(k);
            NachHinzufügenAktualisieren(k, listeAktualisieren, neueMarkieren, hinzugefügt);
            k.ui.TitelNachrichtZeigen(kAbgebrochen, 0);
            return false;
        }
    }
    return true;
}
}  // namespace

std::string HinzugefügtText(int32_t anzahl) { return std::to_string(anzahl) + " Datei(en) hinzugefügt"; }

void NachHinzufügenAktualisieren(Kartei& k, bool listeAktualisieren, bool neueMarkieren, int32_t anzahl) {
    if (!listeAktualisieren || anzahl < 1) return;
    SucheAktualisieren(k);
    if (neueMarkieren) NeueInListeMarkieren(k, anzahl, k.Liste.lstSongs);
}

bool EinfachDateiHinzufügen(Kartei& k, const EinsBasiert<std::string>& dateien, bool listeAktualisieren, bool meldung,
                            bool neueMarkieren) {
    const int32_t anzahl = dateien.UBound();
    FortschrittZeigenStarten(k, anzahl, true, true, true, "Füge Dateien hinzu");
    DateiListeHinzuStarten(k);
    int32_t hinzugefügt = 0;
    for (int32_t i = 1; i <= anzahl; ++i) {
        if (!FortschrittZeigen(k, i, dateien[i])) {
            // Was schon gelesen ist, bleibt.
            DateiListeHinzuBeenden(k);
            NachHinzufügenAktualisieren(k, listeAktualisieren, neueMarkieren, hinzugefügt);
            k.ui.TitelNachrichtZeigen(kAbgebrochen, 0);
            return false;
        }
        if (DateienZurListeHinzufügen(k, dateien[i])) ++hinzugefügt;
    }
    DateiListeHinzuBeenden(k);
    FortschrittZeigenEnde(k);
    NachHinzufügenAktualisieren(k, listeAktualisieren, neueMarkieren, hinzugefügt);
    if (meldung) k.ui.TitelNachrichtZeigen(HinzugefügtText(hinzugefügt), 750);
    return true;
}

bool EinfachOrdnerHinzufügen(Kartei& k, const std::string& ordner, bool meldung, int16_t unterordner,
                             bool listeAktualisieren, const std::string& kopierenInOrdner, bool neueMarkieren,
                             bool fortschrittOffenLassen) {
    FortschrittZeigenStarten(k, 0, true, false, false, "Durchsuche Ordner");
    if (!FortschrittZeigen(k, "")) return false;
    SuchlisteHinzufügen(k, "", 1);

    if (!IstOrdner(ordner)) {
        KK_TRACE("EinfachOrdnerHinzufügen", "Ordner existiert nicht '" + ordner + "'");
        OrdnerFehltMelden(k, ordner);
        SuchlisteHinzufügen(k, "", 1);
        FortschrittZeigenEnde(k);
        k.ui.TitelNachrichtZeigen(kAbgebrochen, 0);
        return true;
    }
    std::string pfad = ordner;
    EinsBasiert<std::string> masken(1);  // eine leere Maske: jede Datei
    if (!DateienSuchenAPI(k, pfad, masken, unterordner, true)) {
        SuchlisteHinzufügen(k, "", 1);
        FortschrittZeigenEnde(k);
        k.ui.TitelNachrichtZeigen(kAbgebrochen, 0);
        return false;
    }

    int32_t hinzugefügt = 0;
    if (k.Aufnahme.SuchlisteAnzahl == 0) KK_TRACE("EinfachOrdnerHinzufügen", "Keine Dateien im Ordner gefunden");
    else if (!GefundeneHinzufügen(k, ordner, kopierenInOrdner, listeAktualisieren, neueMarkieren, hinzugefügt))
        return false;
    DateiListeHinzuBeenden(k);
    if (!kopierenInOrdner.empty()) OrdnerLöschenFragen(k, ordner);
    if (!fortschrittOffenLassen) FortschrittZeigenEnde(k);
    NachHinzufügenAktualisieren(k, listeAktualisieren, neueMarkieren, hinzugefügt);
    if (meldung) k.ui.TitelNachrichtZeigen(HinzugefügtText(hinzugefügt), 750);
    return true;
}

void DragDropVerarbeiten(Kartei& k, const EinsBasiert<std::string>& pfade) {
    const int32_t vorher = k.DateiAnzahl;
    EinsBasiert<std::string> dateien;
    for (const std::string& pfad : pfade) {
        // Genau so geschrieben: "LISTE.M3U" ist eine gewöhnliche Datei.
        const std::string ende = Right(pfad, 4);
        if (ende == ".m3u" || ende == ".pls") PlayListLesen(k, pfad, false, false, false);
        else if (IstOrdner(pfad))
            EinfachOrdnerHinzufügen(k, pfad, true, k.E.HinzufügenUnterordner, false, "", false, false);
        else if (DoesExist(pfad)) dateien.Anhängen(pfad);
    }
    if (dateien.UBound() > 0) EinfachDateiHinzufügen(k, dateien, false, false, false);
    const int32_t neu = k.DateiAnzahl - vorher;
    if (neu > 0) {
        SucheAktualisieren(k);
        NeueInListeMarkieren(k, neu, k.Liste.lstSongs);
    }
    k.ui.TitelNachrichtZeigen(HinzugefügtText(neu), 750);
}
