// Die Berichtsfenster: Index-Statistik und Exportieren, offscreen, mit Bildschirmfotos zum Ansehen.
#include "UiTestHilfen.h"

#include "app/Tabelle.h"
#include "reports/Export.h"
#include "support/TestOrdner.h"
#include "ui/dialoge/frmExportieren.h"
#include "ui/dialoge/frmStatistik.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
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

// Ein Bildschirmfoto nach KK_BILDER, wenn gesetzt.
void Foto(QWidget& w, const char* name) {
    const QByteArray ordner = qgetenv("KK_BILDER");
    if (!ordner.isEmpty()) w.grab().save(QString::fromUtf8(ordner) + QLatin1Char('/') + QString::fromUtf8(name));
}
}  // namespace

class BerichteFensterTest : public QObject {
    Q_OBJECT
private slots:
    void StatistikZeigtVierZeilen();
    void ExportierenPrueftUndSchreibt();
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

int BerichteFensterTestAusführen(int argc, char** argv) {
    BerichteFensterTest t;
    return QTest::qExec(&t, argc, argv);
}

#include "BerichteFensterTest.moc"
