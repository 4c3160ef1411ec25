#include "app/Pfade.h"

#include "app/Texte.h"

#include <sys/stat.h>
#include <unistd.h>

std::string_view PfadZurückgebenSicht(std::string_view pfad) {
    auto p = pfad.rfind('/');
    return p == std::string_view::npos ? std::string_view() : pfad.substr(0, p);
}

std::string_view DateinameAusPfadSicht(std::string_view pfad) {
    auto p = pfad.rfind('/');
    return p == std::string_view::npos ? pfad : pfad.substr(p + 1);
}

std::string_view DateiEndungSicht(std::string_view pfad) {
    auto punkt = pfad.rfind('.');
    if (punkt == std::string_view::npos) return {};
    if (pfad.find('/', punkt) != std::string_view::npos) return {};
    return pfad.substr(punkt);
}

std::string PfadZurückgeben(std::string_view pfad) { return std::string(PfadZurückgebenSicht(pfad)); }

std::string DateinameAusPfad(std::string_view pfad) { return std::string(DateinameAusPfadSicht(pfad)); }

std::string DateiEndung(std::string_view pfad) { return std::string(DateiEndungSicht(pfad)); }

bool IstVollerPfad(std::string_view pfad) { return !pfad.empty() && pfad.front() == '/'; }

bool DoesExist(std::string_view pfad) {
    struct stat st {};
    return !pfad.empty() && ::stat(std::string(pfad).c_str(), &st) == 0 && !S_ISDIR(st.st_mode);
}

bool IstOrdner(std::string_view pfad) {
    struct stat st {};
    return !pfad.empty() && ::stat(std::string(pfad).c_str(), &st) == 0 && S_ISDIR(st.st_mode);
}

bool DateiLöschenEinfach(std::string_view pfad) {
    std::string p(pfad);
    struct stat st {};
    if (::lstat(p.c_str(), &st) != 0) return true;
    if (S_ISDIR(st.st_mode)) return false;
    ::chmod(p.c_str(), st.st_mode | S_IWUSR);  // "Attribute löschen": Schreibschutz weg
    ::unlink(p.c_str());
    return ::lstat(p.c_str(), &st) != 0;
}

long long DateiGrößeLesen(std::string_view pfad) {
    struct stat st {};
    if (::stat(std::string(pfad).c_str(), &st) != 0 || S_ISDIR(st.st_mode)) return -1;
    return static_cast<long long>(st.st_size);
}

void PfadTextAnhängen(std::string& ziel, std::string_view pfad) {
    if (IstGültigesUtf8(pfad)) ziel.append(pfad);
    else ziel.append(Windows1252ZuUtf8(pfad));
}

std::string PfadText(std::string_view pfad) {
    std::string t;
    PfadTextAnhängen(t, pfad);
    return t;
}
