// Hilfe, Info, Infos im Internet, Infobereich, Sitzungsende und die Ereignis-Fenster.
#include "app/Pfade.h"
#include "FensterUmgebung.h"

#include "shell/Hilfe.h"
#include "ui/dialoge/frmInfo.h"
#include "ui/dialoge/frmTerminUeberwachung.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QRadioButton>
#include <QSystemTrayIcon>

class DiensteFensterTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void InfoZeigtVersionUndCopyright();
    void HilfeUndInfoAlsBefehle();
    void InternetSuchtDenInterpretenImBrowser();
    void InfobereichVersteckenZeigenUndBeenden();
    void SitzungsendeFragtNurNachDemIndex();
    void MisslungenesSpeichernLaesstDasProgrammOffen();
    void EreignisFensterSindLeereHuellen();

private:
    std::unique_ptr<QTemporaryDir> xdg_;
};

void DiensteFensterTest::init() { xdg_ = FrischeXdgOrdner(); }
// Der Infobereich schaltet das Ende mit dem letzten Fenster ab; die anderen Tests erwarten es.
void DiensteFensterTest::cleanup() { QApplication::setQuitOnLastWindowClosed(true); }

void DiensteFensterTest::InfoZeigtVersionUndCopyright() {
    frmInfo d(nullptr);
    QCOMPARE(d.windowTitle(), QStringLiteral("Info"));
    QCOMPARE(d.findChild<QLabel*>(QStringLiteral("lblProgrammversion"))->text(), QStringLiteral("Version 1.0.0"));
    QCOMPARE(d.findChild<QLabel*>(QStringLiteral("lblProgrammCopyright"))->text(),
             QString::fromStdString(ProgrammCopyright()));
    QVERIFY(!d.findChild<QLabel*>(QStringLiteral("imgProgramm"))->pixmap().isNull());  // Symbol gefunden
    d.show();
    QVERIFY(Drücken(d, "cmdOk"));
    QVERIFY(!d.isVisible());
}

void DiensteFensterTest::HilfeUndInfoAlsBefehle() {
    Fenster w;
    w.skripte[QStringLiteral("frmWillkommen")] = [](QDialog& d) {
        QVERIFY(Drücken(d, "cmdHilfe"));
        QVERIFY(Drücken(d, "cmdOk"));
    };
    w.Starten();
    // Die Infodatei des Willkommens ist die mitgelieferte Hilfe.
    QVERIFY(!w.shell.geöffnet.empty());
    QCOMPARE(w.shell.geöffnet.back(), HilfeDatei(ProgrammDatenOrdner()));
    QVERIFY(DoesExist(w.shell.geöffnet.back()));
    w.Kind<QAction>("cmdHilfe")->trigger();
    QCOMPARE(w.shell.geöffnet.size(), size_t{2});
    w.dialoge.clear();
    w.Kind<QAction>("cmdInfo")->trigger();
    QCOMPARE(w.dialoge, std::vector<QString>{QStringLiteral("frmInfo")});
    QVERIFY(!w.Gefragt("Diese Funktion ist noch nicht eingebaut."));
}

void DiensteFensterTest::InternetSuchtDenInterpretenImBrowser() {
    TestOrdner ordner;
    Fenster w;
    w.MitLiedernStarten(ordner);
    QVERIFY(Drücken(*w.f, "cmdSucheLöschen"));  // alle Lieder in die Liste
    auto* liste = w.f->lstSongs();
    QTest::mouseClick(liste->viewport(), Qt::LeftButton, {}, ZeilenMitte(liste, 0));
    w.skripte[QStringLiteral("frmInternet")] = [&](QDialog& d) {
        auto* lst = d.findChild<QListWidget*>(QStringLiteral("lstListe"));
        QVERIFY(lst->count() >= 5);
        QCOMPARE(lst->item(0)->text(), QStringLiteral("Wikipedia (deutsch)"));
        auto* suche = d.findChild<QLineEdit*>(QStringLiteral("txtSuche"));
        QCOMPARE(suche->text(), QStringLiteral("Band A"));
        QVERIFY(Drücken(d, "cmdOk"));  // keine Zeile gewählt
        QVERIFY(w.Gefragt("Bitte wählen Sie einen Eintrag."));
        lst->setCurrentRow(0);
        suche->setText(QStringLiteral("Die Ärzte/1"));
        QVERIFY(Drücken(d, "cmdOk"));
        QCOMPARE(d.result(), int(QDialog::Accepted));
    };
    w.Kind<QAction>("mnu_song_InfosInternet")->trigger();
    QCOMPARE(w.dialoge.back(), QStringLiteral("frmInternet"));
    QCOMPARE(w.shell.geöffnet,
             std::vector<std::string>{"https://de.wikipedia.org/w/index.php?search=Die%20%C3%84rzte%2F%31"});
}

