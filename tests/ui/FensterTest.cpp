// Das echte Hauptfenster, offscreen: Start, Index öffnen, Schließen mit der Speicherfrage.
#include "app/Pfade.h"
#include "FensterUmgebung.h"

#include "ui/LinkLabel.h"

#include <QAction>
#include <QComboBox>
#include <QSignalSpy>
#include <QLineEdit>

class FensterTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void ErsterStartWillkommenDannHinweis();
    void AbgelehnterIndexSperrtSucheUndListe();
    void SchliessenMitSpeicherfrage();
    void SchliessenOhneFrageBeiAutomatischemSpeichern();
    void AndererIndexUeberDenDateinamen();
    void FarbenUndBesuchteBefehle();
    void JederBefehlEineAktion();

private:
    std::unique_ptr<QTemporaryDir> xdg_;
};

// Jeder Fall mit frischen Einstellungen und frischem Standard-Index.
void FensterTest::init() { xdg_ = FrischeXdgOrdner(); }

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
    QTRY_COMPARE_WITH_TIMEOUT(w.f->windowTitle(), QStringLiteral("KlangKartei 1.0 - Klangkt.kkt"), 6000);
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
    // Lage und Größe kommen in Twips zurück.
    QCOMPARE(neu.k.E.FensterWidth, w.k.E.FensterWidth);
    QCOMPARE(neu.f->width() * 15, w.k.E.FensterWidth);
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

// Befehle in der Farbe der Funktionen (Rot im niedrigsten Byte), nach dem Klick "besucht".
void FensterTest::FarbenUndBesuchteBefehle() {
    Fenster w;
    w.k.E.TippsAktueller = 0;
    w.Starten();
    auto* optionen = w.Kind<QLabel>("cmdOptionen");
    QCOMPARE(optionen->palette().color(QPalette::WindowText), QColor(0, 0, 0xC0));  // 0xC00000
    QTest::mouseClick(optionen, Qt::LeftButton);
    QCOMPARE(w.dialoge.back(), QStringLiteral("frmOptionen"));
    QCOMPARE(optionen->palette().color(QPalette::WindowText), QColor(0x80, 0, 0));  // besucht: 0x000080
    QCOMPARE(w.Kind<QWidget>("fraLinks1")->palette().color(QPalette::Window), QColor(0xEE, 0xEE, 0xEE));
}

// Verweis, Knopf, Kontextmenü und Taste lösen dieselbe Aktion aus; jede trägt den Namen ihres
// Steuerelements.
void FensterTest::JederBefehlEineAktion() {
    TestOrdner ordner;
    Fenster w;
    w.MitLiedernStarten(ordner);
    const QList<LinkLabel*> verweise = w.Kind<QWidget>("fraLinks1")->findChildren<LinkLabel*>();
    QCOMPARE(verweise.size(), 20);
    for (LinkLabel* verweis : verweise) {
        const auto aktionen = w.f->findChildren<QAction*>(verweis->objectName());
        QVERIFY2(aktionen.size() == 1, qPrintable(verweis->objectName()));
        QCOMPARE(aktionen.front()->text(), verweis->text());
    }
    auto* autoDJ = w.Kind<QAction>("cmdAutoDJ");
    QSignalSpy ausgelöst(autoDJ, &QAction::triggered);
    w.skripte[QStringLiteral("frmAutoDJ")] = [](QDialog& d) { QVERIFY(Drücken(d, "cmdAbbrechen")); };
    QTest::mouseClick(w.Kind<QLabel>("cmdAutoDJ"), Qt::LeftButton);
    QCOMPARE(ausgelöst.size(), 1);
    QCOMPARE(w.dialoge.back(), QStringLiteral("frmAutoDJ"));
    autoDJ->setEnabled(false);  // der Verweis folgt der Aktion
    QVERIFY(!w.Kind<QLabel>("cmdAutoDJ")->isEnabled());
    autoDJ->setEnabled(true);

    QSignalSpy löschen(w.Kind<QAction>("cmdSucheLöschen"), &QAction::triggered);
    QVERIFY(Drücken(*w.f, "cmdSucheLöschen"));
    QCOMPARE(löschen.size(), 1);
    QCOMPARE(w.Zeilen(), 6);
    // Entf in der Liste und der Eintrag des Kontextmenüs: dieselbe Aktion wie der Verweis.
    QSignalSpy entfernen(w.Kind<QAction>("cmdDateiEntfernen"), &QAction::triggered);
    auto* liste = w.f->lstSongs();
    QTest::mouseClick(liste->viewport(), Qt::LeftButton, {}, ZeilenMitte(liste, 0));
    liste->setFocus();
    w.antworten = {Meldung::Nein, Meldung::Nein};
    QTest::keyClick(liste, Qt::Key_Delete);
    w.Kind<QAction>("mnu_kontext_indexentfernen")->trigger();
    QCOMPARE(entfernen.size(), 2);
    QCOMPARE(w.k.DateiAnzahl, 6);
}

#include "FensterTest.moc"

int FensterTestAusführen(int argc, char** argv) {
    FensterTest t;
    return QTest::qExec(&t, argc, argv);
}
