// Der Tag-Editor als Fenster über drei Dateien: bearbeiten, beim Wechsel speichern, einen Tag
// entfernen, eine Funktion über alle Dateien; die Tags prüft zusätzlich mutagen. Dazu die beiden
// kleinen Dialoge und der Weg aus dem Hauptfenster. Bildschirmfotos nach KK_BILDER.
#include "FensterUmgebung.h"
#include "UiTestHilfen.h"

#include "app/Tabelle.h"
#include "index/Dateitypen.h"
#include "media/MedienInfos.h"
#include "support/CliAufruf.h"
#include "support/MpegDaten.h"
#include "support/TestOrdner.h"
#include "tags/AutoTagVorgaben.h"
#include "ui/dialoge/frmMp3Tag.h"
#include "ui/dialoge/frmMp3TagAutoTagWaehlen.h"
#include "ui/dialoge/frmMp3TagFeldFuellen.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>

namespace {
std::string Mp3(const std::string& name) {
    mpeg::V2Tag v2;
    v2.rahmen = {mpeg::Text("TIT2", "Lied " + name), mpeg::Text("TPE1", "Band"), mpeg::Text("TALB", "Platte"),
                 mpeg::Text("TLAN", "deu"), mpeg::Kommentar("COMM", "sch\xF6n")};
    v2.padding = 64;
    std::string audio;
    for (int i = 0; i < 8; ++i) audio += mpeg::Frame(mpeg::Kopf{});
    return mpeg::Id3v2(v2) + audio + mpeg::Id3v1("Titel " + name, "Band", "Platte", "2001", "", 4, 17);
}

// Was mutagen als ID3v2-Rahmen liest: "TIT2=..." je Zeile, sortiert.
std::string Mutagen(const std::string& pfad) {
    return ShellAufruf(std::string(KK_PYTHON) +
                       " -c \"import sys; from mutagen.id3 import ID3; t = ID3(sys.argv[1], load_v1=False); "
                       "print('|'.join(sorted(k + '=' + str(t[k]) for k in t.keys())))\" '" +
                       pfad + "' 2>&1")
        .second;
}

int Vergleich(const std::string& vorher, const std::string& nachher, const std::string& schalter) {
    const auto [code, aus] = ShellAufruf(std::string(KK_PYTHON) + " " + KK_ID3_VERGLEICH + " '" + vorher + "' '" +
                                         nachher + "' " + schalter + " 2>&1");
    if (code != 0) qWarning("%s", aus.c_str());
    return code;
}
}  // namespace

class TagEditorFensterTest : public QObject {
    Q_OBJECT
private slots:
    void DreiDateienBearbeiten();
    void KleineDialoge();
    void AusDemHauptfenster();
};

