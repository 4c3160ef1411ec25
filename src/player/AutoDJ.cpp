#include "player/AutoDJ.h"

#include "app/Kartei.h"
#include "app/Trace.h"
#include "app/Zahlen.h"
#include "fileops/DateinamenFormatieren.h"
#include "index/IndexFeld.h"
#include "search/AutoComplete.h"

#include <algorithm>
#include <map>

namespace {
// Nimmt der Eintrag teil? Eines seiner beiden Genre-Felder muss einem gewählten Genre gleichen.
class GenreFilter {
public:
    explicit GenreFilter(const Kartei& k, const std::vector<std::string>& genres) : k_(k) {
        for (const auto& g : genres) {
            if (g == AutoDJOhneGenre) {
                KK_TRACE("cmdErstellen_Click", "Dateien ohne Genre werden einbezogen");
                genres_.emplace_back();
            } else {
                genres_.push_back(g);
            }
        }
    }
    bool NimmtTeil(int32_t eintrag) {
        int16_t art = 0;
        IndexFeldZurückgeben(k_, eintrag, genre_, false, wert1_, art);
        IndexFeldZurückgeben(k_, eintrag, genreV2_, false, wert2_, art);
        return std::any_of(genres_.begin(), genres_.end(),
                           [this](const std::string& g) { return wert1_ == g || wert2_ == g; });
    }

private:
    const Kartei& k_;
    std::vector<std::string> genres_;
    const IndexFeld genre_ = IndexFeldVorbereiten("Genre"), genreV2_ = IndexFeldVorbereiten("Genre-ID3v2");
    std::string wert1_, wert2_;
};

bool EingabenPrüfen(Kartei& k, const AutoDJOptionen& o) {
    const char* fehler = nullptr;
    if (o.Genres.empty()) fehler = "Bitte wählen Sie mindestens ein Genre aus der Liste.";
    else if (!o.txtZeit.empty() && !IstNumerisch(o.txtZeit))
        fehler = "Bitte wählen Sie eine Zahl in das Feld 'Auslassen' ein oder leeren Sie dieses.";
    else if (!IstNumerisch(o.txtMaximum))
        fehler = "Bitte geben Sie eine Zahl in das Feld 'Finde so viele Dateien' ein.";
    if (fehler) k.ui.MeldungZeigen(fehler, Meldung::Information);
    return fehler == nullptr;
}

void KeineDatenMelden(Kartei& k) {
    std::string text = "Die Funktion 'AutoDJ' kann nicht ausgeführt werden.\n"
                       "Es liegen z.Zt. keine Nutzungsdaten für Dateien der gewählten Genre vor.\n";
    text += k.E.AbspielStatistikSpeichern != 0
                ? "Lassen Sie dieses Programm einfach einige Tage im Hintergrund neben Winamp laufen, um "
                  "Nutzungsdaten zu speichern."
                : "Aktivieren Sie in den 'Optionen' die 'Speicherung von Abspiel-Statitsiken', um Nutzungsdaten zu "
                  "speichern.";
    k.ui.MeldungZeigen(text, Meldung::Ausrufezeichen);
}

Zeiteinheit EinheitFür(int32_t item) {
    return item == 0 ? Zeiteinheit::Minute : item == 1 ? Zeiteinheit::Stunde : Zeiteinheit::Tag;
}

// Die Umfrage: wie oft jede Abspielzahl unter den teilnehmenden Einträgen vorkommt. Eine Karte
// statt eines Feldes bis zur größten Zahl: eine riesige Zahl im Index kostet so keinen Speicher.
struct Umfrage {
    std::map<int32_t, int64_t> Häufigkeit;
    int64_t Anzahl = 0, Summe = 0;
};

Umfrage UmfrageMachen(const Kartei& k, GenreFilter& filter) {
    Umfrage u;
    for (int32_t e = 1; e <= k.DateiAnzahl; ++e) {
        const int32_t zahl = k.DateiDaten[e].Datei_AngefordertAnzahl;
        if (zahl < 1 || !filter.NimmtTeil(e)) continue;
        ++u.Häufigkeit[zahl];
        ++u.Anzahl;
        u.Summe += zahl;
    }
    return u;
}

int64_t Zufallszahl(Kartei& k, int64_t n) {
    return static_cast<int64_t>(Int(k.zufall.Nächste() * static_cast<double>(n) + 1));
}

// Schritt 8: Einträge ab dem Durchschnitt, ohne die im Zeitfenster gespielten.
void Sammeln(Kartei& k, const AutoDJOptionen& o, GenreFilter& filter, int64_t durchschnitt,
             EinsBasiert<int32_t>& kandidaten) {
    const Datum jetzt = k.uhr.Jetzt();
    const double zeit = o.txtZeit.empty() ? 0 : ZahlWert(o.txtZeit).value_or(0);
    int32_t platz = 0;
    for (int32_t e = 1; e <= k.DateiAnzahl && platz < kandidaten.UBound(); ++e) {
        const DateiInfo& d = k.DateiDaten[e];
        if (d.Datei_AngefordertAnzahl < 1 || d.Datei_AngefordertAnzahl < durchschnitt || !filter.NimmtTeil(e)) continue;
        if (!o.txtZeit.empty()) {
            Datum gespielt;
            if (!DatumLesen(d.Datei_AngefordertGespieltAm, gespielt)) {
                KK_TRACE("cmdErstellen_Click", "'" + k.DateiPfade[e] + "' ignoriert - Datum ungültig");
                continue;
            }
            if (!(static_cast<double>(DatumDifferenz(EinheitFür(o.cboZeiteinheit), gespielt, jetzt)) > zeit)) continue;
        }
        kandidaten[++platz] = e;
    }
}

void Mischen(Kartei& k, EinsBasiert<int32_t>& kandidaten) {
    const int32_t n = kandidaten.UBound();
    for (int32_t i = 1; i <= n; ++i) {
        const int64_t j = Zufallszahl(k, n);
        if (j >= 1 && j <= n) kandidaten.Tauschen(i, int32_t(j));
    }
}

// Schritt 10: vor kurzem oft Gehörtes rückt nach hinten, lange nicht Gehörtes nach vorn.
void PlätzeÄndern(Kartei& k, const AutoDJOptionen& o, EinsBasiert<int32_t>& kandidaten) {
    const int32_t n = kandidaten.UBound();
    EinsBasiert<int16_t> verschoben(n);
    const Datum jetzt = k.uhr.Jetzt();
    for (int32_t i = 1; i <= n; ++i) {
        if (verschoben[i] == 1 || kandidaten[i] <= 0) continue;
        int64_t platz = i;
        Datum gespielt;
        const bool gültig = DatumLesen(k.DateiDaten[kandidaten[i]].Datei_AngefordertGespieltAm, gespielt);
        const int64_t monate = gültig ? DatumDifferenz(Zeiteinheit::Monat, gespielt, jetzt) : 0;
        if (o.chkAlteSeltener && gültig && monate >= 1 && monate <= 6) {
            platz *= Zufallszahl(k, 4);
            if (platz * 2 > n) platz = n;
        }
        if (o.chkSehrAlteHäufiger && gültig && monate > 6) {
            platz = static_cast<int64_t>(RundenGerade(double(platz) / double(Zufallszahl(k, 4))));
            if (platz < 1) platz = 1;
        }
        if (platz != i && platz >= 1 && platz <= n) {
            KK_TRACE("cmdErstellen_Click", "Platz ändern von " + std::to_string(i) + " nach " + std::to_string(platz));
            kandidaten.Tauschen(i, int32_t(platz));
            verschoben[i] = verschoben[int32_t(platz)];
            verschoben[int32_t(platz)] = 1;
        }
    }
}

void ListeFüllen(const Kartei& k, const AutoDJOptionen& o, const EinsBasiert<int32_t>& kandidaten,
                 std::vector<AutoDJZeile>& zeilen) {
    const double maximum = ZahlWert(o.txtMaximum).value_or(0);
    for (const int32_t e : kandidaten) {
        if (e <= 0) continue;
        // Ohne Tag gibt es weder Interpret noch Titel: der Eintrag bleibt draußen.
        if (k.DateiDaten[e].Mp3_ID3v1_Status != 1) continue;
        zeilen.push_back({e, DateinamenFormatieren(k, "%Interpret% - %Titel%", e)});
        if (static_cast<double>(zeilen.size()) == maximum) {
            KK_TRACE("cmdErstellen_Click", "Maximum erreicht, es wurden nur " + std::to_string(zeilen.size()));
            break;
        }
    }
}
}  // namespace

