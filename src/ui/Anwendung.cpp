#include "ui/Anwendung.h"

#include "platform/Verzeichnisse.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

bool AnwendungEinrichten(QApplication& app) {
    QApplication::setApplicationName(QStringLiteral("klangkartei"));
    // Kein Anzeigename: Qt hängte ihn an jeden Fenstertitel, der Titel soll aber genau so lauten,
    // wie das Programm ihn setzt.
    // Die Dateiwahl des Desktops spräche die Sprache des Systems; Qts eigene spricht Deutsch.
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication::setDesktopFileName(QStringLiteral("klangkartei"));
    QApplication::setWindowIcon(ProgrammSymbol());
    const QLocale deutsch(QLocale::German, QLocale::Germany);
    QLocale::setDefault(deutsch);
    auto* übersetzung = new QTranslator(&app);
    if (!übersetzung->load(deutsch, QStringLiteral("qtbase"), QStringLiteral("_"),
                           QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        delete übersetzung;
        return false;
    }
    QApplication::installTranslator(übersetzung);
    return true;
}

QIcon ProgrammSymbol() {
    // Das Symbol des Desktops (Thema), sonst die mitgelieferten Bilder neben share/klangkartei.
    QIcon symbol;
    const QString themen = QString::fromStdString(ProgrammDatenOrdner()) + QStringLiteral("/../icons/hicolor");
    for (const int größe : {16, 24, 32, 48, 64, 128, 256}) {
        const QString datei = QDir::cleanPath(themen + QStringLiteral("/%1x%1/apps/klangkartei.png").arg(größe));
        if (QFile::exists(datei)) symbol.addFile(datei, QSize(größe, größe));
    }
    return QIcon::fromTheme(QStringLiteral("klangkartei"), symbol);
}
