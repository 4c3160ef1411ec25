#include "search/ListeErstellen.h"

#include "app/Kartei.h"
#include "app/Trace.h"

#include <algorithm>

namespace {
// Die gewählten Einträge vor dem Neuaufbau, in Listenreihenfolge. aufsteigend: so, wie die Liste
// sie immer hält; nur dann darf die Suche beim ersten größeren Wert aufhören.
void MarkierungenMerken(Kartei& k, const Ergebnisliste& liste, bool& aufsteigend) {
    auto& s = k.Suche;
    s.MarkierteAnzahl = 0;
    s.MarkierteNächste = 1;
    aufsteigend = true;
    if (k.DateiAnzahl <= 0 || s.AusgewähltAnzahl == 0 || !s.MarkierungenBehalten) return;
    s.MarkierteEinträge.ReDim(k.DateiAnzahl);
    for (const auto& zeile : liste.zeilen) {
        // Ein Tag hinter der Anzahl gehört zu einem Eintrag, den es nicht mehr gibt.
        if (!zeile.ausgewählt || zeile.eintrag > k.DateiAnzahl) continue;
        if (s.MarkierteAnzahl == k.DateiAnzahl) break;
        if (s.MarkierteAnzahl > 0 && s.MarkierteEinträge[s.MarkierteAnzahl] >= zeile.eintrag) aufsteigend = false;
        s.MarkierteEinträge[++s.MarkierteAnzahl] = zeile.eintrag;
    }
}

// Sucht eintrag ab MarkierteNächste; Zeilen und Markierungen steigen beide, daher läuft der
// ganze Neuaufbau nur einmal durch die Markierungen.
bool MarkeWiederfinden(SuchZustand& s, int32_t eintrag, bool aufsteigend) {
    if (s.MarkierteAnzahl < 1) return false;
    if (eintrag < s.MarkierteEinträge[1] || eintrag > s.MarkierteEinträge[s.MarkierteAnzahl]) return false;
    for (int32_t i = s.MarkierteNächste; i <= s.MarkierteAnzahl; ++i) {
        const int32_t marke = s.MarkierteEinträge[i];
        if (marke == eintrag) {
            s.MarkierteNächste = i + 1;
            return true;
        }
        if (aufsteigend && marke > eintrag) return false;
        // Kleinere Marken kommen bei aufsteigenden Zeilen nicht mehr dran.
        if (aufsteigend) s.MarkierteNächste = i + 1;
    }
    return false;
}

int32_t ZeilenFüllen(Kartei& k, Ergebnisliste& liste, bool aufsteigend) {
    auto& s = k.Suche;
    int32_t zeile = 0;
    if (s.SuchCacheAnfang <= 0) return 0;
    const int32_t bis = std::min(s.SuchCacheEnde, k.DateiTreffer.UBound());
    for (int32_t e = s.SuchCacheAnfang; e <= bis; ++e) {
        if (k.DateiTreffer[e] < 1) continue;
        // Vorhandene Zeilen werden überschrieben: das hält die Liste ruhig und ist schnell.
        if (++zeile > static_cast<int32_t>(liste.zeilen.size())) liste.zeilen.emplace_back();
        ListenZeile& z = liste.zeilen[size_t(zeile - 1)];
        z.eintrag = e;
        // Die Auswahl einer wiederverwendeten Zeile gehörte ihrem früheren Eintrag.
        z.ausgewählt = MarkeWiederfinden(s, e, aufsteigend);
    }
    return zeile;
}
}  // namespace

std::string DateiAnzahlText(int32_t zeilen, int32_t dateiAnzahl) {
    return GefundenAnzahlText(static_cast<size_t>(zeilen)) + "\n" + std::to_string(dateiAnzahl) + " Datei(en) im Index";
}

void ListeErstellen(Kartei& k, Ergebnisliste& Liste, bool AnzahlZeigen) {
    bool aufsteigend = true;
    MarkierungenMerken(k, Liste, aufsteigend);
    const int32_t gefüllt = ZeilenFüllen(k, Liste, aufsteigend);
    if (gefüllt >= 1 && Liste.zeilen.size() > size_t(gefüllt)) Liste.zeilen.resize(size_t(gefüllt));
    if (gefüllt == 0) Liste.zeilen.clear();
    AuswahlAktualisieren(k, Liste);
    const auto& s = k.Suche;
    Liste.sichtbareZeile = s.AusgewähltAnzahl > 0 ? s.AusgewählteZeilen[1] - 1 : -1;
    Liste.Geändert();
    if (AnzahlZeigen)
        k.Liste.DateiAnzahlText = DateiAnzahlText(static_cast<int32_t>(Liste.zeilen.size()), k.DateiAnzahl);
}

void AuswahlAktualisieren(Kartei& k, const Ergebnisliste& Liste) {
    auto& s = k.Suche;
    s.AusgewähltAnzahl = 0;
    const auto zeilen = static_cast<int32_t>(std::min<size_t>(Liste.zeilen.size(), INT32_MAX));
    if (zeilen == 0) return;
    s.AusgewählteDateien.ReDim(zeilen);
    s.AusgewählteZeilen.ReDim(zeilen);
    for (int32_t i = 1; i <= zeilen; ++i) {
        const ListenZeile& z = Liste.zeilen[size_t(i - 1)];
        if (!z.ausgewählt) continue;
        ++s.AusgewähltAnzahl;
        s.AusgewählteZeilen[s.AusgewähltAnzahl] = i;
        s.AusgewählteDateien[s.AusgewähltAnzahl] = z.eintrag;
    }
}

int32_t ListeErstellenAktualisieren(Ergebnisliste& Liste, const std::vector<int32_t>& einträge) {
    int32_t anzahl = 0;
    for (const ListenZeile& z : Liste.zeilen)
        if (std::find(einträge.begin(), einträge.end(), z.eintrag) != einträge.end()) ++anzahl;
    Liste.Geändert();
    KK_TRACE("ListeErstellenAktualisieren", std::to_string(anzahl) + " Felder aktualisiert");
    return anzahl;
}

std::string GefundenAnzahlText(size_t anzahl) { return std::to_string(anzahl) + " Datei(en) gefunden"; }
