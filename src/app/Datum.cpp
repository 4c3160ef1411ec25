#include "app/Datum.h"

#include "app/Texte.h"

#include <cstdio>

namespace {
// Tage seit 1.1.1970 nach dem Kalender (Howard Hinnant, days_from_civil).
int64_t TageSeit1970(int64_t y, int64_t m, int64_t d) {
    y -= m <= 2;
    const int64_t era = (y >= 0 ? y : y - 399) / 400;
    const int64_t yoe = y - era * 400;
    const int64_t doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
    const int64_t doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
    return era * 146097 + doe - 719468;
}
constexpr int64_t kNullpunkt = -25569;  // 30.12.1899 in Tagen seit 1970

void Kalender(int64_t z, int32_t& jahr, int32_t& monat, int32_t& tag) {
    z += 719468;
    const int64_t era = (z >= 0 ? z : z - 146096) / 146097;
    const int64_t doe = z - era * 146097;
    const int64_t yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
    const int64_t doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
    const int64_t mp = (5 * doy + 2) / 153;
    tag = static_cast<int32_t>(doy - (153 * mp + 2) / 5 + 1);
    monat = static_cast<int32_t>(mp < 10 ? mp + 3 : mp - 9);
    jahr = static_cast<int32_t>(yoe + era * 400 + (monat <= 2));
}

// Liest 1..maxZiffern Ziffern ab pos.
bool ZiffernLesen(std::string_view t, size_t& pos, int minZ, int maxZ, int32_t& wert) {
    int n = 0;
    wert = 0;
    while (pos < t.size() && n < maxZ && t[pos] >= '0' && t[pos] <= '9') {
        wert = wert * 10 + (t[pos++] - '0');
        ++n;
    }
    return n >= minZ;
}

bool Zeichen(std::string_view t, size_t& pos, char c) {
    if (pos < t.size() && t[pos] == c) {
        ++pos;
        return true;
    }
    return false;
}

// " h:nn[:ss]" ab pos, bis zum Ende.
bool ZeitLesen(std::string_view t, size_t pos, Datum& d) {
    if (pos == t.size()) return true;
    if (!Zeichen(t, pos, ' ')) return false;
    while (pos < t.size() && t[pos] == ' ') ++pos;
    if (!ZiffernLesen(t, pos, 1, 2, d.Stunde) || !Zeichen(t, pos, ':') || !ZiffernLesen(t, pos, 2, 2, d.Minute))
        return false;
    if (Zeichen(t, pos, ':') && !ZiffernLesen(t, pos, 2, 2, d.Sekunde)) return false;
    return pos == t.size() && d.Stunde < 24 && d.Minute < 60 && d.Sekunde < 60;
}

std::string Zweistellig(int32_t z) {
    char p[16];
    std::snprintf(p, sizeof p, "%02d", z);
    return p;
}
std::string Vierstellig(int32_t z) {
    char p[16];
    std::snprintf(p, sizeof p, "%04d", z);
    return p;
}
std::string Zeit(const Datum& d) {
    return Zweistellig(d.Stunde) + ":" + Zweistellig(d.Minute) + ":" + Zweistellig(d.Sekunde);
}
}  // namespace

int64_t Tageszahl(const Datum& d) { return TageSeit1970(d.Jahr, d.Monat, d.Tag) - kNullpunkt; }

int64_t Sekundenzahl(const Datum& d) { return Tageszahl(d) * 86400 + d.Stunde * 3600 + d.Minute * 60 + d.Sekunde; }

Datum AusSekundenzahl(int64_t s) {
    int64_t tage = s >= 0 ? s / 86400 : -((-s + 86399) / 86400);
    int64_t rest = s - tage * 86400;
    Datum d;
    Kalender(tage + kNullpunkt, d.Jahr, d.Monat, d.Tag);
    d.Stunde = static_cast<int32_t>(rest / 3600);
    d.Minute = static_cast<int32_t>(rest / 60 % 60);
    d.Sekunde = static_cast<int32_t>(rest % 60);
    return d;
}

Datum NurTag(const Datum& d) { return Datum{d.Jahr, d.Monat, d.Tag, 0, 0, 0}; }

bool IstGültigesDatum(int32_t jahr, int32_t monat, int32_t tag) {
    static constexpr int kTage[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (jahr < 100 || jahr > 9999 || monat < 1 || monat > 12 || tag < 1) return false;
    bool schalt = (jahr % 4 == 0 && jahr % 100 != 0) || jahr % 400 == 0;
    return tag <= kTage[monat - 1] + (monat == 2 && schalt ? 1 : 0);
}

bool DatumLesen(std::string_view roh, Datum& ergebnis) {
    // Leerzeichen außen weg, ohne Kopie: IstDatum läuft beim Laden für jeden Eintrag.
    std::string_view t = roh;
    while (!t.empty() && t.front() == ' ') t.remove_prefix(1);
    while (!t.empty() && t.back() == ' ') t.remove_suffix(1);
    Datum d{0, 0, 0, 0, 0, 0};
    size_t pos = 0;
    bool deutsch = ZiffernLesen(t, pos, 1, 2, d.Tag) && Zeichen(t, pos, '.') && ZiffernLesen(t, pos, 1, 2, d.Monat) &&
                   Zeichen(t, pos, '.') && ZiffernLesen(t, pos, 4, 4, d.Jahr);
    if (!deutsch) {
        d = Datum{0, 0, 0, 0, 0, 0};
        pos = 0;
        if (!(ZiffernLesen(t, pos, 4, 4, d.Jahr) && Zeichen(t, pos, '-') && ZiffernLesen(t, pos, 2, 2, d.Monat) &&
              Zeichen(t, pos, '-') && ZiffernLesen(t, pos, 2, 2, d.Tag)))
            return false;
    }
    if (!IstGültigesDatum(d.Jahr, d.Monat, d.Tag) || !ZeitLesen(t, pos, d)) return false;
    ergebnis = d;
    return true;
}

bool IstDatum(std::string_view text) {
    Datum d;
    return DatumLesen(text, d);
}

std::string DatumText(const Datum& d) {
    return Zweistellig(d.Tag) + "." + Zweistellig(d.Monat) + "." + Vierstellig(d.Jahr);
}
std::string DatumZeitText(const Datum& d) { return DatumText(d) + " " + Zeit(d); }
std::string DatumSortText(const Datum& d) {
    return Vierstellig(d.Jahr) + "|" + Zweistellig(d.Monat) + "|" + Zweistellig(d.Tag);
}
std::string DatumZeitSortText(const Datum& d) { return DatumSortText(d) + " " + Zeit(d); }

int64_t DatumDifferenz(Zeiteinheit einheit, const Datum& a, const Datum& b) {
    auto grenzen = [&](int64_t teiler) {
        auto fl = [teiler](int64_t x) { return x >= 0 ? x / teiler : -((-x + teiler - 1) / teiler); };
        return fl(Sekundenzahl(b)) - fl(Sekundenzahl(a));
    };
    switch (einheit) {
    case Zeiteinheit::Sekunde: return Sekundenzahl(b) - Sekundenzahl(a);
    case Zeiteinheit::Minute: return grenzen(60);
    case Zeiteinheit::Stunde: return grenzen(3600);
    case Zeiteinheit::Tag: return Tageszahl(b) - Tageszahl(a);
    case Zeiteinheit::Monat: return (int64_t{b.Jahr} - a.Jahr) * 12 + (b.Monat - a.Monat);
    }
    return 0;
}

Datum TageAddieren(const Datum& d, int32_t tage) { return AusSekundenzahl(Sekundenzahl(d) + int64_t{tage} * 86400); }
