#include "media/TagDatei.h"
#include "app/HalbeDatei.h"

#include "app/Kartei.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {
constexpr size_t kBlock = 1 << 20;

bool AllesSchreiben(int fd, const char* daten, size_t n, int& fehler) {
    while (n > 0) {
        ssize_t w = ::write(fd, daten, n);
        if (w < 0 && errno == EINTR) continue;
        if (w <= 0) {
            fehler = w < 0 ? errno : EIO;
            return false;
        }
        daten += w;
        n -= static_cast<size_t>(w);
    }
    return true;
}

bool NullenSchreiben(int fd, int64_t n, int& fehler) {
    const std::string nullen(static_cast<size_t>(std::min<int64_t>(std::max<int64_t>(n, 0), kBlock)), '\0');
    for (; n > 0; n -= static_cast<int64_t>(kBlock))
        if (!AllesSchreiben(fd, nullen.data(), static_cast<size_t>(std::min<int64_t>(n, kBlock)), fehler)) return false;
    return true;
}

// Kopiert die Bereiche der alten Datei in Blöcken nach aus (fd) bzw. an den Text an.
template <typename Ziel> bool BereicheKopieren(const DateiRest& rest, Ziel&& ziel, int& fehler) {
    if (rest.bereiche.empty()) return true;
    int ein = ::open(rest.pfad.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (ein < 0) {
        fehler = errno;
        return false;
    }
    // Nicht größer als nötig: kleine Dateien kosten sonst je Schreiben ein ganzes MB.
    std::string puffer(size_t(std::min<int64_t>(rest.Länge(), kBlock)), '\0');
    bool gut = true;
    for (const auto& b : rest.bereiche) {
        for (int64_t pos = b.anfang, ende = b.anfang + b.länge; gut && pos < ende;) {
            ssize_t r = ::pread(ein, puffer.data(),
                                static_cast<size_t>(std::min<int64_t>(ende - pos, int64_t(puffer.size()))), pos);
            if (r < 0 && errno == EINTR) continue;
            if (r <= 0) {  // Datei kürzer als erwartet: lieber abbrechen als Lücken schreiben
                fehler = r < 0 ? errno : EIO;
                gut = false;
                break;
            }
            gut = ziel(puffer.data(), static_cast<size_t>(r));
            pos += r;
        }
        if (!gut) break;
    }
    ::close(ein);
    return gut;
}
}  // namespace

int64_t DateiRest::Länge() const {
    int64_t summe = 0;
    for (const auto& b : bereiche) summe += b.länge;
    return summe;
}

bool DateiRestLesen(const DateiRest& rest, std::string& inhalt) {
    inhalt.clear();
    int fehler = 0;
    return BereicheKopieren(
        rest,
        [&](const char* d, size_t n) {
            inhalt.append(d, n);
            return true;
        },
        fehler);
}

namespace {
// Das Ziel eines symbolischen Verweises; sonst der Pfad selbst.
std::string VerweisAufgelöst(const std::string& pfad) {
    struct stat st {};
    if (::lstat(pfad.c_str(), &st) != 0 || !S_ISLNK(st.st_mode)) return pfad;
    char* echt = ::realpath(pfad.c_str(), nullptr);
    std::string aus = echt ? echt : pfad;
    std::free(echt);
    return aus;
}
}  // namespace

NeuSchreibenErgebnis DateiNeuSchreiben(const std::string& zielPfad, const std::string& neuPfad, std::string_view vorn,
                                       int64_t nullen, const DateiRest& rest) {
    const std::string ziel = VerweisAufgelöst(zielPfad);
    const std::string neu = ziel == zielPfad ? neuPfad : ziel + "-neu";
    struct stat st {};
    if (::stat(ziel.c_str(), &st) != 0) return {NeuSchreibenSchritt::Anlegen, errno, neu};
    // Gleich mit den Rechten der Datei: ein liegengebliebener Rest ist keine 0600-Überraschung.
    int aus = ::open(neu.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, st.st_mode & 0777);
    if (aus < 0) return {NeuSchreibenSchritt::Anlegen, errno, neu};
    HalbeDateiMerken(neu.c_str());
    int fehler = 0;
    auto schreiben = [&](const char* d, size_t n) { return AllesSchreiben(aus, d, n, fehler); };
    bool gut = AllesSchreiben(aus, vorn.data(), vorn.size(), fehler) && NullenSchreiben(aus, nullen, fehler) &&
               BereicheKopieren(rest, schreiben, fehler);
    // Besitzer und Rechte der alten Datei; der Besitzer gelingt nur mit Vorrechten.
    auto scheitern = [&] {
        fehler = errno;
        gut = false;
    };
    if (gut) {
        (void)!::fchown(aus, st.st_uid, st.st_gid);
        if (::fchmod(aus, st.st_mode & 07777) != 0) scheitern();
    }
    if (gut && ::fsync(aus) != 0) scheitern();
    if (::close(aus) != 0 && gut) scheitern();
    if (!gut) {
        ::unlink(neu.c_str());
        HalbeDateiFertig();
        return {NeuSchreibenSchritt::Schreiben, fehler, neu};
    }
    const bool ersetzt = ::rename(neu.c_str(), ziel.c_str()) == 0;
    const int grund = errno;
    HalbeDateiFertig();
    if (!ersetzt) return {NeuSchreibenSchritt::Ersetzen, grund, neu};
    return {NeuSchreibenSchritt::Fertig, 0, neu};
}

