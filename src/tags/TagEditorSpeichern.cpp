// Speichern im Tag-Editor: ID3v1, ID3v2 und Index-Felder, einzeln oder zusammen.
#include "app/Kartei.h"
#include "app/Tabelle.h"
#include "intake/NichtVerfuegbar.h"
#include "media/Id3v1.h"
#include "media/Id3v2Schreiben.h"
#include "tags/TagDateien.h"
#include "tags/TagEditorIntern.h"

namespace {
// Ein Schreiber ist gelaufen: bei Erfolg den Status setzen, sonst seinen Text als Warnung zeigen.
void Geschrieben(Kartei& k, TagEditor& e, bool gelungen, const std::string& fehler, uint8_t DateiInfo::*status) {
    if (!gelungen) {
        k.ui.MeldungZeigen(fehler, Meldung::Ausrufezeichen);
        return;
    }
    e.TagArbeitsdaten.*status = 1;
    DateiGeändertSetzen(k);
    e.TagGespeichert = true;
}
}  // namespace

void Mp3TAGAnzeigeInfosSpeichern(Kartei& k, TagEditor& e, int16_t art) {
    const int32_t n = TagEditorEintrag(e);
    if (n == 0) return;
    const std::string pfad = k.DateiPfade[n];
    TagEditorAnsichtLesen(e.a, e.TagArbeitsdaten);
    if (art < 3 && !TagDateitypFragen(k, pfad)) return;
    const bool erreichbar = DateiNichtVerfügbarPrüfen(k, n, false, false) == 0;
    if (erreichbar && (art == 0 || art == 1)) {
        std::string fehler;
        const std::string tag = TAGAusFeldernZusammensetzen(Id3v1FelderAusDatensatz(e.TagArbeitsdaten));
        Geschrieben(k, e, Mp3TAGSpeichernV1Datei(pfad, tag, fehler), fehler, &DateiInfo::Mp3_ID3v1_Status);
    }
    if (erreichbar && (art == 0 || art == 2)) {
        std::string fehler;
        Geschrieben(k, e, MP3TagSpeichernV2Datei(k, pfad, fehler, e.TagArbeitsdaten, n), fehler,
                    &DateiInfo::Mp3_ID3v2_Status);
    }
    if (art == 0 || art == 3) {
        TagEditorIndexFelderLesen(e.a, e.TagArbeitsdaten);
        DateiGeändertSetzen(k);
        e.TagGespeichert = true;
    }
    // Ein nicht gespeicherter Tag bleibt in der Ansicht stehen, wie er eingegeben war.
    if (!TagEditorAnsichtAuffrischen(k, e, "111", art == 2 || art == 3, art == 1 || art == 3, false)) return;
    e.TagArbeitsdaten.Mp3_ID3v1_Kommentar = TagTextBereinigen(e.TagArbeitsdaten.Mp3_ID3v1_Kommentar, false);
    k.DateiDaten[n] = e.TagArbeitsdaten;
    DateiGeändertSetzen(k);
}
