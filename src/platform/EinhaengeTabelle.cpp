#include "platform/EinhaengeTabelle.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace {
bool IstOktal(char c) { return c >= '0' && c <= '7'; }

int HexWert(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

// Felder einer Zeile, durch Leerzeichen getrennt.
std::vector<std::string_view> Felder(std::string_view zeile) {
    std::vector<std::string_view> felder;
    size_t pos = 0;
    while (pos < zeile.size()) {
        const size_t ende = std::min(zeile.find(' ', pos), zeile.size());
        if (ende > pos) felder.push_back(zeile.substr(pos, ende - pos));
        pos = ende + 1;
    }
    return felder;
}

// "8:17" → 8 und 17.
bool GerätLesen(std::string_view text, unsigned& major, unsigned& minor) {
    const size_t doppelpunkt = text.find(':');
    if (doppelpunkt == std::string_view::npos) return false;
    const char* ende = text.data() + text.size();
    auto a = std::from_chars(text.data(), text.data() + doppelpunkt, major);
    auto b = std::from_chars(text.data() + doppelpunkt + 1, ende, minor);
    return a.ec == std::errc() && b.ec == std::errc() && b.ptr == ende;
}

// Liegt pfad in punkt (an einer Ordnergrenze)?
bool Enthält(std::string_view punkt, std::string_view pfad) {
    if (!pfad.starts_with(punkt)) return false;
    return punkt == "/" || pfad.size() == punkt.size() || pfad[punkt.size()] == '/';
}

// Nächster Pfadteil ab pos (pos zeigt hinter ein "/"); leer am Ende.
std::string_view Teil(std::string_view pfad, size_t pos) {
    if (pos > pfad.size()) return {};
    return pfad.substr(pos, std::min(pfad.find('/', pos), pfad.size()) - pos);
}
}  // namespace

std::string OktalEntschlüsseln(std::string_view text) {
    std::string aus;
    aus.reserve(text.size());
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\\' && i + 3 < text.size() && IstOktal(text[i + 1]) && IstOktal(text[i + 2]) &&
            IstOktal(text[i + 3])) {
            aus.push_back(static_cast<char>((text[i + 1] - '0') * 64 + (text[i + 2] - '0') * 8 + (text[i + 3] - '0')));
            i += 3;
        } else {
            aus.push_back(text[i]);
        }
    }
    return aus;
}

std::string HexEntschlüsseln(std::string_view text) {
    std::string aus;
    aus.reserve(text.size());
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\\' && i + 3 < text.size() && text[i + 1] == 'x' && HexWert(text[i + 2]) >= 0 &&
            HexWert(text[i + 3]) >= 0) {
            aus.push_back(static_cast<char>(HexWert(text[i + 2]) * 16 + HexWert(text[i + 3])));
            i += 3;
        } else {
            aus.push_back(text[i]);
        }
    }
    return aus;
}

std::vector<Einhängung> EinhängungenLesen(std::string_view text) {
    // "36 35 98:0 /wurzel /punkt optionen [weitere…] - typ quelle superoptionen"
    std::vector<Einhängung> tabelle;
    size_t pos = 0;
    while (pos < text.size()) {
        const size_t ende = std::min(text.find('\n', pos), text.size());
        const auto felder = Felder(text.substr(pos, ende - pos));
        pos = ende + 1;
        size_t strich = 6;
        while (strich < felder.size() && felder[strich] != "-") ++strich;
        Einhängung e;
        if (strich + 2 >= felder.size() || !GerätLesen(felder[2], e.major, e.minor)) continue;
        e.punkt = OktalEntschlüsseln(felder[4]);
        e.typ = OktalEntschlüsseln(felder[strich + 1]);
        e.quelle = OktalEntschlüsseln(felder[strich + 2]);
        if (!e.punkt.starts_with('/')) continue;
        tabelle.push_back(std::move(e));
    }
    return tabelle;
}

const Einhängung* EinhängungFür(const std::vector<Einhängung>& tabelle, std::string_view pfad) {
    const Einhängung* beste = nullptr;
    for (const auto& e : tabelle)
        if (Enthält(e.punkt, pfad) && (!beste || e.punkt.size() >= beste->punkt.size())) beste = &e;
    return beste;
}

const Einhängung* EinhängungAn(const std::vector<Einhängung>& tabelle, std::string_view wurzel) {
    const Einhängung* treffer = nullptr;
    for (const auto& e : tabelle)
        if (e.punkt == wurzel) treffer = &e;
    return treffer;
}

std::string MedienWurzelForm(std::string_view pfad) {
    // Wie viele Pfadteile nach dem Anfang gehören noch zur Wurzel?
    size_t pos = 0;
    int teile = 0;
    if (pfad.starts_with("/media/")) pos = 7, teile = 2;
    else if (pfad.starts_with("/run/media/")) pos = 11, teile = 2;
    else if (pfad.starts_with("/mnt/")) pos = 5, teile = 1;
    else return {};
    for (int i = 0; i < teile; ++i) {
        const std::string_view teil = Teil(pfad, pos);
        if (teil.empty() || teil == "." || teil == "..") return {};
        pos += teil.size() + 1;
    }
    return std::string(pfad.substr(0, pos - 1));
}

bool WechselDateisystem(std::string_view typ) {
    static constexpr std::array<std::string_view, 13> kTypen = {
        "iso9660",    "udf", "nfs",   "nfs4",       "cifs",  "smb3", "smbfs",  // optisch, Netz
        "fuse.sshfs", "9p",  "davfs", "fuse.davfs", "tmpfs", "ramfs"};         // Netz, RAM
    for (auto t : kTypen)
        if (typ == t) return true;
    return false;
}
