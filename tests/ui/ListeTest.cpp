// Die Ergebnisliste im echten Hauptfenster: tippen, sortieren, wählen, entfernen, Feldsuche,
// erweiterte Suche, Kontextmenü, Spalten, Hinzufügen und Ablegen.
#include "app/Pfade.h"
#include "ui/Umrechnung.h"
#include "support/MpegDaten.h"
#include "FensterUmgebung.h"

#include <QComboBox>
#include <QDropEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QTimer>
#include <QUrl>

class ListeTest : public QObject {
    Q_OBJECT
private slots:
    void init() { xdg_ = FrischeXdgOrdner(); }
    void TippenSortierenWaehlenEntfernen();
    void FeldsucheMitVorschlaegenUndErgaenzung();
    void KontextmenueUndAuswahlhelfer();
    void OrdnerHinzufuegenAblegenZiehen();
    void SpaltenAusDenIndexOptionen();
    void PfadOhneUtf8();

private:
    std::unique_ptr<QTemporaryDir> xdg_;
};

void ListeTest::TippenSortierenWaehlenEntfernen() {
    TestOrdner ordner;
    Fenster w;
    w.MitLiedernStarten(ordner);
    QCOMPARE(w.Zeilen(), 0);  // nach dem Start wird noch nicht gesucht
    auto* eingabe = w.Kind<QComboBox>("txtSongname")->lineEdit();
    auto* tmrListe = w.Kind<QTimer>("tmrListe");
    auto* liste = w.f->lstSongs();

    // Löschen der Suche zeigt alles.
    QVERIFY(Drücken(*w.f, "cmdSucheLöschen"));
    QCOMPARE(w.Zeilen(), 6);
    QCOMPARE(w.Text("lblDateiAnzahl"), QStringLiteral("6 Datei(en) gefunden\n6 Datei(en) im Index"));

    // Tippen: gesucht wird 600 ms nach der ersten Taste; weitere Tasten spannen nicht neu.
    QTest::keyClick(eingabe, Qt::Key_N);
    QVERIFY(tmrListe->isActive());
    QTest::qWait(250);
    QTest::keyClicks(eingabe, QStringLiteral("acht"));
    QVERIFY(tmrListe->isActive());
    QVERIFY(tmrListe->remainingTime() <= 400);
    QCOMPARE(w.Zeilen(), 6);
    QTRY_COMPARE_WITH_TIMEOUT(w.Zeilen(), 1, 2000);
    QCOMPARE(Spalte(liste, 2), QStringList{QStringLiteral("Nacht")});
    QCOMPARE(w.Text("lblDateiAnzahl"), QStringLiteral("1 Datei(en) gefunden\n6 Datei(en) im Index"));
    // Rücktaste bis leer: leerer Text sucht sofort.
    for (int i = 0; i < 5; ++i) QTest::keyClick(eingabe, Qt::Key_Backspace);
    QCOMPARE(eingabe->text(), QString());
    QCOMPARE(w.Zeilen(), 6);

    // Sortieren nach "Titel": einmal auf-, dann absteigend (Kopfklick, Sortieren im Kern).
    QCOMPARE(liste->model()->headerData(2, Qt::Horizontal).toString(), QStringLiteral("Titel"));
    QHeaderView* kopf = liste->horizontalHeader();
    const QPoint titelKopf(kopf->sectionViewportPosition(2) + 5, kopf->height() / 2);
    QTest::mouseClick(kopf->viewport(), Qt::LeftButton, {}, titelKopf);
    const QStringList auf = {QStringLiteral("Abend"),  QStringLiteral("Ein Tag"), QStringLiteral("Ein Tag am Meer"),
                             QStringLiteral("Morgen"), QStringLiteral("Nacht"),   QStringLiteral("Tag ein")};
    QCOMPARE(Spalte(liste, 2), auf);
    QVERIFY(w.k.DateiGeändert);
    QTRY_VERIFY_WITH_TIMEOUT(w.f->windowTitle().startsWith(QStringLiteral("Die Liste wurde sortiert")), 3000);
    QTest::mouseClick(kopf->viewport(), Qt::LeftButton, {}, titelKopf);
    QStringList ab = auf;
    std::reverse(ab.begin(), ab.end());
    QCOMPARE(Spalte(liste, 2), ab);

    // Eine Zeile: Name und Ordner; mit Umschalt drei Zeilen: ihre Zahl, der Ordner als Verweis.
    QTest::mouseClick(liste->viewport(), Qt::LeftButton, {}, ZeilenMitte(liste, 0));
    QTRY_COMPARE(w.Text("lblIndexdateiUntertitel1"), QStringLiteral("03 Tag ein.mp3"));
    QCOMPARE(w.Text("lblIndexDateiUntertitel2"), QString::fromStdString(ordner.Pfad()));
    QVERIFY(w.Kind<QWidget>("fraNurBeiAusgewählt")->isVisible());
    QTest::mouseClick(liste->viewport(), Qt::LeftButton, Qt::ShiftModifier, ZeilenMitte(liste, 2));
    QTRY_COMPARE(w.Text("lblIndexdateiUntertitel1"), QStringLiteral("Es wurden 3 Dateien gewählt."));
    QCOMPARE(w.k.Suche.AusgewähltAnzahl, 3);

    // Entf fragt; "Nein" lässt alles, "Ja" entfernt die drei und sucht neu.
    liste->setFocus();
    w.antworten = {Meldung::Nein};
    QTest::keyClick(liste, Qt::Key_Delete);
    QVERIFY(w.Gefragt("Möchten Sie 3 Datei(en) aus dem Index entfernen?"));
    QCOMPARE(w.k.DateiAnzahl, 6);
    w.antworten = {Meldung::Ja};
    QTest::keyClick(liste, Qt::Key_Delete);
    QCOMPARE(w.k.DateiAnzahl, 3);
    QCOMPARE(w.Zeilen(), 3);
    QCOMPARE(Spalte(liste, 2),
             (QStringList{QStringLiteral("Ein Tag am Meer"), QStringLiteral("Ein Tag"), QStringLiteral("Abend")}));
    QCOMPARE(w.Text("lblIndexdateiUntertitel1"), QStringLiteral("Markieren Sie eine Datei, um ihre Beschreibung "
                                                                "anzuzeigen oder weitere Funktionen zu aktivieren."));
    QVERIFY(!w.Kind<QWidget>("fraNurBeiAusgewählt")->isVisible());
    // Entf und Eingabe ohne Auswahl tun nichts.
    const size_t fragen = w.meldungen.size();
    QTest::keyClick(liste, Qt::Key_Delete);
    QTest::keyClick(liste, Qt::Key_Return);
    QCOMPARE(w.meldungen.size(), fragen);
    // Strg+A wählt alle, Eingabe mit Auswahl spielt ab: dieser Index kennt keine Dateitypen,
    // also wird je Datei gefragt.
    QTest::keyClick(liste, Qt::Key_A, Qt::ControlModifier);
    QTRY_COMPARE(w.Text("lblIndexdateiUntertitel1"), QStringLiteral("Es wurden 3 Dateien gewählt."));
    QVERIFY(w.f->ShiftGedrückt());
    w.antworten = {Meldung::Nein, Meldung::Nein, Meldung::Nein};
    QTest::keyClick(liste, Qt::Key_Return);
    QVERIFY(w.Gefragt("Das Dateiformat der Datei '"));
    QVERIFY(w.antworten.empty());
}

