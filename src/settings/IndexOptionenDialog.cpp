// frmIndexOptionen ohne Fenster: Arbeitskopie füllen, Zeilen bearbeiten, prüfen und übernehmen.
#include "settings/IndexOptionenDialog.h"

#include "app/Ergebnisliste.h"
#include "app/Kartei.h"
#include "app/Tabelle.h"
#include "app/Texte.h"
#include "index/Dateitypen.h"

#include <algorithm>

namespace {
const char* const kAlleWeiteren = "(Alle weiteren Formate)";
const char* const kNeuerTyp = "(Neuer Dateityp)";
const char* const kWählen = "Bitte wählen Sie einen Listeneintrag.";
const char* const kEntfernenFrage = "Möchten Sie diesen Listeneintrag entfernen?";

bool IstVorgabeEndung(const std::string& endung) {
    int anzahl = 0;
    const DateitypVorgabe* v = DateitypenVorgaben(anzahl);
    for (int i = 0; i < anzahl; ++i) {
        const std::string eintrag = v[i].eintrag;
        if (eintrag.substr(0, eintrag.find('=')) == endung) return true;
    }
    return false;
}

DateitypZeile ZeileAusEintrag(const std::string& eintrag, const std::string& klasse) {
    DateitypZeile z;
    const size_t gleich = eintrag.rfind('=');
    z.endung = eintrag.substr(0, gleich);
    z.an = gleich != std::string::npos && Mid(eintrag, int32_t(gleich) + 2, 1) == "1";
    z.klasse = klasse;
    z.alleWeiteren = z.endung == "*";
    z.eingebaut = IstVorgabeEndung(z.endung);
    return z;
}

bool Informieren(Kartei& k, const std::string& text) {
    k.ui.MeldungZeigen(text, Meldung::Information);
    return false;
}

// Die Eingaben vor dem Übernehmen prüfen; false nach der Meldung.
bool Prüfen(Kartei& k, const IndexOptionenEingabe& e) {
    if (std::none_of(e.spalten.begin(), e.spalten.end(), [](const SpaltenWahl& s) { return s.angehakt; }))
        return Informieren(k, "Bitte wählen Sie mindestens eine Spalte zur Anzeige aus.");
    if (e.txtSpaltenBenutzerFormat.empty())
        return Informieren(k, "Bitte geben Sie einen Text in das Feld 'Format der benutzerdefinierten Spalte' ein.");
    for (const auto& z : e.typen) {
        if (z.endung.empty())
            return Informieren(
                k, "Bitte geben Sie in jedes Feld in der Liste 'Dateitypen verwalten' eine Datei-Endung ein.");
        // "=" und "," trennen die Werte der Zeile in der Indexdatei.
        if (!z.alleWeiteren && z.endung.find_first_of("=,*") != std::string::npos)
            return Informieren(k, "Die Datei-Endung '" + z.endung + "' darf kein '=', ',' oder '*' enthalten.");
    }
    return true;
}

void TypenSchreiben(IndexOptionen& o, const std::vector<DateitypZeile>& typen) {
    o.DateitypEintrag.ReDim(int32_t(typen.size()));
    o.DateitypKlasse.ReDim(int32_t(typen.size()));
    for (size_t i = 0; i < typen.size(); ++i) {
        const auto& z = typen[i];
        o.DateitypEintrag[int32_t(i) + 1] = (z.alleWeiteren ? std::string("*") : z.endung) + "=" + (z.an ? "1" : "0");
        o.DateitypKlasse[int32_t(i) + 1] = z.alleWeiteren ? std::string("000") : z.klasse;
    }
    o.DateitypenLeer = false;
}

void SyncSchreiben(IndexOptionen& o, const std::vector<SyncZeile>& sync) {
    const auto n = std::max<int32_t>(1, int32_t(sync.size()));
    o.SyncOrdner.ReDim(n);
    o.SyncUnterordner.ReDim(n);
    o.SyncKopierenInOrdner.ReDim(n);
    o.SyncLeer = sync.empty();
    for (size_t i = 0; i < sync.size(); ++i) {
        o.SyncOrdner[int32_t(i) + 1] = sync[i].ordner;
        o.SyncUnterordner[int32_t(i) + 1] = sync[i].unterordner ? 1 : 0;
        o.SyncKopierenInOrdner[int32_t(i) + 1] = sync[i].kopieren ? sync[i].ziel : "";
    }
}
}  // namespace

bool IndexOptionenÖffnenPrüfen(Kartei& k) {
    if (!k.IndexZugriff.NichtsGeladen && !k.Dateiname.empty()) return true;
    return Informieren(k, "Es wurde keine Indexdatei geladen.\nBitte laden Sie eine Indexdatei, um diese Funktion zu "
                          "nutzen.");
}

