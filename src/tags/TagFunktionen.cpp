// Die Funktionen des Tag-Editors auf einem Datensatz: tauschen, Zahl aus dem Kommentar,
// Schreibweisen, Felder kopieren; dazu die Einträge der beiden Auswahllisten und die Frage.
#include "tags/TagFunktionen.h"

#include "app/Kartei.h"
#include "app/Texte.h"
#include "media/Genres.h"
#include "tags/AutoTag.h"

#include <algorithm>
#include <utility>

namespace {
using Feld = KText DateiInfo::*;

// Die Felder eines Tags, in denen Text steht, den Tausch und Schreibweise betreffen.
struct TagFelder {
    const char* name;  // "ID3v1" oder "ID3v2"
    Feld titel, interpret, album, jahr, titelnummer, genre, kommentar;
};
constexpr TagFelder V1Felder = {"ID3v1",
                                &DateiInfo::Mp3_ID3v1_Titel,
                                &DateiInfo::Mp3_ID3v1_Interpret,
                                &DateiInfo::Mp3_ID3v1_Album,
                                &DateiInfo::Mp3_ID3v1_Jahr,
                                &DateiInfo::Mp3_ID3v1_Track,
                                &DateiInfo::Mp3_ID3v1_Genre,
                                &DateiInfo::Mp3_ID3v1_Kommentar};
constexpr TagFelder V2Felder = {"ID3v2",
                                &DateiInfo::Mp3_ID3v2_TIT2,
                                &DateiInfo::Mp3_ID3v2_TPE1,
                                &DateiInfo::Mp3_ID3v2_TALB,
                                &DateiInfo::Mp3_ID3v2_TYER,
                                &DateiInfo::Mp3_ID3v2_TRCK,
                                &DateiInfo::Mp3_ID3v2_TCON,
                                &DateiInfo::Mp3_ID3v2_COMM};

// Die Tags, die modus meint, in der Reihenfolge ID3v1, ID3v2.
std::vector<const TagFelder*> Tags(int16_t modus) {
    std::vector<const TagFelder*> t;
    if (modus != AutoTagModusV2) t.push_back(&V1Felder);
    if (modus != AutoTagModusV1) t.push_back(&V2Felder);
    return t;
}

// Titel, Interpret, Album, Jahr, Titelnummer, Genre, Kommentar: die Reihe von TagKopierFelder.
std::array<Feld, 7> Reihe(const TagFelder& t) {
    return {t.titel, t.interpret, t.album, t.jahr, t.titelnummer, t.genre, t.kommentar};
}

bool Melden(Kartei& k, const std::string& text) {
    k.ui.MeldungZeigen(text, Meldung::Ausrufezeichen);
    return false;
}

// Die erste Ziffernfolge des Kommentars wird Titelnummer, ohne führende Nullen. Eine
// Titelnummer in ID3v1 ist ein Byte; in ID3v2 gilt die Grenze einer kurzen Ganzzahl.
bool ZahlAusKommentar(Kartei& k, DateiInfo& d, const TagFelder& t) {
    const std::string& kommentar = d.*t.kommentar;
    const std::string tag = std::string(t.name) + "-TAGs";
    if (Trim(kommentar).empty()) return Melden(k, "Das Kommentar-Feld des " + tag + " ist leer.");
    const size_t anfang = kommentar.find_first_of("0123456789");
    if (anfang == std::string::npos)
        return Melden(k, "Es wurde keine Zahl im Kommentar-Feld des " + tag + " gefunden.");
    const size_t ende = kommentar.find_first_not_of("0123456789", anfang);
    const std::string ziffern = kommentar.substr(anfang, ende == std::string::npos ? ende : ende - anfang);
    const size_t erste = std::min(ziffern.find_first_not_of('0'), ziffern.size() - 1);
    const std::string zahl = ziffern.substr(erste);
    const int64_t grenze = &t == &V1Felder ? 255 : 32767;
    if (zahl.size() > 5 || std::stoll(zahl) > grenze)
        return Melden(k, "Die gefundene Zahl im Kommentar-Feld des " + tag + " '" + zahl + "' ist zu groß.");
    d.*t.titelnummer = zahl;
    return true;
}

bool WortZeichen(unsigned char c) {
    return c >= 0x80 || c == '\'' || (c >= '0' && c <= '9') || ((c | 0x20) >= 'a' && (c | 0x20) <= 'z');
}
bool Buchstabe(unsigned char c) { return c >= 0x80 || ((c | 0x20) >= 'a' && (c | 0x20) <= 'z'); }

// Klein geschrieben; die Zeichen, die anfang() nennt, groß. Geprüft wird am Anfang jedes Zeichens.
template <typename Anfang> std::string Schreibweise(const std::string& text, Anfang anfang) {
    const std::string klein = Klein(text);
    std::string aus;
    aus.reserve(klein.size());
    for (size_t i = 0; i < klein.size();) {
        size_t n = 1;
        while (i + n < klein.size() && (static_cast<unsigned char>(klein[i + n]) & 0xC0) == 0x80) ++n;
        const std::string_view zeichen(klein.data() + i, n);
        aus += anfang(klein, i) ? Groß(zeichen) : std::string(zeichen);
        i += n;
    }
    return aus;
}
}  // namespace

