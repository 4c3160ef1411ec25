// Das echte Hauptfenster, offscreen: Start, Index öffnen, Schließen mit der Speicherfrage.
#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/Start.h"
#include "platform/KonfigRegistrierung.h"
#include "platform/SystemDienste.h"
#include "platform/Verzeichnisse.h"
#include "search/Ergebnisliste.h"
#include "settings/EinstellungenSpeicher.h"
#include "shell/Fortschritt.h"
#include "support/TestOrdner.h"
#include "ui/Programmstart.h"
#include "ui/SongListe.h"
#include "ui/frmMain.h"
#include "UiTestHilfen.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTimer>

#include <functional>
#include <map>

namespace {
// Alles wie im Programm, nur Meldungen und Dialoge per Skript und die Shell als Attrappe.
struct Fenster {
    QWidget* besitzer = nullptr;
    GuiOberfläche ui{[this] { return besitzer; }};
    KonfigRegistrierung registrierung{KonfigOrdner() + "/klangkartei.conf"};
    KeinSpielerfenster spieler;
    TestShell shell;
    TestDatenträger datenträger;
    SystemUhr uhr;
    TestZufall zufall;
    Kartei k{Dienste{ui, registrierung, spieler, shell, datenträger, uhr, zufall}};
    std::unique_ptr<frmMain> f;

    std::vector<AufgezeichneteMeldung> meldungen;
    std::deque<int> antworten;
    std::vector<QString> dialoge;                              // in der Reihenfolge des Erscheinens
    std::map<QString, std::function<void(QDialog&)>> skripte;  // je Dialog; sonst schließen

    Fenster() {
        ui.fortschrittAbbrechen = [this] { FortschrittAbbrechenGedrückt(k); };
        ui.meldungsSkript = [this](const std::string& text, int schalter) {
            meldungen.push_back({text, schalter});
            if (schalter == Meldung::Ausrufezeichen || schalter == Meldung::Information) return Meldung::Ok;
            if (antworten.empty()) {
                qWarning("Ungeplante Frage: %s", text.c_str());
                return Meldung::Abbrechen;
            }
            const int a = antworten.front();
            antworten.pop_front();
            return a;
        };
        ui.dialogSkript = [this](QDialog& d) {
            dialoge.push_back(d.objectName());
            auto it = skripte.find(d.objectName());
            if (it != skripte.end()) it->second(d);
        };
    }
    void Starten(const std::vector<std::string>& argumente = {}) {
        StartVorbereiten(k, argumente);
        OrdnerAnlegen(DatenOrdner());
        f = std::make_unique<frmMain>(k, ui, StandardIndexPfad());
        besitzer = f.get();
        FensterStarten(k, *f, ui);
    }
    template <typename T> T* Kind(const char* name) const { return f->findChild<T*>(QString::fromUtf8(name)); }
    QString Text(const char* label) const { return Kind<QLabel>(label)->text(); }
    int Zeilen() const { return f->lstSongs()->model()->rowCount(); }
    bool Gefragt(const std::string& anfang) const {
        for (const auto& m : meldungen)
            if (m.text.rfind(anfang, 0) == 0) return true;
        return false;
    }
};

const char* SpeicherFrage = "Die Indexdatei wurde geändert.";
}  // namespace

class FensterTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void ErsterStartWillkommenDannHinweis();
    void AbgelehnterIndexSperrtSucheUndListe();
    void SchliessenMitSpeicherfrage();
    void SchliessenOhneFrageBeiAutomatischemSpeichern();
    void AndererIndexUeberDenDateinamen();

private:
    std::unique_ptr<QTemporaryDir> xdg_;
};

// Jeder Fall mit frischen Einstellungen und frischem Standard-Index.
void FensterTest::init() {
    xdg_ = std::make_unique<QTemporaryDir>();
    for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"}) {
        const QString ordner = xdg_->path() + QLatin1Char('/') + QString::fromLatin1(name);
        QDir().mkpath(ordner);
        qputenv(name, ordner.toLocal8Bit());
    }
}

