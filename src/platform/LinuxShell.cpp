#include "platform/LinuxShell.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QStringList>

#include <cstdlib>

bool LinuxShell::Öffnen(const std::string& dateiOderAdresse) {
    return QProcess::startDetached(QStringLiteral("xdg-open"), {QString::fromStdString(dateiOderAdresse)});
}

int64_t LinuxShell::ProgrammStarten(const std::string& programm, const std::vector<std::string>& argumente,
                                    bool /*mitFokus*/) {
    QStringList args;
    for (const auto& a : argumente) args << QString::fromStdString(a);
    qint64 pid = 0;
    if (!QProcess::startDetached(QString::fromStdString(programm), args, QString(), &pid)) return 0;
    return pid;
}

bool LinuxShell::InPapierkorb(const std::string& pfad, std::string& fehler) {
    // Der Papierkorb muss bestehen, sonst weicht Qt auf andere Orte aus.
    QString daten = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    QDir().mkpath(daten + QStringLiteral("/Trash/files"));
    QDir().mkpath(daten + QStringLiteral("/Trash/info"));
    QString ziel;
    if (!QFile::moveToTrash(QString::fromStdString(pfad), &ziel) || !QDir::isAbsolutePath(ziel)) {
        fehler = "Die Datei konnte nicht in den Papierkorb verschoben werden.";
        return false;
    }
    return true;
}

bool LinuxShell::InZwischenablage(const std::string& text) {
    if (zwischenablage) return zwischenablage(text);
    for (const auto& [prog, args] :
         {std::pair{QStringLiteral("wl-copy"), QStringList{}},
          std::pair{QStringLiteral("xclip"), QStringList{QStringLiteral("-selection"), QStringLiteral("clipboard")}}}) {
        if (QStandardPaths::findExecutable(prog).isEmpty()) continue;
        QProcess p;
        p.start(prog, args);
        if (!p.waitForStarted(2000)) continue;
        p.write(QByteArray::fromStdString(text));
        p.closeWriteChannel();
        return p.waitForFinished(2000) && p.exitCode() == 0;
    }
    return false;
}
