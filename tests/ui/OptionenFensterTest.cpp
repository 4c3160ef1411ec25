// Die Programm- und die Index-Optionen als Fenster: jeder Wert durch den Dialog und einen
// Neustart, Vorschau der Profile, Prüftexte, Zurücksetzen, geschützte Typzeilen.
#include "platform/KonfigRegistrierung.h"
#include "settings/EinstellungenSpeicher.h"
#include "settings/EinstellungenTabelle.h"
#include "settings/FarbProfile.h"
#include "ui/Farben.h"
#include "ui/LinkLabel.h"
#include "ui/Umrechnung.h"
#include "ui/dialoge/frmIndexOptionen.h"
#include "ui/dialoge/frmOptionen.h"
#include "UiTestHilfen.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QTableWidget>
#include <QTemporaryDir>

namespace {
// Wie GuiUmgebung, aber mit der echten Einstellungsdatei: ein zweites Objekt liest sie neu.
struct MitDatei {
    QWidget* besitzer = nullptr;
    GuiOberfläche ui{[this] { return besitzer; }};
    KonfigRegistrierung registrierung;
    TestSpieler spieler;
    TestShell shell;
    TestDatenträger datenträger;
    TestUhr uhr;
    TestZufall zufall;
    Kartei k{Dienste{ui, registrierung, spieler, shell, datenträger, uhr, zufall}};
    std::vector<AufgezeichneteMeldung> meldungen;
    std::deque<int> antworten;
    explicit MitDatei(const std::string& datei) : registrierung(datei) {
        ui.meldungsSkript = MeldungenNachSkript(meldungen, antworten);
    }
};

template <typename T> T* Kind(QWidget& w, const char* name) { return w.findChild<T*>(QString::fromUtf8(name)); }

QColor Textfarbe(QWidget& w, const char* name) { return Kind<QWidget>(w, name)->palette().color(QPalette::WindowText); }

void ProfilWählen(frmOptionen& d, int profil) {
    auto* cbo = Kind<QComboBox>(d, "cboFarbProfile");
    cbo->setCurrentIndex(profil);
    emit cbo->activated(profil);
}

bool NichtImDialog(const std::string& name) {
    return name == "Dateiname" || name == "BeiDoppelklick" || name == "AutoTagLeer" || name == "AutoTagAusschlußLeer";
}

void IndexDa(Kartei& k) {
    k.IndexZugriff.NichtsGeladen = false;
    k.Dateiname = "/musik/index.kkt";
}
}  // namespace

class OptionenFensterTest : public QObject {
    Q_OBJECT
private slots:
    void JederWertDurchDialogUndNeustart();
    void ProfilVorschauMitAbbrechenAendertNichts();
    void PrueftexteUndLeereSpeicherzahl();
    void ZuruecksetzenFuelltDenDialogNeu();
    void IndexOptionenBearbeiten();
    void FarbenAufJedemDialog();
};

