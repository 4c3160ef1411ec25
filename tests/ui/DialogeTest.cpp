// Die kleinen Fenster: Fortschritt, Datei nicht verfügbar, Beenden, Hinweise.
#include "app/Pfade.h"
#include "shell/Fortschritt.h"
#include "support/TestOrdner.h"
#include "ui/dialoge/frmBeenden.h"
#include "ui/dialoge/frmHinweise.h"
#include "ui/dialoge/frmWillkommen.h"
#include "UiTestHilfen.h"

#include <QCheckBox>
#include <QLabel>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>

class DialogeTest : public QObject {
    Q_OBJECT
private slots:
    void FortschrittsfensterZeigtBalkenUndBrichtAb();
    void DateiNichtVerfuegbarSchliesstSichSelbst();
    void DateiNichtVerfuegbarKnoepfe();
    void BeendenMerktSichDieWahl();
    void HinweiseBlaetternUndAbschalten();
};

void DialogeTest::FortschrittsfensterZeigtBalkenUndBrichtAb() {
    GuiUmgebung u;
    QMainWindow besitzer;
    besitzer.setCentralWidget(new QWidget);
    besitzer.show();
    u.besitzer = &besitzer;
    bool gesperrt = false;
    u.ui.besitzerSperren = [&](bool an) { gesperrt = an; };
    u.ui.fortschrittAbbrechen = [&] { FortschrittAbbrechenGedrückt(u.k); };

    QVERIFY(FortschrittZeigenStarten(u.k, 200, true, true, true, "Sortiere Liste"));
    auto* fenster = besitzer.findChild<QDialog*>(QStringLiteral("frmFortschritt"));
    QVERIFY(fenster);
    QVERIFY(fenster->isVisible());
    QVERIFY(!fenster->isModal());
    QVERIFY(gesperrt);
    QCOMPARE(fenster->windowTitle(), QStringLiteral("KlangKartei"));
    QCOMPARE(fenster->findChild<QLabel*>(QStringLiteral("lblVorgang"))->text(), QStringLiteral("Sortiere Liste"));
    QVERIFY(FortschrittZeigen(u.k, 100, "/musik/a.mp3"));
    auto* balken = fenster->findChild<QProgressBar*>(QStringLiteral("balken"));
    QCOMPARE(balken->maximum(), 4500);
    QCOMPARE(balken->value(), 2250);
    QCOMPARE(fenster->findChild<QLabel*>(QStringLiteral("lblProzess"))->text(), QStringLiteral("/musik/a.mp3"));

    // Abbrechen setzt nur den Merker; die Schleife hört beim nächsten Melden auf.
    QVERIFY(Drücken(*fenster, "cmdAbbrechen"));
    QVERIFY(fenster->isVisible());
    QVERIFY(!FortschrittZeigen(u.k, 101, "b"));
    QVERIFY(!fenster->isVisible());
    QVERIFY(!gesperrt);

    // Ohne Abbrechen-Knopf und ohne Balken.
    QVERIFY(FortschrittZeigenStarten(u.k, 0, false, false, false, "Durchsuche Ordner"));
    QVERIFY(fenster->isVisible());
    QVERIFY(!fenster->findChild<QPushButton*>(QStringLiteral("cmdAbbrechen"))->isVisible());
    QVERIFY(!balken->isVisible());
    FortschrittZeigenEnde(u.k);
    QVERIFY(!fenster->isVisible());
    QVERIFY(!gesperrt);
}

void DialogeTest::DateiNichtVerfuegbarSchliesstSichSelbst() {
    GuiUmgebung u;
    TestOrdner ordner;
    const std::string pfad = ordner / "cd/lied.mp3";
    bool gesehen = false;
    u.ui.dialogSkript = [&](QDialog& d) {
        gesehen = d.objectName() == QStringLiteral("frmDateiNichtVerfügbar") &&
                  d.findChild<QLabel*>(QStringLiteral("lblText"))->text().contains(QString::fromStdString(pfad));
        DateiSchreiben(pfad, "x");  // der Datenträger kommt
        QTRY_VERIFY_WITH_TIMEOUT(!d.isVisible(), 5000);
    };
    QCOMPARE(u.ui.DateiNichtVerfügbar(pfad, "Die Datei '" + pfad + "' ist zurzeit nicht verfügbar.",
                                      [&] { return DoesExist(pfad); }),
             NichtVerfügbarAntwort::Weiter);
    QVERIFY(gesehen);
}

void DialogeTest::DateiNichtVerfuegbarKnoepfe() {
    GuiUmgebung u;
    const std::pair<const char*, NichtVerfügbarAntwort> fälle[] = {
        {"cmdÜberspringen", NichtVerfügbarAntwort::Überspringen},
        {"cmdÜberspringenAlle", NichtVerfügbarAntwort::AlleÜberspringen},
        {"cmdAbbrechen", NichtVerfügbarAntwort::Abbrechen}};
    for (const auto& [knopf, antwort] : fälle) {
        u.ui.dialogSkript = [knopf = knopf](QDialog& d) { QVERIFY(Drücken(d, knopf)); };
        QCOMPARE(u.ui.DateiNichtVerfügbar("/gibt/es/nicht.mp3", "x", [] { return false; }), antwort);
    }
    u.ui.dialogSkript = [](QDialog&) {};  // einfach geschlossen: Vorgang abbrechen
    QCOMPARE(u.ui.DateiNichtVerfügbar("/gibt/es/nicht.mp3", "x", nullptr), NichtVerfügbarAntwort::Abbrechen);
}

void DialogeTest::BeendenMerktSichDieWahl() {
    frmBeenden d(nullptr, false);
    QVERIFY(!d.findChild<QPushButton*>(QStringLiteral("cmdTray"))->isEnabled());
    d.show();
    d.findChild<QCheckBox*>(QStringLiteral("chkImmer"))->setChecked(true);
    QVERIFY(Drücken(d, "cmdMinimieren"));
    QCOMPARE(d.BeendenAuswahl, int16_t{1});
    QVERIFY(d.Immer());
    QVERIFY(!d.isVisible());
}

void DialogeTest::HinweiseBlaetternUndAbschalten() {
    GuiUmgebung u;
    u.k.E.TippsAktueller = 22;
    frmHinweise d(nullptr, u.k, 22);
    d.show();
    auto* text = d.findChild<QPlainTextEdit*>(QStringLiteral("txtTipp"));
    QVERIFY(text->toPlainText().startsWith(QStringLiteral("Ist Ihr Computer an ein Netzwerk angeschlossen?")));
    QVERIFY(Drücken(d, "cmdVor"));
    QCOMPARE(d.Tipp(), 1);
    QCOMPARE(u.k.E.TippsAktueller, int16_t{1});
    QVERIFY(Drücken(d, "cmdZurück"));
    QCOMPARE(d.Tipp(), 22);
    d.findChild<QCheckBox*>(QStringLiteral("chkWiederZeigen"))->setChecked(false);
    QVERIFY(Drücken(d, "cmdOk"));
    QCOMPARE(u.k.E.TippsAktueller, int16_t{0});
    QVERIFY(u.MeldungGezeigt("Wenn Sie dieses Fenster wieder sehen möchten, können Sie es in den 'Optionen' "
                             "wieder aktivieren."));
    QVERIFY(!d.isVisible());
}

#include "DialogeTest.moc"

int DialogeTestAusführen(int argc, char** argv) {
    DialogeTest t;
    return QTest::qExec(&t, argc, argv);
}