IndexOptionenEingabe IndexOptionenEinsetzen(Kartei& k) {
    IndexOptionenEingabe e;
    DateitypenVorgabenWennLeer(k.Optionen);
    const IndexOptionen& o = k.Optionen;
    for (int32_t i = 1; i <= o.DateitypEintrag.UBound(); ++i)
        e.typen.push_back(
            ZeileAusEintrag(o.DateitypEintrag[i], o.DateitypKlasse.GültigerIndex(i) ? o.DateitypKlasse[i] : "000"));
    if (!o.SyncLeer)
        for (int32_t i = 1; i <= o.SyncOrdner.UBound(); ++i) {
            SyncZeile z;
            z.ordner = o.SyncOrdner[i];
            z.unterordner = o.SyncUnterordner.GültigerIndex(i) && o.SyncUnterordner[i] == 1;
            z.ziel = o.SyncKopierenInOrdner.GültigerIndex(i) ? o.SyncKopierenInOrdner[i] : "";
            z.kopieren = !z.ziel.empty();
            e.sync.push_back(z);
        }
    e.spalten = OptionenSpaltenEinsetzen(k);
    e.chkBeschreibungsleiste = o.SpaltenLeiste != 0;
    e.chkGitter = o.SpaltenGitter != 0;
    e.txtSpaltenBenutzerFormat = o.SpaltenNutzerformat;
    e.BeiDoppelklick = k.E.BeiDoppelklick;
    e.chkSyncDanachEntfernen = o.SyncEntfernen == 1;
    return e;
}

std::string DateitypAnzeige(const DateitypZeile& z) {
    if (z.alleWeiteren) return kAlleWeiteren;
    return z.endung.empty() ? kNeuerTyp : z.endung;
}

int32_t DateitypHinzufügen(IndexOptionenEingabe& e) {
    // Vor "(Alle weiteren Formate)", damit diese Zeile die letzte bleibt.
    auto stelle = std::find_if(e.typen.begin(), e.typen.end(), [](const DateitypZeile& z) { return z.alleWeiteren; });
    const auto nummer = stelle - e.typen.begin();
    DateitypZeile neu;
    neu.an = true;
    e.typen.insert(stelle, neu);
    return int32_t(nummer);
}

bool DateitypÄnderbar(const DateitypZeile& z) { return !z.eingebaut && !z.alleWeiteren; }

std::string DateitypEndungNormal(const std::string& text) {
    std::string endung = Klein(Trim(text));
    while (!endung.empty() && endung.front() == '.') endung.erase(0, 1);
    return endung;
}

bool DateitypEntfernen(Kartei& k, IndexOptionenEingabe& e, int32_t zeile) {
    if (zeile < 0 || zeile >= int32_t(e.typen.size())) return Informieren(k, kWählen);
    if (!DateitypÄnderbar(e.typen[size_t(zeile)]))
        return Informieren(k, "Nur eigene Einträge können geändert oder gelöscht werden.");
    if (k.ui.MeldungZeigen(kEntfernenFrage, Meldung::JaNeinFrage) != Meldung::Ja) return false;
    e.typen.erase(e.typen.begin() + zeile);
    return true;
}

bool SyncOrdnerWählen(Kartei& k, IndexOptionenEingabe& e, bool neu, int32_t& zeile) {
    if (!neu && (zeile < 0 || zeile >= int32_t(e.sync.size()))) return Informieren(k, kWählen);
    std::string ordner = neu ? std::string() : e.sync[size_t(zeile)].ordner;
    if (!k.ui.OrdnerWählen("Bitte wählen Sie einen Ordner...", ordner) || ordner.empty()) return false;
    if (neu) {
        e.sync.push_back(SyncZeile{});
        zeile = int32_t(e.sync.size()) - 1;
    }
    e.sync[size_t(zeile)].ordner = ordner;
    return true;
}

bool SyncOrdnerEntfernen(Kartei& k, IndexOptionenEingabe& e, int32_t zeile) {
    if (zeile < 0 || zeile >= int32_t(e.sync.size())) return Informieren(k, kWählen);
    if (k.ui.MeldungZeigen(kEntfernenFrage, Meldung::JaNeinFrage) != Meldung::Ja) return false;
    e.sync.erase(e.sync.begin() + zeile);
    return true;
}

bool IndexOptionenÜbernehmen(Kartei& k, const IndexOptionenEingabe& e, Ergebnisliste& liste) {
    if (!Prüfen(k, e)) return false;
    IndexOptionen& o = k.Optionen;
    TypenSchreiben(o, e.typen);
    k.E.BeiDoppelklick = e.BeiDoppelklick;
    SyncSchreiben(o, e.sync);
    o.SyncEntfernen = e.chkSyncDanachEntfernen ? 1 : 0;
    o.Spalten = SpaltenBeschreibungAusWahl(k, e.spalten);
    o.SpaltenLeiste = e.chkBeschreibungsleiste ? 1 : 0;
    o.SpaltenGitter = e.chkGitter ? 1 : 0;
    if (e.txtSpaltenBenutzerFormat != o.SpaltenNutzerformat) o.SpaltenNutzerformat = e.txtSpaltenBenutzerFormat;
    bool fehler = false;
    SpaltenAnpassen(k, liste, fehler);
    SpaltenSpeichern(k, liste);
    k.ui.TitelNachrichtZeigen("Die Index-Optionen wurden übernommen", 750);
    DateiGeändertSetzen(k);
    return true;
}

int16_t DoppelklickWert(int16_t bisher, int16_t wahl) {
    if (wahl < 1 || wahl > 4) return bisher;
    return wahl == 1 && bisher == 0 ? int16_t{0} : wahl;
}