std::vector<std::string> AutoDJGenreListe(Kartei& k) {
    KomboFeld liste;
    AutoCompleteFüllen(k, liste, "Genre-ID3v2", 1, "Genre");
    liste.List.emplace_back(AutoDJOhneGenre);
    return liste.List;
}

AutoDJOptionen AutoDJOptionenLaden(const Kartei& k) {
    AutoDJOptionen o;
    o.txtMaximum = k.E.AutoDJFindeAnzahl;
    o.txtZeit = k.E.AutoDJAuslassenZeit;
    const int16_t einheit = k.E.AutoDJAuslassenGröße;
    o.cboZeiteinheit = einheit >= 0 && einheit <= 2 ? einheit : 2;
    o.chkAlteSeltener = k.E.AutoDJAuslassenVorKurzem != 0;
    o.chkSehrAlteHäufiger = k.E.AutoDJFindenVorLängerem != 0;
    return o;
}

void AutoDJOptionenSpeichern(Kartei& k, const AutoDJOptionen& o) {
    k.E.AutoDJFindeAnzahl = o.txtMaximum;
    k.E.AutoDJAuslassenZeit = o.txtZeit;
    k.E.AutoDJAuslassenGröße = int16_t(std::clamp(o.cboZeiteinheit, 0, 2));
    k.E.AutoDJAuslassenVorKurzem = o.chkAlteSeltener ? 1 : 0;
    k.E.AutoDJFindenVorLängerem = o.chkSehrAlteHäufiger ? 1 : 0;
}

