// AutoTag über eine Auswahl: je Datei erkennen, schreiben, den Eintrag auffrischen.
#include "tags/AutoTagStapel.h"

#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/Tabelle.h"
#include "intake/NichtVerfuegbar.h"
#include "media/Id3v1.h"
#include "media/Id3v2Schreiben.h"
#include "media/MedienInfos.h"
#include "shell/Fortschritt.h"
#include "tags/AutoTag.h"
#include "tags/TagDateien.h"
#include "tags/TagFunktionen.h"

#include <algorithm>

namespace {
// Nach einem Fehler: weiter mit der nächsten Datei? Die Antwort Nein beendet den Stapel.
// fehler leer: die Funktion hat ihren Grund schon selbst gemeldet.
bool Weitermachen(Kartei& k, const std::string& fehler) {
    return k.ui.MeldungZeigen((fehler.empty() ? "" : fehler + "\n") + "Möchten Sie mit der nächsten Datei fortfahren?",
                              Meldung::JaNeinAusruf) == Meldung::Ja;
}

// Die Funktion auf den Eintrag anwenden; 0 gelungen, 1 nicht (weiter), 2 abbrechen.
int16_t Anwenden(Kartei& k, int32_t n, int32_t funktion, const std::string& format, int16_t modus,
                 const TagKopie* kopie, DateiInfo& arbeit) {
    if (funktion == TagFunktionAutoTag) {
        if (AutoTagVersuchen(k, k.DateiPfade[n], format, arbeit, k.DateiDaten[n], modus)) return 0;
        return Weitermachen(k, "Es ist ein Fehler in der Funktion 'AutoTAG' aufgetreten.") ? 1 : 2;
    }
    arbeit = k.DateiDaten[n];
    const bool gelungen = funktion == TagFunktionFelderKopieren && kopie
                              ? TagFelderKopieren(k, kopie->quelle, arbeit, kopie->felder, modus)
                              : TagFunktionAnwenden(k, funktion, arbeit, modus);
    if (gelungen) return 0;
    return Weitermachen(k, "") ? 1 : 2;
}

// Nach dem Schreiben eines Tags: bei einem Fehler die Meldung des Schreibers, dann die Frage.
// 0 geschrieben, 1 nicht geschrieben, 2 abbrechen.
int16_t Geschrieben(Kartei& k, bool gelungen, const std::string& fehlertext, const char* version) {
    if (gelungen) return 0;
    if (!fehlertext.empty()) k.ui.MeldungZeigen(fehlertext, Meldung::Ausrufezeichen);
    return Weitermachen(k, std::string("Es ist ein Fehler beim Speichern des ") + version + "-TAGs aufgetreten.") ? 1
                                                                                                                  : 2;
}
}  // namespace

int16_t AutoTagTagsSpeichern(Kartei& k, int32_t eintrag, const DateiInfo& arbeit, int16_t modus) {
    const std::string pfad = k.DateiPfade[eintrag];
    if (!TagDateitypFragen(k, pfad)) return 1;  // Nein: diese Datei bleibt, wie sie ist
    int16_t ergebnis = 0;
    std::string fehler;
    if (modus != AutoTagModusV2) {
        const std::string tag = TAGAusFeldernZusammensetzen(Id3v1FelderAusDatensatz(arbeit));
        ergebnis = Geschrieben(k, Mp3TAGSpeichernV1Datei(pfad, tag, fehler), fehler, "ID3v1");
    }
    if (ergebnis != 2 && modus != AutoTagModusV1) {
        fehler.clear();
        const int16_t v2 = Geschrieben(k, MP3TagSpeichernV2Datei(k, pfad, fehler, arbeit, eintrag), fehler, "ID3v2");
        ergebnis = std::max(ergebnis, v2);
    }
    // Der Eintrag hält danach, was wirklich in der Datei steht; die Index-Felder bleiben.
    k.DateiDaten[eintrag] = MedienInfosLesen(k, pfad, k.DateiDaten[eintrag], "11", false, "1", "1");
    DateiGeändertSetzen(k);
    return ergebnis;
}

AutoTagStapelErgebnis AutoTagStapel(Kartei& k, const std::vector<int32_t>& einträge, const std::string& format,
                                    int16_t modus) {
    return TagFunktionStapel(k, einträge, TagFunktionAutoTag, format, modus);
}

AutoTagStapelErgebnis TagFunktionStapel(Kartei& k, const std::vector<int32_t>& einträge, int32_t funktion,
                                        const std::string& format, int16_t modus, const TagKopie* kopie) {
    AutoTagStapelErgebnis e;
    NichtVerfügbarFragenZurücksetzen(k);
    const bool bekannt = funktion >= 0 && funktion < static_cast<int32_t>(TagFunktionen().size());
    FortschrittZeigenStarten(k, static_cast<int32_t>(einträge.size()), true, true, true,
                             bekannt ? TagFunktionen()[static_cast<size_t>(funktion)] : "");
    for (size_t i = 0; i < einträge.size() && !e.abgebrochen; ++i) {
        const int32_t n = einträge[i];
        if (!FortschrittZeigen(k, static_cast<double>(i), k.DateiPfade[n])) {
            e.abgebrochen = true;
            break;
        }
        const int16_t verfügbar = DateiNichtVerfügbarPrüfen(k, n, true, false);
        e.abgebrochen = verfügbar == 2;
        if (verfügbar != 0) continue;
        // Der Index kann hinter der Datei zurück sein; geschrieben wird, was in ihr steht, plus die Funktion.
        if (DoesExist(k.DateiPfade[n])) {
            k.DateiDaten[n] = MedienInfosLesen(k, k.DateiPfade[n], k.DateiDaten[n], "11", false, "1", "0");
            DateiGeändertSetzen(k);
        }
        DateiInfo arbeit;
        int16_t ergebnis = Anwenden(k, n, funktion, format, modus, kopie, arbeit);
        if (ergebnis == 0) ergebnis = AutoTagTagsSpeichern(k, n, arbeit, modus);
        if (ergebnis == 0) ++e.gespeichert;
        else ++e.nichtGespeichert;
        e.abgebrochen = ergebnis == 2;
    }
    FortschrittZeigenEnde(k);
    return e;
}
