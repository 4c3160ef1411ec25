#include "tags/TagDateien.h"

#include "app/Kartei.h"
#include "app/Tabelle.h"
#include "index/IndexDatei.h"
#include "intake/DateiFormat.h"
#include "media/MedienInfos.h"

bool TagDateitypFragen(Kartei& k, const std::string& pfad) {
    if (DateiFormatUnterstützt(k, pfad, true, false, false, false)) return true;
    return k.ui.MeldungZeigen("Sie sollten ID3-TAGs nur in Dateien des Typs 'MPEG Audio/AAC' speichern.\n"
                              "Der Datei-Typ konnte anhand der Dateiendung nicht als passend erkannt werden.\n"
                              "Möchten Sie die Datei trotzdem speichern (nicht empfohlen)?",
                              Meldung::JaNeinAusruf) == Meldung::Ja;
}

bool IndexEintragAuffrischen(Kartei& k, const std::string& pfad) {
    bool gefunden = false;
    for (int32_t n = 1; n <= k.DateiAnzahl; ++n) {
        if (k.DateiPfade[n] != pfad) continue;
        k.DateiDaten[n] = MedienInfosLesen(k, pfad, k.DateiDaten[n], "11", false, "1", "1");
        DateiGeändertSetzen(k);
        gefunden = true;
    }
    return !gefunden || DateiSpeichern(k, k.Dateiname, false);
}

int TagDesFeldes(std::string_view name) {
    if (name.starts_with("Mp3_ID3v1_")) return 1;
    return name.starts_with("Mp3_ID3v2_") ? 2 : 0;
}
