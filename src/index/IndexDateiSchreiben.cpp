#include "app/FeldTabelle.h"
#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/Tabelle.h"
#include "index/IndexDatei.h"
#include "index/Spalten.h"
#include "shell/Fortschritt.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cstdio>
#include <cstring>
#include <unistd.h>

namespace {
constexpr size_t kWertGrenze = 1000;              // mehr liest der Leser nicht
constexpr size_t kPufferGröße = size_t(4) << 20;  // ein write() je 4 MB

// Ein Wert, wie ihn der Leser wieder annimmt: höchstens 1000 Bytes, an einer Zeichengrenze gekürzt.
std::string_view Gekürzt(std::string_view wert) {
    if (wert.size() <= kWertGrenze) return wert;
    size_t n = kWertGrenze;
    while (n > 0 && (static_cast<unsigned char>(wert[n]) & 0xC0) == 0x80) --n;
    return wert.substr(0, n);
}

// Ein Zeilenumbruch im Wert würde die Zeile teilen: er wird zum Leerzeichen.
void WertAnhängen(std::string& aus, std::string_view wert) {
    const size_t anfang = aus.size();
    aus.append(wert);
    for (char umbruch : {'\r', '\n'}) {
        char* p = aus.data() + anfang;
        char* ende = aus.data() + aus.size();
        while ((p = static_cast<char*>(std::memchr(p, umbruch, size_t(ende - p)))) != nullptr) *p++ = ' ';
    }
}

// Zahlen eines Datensatzes als Text, ohne eigene Zeichenketten.
struct ZahlText {
    char zeichen[24];
    std::string_view text;
    explicit ZahlText(int64_t wert) { Setzen(wert); }
    ZahlText() = default;
    void Setzen(int64_t wert) {
        auto [ende, fehler] = std::to_chars(zeichen, zeichen + sizeof zeichen, wert);
        (void)fehler;
        text = std::string_view(zeichen, size_t(ende - zeichen));
    }
};

// Der Wert auf Platz 2..40 in der Form der Indexdatei; Zahlen landen in zahl.
std::string_view FeldWert(const DateiFeld& f, const DateiInfo& d, ZahlText& zahl) {
    switch (f.form) {
    case FeldForm::Zahl:
    case FeldForm::Wahrheit: zahl.Setzen(f.Zahl(d)); return zahl.text;
    case FeldForm::Genre:
        if (f.Text(d).empty()) return {};
        zahl.Setzen(static_cast<unsigned char>(f.Text(d)[0]));
        return zahl.text;
    default: return f.Text(d);
    }
}

void DatensatzZeile(std::string& aus, const std::string& pfad, const DateiInfo& d) {
    const int felder = d.Mp3_ID3v2_Status == 1 ? 40 : 20;
    std::array<ZahlText, 41> zahlen;
    std::array<std::string_view, 41> wert;
    wert[1] = pfad;
    for (int i = 2; i <= felder; ++i) wert[size_t(i)] = FeldWert(*DateiFeldFürPlatz(i), d, zahlen[size_t(i)]);
    aus.append("#TAG:");
    for (int i = 1; i <= felder; ++i) {
        if (i > 1) aus.push_back('/');
        const ZahlText länge(int64_t(Gekürzt(wert[size_t(i)]).size()));
        aus.append(GrößeText(länge.text));
    }
    aus.push_back('|');
    for (int i = 1; i <= felder; ++i) WertAnhängen(aus, Gekürzt(wert[size_t(i)]));
    aus.append("\r\n");
}

// Schreibt über einen großen Puffer in die offene temporäre Datei; merkt sich den ersten Fehler.
class Schreiber {
public:
    // Der Puffer nur so groß wie nötig: kleine Indexe holen sich keine 4 MB.
    Schreiber(int fd, int32_t einträge) : fd_(fd) {
        puffer_.reserve(std::min(kPufferGröße, size_t(std::max(einträge, 0)) * 512) + 64 * 1024);
    }
    std::string& Puffer() { return puffer_; }
    // Eine Zeile mit CR LF; Werte ohne Umbrüche.
    void Zeile(std::string_view teil1, std::string_view wert = {}) {
        puffer_.append(teil1);
        WertAnhängen(puffer_, wert);
        puffer_.append("\r\n");
        Prüfen();
    }
    void Prüfen() {
        if (puffer_.size() >= kPufferGröße) Leeren();
    }
    void Leeren() {
        size_t geschrieben = 0;
        while (fehler_ == 0 && geschrieben < puffer_.size()) {
            ssize_t n = ::write(fd_, puffer_.data() + geschrieben, puffer_.size() - geschrieben);
            if (n < 0 && errno == EINTR) continue;
            if (n <= 0) fehler_ = n < 0 ? errno : EIO;
            else geschrieben += size_t(n);
        }
        puffer_.clear();
    }
    int Fehler() const { return fehler_; }

private:
    int fd_;
    int fehler_ = 0;
    std::string puffer_;
};

void OptionenSchreiben(Kartei& k, Schreiber& s) {
    const IndexOptionen& o = k.Optionen;
    if (!o.SyncLeer)
        for (int32_t i = 1; i <= o.SyncOrdner.UBound(); ++i) {
            const std::string wert = o.SyncOrdner[i] + "," +
                                     std::to_string(o.SyncUnterordner.GültigerIndex(i) ? o.SyncUnterordner[i] : 0) +
                                     "," + (o.SyncKopierenInOrdner.GültigerIndex(i) ? o.SyncKopierenInOrdner[i] : "");
            s.Zeile("#OPT:SYNC=", wert);
        }
    s.Zeile("#OPT:SYNC_ENTFERNEN=", std::to_string(o.SyncEntfernen));
    if (!o.DateitypenLeer)
        for (int32_t i = 1; i <= o.DateitypEintrag.UBound(); ++i)
            s.Zeile("#OPT:VERWALTEN=",
                    o.DateitypEintrag[i] + "," + (o.DateitypKlasse.GültigerIndex(i) ? o.DateitypKlasse[i] : ""));
    // Eine nie eingerichtete Liste soll die gespeicherte Anordnung nicht löschen; eine ohne
    // sichtbare Spalte schreibt ihre Beschreibung wie jede andere.
    if (k.Liste.lstSongs.eingerichtet) SpaltenSpeichern(k, k.Liste.lstSongs);
    s.Zeile("#OPT:SPALTEN_LEISTE=", std::to_string(o.SpaltenLeiste));
    s.Zeile("#OPT:SPALTEN_GITTER=", std::to_string(o.SpaltenGitter));
    s.Zeile("#OPT:SPALTEN=", o.Spalten);
    s.Zeile("#OPT:SPALTEN_NUTZERFORMAT=", o.SpaltenNutzerformat);
}

void TermineSchreiben(const IndexOptionen& o, Schreiber& s) {
    for (const Termin& t : o.TerminListe) {
        const std::string kat = std::to_string(t.Kategorie), ben = std::to_string(t.Benachrichtigen),
                          eri = std::to_string(t.Erinnern);
        const std::array<std::string_view, 7> wert = {t.Beschreibung, t.Datum, kat, t.Infos, ben, t.Zeiteinheit, eri};
        std::string& aus = s.Puffer();
        aus.append("#TERMIN:");
        for (size_t i = 0; i < wert.size(); ++i) {
            if (i > 0) aus.push_back('/');
            aus.append(GrößeText(std::to_string(Gekürzt(wert[i]).size())));
        }
        aus.push_back('|');
        for (auto w : wert) WertAnhängen(aus, Gekürzt(w));
        aus.append("\r\n");
        s.Prüfen();
    }
}

}  // namespace

std::string_view GrößeText(std::string_view text) { return text == "0" ? std::string_view() : text; }

int32_t BoolAlsZahl(int64_t wert) { return wert == 0 ? 0 : 1; }

std::string GenreAlsZahl(std::string_view text) {
    return text.empty() ? std::string() : std::to_string(static_cast<unsigned char>(text[0]));
}

int IndexTextSchreiben(Kartei& k, int fd, bool mitFortschritt, bool& abgebrochen) {
    abgebrochen = false;
    Schreiber s(fd, k.DateiAnzahl);
    s.Zeile("#TAG:kk102");
    OptionenSchreiben(k, s);
    TermineSchreiben(k.Optionen, s);
    for (int32_t i = 1; i <= k.DateiAnzahl && i <= k.DateiDaten.UBound() && s.Fehler() == 0; ++i) {
        DatensatzZeile(s.Puffer(), k.DateiPfade[i], k.DateiDaten[i]);
        s.Prüfen();
        if (mitFortschritt && !FortschrittZeigen(k, i, "")) {
            abgebrochen = true;
            return 0;
        }
    }
    s.Leeren();
    return s.Fehler();
}
