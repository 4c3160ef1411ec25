// Umbenennen, Kopieren und Ordner anlegen über POSIX, ohne je ein Ziel zu überschreiben.
#include "fileops/DateiSchritte.h"

#include "app/Pfade.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace {
int Fehler() { return errno != 0 ? errno : EIO; }

// Schreibt alles oder meldet den Fehler.
int AllesSchreiben(int fd, const char* daten, size_t länge) {
    while (länge > 0) {
        const ssize_t n = ::write(fd, daten, länge);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) return Fehler();
        daten += n;
        länge -= static_cast<size_t>(n);
    }
    return 0;
}

int InhaltKopieren(int ein, int aus) {
    std::vector<char> puffer(1 << 20);
    for (;;) {
        const ssize_t n = ::read(ein, puffer.data(), puffer.size());
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) return Fehler();
        if (n == 0) return 0;
        if (int e = AllesSchreiben(aus, puffer.data(), static_cast<size_t>(n))) return e;
    }
}

// Die volle Kopie in die offene Zwischendatei: Inhalt, Rechte, Zeiten, auf den Datenträger.
int ZwischendateiFüllen(int ein, int aus, const struct stat& st) {
    if (int e = InhaltKopieren(ein, aus)) return e;
    if (::fchmod(aus, st.st_mode & 07777) != 0) return Fehler();
    const struct timespec zeiten[2] = {st.st_atim, st.st_mtim};
    ::futimens(aus, zeiten);  // Zeiten sind eine Zugabe, kein Grund zum Scheitern
    if (::fsync(aus) != 0) return Fehler();
    return 0;
}
}  // namespace

int ZielordnerAnlegen(const std::string& ordner) {
    // Jede Ebene von oben: "/a", "/a/b", … ; was schon Ordner ist, bleibt.
    for (size_t p = 1; p <= ordner.size(); ++p) {
        if (p < ordner.size() && ordner[p] != '/') continue;
        const std::string ebene = ordner.substr(0, p);
        if (ebene.empty() || ebene.back() == '/' || IstOrdner(ebene)) continue;
        if (::mkdir(ebene.c_str(), 0777) != 0 && !(errno == EEXIST && IstOrdner(ebene))) return Fehler();
    }
    return 0;
}

int DateiUmbenennen(const std::string& quelle, const std::string& ziel) {
    if (::renameat2(AT_FDCWD, quelle.c_str(), AT_FDCWD, ziel.c_str(), RENAME_NOREPLACE) == 0) return 0;
    if (errno != EINVAL && errno != ENOSYS) return Fehler();
    // Dateisysteme ohne RENAME_NOREPLACE: erst prüfen, dann umbenennen.
    struct stat st {};
    if (::lstat(ziel.c_str(), &st) == 0) return EEXIST;
    return ::rename(quelle.c_str(), ziel.c_str()) == 0 ? 0 : Fehler();
}

int DateiKopieren(const std::string& quelle, const std::string& ziel) {
    struct stat st {};
    if (::lstat(ziel.c_str(), &st) == 0) return EEXIST;
    const int ein = ::open(quelle.c_str(), O_RDONLY | O_CLOEXEC);
    if (ein < 0) return Fehler();
    if (::fstat(ein, &st) != 0) {
        const int e = Fehler();
        ::close(ein);
        return e;
    }
    const std::string ordner = PfadZurückgeben(ziel);
    std::string zwischen = (ordner.empty() && !IstVollerPfad(ziel) ? std::string() : ordner + "/") + "." +
                           DateinameAusPfad(ziel) + ".kk-XXXXXX";
    const int aus = ::mkostemp(zwischen.data(), O_CLOEXEC);
    if (aus < 0) {
        const int e = Fehler();
        ::close(ein);
        return e;
    }
    int e = ZwischendateiFüllen(ein, aus, st);
    ::close(ein);
    if (::close(aus) != 0 && e == 0) e = Fehler();
    if (e == 0) e = DateiUmbenennen(zwischen, ziel);
    if (e != 0) ::unlink(zwischen.c_str());
    return e;
}

bool DieselbeDatei(const std::string& a, const std::string& b) {
    struct stat sa {
    }, sb{};
    return ::stat(a.c_str(), &sa) == 0 && ::stat(b.c_str(), &sb) == 0 && sa.st_dev == sb.st_dev &&
           sa.st_ino == sb.st_ino;
}
