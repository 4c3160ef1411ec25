// Der Spieler im Fenster: die Tafel fraLinks3 im Takt, ihre Knöpfe und Regler, Abspielen aus der
// Liste, die Bild-Anzeige und "Ausführen mit"; mit Bildschirmfotos zum Ansehen.
#include "FensterUmgebung.h"
#include "index/Dateitypen.h"

#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QComboBox>
#include <QPushButton>
#include <QSlider>

namespace {
bool Gesendet(const TestSpieler& s, uint32_t n, int32_t w, int32_t l) {
    for (const auto& m : s.gesendet)
        if (m.nachricht == n && m.wParam == w && m.lParam == l) return true;
    return false;
}
}  // namespace

class SpielerFensterTest : public QObject {
    Q_OBJECT
private slots:
    void init() { xdg_ = FrischeXdgOrdner(); }
    void TafelFolgtDemSpieler();
    void AbspielenAusDerListe();
    void BildAnzeigeUndAusfuehrenMit();

private:
    std::unique_ptr<QTemporaryDir> xdg_;
};

void SpielerFensterTest::TafelFolgtDemSpieler() {
    TestOrdner ordner;
    Fenster w;
    w.k.E.WinampPfad = "/usr/bin/audacious";
    int32_t status = 1;
    w.spieler.titel = "Band A - Ein Tag";
    w.spieler.beantworten = [&status](uint32_t n, int32_t wp, int32_t l) -> int32_t {
        if (n != 1024) return 0;
        return l == 104 ? status : l == 105 ? (wp == 1 ? 200 : 12500) : 0;
    };
    w.MitLiedernStarten(ordner);
    auto* tafel = w.Kind<QWidget>("fraLinks3");
    QVERIFY(tafel && !tafel->isVisible());
    QTRY_COMPARE_WITH_TIMEOUT(w.Text("lblWinampSteuerungTitel"), QStringLiteral("Audio-Player (Winamp nicht aktiv)"),
                              3000);

    w.spieler.fenster = 3;
    QTRY_VERIFY_WITH_TIMEOUT(tafel->isVisible(), 3000);
    QCOMPARE(w.Text("lblWinampSteuerungTitel"), QStringLiteral("Audio-Player - 'Band A - Ein Tag'"));
    QCOMPARE(w.Text("lblWinampSteuerungPosition"), QStringLiteral("Titelposition - 0:12/3:20"));
    auto* abspielen = w.Kind<QPushButton>("cmdAbspielen");
    QCOMPARE(abspielen->text(), QStringLiteral("Pause"));
    QCOMPARE(w.Kind<QSlider>("hscrlTrackPos")->maximum(), 200);
    QCOMPARE(w.Kind<QSlider>("hscrlTrackPos")->value(), 12);
    Foto(*w.f, "frmMain-Spieler.png");

    QVERIFY(Drücken(*w.f, "cmdAbspielen"));
    QCOMPARE(abspielen->text(), QStringLiteral("Spielen"));
    QVERIFY(Gesendet(w.spieler, 273, 40046, 0));
    QVERIFY(Drücken(*w.f, "cmdWinampNächster"));
    QVERIFY(Gesendet(w.spieler, 273, 40048, 0));
    QVERIFY(Drücken(*w.f, "cmdAbspielenStopp"));
    QVERIFY(Gesendet(w.spieler, 273, 40047, 0));
    w.Kind<QSlider>("hscrlVolume")->setValue(200);
    QVERIFY(Gesendet(w.spieler, 1024, 200, 122));
    w.Kind<QSlider>("hscrlBalance")->setValue(-127);
    QVERIFY(Gesendet(w.spieler, 1024, 128, 123));
    // Die Person zieht die Position: erst beim Loslassen wird gesprungen.
    auto* position = w.Kind<QSlider>("hscrlTrackPos");
    position->triggerAction(QAbstractSlider::SliderPageStepAdd);
    QVERIFY(Gesendet(w.spieler, 1024, position->value() * 1000, 106));

    status = 0;
    QTRY_VERIFY_WITH_TIMEOUT(!tafel->isVisible(), 3000);
    QCOMPARE(w.Text("lblWinampSteuerungTitel"), QStringLiteral("Audio-Player"));
    w.spieler.fenster = 0;
    QTRY_COMPARE_WITH_TIMEOUT(w.Text("lblWinampSteuerungTitel"), QStringLiteral("Audio-Player (Winamp nicht aktiv)"),
                              3000);
}

