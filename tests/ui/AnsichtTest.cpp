// Was man am Fenster sieht: Titel, Qts Texte auf Deutsch, Lage der Start-Meldungen, Fokus nach
// einem Vorgang, die Ergänzung mit Rücktaste und Entf, der Wechsel des Index und die Form des
// Fensters (Gruppen, kleinste Größe, Suchfeld, Sortierpfeil).
#include "app/Pfade.h"
#include "ui/dialoge/frmIndexOeffnen.h"
#include "ui/dialoge/frmSucheErweitertHinzufuegen.h"
#include "FensterUmgebung.h"

#include <QComboBox>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QScreen>
#include <QTimer>

class AnsichtTest : public QObject {
    Q_OBJECT
private slots:
    void init() { xdg_ = FrischeXdgOrdner(); }
    void TitelGenauWieGesetzt();
    void StartMeldungInDerBildschirmMitte();
    void QtSprichtDeutsch();
    void KeineDoppeltenFilterUndKeinSichtbaresUndZeichen();
    void RuecktasteUndEntfBeendenDieErgaenzung();
    void FokusBleibtNachDemSortieren();
    void AndererIndexZeigtSeineZahlen();
    void FensterBehaeltSeineForm();

private:
    std::unique_ptr<QTemporaryDir> xdg_;
};

namespace {
// Beantwortet jedes echte Meldungsfenster, sobald es erscheint, mit dem Knopf; merkt sich Titel
// und Lage.
struct MeldungsFenster {
    QString titel;
    QRect lage;
    QTimer uhr;
    explicit MeldungsFenster(QMessageBox::StandardButton knopf) {
        uhr.setInterval(10);
        QObject::connect(&uhr, &QTimer::timeout, [this, knopf] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box || !box->isVisible()) return;
            titel = box->windowTitle();
            lage = box->frameGeometry();
            box->button(knopf)->click();
        });
        uhr.start();
    }
};

// Ein Index mit zwei Einträgen, in einem eigenen Ordner.
std::string KleinerIndex(const TestOrdner& ordner) {
    TestUmgebung u;
    u.k.E.StartBildschirm = 0;
    u.k.DateiPfade.ReDim(2);
    u.k.DateiDaten.ReDim(2);
    u.k.DateiTreffer.ReDim(2);
    u.k.DateiPfade[1] = ordner / "x.mp3";
    u.k.DateiPfade[2] = ordner / "y.mp3";
    u.k.DateiAnzahl = 2;
    const std::string pfad = ordner / "klein.kkt";
    if (!DateiSpeichern(u.k, pfad, false)) qFatal("Index nicht geschrieben");
    return pfad;
}
}  // namespace

// Qt hängt keinen Anzeigenamen an; Meldungen tragen den Programmtitel.
void AnsichtTest::TitelGenauWieGesetzt() {
    QCOMPARE(QCoreApplication::applicationName(), QStringLiteral("klangkartei"));
    QCOMPARE(QGuiApplication::applicationDisplayName(), QCoreApplication::applicationName());  // nicht gesetzt
    TestOrdner ordner;
    Fenster w;
    w.MitLiedernStarten(ordner);
    QCOMPARE(w.f->windowTitle(), QStringLiteral("KlangKartei 1.0 - lieder.kkt"));
    w.ui.meldungsSkript = nullptr;
    MeldungsFenster box(QMessageBox::Ok);
    w.k.ui.MeldungZeigen("Hallo", Meldung::Information);
    QCOMPARE(box.titel, QStringLiteral("KlangKartei"));
}

// Die Frage nach dem alten Format kommt, bevor das Hauptfenster zu sehen ist.
void AnsichtTest::StartMeldungInDerBildschirmMitte() {
    TestOrdner ordner;
    const std::string kaputt = ordner / "kaputt.kkt";
    DateiSchreiben(kaputt, "Das ist keine Indexdatei\r\n");
    Fenster w;
    w.k.E.TippsAktueller = 0;
    w.ui.meldungsSkript = nullptr;
    MeldungsFenster box(QMessageBox::No);
    w.Starten({kaputt});
    QVERIFY(box.lage.isValid());
    QCOMPARE(box.titel, QStringLiteral("KlangKartei"));
    const QPoint mitte = QGuiApplication::primaryScreen()->availableGeometry().center();
    QVERIFY2(
        (box.lage.center() - mitte).manhattanLength() <= 4,
        qPrintable(QStringLiteral("Mitte der Meldung %1,%2").arg(box.lage.center().x()).arg(box.lage.center().y())));
}

