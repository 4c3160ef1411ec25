#include "search/Hauptfenster.h"

#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/Texte.h"
#include "app/Ergebnisliste.h"

namespace {
// Eintragsnummer der i-ten Auswahl, 0 wenn sie nicht (mehr) in der Tabelle steht.
int32_t Eintrag(const Kartei& k, const EinsBasiert<int32_t>& ausgewählt, int32_t i) {
    if (!ausgewählt.GültigerIndex(i)) return 0;
    const int32_t n = ausgewählt[i];
    return n >= 1 && n <= k.DateiAnzahl && k.DateiPfade.GültigerIndex(n) && k.DateiDaten.GültigerIndex(n) ? n : 0;
}

const KText& Pfad(const Kartei& k, int32_t eintrag) {
    static const KText leer;
    return eintrag > 0 ? k.DateiPfade[eintrag] : leer;
}

// Jeder Ordner beginnt mit dem vorigen: dann zeigt der Verweis den letzten Ordner.
bool OrdnerFolgenAufeinander(const Kartei& k, const EinsBasiert<int32_t>& ausgewählt, int32_t anzahl) {
    std::string vorher = PfadZurückgeben(Pfad(k, Eintrag(k, ausgewählt, 1)));
    for (int32_t i = 2; i <= anzahl; ++i) {
        std::string ordner = PfadZurückgeben(Pfad(k, Eintrag(k, ausgewählt, i)));
        if (InStrText(1, ordner, vorher) != 1) return false;
        vorher = std::move(ordner);
    }
    return true;
}
}  // namespace

AuswahlBeschreibung AuswahlBeschreibungBerechnen(const Kartei& k, const EinsBasiert<int32_t>& AusgewählteDateien,
                                                 int32_t AusgewähltAnzahl) {
    AuswahlBeschreibung b;
    if (AusgewähltAnzahl < 1) {
        b.text1 = k.DateiAnzahl > 0
                      ? "Markieren Sie eine Datei, um ihre Beschreibung anzuzeigen oder weitere Funktionen zu "
                        "aktivieren."
                      : "Fügen Sie Dateien zum Index hinzu, um dieses Programm zu nutzen.";
        return b;
    }
    b.fett1 = true;
    b.farbe2 = BeschreibungsFarbe::Funktionen;
    b.nurBeiAusgewähltSichtbar = true;
    if (AusgewähltAnzahl == 1) {
        const std::string& pfad = Pfad(k, Eintrag(k, AusgewählteDateien, 1));
        b.text1 = DateinameAusPfad(pfad);
        b.farbe1 = BeschreibungsFarbe::Funktionen;
        b.unterstrichen1 = k.E.FunktionenUnterstreichen != 0;
        b.hand1 = true;
        b.text2 = PfadZurückgeben(pfad);
        b.hand2 = true;
        return b;
    }
    b.text1 = "Es wurden " + std::to_string(AusgewähltAnzahl) + " Dateien gewählt.";
    b.farbe1 = BeschreibungsFarbe::Beschreibungen;
    if (OrdnerFolgenAufeinander(k, AusgewählteDateien, AusgewähltAnzahl)) {
        b.text2 = PfadZurückgeben(Pfad(k, Eintrag(k, AusgewählteDateien, AusgewähltAnzahl)));
        b.hand2 = true;
    }
    return b;
}

MenüZustand MenüAktualisieren(const Kartei& k, bool NurTitel, const EinsBasiert<int32_t>& AusgewählteDateien,
                              int32_t AusgewähltAnzahl) {
    MenüZustand m;
    if (NurTitel) {
        m.mnu_song_mitdiesemnamen = true;
    } else if (AusgewähltAnzahl == 1) {
        const int32_t e = Eintrag(k, AusgewählteDateien, 1);
        m.mnu_song_allesongsimordner = true;
        m.mnu_song_zwischenablage = true;
        if (e > 0 && k.DateiDaten[e].Mp3_ID3v1_Status == 1) {
            m.mnu_song_allesongsmittitel = true;
            m.mnu_song_allesongsvonalbum = true;
            m.mnu_song_allesongsvoninterpret = true;
            m.mnu_song_wähletrennzeichen2 = true;
            m.mnu_song_InfosInternet = true;
        }
    }
    m.mnu_wähleabhier = AusgewähltAnzahl >= 1;
    m.mnu_wählebishier = AusgewähltAnzahl >= 1;
    return m;
}

void mnu_wählealle(Ergebnisliste& liste) {
    for (auto& z : liste.zeilen) z.ausgewählt = true;
    liste.Geändert();
}

void mnu_wählekeine(Ergebnisliste& liste) {
    for (auto& z : liste.zeilen) z.ausgewählt = false;
    liste.Geändert();
}

void mnu_wähleumkehren(Ergebnisliste& liste) {
    for (auto& z : liste.zeilen) z.ausgewählt = !z.ausgewählt;
    liste.Geändert();
}

void mnu_wähleabhier(Ergebnisliste& liste) {
    auto& z = liste.zeilen;
    size_t letzte = z.size();
    for (size_t i = z.size(); i-- > 0;)
        if (z[i].ausgewählt) {
            letzte = i;
            break;
        }
    for (size_t i = letzte; i < z.size(); ++i) z[i].ausgewählt = true;
    liste.Geändert();
}

void mnu_wählebishier(Ergebnisliste& liste) {
    auto& z = liste.zeilen;
    size_t ende = 0;  // hinter der letzten gewählten Zeile
    for (size_t i = z.size(); i-- > 0;)
        if (z[i].ausgewählt) {
            ende = i + 1;
            break;
        }
    for (size_t i = 0; i < ende; ++i) z[i].ausgewählt = true;
    liste.Geändert();
}

bool SongSucheBestimmen(Kartei& k, SongSuche art, const EinsBasiert<int32_t>& AusgewählteDateien,
                        int32_t AusgewähltAnzahl, SongSucheZiel& ziel) {
    const int32_t e = AusgewähltAnzahl == 1 ? Eintrag(k, AusgewählteDateien, 1) : 0;
    if (e == 0) {
        k.ui.MeldungZeigen("Bitte wählen Sie eine Datei.", Meldung::Information);
        return false;
    }
    const DateiInfo& d = k.DateiDaten[e];
    switch (art) {
    case SongSuche::Titel: ziel = {3, d.Mp3_ID3v1_Titel}; break;
    case SongSuche::Interpret: ziel = {1, d.Mp3_ID3v1_Interpret}; break;
    case SongSuche::Album: ziel = {2, d.Mp3_ID3v1_Album}; break;
    case SongSuche::Ordner: ziel = {15, PfadZurückgeben(k.DateiPfade[e])}; break;
    }
    return true;
}

SongSucheZiel SongSucheNachNamen(const std::string& spielenderTitel) {
    return {0, Ersetzen(spielenderTitel, " - ", " ")};
}

std::string ZwischenablagePfad(const Kartei& k, const EinsBasiert<int32_t>& AusgewählteDateien,
                               int32_t AusgewähltAnzahl) {
    return AusgewähltAnzahl == 1 ? Pfad(k, Eintrag(k, AusgewählteDateien, 1)).str() : std::string();
}
