#include "index/Spalten.h"

#include "app/FeldTabelle.h"
#include "app/Kartei.h"
#include "app/Tabelle.h"
#include "app/Texte.h"
#include "app/Trace.h"
#include "app/Zahlen.h"
#include "app/Ergebnisliste.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {
// Die Spalten ohne eigenes Feld; die Namen der übrigen stehen bei ihren Feldern (FeldTabelle.h).
constexpr std::array<std::pair<int32_t, std::string_view>, 5> kEigeneSpalten = {{
    {1, "Nummer"},
    {2, "Pfad"},
    {3, "Dateiname"},
    {18, "Pfad+Dateiname"},
    {19, "Benutzerdefiniert"},
}};
// Diese Spalten sind anfangs sichtbar, 1400 Twips breit; alle anderen ausgeblendet.
constexpr std::array<int32_t, 4> kSichtbareSpalten = {3, 4, 5, 6};
constexpr int32_t kVorgabeBreite = 1400;

constexpr std::array<std::string_view, SpaltenAnzahl + 1> NamenAufbauen() {
    std::array<std::string_view, SpaltenAnzahl + 1> namen{};
    for (const DateiFeld& f : DateiFeldTabelle)
        if (f.spalte > 0) namen[size_t(f.spalte)] = f.spaltenName;
    for (const auto& [nummer, name] : kEigeneSpalten) namen[size_t(nummer)] = name;
    return namen;
}
constexpr std::array<std::string_view, SpaltenAnzahl + 1> kNamen = NamenAufbauen();
static_assert(std::all_of(kNamen.begin() + 1, kNamen.end(), [](std::string_view n) { return !n.empty(); }),
              "jede Spalte braucht einen Namen");

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

}  // namespace

std::string SpaltenKopftext(const Kartei& k, int32_t nummer) {
    // Die benutzerdefinierte Spalte trägt ihr Muster ohne "%" als Überschrift.
    return nummer == SpalteBenutzerdefiniert ? Ersetzen(k.Optionen.SpaltenNutzerformat, "%", "") : SpaltenName(nummer);
}

std::string SpaltenTag(int32_t nummer) {
    return std::string(nummer == SpalteBenutzerdefiniert ? "b" : "");  // GCC 12: -Wrestrict-Fehlwarnung
}

const std::string& SpaltenName(int32_t nummer) {
    static const std::array<std::string, SpaltenAnzahl + 1> namen = [] {
        std::array<std::string, SpaltenAnzahl + 1> n;
        for (size_t i = 0; i < n.size(); ++i) n[i] = kNamen[i];
        return n;
    }();
    return nummer >= 1 && nummer <= SpaltenAnzahl ? namen[size_t(nummer)] : namen[0];
}

int32_t SpaltenVorgabeBreite(int32_t nummer) {
    return std::find(kSichtbareSpalten.begin(), kSichtbareSpalten.end(), nummer) != kSichtbareSpalten.end()
               ? kVorgabeBreite
               : 0;
}

int32_t SpaltenNummer(std::string_view name) {
    for (int32_t i = 1; i <= SpaltenAnzahl; ++i)
        if (kNamen[size_t(i)] == name) return i;
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
        s.kopf = SpaltenKopftext(k, s.spalte);
        s.tag = SpaltenTag(s.spalte);
    }
    liste.spalten = std::move(spalten);
    liste.eingerichtet = true;
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

std::string SpaltenBeschreibungAusWahl(Kartei& k, const std::vector<SpaltenWahl>& wahl) {
    std::vector<SpaltenPosten> vorher;
    SpaltenBeschreibungLesen(k, vorher, "SpaltenBeschreibungAusWahl");
    std::string beschreibung;
    int32_t sichtbar = 0;
    for (const auto& w : wahl) {
        int32_t breite = 0;
        if (w.angehakt) {
            auto alt = std::find_if(vorher.begin(), vorher.end(),
                                    [&](const SpaltenPosten& p) { return p.nummer == w.nummer; });
            breite = alt != vorher.end() && alt->breite > 0 ? alt->breite : kVorgabeBreite;
            ++sichtbar;
        }
        if (!beschreibung.empty()) beschreibung += ",";
        beschreibung += Posten(w.nummer, breite, w.angehakt ? sichtbar : 0);
    }
    return beschreibung;
}