void AnsichtTest::QtSprichtDeutsch() {
    QLineEdit eingabe;
    std::unique_ptr<QMenu> menü(eingabe.createStandardContextMenu());
    QVERIFY(menü->actions().front()->text().startsWith(QStringLiteral("&Rückgängig")));
    QFileDialog wahl;
    QVERIFY(wahl.testOption(QFileDialog::DontUseNativeDialog) ||
            QCoreApplication::testAttribute(Qt::AA_DontUseNativeDialogs));
    QCOMPARE(wahl.findChild<QLabel*>(QStringLiteral("lookInLabel"))->text(), QStringLiteral("Suchen in:"));
}

void AnsichtTest::KeineDoppeltenFilterUndKeinSichtbaresUndZeichen() {
    QCOMPARE(QtDateiFilter("Indexdateien (*.kkt)|*.kkt|Alle Dateien (*.*)|*.*"),
             QStringLiteral("Indexdateien (*.kkt);;Alle Dateien (*.*)"));
    QCOMPARE(QtDateiFilter("Musik|*.mp3;*.ogg"), QStringLiteral("Musik (*.mp3 *.ogg)"));
    QCOMPARE(QtDateiFilter("Playlisten (*.m3u, *.pls)|*.m3u;*.pls"), QStringLiteral("Playlisten (*.m3u *.pls)"));
    // Ein "&" im Label ist ein Kürzel: das zeigt Qt nur mit einem Partner nicht als Zeichen.
    GuiUmgebung u;
    frmSucheErweitertHinzufügen hinzu(nullptr, u.k);
    frmIndexÖffnen öffnen(nullptr, u.k, u.ui);
    for (QWidget* dialog : std::initializer_list<QWidget*>{&hinzu, &öffnen})
        for (QLabel* l : dialog->findChildren<QLabel*>())
            if (l->textFormat() != Qt::RichText && l->text().contains(QLatin1Char('&')))
                QVERIFY2(l->buddy(), qPrintable(l->text()));
}

// Die Tasten kommen beim Kombifeld an, nicht beim Eingabefeld darin.
void AnsichtTest::RuecktasteUndEntfBeendenDieErgaenzung() {
    TestOrdner ordner;
    Fenster w;
    w.MitLiedernStarten(ordner);
    auto* txtSongname = w.Kind<QComboBox>("txtSongname");
    auto* eingabe = txtSongname->lineEdit();
    w.FeldWählen(1);  // Interpret
    QTest::keyClicks(txtSongname, QStringLiteral("ch"));
    QCOMPARE(eingabe->text(), QStringLiteral("Chor"));
    QCOMPARE(eingabe->selectedText(), QStringLiteral("or"));
    QTest::keyClick(txtSongname, Qt::Key_Backspace);
    QCOMPARE(eingabe->text(), QStringLiteral("Ch"));
    QTest::keyClicks(txtSongname, QStringLiteral("o"));
    QCOMPARE(eingabe->text(), QStringLiteral("Chor"));
    QTest::keyClick(txtSongname, Qt::Key_Delete);
    QCOMPARE(eingabe->text(), QStringLiteral("Cho"));
}

// Sortieren öffnet das Fortschrittsfenster; danach tippt man im Suchfeld weiter.
void AnsichtTest::FokusBleibtNachDemSortieren() {
    TestOrdner ordner;
    Fenster w;
    w.MitLiedernStarten(ordner);
    QVERIFY(Drücken(*w.f, "cmdSucheLöschen"));
    w.f->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(w.f.get()));
    auto* txtSongname = w.Kind<QComboBox>("txtSongname");
    txtSongname->setFocus();
    QTRY_COMPARE(QApplication::focusWidget(), static_cast<QWidget*>(txtSongname));
    QHeaderView* kopf = w.f->lstSongs()->horizontalHeader();
    QCOMPARE(kopf->sortIndicatorSection(), -1);
    const QPoint titelKopf(kopf->sectionViewportPosition(2) + 5, kopf->height() / 2);
    QTest::mouseClick(kopf->viewport(), Qt::LeftButton, {}, titelKopf);
    QVERIFY(w.k.DateiGeändert);  // sortiert
    QCOMPARE(kopf->sortIndicatorSection(), 2);
    QCOMPARE(kopf->sortIndicatorOrder(), Qt::AscendingOrder);
    QTRY_COMPARE(QApplication::focusWidget(), static_cast<QWidget*>(txtSongname));
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("Na"));
    QVERIFY(txtSongname->currentText().startsWith(QStringLiteral("Na")));
    QTest::mouseClick(kopf->viewport(), Qt::LeftButton, {}, titelKopf);
    QCOMPARE(kopf->sortIndicatorSection(), 2);
    QCOMPARE(kopf->sortIndicatorOrder(), Qt::DescendingOrder);
}

