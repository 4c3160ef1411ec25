#include "app/DateiInfo.h"
#include "app/Datum.h"
#include "app/FeldTabelle.h"
#include "app/Texte.h"
#include "app/Trace.h"
#include "app/Zahlen.h"
#include "index/IndexOptionen.h"
#include "index/IndexZeilen.h"
#include "index/Spalten.h"

#include <limits>

namespace {
template <typename T> void GanzzahlFeld(T& ziel, std::string_view wert) {
    int32_t z;
    if (LongLesen(wert, z) && z >= std::numeric_limits<T>::min() && z <= std::numeric_limits<T>::max())
        ziel = static_cast<T>(z);
}

// utf8: der Wert ist schon als gültiges UTF-8 bekannt (die Prüfung lief einmal für die ganze Zeile).
void TextSetzen(KText& ziel, std::string_view wert, bool utf8) {
    if (utf8) ziel.assign(wert);
    else ziel = DateiTextLesen(wert);
}

bool IstFolgebyte(char z) { return (static_cast<unsigned char>(z) & 0xC0) == 0x80; }

void FeldLesen(int32_t feld, std::string_view wert, bool utf8, KText& pfad, DateiInfo& d) {
    if (feld >= 2 && feld <= 8) d.Mp3_ID3v1_Status = 1;
    if (feld >= 21) d.Mp3_ID3v2_Status = 1;
    if (feld == 1) {
        pfad.assign(wert);  // Pfade bleiben Bytes, sonst fände der Eintrag seine Datei nicht wieder
        return;
    }
    const DateiFeld* f = DateiFeldFürPlatz(feld);
    if (!f) return;
    int32_t z;
    switch (f->form) {
    case FeldForm::Text: TextSetzen(f->Text(d), wert, utf8); break;
    case FeldForm::Datum:
        if (IstDatum(wert)) f->Text(d).assign(wert);
        break;
    case FeldForm::Genre:  // der Code als ein Zeichen
        if (LongLesen(wert, z) && z >= 0 && z <= 255) f->Text(d).assign(1, static_cast<char>(z));
        break;
    case FeldForm::Zahl:
        if (LongLesen(wert, z)) f->ZahlSetzen(d, z);
        break;
    case FeldForm::Wahrheit:
        if (LongLesen(wert, z) && (z == -1 || z >= 0)) f->ZahlSetzen(d, z);
        break;
    }
}

bool Ziffer(std::string_view wert, int16_t& ziel) {
    if (wert.size() != 1 || wert[0] < '0' || wert[0] > '9') return false;
    ziel = int16_t(wert[0] - '0');
    return true;
}

bool Beginnt(std::string_view zeile, std::string_view anfang, std::string_view& rest) {
    if (zeile.substr(0, anfang.size()) != anfang) return false;
    rest = zeile.substr(anfang.size());
    return true;
}

// Neue Zeile einer Liste mit Leer-Merker: die erste ersetzt das unbenutzte Element.
template <typename... Felder> int32_t ListenZeileAnhängen(bool& leer, int32_t obergrenze, Felder&... felder) {
    if (leer) {
        (felder.ReDim(1), ...);
        leer = false;
        return 1;
    }
    (felder.ReDimPreserve(obergrenze + 1), ...);
    return obergrenze + 1;
}
}  // namespace

void IndexOptionenVorgaben(IndexOptionen& o) {
    o.SyncOrdner.ReDim(1);
    o.SyncUnterordner.ReDim(1);
    o.SyncKopierenInOrdner.ReDim(1);
    o.SyncLeer = true;
    o.SyncEntfernen = 1;
    o.DateitypEintrag.ReDim(1);
    o.DateitypKlasse.ReDim(1);
    o.DateitypenLeer = true;
    o.SpaltenNutzerformat = "%" + SpaltenName(4) + "% - %" + SpaltenName(5) + "%";
    o.SpaltenLeiste = 1;
    o.Spalten = std::string("0");  // so ohne Fehlwarnung von GCC 12 (-Wrestrict)
    o.TerminListe.clear();
}

namespace {
// Eine Größe, die keine schlichte Ziffernfolge bis 1000 ist: prüfen und, wenn sie gilt, eintragen.
void GrößeEintragen(Größenliste& g, int32_t feld, std::string_view zahl, int64_t& summe) {
    if (zahl.empty()) zahl = "0";
    int32_t größe = 0;
    if (feld > IndexGrößenPlätze) {
        KK_TRACE("DateiLaden",
                 "Feld " + std::to_string(feld) + " reicht über Indexgrenzen hinaus ('" + std::string(zahl) + "')");
    } else if (!LongLesen(zahl, größe)) {
        KK_TRACE("DateiLaden", "Feld " + std::to_string(feld) + " ist nicht numerisch ('" + std::string(zahl) + "')");
    } else if (größe < -1 || größe > 1000) {
        KK_TRACE("DateiLaden", "Feld " + std::to_string(feld) + " ist zu groß/klein ('" + std::string(zahl) + "')");
    } else {
        g.größe[size_t(feld)] = größe;
        summe += größe;
    }
}
}  // namespace

