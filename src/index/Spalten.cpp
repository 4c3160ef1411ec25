#include "index/Spalten.h"

#include "app/Kartei.h"
#include "app/Tabelle.h"
#include "app/Texte.h"
#include "app/Trace.h"
#include "app/Zahlen.h"
#include "search/Ergebnisliste.h"

#include <algorithm>
#include <array>

namespace {
struct SpaltenZeile {
    std::string name;
    int32_t breite;
};
const std::array<SpaltenZeile, SpaltenAnzahl> kSpalten = {{
    {"Nummer", 0},
    {"Pfad", 0},
    {"Dateiname", 1400},
    {"Interpret", 1400},
    {"Titel", 1400},
    {"Album", 1400},
    {"Jahr", 0},
    {"Track", 0},
    {"Genre", 0},
    {"Kommentar", 0},
    {"Größe", 0},
    {"Bitrate", 0},
    {"Dauer", 0},
    {"Frequenz", 0},
    {"Frames", 0},
    {"Wechselmedium", 0},
    {"Hinzufüge-Datum", 0},
    {"Pfad+Dateiname", 0},
    {"Benutzerdefiniert", 0},
    {"Abspiel-Datum", 0},
    {"Abspiel-Häufigkeit", 0},
    {"Interpret-ID3v2", 0},
    {"Titel-ID3v2", 0},
    {"Album-ID3v2", 0},
    {"Jahr-ID3v2", 0},
    {"Track-ID3v2", 0},
    {"Genre-ID3v2", 0},
    {"Kommentar-ID3v2", 0},
    {"ID3v2-TAG-Version", 0},
    {"ID3v2-TAG-Größe", 0},
}};

std::string Posten(int32_t nummer, int32_t breite, int32_t position) {
    return std::to_string(nummer) + "=" + std::to_string(breite) + "=" + std::to_string(position);
}

// Ein Posten "n=Breite=Position": die ersten beiden Teile numerisch, n in 1..30.
bool PostenLesen(const std::string& text, SpaltenPosten& p) {
    EinsBasiert<std::string> teile;
    TextZerlegen(text, 1, 3, "=", teile);
    if (teile.UBound() < 2 || !LongLesen(teile[1], p.nummer) || !LongLesen(teile[2], p.breite)) return false;
    if (p.nummer < 1 || p.nummer > SpaltenAnzahl) return false;
    p.position = 0;
    if (teile.UBound() >= 3) LongLesen(teile[3], p.position);
    return true;
}

std::string Kopftext(const Kartei& k, int32_t nummer) {
    // Die benutzerdefinierte Spalte trägt ihr Muster ohne "%" als Überschrift.
    return nummer == SpalteBenutzerdefiniert ? Ersetzen(k.Optionen.SpaltenNutzerformat, "%", "") : SpaltenName(nummer);
}
}  // namespace

const std::string& SpaltenName(int32_t nummer) {
    static const std::string leer;
    return nummer >= 1 && nummer <= SpaltenAnzahl ? kSpalten[size_t(nummer - 1)].name : leer;
}

int32_t SpaltenVorgabeBreite(int32_t nummer) {
    return nummer >= 1 && nummer <= SpaltenAnzahl ? kSpalten[size_t(nummer - 1)].breite : 0;
}

int32_t SpaltenNummer(std::string_view name) {
    for (int32_t i = 0; i < SpaltenAnzahl; ++i)
        if (kSpalten[size_t(i)].name == name) return i + 1;
    return 0;
}

bool SpaltenBeschreibungLesen(Kartei& k, std::vector<SpaltenPosten>& posten, const char* prozedur) {
    (void)prozedur;  // nur für den Ablaufpunkt
    bool gut = true;
    EinsBasiert<std::string> teile;
    if (!TextZerlegen(k.Optionen.Spalten, 1, SpaltenAnzahl, ",", teile) || teile[1].find('=') == std::string::npos) {
        SpaltenRücksetzen(k);
        TextZerlegen(k.Optionen.Spalten, 1, SpaltenAnzahl, ",", teile);
        gut = false;
    }
    posten.clear();
    for (const auto& text : teile) {
        SpaltenPosten p;
        if (PostenLesen(text, p)) {
            posten.push_back(p);
        } else {
            KK_TRACE(prozedur, std::string("Variable 1/2 nicht numerisch - '") + text + "'");
            gut = false;
        }
    }
    return gut;
}

