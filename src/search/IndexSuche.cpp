#include "search/IndexSuche.h"

#include "app/Kartei.h"
#include "app/Texte.h"
#include "app/Trace.h"
#include "index/IndexFeld.h"
#include "search/SuchCache.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace {
constexpr const char* kProzedur = "IndexSucheDurchführen";

struct Wort {
    std::string text, gefaltet;
    int32_t zeichen = 0;
    bool mitDoppelpunkt = false;
};

struct Zeile {
    IndexFeld feld;
    bool standardsuche = false;
    std::string suchtext, suchtextGefaltet;
    int32_t suchtextZeichen = 0;
    bool muss = false;             // erste Ziffer der Bedingung "0"
    bool genauMöglich = false;     // Bedingung beginnt mit "00", Suchtext nicht leer
    bool ganzerDurchlauf = false;  // zweites Zeichen des Suchtextes ist "1"
    EinsBasiert<std::string> wörter;
};

// Das zweite Zeichen (nicht Byte) des Textes ist "1".
bool ZweitesZeichenEins(std::string_view t) {
    if (t.empty()) return false;
    size_t p = 1;
    while (p < t.size() && (static_cast<unsigned char>(t[p]) & 0xC0) == 0x80) ++p;
    return p < t.size() && t[p] == '1';
}

// Erste Fundstelle (Byte ab 1) von wort in text, genau; 0 = keine.
int32_t Finden(std::string_view text, std::string_view wort) {
    if (wort.size() > text.size()) return 0;
    const void* p = ::memmem(text.data(), text.size(), wort.data(), wort.size());
    return p ? static_cast<int32_t>(static_cast<const char*>(p) - text.data()) + 1 : 0;
}

Zeile ZeileVorbereiten(const std::string& feld, const std::string& begriff, const std::string& bedingung) {
    Zeile z;
    z.feld = IndexFeldVorbereiten(feld);
    z.standardsuche = z.feld.kennung == IndexFeldKennung::Standardsuche;
    z.suchtext = begriff;
    z.suchtextGefaltet = Klein(begriff);
    z.suchtextZeichen = ZeichenAnzahl(begriff);
    z.muss = !bedingung.empty() && bedingung[0] == '0';
    z.genauMöglich = bedingung.starts_with("00") && !begriff.empty();
    z.ganzerDurchlauf = ZweitesZeichenEins(begriff);
    // Leerer Text: ein leeres Wort; doppelte und abschließende Leerzeichen: leere Wörter.
    TextDatensätzeLesen(begriff, " ", 1, -1, z.wörter);
    return z;
}

Wort WortVorbereiten(const std::string& text) {
    Wort w;
    w.text = text;
    w.gefaltet = Klein(text);
    w.zeichen = ZeichenAnzahl(text);
    w.mitDoppelpunkt = text.find(':') != std::string::npos;
    return w;
}

class Suchlauf {
public:
    Suchlauf(Kartei& k, EinsBasiert<int16_t>& treffer, SuchVerfahren verfahren)
        : k_(k), treffer_(treffer), schnell_(verfahren == SuchVerfahren::Schnell) {}

    // Ein Durchgang eines Wortes über von..bis; gibt den ersten und letzten Treffer zurück.
    void Durchgang(const Zeile& z, const Wort& w, bool erstesWort, int32_t von, int32_t bis, int32_t& erster,
                   int32_t& letzter);

private:
    int32_t Prüfen(const Zeile& z, const Wort& w, bool erstesWort, int32_t eintrag, bool& genau);
    void GenauEinschalten(int32_t eintrag);

    Kartei& k_;
    EinsBasiert<int16_t>& treffer_;
    bool schnell_;
    bool cacheGeprüft_ = false, cache_ = false;
    bool genauModus_ = false;
    std::string feldText_, gefaltet_;
};

// Fundstelle des Wortes im Feldtext (0 = kein Treffer); genau: genaue Entsprechung.
int32_t Suchlauf::Prüfen(const Zeile& z, const Wort& w, bool erstesWort, int32_t eintrag, bool& genau) {
    genau = false;
    // Leeres Wort in der Standardsuche: Treffer, ohne den Text zu holen (der nie leer ist).
    if (w.text.empty() && z.standardsuche) return 1;
    std::string_view text;
    bool gefaltet = false;
    int16_t art = IndexFeldArt::Text;
    if (z.standardsuche && cache_ && size_t(eintrag) <= k_.Suche.standardsuche.einträge.size()) {
        text = SuchCacheText(k_.Suche.standardsuche, eintrag);
        gefaltet = true;
    } else {
        IndexFeldZurückgeben(k_, eintrag, z.feld, false, feldText_, art);
        text = feldText_;
    }
    if (text.empty()) return 0;
    int32_t stelle = 0;
    if (w.text.empty()) {
        stelle = 1;
    } else if (art == IndexFeldArt::Text) {
        if (!gefaltet && schnell_) {
            gefaltet_.clear();
            KleinAnhängen(gefaltet_, text);
            text = gefaltet_;
            gefaltet = true;
        }
        stelle = gefaltet ? Finden(text, w.gefaltet) : InStrText(1, text, w.text);
    } else if (art == IndexFeldArt::Zahl) {
        stelle = text == w.text ? 1 : 0;
    } else if (art == IndexFeldArt::Datum || art == IndexFeldArt::DatumZeit) {
        stelle = w.zeichen >= 4 ? InStr(1, text, w.text) : 0;
    } else if (art == IndexFeldArt::Dauer) {
        stelle = w.zeichen >= 4 && w.mitDoppelpunkt ? InStr(1, text, w.text) : 0;
    }
    // Genaue Entsprechung: der ganze Suchtext ist, von Groß/Klein abgesehen, der ganze Feldtext.
    if (stelle == 1 && erstesWort && z.genauMöglich && ZeichenAnzahl(text) == z.suchtextZeichen)
        genau = gefaltet ? Finden(text, z.suchtextGefaltet) > 0 : InStrText(1, text, z.suchtext) > 0;
    return stelle;
}