bool GrößenlisteLesen(std::string_view zeile, Größenliste& g) {
    g.größe.fill(0);
    int32_t feld = 1;
    int64_t summe = -1;
    size_t pos = 5;  // hinter "#TAG:"
    for (;;) {
        // Bis zum nächsten "/" oder "|"; reine Ziffern (der Normalfall) gleich mitrechnen.
        size_t i = pos;
        int32_t wert = 0;
        bool einfach = true;
        while (i < zeile.size() && zeile[i] != '/' && zeile[i] != '|') {
            const char z = zeile[i++];
            if (z >= '0' && z <= '9' && wert < 100000) wert = wert * 10 + (z - '0');
            else einfach = false;
        }
        if (i == zeile.size()) {
            // Ohne Trennzeichen gäbe es kein Ende der Liste: die Zeile fällt weg.
            KK_TRACE("DateiLaden", "Größenliste ohne Abschluss, Zeile übergangen");
            return false;
        }
        if (einfach && feld <= IndexGrößenPlätze && wert <= 1000) {
            g.größe[size_t(feld)] = wert;
            summe += wert;
        } else {
            GrößeEintragen(g, feld, zeile.substr(pos, i - pos), summe);
        }
        pos = i + 1;
        if (zeile[i] == '|') break;
        ++feld;
    }
    g.felder = feld;
    g.werteAnfang = pos;
    if (int64_t(pos) + summe + 1 != int64_t(zeile.size()))
        KK_TRACE("DateiLaden", "Checksumme der Zeile ist " + std::to_string(zeile.size()) + " statt " +
                                   std::to_string(int64_t(pos) + summe + 1));
    return feld >= 2;
}

void DatensatzFelderLesen(std::string_view zeile, const Größenliste& g, KText& pfad, DateiInfo& d) {
    size_t pos = g.werteAnfang;
    // Ist die ganze Zeile gültiges UTF-8, ist es jedes Feld, das an Zeichengrenzen beginnt und endet.
    const bool zeileUtf8 = pos <= zeile.size() && IstGültigesUtf8(zeile.substr(pos));
    const int32_t letztes = g.felder < IndexGrößenPlätze ? g.felder : IndexGrößenPlätze;
    for (int32_t feld = 1; feld <= letztes; ++feld) {
        const int32_t größe = g.größe[size_t(feld)];
        if (größe <= 0) continue;
        std::string_view wert = pos < zeile.size() ? zeile.substr(pos, size_t(größe)) : std::string_view();
        pos += size_t(größe);
        if (feld > 40) {
            KK_TRACE("DateiLaden", "Datenfeld nicht erkannt, da neuer");
            continue;
        }
        if (wert.empty()) continue;
        const size_t ende = pos < zeile.size() ? pos : zeile.size();
        const bool utf8 =
            zeileUtf8 && !IstFolgebyte(wert.front()) && (ende == zeile.size() || !IstFolgebyte(zeile[ende]));
        FeldLesen(feld, wert, utf8, pfad, d);
    }
}

void OptionZeileLesen(IndexOptionen& o, std::string_view zeile) {
    std::string_view rest;
    EinsBasiert<std::string> teile;
    if (Beginnt(zeile, "#OPT:SYNC=", rest)) {
        const int32_t n = ListenZeileAnhängen(o.SyncLeer, o.SyncOrdner.UBound(), o.SyncOrdner, o.SyncUnterordner,
                                              o.SyncKopierenInOrdner);
        TextZerlegen(DateiTextLesen(rest), 1, 3, ",", teile);
        if (!teile[1].empty()) o.SyncOrdner[n] = teile[1];
        if (teile.UBound() >= 2) GanzzahlFeld(o.SyncUnterordner[n], teile[2]);
        if (teile.UBound() >= 3 && !teile[3].empty()) o.SyncKopierenInOrdner[n] = teile[3];
    } else if (Beginnt(zeile, "#OPT:SYNC_ENTFERNEN=", rest)) {
        Ziffer(rest, o.SyncEntfernen);
    } else if (Beginnt(zeile, "#OPT:VERWALTEN=", rest)) {
        const int32_t n =
            ListenZeileAnhängen(o.DateitypenLeer, o.DateitypEintrag.UBound(), o.DateitypEintrag, o.DateitypKlasse);
        TextZerlegen(DateiTextLesen(rest), 1, 2, ",", teile);
        if (teile.UBound() == 2) {
            o.DateitypEintrag[n] = teile[1];
            if (IstNumerisch(teile[2])) o.DateitypKlasse[n] = teile[2];
        }
    } else if (Beginnt(zeile, "#OPT:SPALTEN=", rest)) {
        o.Spalten = DateiTextLesen(rest);
    } else if (Beginnt(zeile, "#OPT:SPALTEN_NUTZERFORMAT=", rest)) {
        o.SpaltenNutzerformat = DateiTextLesen(rest);
    } else if (Beginnt(zeile, "#OPT:SPALTEN_LEISTE=", rest)) {
        Ziffer(rest, o.SpaltenLeiste);
    } else if (Beginnt(zeile, "#OPT:SPALTEN_GITTER=", rest)) {
        Ziffer(rest, o.SpaltenGitter);
    }
}