void AnsichtTest::AndererIndexZeigtSeineZahlen() {
    TestOrdner ordner, anderer;
    const std::string klein = KleinerIndex(anderer);
    Fenster w;
    w.MitLiedernStarten(ordner);
    QVERIFY(Drücken(*w.f, "cmdSucheLöschen"));
    auto* cboSuche = w.Kind<QComboBox>("cboSuche");
    auto* txtSongname = w.Kind<QComboBox>("txtSongname");
    w.FeldWählen(1);
    QTest::keyClicks(txtSongname, QStringLiteral("ch"));
    QTRY_COMPARE_WITH_TIMEOUT(w.Zeilen(), 2, 2000);
    QCOMPARE(w.Text("lblDateiAnzahl"), QStringLiteral("2 Datei(en) gefunden\n6 Datei(en) im Index"));
    w.skripte[QStringLiteral("frmIndexÖffnen")] = [&](QDialog& d) {
        d.findChild<QLineEdit*>(QStringLiteral("txtIndexdatei"))->setText(QString::fromStdString(klein));
        QVERIFY(Drücken(d, "cmdOk"));
    };
    w.antworten = {Meldung::Nein};  // falls nach dem Speichern gefragt wird
    QTest::mouseClick(w.Kind<QWidget>("lblIndexdatei"), Qt::LeftButton);
    QCOMPARE(w.k.Dateiname, klein);
    QCOMPARE(w.Zeilen(), 0);
    QCOMPARE(w.Text("lblDateiAnzahl"), QStringLiteral("0 Datei(en) gefunden\n2 Datei(en) im Index"));
    QCOMPARE(cboSuche->currentIndex(), 0);
    QCOMPARE(txtSongname->currentText(), QString());
    QTest::qWait(700);  // kein Suchlauf des alten Textes wartet noch
    QCOMPARE(w.Zeilen(), 0);
    QVERIFY(Drücken(*w.f, "cmdSucheLöschen"));
    QCOMPARE(w.Zeilen(), 2);
}

void AnsichtTest::FensterBehaeltSeineForm() {
    TestOrdner ordner;
    Fenster w;
    w.MitLiedernStarten(ordner);
    QVERIFY(Drücken(*w.f, "cmdSucheLöschen"));
    auto* programm = w.Kind<QWidget>("fraProgramm");
    const int programmOben = programm->mapTo(w.f.get(), QPoint()).y();
    const QSize kleinste = w.f->minimumSizeHint();
    // Eine Auswahl mit sehr langem Namen: die Gruppe erscheint, sonst bleibt alles, wie es war.
    w.k.DateiPfade[1] = ordner / (std::string(300, 'x') + ".mp3");
    auto* liste = w.f->lstSongs();
    QTest::mouseClick(liste->viewport(), Qt::LeftButton, {}, ZeilenMitte(liste, 0));
    QTRY_VERIFY(w.Kind<QWidget>("fraNurBeiAusgewählt")->isVisible());
    QVERIFY(w.Text("lblIndexdateiUntertitel1").startsWith(QStringLiteral("xxx")));
    QCOMPARE(programm->mapTo(w.f.get(), QPoint()).y(), programmOben);
    QCOMPARE(w.f->minimumSizeHint(), kleinste);
    // Im kleinsten Fenster hat das Suchfeld noch Platz für seinen längsten eigenen Text.
    w.f->resize(kleinste);
    QTRY_COMPARE(w.f->size(), kleinste);
    auto* txtSongname = w.Kind<QComboBox>("txtSongname");
    const int textBreite = txtSongname->fontMetrics().horizontalAdvance(QStringLiteral("(Mehrere Such-Abfragen)"));
    QVERIFY2(txtSongname->lineEdit()->width() >= textBreite,
             qPrintable(QStringLiteral("%1 < %2").arg(txtSongname->lineEdit()->width()).arg(textBreite)));
}

#include "AnsichtTest.moc"

int AnsichtTestAusführen(int argc, char** argv) {
    AnsichtTest t;
    return QTest::qExec(&t, argc, argv);
}
