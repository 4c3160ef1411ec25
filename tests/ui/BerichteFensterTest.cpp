// Die Berichtsfenster: Index-Statistik und Exportieren, offscreen, mit Bildschirmfotos zum Ansehen.
#include "UiTestHilfen.h"

#include "app/Pfade.h"
#include "app/Tabelle.h"
#include "index/Dateitypen.h"
#include "player/Abspielen.h"
#include "reports/Export.h"
#include "support/TestOrdner.h"
#include "ui/dialoge/frmExportieren.h"
#include "ui/dialoge/BerichteZeigen.h"
#include "ui/dialoge/frmIndexVerwaltung.h"
#include "ui/dialoge/frmStatistik.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

#include <sys/stat.h>

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
    void IndexVerwaltungFuehrtAktionenAus();
    void IndexVerwaltungBesitztFortschrittUndFragen();
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

// Suchen, Detailfeld, Abspielen per Doppelklick, Infos, Aktionen geben und mit OK ausführen.
void BerichteFensterTest::IndexVerwaltungFuehrtAktionenAus() {
    GuiUmgebung u;
    TestOrdner o;
    DateitypenVorgabenEinsetzen(u.k.Optionen);
    u.k.E.WinampPfad = o / "audacious";
    DateiSchreiben(u.k.E.WinampPfad, "#!/bin/sh\n");
    ::chmod(u.k.E.WinampPfad.c_str(), 0755);
    u.spieler.fenster = 3;
    DateiSchreiben(o / "a/bleibt.txt", "x");
    for (const char* name : {"a/lied.mp3", "b/lied.mp3", "a/weg.mp3"}) DateiSchreiben(o / name, name);
    Eintrag(u.k, o / "a/lied.mp3").Datei_Größe = 2048;
    Eintrag(u.k, o / "b/lied.mp3");
    Eintrag(u.k, o / "a/weg.mp3");
    Eintrag(u.k, o / "fehlt.mp3");
    frmIndexVerwaltung f(nullptr, u.k, {1, 2, 3, 4});
    std::vector<int32_t> infos;
    f.infosZeigen = [&infos](int32_t eintrag) { infos.push_back(eintrag); };
    f.show();
    auto* methode = f.findChild<QComboBox*>(QStringLiteral("cboSuchmethode"));
    auto* liste = f.findChild<QListWidget*>(QStringLiteral("lstEinträge"));
    auto* gleich = f.findChild<QLabel*>(QStringLiteral("lblGleich"));
    QVERIFY(gleich && f.findChild<QLabel*>(QStringLiteral("lblGleichÜberschrift")));

    // Eine Einzeldatei-Methode: die rechte Seite ist aus.
    methode->setCurrentIndex(5);
    QVERIFY(Drücken(f, "cmdSuchen"));
    QCOMPARE(liste->count(), 1);
    QCOMPARE(liste->item(0)->text(), QStringLiteral("'fehlt.mp3' existiert nicht"));
    auto* cboAktion2 = f.findChild<QComboBox*>(QStringLiteral("cboAktion2"));
    QVERIFY(!f.findChild<QPushButton*>(QStringLiteral("cmdAbspielen2"))->isEnabled());
    QVERIFY(!cboAktion2->isEnabled());
    QCOMPARE(f.findChild<QLabel*>(QStringLiteral("lblGewählt"))->text(), QStringLiteral("1 Dateien gewählt"));
    // Ohne gewählte Zeile gibt es nichts, dem eine Aktion gelten könnte.
    QVERIFY(Drücken(f, "cmdWählenKeine"));
    QCOMPARE(f.findChild<QLabel*>(QStringLiteral("lblGewählt"))->text(), QStringLiteral("0 Dateien gewählt"));
    QVERIFY(!f.findChild<QComboBox*>(QStringLiteral("cboAktion1"))->isEnabled());
    QVERIFY(Drücken(f, "cmdWählenAlle"));
    QVERIFY(f.findChild<QComboBox*>(QStringLiteral("cboAktion1"))->isEnabled());

    // Ein Paar: Gleiches im Detailfeld, Infos der rechten Datei, Doppelklick spielt die linke.
    methode->setCurrentIndex(0);
    QVERIFY(Drücken(f, "cmdSuchen"));
    QCOMPARE(liste->count(), 1);
    QCOMPARE(gleich->text(), QStringLiteral("lied.mp3"));
    QVERIFY(Drücken(f, "cmdInfos2"));
    QCOMPARE(infos, std::vector<int32_t>{2});
    const QRect zeile = liste->visualItemRect(liste->item(0));
    // Qt wertet einen Doppelklick nur nach einem Druck auf dieselbe Zeile aus.
    QTest::mouseClick(liste->viewport(), Qt::LeftButton, {}, zeile.center());
    QTest::mouseDClick(liste->viewport(), Qt::LeftButton, {}, zeile.center());
    const std::string m3u = DateiLesen(PlaylistPfad());
    QVERIFY(m3u.find(o / "a/lied.mp3") != std::string::npos);
    QVERIFY(m3u.find(o / "b/lied.mp3") == std::string::npos);
    QVERIFY(cboAktion2->isEnabled());
    cboAktion2->setCurrentIndex(1);
    emit cboAktion2->activated(1);  // b/lied.mp3 löschen
    Foto(f, "frmIndexVerwaltungDetails.png");

    u.antworten = {Meldung::Ja, Meldung::Nein};  // ausführen; den leeren Ordner b behalten
    QVERIFY(Drücken(f, "cmdOk"));
    QCOMPARE(f.result(), int(QDialog::Accepted));
    QCOMPARE(u.meldungen.size(), size_t(2));
    QVERIFY(u.meldungen[0].text.find(" - 1 Datei(en) löschen und aus dem Index entfernen") != std::string::npos);
    QCOMPARE(u.meldungen[1].text, "Der Ordner '" + o / "b" + "' ist (nun) leer.\n\nMöchten Sie diesen entfernen?");
    QVERIFY(!DoesExist(o / "b/lied.mp3"));
    QVERIFY(DoesExist(o / "a/lied.mp3"));
    QCOMPARE(u.k.DateiAnzahl, 3);
    QCOMPARE(u.k.DateiPfade[2], o / "a/weg.mp3");
}