void OptionenFensterTest::JederWertDurchDialogUndNeustart() {
    QTemporaryDir ordner;
    const std::string datei = S(ordner.path()) + "/klangkartei.conf";
    MitDatei a(datei);
    EinstellungenLesen(a.k);
    a.k.E.Start = 10;  // kein erster Start: der Spielerpfad wird nicht gesucht
    {
        frmOptionen d(nullptr, a.k, a.ui);
        // Jedes gebundene Steuerelement bekommt einen anderen Wert als die Vorgabe.
        for (QWidget* w : d.findChildren<QWidget*>()) {
            const QString name = w->property("einstellung").toString();
            if (name.isEmpty()) continue;
            if (auto* h = qobject_cast<QCheckBox*>(w)) h->setChecked(!h->isChecked());
            if (auto* t = qobject_cast<QLineEdit*>(w)) t->setText(QStringLiteral("x-") + name);
        }
        Kind<QCheckBox>(d, "chkTippsAktueller")->setChecked(false);
        Kind<QComboBox>(d, "cboBeendenAktion")->setCurrentIndex(2);
        Kind<QCheckBox>(d, "chkRegelmäßigSpeichern")->setChecked(true);
        Kind<QLineEdit>(d, "txtRegelmäßigSpeichern")->setText(QStringLiteral("15"));
        Kind<QLineEdit>(d, "txtID3v2Reserve")->setText(QStringLiteral("40"));
        Kind<QLineEdit>(d, "txtID3v2Suchen")->setText(QStringLiteral("4096"));
        Kind<QCheckBox>(d, "chkID3auslesenV1")->setChecked(false);
        Kind<QCheckBox>(d, "chkID3auslesenV2")->setChecked(true);
        Kind<QCheckBox>(d, "chkID3auslesenHeader")->setChecked(false);
        ProfilWählen(d, 1);
        Kind<QCheckBox>(d, "chkFunktionenUnterstreichen")->setChecked(true);
        auto* weitere = Kind<QTableWidget>(d, "tblWeitere");
        for (int z = 0; z < weitere->rowCount(); ++z) {
            const auto* eintrag = EinstellungFinden(S(weitere->item(z, 0)->text()));
            QVERIFY(eintrag);
            weitere->item(z, 1)->setText(IstTextEinstellung(*eintrag)
                                             ? QStringLiteral("w-") + weitere->item(z, 0)->text()
                                             : QStringLiteral("7"));
        }
        a.antworten = {Meldung::Nein};  // ID3v2 neu an: nicht neu einlesen
        QVERIFY(Drücken(d, "cmdOk"));
        QCOMPARE(d.result(), int(QDialog::Accepted));
        QCOMPARE(a.meldungen.size(), size_t(1));
    }
    QVERIFY(EinstellungenSpeichern(a.k));

    MitDatei b(datei);
    EinstellungenLesen(b.k);
    TestUmgebung vorgabe;
    for (const auto& e : EinstellungsTabelle()) {
        if (NichtImDialog(e.name)) continue;
        const std::string text = EinstellungAlsText(b.k, e);
        QVERIFY2(text == EinstellungAlsText(a.k, e), e.name);
        QVERIFY2(text != EinstellungAlsText(vorgabe.k, e), e.name);
    }
    QCOMPARE(b.k.E.Mp3TagLesen, std::string("010"));
    QCOMPARE(b.k.E.RegelmäßigSpeichernAlle, 15);
    QCOMPARE(b.k.E.TAGsProzentHinzufügen, 40);
    QCOMPARE(b.k.E.TippsAktueller, int16_t(0));
    QCOMPARE(b.k.E.FarbeFunktionen, FarbProfile()[1].farben.Funktionen);
    QCOMPARE(b.k.E.WinampPfad, std::string("x-WinampPfad"));
    QCOMPARE(b.k.E.ExportDatei, std::string("w-ExportDatei"));

    // Der zweite Dialog zeigt, was gespeichert war.
    frmOptionen d(nullptr, b.k, b.ui);
    QCOMPARE(Kind<QComboBox>(d, "cboFarbProfile")->currentIndex(), -1);  // unterstrichen: eigene Farben
    QCOMPARE(Kind<QComboBox>(d, "cboBeendenAktion")->currentIndex(), 2);
    QCOMPARE(Kind<QLineEdit>(d, "txtRegelmäßigSpeichern")->text(), QStringLiteral("15"));
    QVERIFY(Kind<QCheckBox>(d, "chkID3auslesenV2")->isChecked());
    QVERIFY(!Kind<QCheckBox>(d, "chkAutoCompleteVerwenden")->isChecked());
}

