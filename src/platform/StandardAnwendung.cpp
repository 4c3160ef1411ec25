#include "platform/StandardAnwendung.h"

#include "app/Pfade.h"
#include "app/Texte.h"

#include <QProcess>
#include <QStringList>

#include <cstdlib>
#include <fstream>
#include <vector>

namespace {
// Die Ordner, in denen Desktop-Dateien liegen, der wichtigste zuerst.
std::vector<std::string> AnwendungsOrdner() {
    std::vector<std::string> ordner;
    const char* daten = std::getenv("XDG_DATA_HOME");
    const char* home = std::getenv("HOME");
    if (daten && daten[0] == '/') ordner.push_back(daten);
    else if (home) ordner.push_back(std::string(home) + "/.local/share");
    const char* liste = std::getenv("XDG_DATA_DIRS");
    std::string rest = liste && liste[0] ? liste : "/usr/local/share:/usr/share";
    for (size_t anfang = 0; anfang <= rest.size();) {
        size_t ende = rest.find(':', anfang);
        if (ende == std::string::npos) ende = rest.size();
        if (ende > anfang && rest[anfang] == '/') ordner.push_back(rest.substr(anfang, ende - anfang));
        anfang = ende + 1;
    }
    for (auto& o : ordner) o += "/applications/";
    return ordner;
}

// Maskierungen eines Textwerts der Desktop-Datei: \s \n \t \r \\.
std::string WertDemaskieren(std::string_view wert) {
    std::string aus;
    for (size_t i = 0; i < wert.size(); ++i) {
        if (wert[i] != '\\' || i + 1 == wert.size()) {
            aus.push_back(wert[i]);
            continue;
        }
        const char n = wert[++i];
        aus.push_back(n == 's' ? ' ' : n == 'n' ? '\n' : n == 't' ? '\t' : n == 'r' ? '\r' : n);
    }
    return aus;
}
}  // namespace

std::string ExecBereinigen(std::string_view exec) {
    std::string aus;
    bool inAnführung = false;
    for (size_t i = 0; i < exec.size(); ++i) {
        const char c = exec[i];
        if (c == '"') {
            inAnführung = !inAnführung;
        } else if (inAnführung && c == '\\' && i + 1 < exec.size()) {
            aus.push_back(exec[++i]);  // \" \` \$ \\ in Anführung
        } else if (c == '%' && i + 1 < exec.size()) {
            if (exec[++i] == '%') {
                aus.push_back('%');
            } else if (!aus.empty() && aus.back() == ' ') {
                aus.pop_back();  // der Feldcode war ein eigenes Argument
            }
        } else {
            aus.push_back(c);
        }
    }
    return Trim(aus);
}

std::string DesktopDateiSuchen(const std::string& kennung) {
    if (kennung.empty() || kennung.find('/') != std::string::npos) return {};
    // "kde4-foo.desktop" darf auch als "kde4/foo.desktop" liegen.
    std::vector<std::string> namen{kennung};
    for (size_t p = kennung.find('-'); p != std::string::npos; p = kennung.find('-', p + 1))
        namen.push_back(kennung.substr(0, p) + "/" + kennung.substr(p + 1));
    for (const auto& ordner : AnwendungsOrdner())
        for (const auto& name : namen)
            if (DoesExist(ordner + name)) return ordner + name;
    return {};
}

std::string DesktopDateiBefehl(const std::string& pfad) {
    std::ifstream ein(pfad, std::ios::binary);
    std::string zeile;
    bool eintrag = false;
    while (std::getline(ein, zeile)) {
        if (!zeile.empty() && zeile.back() == '\r') zeile.pop_back();
        if (!zeile.empty() && zeile.front() == '[') {
            eintrag = zeile == "[Desktop Entry]";  // nicht die Gruppen [Desktop Action ...]
            continue;
        }
        const auto gleich = zeile.find('=');
        if (!eintrag || gleich == std::string::npos || Trim(zeile.substr(0, gleich)) != "Exec") continue;
        return ExecBereinigen(WertDemaskieren(Trim(zeile.substr(gleich + 1))));
    }
    return {};
}

std::string StandardAnwendungsBefehl(const std::string& mimeTyp) {
    QProcess xdgMime;
    xdgMime.start(QStringLiteral("xdg-mime"),
                  {QStringLiteral("query"), QStringLiteral("default"), QString::fromStdString(mimeTyp)});
    if (!xdgMime.waitForFinished(5000) || xdgMime.exitStatus() != QProcess::NormalExit || xdgMime.exitCode() != 0) {
        xdgMime.kill();
        xdgMime.waitForFinished(1000);
        return {};
    }
    const std::string kennung = xdgMime.readAllStandardOutput().trimmed().toStdString();
    const std::string datei = DesktopDateiSuchen(kennung);
    return datei.empty() ? std::string() : DesktopDateiBefehl(datei);
}