void Suchlauf::GenauEinschalten(int32_t eintrag) {
    genauModus_ = true;
    for (int32_t i = 1; i < eintrag; ++i) treffer_[i] = 0;
    KK_TRACE(kProzedur, "Genaue Entsprechung ab Eintrag " + std::to_string(eintrag));
}

void Suchlauf::Durchgang(const Zeile& z, const Wort& w, bool erstesWort, int32_t von, int32_t bis, int32_t& erster,
                         int32_t& letzter) {
    if (!cacheGeprüft_ && schnell_ && z.standardsuche && !w.text.empty()) {
        cacheGeprüft_ = true;
        cache_ = SuchCacheAktualisieren(k_, k_.Suche.standardsuche);
    }
    erster = letzter = 0;
    auto zählen = [&](int32_t e) {
        if (erster == 0) erster = e;
        letzter = e;
    };
    for (int32_t e = von; e <= bis; ++e) {
        int16_t& marke = treffer_[e];
        if (marke < 1) continue;
        bool genau = false;
        const int32_t stelle = Prüfen(z, w, erstesWort, e, genau);
        if (stelle == 0) {
            if (z.muss) {
                marke = 0;
            } else {
                marke = 1;
                zählen(e);
            }
        } else if (genau) {
            // Der erste Treffer wird nur beim Umschalten gesetzt, nicht bei späteren.
            if (!genauModus_) {
                GenauEinschalten(e);
                erster = e;
            }
            letzter = e;
            treffer_[e] = 2;
        } else if (!genauModus_) {
            marke = z.muss ? 1 : 0;
            if (z.muss) zählen(e);
        } else if (marke == 2) {
            zählen(e);
        } else {
            marke = 0;
        }
    }
}

// Passt von..bis in alle Felder?
bool BereichGültig(const Kartei& k, const EinsBasiert<int16_t>& treffer, int32_t von, int32_t bis) {
    if (von > bis) return true;
    const int32_t grenze = std::min({treffer.UBound(), k.DateiPfade.UBound(), k.DateiDaten.UBound()});
    return von >= 1 && bis <= grenze;
}
}  // namespace

bool IndexSucheDurchführen(Kartei& k, int32_t& SuchAnzahl, EinsBasiert<std::string>& SuchFelder,
                           EinsBasiert<std::string>& SuchBegriffe, EinsBasiert<std::string>& SuchBedingungen,
                           EinsBasiert<int16_t>& DateiTreffer, int32_t& SuchCacheAnfang, int32_t& SuchCacheEnde,
                           SuchVerfahren verfahren) {
    k.Suche.tmrListeAktiv = false;
    if (SuchCacheAnfang == -1) SuchCacheAnfang = 1;
    if (SuchCacheEnde == 0 || k.DateiAnzahl < 1) {
        KK_TRACE(kProzedur, "Suche nicht durchgeführt - Index enthält " + std::to_string(k.DateiAnzahl) +
                                " Einträge, Cache-Ende " + std::to_string(SuchCacheEnde));
        return true;
    }
    if (SuchAnzahl < 0 || SuchFelder.UBound() < SuchAnzahl || SuchBegriffe.UBound() < SuchAnzahl ||
        SuchBedingungen.UBound() < SuchAnzahl)
        return false;
    Suchlauf lauf(k, DateiTreffer, verfahren);
    for (int32_t zeile = 1; zeile <= SuchAnzahl; ++zeile) {
        const Zeile z = ZeileVorbereiten(SuchFelder[zeile], SuchBegriffe[zeile], SuchBedingungen[zeile]);
        for (int32_t n = 1; n <= z.wörter.UBound(); ++n) {
            const Wort w = WortVorbereiten(z.wörter[n]);
            const int32_t von = z.ganzerDurchlauf ? 1 : SuchCacheAnfang;
            const int32_t bis = z.ganzerDurchlauf ? k.DateiAnzahl : SuchCacheEnde;
            if (!BereichGültig(k, DateiTreffer, von, bis)) return false;
            lauf.Durchgang(z, w, n == 1, von, bis, SuchCacheAnfang, SuchCacheEnde);
            KK_TRACE(kProzedur, "Suche beendet, Cache-Suchgröße: " + std::to_string(SuchCacheAnfang) + " bis " +
                                    std::to_string(SuchCacheEnde));
            if (SuchCacheAnfang == 0 || SuchCacheEnde == 0) {
                KK_TRACE(kProzedur, "Cache ist jetzt leer (Ende) - Zeile " + std::to_string(zeile) + ", Wort " +
                                        std::to_string(n));
                return true;
            }
        }
    }
    return true;
}

bool IndexSucheDurchführen(Kartei& k, SuchVerfahren verfahren) {
    auto& s = k.Suche;
    return IndexSucheDurchführen(k, s.SuchAnzahl, s.SuchFelder, s.SuchBegriffe, s.SuchBedingungen, k.DateiTreffer,
                                 s.SuchCacheAnfang, s.SuchCacheEnde, verfahren);
}
