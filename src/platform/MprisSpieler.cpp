// MPRIS über Qt DBus, mit den Zahlen der Nachrichtentabelle des Kerns.
#include "platform/MprisSpieler.h"

#include "player/WinampSteuerung.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QThread>
#include <QUrl>

#include <algorithm>

namespace N = WinampNachricht;

namespace {
const QString Vorsilbe = QStringLiteral("org.mpris.MediaPlayer2.");
const QString Pfad = QStringLiteral("/org/mpris/MediaPlayer2");
const QString Spieler = QStringLiteral("org.mpris.MediaPlayer2.Player");
const QString Audacious = QStringLiteral("org.atheme.audacious");
// Ein Spieler, der hängt, hält das Programm höchstens so lange auf.
constexpr int Zeitgrenze = 1500;
// So lange wartet "zum Ende", bis die eben übergebene Playlist beim Spieler angekommen ist.
constexpr int AnkunftMs = 2000;

QDBusMessage Rufen(const QString& dienst, const QString& pfad, const QString& schnittstelle, const QString& methode,
                   const QVariantList& argumente = {}) {
    QDBusMessage m = QDBusMessage::createMethodCall(dienst, pfad, schnittstelle, methode);
    m.setArguments(argumente);
    return QDBusConnection::sessionBus().call(m, QDBus::Block, Zeitgrenze);
}

QDBusMessage AudaciousRufen(const QString& methode, const QVariantList& argumente = {}) {
    return Rufen(Audacious, QStringLiteral("/org/atheme/audacious"), Audacious, methode, argumente);
}

bool IstAudacious(const QString& dienst) { return dienst == Vorsilbe + QStringLiteral("audacious"); }

// Eigene Schnittstelle von Audacious: Zahl der Einträge der aktiven Playlist; -1 ohne Antwort.
int32_t AudaciousLänge() {
    const QDBusMessage antwort = AudaciousRufen(QStringLiteral("Length"));
    if (antwort.type() != QDBusMessage::ReplyMessage || antwort.arguments().isEmpty()) return -1;
    return antwort.arguments().constFirst().toInt();
}

QVariant Entpacken(QVariant wert) {
    if (wert.canConvert<QDBusVariant>()) wert = qvariant_cast<QDBusVariant>(wert).variant();
    return wert;
}
}  // namespace

std::string MprisFensterText(const QVariantMap& metadaten) {
    QVariant künstler = Entpacken(metadaten.value(QStringLiteral("xesam:artist")));
    QString interpret;
    if (künstler.userType() == qMetaTypeId<QDBusArgument>()) {
        const QStringList liste = qdbus_cast<QStringList>(künstler.value<QDBusArgument>());
        if (!liste.isEmpty()) interpret = liste.first();
    } else if (künstler.canConvert<QStringList>() && !künstler.toStringList().isEmpty()) {
        interpret = künstler.toStringList().first();
    }
    const QString titel = Entpacken(metadaten.value(QStringLiteral("xesam:title"))).toString();
    if (!interpret.isEmpty() && !titel.isEmpty())
        return QString(interpret + QStringLiteral(" - ") + titel).toStdString();
    if (!titel.isEmpty()) return titel.toStdString();
    const QUrl url(Entpacken(metadaten.value(QStringLiteral("xesam:url"))).toString());
    return url.isEmpty() ? std::string() : QFileInfo(url.path()).fileName().toStdString();
}

int64_t MprisSpielerfenster::FensterFinden(const std::string&) {
    QDBusConnectionInterface* bus = QDBusConnection::sessionBus().interface();
    if (!bus) return 0;
    const QStringList namen = bus->registeredServiceNames().value();
    // Die Reihenfolge der bekannten Spieler entscheidet, wer gemeint ist, wenn mehrere laufen.
    for (const std::string& spieler : BekannteSpieler()) {
        const QString basis = Vorsilbe + QString::fromStdString(spieler);
        for (const QString& name : namen) {
            if (name != basis && !name.startsWith(basis + QLatin1Char('.'))) continue;
            auto it = std::find(dienste_.begin(), dienste_.end(), name);
            if (it == dienste_.end()) it = dienste_.insert(dienste_.end(), name);
            return static_cast<int64_t>(it - dienste_.begin()) + 1;
        }
    }
    return 0;
}

QString MprisSpielerfenster::Dienst(int64_t fenster) const {
    if (fenster < 1 || fenster > static_cast<int64_t>(dienste_.size())) return {};
    return dienste_[static_cast<size_t>(fenster - 1)];
}