NeuSchreibenErgebnis DateiBeschreibbarNeuSchreiben(const std::string& ziel, const std::string& neu,
                                                   const DateiRest& rest) {
    int fehler = 0;
    if (!DateiBeschreibbar(ziel, fehler)) return {NeuSchreibenSchritt::Anlegen, fehler, neu};
    return DateiNeuSchreiben(ziel, neu, {}, 0, rest);
}

bool DateiBeschreibbar(const std::string& pfad, int& systemFehler) {
    int fd = ::open(pfad.c_str(), O_WRONLY | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0) {
        systemFehler = errno;
        return false;
    }
    ::close(fd);
    return true;
}

int FehlerNummer(int systemFehler) {
    switch (systemFehler) {
    case EACCES:
    case EPERM:
    case EROFS: return 75;
    case ETXTBSY:
    case EBUSY: return 70;
    case EMFILE:
    case ENFILE: return 67;
    case ENOSPC:
    case EDQUOT: return 61;
    case ENOENT: return 53;
    case ENOTDIR: return 76;
    case EINVAL: return 5;
    default: return 57;
    }
}

std::string FehlerBeschreibung(int fehlerNummer) {
    switch (fehlerNummer) {
    case 5: return "Unzulässiger Prozeduraufruf oder ungültiges Argument";
    case 9: return "Index außerhalb des gültigen Bereichs";
    case 53: return "Datei nicht gefunden";
    case 55: return "Datei bereits geöffnet";
    case 61: return "Datenträger voll";
    case 67: return "Zu viele Dateien";
    case 70: return "Zugriff verweigert";
    case 75: return "Fehler beim Zugriff auf Pfad/Datei";
    case 76: return "Pfad nicht gefunden";
    default: return "Fehler beim Geräte-E/A";
    }
}

std::string TagSpeicherFehlerText(std::string_view tagArt, const std::string& pfad, int systemFehler) {
    const int nummer = FehlerNummer(systemFehler);
    if (nummer == 55 || nummer == 67 || nummer == 70 || nummer == 75)
        return "Die " + std::string(tagArt) + "-TAG der Datei '" + pfad + "' konnte nicht gespeichert werden.\n" +
               "Auf die Datei kann nicht zugegriffen werden (Fehler " + std::to_string(nummer) + ").\n" +
               "Stellen Sie sicher, dass diese nicht in einem Programm (z.B. Download-Programm, Musikeditor, "
               "Audioplayer) geöffnet ist und der Zugriff möglich ist.";
    return "Der " + std::string(tagArt) + "-TAG der Datei '" + pfad + "' konnte nicht gespeichert werden.\n" +
           FehlerBeschreibung(nummer) + " (Fehler " + std::to_string(nummer) + ").";
}

int32_t ListenEintrag(const Kartei& k, int32_t position) {
    const auto& zeilen = k.Liste.lstSongs.zeilen;
    if (position < 1 || position > static_cast<int32_t>(zeilen.size())) return 0;
    return zeilen[static_cast<size_t>(position - 1)].eintrag;
}

std::string EintragPfad(const Kartei& k, int32_t eintrag) {
    return k.DateiPfade.GültigerIndex(eintrag) ? k.DateiPfade[eintrag].str() : std::string();
}

bool TagEntfernenErgebnisMelden(Kartei& k, const char* version, const std::string& dateiname,
                                const NeuSchreibenErgebnis& e) {
    if (e.Gelungen()) return true;
    const std::string v = version;
    if (e.schritt == NeuSchreibenSchritt::Ersetzen)
        k.ui.MeldungZeigen("Der " + v + "-TAG konnte nicht entfernt werden.\nDie Datei '" + dateiname +
                               "' konnte nicht ersetzt werden.",
                           Meldung::Ausrufezeichen);
    else
        k.ui.MeldungZeigen("Die Entfernung des " + v + "-TAGs der Datei '" + dateiname +
                               "' konnte nicht abgeschlossen werden.\nStellen Sie sicher, daß die Datei verfügbar ist "
                               "und nicht durch eine andere Anwendung geöffnet wurde.",
                           Meldung::Ausrufezeichen);
    return false;
}