void FensterTest::ErsterStartWillkommenDannHinweis() {
    Fenster w;
    w.skripte[QStringLiteral("frmWillkommen")] = [](QDialog& d) { QVERIFY(Drücken(d, "cmdOk")); };
    w.skripte[QStringLiteral("frmHinweise")] = [](QDialog& d) { QVERIFY(Drücken(d, "cmdOk")); };
    w.Starten();
    QCOMPARE(w.dialoge, (std::vector<QString>{QStringLiteral("frmWillkommen"), QStringLiteral("frmHinweise")}));
    // Der leere Standard-Index ist angelegt und geladen.
    QVERIFY(DoesExist(StandardIndexPfad()));
    QCOMPARE(w.Kind<QLabel>("lblIndexdatei")->text(), QStringLiteral("Klangkt.kkt"));
    QCOMPARE(w.Zeilen(), 0);
    QCOMPARE(w.Text("lblIndexdateiUntertitel1"),
             QStringLiteral("Fügen Sie Dateien zum Index hinzu, um dieses Programm zu nutzen."));
    QVERIFY(!w.Kind<QWidget>("fraNurBeiAusgewählt")->isVisible());
    QVERIFY(w.Kind<QWidget>("fraLinks2")->isVisible());
    QCOMPARE(w.Kind<QComboBox>("cboSuche")->currentIndex(), 0);
    QCOMPARE(w.Kind<QComboBox>("cboSuche")->count(), 22);
    QVERIFY(w.Kind<QComboBox>("txtSongname")->hasFocus() || !QApplication::focusWidget());
    // Begrüßung im Titel nach 500 ms, Zeichen für Zeichen.
    QTRY_VERIFY_WITH_TIMEOUT(w.f->windowTitle().startsWith(QStringLiteral("Willkommen!")), 3000);
    QTRY_COMPARE_WITH_TIMEOUT(w.f->windowTitle(), QStringLiteral("Klangkartei 1.0 - Klangkt.kkt"), 6000);
    // Der Hinweis ist weitergezählt, Start steht auf der Version: beim nächsten Mal kein Willkommen.
    QCOMPARE(w.k.E.TippsAktueller, int16_t{2});
    QCOMPARE(w.k.E.Start, VersionsStart());
}

void FensterTest::AbgelehnterIndexSperrtSucheUndListe() {
    TestOrdner ordner;
    const std::string kaputt = ordner / "kaputt.kkt";
    DateiSchreiben(kaputt, "Das ist keine Indexdatei\r\n");
    Fenster w;
    w.k.E.TippsAktueller = 0;
    w.antworten = {Meldung::Nein};  // "älteres Dateiformat ... laden?" – nein
    w.Starten({kaputt});
    QVERIFY(w.Gefragt("Die Indexdatei '" + kaputt + "' liegt in einem älteren Dateiformat vor"));
    QCOMPARE(w.Kind<QLabel>("lblIndexdatei")->text(), QStringLiteral("(keine Datei geladen)"));
    for (const char* name : {"txtSongname", "cboSuche", "lstSongs", "cmdSucheLöschen", "cmdSucheMehr"})
        QVERIFY2(!w.Kind<QWidget>(name)->isEnabled(), name);
    QVERIFY(!w.Kind<QWidget>("fraLinks2")->isVisible());
    QCOMPARE(w.k.Dateiname, kaputt);  // für den nächsten Start gemerkt
}