void SpaltenRücksetzen(Kartei& k) {
    std::string beschreibung;
    int32_t sichtbar = 0;
    for (int32_t i = 1; i <= SpaltenAnzahl; ++i) {
        if (SpaltenVorgabeBreite(i) > 0) ++sichtbar;
        if (i > 1) beschreibung += ",";
        beschreibung += Posten(i, SpaltenVorgabeBreite(i), sichtbar);
    }
    k.Optionen.Spalten = beschreibung;
}

void SpaltenAnpassen(Kartei& k, Ergebnisliste& liste, bool& fehler) {
    liste.kopfleiste = k.Optionen.SpaltenLeiste != 0;
    liste.gitter = k.Optionen.SpaltenGitter != 0;
    std::vector<SpaltenPosten> posten;
    fehler = !SpaltenBeschreibungLesen(k, posten, "SpaltenAnpassen");

    // Sichtbare Spalten der Beschreibung: vorhandene behalten, fehlende vormerken.
    std::vector<bool> behalten(liste.spalten.size(), false);
    std::vector<SpaltenPosten> neu;
    for (const auto& p : posten) {
        if (p.breite <= 0) continue;
        auto da = std::find_if(liste.spalten.begin(), liste.spalten.end(),
                               [&](const ListenSpalte& s) { return s.spalte == p.nummer; });
        if (da != liste.spalten.end()) {
            behalten[size_t(da - liste.spalten.begin())] = true;
        } else if (std::none_of(neu.begin(), neu.end(), [&](const SpaltenPosten& n) { return n.nummer == p.nummer; })) {
            neu.push_back(p);
        }
    }
    std::vector<ListenSpalte> spalten;
    for (size_t i = 0; i < liste.spalten.size(); ++i)
        if (behalten[i]) spalten.push_back(std::move(liste.spalten[i]));

    // Neue Spalten an ihre Position der Beschreibung, soweit die Liste so lang ist.
    std::stable_sort(neu.begin(), neu.end(), [](const auto& a, const auto& b) { return a.position < b.position; });
    for (const auto& p : neu) {
        ListenSpalte s;
        s.spalte = p.nummer;
        s.breite = p.breite;
        auto stelle = p.position >= 1 ? std::min(size_t(p.position - 1), spalten.size()) : spalten.size();
        spalten.insert(spalten.begin() + std::ptrdiff_t(stelle), std::move(s));
    }
    for (auto& s : spalten) {
        s.kopf = Kopftext(k, s.spalte);
        s.tag = std::string(s.spalte == SpalteBenutzerdefiniert ? "b" : "");  // GCC 12: -Wrestrict-Fehlwarnung
    }
    liste.spalten = std::move(spalten);
    liste.Geändert();
}

void SpaltenSpeichern(Kartei& k, const Ergebnisliste& liste) {
    if (k.IndexZugriff.NichtsGeladen) return;  // ohne Index gibt es keine Anordnung zu merken
    std::string beschreibung;
    for (int32_t i = 1; i <= SpaltenAnzahl; ++i) {
        auto da = std::find_if(liste.spalten.begin(), liste.spalten.end(),
                               [&](const ListenSpalte& s) { return s.spalte == i; });
        if (i > 1) beschreibung += ",";
        beschreibung += da == liste.spalten.end() ? Posten(i, 0, 0)
                                                  : Posten(i, da->breite, int32_t(da - liste.spalten.begin()) + 1);
    }
    if (beschreibung != k.Optionen.Spalten) DateiGeändertSetzen(k);
    k.Optionen.Spalten = beschreibung;
    k.Optionen.SpaltenLeiste = liste.kopfleiste ? 1 : 0;
    k.Optionen.SpaltenGitter = liste.gitter ? 1 : 0;
}

std::vector<SpaltenWahl> OptionenSpaltenEinsetzen(Kartei& k) {
    std::vector<SpaltenPosten> posten;
    SpaltenBeschreibungLesen(k, posten, "OptionenSpaltenEinsetzen");
    std::vector<SpaltenWahl> wahl;
    for (const auto& p : posten) wahl.push_back({p.nummer, SpaltenName(p.nummer), p.breite > 0});
    return wahl;
}
