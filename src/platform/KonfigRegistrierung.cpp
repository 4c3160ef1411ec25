#include "platform/KonfigRegistrierung.h"

#include "app/Pfade.h"
#include "app/SystemFehler.h"
#include "app/Zahlen.h"
#include "platform/StandardAnwendung.h"
#include "platform/Verzeichnisse.h"

#include <QSaveFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <limits>
#include <string_view>

namespace {
std::string Maskieren(const std::string& t) {
    std::string aus;
    for (char c : t) {
        if (c == '\\') aus += "\\\\";
        else if (c == '\n') aus += "\\n";
        else if (c == '\r') aus += "\\r";
        else aus.push_back(c);
    }
    return aus;
}

std::string Demaskieren(std::string_view t) {
    std::string aus;
    for (size_t i = 0; i < t.size(); ++i) {
        if (t[i] != '\\' || i + 1 == t.size()) {
            aus.push_back(t[i]);
            continue;
        }
        char n = t[++i];
        aus.push_back(n == 'n' ? '\n' : n == 'r' ? '\r' : n);
    }
    return aus;
}

// Namen, die sich nicht als eine Zeile "Name=..." schreiben und wieder lesen lassen.
bool NameSchreibbar(const std::string& name) {
    return !name.empty() && name.front() != '#' && name.find_first_of("=\n\r") == std::string::npos;
}

// Eine Zeile "Name=t:Text" oder "Name=z:Zahl"; false bei Kommentar oder kaputter Zeile.
bool ZeileLesen(std::string_view zeile, std::string& name, RegistrierungsWert& w) {
    if (!zeile.empty() && zeile.back() == '\r') zeile.remove_suffix(1);  // von Hand unter Windows bearbeitet
    const auto gleich = zeile.find('=');
    if (zeile.empty() || zeile.front() == '#' || gleich == std::string_view::npos || gleich == 0 ||
        zeile.size() < gleich + 3 || zeile[gleich + 2] != ':')
        return false;
    const std::string_view wert = zeile.substr(gleich + 3);
    if (zeile[gleich + 1] == 'z') {
        auto zahl = GanzeZahlLesen(wert);
        if (!zahl || *zahl < std::numeric_limits<int32_t>::min() || *zahl > std::numeric_limits<int32_t>::max())
            return false;
        w = RegistrierungsWert{true, {}, static_cast<int32_t>(*zahl)};
    } else if (zeile[gleich + 1] == 't') {
        w = RegistrierungsWert{false, Demaskieren(wert), 0};
    } else {
        return false;
    }
    name = std::string(zeile.substr(0, gleich));
    return true;
}

// Über eine temporäre Datei mit eigenem Namen daneben: zwei Programme, die zugleich
// schließen, zerschreiben sich nichts, und die alte Datei bleibt bis zum Umbenennen ganz.
bool DateiErsetzen(const std::string& ziel, const std::string& inhalt) {
    QSaveFile datei(QString::fromStdString(ziel));
    if (!datei.open(QIODevice::WriteOnly)) return false;
    if (datei.write(inhalt.data(), static_cast<qint64>(inhalt.size())) != static_cast<qint64>(inhalt.size())) {
        datei.cancelWriting();
        return false;
    }
    return datei.commit();
}
}  // namespace

namespace {
constexpr off_t kGrößteEinstellungsdatei = off_t(4) << 20;

// Nur eine gewöhnliche Datei mit vernünftiger Größe; nie warten (FIFO), nie ohne Ende lesen
// (/dev/zero). 0, errno, oder EFBIG für zu groß. Eine fehlende Datei ist leer.
int EinstellungsdateiLesen(const std::string& pfad, std::string& inhalt) {
    const int fd = ::open(pfad.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0) return errno == ENOENT || errno == ENOTDIR ? 0 : errno;
    struct stat st {};
    int fehler = ::fstat(fd, &st) != 0 ? errno : S_ISDIR(st.st_mode) ? EISDIR : !S_ISREG(st.st_mode) ? ENODEV : 0;
    if (fehler == 0 && st.st_size > kGrößteEinstellungsdatei) fehler = EFBIG;
    char puffer[65536];
    while (fehler == 0) {
        const ssize_t n = ::read(fd, puffer, sizeof puffer);
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) fehler = errno;
        if (n <= 0) break;
        inhalt.append(puffer, size_t(n));
        if (off_t(inhalt.size()) > kGrößteEinstellungsdatei) fehler = EFBIG;
    }
    ::close(fd);
    return fehler;
}
}  // namespace

