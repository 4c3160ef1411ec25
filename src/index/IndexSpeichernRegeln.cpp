#include "app/Kartei.h"
#include "index/IndexDatei.h"

bool SpeichernMitFortschritt(const Kartei& k) {
    return k.E.StartBildschirm == 1 && k.E.StartBildschirmNichtBeiSpeichern != 1;
}

bool IndexSpeichern(Kartei& k, const std::string& pfad) { return DateiSpeichern(k, pfad, SpeichernMitFortschritt(k)); }

bool ÄnderungenSpeichern(Kartei& k) { return !k.DateiGeändert || IndexSpeichern(k, k.Dateiname); }

bool RegelmäßigSpeichernPrüfen(Kartei& k) {
    if (k.E.RegelmäßigSpeichernAlle <= 0) return false;
    const Datum jetzt = k.uhr.Jetzt();
    if (DatumDifferenz(Zeiteinheit::Minute, k.LetzteSpeicherung, jetzt) < k.E.RegelmäßigSpeichernAlle) return false;
    bool gespeichert = false;
    if (k.DateiGeändert && !k.IndexZugriff.NichtsGeladen) {
        gespeichert = IndexSpeichern(k, k.Dateiname);
        if (gespeichert) k.ui.TitelNachrichtZeigen("Die Indexdatei wurde automatisch gespeichert", 0);
    }
    // Auch ohne Änderung oder nach einem Fehlschlag erst wieder nach der vollen Zeit.
    if (!gespeichert) k.LetzteSpeicherung = jetzt;
    return gespeichert;
}

SchließenAktion SpeichernVorSchließenFragen(Kartei& k) {
    if (!k.DateiGeändert || k.IndexZugriff.NichtsGeladen) return SchließenAktion::OhneSpeichern;
    if (k.E.DateiAutomatischSpeichern == 1) return SchließenAktion::Speichern;
    switch (
        k.ui.MeldungZeigen("Die Indexdatei wurde geändert.\nMöchten Sie diese speichern?", Meldung::JaNeinAbbrechen)) {
    case Meldung::Ja: return SchließenAktion::Speichern;
    case Meldung::Nein: return SchließenAktion::OhneSpeichern;
    default: return SchließenAktion::Abbrechen;
    }
}
