#include "app/BlockLeser.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

BlockLeser::~BlockLeser() {
    if (fd_ >= 0) ::close(fd_);
}

bool BlockLeser::Öffnen(const std::string& pfad) {
    fd_ = ::open(pfad.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);  // eine FIFO darf nicht warten lassen
    struct stat st {};
    // Nur gewöhnliche Dateien: ein Gerät wie /dev/zero hätte kein Ende, eine FIFO hielte an.
    if (fd_ < 0 || ::fstat(fd_, &st) != 0 || !S_ISREG(st.st_mode)) {
        dateiEnde_ = true;
        return false;
    }
    länge_ = st.st_size;
    ::posix_fadvise(fd_, 0, 0, POSIX_FADV_SEQUENTIAL);
    return true;
}

bool BlockLeser::Nachladen() {
    if (dateiEnde_) return false;
    if (anfang_ > 0) {  // Gelesenes vorn verwerfen, den Rest an den Anfang
        std::memmove(puffer_.data(), puffer_.data() + anfang_, ende_ - anfang_);
        basis_ += int64_t(anfang_);
        ende_ -= anfang_;
        anfang_ = 0;
    }
    if (puffer_.size() < blockGröße_) puffer_.resize(blockGröße_);
    if (ende_ == puffer_.size()) puffer_.resize(puffer_.size() * 2);  // Zeile länger als ein Block
    ssize_t n;
    do {
        n = ::read(fd_, puffer_.data() + ende_, puffer_.size() - ende_);
    } while (n < 0 && errno == EINTR);
    if (n <= 0) {
        dateiEnde_ = true;
        return false;
    }
    ende_ += size_t(n);
    return true;
}

bool BlockLeser::ZeileCrLf(std::string_view& zeile) {
    size_t suchAb = 0;
    for (;;) {
        std::string_view rest(puffer_.data() + anfang_, ende_ - anfang_);
        auto p = rest.find("\r\n", suchAb);
        if (p != std::string_view::npos) {
            zeile = rest.substr(0, p);
            anfang_ += p + 2;
            return true;
        }
        suchAb = rest.empty() ? 0 : rest.size() - 1;  // ein CR am Ende kann zum nächsten Block gehören
        if (!Nachladen()) {
            rest = std::string_view(puffer_.data() + anfang_, ende_ - anfang_);
            if (rest.empty()) return false;
            zeile = rest;
            anfang_ = ende_;
            return true;
        }
    }
}

bool BlockLeser::ZeileEinfach(std::string_view& zeile) {
    size_t suchAb = 0;
    for (;;) {
        std::string_view rest(puffer_.data() + anfang_, ende_ - anfang_);
        auto p = rest.find_first_of("\r\n", suchAb);
        // Ein CR am Pufferende: erst nachladen, um ein folgendes LF mitzunehmen.
        if (p != std::string_view::npos && !(rest[p] == '\r' && p + 1 == rest.size() && !dateiEnde_)) {
            zeile = rest.substr(0, p);
            size_t ende = p + 1;
            if (rest[p] == '\r' && ende < rest.size() && rest[ende] == '\n') ++ende;
            anfang_ += ende;
            return true;
        }
        if (p != std::string_view::npos) suchAb = p;
        else suchAb = rest.size();
        if (!Nachladen()) {
            rest = std::string_view(puffer_.data() + anfang_, ende_ - anfang_);
            if (rest.empty()) return false;
            p = rest.find_first_of("\r\n");
            if (p != std::string_view::npos) continue;  // das CR am Ende ist jetzt eindeutig
            zeile = rest;
            anfang_ = ende_;
            return true;
        }
    }
}
