// Die Berichtsfenster: Index-Statistik und Exportieren, offscreen, mit Bildschirmfotos zum Ansehen.
#include "UiTestHilfen.h"

#include "app/Tabelle.h"
#include "reports/Export.h"
#include "support/TestOrdner.h"
#include "ui/dialoge/frmExportieren.h"
#include "ui/dialoge/frmIndexVerwaltung.h"
#include "ui/dialoge/frmStatistik.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>

namespace {
DateiInfo& Eintrag(Kartei& k, const std::string& pfad) {
    IndexGrößeÄndern(k, k.DateiAnzahl + 1, true);
    ++k.DateiAnzahl;
    k.DateiPfade[k.DateiAnzahl] = pfad;
    DateiInfo& d = k.DateiDaten[k.DateiAnzahl];
    d.Mp3_ID3v1_Status = 1;
    return d;
}
}  // namespace

class BerichteFensterTest : public QObject {
    Q_OBJECT
private slots:
    void StatistikZeigtVierZeilen();
    void ExportierenPrueftUndSchreibt();
    void IndexVerwaltungAktionJeDatei();
};

void BerichteFensterTest::StatistikZeigtVierZeilen() {
    GuiUmgebung u;
    DateiInfo& d = Eintrag(u.k, "/m/a.mp3");
    d.Datei_Größe = 3145728;
    d.Header_Dauer = 200;
    d.Datei_HinzugefügtAm = "01.11.2001";
    frmStatistik f(nullptr, u.k);
    f.show();
    QCOMPARE(f.windowTitle(), QStringLiteral("Index-Statistik"));
    auto* größen = f.findChild<QLabel*>(QStringLiteral("lblInfosGrößen"));
    QVERIFY(größen);
    QCOMPARE(größen->text(), QStringLiteral("3.145.728 Bytes (2,55 MB), durchschnittlich 3.145.728 Bytes"));
    QVERIFY(f.findChild<QLabel*>(QStringLiteral("lblInfosVerwaltung")));
    Foto(f, "frmStatistik.png");
    QVERIFY(Drücken(f, "cmdOk"));
    QCOMPARE(f.result(), int(QDialog::Accepted));
}

void BerichteFensterTest::ExportierenPrueftUndSchreibt() {
    GuiUmgebung u;
    TestOrdner o;
    Eintrag(u.k, "/m/a.mp3").Mp3_ID3v1_Titel = "Lied";
    u.k.Liste.lstSongs.spalten = {{"Titel", "", 1400, 5}};
    u.k.E.ExportModus = ExportArt::Html;
    u.k.E.ExportDatei = o / "liste.htm";
    frmExportieren f(nullptr, u.k, {1});
    f.show();
    auto* txtDatei = f.findChild<QLineEdit*>(QStringLiteral("txtDatei"));
    auto* fraText = f.findChild<QGroupBox*>(QStringLiteral("fraTextOptionen"));
    QVERIFY(txtDatei && fraText);
    QVERIFY(f.findChild<QRadioButton*>(QStringLiteral("optHtml"))->isChecked());
    QVERIFY(!fraText->isEnabled());
    // Die Art wechseln: Textoptionen an, Endung folgt.
    QTest::mouseClick(f.findChild<QRadioButton*>(QStringLiteral("optText")), Qt::LeftButton);
    QVERIFY(fraText->isEnabled());
    QCOMPARE(txtDatei->text(), QString::fromStdString(o / "liste.csv"));
    Foto(f, "frmExportieren.png");
    u.antworten = {Meldung::Abbrechen};
    f.findChild<QRadioButton*>(QStringLiteral("optTextSemikolon"))->click();
    QVERIFY(Drücken(f, "cmdOk"));
    QCOMPARE(f.result(), int(QDialog::Accepted));
    QCOMPARE(u.meldungen.size(), size_t(1));  // nur die Frage nach dem Anzeigen
    QCOMPARE(QString::fromStdString(DateiLesen(o / "liste.csv")), QStringLiteral("\"Titel\"\r\n\"Lied\"\r\n"));
    QCOMPARE(u.k.E.ExportUntermodus, int16_t(2));
}

void BerichteFensterTest::IndexVerwaltungAktionJeDatei() {
    GuiUmgebung u;
    for (const char* pfad : {"/a/lied.mp3", "/b/Lied.mp3", "/c/LIED.mp3", "/d/anders.mp3"}) Eintrag(u.k, pfad);
    frmIndexVerwaltung f(nullptr, u.k, {1, 2, 3, 4});
    f.show();
    QCOMPARE(f.windowTitle(), QStringLiteral("Indexverwaltung"));
    QVERIFY(!Drücken(f, "cmdSuchen"));  // erst mit einer Methode
    f.findChild<QComboBox*>(QStringLiteral("cboSuchmethode"))->setCurrentIndex(0);
    QVERIFY(Drücken(f, "cmdSuchen"));
    auto* liste = f.findChild<QListWidget*>(QStringLiteral("lstEinträge"));
    QCOMPARE(liste->count(), 2);
    QCOMPARE(liste->item(1)->text(), QStringLiteral("'Lied.mp3' und 'LIED.mp3' haben die gleichen Dateinamen"));
    QCOMPARE(f.findChild<QLabel*>(QStringLiteral("lblGefundenAnzahl"))->text(), QStringLiteral("2 Datei(en) gefunden"));
    // Zeile 0 ist gewählt: die rechte Datei (Eintrag 2) bekommt "Datei löschen".
    auto* cboAktion2 = f.findChild<QComboBox*>(QStringLiteral("cboAktion2"));
    cboAktion2->setCurrentIndex(1);
    emit cboAktion2->activated(1);
    // In Zeile 1 steht dieselbe Datei links und zeigt ihre Aktion.
    liste->setCurrentRow(1);
    QCOMPARE(f.findChild<QComboBox*>(QStringLiteral("cboAktion1"))->currentIndex(), 1);
    QCOMPARE(f.findChild<QLabel*>(QStringLiteral("lblDatei1"))->text(), QStringLiteral("Dateiname - Eintrag 2"));
    Foto(f, "frmIndexVerwaltung.png");
    u.antworten = {Meldung::Nein};
    QVERIFY(Drücken(f, "cmdOk"));
    QCOMPARE(u.meldungen.size(), size_t(1));
    QCOMPARE(f.Stand().GefundenAktionen, (std::vector<int32_t>{0, 0, 1, 0, 0}));
}

int BerichteFensterTestAusführen(int argc, char** argv) {
    BerichteFensterTest t;
    return QTest::qExec(&t, argc, argv);
}

#include "BerichteFensterTest.moc"