void TagEditorFensterTest::DreiDateienBearbeiten() {
    TestOrdner o;
    GuiUmgebung u;
    DateitypenVorgabenWennLeer(u.k.Optionen);
    for (const char* name : {"a", "b", "c"}) {
        DateiSchreiben(o / (std::string(name) + ".mp3"), Mp3(name));
        DateiSchreiben(o / (std::string(name) + "-vorher.mp3"), Mp3(name));
        IndexGrößeÄndern(u.k, u.k.DateiAnzahl + 1, true);
        u.k.DateiAnzahl += 1;
        u.k.DateiPfade[u.k.DateiAnzahl] = o / (std::string(name) + ".mp3");
        u.k.DateiDaten[u.k.DateiAnzahl] =
            MedienInfosLesen(u.k, u.k.DateiPfade[u.k.DateiAnzahl], DateiInfo{}, "11", false, "1", "1");
    }
    u.k.E.SucheNichtBeiTAGEditor = 1;
    frmMp3Tag f(nullptr, u.k, u.ui);
    QVERIFY(f.Öffnen({1, 2, 3}));
    f.show();
    QCOMPARE(f.windowTitle(), QStringLiteral("Medien-Informationen"));
    auto* dateien = f.findChild<QComboBox*>(QStringLiteral("txtDateiname"));
    auto* titel = f.findChild<QLineEdit*>(QStringLiteral("txtTitel"));
    auto* nummer = f.findChild<QLineEdit*>(QStringLiteral("txtTitelnummer"));
    auto* tabs = f.findChild<QTabWidget*>(QStringLiteral("tabSeiten"));
    QVERIFY(dateien && titel && nummer && tabs);
    QCOMPARE(dateien->count(), 3);
    QCOMPARE(dateien->currentText(), QStringLiteral("a.mp3"));
    QCOMPARE(titel->text(), QStringLiteral("Titel a"));
    QCOMPARE(f.findChild<QComboBox*>(QStringLiteral("cboMusikrichtung"))->currentText(), QStringLiteral("Rock"));
    QVERIFY(!f.findChild<QPushButton*>(QStringLiteral("cmdVorheriger"))->isEnabled());
    QCOMPARE(f.findChild<QLabel*>(QStringLiteral("lblID3v1Info"))->text(),
             QStringLiteral("Der gefundene ID3v1-TAG belegt 128 Bytes."));
    QVERIFY(f.findChild<QLabel*>(QStringLiteral("lblTrackInfos"))->text().contains(QStringLiteral("Layer 3")));
    QCOMPARE(f.findChild<QLineEdit*>(QStringLiteral("txtv2Software"))->text(), QStringLiteral("Klangkartei"));
    Foto(f, "frmMp3Tag-id3v1.png");

    // Bearbeiten: die Titelnummer nimmt nur Ziffern; mit dem Haken speichert der Wechsel.
    titel->clear();
    QTest::keyClicks(titel, QStringLiteral("Neuer Titel"));
    nummer->clear();
    QTest::keyClicks(nummer, QStringLiteral("a1x2"));
    QCOMPARE(nummer->text(), QStringLiteral("12"));
    f.findChild<QCheckBox*>(QStringLiteral("chkAutomatischSpeichern"))->setChecked(true);
    QVERIFY(Drücken(f, "cmdNächster"));
    QCOMPARE(dateien->currentText(), QStringLiteral("b.mp3"));
    const DateiInfo a = MedienInfosLesen(u.k, o / "a.mp3", DateiInfo{}, "10", false, "0", "0");
    QCOMPARE(a.Mp3_ID3v1_Titel, std::string("Neuer Titel"));
    QCOMPARE(a.Mp3_ID3v1_Track, std::string("12"));
    QCOMPARE(Vergleich(o / "a-vorher.mp3", o / "a.mp3", ""), 0);  // ID3v2 unberührt

    // Den ID3v2-Tag von b entfernen, nach der Frage.
    tabs->setCurrentIndex(1);
    Foto(f, "frmMp3Tag-id3v2.png");
    u.antworten = {Meldung::Ja};
    QVERIFY(Drücken(f, "cmdTAGEntfernenv2"));
    QVERIFY(u.MeldungGezeigt("Möchten Sie den ID3v2-TAG entfernen?"));
    QCOMPARE(Vergleich(o / "b-vorher.mp3", o / "b.mp3", "--ohne-tag"), 0);
    QCOMPARE(f.findChild<QLabel*>(QStringLiteral("lblID3v2Info"))->text(),
             QStringLiteral("Es wurde kein gültiger ID3v2-TAG gefunden."));
    QVERIFY(!f.findChild<QPushButton*>(QStringLiteral("cmdTAGEntfernenv2"))->isEnabled());

    // Eine Funktion über alle Dateien: beide Tags in Großschrift.
    f.findChild<QCheckBox*>(QStringLiteral("chkAutomatischSpeichern"))->setChecked(false);
    auto* funktion = f.findChild<QComboBox*>(QStringLiteral("cboFunktion"));
    funktion->setCurrentIndex(9);
    f.findChild<QComboBox*>(QStringLiteral("cboFunktionTAG"))->setCurrentIndex(5);
    u.antworten = {Meldung::Ja};
    QVERIFY(Drücken(f, "cmdFunktionAusführen"));
    QVERIFY(u.MeldungGezeigt("Möchten Sie die Funktion 'Schreibweise: Groß' tatsächlich für 'Alle ID3v1- und "
                             "ID3v2-TAGs' anwenden?"));
    QCOMPARE(Mutagen(o / "c.mp3"), std::string("COMM::eng=SCHÖN|TALB=PLATTE|TIT2=LIED C|TLAN=deu|TPE1=BAND\n"));
    QCOMPARE(Vergleich(o / "c-vorher.mp3", o / "c.mp3", "--geaendert TIT2 TPE1 TALB COMM"), 0);
    QCOMPARE(MedienInfosLesen(u.k, o / "b.mp3", DateiInfo{}, "10", false, "0", "0").Mp3_ID3v1_Titel,
             std::string("TITEL B"));
    QCOMPARE(titel->text(), QStringLiteral("TITEL B"));  // die gezeigte Datei neu geladen
    tabs->setCurrentIndex(3);
    Foto(f, "frmMp3Tag-infos.png");

    // OK: der Haken geht in die Einstellungen, das Fenster schließt.
    f.findChild<QCheckBox*>(QStringLiteral("chkAutomatischSpeichernV2"))->setChecked(true);
    QVERIFY(Drücken(f, "cmdOk"));
    QVERIFY(!f.isVisible());
    QCOMPARE(u.k.E.TAGAutomatischSpeichernV2, int16_t{1});
    QCOMPARE(u.k.E.TAGAutomatischSpeichern, int16_t{0});
}

