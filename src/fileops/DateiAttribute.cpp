// Die Dateioperationen der Umbenennung, die nichts verschieben: Attribute setzen und eine Datei
// durch eine leere ersetzen.
#include "app/Pfade.h"
#include "app/SystemFehler.h"
#include "fileops/Umbenennen.h"
#include "fileops/UmbenennenNamen.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

bool DateiAttributeSetzen(const std::string& pfad, bool schreibschutz, bool, bool, bool, std::string& fehler) {
    fehler.clear();
    struct stat st {};
    if (::stat(pfad.c_str(), &st) != 0) {
        fehler = SystemFehlerText(errno);
        return false;
    }
    constexpr mode_t schreiben = S_IWUSR | S_IWGRP | S_IWOTH;
    // Ohne Schreibschutz darf wenigstens der Besitzer schreiben; fremde Schreibrechte kommen nicht dazu.
    const mode_t neu = schreibschutz ? (st.st_mode & ~schreiben) : (st.st_mode | S_IWUSR);
    if ((neu & 07777) != (st.st_mode & 07777) && ::chmod(pfad.c_str(), neu & 07777) != 0) {
        fehler = SystemFehlerText(errno);
        return false;
    }
    return true;
}

bool DateiDurchLeereErsetzen(std::string_view quelle, std::string_view endung, bool löschen) {
    const std::string pfad(quelle);
    const std::string neu = PfadOhneEndung(pfad) + "." + std::string(endung);
    if (neu == pfad) {
        // Gleicher Name: die Datei selbst wird geleert.
        if (löschen && !DateiLöschenEinfach(pfad)) return false;
        const int fd = ::open(neu.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
        return fd >= 0 && ::close(fd) == 0;
    }
    // Erst die leere Datei, dann die alte weg: scheitert ein Schritt, bleibt die alte Datei. Eine
    // fremde Datei unter dem neuen Namen wird nicht angetastet.
    const int fd = ::open(neu.c_str(), O_WRONLY | O_CREAT | O_EXCL, 0666);
    if (fd < 0) return false;
    ::close(fd);
    if (löschen && !DateiLöschenEinfach(pfad)) {
        ::unlink(neu.c_str());
        return false;
    }
    return true;
}
