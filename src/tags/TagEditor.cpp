// Der Ablauf des Tag-Editors: öffnen, Datei wählen und laden, blättern, automatisch speichern,
// einen Tag entfernen, schließen.
#include "tags/TagEditor.h"

#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/Tabelle.h"
#include "app/Trace.h"
#include "intake/NichtVerfuegbar.h"
#include "media/Id3v1.h"
#include "media/Id3v2Schreiben.h"
#include "search/ListeErstellen.h"
#include "search/Suche.h"
#include "tags/TagEditorIntern.h"

namespace {
int16_t Haken(bool an) { return an ? 1 : 0; }
}  // namespace

int32_t TagEditorEintrag(const TagEditor& e) {
    return e.TagEditorDateien.GültigerIndex(e.AktuellerEintrag) ? e.TagEditorDateien[e.AktuellerEintrag] : 0;
}

bool TagEditorAnsichtAuffrischen(Kartei& k, TagEditor& e, const std::string& flags, bool v1Behalten, bool v2Behalten,
                                 bool indexBehalten) {
    const int32_t n = TagEditorEintrag(e);
    if (n == 0) return false;
    const TagEditorAnsicht vorher = e.a;
    if (!MedienInfosEintragen(k, e.a, e.TagArbeitsdaten, k.DateiPfade[n], flags)) return false;
    // Was nicht gespeichert wurde, bleibt so stehen, wie die Person es eingegeben hat.
    if (v1Behalten) {
        for (const auto& f : TagEditorV1Felder()) e.a.*f.steuer = vorher.*f.steuer;
        e.a.cboMusikrichtung = vorher.cboMusikrichtung;
    }
    if (v2Behalten) {
        for (const auto& f : TagEditorV2Felder()) e.a.*f.steuer = vorher.*f.steuer;
        e.a.cbov2Musikrichtung = vorher.cbov2Musikrichtung;
    }
    if (indexBehalten) {
        e.a.txtIndexHinzugefügtAm = vorher.txtIndexHinzugefügtAm;
        e.a.txtIndexDatenträger = vorher.txtIndexDatenträger;
        e.a.txtIndexAbspielAnzahl = vorher.txtIndexAbspielAnzahl;
        e.a.txtIndexAbspielDatum = vorher.txtIndexAbspielDatum;
    }
    return true;
}

bool TagEditorÖffnen(Kartei& k, TagEditor& e, const std::vector<int32_t>& einträge) {
    e.TagEditorDateien.ReDim(static_cast<int32_t>(einträge.size()));
    e.a.txtDateiname.clear();
    for (size_t i = 0; i < einträge.size(); ++i) {
        e.TagEditorDateien[static_cast<int32_t>(i + 1)] = einträge[i];
        e.a.txtDateiname.push_back(DateinameAusPfad(EintragPfad(k, einträge[i])));
    }
    if (k.E.AutoTagAktuell.empty() && k.E.AutoTagLeer != 1 && k.E.AutoTagFormate.UBound() >= 1)
        k.E.AutoTagAktuell = k.E.AutoTagFormate[1];
    e.AktuellerEintrag = 0;
    e.a.sichtbar = true;
    const bool geladen = !einträge.empty() && txtDateiname_Click(k, e, 0);
    e.a.chkAutomatischSpeichern = k.E.TAGAutomatischSpeichern == 1;
    e.a.chkAutomatischSpeichernV2 = k.E.TAGAutomatischSpeichernV2 == 1;
    e.a.chkAutomatischSpeichernFelder = k.E.TAGAutomatischSpeichernFelder == 1;
    e.a.sichtbar = geladen;
    return geladen;
}

bool txtDateiname_Click(Kartei& k, TagEditor& e, int32_t zeile) {
    e.TagEintragGeladen = false;
    if (e.TagLadenLäuft) return false;
    if (e.AktuellerEintrag != 0) TagAutomatischSpeichern(k, e);
    NichtVerfügbarFragenZurücksetzen(k);
    for (int32_t position = zeile + 1; position <= e.TagEditorDateien.UBound(); ++position) {
        const int16_t ergebnis = TagEintragLaden(k, e, position, "111");
        if (ergebnis == 0) {
            e.TagEintragGeladen = true;
            return true;
        }
        if (ergebnis == 2) break;
    }
    e.a.sichtbar = false;
    return false;
}

