// Verknüpfungen, Dateiart, Stand und Sperre der Indexdatei.
#include "index/IndexZugriff.h"

#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/SystemFehler.h"
#include "shell/Fortschritt.h"

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace {
constexpr auto kHöchsteWartezeit = std::chrono::seconds(60);

bool GleicheDatei(const struct stat& a, const struct stat& b) { return a.st_dev == b.st_dev && a.st_ino == b.st_ino; }

// Wartet auf die Sperre des offenen fd. 1: gesperrt, 0: abgebrochen oder Zeit um, -1: errno.
int AufSperreWarten(Kartei& k, int fd, bool exklusiv, const std::string& pfad, bool& fensterGeöffnet) {
    const auto anfang = std::chrono::steady_clock::now();
    for (;;) {
        if (::flock(fd, (exklusiv ? LOCK_EX : LOCK_SH) | LOCK_NB) == 0) return 1;
        if (errno == EINTR) continue;
        if (errno != EWOULDBLOCK) return -1;
        if (!fensterGeöffnet) {
            FortschrittZeigenStarten(k, 0, true, false, false,
                                     "Warte auf Verfügbarkeit von '" + DateinameAusPfad(pfad) + "'");
            fensterGeöffnet = true;
        }
        if (FortschrittFensterOffen(k) && !FortschrittZeigen(k, "")) return 0;
        if (std::chrono::steady_clock::now() - anfang > kHöchsteWartezeit) {
            FortschrittZeigenEnde(k);
            k.ui.MeldungZeigen("Die Indexdatei '" + pfad +
                                   "' wird gerade von einem anderen Programm benutzt.\nBitte versuchen Sie es in "
                                   "einem Augenblick noch einmal.",
                               Meldung::Ausrufezeichen);
            return 0;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
}
}  // namespace

IndexSperre& IndexSperre::operator=(IndexSperre&& andere) noexcept {
    if (this != &andere) {
        Lösen();
        fd_ = andere.fd_;
        exklusiv_ = andere.exklusiv_;
        andere.fd_ = -1;
    }
    return *this;
}

void IndexSperre::Übernehmen(int fd, bool exklusiv) {
    Lösen();
    fd_ = fd;
    exklusiv_ = exklusiv;
}

void IndexSperre::Lösen() {
    if (fd_ >= 0) ::close(fd_);  // close gibt die Sperre frei
    fd_ = -1;
}

bool IndexSperre::GiltFür(const std::string& ziel) const {
    struct stat a, b;
    return fd_ >= 0 && ::fstat(fd_, &a) == 0 && ::stat(ziel.c_str(), &b) == 0 && GleicheDatei(a, b);
}

std::string IndexZielAuflösen(const std::string& pfad) {
    std::string p = pfad;
    for (int schritt = 0; schritt < 40; ++schritt) {
        struct stat st;
        if (::lstat(p.c_str(), &st) != 0 || !S_ISLNK(st.st_mode)) return p;
        std::string ziel(size_t(st.st_size > 0 ? st.st_size : 4096) + 1, '\0');
        const ssize_t n = ::readlink(p.c_str(), ziel.data(), ziel.size());
        if (n <= 0 || size_t(n) >= ziel.size()) return p;
        ziel.resize(size_t(n));
        // Ein relatives Ziel gilt vom Ordner der Verknüpfung aus.
        p = ziel[0] == '/' ? ziel : (p.find('/') == std::string::npos ? ziel : PfadZurückgeben(p) + "/" + ziel);
    }
    return p;
}

char DateiArtLesen(const std::string& ziel, int& fehler) {
    struct stat st;
    fehler = 0;
    if (::stat(ziel.c_str(), &st) != 0) {
        fehler = errno;
        return fehler == ENOENT ? '-' : '!';
    }
    if (S_ISREG(st.st_mode)) return 'f';
    if (S_ISDIR(st.st_mode)) return 'd';
    if (S_ISFIFO(st.st_mode)) return 'p';
    if (S_ISCHR(st.st_mode) || S_ISBLK(st.st_mode)) return 'g';
    return 's';
}

std::string DateiArtText(char art) {
    switch (art) {
    case 'd': return "ein Ordner";
    case 'p': return "eine benannte Pipe (FIFO)";
    case 'g': return "ein Gerät";
    case 'f': return "eine Datei";
    default: return "keine gewöhnliche Datei";
    }
}

IndexDateiStand IndexDateiStandLesen(const std::string& ziel) {
    IndexDateiStand s;
    struct stat st;
    if (::stat(ziel.c_str(), &st) != 0) return s;
    s.bekannt = true;
    s.ziel = ziel;
    s.gerät = uint64_t(st.st_dev);
    s.knoten = uint64_t(st.st_ino);
    s.größe = int64_t(st.st_size);
    s.zeitNs = int64_t(st.st_mtim.tv_sec) * 1000000000 + st.st_mtim.tv_nsec;
    return s;
}

bool IndexDateiSperren(Kartei& k, const std::string& ziel, const std::string& pfad, bool exklusiv,
                       IndexSperre& sperre) {
    bool fensterGeöffnet = false;
    for (;;) {
        // Zum Sperren genügt Lesen; O_NONBLOCK, damit nichts an einer FIFO hängen bleibt.
        const int fd = ::open(ziel.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
        if (fd < 0) {
            const int fehler = errno;
            if (fensterGeöffnet) FortschrittZeigenEnde(k);
            k.ui.MeldungZeigen("Auf die Indexdatei '" + pfad + "' kann nicht zugegriffen werden.\n" +
                                   SystemFehlerText(fehler) + ".",
                               Meldung::Ausrufezeichen);
            return false;
        }
        const int ergebnis = AufSperreWarten(k, fd, exklusiv, pfad, fensterGeöffnet);
        if (ergebnis == 0) {
            ::close(fd);
            FortschrittZeigenEnde(k);
            return false;
        }
        // ergebnis -1: das Dateisystem kennt keine Sperren (manche Netzlaufwerke); dann ohne.
        struct stat offen, jetzt;
        if (ergebnis < 0 ||
            (::fstat(fd, &offen) == 0 && ::stat(ziel.c_str(), &jetzt) == 0 && GleicheDatei(offen, jetzt))) {
            if (fensterGeöffnet) FortschrittZeigenEnde(k);
            sperre.Übernehmen(fd, exklusiv);
            return true;
        }
        ::close(fd);  // inzwischen durch eine neue Datei ersetzt: diese sperren
    }
}