void DiensteFensterTest::InfobereichVersteckenZeigenUndBeenden() {
    Fenster w;
    w.k.E.TippsAktueller = 0;
    w.Starten();
    w.dialoge.clear();
    w.f->TrayIconHinzufügen(true);  // wie auf einem Desktop mit Infobereich
    QSystemTrayIcon* tray = w.f->TrayIcon();
    QCOMPARE(tray->toolTip(), QStringLiteral("KlangKartei - Hier klicken für Funktionen"));
    QVERIFY(!tray->icon().isNull());
    w.k.E.BeendenReaktion = 3;
    // Schließen versteckt nur; ein Klick auf das Symbol holt das Fenster zurück.
    QVERIFY(!w.f->close());
    QVERIFY(w.f->isHidden());
    emit tray->activated(QSystemTrayIcon::Trigger);
    QVERIFY(w.f->isVisible());

    auto* menü = w.Kind<QMenu>("mnu_rechtsklick");
    QCOMPARE(tray->contextMenu(), menü);
    auto* zeigen = w.Kind<QAction>("mnu_rechtsklick_programmzeigen");
    emit menü->aboutToShow();
    QVERIFY(zeigen->isChecked());
    zeigen->trigger();
    QVERIFY(w.f->isHidden());
    emit menü->aboutToShow();
    QVERIFY(!zeigen->isChecked());
    zeigen->trigger();
    QVERIFY(w.f->isVisible());

    // Beenden im Menü: an BeendenReaktion vorbei; "Abbrechen" bei der Speicherfrage lässt alles offen.
    w.f->hide();
    w.k.DateiGeändert = true;
    const std::string vorher = DateiLesen(StandardIndexPfad());
    w.antworten = {Meldung::Abbrechen};
    w.Kind<QAction>("mnu_rechtsklick_ende")->trigger();
    QVERIFY(w.f->isVisible());
    QVERIFY(tray->isVisible());
    QVERIFY(!w.f->close());  // ohne Menü gilt wieder das Verstecken
    QVERIFY(w.f->isHidden());
    // "Nein" verwirft die Änderungen und beendet; das Symbol verschwindet.
    w.antworten = {Meldung::Nein};
    w.Kind<QAction>("mnu_rechtsklick_ende")->trigger();
    QVERIFY(!tray->isVisible());
    QCOMPARE(DateiLesen(StandardIndexPfad()), vorher);
    QVERIFY(w.dialoge.empty());  // frmBeenden kam nie
}

void DiensteFensterTest::SitzungsendeFragtNurNachDemIndex() {
    Fenster w;
    w.k.E.TippsAktueller = 0;
    w.Starten();
    w.dialoge.clear();
    w.k.DateiGeändert = true;
    const std::string vorher = DateiLesen(StandardIndexPfad());
    // Ohne Erlaubnis zu fragen: bleiben, ohne Frage.
    QVERIFY(!w.f->SitzungBeenden(false));
    QVERIFY(w.meldungen.empty());
    w.antworten = {Meldung::Abbrechen};
    QVERIFY(!w.f->SitzungBeenden(true));
    QVERIFY(w.Gefragt(SpeicherFrage));
    QVERIFY(w.f->isVisible());
    w.antworten = {Meldung::Nein};
    QVERIFY(w.f->SitzungBeenden(true));
    QVERIFY(w.dialoge.empty());  // kein frmBeenden
    QCOMPARE(DateiLesen(StandardIndexPfad()), vorher);
    QVERIFY(DoesExist(KonfigOrdner() + "/klangkartei.conf"));
    // Das Schließen danach fragt nichts mehr.
    const size_t fragen = w.meldungen.size();
    QVERIFY(w.f->close());
    QCOMPARE(w.meldungen.size(), fragen);
}