void FensterTest::SchliessenMitSpeicherfrage() {
    Fenster w;
    w.k.E.TippsAktueller = 0;
    w.Starten();
    w.dialoge.clear();
    w.k.DateiGeändert = true;
    const std::string vorher = DateiLesen(StandardIndexPfad());
    // frmBeenden fragt zuerst; "Abbrechen" dort lässt das Fenster offen, ohne Speicherfrage.
    w.skripte[QStringLiteral("frmBeenden")] = [](QDialog& d) { QVERIFY(Drücken(d, "cmdAbbrechen")); };
    QVERIFY(!w.f->close());
    QVERIFY(w.f->isVisible());
    QCOMPARE(w.dialoge.size(), size_t{1});
    QVERIFY(!w.Gefragt(SpeicherFrage));
    // Beenden, dann "Abbrechen" bei der Speicherfrage: bleibt offen.
    w.skripte[QStringLiteral("frmBeenden")] = [](QDialog& d) { QVERIFY(Drücken(d, "cmdBeenden")); };
    w.antworten = {Meldung::Abbrechen};
    QVERIFY(!w.f->close());
    QVERIFY(w.f->isVisible());
    QVERIFY(w.Gefragt(SpeicherFrage));
    QCOMPARE(w.meldungen.back().schalter, Meldung::JaNeinAbbrechen);
    // "Nein": endet ohne zu speichern; die Einstellungen sind gespeichert.
    w.antworten = {Meldung::Nein};
    QVERIFY(w.f->close());
    QCOMPARE(DateiLesen(StandardIndexPfad()), vorher);
    QVERIFY(w.k.DateiGeändert);
    QVERIFY(DoesExist(KonfigOrdner() + "/klangkartei.conf"));
    QVERIFY(w.k.E.FensterWidth > 0);
}

void FensterTest::SchliessenOhneFrageBeiAutomatischemSpeichern() {
    Fenster w;
    w.k.E.TippsAktueller = 0;
    w.Starten();
    w.k.E.DateiAutomatischSpeichern = 1;
    w.k.E.BeendenReaktion = 2;  // ohne frmBeenden
    w.k.DateiGeändert = true;
    w.meldungen.clear();
    w.dialoge.clear();
    QVERIFY(w.f->close());
    QVERIFY(w.meldungen.empty());
    QVERIFY(w.dialoge.empty());
    QVERIFY(!w.k.DateiGeändert);  // gespeichert
    // Die Wahl "Immer beenden" bleibt gespeichert.
    Fenster neu;
    neu.k.E.TippsAktueller = 0;
    neu.Starten();
    QCOMPARE(neu.k.E.BeendenReaktion, int16_t{2});
    QCOMPARE(neu.k.E.DateiAutomatischSpeichern, int16_t{1});
}

void FensterTest::AndererIndexUeberDenDateinamen() {
    TestOrdner ordner;
    const std::string anderer = ordner / "zwei.kkt";
    Fenster w;
    w.k.E.TippsAktueller = 0;
    w.Starten();
    w.k.DateiGeändert = true;
    // Den neuen Namen eintippen; Speichern gilt dann nicht mehr der geladenen Datei.
    w.skripte[QStringLiteral("frmIndexÖffnen")] = [&](QDialog& d) {
        auto* text = d.findChild<QLineEdit*>(QStringLiteral("txtIndexdatei"));
        QCOMPARE(text->text(), QString::fromStdString(StandardIndexPfad()));
        text->setText(QString::fromStdString(anderer));
        QVERIFY(!d.findChild<QAbstractButton*>(QStringLiteral("cmdSpeichern"))->isEnabled());
        QVERIFY(Drücken(d, "cmdOk"));
    };
    w.antworten = {Meldung::Abbrechen};  // Speicherfrage: bleiben
    QTest::mouseClick(w.Kind<QWidget>("lblIndexdatei"), Qt::LeftButton);
    QCOMPARE(w.k.Dateiname, StandardIndexPfad());
    w.antworten = {Meldung::Ja};  // speichern, dann wechseln
    QTest::mouseClick(w.Kind<QWidget>("lblIndexdatei"), Qt::LeftButton);
    QCOMPARE(w.k.Dateiname, anderer);
    QVERIFY(DoesExist(anderer));  // neu angelegt
    QCOMPARE(w.Kind<QLabel>("lblIndexdatei")->text(), QStringLiteral("zwei.kkt"));
    // Der alte Index wurde vor dem Wechsel gespeichert (neu angelegt war er noch kk100).
    QVERIFY(DateiLesen(StandardIndexPfad()).rfind("#TAG:kk102\r\n", 0) == 0);
    QTRY_VERIFY_WITH_TIMEOUT(w.f->windowTitle().startsWith(QStringLiteral("Die Indexdatei wurde geladen")), 3000);
}

#include "FensterTest.moc"

int FensterTestAusführen(int argc, char** argv) {
    FensterTest t;
    return QTest::qExec(&t, argc, argv);
}