const std::array<const char*, 6>& TagFunktionZiele() {
    static constexpr std::array<const char*, 6> ziele = {
        "Diesen ID3v1-TAG", "Diesen ID3v2-TAG", "Diesen ID3v1- und ID3v2-TAG",
        "Alle ID3v1-TAGs",  "Alle ID3v2-TAGs",  "Alle ID3v1- und ID3v2-TAGs"};
    return ziele;
}

const std::array<const char*, 11>& TagFunktionen() {
    static constexpr std::array<const char*, 11> funktionen = {"AutoTAG ausführen",
                                                               "AutoTAG einstellen...",
                                                               "Vertauschen: Titel <-> Interpret",
                                                               "Vertauschen: Titel <-> Album",
                                                               "Vertauschen: Interpret <-> Album",
                                                               "Zahl aus Kommentar in Titelnummer",
                                                               "Schreibweise: Klein, Erster groß",
                                                               "Schreibweise: Klein, Wörter groß",
                                                               "Schreibweise: Klein",
                                                               "Schreibweise: Groß",
                                                               "Felder kopieren..."};
    return funktionen;
}

const std::array<const char*, 7>& TagKopierFelder() {
    static constexpr std::array<const char*, 7> felder = {"Titel",       "Interpret", "Album",    "Jahr",
                                                          "Titelnummer", "Genre",     "Kommentar"};
    return felder;
}

int16_t TagFunktionModus(int32_t ziel) {
    static constexpr std::array<int16_t, 3> modi = {AutoTagModusV1, AutoTagModusV2, AutoTagModusBeide};
    return modi[static_cast<size_t>((ziel < 0 ? 0 : ziel) % 3)];
}

bool TagFunktionFürAlle(int32_t ziel) { return ziel >= 3; }

bool TagFunktionBestätigen(Kartei& k, int32_t funktion, int32_t ziel) {
    if (funktion < 0 || funktion >= static_cast<int32_t>(TagFunktionen().size()))
        return Melden(k, "Bitte wählen Sie eine Funktion.");
    const char* zielText = ziel >= 0 && ziel < 6 ? TagFunktionZiele()[static_cast<size_t>(ziel)] : "";
    return k.ui.MeldungZeigen(std::string("Möchten Sie die Funktion '") +
                                  TagFunktionen()[static_cast<size_t>(funktion)] + "' tatsächlich für '" + zielText +
                                  "' anwenden?",
                              Meldung::JaNeinFrage) == Meldung::Ja;
}

std::string ErsterBuchstabeGroß(const std::string& text) {
    bool erster = true;
    return Schreibweise(text, [&erster](const std::string& s, size_t i) {
        const bool groß = erster && Buchstabe(static_cast<unsigned char>(s[i]));
        if (groß) erster = false;
        return groß;
    });
}