void OptionenFensterTest::ProfilVorschauMitAbbrechenAendertNichts() {
    GuiUmgebung u;
    const Einstellungen vorher = u.k.E;
    {
        frmOptionen d(nullptr, u.k, u.ui);
        QCOMPARE(Kind<QComboBox>(d, "cboFarbProfile")->currentIndex(), 0);
        QCOMPARE(Kind<QComboBox>(d, "cboFarbProfile")->itemText(2),
                 QStringLiteral("Gute Laune (farbenfroh, organge-rot)"));
        ProfilWählen(d, 3);
        QCOMPARE(Textfarbe(d, "lblBeispielFunktionen"), QColor(255, 255, 255));
        QCOMPARE(Textfarbe(d, "lblBeispielFunktionenBesucht"), QColor(0xAF, 0xAF, 0xAF));
        QCOMPARE(Kind<QWidget>(d, "fraBeispiel")->palette().color(QPalette::Window), QColor(0, 0, 0));
        QCOMPARE(Kind<QWidget>(d, "lstBeispielListe")->palette().color(QPalette::Base), QColor(0, 0, 0));
        // Eine Farbe von Hand: Rot im niedrigsten Byte.
        u.ui.farbSkript = [](int32_t& farbe) {
            farbe = 0x0000FF;
            return true;
        };
        QVERIFY(Drücken(d, "cmdÜberschriftFarbe"));
        QCOMPARE(Textfarbe(d, "lblBeispielÜberschrift"), QColor(255, 0, 0));
        QCOMPARE(Kind<QComboBox>(d, "cboFarbProfile")->currentIndex(), -1);
        QVERIFY(Drücken(d, "cmdAbbrechen"));
    }
    QVERIFY(FarbsatzAusEinstellungen(u.k.E) == FarbsatzAusEinstellungen(vorher));
    QVERIFY(u.meldungen.empty());

    frmOptionen d(nullptr, u.k, u.ui);
    ProfilWählen(d, 2);
    QVERIFY(Drücken(d, "cmdOk"));
    QVERIFY(FarbsatzAusEinstellungen(u.k.E) == FarbProfile()[2].farben);
}

void OptionenFensterTest::PrueftexteUndLeereSpeicherzahl() {
    GuiUmgebung u;
    u.k.E.RegelmäßigSpeichernAlle = 30;
    frmOptionen d(nullptr, u.k, u.ui);
    QCOMPARE(Kind<QLineEdit>(d, "txtRegelmäßigSpeichern")->text(), QStringLiteral("30"));
    Kind<QLineEdit>(d, "txtID3v2Reserve")->setText(QStringLiteral("abc"));
    Kind<QLineEdit>(d, "txtRegelmäßigSpeichern")->clear();
    QVERIFY(Drücken(d, "cmdOk"));
    QCOMPARE(d.result(), int(QDialog::Rejected));
    QVERIFY(
        u.MeldungGezeigt("Bitte geben Sie eine Zahl in das Feld 'Prozent des neuen TAGs in Bytes hinzufügen' ein."));
    QCOMPARE(u.k.E.RegelmäßigSpeichernAlle, 30);

    Kind<QLineEdit>(d, "txtID3v2Reserve")->setText(QStringLiteral("150"));
    QVERIFY(Drücken(d, "cmdOk"));
    QVERIFY(u.MeldungGezeigt(
        "Bitte geben Sie eine Zahl zwischen 0 und 100 in das Feld 'Prozent des neuen TAGs in Bytes hinzufügen' ein."));
    Kind<QLineEdit>(d, "txtID3v2Reserve")->setText(QStringLiteral("10"));
    Kind<QLineEdit>(d, "txtID3v2Suchen")->setText(QStringLiteral("?"));
    QVERIFY(Drücken(d, "cmdOk"));
    QVERIFY(u.MeldungGezeigt("Geben Sie '0' ein, um die gesamte Datei zu durchsuchen."));
    QCOMPARE(d.result(), int(QDialog::Rejected));

    // Angehakt mit leerer Zahl: 0. Ein neu eingeschalteter Leseschalter fragt.
    Kind<QLineEdit>(d, "txtID3v2Suchen")->setText(QStringLiteral("0"));
    QVERIFY(Kind<QCheckBox>(d, "chkRegelmäßigSpeichern")->isChecked());
    Kind<QCheckBox>(d, "chkID3auslesenV2")->setChecked(true);
    u.antworten = {Meldung::Nein};
    QVERIFY(Drücken(d, "cmdOk"));
    QCOMPARE(d.result(), int(QDialog::Accepted));
    QCOMPARE(u.k.E.RegelmäßigSpeichernAlle, 0);
    QCOMPARE(u.k.E.Mp3TagLesen, std::string("111"));
    QVERIFY(u.meldungen.back().text.starts_with("Es wurden Einstellungen für das Lesen von Datei-Informationen"));
}