QVariant MprisSpielerfenster::Eigenschaft(const QString& dienst, const QString& name) {
    const QDBusMessage antwort =
        Rufen(dienst, Pfad, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"), {Spieler, name});
    if (antwort.type() != QDBusMessage::ReplyMessage || antwort.arguments().isEmpty()) return {};
    return Entpacken(antwort.arguments().constFirst());
}

// Metadaten über Properties.Get: QDBusInterface::property kann das a{sv} nicht entschlüsseln.
QVariantMap MprisSpielerfenster::Metadaten(const QString& dienst) {
    const QVariant wert = Eigenschaft(dienst, QStringLiteral("Metadata"));
    if (wert.userType() == qMetaTypeId<QDBusArgument>()) return qdbus_cast<QVariantMap>(wert.value<QDBusArgument>());
    return wert.toMap();
}

int32_t MprisSpielerfenster::NachrichtSenden(int64_t fenster, uint32_t nachricht, int32_t wParam, int32_t lParam) {
    const QString dienst = Dienst(fenster);
    if (dienst.isEmpty()) return 0;
    if (nachricht == N::Befehl) return Befehl(dienst, wParam);
    if (nachricht == N::Benutzer) return Benutzer(dienst, wParam, lParam);
    return 0;
}

int32_t MprisSpielerfenster::Befehl(const QString& dienst, int32_t befehl) {
    const char* methode = nullptr;
    switch (befehl) {
    case N::Vorheriger: methode = "Previous"; break;
    case N::Spielen: methode = "Play"; break;
    case N::Pause: methode = "PlayPause"; break;  // wie beim Spieler selbst: Pause schaltet um
    case N::Stopp: methode = "Stop"; break;
    case N::Nächster: methode = "Next"; break;
    case N::ZumEnde: ZumEnde(dienst); return 0;
    default: return 0;
    }
    Rufen(dienst, Pfad, Spieler, QString::fromLatin1(methode));
    return 0;
}

int32_t MprisSpielerfenster::Benutzer(const QString& dienst, int32_t wParam, int32_t lParam) {
    switch (lParam) {
    case N::PlaylistLeeren:
        if (IstAudacious(dienst)) AudaciousRufen(QStringLiteral("Clear"));
        return 0;
    case N::Status: {
        const QString status = Eigenschaft(dienst, QStringLiteral("PlaybackStatus")).toString();
        return status == QLatin1String("Playing") ? 1 : status == QLatin1String("Paused") ? 3 : 0;
    }
    case N::Zeit: {
        if (wParam == 1) {
            const QVariant länge = Entpacken(Metadaten(dienst).value(QStringLiteral("mpris:length")));
            return länge.isValid() ? static_cast<int32_t>(länge.toLongLong() / 1000000) : -1;
        }
        if (Eigenschaft(dienst, QStringLiteral("PlaybackStatus")).toString() == QLatin1String("Stopped")) return -1;
        const qlonglong mikro = Eigenschaft(dienst, QStringLiteral("Position")).toLongLong();
        return static_cast<int32_t>(std::clamp<qlonglong>(mikro / 1000, 0, INT32_MAX));
    }
    case N::Springen: Springen(dienst, wParam); return 0;
    case N::Lautstärke: {
        QDBusMessage m = QDBusMessage::createMethodCall(dienst, Pfad, QStringLiteral("org.freedesktop.DBus.Properties"),
                                                        QStringLiteral("Set"));
        m.setArguments({Spieler, QStringLiteral("Volume"), QVariant::fromValue(QDBusVariant(wParam / 255.0))});
        QDBusConnection::sessionBus().call(m, QDBus::Block, Zeitgrenze);
        return 0;
    }
    case N::Balance: Balance(dienst, wParam); return 0;
    default: return 0;
    }
}

// Die eben übergebene Playlist kommt über einen zweiten Prozess an; erst wenn sie da ist, ist
// ihr letzter Eintrag das Ende, auf das gesprungen wird.
void MprisSpielerfenster::ZumEnde(const QString& dienst) {
    if (!IstAudacious(dienst)) return;
    const int32_t vorher = AudaciousLänge();
    QElapsedTimer uhr;
    uhr.start();
    int32_t länge = vorher;
    while (länge <= vorher && uhr.elapsed() < AnkunftMs) {
        QThread::msleep(20);
        länge = AudaciousLänge();
    }
    if (länge > 0) AudaciousRufen(QStringLiteral("Jump"), {QVariant::fromValue(uint(länge - 1))});
}

void MprisSpielerfenster::Springen(const QString& dienst, int64_t ms) {
    if (IstAudacious(dienst)) {
        AudaciousRufen(QStringLiteral("Seek"), {QVariant::fromValue(uint(ms))});
        return;
    }
    const QVariantMap daten = Metadaten(dienst);
    const QVariant spur = Entpacken(daten.value(QStringLiteral("mpris:trackid")));
    if (spur.canConvert<QDBusObjectPath>()) {
        Rufen(dienst, Pfad, Spieler, QStringLiteral("SetPosition"),
              {QVariant::fromValue(spur.value<QDBusObjectPath>()), QVariant::fromValue(qlonglong(ms) * 1000)});
        return;
    }
    const qlonglong jetzt = Eigenschaft(dienst, QStringLiteral("Position")).toLongLong();
    Rufen(dienst, Pfad, Spieler, QStringLiteral("Seek"), {QVariant::fromValue(qlonglong(ms) * 1000 - jetzt)});
}

// Winamp-Balance (0..127 rechts, 128..254 links) auf die beiden Kanäle von Audacious (0..100).
void MprisSpielerfenster::Balance(const QString& dienst, int32_t wert) {
    if (!IstAudacious(dienst)) return;
    const QDBusMessage antwort = AudaciousRufen(QStringLiteral("Volume"));
    if (antwort.type() != QDBusMessage::ReplyMessage || antwort.arguments().size() < 2) return;
    const int v = std::max(antwort.arguments()[0].toInt(), antwort.arguments()[1].toInt());
    const int b = wert > 127 ? wert - 255 : wert;
    const int links = b > 0 ? v * (127 - b) / 127 : v;
    const int rechts = b < 0 ? v * (127 + b) / 127 : v;
    AudaciousRufen(QStringLiteral("SetVolume"), {links, rechts});
}

std::string MprisSpielerfenster::FensterText(int64_t fenster) {
    const QString dienst = Dienst(fenster);
    return dienst.isEmpty() ? std::string() : MprisFensterText(Metadaten(dienst));
}
