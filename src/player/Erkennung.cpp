// Erkennung des gespielten Titels: erst über die Tags, dann über den Dateinamen.
#include "player/Erkennung.h"

#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/Texte.h"
#include "app/Zahlen.h"
#include "index/IndexFeld.h"

#include <algorithm>
#include <string_view>
#include <system_error>
#include <thread>
#include <vector>

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

bool NurAscii(std::string_view text) {
    for (const char c : text)
        if (static_cast<unsigned char>(c) >= 0x80) return false;
    return true;
}

// teil ist schon klein; reiner ASCII-Text wird ohne Kopie verglichen.
bool AsciiEnthältKlein(std::string_view text, std::string_view teil) {
    if (teil.size() > text.size()) return false;
    for (size_t i = 0; i + teil.size() <= text.size(); ++i) {
        size_t j = 0;
        while (j < teil.size() &&
               (text[i + j] >= 'A' && text[i + j] <= 'Z' ? text[i + j] + 32 : text[i + j]) == teil[j])
            ++j;
        if (j == teil.size()) return true;
    }
    return false;
}

// Text eines Feldes: reines ASCII roh (noch nicht klein) oder klein gefaltet.
struct Feldtext {
    std::string_view text;
    bool roh = false;
};

// Ergebnis wie Klein(text).find(teil) != npos; teil ist schon klein.
bool Enthält(const Feldtext& f, std::string_view teil) {
    return f.roh ? AsciiEnthältKlein(f.text, teil) : f.text.find(teil) != std::string_view::npos;
}

// Wiederverwendbare Puffer: Feld holen und klein machen, ohne je Eintrag neu anzulegen.
// Die meisten Felder sind reines ASCII: die brauchen weder Kopie noch Faltung.
struct FeldLeser {
    explicit FeldLeser(const Kartei& kartei) : k(kartei) {}
    const Kartei& k;
    std::string roh, klein;
    int16_t art = 0;
    Feldtext Holen(int32_t nummer, const IndexFeld& feld) {
        std::string_view sicht;
        const bool direkt = IndexFeldSicht(k, nummer, feld, sicht);
        if (direkt && NurAscii(sicht)) return {sicht, true};
        if (!direkt) {
            IndexFeldZurückgeben(k, nummer, feld, true, roh, art);
            sicht = roh;
        }
        klein.clear();
        KleinAnhängen(klein, sicht);
        return {klein, false};
    }
    bool Enthält(int32_t nummer, const IndexFeld& feld, std::string_view teil) {
        return ::Enthält(Holen(nummer, feld), teil);
    }
};

// Prüft alle Einträge, bei großen Indexen auf zwei Threads; gezählt wird danach der Reihe nach.
// Lesen aus der Tabelle ist aus mehreren Threads erlaubt; jeder Thread hat eigene Puffer.
template <typename Prüfen> std::vector<uint8_t> AllePrüfen(const Kartei& k, const Prüfen& prüfen) {
    const int32_t n = std::max(0, std::min({k.DateiAnzahl, k.DateiDaten.UBound(), k.DateiPfade.UBound()}));
    std::vector<uint8_t> art(size_t(n) + 1, 0);
    const auto teil = [&](int32_t von, int32_t bis) {
        FeldLeser leser(k);
        for (int32_t i = von; i <= bis; ++i) art[size_t(i)] = prüfen(leser, i);
    };
    constexpr int32_t kAbTeilen = 20000;  // darunter kostet der Thread mehr, als er spart
    if (n < kAbTeilen || std::thread::hardware_concurrency() < 2) {
        teil(1, n);
        return art;
    }
    try {
        std::thread zweiter(teil, n / 2 + 1, n);
        teil(1, n / 2);
        zweiter.join();
    } catch (const std::system_error&) {  // kein Thread zu haben: allein weiter
        teil(1, n);
    }
    return art;
}

// Stufe 1: Titel in "Titel" und Interpret in "Interpret", sonst beide in "Interpret-ID3v2".
int32_t NachTags(Kartei& k, const Teile& t, const Datum& Jetzt) {
    const IndexFeld titel = IndexFeldVorbereiten("Titel"), interpret = IndexFeldVorbereiten("Interpret"),
                    interpret2 = IndexFeldVorbereiten("Interpret-ID3v2");
    const auto art = AllePrüfen(k, [&](FeldLeser& leser, int32_t i) -> uint8_t {
        const DateiInfo& d = k.DateiDaten[i];
        if (d.Mp3_ID3v1_Status != 1 && d.Mp3_ID3v2_Status != 1) return 0;
        if (leser.Enthält(i, titel, t.titel) && leser.Enthält(i, interpret, t.interpret)) return 1;
        // "Titel-ID3v2" bleibt ungelesen: beide Teile werden gegen "Interpret-ID3v2" geprüft.
        return leser.Enthält(i, interpret2, t.titel) && leser.Enthält(i, interpret2, t.interpret);
    });
    int32_t gefunden = 0;
    for (size_t i = 1; i < art.size(); ++i) {
        if (art[i] == 0) continue;
        AbspielenZählen(k, int32_t(i), Jetzt);
        ++gefunden;
    }
    return gefunden;
}

// Stufe 2: der Dateiname ohne Endung enthält den ganzen Titel oder (höchstens einmal) beide Teile.
int32_t NachDateinamen(Kartei& k, const Teile& t, const std::string& aktuell, const Datum& Jetzt) {
    constexpr uint8_t kGanz = 1, kLose = 2;
    const IndexFeld dateiname = IndexFeldVorbereiten("Dateiname");
    const std::string ganz = Klein(aktuell);
    const auto art = AllePrüfen(k, [&](FeldLeser& leser, int32_t i) -> uint8_t {
        Feldtext name = leser.Holen(i, dateiname);
        name.text.remove_suffix(DateiEndungSicht(name.text).size());
        if (Enthält(name, ganz)) return kGanz;
        return Enthält(name, t.titel) && Enthält(name, t.interpret) ? kLose : 0;
    });
    int32_t gefunden = 0;
    bool teilweise = false;
    for (size_t i = 1; i < art.size(); ++i) {
        if (art[i] == kGanz) {
            AbspielenZählen(k, int32_t(i), Jetzt);
            ++gefunden;
            teilweise = true;
        } else if (art[i] == kLose && gefunden == 0 && !teilweise) {
            AbspielenZählen(k, int32_t(i), Jetzt);
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
