#include "support/OhneVorrechte.h"

#include <grp.h>
#include <sys/wait.h>
#include <unistd.h>

std::string OhneVorrechteAusführen(const std::function<std::string()>& f) {
    int rohr[2];
    if (::pipe(rohr) != 0) return "<Kindprozess gescheitert>";
    const pid_t kind = ::fork();
    if (kind == 0) {
        ::close(rohr[0]);
        if (::geteuid() == 0 && (::setgroups(0, nullptr) != 0 || ::setgid(65534) != 0 || ::setuid(65534) != 0))
            ::_exit(3);
        const std::string ergebnis = f();
        const bool gut = ::write(rohr[1], ergebnis.data(), ergebnis.size()) == static_cast<ssize_t>(ergebnis.size());
        ::_exit(gut ? 0 : 4);
    }
    ::close(rohr[1]);
    std::string ergebnis;
    char puffer[4096];
    for (ssize_t n; (n = ::read(rohr[0], puffer, sizeof puffer)) > 0;) ergebnis.append(puffer, static_cast<size_t>(n));
    ::close(rohr[0]);
    int status = 0;
    if (kind < 0 || ::waitpid(kind, &status, 0) != kind || !WIFEXITED(status) || WEXITSTATUS(status) != 0)
        return "<Kindprozess gescheitert>";
    return ergebnis;
}
