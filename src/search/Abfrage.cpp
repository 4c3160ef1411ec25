#include "search/Abfrage.h"

#include "app/Kartei.h"
#include "search/Suche.h"

#include <algorithm>
#include <unordered_set>

bool AbfrageZeileLesen(const std::string& zeile, std::string& feld, std::string& bedingung, std::string& text) {
    const auto p1 = zeile.find(':');
    const auto p2 = p1 == std::string::npos ? p1 : zeile.find(':', p1 + 1);
    if (p2 == std::string::npos) return false;
    feld = zeile.substr(0, p1);
    bedingung = zeile.substr(p1 + 1, p2 - p1 - 1);
    text = zeile.substr(p2 + 1);
    const auto ziffer = [](char c) { return c >= '0' && c <= '9'; };
    return !feld.empty() && bedingung.size() == 2 && ziffer(bedingung[0]) && ziffer(bedingung[1]);
}

std::string AbfrageFeldFehler(const SuchAbfrage& a) {
    const auto& felder = SuchFelderListe();
    if (std::find(felder.begin(), felder.end(), a.feld) != felder.end()) return {};
    return "Das Feld '" + a.feld + "' gibt es in der Suche nicht.";
}

std::string AbfrageZeilenFehler(const SuchAbfrage& a) {
    std::string feld, bedingung, text;
    for (const auto& zeile : a.zeilen)
        if (!AbfrageZeileLesen(zeile, feld, bedingung, text))
            return "Die Abfragezeile '" + zeile +
                   "' hat nicht die Form FELD:BEDINGUNG:TEXT (BEDINGUNG zwei Ziffern, z. B. 00 oder 11).";
    return {};
}

namespace {
// Der Suchzustand, wie das Fenster ihn nach der Eingabe bzw. der erweiterten Suche hinterlässt.
void AbfrageEinrichten(Kartei& k, const SuchAbfrage& a) {
    auto& s = k.Suche;
    // Was eine frühere Suche hinterließ (Zeilen, Bedingung, gesperrte Felder), gilt nicht mehr.
    SuchbegriffeZurücksetzen(s);
    if (a.zeilen.empty()) {
        s.cboSuche.Enabled = s.txtSongname.Enabled = true;
        const auto& felder = s.cboSuche.List;
        s.cboSuche.ListIndex = int32_t(std::find(felder.begin(), felder.end(), a.feld) - felder.begin());
        s.cboSuche.Text = a.feld;
        s.txtSongname.Text = a.text;
        // Die Bedingung der einen Zeile bleibt beim Lauf erhalten.
        if (a.nicht) SuchbegriffeHinzufügen(s, a.text, a.feld, "11");
        return;
    }
    for (const auto& zeile : a.zeilen) {
        std::string feld, bedingung, text;
        AbfrageZeileLesen(zeile, feld, bedingung, text);
        SuchbegriffeHinzufügen(s, text, feld, bedingung);
    }
    MehrereAbfragenZeigen(k);
}
}  // namespace

void AbfrageSuchen(Kartei& k, const SuchAbfrage& a) {
    AbfrageEinrichten(k, a);
    tmrListe_Timer(k);
}

bool EinträgeWählen(Kartei& k, const EintragsAuswahl& a, std::vector<int32_t>& gewählt, std::string& fehler) {
    gewählt.clear();
    if (a.mitSuche) {
        AbfrageSuchen(k, a.suche);
        for (const auto& zeile : k.Liste.lstSongs.zeilen) gewählt.push_back(zeile.eintrag);
        return true;
    }
    if (a.einträge.empty()) {
        gewählt.resize(size_t(std::max(0, k.DateiAnzahl)));
        for (size_t i = 0; i < gewählt.size(); ++i) gewählt[i] = int32_t(i) + 1;
        return true;
    }
    std::unordered_set<int32_t> schon;
    for (const int32_t e : a.einträge) {
        if (e < 1 || e > k.DateiAnzahl) {
            fehler = "Den Eintrag " + std::to_string(e) + " gibt es nicht; der Index hat " +
                     std::to_string(k.DateiAnzahl) + " Einträge.";
            gewählt.clear();
            return false;
        }
        if (schon.insert(e).second) gewählt.push_back(e);
    }
    return true;
}
