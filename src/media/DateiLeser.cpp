#include "media/DateiLeser.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {
// Liest bis zu n Bytes ab versatz an das Ende von ziel; false bei einem Lesefehler.
bool Anhängen(int fd, int64_t versatz, int64_t n, std::string& ziel) {
    const size_t alt = ziel.size();
    ziel.resize(alt + static_cast<size_t>(n));
    int64_t gelesen = 0;
    while (gelesen < n) {
        ssize_t r = ::pread(fd, ziel.data() + alt + gelesen, static_cast<size_t>(n - gelesen), versatz + gelesen);
        if (r < 0 && errno == EINTR) continue;
        if (r <= 0) {
            ziel.resize(alt + static_cast<size_t>(gelesen));
            return r == 0;
        }
        gelesen += r;
    }
    return true;
}
}  // namespace

DateiLeser::DateiLeser(const std::string& pfad) {
    if (pfad.empty()) return;
    // O_NONBLOCK: ein FIFO unter dem Namen darf das Öffnen nicht blockieren.
    int fd = ::open(pfad.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0) return;
    struct stat st {};
    if (::fstat(fd, &st) != 0 || !S_ISREG(st.st_mode)) {
        ::close(fd);
        return;
    }
    fd_ = fd;
    länge_ = static_cast<int64_t>(st.st_size);
    änderung_ = st.st_mtime;
}

DateiLeser::~DateiLeser() {
    if (fd_ >= 0) ::close(fd_);
}

std::string_view DateiLeser::Anfang(int64_t n) {
    if (fd_ < 0 || n <= 0) return {};
    n = std::min(n, länge_);
    const auto vorhanden = static_cast<int64_t>(anfang_.size());
    if (n > vorhanden && !anfangFehler_) {
        // Nie in winzigen Schritten nachlesen: mindestens 16 KiB auf einmal.
        const int64_t ziel = std::min(länge_, std::max(n, vorhanden + 16384));
        if (!Anhängen(fd_, vorhanden, ziel - vorhanden, anfang_)) anfangFehler_ = true;
    }
    return std::string_view(anfang_).substr(0, static_cast<size_t>(std::min<int64_t>(n, anfang_.size())));
}

std::string_view DateiLeser::Stück(int64_t versatz, int64_t n) {
    if (fd_ < 0 || n <= 0 || versatz < 0 || versatz >= länge_) return {};
    n = std::min(n, länge_ - versatz);
    if (versatz + n <= static_cast<int64_t>(anfang_.size()))
        return std::string_view(anfang_).substr(static_cast<size_t>(versatz), static_cast<size_t>(n));
    stück_.clear();
    Anhängen(fd_, versatz, n, stück_);
    return stück_;
}

std::string DateiLeser::StückKopie(int64_t versatz, int64_t n) {
    if (fd_ < 0 || n <= 0 || versatz < 0 || versatz >= länge_) return {};
    n = std::min(n, länge_ - versatz);
    if (versatz + n <= static_cast<int64_t>(anfang_.size())) return std::string(Stück(versatz, n));
    std::string aus;
    Anhängen(fd_, versatz, n, aus);
    return aus;
}
