#pragma once
// Gemeinsames der Suchtests: Einträge von Hand anlegen, eine Suche wie im Fenster laufen lassen.
#include "app/Kartei.h"
#include "app/Tabelle.h"
#include "search/IndexSuche.h"
#include "search/Suchbegriffe.h"
#include "search/Suche.h"
#include "support/Attrappen.h"

#include <string>
#include <vector>

// Hängt einen Eintrag mit ID3v1-Tag an; der Aufrufer füllt die Felder.
inline DateiInfo& Neu(Kartei& k, const std::string& pfad) {
    IndexGrößeÄndern(k, k.DateiAnzahl + 1, true);
    ++k.DateiAnzahl;
    k.DateiPfade[k.DateiAnzahl] = pfad;
    k.DateiTreffer[k.DateiAnzahl] = 1;
    DateiInfo& d = k.DateiDaten[k.DateiAnzahl];
    d.Mp3_ID3v1_Status = 1;
    d.Header_Dauer = -1;
    return d;
}

// Ein Eintrag nur mit Titel (ID3v1).
inline void TitelEintrag(Kartei& k, const std::string& titel) {
    Neu(k, "/musik/" + std::to_string(k.DateiAnzahl + 1) + ".mp3").Mp3_ID3v1_Titel = titel;
}

// Setzt cboSuche und txtSongname und lässt einen ganzen Lauf laufen (wie tmrListe).
inline void Suchen(Kartei& k, const std::string& feld, const std::string& text) {
    auto& s = k.Suche;
    const auto& felder = s.cboSuche.List;
    s.cboSuche.ListIndex = -1;
    for (size_t i = 0; i < felder.size(); ++i)
        if (felder[i] == feld) s.cboSuche.ListIndex = int32_t(i);
    s.txtSongname.Text = text;
    tmrListe_Timer(k);
}

// Läuft mehrere Zeilen über alle Einträge (wie die erweiterte Suche).
struct ZeilenAbfrage {
    std::string feld, text, bedingung = "00";
};
inline void ZeilenSuchen(Kartei& k, const std::vector<ZeilenAbfrage>& zeilen) {
    auto& s = k.Suche;
    SuchbegriffeZurücksetzen(s);
    for (const auto& z : zeilen) SuchbegriffeHinzufügen(s, z.text, z.feld, z.bedingung);
    MehrereAbfragenZeigen(k);
    tmrListe_Timer(k);
}

// Die Marken 1..DateiAnzahl.
inline std::vector<int> Marken(const Kartei& k) {
    std::vector<int> m;
    for (int32_t i = 1; i <= k.DateiAnzahl; ++i) m.push_back(k.DateiTreffer[i]);
    return m;
}

// Die Eintragsnummern der Listenzeilen.
inline std::vector<int32_t> Zeilen(const Kartei& k) {
    std::vector<int32_t> z;
    for (const auto& zeile : k.Liste.lstSongs.zeilen) z.push_back(zeile.eintrag);
    return z;
}