void OptionenFensterTest::ZuruecksetzenFuelltDenDialogNeu() {
    GuiUmgebung u;
    u.k.Dateiname = "/musik/index.kkt";
    u.k.E.AutoCompleteVerwenden = 0;
    u.k.E.FarbeListen = 0x123456;
    frmOptionen d(nullptr, u.k, u.ui);
    int angewendet = 0;
    d.farbenAnwenden = [&] { ++angewendet; };
    QVERIFY(!Kind<QCheckBox>(d, "chkAutoCompleteVerwenden")->isChecked());
    u.antworten = {Meldung::Nein, Meldung::Ja};
    QVERIFY(Drücken(d, "cmdRücksetzen"));
    QVERIFY(!Kind<QCheckBox>(d, "chkAutoCompleteVerwenden")->isChecked());
    QCOMPARE(angewendet, 0);
    QVERIFY(Drücken(d, "cmdRücksetzen"));
    QCOMPARE(u.meldungen.back().schalter, Meldung::JaNeinFrageNein);
    QVERIFY(Kind<QCheckBox>(d, "chkAutoCompleteVerwenden")->isChecked());
    QCOMPARE(Kind<QComboBox>(d, "cboFarbProfile")->currentIndex(), 0);
    QCOMPARE(u.k.E.FarbeListen, 0x800000);
    QCOMPARE(u.k.Dateiname, std::string("/musik/index.kkt"));
    QCOMPARE(angewendet, 1);
}