void SpielerFensterTest::AbspielenAusDerListe() {
    TestOrdner ordner;
    Fenster w;
    w.k.E.TippsAktueller = 0;
    w.Starten({LiederIndex(ordner, DateitypenVorgabenEinsetzen)});
    w.k.E.WinampPfad = "";
    // Ohne Spieler: der Hinweis und der Fehler des ersten Schreibens, sonst nichts.
    auto* liste = w.f->lstSongs();
    w.FeldWählen(0);
    QTest::keyClicks(w.Kind<QComboBox>("txtSongname")->lineEdit(), QStringLiteral("Tag"));
    QTRY_COMPARE(w.Zeilen(), 3);
    QTest::mouseClick(liste->viewport(), Qt::LeftButton, {}, ZeilenMitte(liste, 0));
    QTRY_COMPARE(w.k.Suche.AusgewähltAnzahl, 1);
    QTest::keyClick(liste, Qt::Key_Return);
    QVERIFY(w.Gefragt("Sie benötigen einen Audioplayer für diese Funktion."));
    QVERIFY(w.Gefragt("Eine Datei konnte nicht angezeigt werden."));
    // Ausführen öffnet mit dem Standardprogramm.
    w.f->Befehle().cmdEintragAusführen->trigger();
    QCOMPARE(w.shell.geöffnet.size(), size_t{1});
    QVERIFY(w.shell.geöffnet[0].find(".mp3") != std::string::npos);
}

void SpielerFensterTest::BildAnzeigeUndAusfuehrenMit() {
    TestOrdner ordner;
    const std::string bild = ordner / "bild.png";
    QImage farbe(64, 48, QImage::Format_RGB32);
    farbe.fill(QColor(30, 120, 200));
    QVERIFY(farbe.save(QString::fromStdString(bild)));
    GuiUmgebung u;
    u.ui.BildAnzeigen(ordner / "fehlt.png");  // nicht zu laden: nichts erscheint, keine Meldung
    u.ui.BildAnzeigen(bild);
    QDialog* anzeige = nullptr;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->objectName() == QStringLiteral("frmBildAnzeige")) anzeige = qobject_cast<QDialog*>(w);
    QVERIFY(anzeige && anzeige->isVisible());
    QCOMPARE(anzeige->windowTitle(), QString::fromStdString(bild + " - Bild-Anzeige"));
    QVERIFY(u.meldungen.empty());
    Foto(*anzeige, "frmBildAnzeige.png");
    // Anders geschlossen nur versteckt: das nächste Bild erscheint im selben Fenster.
    anzeige->close();
    u.ui.BildAnzeigen(bild);
    QVERIFY(anzeige->isVisible());
    QVERIFY(Drücken(*anzeige, "cmdOk"));
    QVERIFY(!anzeige->isVisible());
    delete anzeige;

    // Ausführen mit: leer und fehlend werden gemeldet, ein vorhandenes Programm schließt den Dialog.
    u.ui.dialogSkript = [](QDialog& d) {
        auto* text = d.findChild<QLineEdit*>(QStringLiteral("txtSuche"));
        QCOMPARE(text->text(), QStringLiteral("/vorher"));
        text->clear();
        QVERIFY(Drücken(d, "cmdOk"));
        text->setText(QStringLiteral("/gibt/es/nicht"));
        QVERIFY(Drücken(d, "cmdOk"));
        QVERIFY(d.isVisible());
        text->setText(QStringLiteral("/bin/sh"));
        Foto(d, "frmAusfuehrenMit.png");
        QVERIFY(Drücken(d, "cmdOk"));
    };
    std::string programm = "/vorher";
    std::vector<std::string> geprüft;
    QVERIFY(u.ui.AusführenMitWählen(programm, [&](const std::string& p) {
        geprüft.push_back(p);
        return p == "/bin/sh";
    }));
    QCOMPARE(programm, std::string("/bin/sh"));
    QCOMPARE(geprüft, (std::vector<std::string>{"", "/gibt/es/nicht", "/bin/sh"}));
}

int SpielerFensterTestAusführen(int argc, char** argv) {
    SpielerFensterTest t;
    return QTest::qExec(&t, argc, argv);
}

#include "SpielerFensterTest.moc"