// Über den Befehl des Hauptfensters geöffnet: solange der Dialog modal offen ist, stehen
// Fortschritt und Meldungen über ihm (auch nach den Infos), danach wieder über dem Besitzer.
void BerichteFensterTest::IndexVerwaltungBesitztFortschrittUndFragen() {
    GuiUmgebung u;
    TestOrdner o;
    DateiSchreiben(o / "a.mp3", std::string(200, 'x'));
    Eintrag(u.k, o / "a.mp3").Mp3_ID3v1_Status = 0;
    u.k.Liste.lstSongs.zeilen.push_back({});
    u.k.Liste.lstSongs.zeilen.back().eintrag = 1;
    bool imDialog = false, beiDerSuche = false, nachInfos = false;
    std::vector<std::string> fenster;
    u.ui.dialogSkript = [&](QDialog& d) {
        fenster.push_back(d.objectName().toStdString());
        if (d.objectName() != QStringLiteral("frmIndexVerwaltung")) return;
        imDialog = u.ui.SichtbarerBesitzer() == &d;
        d.findChild<QComboBox*>(QStringLiteral("cboSuchmethode"))->setCurrentIndex(6);
        Drücken(d, "cmdSuchen");
        beiDerSuche = u.ui.SichtbarerBesitzer() == &d;
        Drücken(d, "cmdInfos1");
        nachInfos = u.ui.SichtbarerBesitzer() == &d;
    };
    QVERIFY(!IndexVerwaltungZeigen(nullptr, u.k, u.ui));
    QCOMPARE(fenster, (std::vector<std::string>{"frmIndexVerwaltung", "frmMp3Tag"}));
    QVERIFY(imDialog && beiDerSuche && nachInfos);
    QVERIFY(!u.ui.vordergrund);
}

int BerichteFensterTestAusführen(int argc, char** argv) {
    BerichteFensterTest t;
    return QTest::qExec(&t, argc, argv);
}

#include "BerichteFensterTest.moc"