void OptionenFensterTest::IndexOptionenBearbeiten() {
    GuiUmgebung u;
    // Ohne Index: nur der Hinweis.
    {
        frmOptionen d(nullptr, u.k, u.ui);
        QVERIFY(Drücken(d, "cmdIndexOptionen"));
        QVERIFY(u.MeldungGezeigt(
            "Es wurde keine Indexdatei geladen.\nBitte laden Sie eine Indexdatei, um diese Funktion zu nutzen."));
    }
    IndexDa(u.k);
    frmIndexOptionen d(nullptr, u.k);
    auto* typen = Kind<QListWidget>(d, "lstDateitypen");
    QCOMPARE(typen->count(), 13);
    QCOMPARE(typen->item(12)->text(), QStringLiteral("(Alle weiteren Formate)"));
    typen->setCurrentRow(0);
    QCOMPARE(Kind<QLineEdit>(d, "txtDateitypEndung")->text(), QStringLiteral("mp3"));
    QVERIFY(!Kind<QLineEdit>(d, "txtDateitypEndung")->isEnabled());
    QVERIFY(Kind<QCheckBox>(d, "chkDateitypMpegAudio")->isChecked());
    QVERIFY(Drücken(d, "cmdDateitypenEntfernen"));
    QCOMPARE(u.meldungen.back().text, std::string("Nur eigene Einträge können geändert oder gelöscht werden."));
    typen->item(0)->setCheckState(Qt::Unchecked);  // der Haken geht auch bei eingebauten Zeilen

    QVERIFY(Drücken(d, "cmdDateitypenHinzufügen"));
    QCOMPARE(typen->currentRow(), 12);
    QCOMPARE(typen->item(12)->text(), QStringLiteral("(Neuer Dateityp)"));
    QVERIFY(Drücken(d, "cmdOk"));
    QCOMPARE(u.meldungen.back().text,
             std::string("Bitte geben Sie in jedes Feld in der Liste 'Dateitypen verwalten' eine Datei-Endung ein."));
    QTest::keyClicks(Kind<QLineEdit>(d, "txtDateitypEndung"), QStringLiteral(".OGG"));
    QCOMPARE(typen->item(12)->text(), QStringLiteral("ogg"));
    Kind<QCheckBox>(d, "chkDateitypAudio")->setChecked(true);

    u.ui.ordnerSkript = [](std::string& ordner) {
        ordner = "/musik/neu";
        return true;
    };
    QVERIFY(Drücken(d, "cmdSyncOrdnerHinzufügen"));
    QCOMPARE(Kind<QListWidget>(d, "lstSyncOrdner")->count(), 1);
    QVERIFY(!Kind<QLineEdit>(d, "txtSyncKopierenInOrdner")->isEnabled());
    Kind<QCheckBox>(d, "chkSyncKopierenInOrdner")->setChecked(true);
    QTest::keyClicks(Kind<QLineEdit>(d, "txtSyncKopierenInOrdner"), QStringLiteral("/musik/eingang"));
    auto* spalten = Kind<QListWidget>(d, "lstSpalten");
    QCOMPARE(spalten->count(), 30);
    QCOMPARE(spalten->item(1)->text(), QStringLiteral("Pfad"));
    spalten->item(1)->setCheckState(Qt::Checked);
    Kind<QRadioButton>(d, "optDoppelklickID3")->setChecked(true);
    QVERIFY(Drücken(d, "cmdOk"));
    QCOMPARE(d.result(), int(QDialog::Accepted));

    const IndexOptionen& o = u.k.Optionen;
    QCOMPARE(o.DateitypEintrag[1], std::string("mp3=0"));
    QCOMPARE(o.DateitypEintrag[13], std::string("ogg=1"));
    QCOMPARE(o.DateitypKlasse[13], std::string("010"));
    QCOMPARE(o.SyncOrdner[1], std::string("/musik/neu"));
    QCOMPARE(o.SyncKopierenInOrdner[1], std::string("/musik/eingang"));
    QVERIFY2(o.Spalten.starts_with("1=0=0,2=1400=1,"), o.Spalten.c_str());
    QCOMPARE(u.k.E.BeiDoppelklick, int16_t(3));
    QVERIFY(u.k.DateiGeändert);
}

void OptionenFensterTest::FarbenAufJedemDialog() {
    Einstellungen e;
    FarbsatzSpeichern(e, FarbProfile()[1].farben);
    e.FunktionenUnterstreichen = 1;
    FarbenWächter wächter(e, nullptr);
    qApp->installEventFilter(&wächter);
    QDialog d;
    d.setObjectName(QStringLiteral("frmProbe"));
    auto* kopf = new QLabel(QStringLiteral("Kopf"), &d);
    FarbRolleSetzen(kopf, "überschrift");
    auto* text = new QLabel(QStringLiteral("Text"), &d);
    auto* verweis = new LinkLabel(QStringLiteral("cmdProbe"), QStringLiteral("Verweis"), &d);
    auto* liste = new QListWidget(&d);
    d.show();
    qApp->removeEventFilter(&wächter);
    QCOMPARE(kopf->palette().color(QPalette::WindowText), FarbeAusWert(0xE0E0E0));
    QCOMPARE(text->palette().color(QPalette::WindowText), FarbeAusWert(0xE0E0E0));
    QCOMPARE(d.palette().color(QPalette::Window), QColor(0x40, 0x40, 0x40));
    QCOMPARE(verweis->palette().color(QPalette::WindowText), QColor(0xFF, 0x80, 0));  // 0x0080FF
    QVERIFY(verweis->font().underline());
    QCOMPARE(liste->palette().color(QPalette::Base), QColor(0, 0, 0x80));
    QCOMPARE(liste->palette().color(QPalette::Text), QColor(255, 255, 255));
}

#include "OptionenFensterTest.moc"

int OptionenFensterTestAusführen(int argc, char** argv) {
    OptionenFensterTest t;
    return QTest::qExec(&t, argc, argv);
}
