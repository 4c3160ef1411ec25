// Erkennung des gespielten Titels: erst über die Tags, dann über den Dateinamen.
#include "player/Erkennung.h"

#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/Texte.h"
#include "app/Zahlen.h"
#include "index/IndexFeld.h"

#include <string_view>

namespace {
// Die Regel des Programms: länger als 30 Sekunden gespielt.
constexpr int64_t MindestSekunden = 30;

struct Teile {
    std::string interpret, titel;  // klein, für den Vergleich ohne Groß/Klein
    bool getrennt = false;         // " - " kam vor
};

Teile Zerlegen(const std::string& aktuell) {
    Teile t;
    const int32_t p = InStr(1, aktuell, " - ");
    if (p <= 0) return t;
    t.getrennt = true;
    t.interpret = Klein(Trim(Left(aktuell, p - 1)));
    t.titel = Klein(Trim(Mid(aktuell, p + 3)));
    return t;
}

// Wiederverwendbare Puffer: Feld holen und klein machen, ohne je Eintrag neu anzulegen.
struct FeldLeser {
    explicit FeldLeser(const Kartei& kartei) : k(kartei) {}
    const Kartei& k;
    std::string roh, klein;
    int16_t art = 0;
    const std::string& Klein(int32_t nummer, const IndexFeld& feld) {
        IndexFeldZurückgeben(k, nummer, feld, true, roh, art);
        klein.clear();
        KleinAnhängen(klein, roh);
        return klein;
    }
};

bool Enthält(std::string_view text, std::string_view teil) { return text.find(teil) != std::string_view::npos; }

// Stufe 1: Titel in "Titel" und Interpret in "Interpret", sonst beide in "Interpret-ID3v2".
int32_t NachTags(Kartei& k, const Teile& t, const Datum& Jetzt) {
    const IndexFeld titel = IndexFeldVorbereiten("Titel"), interpret = IndexFeldVorbereiten("Interpret"),
                    interpret2 = IndexFeldVorbereiten("Interpret-ID3v2");
    FeldLeser leser(k);
    std::string titelFeld;
    int32_t gefunden = 0;
    for (int32_t i = 1; i <= k.DateiAnzahl; ++i) {
        const DateiInfo& d = k.DateiDaten[i];
        if (d.Mp3_ID3v1_Status != 1 && d.Mp3_ID3v2_Status != 1) continue;
        titelFeld = leser.Klein(i, titel);
        bool passt = Enthält(titelFeld, t.titel) && Enthält(leser.Klein(i, interpret), t.interpret);
        // "Titel-ID3v2" bleibt ungelesen: beide Teile werden gegen "Interpret-ID3v2" geprüft.
        if (!passt) {
            const std::string& v2 = leser.Klein(i, interpret2);
            passt = Enthält(v2, t.titel) && Enthält(v2, t.interpret);
        }
        if (!passt) continue;
        AbspielenZählen(k, i, Jetzt);
        ++gefunden;
    }
    return gefunden;
}

// Stufe 2: der Dateiname ohne Endung enthält den ganzen Titel oder (höchstens einmal) beide Teile.
int32_t NachDateinamen(Kartei& k, const Teile& t, const std::string& aktuell, const Datum& Jetzt) {
    const IndexFeld dateiname = IndexFeldVorbereiten("Dateiname");
    const std::string ganz = Klein(aktuell);
    FeldLeser leser(k);
    int32_t gefunden = 0;
    bool teilweise = false;
    for (int32_t i = 1; i <= k.DateiAnzahl; ++i) {
        std::string_view name = leser.Klein(i, dateiname);
        name.remove_suffix(DateiEndungSicht(name).size());
        if (Enthält(name, ganz)) {
            AbspielenZählen(k, i, Jetzt);
            ++gefunden;
            teilweise = true;
        } else if (Enthält(name, t.titel) && Enthält(name, t.interpret) && gefunden == 0 && !teilweise) {
            AbspielenZählen(k, i, Jetzt);
            gefunden = 1;
        }
    }
    return gefunden;
}
}  // namespace

void AbspielenZählen(Kartei& k, int32_t nummer, const Datum& Jetzt) {
    if (!k.DateiDaten.GültigerIndex(nummer)) return;
    DateiInfo& d = k.DateiDaten[nummer];
    d.Datei_AngefordertGespieltAm = DatumZeitText(Jetzt);
    if (d.Datei_AngefordertAnzahl < INT32_MAX) ++d.Datei_AngefordertAnzahl;
    k.DateiGeändert = true;
}

bool WinampDateiErkennen(Kartei& k, const std::string& Titel, const Datum& Jetzt) {
    auto& s = k.Spieler;
    if (k.E.AbspielStatistikSpeichern == 0) {
        s.TitelErkannt = false;
        return true;
    }
    if (Titel != s.AktuellerTitel) {
        s.AktuellerTitel = Titel;
        s.TitelStart = Jetzt;
        s.TitelVerarbeitet = 0;
        s.TitelErkannt = false;
    }
    if (s.TitelVerarbeitet != 0) return true;
    if (DatumDifferenz(Zeiteinheit::Sekunde, s.TitelStart, Jetzt) <= MindestSekunden) return true;

    const Teile t = Zerlegen(s.AktuellerTitel);
    int32_t gefunden = t.getrennt ? NachTags(k, t, Jetzt) : 0;
    if (gefunden == 0) gefunden = NachDateinamen(k, t, s.AktuellerTitel, Jetzt);
    s.TitelErkannt = gefunden > 0;
    k.ui.TitelNachrichtZeigen(gefunden == 0
                                  ? "Die derzeit abgespielte Datei wurde nicht erkannt"
                                  : "Die derzeit abgespielte Datei wurde " + ZahlText(gefunden) + " Mal erkannt",
                              0);
    s.TitelVerarbeitet = 1;
    return true;
}
