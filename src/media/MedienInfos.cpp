#include "media/MedienInfos.h"

#include "app/Kartei.h"
#include "app/Texte.h"
#include "app/Trace.h"
#include "intake/DateiFormat.h"
#include "intake/Wechselmedium.h"
#include "media/DateiLeser.h"
#include "media/Id3v1.h"
#include "media/Id3v2Lesen.h"
#include "media/MpegKopf.h"

#include <ctime>
#include <limits>

namespace {
// Zeichen i (ab 0) eines Schaltertextes als Wahrheitswert: "0" falsch, andere Ziffern wahr;
// was keine Ziffer ist oder fehlt, fragt nichts an.
bool Schalter(const std::string& schalter, size_t i) {
    return i < schalter.size() && schalter[i] >= '1' && schalter[i] <= '9';
}

// Je einer der drei Sperr-Schalter, in dieser Reihenfolge.
void TypSetzen(Kartei& k, const std::string& pfad, DateiInfo& info) {
    if (DateiFormatUnterstützt(k, pfad, true, false, false, false)) {
        info.Datei_Typ = 1;
    } else if (DateiFormatUnterstützt(k, pfad, false, false, true, false)) {
        if (InStrText(1, pfad, ".wma") > 0 || InStrText(1, pfad, ".wmf") > 0) info.Datei_Typ = 2;
        else if (InStrText(1, pfad, ".wav") > 0) info.Datei_Typ = 3;
    } else {
        info.Datei_Typ = DateiFormatUnterstützt(k, pfad, false, true, false, false) ? 4 : 0;
    }
}

// Tag der letzten Änderung in Ortszeit; false, wenn er sich nicht bilden lässt.
bool Dateidatum(std::time_t zeit, Datum& datum) {
    std::tm t{};
    if (!localtime_r(&zeit, &t)) return false;
    datum = Datum{t.tm_year + 1900, t.tm_mon + 1, t.tm_mday, t.tm_hour, t.tm_min, t.tm_sec};
    return IstGültigesDatum(datum.Jahr, datum.Monat, datum.Tag) && datum.Jahr >= 100 && datum.Jahr <= 9999;
}
}  // namespace

DateiInfo MedienInfosLesen(Kartei& k, const std::string& dateiname, const DateiInfo& info, const std::string& tagFlags,
                           bool zeilenumbrücheLassen, const std::string& kopfLesen, const std::string& größeLesen) {
    DateiInfo r = info;
    // Die Datei wird einmal geöffnet; alle Leser teilen sich den gepufferten Anfang.
    DateiLeser datei(dateiname);
    if (Schalter(tagFlags, 0)) Id3v1FelderAufteilen(Mp3tagLesenStr(datei), r, zeilenumbrücheLassen);
    if (Schalter(tagFlags, 1) && !Mp3TAGLesenV2(datei, r, k.E.TAGsBytesSuchen))
        KK_TRACE("MedienInfosLesen", "ID3v2-Fehler bei '" + dateiname + "'");
    // Vor der Größe: ein Datensatz ohne Datei_Größe rechnet die Frames mit dem alten Wert.
    if (kopfLesen == "1") r = HeaderLesen(datei, r);
    TypSetzen(k, dateiname, r);

    if (größeLesen == "1") {
        if (datei.Offen()) {
            // Long: eine Datei ab 2 GiB lässt den alten Wert stehen.
            if (datei.Länge() <= std::numeric_limits<int32_t>::max())
                r.Datei_Größe = static_cast<int32_t>(datei.Länge());
            r.Datei_Wechselmedium = WechselmediumZuPfad(k, dateiname);
        } else {
            r.Datei_Größe = -1;
        }
    }
    if (r.Datei_HinzugefügtAm.empty()) {
        Datum datum;
        if (!datei.Offen() || !Dateidatum(datei.Änderungszeit(), datum)) datum = k.uhr.Jetzt();
        r.Datei_HinzugefügtAm = DatumText(datum);
    }
    return r;
}
