// klangkartei: das Fensterprogramm.
#include "app/Kartei.h"
#include "app/Start.h"
#include "platform/LinuxDienste.h"
#include "platform/Verzeichnisse.h"
#include "shell/Fortschritt.h"
#include "shell/StartFehler.h"
#include "ui/Anwendung.h"
#include "ui/GuiOberflaeche.h"
#include "ui/Umrechnung.h"
#include "ui/Programmstart.h"
#include "ui/frmMain.h"

#include <QApplication>
#include <QClipboard>
#include <QMessageBox>
#include <QSessionManager>

#include <exception>
#include <new>

namespace {
int Ausführen(QApplication& app, int argc, char** argv) {
    frmMain* hauptfenster = nullptr;
    GuiOberfläche ui([&]() -> QWidget* { return hauptfenster; });
    OrdnerAnlegen(KonfigOrdner());
    LinuxDienste dienste;
    dienste.shell.zwischenablage = [](const std::string& text) {
        QApplication::clipboard()->setText(QString::fromStdString(text));
        return true;
    };
    Kartei k(dienste.Mit(ui));
    ui.fortschrittAbbrechen = [&k] { FortschrittAbbrechenGedrückt(k); };

    std::vector<std::string> argumente;
    for (int i = 1; i < argc; ++i) argumente.emplace_back(QString::fromLocal8Bit(argv[i]).toStdString());
    StartVorbereiten(k, argumente);
    const std::string standardIndex = StandardIndexBereitstellen();

    frmMain fenster(k, ui, standardIndex);
    hauptfenster = &fenster;
    // Das Ende der Sitzung fragt nicht, was das Schließen tun soll, wohl aber nach dem Index.
    QObject::connect(&app, &QGuiApplication::commitDataRequest, &fenster, [&fenster](QSessionManager& sitzung) {
        if (!fenster.SitzungBeenden(sitzung.allowsInteraction())) sitzung.cancel();
    });
    FensterStarten(k, fenster, ui);
    return app.exec();
}

void StartFehlerZeigen(int32_t nummer) {
    QMessageBox::critical(nullptr, QString::fromUtf8(ProgrammTitel), Q(StartFehlerText(nummer)));
}
}  // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    AnwendungEinrichten(app);
    // Was bis hierher durchschlägt, kann nur aus der Bibliothek kommen: melden statt abstürzen.
    try {
        return Ausführen(app, argc, argv);
    } catch (const std::bad_alloc&) {
        StartFehlerZeigen(StartFehler::KeinSpeicher);
    } catch (const std::exception&) {
        StartFehlerZeigen(StartFehler::Allgemein);
    }
    return 1;
}
