#include "support/MpegDaten.h"

#include <fcntl.h>
#include <stdexcept>
#include <unistd.h>

namespace mpeg {

std::string KopfBytes(const Kopf& k) {
    uint32_t w = 0x7FFu << 21;
    w |= uint32_t(k.version & 3) << 19 | uint32_t(k.layer & 3) << 17 | uint32_t(k.crc ? 0 : 1) << 16;
    w |= uint32_t(k.bitrate & 15) << 12 | uint32_t(k.frequenz & 3) << 10 | uint32_t(k.padding) << 9;
    w |= uint32_t(k.privat) << 8 | uint32_t(k.modus & 3) << 6 | uint32_t(k.erweiterung & 3) << 4;
    w |= uint32_t(k.copyright) << 3 | uint32_t(k.original) << 2 | uint32_t(k.emphasis & 3);
    return BigEndian(w, 4);
}

std::string Füllung(size_t n, uint8_t start) {
    std::string aus(n, '\0');
    for (size_t i = 0; i < n; ++i) aus[i] = static_cast<char>((start + i * 7) % 251);  // nie 0xFF
    return aus;
}

std::string Frame(const Kopf& k, size_t länge) {
    std::string f = KopfBytes(k);
    return f + Füllung(länge > 4 ? länge - 4 : 0, 1);
}

std::string XingFrame(const Kopf& k, uint32_t frames, const std::string& kennung, size_t länge) {
    std::string f = Frame(k, std::max<size_t>(länge, 48));
    f.replace(36, kennung.size(), kennung);
    f.replace(40, 4, BigEndian(0x0F, 4));
    f.replace(44, 4, BigEndian(frames, 4));
    return f;
}

std::string Id3v1(const std::string& titel, const std::string& interpret, const std::string& album,
                  const std::string& jahr, const std::string& kommentar, int track, uint8_t genre) {
    auto feld = [](std::string t, size_t n) {
        t.resize(n, '\0');
        return t;
    };
    std::string tag = "TAG" + feld(titel, 30) + feld(interpret, 30) + feld(album, 30) + feld(jahr, 4);
    if (track < 0) tag += feld(kommentar, 30);
    else tag += feld(kommentar, 28) + '\0' + static_cast<char>(track);
    return tag + static_cast<char>(genre);
}

std::string BigEndian(uint32_t wert, int bytes) {
    std::string aus;
    for (int i = bytes - 1; i >= 0; --i) aus.push_back(static_cast<char>((wert >> (8 * i)) & 0xFF));
    return aus;
}

std::string SyncSafe(uint32_t wert) {
    std::string aus;
    for (int i = 3; i >= 0; --i) aus.push_back(static_cast<char>((wert >> (7 * i)) & 0x7F));
    return aus;
}

std::string Utf16(std::string_view latin1, bool bigEndian, bool bom) {
    std::string aus;
    if (bom) aus += bigEndian ? "\xFE\xFF" : "\xFF\xFE";
    for (char c : latin1) {
        if (bigEndian) aus += '\0', aus += c;
        else aus += c, aus += '\0';
    }
    return aus;
}

Rahmen Text(const std::string& id, const std::string& text, uint8_t kodierung) {
    return Rahmen{id, std::string(1, static_cast<char>(kodierung)) + text};
}

Rahmen Kommentar(const std::string& id, const std::string& text, const std::string& beschreibung, uint8_t kodierung,
                 const std::string& sprache) {
    const bool utf16 = kodierung == 1 || kodierung == 2;
    const std::string ende = utf16 ? std::string(2, '\0') : std::string(1, '\0');
    return Rahmen{id, std::string(1, static_cast<char>(kodierung)) + sprache + beschreibung + ende + text};
}

std::string RahmenBytes(const Rahmen& r, int major) {
    const auto n = static_cast<uint32_t>(r.inhalt.size());
    if (major == 2) return r.id + BigEndian(n, 3) + r.inhalt;
    return r.id + (major == 4 ? SyncSafe(n) : BigEndian(n, 4)) + r.flags + r.inhalt;
}

std::string Id3v2(const V2Tag& t) {
    std::string körper = t.erweiterterKopf;
    for (const auto& r : t.rahmen) körper += RahmenBytes(r, t.major);
    körper += std::string(t.padding, '\0');
    uint8_t flags = t.flags;
    if (!t.erweiterterKopf.empty()) flags |= 0x40;
    if (t.fußzeile) flags |= 0x10;
    const std::string rest =
        std::string{static_cast<char>(t.major), static_cast<char>(t.minor), static_cast<char>(flags)} +
        SyncSafe(static_cast<uint32_t>(körper.size()));
    return "ID3" + rest + körper + (t.fußzeile ? "3DI" + rest : "");
}

void DünneDateiSchreiben(const std::string& pfad, const std::string& anfang, int64_t länge, const std::string& ende) {
    int fd = ::open(pfad.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (fd < 0) throw std::runtime_error("open " + pfad);
    bool gut = ::pwrite(fd, anfang.data(), anfang.size(), 0) == static_cast<ssize_t>(anfang.size()) &&
               ::ftruncate(fd, länge) == 0 &&
               ::pwrite(fd, ende.data(), ende.size(), länge - static_cast<int64_t>(ende.size())) ==
                   static_cast<ssize_t>(ende.size());
    ::close(fd);
    if (!gut) throw std::runtime_error("schreiben " + pfad);
}

}  // namespace mpeg