void ListeTest::FeldsucheMitVorschlaegenUndErgaenzung() {
    TestOrdner ordner;
    Fenster w;
    w.MitLiedernStarten(ordner);
    auto* cboSuche = w.Kind<QComboBox>("cboSuche");
    auto* txtSongname = w.Kind<QComboBox>("txtSongname");
    auto* eingabe = txtSongname->lineEdit();
    // Feld "Interpret": die Aufklappliste hält die Werte des Index, in seiner Reihenfolge.
    w.FeldWählen(1);
    QCOMPARE(txtSongname->count(), 4);
    QCOMPARE(txtSongname->itemText(0), QStringLiteral("Band A"));
    QCOMPARE(txtSongname->itemText(2), QStringLiteral("Chor"));
    // Ein leerer Text in einem Feld: alle mit einem Wert darin.
    QCOMPARE(w.Zeilen(), 6);
    // Ergänzen: getippt bleibt, der Rest ist markiert und wird von der nächsten Taste ersetzt.
    QTest::keyClicks(eingabe, QStringLiteral("ch"));
    QCOMPARE(eingabe->text(), QStringLiteral("Chor"));
    QCOMPARE(eingabe->selectedText(), QStringLiteral("or"));
    QTRY_COMPARE_WITH_TIMEOUT(w.Zeilen(), 2, 2000);
    // Rücktaste löscht die Markierung und wird nicht wieder ergänzt.
    QTest::keyClick(eingabe, Qt::Key_Backspace);
    QCOMPARE(eingabe->text(), QStringLiteral("Ch"));
    QTRY_VERIFY_WITH_TIMEOUT(!w.Kind<QTimer>("tmrListe")->isActive(), 2000);
    // Erweiterte Suche: eine zweite Zeile sperrt Feld und Text.
    w.skripte[QStringLiteral("frmSucheErweitert")] = [&](QDialog& d) {
        auto* zeilen = d.findChild<QListWidget*>(QStringLiteral("lstSucheAuflistung"));
        QTRY_COMPARE(zeilen->count(), 1);
        w.skripte[QStringLiteral("frmSucheErweitertHinzufügen")] = [](QDialog& h) {
            auto* felder = h.findChild<QListWidget*>(QStringLiteral("lstSucheArt"));
            felder->setCurrentRow(3);  // Titel
            h.findChild<QLineEdit*>(QStringLiteral("txtSucheBegriff"))->setText(QStringLiteral("Abend"));
            h.findChild<QComboBox*>(QStringLiteral("cboSucheMussDarfNicht"))->setCurrentIndex(1);
            QVERIFY(Drücken(h, "cmdOk"));
        };
        QVERIFY(Drücken(d, "cmdSucheNeu"));
        QCOMPARE(zeilen->count(), 2);
        QCOMPARE(zeilen->item(1)->text(), QStringLiteral("Suche nach 'Abend' im Feld 'Titel'"));
        QVERIFY(!d.findChild<QAbstractButton*>(QStringLiteral("cmdAbbrechen"))->isEnabled());
        QVERIFY(Drücken(d, "cmdOk"));
    };
    QVERIFY(Drücken(*w.f, "cmdSucheMehr"));
    QVERIFY(!cboSuche->isEnabled());
    QVERIFY(!txtSongname->isEnabled());
    QCOMPARE(eingabe->text(), QStringLiteral("(Mehrere Such-Abfragen)"));
    QCOMPARE(w.k.Suche.SuchBedingungen[2], std::string("11"));
    // "Ch" im Interpreten und nicht "Abend" im Titel: nur noch "Nacht". (Mit "Chor" hätte die
    // genaue Entsprechung beide behalten.)
    QCOMPARE(w.k.Suche.SuchBegriffe[1], std::string("Ch"));
    QTRY_COMPARE_WITH_TIMEOUT(w.Zeilen(), 1, 2000);
    QCOMPARE(Spalte(w.f->lstSongs(), 2), QStringList{QStringLiteral("Nacht")});
    QVERIFY(Drücken(*w.f, "cmdSucheLöschen"));
    QVERIFY(cboSuche->isEnabled());
    QCOMPARE(w.Zeilen(), 6);
}

