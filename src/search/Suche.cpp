#include "search/Suche.h"

#include "app/Kartei.h"
#include "app/Trace.h"
#include "search/AutoComplete.h"
#include "search/IndexSuche.h"
#include "search/ListeErstellen.h"
#include "search/Suchbegriffe.h"

#include <algorithm>

namespace {
void Warnung(Kartei& k, const char* text) { k.ui.MeldungZeigen(text, Meldung::Ausrufezeichen); }

void FeldWählen(KomboFeld& cbo, int32_t index) {
    cbo.ListIndex = index;
    cbo.Text = cbo.GewählterEintrag();
}

// Alle Einträge zu Beginn eines Laufs markiert. Die Obergrenze folgt der Tabelle, damit die drei
// Felder im Gleichschritt bleiben; mindestens ein Element gibt es immer.
void AlleMarkieren(Kartei& k) {
    const int32_t n = std::max({1, k.DateiAnzahl, k.DateiPfade.UBound()});
    k.DateiTreffer.Vektor().assign(size_t(n), int16_t{1});
}

// Die Abfragezeilen aus cboSuche und txtSongname (nur mit einer Zeile; mehrere bleiben stehen).
void ZeilenAbgleichen(Kartei& k) {
    auto& s = k.Suche;
    const std::string text = s.txtSongname.Text, feld = s.cboSuche.GewählterEintrag();
    if (s.SuchAnzahl != 0) {
        if (!s.cboSuche.Enabled) return;
        const std::string bedingung = s.SuchBedingungen.GültigerIndex(1) ? s.SuchBedingungen[1] : "00";
        if (!SuchbegriffeÄndern(s, 1, text, feld, bedingung))
            Warnung(k, "Die Such-Abfrage konnte nicht verarbeitet werden.");
        return;
    }
    if (!SuchbegriffeZurücksetzen(s)) Warnung(k, "Die Such-Abfrage konnte nicht zurückgesetzt werden.");
    if (!SuchbegriffeHinzufügen(s, text, feld, "00")) Warnung(k, "Die Such-Abfrage konnte nicht eingerichtet werden.");
}
}  // namespace

void tmrListe_Timer(Kartei& k) {
    auto& s = k.Suche;
    s.tmrListeAktiv = false;
    ZeilenAbgleichen(k);
    s.SuchCacheAnfang = -1;
    s.SuchCacheEnde = k.DateiAnzahl;
    AlleMarkieren(k);
    if (!IndexSucheDurchführen(k)) Warnung(k, "Die Suche konnte aufgrund eines Fehlers nicht durchgeführt werden.");
    ListeErstellen(k, k.Liste.lstSongs, true);
}

void txtSongname_Change(Kartei& k) {
    auto& s = k.Suche;
    if (s.SucheGesperrt) {
        KK_TRACE("txtSongname_Change", "Suche wird nicht gestartet, da bereits eine läuft");
        return;
    }
    // Die Ergänzung schreibt in das Feld; die Sperre hält das von hier fern.
    s.SucheGesperrt = true;
    AutoCompleteAusführen(k, s.txtSongname.Text, s.txtSongname, s.txtSongname);
    if (s.txtSongname.Text.empty() || s.SucheSofort) tmrListe_Timer(k);
    else s.tmrListeAktiv = true;
    s.SucheGesperrt = false;
}

void txtSongname_KeyDown(Kartei& k, int32_t KeyCode) {
    auto& s = k.Suche;
    if (KeyCode == 8 || (KeyCode == 46 && !s.txtSongname.Text.empty())) s.AutoCompleteUnterdrückt = true;
}

void cboSuche_Click(Kartei& k) {
    auto& s = k.Suche;
    if (!AutoCompleteFüllen(k, s.txtSongname, s.cboSuche.GewählterEintrag(), k.E.Auswahlliste, ""))
        KK_TRACE("cboSuche_Click", "Fehler beim Auführen von 'AutoCompleteFüllen'");
    if (!s.txtSongname.Text.empty() || k.E.SucheNichtBeiAuswahl != 1) txtSongname_Change(k);
}

bool SucheAktualisieren(Kartei& k, bool AutoCompleteFlag) {
    auto& s = k.Suche;
    // Wer die Tabelle geändert hat, ruft dies: der Zwischenspeicher der Suche prüft sich neu.
    ++k.TabellenStand;
    s.SucheGesperrt = true;
    s.SucheSofort = true;
    s.AutoCompleteErlaubt = AutoCompleteFlag;
    // Das Setzen eines Eintrags löst im Fenster cboSuche_Click aus; hier ausdrücklich, in beiden Fällen.
    if (s.cboSuche.ListIndex == -1 && s.cboSuche.Enabled) FeldWählen(s.cboSuche, 0);
    cboSuche_Click(k);
    s.SucheGesperrt = false;
    s.AutoCompleteErlaubt = AutoCompleteFlag;
    txtSongname_Change(k);
    s.SucheSofort = false;
    s.AutoCompleteErlaubt = true;
    return true;
}

void cmdSucheLöschen_Click(Kartei& k) {
    auto& s = k.Suche;
    s.SucheGesperrt = true;
    const bool anderesFeld = s.cboSuche.ListIndex != 0;
    FeldWählen(s.cboSuche, 0);
    s.txtSongname.Text.clear();
    s.txtSongname.SelStart = s.txtSongname.SelLength = 0;
    s.cboSuche.Enabled = s.txtSongname.Enabled = true;
    if (anderesFeld) cboSuche_Click(k);  // die Vorschläge gehören zum alten Feld
    s.SucheGesperrt = false;
    s.SuchAnzahl = 0;
    k.ui.EreignisseVerarbeiten();
    txtSongname_Change(k);  // leerer Text: sucht sofort
}

void MehrereAbfragenZeigen(Kartei& k) {
    auto& s = k.Suche;
    s.cboSuche.Enabled = s.txtSongname.Enabled = false;
    FeldWählen(s.cboSuche, -1);
    s.txtSongname.Text = MehrereAbfragenText;
}

bool SucheErweitertÜbernehmen(Kartei& k) {
    auto& s = k.Suche;
    if (s.SuchAnzahl == 0) {
        k.ui.MeldungZeigen("Bitte fügen Sie mindestens eine Such-Abfrage hinzu.", Meldung::Information);
        return false;
    }
    s.SucheGesperrt = true;
    if (s.SuchAnzahl == 1) {
        // Zurück in die einfache Suche, mit Feld und Text der einen Zeile.
        s.cboSuche.Enabled = s.txtSongname.Enabled = true;
        const auto& liste = s.cboSuche.List;
        const auto it = std::find(liste.begin(), liste.end(), s.SuchFelder[1]);
        if (it != liste.end() && int32_t(it - liste.begin()) != s.cboSuche.ListIndex) {
            FeldWählen(s.cboSuche, int32_t(it - liste.begin()));
            cboSuche_Click(k);
        }
        s.txtSongname.Text = s.SuchBegriffe[1];
    } else {
        MehrereAbfragenZeigen(k);
    }
    // Neu gesetzter Text: die Schreibmarke steht am Anfang.
    s.txtSongname.SelStart = s.txtSongname.SelLength = 0;
    s.SucheGesperrt = false;
    k.ui.EreignisseVerarbeiten();
    txtSongname_Change(k);
    return true;
}
