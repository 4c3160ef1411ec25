#include "ui/Anwendung.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

bool AnwendungEinrichten(QApplication& app) {
    QApplication::setApplicationName(QStringLiteral("klangkartei"));
    // Kein Anzeigename: Qt hängte ihn an jeden Fenstertitel, der Titel soll aber genau so lauten,
    // wie das Programm ihn setzt.
    // Die Dateiwahl des Desktops spräche die Sprache des Systems; Qts eigene spricht Deutsch.
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
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