KonfigRegistrierung::KonfigRegistrierung(std::string dateipfad) : pfad_(std::move(dateipfad)) {}

KonfigRegistrierung::~KonfigRegistrierung() { Schließen(); }

void KonfigRegistrierung::Laden() {
    if (geladen_) return;
    geladen_ = true;
    std::string inhalt;
    const int fehler = EinstellungsdateiLesen(pfad_, inhalt);
    if (fehler != 0) {
        hinweis_ = "Die Einstellungsdatei '" + pfad_ + "' kann nicht gelesen werden: " +
                   (fehler == EFBIG ? std::string("sie ist größer als 4 MB und damit keine Einstellungsdatei")
                                    : SystemFehlerText(fehler)) +
                   ".\nEs gelten die Standard-Einstellungen; die Datei wird nicht verändert.";
        return;
    }
    std::string_view rest = inhalt;
    while (!rest.empty()) {
        const auto ende = rest.find('\n');
        std::string name;
        RegistrierungsWert w;
        if (ZeileLesen(rest.substr(0, ende), name, w)) werte_[name] = std::move(w);  // der letzte gilt
        rest.remove_prefix(ende == std::string_view::npos ? rest.size() : ende + 1);
    }
}

bool KonfigRegistrierung::SchlüsselÖffnen() { return DoesExist(pfad_); }

bool KonfigRegistrierung::SchlüsselAnlegen() {
    Laden();
    if (!DoesExist(pfad_)) geändert_ = true;  // beim Schließen entsteht die Datei
    return OrdnerAnlegen(PfadZurückgeben(pfad_));
}

std::optional<RegistrierungsWert> KonfigRegistrierung::WertLesen(const std::string& name) {
    Laden();
    auto it = werte_.find(name);
    if (it == werte_.end()) return std::nullopt;
    return it->second;
}

bool KonfigRegistrierung::Setzen(const std::string& name, RegistrierungsWert wert) {
    if (!NameSchreibbar(name)) return false;
    Laden();
    werte_[name] = std::move(wert);
    geändert_ = true;
    return true;
}

bool KonfigRegistrierung::TextSetzen(const std::string& name, const std::string& wert) {
    return Setzen(name, RegistrierungsWert{false, wert, 0});
}

bool KonfigRegistrierung::ZahlSetzen(const std::string& name, int32_t wert) {
    return Setzen(name, RegistrierungsWert{true, {}, wert});
}

bool KonfigRegistrierung::WertLöschen(const std::string& name) {
    Laden();
    if (werte_.erase(name) == 0) return false;
    geändert_ = true;
    return true;
}

bool KonfigRegistrierung::Schließen() {
    if (!geändert_) return true;
    Laden();
    if (!hinweis_.empty()) return false;
    if (!OrdnerAnlegen(PfadZurückgeben(pfad_))) return false;
    std::string inhalt = "# Klangkartei-Einstellungen: Name=t:Text oder Name=z:Zahl\n";
    for (const auto& [name, w] : werte_)
        inhalt += name + (w.istZahl ? "=z:" + std::to_string(w.zahl) : "=t:" + Maskieren(w.text)) + '\n';
    if (!DateiErsetzen(pfad_, inhalt)) return false;
    geändert_ = false;
    return true;
}

std::string KonfigRegistrierung::LeseHinweis() {
    Laden();
    return hinweis_;
}

std::string KonfigRegistrierung::StandardAudioBefehl() { return StandardAnwendungsBefehl("audio/mpeg"); }