void TagEditorFensterTest::KleineDialoge() {
    GuiUmgebung u;
    u.k.E.AutoTagFormate = AutoTagVorgabeFormate();
    u.k.E.AutoTagLeer = 0;
    u.k.E.AutoTagAktuell = "%Automatik%";
    frmMp3TagAutoTagWählen wahl(nullptr, u.k);
    wahl.show();
    auto* formate = wahl.findChild<QListWidget*>(QStringLiteral("lstFormate"));
    QCOMPARE(formate->count(), 23);
    QCOMPARE(formate->currentRow(), 22);
    auto* format = wahl.findChild<QLineEdit*>(QStringLiteral("txtFormat"));
    format->setText(QStringLiteral("/%Jahr% - %Titel%"));
    QVERIFY(Drücken(wahl, "cmdHinzufügen"));
    QCOMPARE(formate->count(), 24);
    wahl.findChild<QLineEdit*>(QStringLiteral("txtAusschluß"))->setText(QStringLiteral("live"));
    QVERIFY(Drücken(wahl, "cmdAusschlußHinzufügen"));
    Foto(wahl, "frmMp3TagAutoTagWaehlen.png");
    QVERIFY(Drücken(wahl, "cmdOk"));
    QCOMPARE(u.k.E.AutoTagAktuell, std::string("/%Jahr% - %Titel%"));
    QCOMPARE(u.k.E.AutoTagAusschluß[1], std::string("live"));
    QCOMPARE(u.k.E.AutoTagAusschlußLeer, int16_t{0});

    frmMp3TagFeldFüllen felder(nullptr, u.k);
    felder.show();
    QVERIFY(Drücken(felder, "cmdOk"));
    QVERIFY(felder.isVisible());  // ohne Wahl bleibt er offen
    QVERIFY(u.MeldungGezeigt("Bitte wählen Sie mindestens einen Listeneintrag."));
    auto* liste = felder.findChild<QListWidget*>(QStringLiteral("lstFelder"));
    QCOMPARE(liste->count(), 7);
    liste->item(2)->setCheckState(Qt::Checked);
    Foto(felder, "frmMp3TagFeldFuellen.png");
    QVERIFY(Drücken(felder, "cmdOk"));
    QCOMPARE(felder.Felder(), std::vector<int32_t>{2});
}

// "Datei-Infos" und der Doppelklick mit BeiDoppelklick 3 öffnen den Editor für die Auswahl.
void TagEditorFensterTest::AusDemHauptfenster() {
    const auto xdg = FrischeXdgOrdner();
    TestOrdner ordner;
    Fenster w;
    w.MitLiedernStarten(ordner);
    QVERIFY(Drücken(*w.f, "cmdSucheLöschen"));
    auto* liste = w.f->lstSongs();
    QTest::mouseClick(liste->viewport(), Qt::LeftButton, {}, ZeilenMitte(liste, 1));
    QString gezeigt;
    w.skripte[QStringLiteral("frmMp3Tag")] = [&gezeigt](QDialog& d) {
        gezeigt = d.findChild<QComboBox*>(QStringLiteral("txtDateiname"))->currentText();
        Drücken(d, "cmdOk");
    };
    w.Kind<QAction>("cmdMp3TagAnzeigen")->trigger();
    QCOMPARE(gezeigt, QStringLiteral("02 Ein Tag am Meer.mp3"));
    gezeigt.clear();
    w.k.E.BeiDoppelklick = 3;
    QTest::mouseDClick(liste->viewport(), Qt::LeftButton, {}, ZeilenMitte(liste, 1));
    QCOMPARE(gezeigt, QStringLiteral("02 Ein Tag am Meer.mp3"));
}

#include "TagEditorFensterTest.moc"

int TagEditorFensterTestAusführen(int argc, char** argv) {
    TagEditorFensterTest t;
    return QTest::qExec(&t, argc, argv);
}