void ListeTest::KontextmenueUndAuswahlhelfer() {
    TestOrdner ordner;
    Fenster w;
    w.MitLiedernStarten(ordner);
    QVERIFY(Drücken(*w.f, "cmdSucheLöschen"));
    auto* liste = w.f->lstSongs();
    auto* kontext = w.f->findChild<QMenu*>(QStringLiteral("mnu_kontext"));
    // Ohne Auswahl öffnet die rechte Taste kein Menü.
    liste->clearSelection();
    QTest::mouseClick(liste->viewport(), Qt::RightButton, {}, QPoint(2, liste->viewport()->height() - 2));
    QVERIFY(!kontext->isVisible());
    // Zeile 2 wählen, dann "ab hier": 2 bis 6; "umkehren": 1.
    QTest::mouseClick(liste->viewport(), Qt::LeftButton, {}, ZeilenMitte(liste, 1));
    auto aktion = [&](const char* name) { return w.f->findChild<QAction*>(QString::fromUtf8(name)); };
    QTest::mouseClick(liste->viewport(), Qt::RightButton, {}, ZeilenMitte(liste, 1));
    QTRY_VERIFY(kontext->isVisible());
    QVERIFY(aktion("mnu_song_allesongsvoninterpret")->isEnabled());  // ID3v1 gelesen, eine Datei
    kontext->hide();
    aktion("mnu_wähleabhier")->trigger();
    QCOMPARE(w.k.Suche.AusgewähltAnzahl, 5);
    aktion("mnu_wähleumkehren")->trigger();
    QCOMPARE(w.k.Suche.AusgewähltAnzahl, 1);
    QCOMPARE(w.Text("lblIndexdateiUntertitel1"), QStringLiteral("01 Ein Tag.mp3"));
    // "Alle Songs dieses Interpreten": Feld Interpret, Text "Band A", ohne Ergänzung gesucht.
    aktion("mnu_song_allesongsvoninterpret")->trigger();
    QCOMPARE(w.Kind<QComboBox>("cboSuche")->currentIndex(), 1);
    QCOMPARE(w.Kind<QComboBox>("txtSongname")->currentText(), QStringLiteral("Band A"));
    QTRY_COMPARE_WITH_TIMEOUT(w.Zeilen(), 2, 2000);
    // Zwischenablage: der Pfad der einen Datei.
    QTest::mouseClick(liste->viewport(), Qt::LeftButton, {}, ZeilenMitte(liste, 1));
    aktion("mnu_song_zwischenablage")->trigger();
    QCOMPARE(w.shell.zwischenablage, std::vector<std::string>{ordner / "03 Tag ein.mp3"});
    // Umbenennen aus dem Kontextmenü öffnet den Dialog über der Auswahl.
    aktion("mnu_kontext_umbenennen")->trigger();
    QCOMPARE(w.dialoge.back(), QStringLiteral("frmUmbenennen"));
}