bool AutoDJErstellen(Kartei& k, const AutoDJOptionen& o, std::vector<AutoDJZeile>& zeilen) {
    zeilen.clear();
    if (!EingabenPrüfen(k, o)) return false;
    GenreFilter filter(k, o.Genres);
    const Umfrage u = UmfrageMachen(k, filter);
    if (u.Anzahl == 0) {
        KeineDatenMelden(k);
        return false;
    }
    const auto durchschnitt = static_cast<int64_t>(RundenGerade(double(u.Summe) / double(u.Anzahl)));
    int64_t größe = 0;
    for (auto it = u.Häufigkeit.lower_bound(int32_t(durchschnitt)); it != u.Häufigkeit.end(); ++it) größe += it->second;
    EinsBasiert<int32_t> kandidaten(int32_t(std::max<int64_t>(größe, 1)));
    Sammeln(k, o, filter, durchschnitt, kandidaten);
    Mischen(k, kandidaten);
    PlätzeÄndern(k, o, kandidaten);
    ListeFüllen(k, o, kandidaten, zeilen);
    return true;
}

AutoDJDetails AutoDJAuswahlDetails(const Kartei& k, const std::vector<int32_t>& auswahl) {
    AutoDJDetails d{"Dateiname", "", ""};
    if (auswahl.size() > 1) {
        d.lblDateiname1 = "(" + std::to_string(auswahl.size()) + " Dateien)";
    } else if (auswahl.size() == 1 && auswahl[0] >= 1 && auswahl[0] <= k.DateiAnzahl) {
        const DateiInfo& info = k.DateiDaten[auswahl[0]];
        d.lblDateiname1 = k.DateiPfade[auswahl[0]];
        Datum gespielt;
        const std::string datum = DatumLesen(info.Datei_AngefordertGespieltAm, gespielt)
                                      ? DatumZeitText(gespielt)
                                      : info.Datei_AngefordertGespieltAm.str();
        d.lblStatistik =
            "Zuletzt gespielt am " + datum + ", insgesamt " + std::to_string(info.Datei_AngefordertAnzahl) + " Mal";
    }
    return d;
}
