#include "app/Zahlen.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>

namespace {
struct Zerlegt {
    bool negativ = false;
    std::string ganz, bruch;
};

// Zerlegt nach der IsNumeric-Regel; false, wenn der Text nicht passt.
bool Zerlegen(std::string_view t, Zerlegt& z) {
    size_t i = 0, n = t.size();
    while (i < n && t[i] == ' ') ++i;
    if (i < n && (t[i] == '+' || t[i] == '-')) {
        z.negativ = t[i] == '-';
        ++i;
        while (i < n && t[i] == ' ') ++i;
    }
    while (i < n && t[i] >= '0' && t[i] <= '9') z.ganz.push_back(t[i++]);
    if (i < n && (t[i] == '.' || t[i] == ',')) {
        ++i;
        while (i < n && t[i] >= '0' && t[i] <= '9') z.bruch.push_back(t[i++]);
    }
    while (i < n && t[i] == ' ') ++i;
    return i == n && !(z.ganz.empty() && z.bruch.empty());
}

std::string Gruppieren(const std::string& ziffern) {
    std::string aus;
    int zähler = static_cast<int>(ziffern.size());
    for (char c : ziffern) {
        aus.push_back(c);
        if (--zähler > 0 && zähler % 3 == 0) aus.push_back('.');
    }
    return aus;
}
}  // namespace

bool IstNumerisch(std::string_view text) {
    Zerlegt z;
    return Zerlegen(text, z);
}

std::optional<double> ZahlWert(std::string_view text) {
    Zerlegt z;
    if (!Zerlegen(text, z)) return std::nullopt;
    std::string klar = (z.ganz.empty() ? "0" : z.ganz) + "." + (z.bruch.empty() ? "0" : z.bruch);
    double w = std::strtod(klar.c_str(), nullptr);
    return z.negativ ? -w : w;
}

double RundenGerade(double wert) { return std::nearbyint(wert); }  // Standardmodus: zur geraden

double Int(double wert) { return std::floor(wert); }

double Runden(double wert, int32_t stellen) {
    if (stellen <= 0) return RundenGerade(wert);
    double faktor = std::pow(10.0, stellen);
    return RundenGerade(wert * faktor) / faktor;
}

bool LongAus(double wert, int32_t& ziel) {
    double r = RundenGerade(wert);
    if (!std::isfinite(r) || r < std::numeric_limits<int32_t>::min() || r > std::numeric_limits<int32_t>::max())
        return false;
    ziel = static_cast<int32_t>(r);
    return true;
}

bool IntegerAus(double wert, int16_t& ziel) {
    double r = RundenGerade(wert);
    if (!std::isfinite(r) || r < std::numeric_limits<int16_t>::min() || r > std::numeric_limits<int16_t>::max())
        return false;
    ziel = static_cast<int16_t>(r);
    return true;
}

bool LongAddieren(int32_t a, int32_t b, int32_t& ziel) {
    int32_t s;
    if (__builtin_add_overflow(a, b, &s)) return false;
    ziel = s;
    return true;
}

bool LongLesen(std::string_view text, int32_t& ziel) {
    // Reine Ziffern, höchstens neun: kein Überlauf möglich, keine Zerlegung nötig.
    size_t i = !text.empty() && text[0] == '-' ? 1 : 0;
    if (text.size() > i && text.size() - i <= 9) {
        int32_t z = 0;
        size_t j = i;
        while (j < text.size() && text[j] >= '0' && text[j] <= '9') z = z * 10 + (text[j++] - '0');
        if (j == text.size()) {
            ziel = i ? -z : z;
            return true;
        }
    }
    auto w = ZahlWert(text);
    return w && LongAus(*w, ziel);
}

namespace {
// "3.145.728" oder "-1.500,5": Tausenderpunkte zwischen Dreiergruppen, wie TausenderFormat sie
// setzt; ergibt den Text ohne Punkte, sonst leer.
std::string OhneTausenderpunkte(std::string_view t) {
    auto ziffer = [&](size_t i) { return i < t.size() && t[i] >= '0' && t[i] <= '9'; };
    size_t i = 0;
    while (i < t.size() && (t[i] == ' ' || t[i] == '+' || t[i] == '-')) ++i;
    std::string aus(t.substr(0, i));
    const size_t anfang = i;
    while (ziffer(i)) aus.push_back(t[i++]);
    if (i == anfang || i - anfang > 3) return {};
    bool gruppe = false;
    for (; i < t.size() && t[i] == '.'; i += 4, gruppe = true) {
        if (!ziffer(i + 1) || !ziffer(i + 2) || !ziffer(i + 3)) return {};
        aus.append(t.substr(i + 1, 3));
    }
    if (!gruppe || ziffer(i) || (i < t.size() && t[i] == '.')) return {};
    aus.append(t.substr(i));  // Nachkommateil und Leerzeichen prüft ZahlWert
    return aus;
}
}  // namespace

int32_t ZahlLesen(std::string_view text) {
    const std::string ohnePunkte = OhneTausenderpunkte(text);
    auto w = ZahlWert(ohnePunkte.empty() ? text : std::string_view(ohnePunkte));
    int32_t z = 0;
    if (w) LongAus(*w, z);
    return z;
}

std::optional<int64_t> GanzeZahlLesen(std::string_view text) {
    // from_chars kennt kein "+", also selbst abnehmen; danach darf kein Vorzeichen mehr folgen.
    if (!text.empty() && text.front() == '+') {
        text.remove_prefix(1);
        if (!text.empty() && text.front() == '-') return std::nullopt;
    }
    int64_t wert = 0;
    auto [ende, fehler] = std::from_chars(text.data(), text.data() + text.size(), wert);
    if (fehler != std::errc() || ende != text.data() + text.size()) return std::nullopt;
    return wert;
}

std::string ZahlText(int64_t wert) { return std::to_string(wert); }

std::string TausenderFormat(double wert) {
    double r = RundenGerade(wert);
    bool negativ = r < 0;
    char puffer[64];
    std::snprintf(puffer, sizeof puffer, "%.0f", std::fabs(r));
    std::string aus(negativ ? "-" : "");
    aus += Gruppieren(puffer);
    return aus;
}

void TausenderFormatAnhängen(std::string& ziel, int64_t wert) {
    char puffer[24];
    int n = 0;
    uint64_t rest = wert < 0 ? 0 - static_cast<uint64_t>(wert) : static_cast<uint64_t>(wert);
    do {
        if (n > 0 && n % 4 == 3) puffer[n++] = '.';
        puffer[n++] = static_cast<char>('0' + rest % 10);
        rest /= 10;
    } while (rest > 0);
    if (wert < 0) ziel.push_back('-');
    while (n > 0) ziel.push_back(puffer[--n]);
}

std::string ZweiStellenFormat(double wert) {
    double r = Runden(wert, 2);
    bool negativ = r < 0;
    char puffer[64];
    std::snprintf(puffer, sizeof puffer, "%.2f", std::fabs(r));
    std::string s = puffer;
    auto punkt = s.find('.');
    std::string aus(negativ ? "-" : "");
    aus += Gruppieren(s.substr(0, punkt));
    aus += ',';
    aus += s.substr(punkt + 1);
    return aus;
}
