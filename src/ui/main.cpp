// klangkartei: das Fensterprogramm.
#include "app/Kartei.h"
#include "platform/KonfigRegistrierung.h"
#include "platform/LinuxDatentraeger.h"
#include "platform/LinuxShell.h"
#include "platform/SystemDienste.h"
#include "platform/Verzeichnisse.h"
#include "ui/GuiOberflaeche.h"
#include "ui/frmMain.h"

#include <QApplication>
#include <QClipboard>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("klangkartei"));

    frmMain* hauptfenster = nullptr;
    GuiOberfläche ui([&]() -> QWidget* { return hauptfenster; });
    KonfigRegistrierung registrierung(KonfigOrdner() + "/klangkartei.conf");
    KeinSpielerfenster spieler;
    LinuxShell shell;
    shell.zwischenablage = [](const std::string& text) {
        QApplication::clipboard()->setText(QString::fromStdString(text));
        return true;
    };
    LinuxDatenträger datenträger;
    SystemUhr uhr;
    SystemZufall zufall;
    Kartei k(Dienste{ui, registrierung, spieler, shell, datenträger, uhr, zufall});
    k.LetzteSpeicherung = uhr.Jetzt();

    frmMain fenster(k);
    hauptfenster = &fenster;
    fenster.show();
    return app.exec();
}