std::string WortanfängeGroß(const std::string& text) {
    return Schreibweise(text, [](const std::string& s, size_t i) {
        if (!Buchstabe(static_cast<unsigned char>(s[i]))) return false;
        size_t vorher = i;
        while (vorher > 0 && (static_cast<unsigned char>(s[vorher - 1]) & 0xC0) == 0x80) --vorher;
        return vorher == 0 || !WortZeichen(static_cast<unsigned char>(s[vorher - 1]));
    });
}

bool TagFunktionAnwenden(Kartei& k, int32_t funktion, DateiInfo& d, int16_t modus) {
    bool gelungen = true;
    for (const TagFelder* t : Tags(modus)) {
        const auto textfelder = {t->titel, t->interpret, t->album, t->kommentar};
        switch (funktion) {
        case 2: std::swap(d.*t->titel, d.*t->interpret); break;
        case 3: std::swap(d.*t->titel, d.*t->album); break;
        case 4: std::swap(d.*t->interpret, d.*t->album); break;
        case 5: gelungen = ZahlAusKommentar(k, d, *t) && gelungen; break;
        case 6:
            for (Feld f : textfelder) d.*f = ErsterBuchstabeGroß(d.*f);
            break;
        case 7:
            for (Feld f : textfelder) d.*f = WortanfängeGroß(d.*f);
            break;
        case 8:
            for (Feld f : textfelder) d.*f = Klein(d.*f);
            break;
        case 9:
            for (Feld f : textfelder) d.*f = Groß(d.*f);
            break;
        default: return Melden(k, "Es ist ein Fehler beim Ausführen der gewählten Funktion aufgetreten. (Fehler 5).");
        }
    }
    return gelungen;
}

bool TagKopierFelderGewählt(Kartei& k, const std::vector<int32_t>& felder) {
    return !felder.empty() || Melden(k, "Bitte wählen Sie mindestens einen Listeneintrag.");
}

bool TagFelderKopieren(Kartei& k, const DateiInfo& quelle, DateiInfo& ziel, const std::vector<int32_t>& felder,
                       int16_t modus) {
    if (!TagKopierFelderGewählt(k, felder)) return false;
    for (const TagFelder* t : Tags(modus)) {
        const auto reihe = Reihe(*t);
        for (const int32_t f : felder)
            if (f >= 0 && f < 7) ziel.*reihe[static_cast<size_t>(f)] = quelle.*reihe[static_cast<size_t>(f)];
    }
    return true;
}

bool TagFelderAusAnderemTag(Kartei& k, DateiInfo& d, const std::vector<int32_t>& felder, int16_t modus) {
    if (!TagKopierFelderGewählt(k, felder)) return false;
    // Die Quelle hält in jedem Tag, was im anderen steht.
    DateiInfo quelle = d;
    const auto v1 = Reihe(V1Felder), v2 = Reihe(V2Felder);
    for (size_t i = 0; i < v1.size(); ++i) {
        quelle.*v1[i] = d.*v2[i];
        quelle.*v2[i] = d.*v1[i];
    }
    const int32_t code = GenreCodeOhneGroßKlein(d.Mp3_ID3v2_TCON);
    quelle.Mp3_ID3v1_Genre = std::string(1, static_cast<char>(code >= 0 ? code : 255));
    const int32_t v1Code = d.Mp3_ID3v1_Genre.empty() ? 255 : static_cast<unsigned char>(d.Mp3_ID3v1_Genre[0]);
    quelle.Mp3_ID3v2_TCON = GenreName(v1Code);
    if (modus != AutoTagModusBeide) return TagFelderKopieren(k, quelle, d, felder, modus);
    for (const int32_t f : felder) {
        if (f < 0 || f >= 7) continue;
        const auto i = static_cast<size_t>(f);
        const bool v1Leer = f == 5 ? v1Code >= GenreAnzahl() : (d.*v1[i]).empty();
        if (v1Leer) d.*v1[i] = quelle.*v1[i];
        else if ((d.*v2[i]).empty()) d.*v2[i] = quelle.*v2[i];
    }
    return true;
}
