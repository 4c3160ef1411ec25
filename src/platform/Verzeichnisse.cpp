#include "platform/Verzeichnisse.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <cstdlib>

namespace {
std::string XdgOrdner(const char* variable, const char* rückfall) {
    const char* wert = std::getenv(variable);
    if (wert && wert[0] == '/') return std::string(wert) + "/klangkartei";
    const char* home = std::getenv("HOME");
    return std::string(home ? home : "") + rückfall + "/klangkartei";
}
}  // namespace

std::string KonfigOrdner() { return XdgOrdner("XDG_CONFIG_HOME", "/.config"); }
std::string DatenOrdner() { return XdgOrdner("XDG_DATA_HOME", "/.local/share"); }
std::string ZwischenspeicherOrdner() { return XdgOrdner("XDG_CACHE_HOME", "/.cache"); }
std::string StandardIndexPfad() { return DatenOrdner() + "/Klangkt.kkt"; }

std::string ProgrammDatenOrdner() {
    QString exe = QCoreApplication::applicationDirPath();
    if (exe.isEmpty())
        exe = QFileInfo(QStringLiteral("/proc/self/exe")).canonicalFilePath().section(QLatin1Char('/'), 0, -2);
    return QDir(exe + QStringLiteral("/../share/klangkartei")).absolutePath().toStdString();
}

bool OrdnerAnlegen(const std::string& pfad) { return QDir().mkpath(QString::fromStdString(pfad)); }