// Ein Ordner mit MP3-Dateien (ID3v1, Byte für Byte gebaut), ein Bild, ein Unterordner.
void ListeTest::OrdnerHinzufuegenAblegenZiehen() {
    TestOrdner musik, draußen;
    auto mp3 = [](const std::string& pfad, const char* titel, const char* interpret) {
        std::string daten;
        for (int i = 0; i < 12; ++i) daten += mpeg::Frame(mpeg::Kopf{});
        DateiSchreiben(pfad, daten + mpeg::Id3v1(titel, interpret, "Platte", "2001", "", 1, 17));
    };
    mp3(musik / "01 Ein Tag.mp3", "Ein Tag", "Band A");
    mp3(musik / "02 Nacht.mp3", "Nacht", "Chor");
    mp3(musik / "unter/03 Abend.mp3", "Abend", "Chor");
    DateiSchreiben(musik / "bild.jpg", "kein Bild");  // Typ nicht freigegeben
    mp3(draußen / "04 Morgen.mp3", "Morgen", "Band C");

    Fenster w;
    w.k.E.TippsAktueller = 0;
    w.Starten();
    w.skripte[QStringLiteral("frmHinzufügen")] = [](QDialog& d) { QVERIFY(Drücken(d, "cmdOrdnerHinzufügen")); };
    w.ui.ordnerSkript = [&](std::string& ordner) {
        ordner = musik.Pfad();
        return true;
    };
    w.f->Befehle().cmdIndexErstellen->trigger();
    QCOMPARE(w.k.DateiAnzahl, 3);
    QCOMPARE(w.Zeilen(), 3);
    QVERIFY(w.k.DateiGeändert);
    auto* liste = w.f->lstSongs();
    QCOMPARE(Spalte(liste, 2),
             (QStringList{QStringLiteral("Ein Tag"), QStringLiteral("Nacht"), QStringLiteral("Abend")}));
    QCOMPARE(w.Text("lblDateiAnzahl"), QStringLiteral("3 Datei(en) gefunden\n3 Datei(en) im Index"));
    QCOMPARE(w.Text("lblIndexdateiUntertitel1"), QStringLiteral("Es wurden 3 Dateien gewählt."));  // die neuen
    QTRY_VERIFY_WITH_TIMEOUT(w.f->windowTitle().startsWith(QStringLiteral("3 Datei(en) hinzugefügt")), 3000);

    // Die eigene Auswahl auf die Liste gezogen: abgelehnt. Eine Datei von draußen: aufgenommen.
    auto ablegen = [&](const QList<QUrl>& urls) {
        QMimeData daten;
        daten.setUrls(urls);
        const QPoint stelle = liste->viewport()->rect().center();
        QDragEnterEvent betreten(stelle, Qt::CopyAction, &daten, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(liste->viewport(), &betreten);
        if (!betreten.isAccepted()) return false;
        QDropEvent ablage(stelle, Qt::CopyAction, &daten, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(liste->viewport(), &ablage);
        return ablage.isAccepted();
    };
    QList<QUrl> eigene;
    for (const char* d : {"01 Ein Tag.mp3", "02 Nacht.mp3", "unter/03 Abend.mp3"})
        eigene << QUrl::fromLocalFile(QString::fromStdString(musik / d));
    QVERIFY(!ablegen(eigene));
    QVERIFY(ablegen({QUrl::fromLocalFile(QString::fromStdString(draußen / "04 Morgen.mp3"))}));
    QTRY_COMPARE_WITH_TIMEOUT(w.k.DateiAnzahl, 4, 3000);
    QCOMPARE(w.Zeilen(), 4);
    QCOMPARE(w.k.Suche.AusgewähltAnzahl, 1);  // die neue Zeile ist markiert
    QCOMPARE(w.Text("lblIndexdateiUntertitel1"), QStringLiteral("04 Morgen.mp3"));
}

// Kopfleiste, Gitter, die eigene Spalte mit ihrem Muster als Kopf, Breiten in Twips hin und zurück.
void ListeTest::SpaltenAusDenIndexOptionen() {
    TestOrdner ordner;
    Fenster w;
    w.k.E.TippsAktueller = 0;
    w.Starten({LiederIndex(ordner, [](IndexOptionen& o) {
        o.Spalten = "5=3000=1,19=2100=2";
        o.SpaltenNutzerformat = "%Interpret% (%Titel%)";
        o.SpaltenGitter = 1;
        o.SpaltenLeiste = 1;
    })});
    QVERIFY(Drücken(*w.f, "cmdSucheLöschen"));
    auto* liste = w.f->lstSongs();
    QCOMPARE(liste->model()->columnCount(), 2);
    QCOMPARE(liste->model()->headerData(1, Qt::Horizontal).toString(), QStringLiteral("Interpret (Titel)"));
    QCOMPARE(liste->model()->index(0, 1).data().toString(), QStringLiteral("Band A (Ein Tag)"));
    QVERIFY(liste->showGrid());
    QVERIFY(!liste->horizontalHeader()->isHidden());
    QCOMPARE(liste->horizontalHeader()->sectionSize(0), 200);  // 3000 Twips
    // Die letzte Spalte füllt die Liste; ihre Breite in der Beschreibung bleibt 2100 Twips.
    QHeaderView* kopf = liste->horizontalHeader();
    QCOMPARE(kopf->sectionPosition(1) + kopf->sectionSize(1), liste->viewport()->width());
    QVERIFY(kopf->sectionSize(1) > 140);
    QCOMPARE(w.k.Liste.lstSongs.spalten[1].breite, 2100);
    // Von Hand breiter und verschoben: die Beschreibung folgt beim Sichern (Twips, neue Reihenfolge).
    liste->horizontalHeader()->resizeSection(0, 100);
    liste->horizontalHeader()->moveSection(1, 0);
    QCOMPARE(liste->model()->headerData(0, Qt::Horizontal).toString(), QStringLiteral("Interpret (Titel)"));
    QCOMPARE(liste->model()->index(0, 0).data().toString(), QStringLiteral("Band A (Ein Tag)"));
    w.k.E.BeendenReaktion = 2;
    w.antworten = {Meldung::Nein};
    QVERIFY(w.f->close());
    QVERIFY(w.k.Optionen.Spalten.find("5=1500=2") != std::string::npos);
    QVERIFY(w.k.Optionen.Spalten.find("19=2100=1") != std::string::npos);
    QVERIFY(w.k.DateiGeändert);  // die Beschreibung hat sich geändert
}

// Ein Latin-1-Dateiname bleibt im Index Bytes; Liste und Meldungen zeigen ihn als Windows-1252.
void ListeTest::PfadOhneUtf8() {
    TestOrdner ordner;
    Fenster w;
    w.MitLiedernStarten(ordner);
    w.k.DateiPfade[1] = "/m/Lied_\xE4.mp3";
    QVERIFY(Drücken(*w.f, "cmdSucheLöschen"));
    QVERIFY(Spalte(w.f->lstSongs(), 0).contains(QStringLiteral("Lied_ä.mp3")));
    QCOMPARE(Q("Die Datei '/m/Lied_\xE4.mp3' fehlt."), QStringLiteral("Die Datei '/m/Lied_ä.mp3' fehlt."));
    QCOMPARE(Q("Grüße"), QStringLiteral("Grüße"));
}

#include "ListeTest.moc"

int ListeTestAusführen(int argc, char** argv) {
    ListeTest t;
    return QTest::qExec(&t, argc, argv);
}