int16_t TagEintragLaden(Kartei& k, TagEditor& e, int32_t position, const std::string& flags) {
    NichtVerfügbarFragenZurücksetzen(k);
    if (!e.TagEditorDateien.GültigerIndex(position)) return 2;
    const int32_t n = e.TagEditorDateien[position];
    const int16_t verfügbar = DateiNichtVerfügbarPrüfen(k, n, false, false);
    if (verfügbar != 0) return verfügbar;
    if (!k.DateiDaten.GültigerIndex(n)) return 1;
    e.TagLadenLäuft = true;
    e.AktuellerEintrag = position;
    e.a.txtDateinameToolTip = k.DateiPfade[n];
    // Auf einer Kopie: fehlt die Datei, behält der Eintrag seine Daten.
    DateiInfo info = k.DateiDaten[n];
    e.TagArbeitsdaten = info;
    if (MedienInfosEintragen(k, e.a, info, k.DateiPfade[n], flags)) {
        e.TagArbeitsdaten = info;
        e.TagArbeitsdaten.Mp3_ID3v1_Kommentar = TagTextBereinigen(info.Mp3_ID3v1_Kommentar, false);
        k.DateiDaten[n] = e.TagArbeitsdaten;
        DateiGeändertSetzen(k);
    }
    e.a.txtDateinameListIndex = position - 1;
    e.a.cmdVorheriger = position > 1;
    e.a.cmdNächster = position < e.TagEditorDateien.UBound();
    e.TagLadenLäuft = false;
    return 0;
}

void TagAutomatischSpeichern(Kartei& k, TagEditor& e) {
    if (e.a.chkAutomatischSpeichern && e.a.cmdTAGSpeichern) Mp3TAGAnzeigeInfosSpeichern(k, e, 1);
    if (e.a.chkAutomatischSpeichernV2 && e.a.cmdTagSpeichernV2) Mp3TAGAnzeigeInfosSpeichern(k, e, 2);
    if (e.a.chkAutomatischSpeichernFelder && e.a.cmdTAGSpeichernFelder) Mp3TAGAnzeigeInfosSpeichern(k, e, 3);
}

bool TagEditorBlättern(Kartei& k, TagEditor& e, int richtung) {
    const int32_t ziel = e.AktuellerEintrag + richtung;
    if (ziel < 1 || ziel > e.TagEditorDateien.UBound()) return false;
    return txtDateiname_Click(k, e, ziel - 1);
}

bool TagEditorTagEntfernen(Kartei& k, TagEditor& e, bool v2) {
    const int32_t n = TagEditorEintrag(e);
    if (n == 0) return false;
    const char* frage = v2 ? "Möchten Sie den ID3v2-TAG entfernen?" : "Möchten Sie den ID3v1-TAG entfernen?";
    if (k.ui.MeldungZeigen(frage, Meldung::JaNeinFrage) != Meldung::Ja) return false;
    const std::string pfad = k.DateiPfade[n];
    // Fehlt die Datei oder der Tag, zeigt der Editor das vor dem Hinweis.
    const auto neuLaden = [&k, &e] { TagEintragLaden(k, e, e.AktuellerEintrag, "111"); };
    bool entfernt = false;
    if (v2) {
        DateiRest rest;
        entfernt = TAGEntfernenV2(k, pfad, n, false, rest, &e.TagArbeitsdaten, neuLaden);
    } else {
        entfernt = TAGEntfernen(k, e.TagArbeitsdaten, pfad, n, neuLaden);
    }
    if (entfernt) TagEditorAnsichtAuffrischen(k, e, "000", v2, !v2, true);
    return entfernt;
}

void TagEditorOk(Kartei& k, TagEditor& e) {
    if (e.AktuellerEintrag != 0) TagAutomatischSpeichern(k, e);
    k.E.TAGAutomatischSpeichern = Haken(e.a.chkAutomatischSpeichern);
    k.E.TAGAutomatischSpeichernV2 = Haken(e.a.chkAutomatischSpeichernV2);
    k.E.TAGAutomatischSpeichernFelder = Haken(e.a.chkAutomatischSpeichernFelder);
    e.a.sichtbar = false;
    k.ui.EreignisseVerarbeiten();
    if (k.E.SucheNichtBeiTAGEditor == 1) {
        std::vector<int32_t> einträge;
        for (int32_t i = 1; i <= e.TagEditorDateien.UBound(); ++i) einträge.push_back(e.TagEditorDateien[i]);
        ListeErstellenAktualisieren(k.Liste.lstSongs, einträge);
    } else {
        SucheAktualisieren(k);
    }
}
