// cmdFunktionAusführen: eine Funktion auf den Tag der gezeigten Datei oder auf alle Dateien.
#include "app/Kartei.h"
#include "tags/AutoTag.h"
#include "tags/AutoTagStapel.h"
#include "tags/TagEditorIntern.h"
#include "tags/TagFunktionen.h"

namespace {
// Alle Dateien der Liste: erst die gezeigte speichern, wie es ein Wechsel täte, dann laden,
// anwenden, speichern je Datei; danach zeigt der Editor die gezeigte Datei neu.
void FürAlle(Kartei& k, TagEditor& e, int32_t funktion, int16_t modus, const std::vector<int32_t>& felder) {
    TagAutomatischSpeichern(k, e);
    TagEditorAnsichtLesen(e.a, e.TagArbeitsdaten);
    const TagKopie kopie{e.TagArbeitsdaten, felder};
    std::vector<int32_t> einträge;
    for (int32_t i = 1; i <= e.TagEditorDateien.UBound(); ++i) einträge.push_back(e.TagEditorDateien[i]);
    TagFunktionStapel(k, einträge, funktion, k.E.AutoTagAktuell, modus, &kopie);
    TagEintragLaden(k, e, e.AktuellerEintrag, "111");
}
}  // namespace

void TagEditorFunktionAusführen(Kartei& k, TagEditor& e, int32_t funktion, int32_t ziel,
                                const std::vector<int32_t>& felder) {
    const int32_t n = TagEditorEintrag(e);
    if (n == 0) return;
    const int16_t modus = TagFunktionModus(ziel);
    if (TagFunktionFürAlle(ziel)) return FürAlle(k, e, funktion, modus, felder);

    // Die gezeigte Datei: die Funktion wirkt auf das Eingegebene, gespeichert wird nicht.
    TagEditorAnsichtLesen(e.a, e.TagArbeitsdaten);
    DateiInfo d = e.TagArbeitsdaten;
    if (funktion == TagFunktionAutoTag) {
        DateiInfo ergebnis;
        if (AutoTagVersuchen(k, k.DateiPfade[n], k.E.AutoTagAktuell, ergebnis, d, modus)) d = ergebnis;
        else k.ui.MeldungZeigen("Es ist ein Fehler in der Funktion 'AutoTAG' aufgetreten.", Meldung::Ausrufezeichen);
    } else if (funktion == TagFunktionFelderKopieren) {
        TagFelderAusAnderemTag(k, d, felder, modus);
    } else {
        TagFunktionAnwenden(k, funktion, d, modus);
    }
    // Auch ein Teilerfolg steht danach in der Ansicht.
    e.TagArbeitsdaten = d;
    MedienInfosEintragen(k, e.a, e.TagArbeitsdaten, k.DateiPfade[n], "000");
}