void DiensteFensterTest::MisslungenesSpeichernLaesstDasProgrammOffen() {
    TestOrdner ordner;
    Fenster w;
    w.k.E.TippsAktueller = 0;
    w.Starten();
    w.k.E.BeendenReaktion = 2;
    w.k.E.DateiAutomatischSpeichern = 1;
    w.k.Dateiname = ordner / "fehlt/index.kkt";  // Ordner gibt es nicht
    w.k.DateiGeändert = true;
    w.f->hide();
    QVERIFY(!w.f->close());
    QVERIFY(w.f->isVisible());  // wieder gezeigt
    QVERIFY(w.k.DateiGeändert);
    QVERIFY(!w.meldungen.empty());
    QCOMPARE(w.meldungen.back().schalter, Meldung::Ausrufezeichen);
}

void DiensteFensterTest::EreignisFensterSindLeereHuellen() {
    GuiUmgebung u;
    frmTerminÜberwachung d(nullptr, u.ui, "lieder.kkt");
    QCOMPARE(d.windowTitle(), QStringLiteral("Ereignis-Überwachung"));
    QCOMPARE(d.findChild<QLabel*>(QStringLiteral("lblIndexdatei"))->text(), QStringLiteral("lieder.kkt"));
    std::vector<bool> hinzu;
    u.ui.dialogSkript = [&](QDialog& h) {
        QCOMPARE(h.windowTitle(), QStringLiteral("Ereignis hinzufügen"));
        hinzu.push_back(h.findChild<QCheckBox*>(QStringLiteral("chkHinzu"))->isChecked());
        QCOMPARE(h.findChild<QComboBox*>(QStringLiteral("cboKategorie"))->currentIndex(), -1);
        QVERIFY(h.findChild<QLineEdit*>(QStringLiteral("txtBeschreibung"))->text().isEmpty());
        QVERIFY(!h.findChild<QCheckBox*>(QStringLiteral("chkBenachrichtigen"))->isChecked());
        h.findChild<QLineEdit*>(QStringLiteral("txtBeschreibung"))->setText(QStringLiteral("Neues Album"));
        QVERIFY(Drücken(h, "cmdOk"));
    };
    d.show();
    QVERIFY(Drücken(d, "cmdNeu"));
    QVERIFY(Drücken(d, "cmdÄndern"));
    QCOMPARE(hinzu, (std::vector<bool>{true, false}));
    QVERIFY(Drücken(d, "cmdLöschen"));
    QVERIFY(u.k.Optionen.TerminListe.empty());  // nichts übernommen

    frmTerminÜberwachungTermin t(nullptr);
    t.show();
    auto* txtInfos = t.findChild<QLineEdit*>(QStringLiteral("txtInfos"));
    auto* einheit = t.findChild<QComboBox*>(QStringLiteral("cboZeiteinheit"));
    QVERIFY(!txtInfos->isVisible());
    QVERIFY(einheit->findText(QStringLiteral("Minuten")) >= 0 && einheit->findText(QStringLiteral("Stunden")) >= 0);
    t.findChild<QRadioButton*>(QStringLiteral("optErinnern"))->click();
    QVERIFY(txtInfos->isVisible() && einheit->isVisible());
    QVERIFY(t.findChild<QLabel*>(QStringLiteral("lblHinweis1"))->isVisible());
    t.findChild<QRadioButton*>(QStringLiteral("optOK"))->click();
    QVERIFY(!txtInfos->isVisible() && !einheit->isVisible());
}

#include "DiensteFensterTest.moc"

int DiensteFensterTestAusführen(int argc, char** argv) {
    DiensteFensterTest t;
    return QTest::qExec(&t, argc, argv);
}
