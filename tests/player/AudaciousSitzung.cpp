#include "AudaciousSitzung.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QStandardPaths>
#include <QThread>

#include <cstdlib>

namespace {
const QString AudaciousDienst = QStringLiteral("org.atheme.audacious");

bool DienstDa(const QString& name) {
    auto* bus = QDBusConnection::sessionBus().interface();
    return bus && bus->isServiceRegistered(name).value();
}

// Nur die SDL-Ausgabe einschalten: jede Zeile "enabled" gehört zum Block der letzten Kopfzeile.
bool NurSdlAusgabe(const QString& registry) {
    QFile f(registry);
    if (!f.open(QIODevice::ReadOnly)) return false;
    QList<QByteArray> zeilen = f.readAll().split('\n');
    f.close();
    bool ausgabe = false, sdl = false, gefunden = false;
    for (QByteArray& z : zeilen) {
        if (z.startsWith("output ")) {
            ausgabe = true;
            sdl = z.endsWith("/sdlout.so");
            gefunden = gefunden || sdl;
        } else if (!z.isEmpty() && !z.startsWith(' ') && z.contains(" /")) {
            ausgabe = false;
        } else if (ausgabe && z.startsWith("enabled ")) {
            z = sdl ? "enabled 1" : "enabled 0";
        }
    }
    if (!gefunden || !f.open(QIODevice::WriteOnly | QIODevice::Truncate)) return false;
    f.write(zeilen.join('\n'));
    return true;
}
}  // namespace

bool WartenBis(const std::function<bool()>& bedingung, int ms) {
    QElapsedTimer uhr;
    uhr.start();
    while (!bedingung()) {
        if (uhr.elapsed() > ms) return false;
        QCoreApplication::processEvents();
        QThread::msleep(20);
    }
    return true;
}

QVariant AudaciousSitzung::Audacious(const char* methode, const QVariantList& argumente) {
    QDBusMessage m = QDBusMessage::createMethodCall(AudaciousDienst, QStringLiteral("/org/atheme/audacious"),
                                                    AudaciousDienst, QString::fromLatin1(methode));
    m.setArguments(argumente);
    const QDBusMessage antwort = QDBusConnection::sessionBus().call(m, QDBus::Block, 3000);
    return antwort.arguments().isEmpty() ? QVariant() : antwort.arguments().constFirst();
}

AudaciousSitzung::~AudaciousSitzung() { Beenden(); }

bool AudaciousSitzung::Laufen(std::string& grund) {
    prozess_.setProgram(QStandardPaths::findExecutable(QStringLiteral("audacious")));
    prozess_.setArguments({QStringLiteral("-H")});
    prozess_.setProcessChannelMode(QProcess::MergedChannels);
    prozess_.setStandardOutputFile(QDir(qEnvironmentVariable("HOME")).filePath(QStringLiteral("audacious.log")),
                                   QIODevice::Append);
    prozess_.start();
    if (!prozess_.waitForStarted(5000) ||
        !WartenBis([] { return DienstDa(QStringLiteral("org.mpris.MediaPlayer2.audacious")); }, 15000)) {
        grund = "Audacious meldet sich nicht auf dem Sitzungsbus.";
        return false;
    }
    return true;
}

bool AudaciousSitzung::Starten(const std::string& ordner, std::string& grund) {
    if (QStandardPaths::findExecutable(QStringLiteral("audacious")).isEmpty()) {
        grund = "Audacious ist nicht installiert (Debian-Pakete audacious und audacious-plugins).";
        return false;
    }
    if (!QDBusConnection::sessionBus().isConnected()) {
        grund = "Kein Sitzungsbus (dbus-run-session fehlt).";
        return false;
    }
    if (DienstDa(AudaciousDienst)) {
        grund = "Auf dem Sitzungsbus läuft schon ein Audacious.";
        return false;
    }
    const QString o = QString::fromStdString(ordner);
    for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"}) {
        const QString pfad = o + QLatin1Char('/') + QString::fromLatin1(name).toLower();
        QDir().mkpath(pfad);
        qputenv(name, pfad.toLocal8Bit());
    }
    qputenv("SDL_AUDIODRIVER", "dummy");
    // Erster Lauf legt das Profil an; danach bekommt es die SDL-Ausgabe.
    if (!Laufen(grund)) return false;
    Audacious("Quit");
    prozess_.waitForFinished(10000);
    if (!NurSdlAusgabe(o + QStringLiteral("/xdg_config_home/audacious/plugin-registry"))) {
        grund = "Die SDL-Ausgabe von Audacious fehlt (Paket audacious-plugins).";
        return false;
    }
    return Laufen(grund);
}

void AudaciousSitzung::Beenden() {
    if (prozess_.state() == QProcess::NotRunning) return;
    Audacious("Quit");
    if (!prozess_.waitForFinished(5000)) {
        prozess_.kill();
        prozess_.waitForFinished(2000);
    }
}
