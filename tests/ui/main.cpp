// Die Fenstertests: jede Testklasse nacheinander, mit eigenem XDG-Ordner für Einstellungen und Index.
#include "ui/Anwendung.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

int AnsichtTestAusführen(int argc, char** argv);
int DialogeTestAusführen(int argc, char** argv);
int FensterTestAusführen(int argc, char** argv);
int ListeTestAusführen(int argc, char** argv);
int BerichteFensterTestAusführen(int argc, char** argv);
int OptionenFensterTestAusführen(int argc, char** argv);
int TagEditorFensterTestAusführen(int argc, char** argv);
int AutoDJFensterTestAusführen(int argc, char** argv);
int DateiFensterTestAusführen(int argc, char** argv);
int SpielerFensterTestAusführen(int argc, char** argv);
int UmbenennenFensterTestAusführen(int argc, char** argv);
int DiensteFensterTestAusführen(int argc, char** argv);

int main(int argc, char** argv) {
    QTemporaryDir xdg;
    for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"}) {
        const QString ordner = xdg.path() + QLatin1Char('/') + QString::fromLatin1(name);
        QDir().mkpath(ordner);
        QFile::setPermissions(ordner, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        qputenv(name, ordner.toLocal8Bit());
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    AnwendungEinrichten(app);
    int fehler = DialogeTestAusführen(argc, argv);
    fehler += FensterTestAusführen(argc, argv);
    fehler += ListeTestAusführen(argc, argv);
    fehler += AnsichtTestAusführen(argc, argv);
    fehler += BerichteFensterTestAusführen(argc, argv);
    fehler += OptionenFensterTestAusführen(argc, argv);
    fehler += TagEditorFensterTestAusführen(argc, argv);
    fehler += AutoDJFensterTestAusführen(argc, argv);
    fehler += DateiFensterTestAusführen(argc, argv);
    fehler += SpielerFensterTestAusführen(argc, argv);
    fehler += UmbenennenFensterTestAusführen(argc, argv);
    fehler += DiensteFensterTestAusführen(argc, argv);
    return fehler;
}
