// klangkartei: das Fensterprogramm.
#include "app/Kartei.h"
#include "app/Start.h"
#include "platform/KonfigRegistrierung.h"
#include "platform/LinuxDatentraeger.h"
#include "platform/LinuxShell.h"
#include "platform/SystemDienste.h"
#include "platform/Verzeichnisse.h"
#include "shell/Fortschritt.h"
#include "ui/Anwendung.h"
#include "ui/GuiOberflaeche.h"
#include "ui/Programmstart.h"
#include "ui/frmMain.h"

#include <QApplication>
#include <QClipboard>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    AnwendungEinrichten(app);

    frmMain* hauptfenster = nullptr;
    GuiOberfläche ui([&]() -> QWidget* { return hauptfenster; });
    OrdnerAnlegen(KonfigOrdner());
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
    ui.fortschrittAbbrechen = [&k] { FortschrittAbbrechenGedrückt(k); };

    std::vector<std::string> argumente;
    for (int i = 1; i < argc; ++i) argumente.emplace_back(QString::fromLocal8Bit(argv[i]).toStdString());
    StartVorbereiten(k, argumente);
    OrdnerAnlegen(DatenOrdner());  // der Standard-Index entsteht beim ersten Laden dort

    frmMain fenster(k, ui, StandardIndexPfad());
    hauptfenster = &fenster;
    FensterStarten(k, fenster, ui);
    return app.exec();
}
