// Das echte Hauptfenster, offscreen: Start, Index öffnen, Schließen mit der Speicherfrage.
#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/Start.h"
#include "index/IndexDatei.h"
#include "platform/KonfigRegistrierung.h"
#include "platform/SystemDienste.h"
#include "platform/Verzeichnisse.h"
#include "search/Ergebnisliste.h"
#include "settings/EinstellungenSpeicher.h"
#include "shell/Fortschritt.h"
#include "support/MpegDaten.h"
#include "support/TestOrdner.h"
#include "ui/Programmstart.h"
#include "ui/SongListe.h"
#include "ui/frmMain.h"
#include "UiTestHilfen.h"

#include <QComboBox>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QHeaderView>
#include <QMenu>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTimer>

#include <functional>
#include <map>

namespace {
// Alles wie im Programm, nur Meldungen und Dialoge per Skript und die Shell als Attrappe.
struct Fenster {
    QWidget* besitzer = nullptr;
    GuiOberfläche ui{[this] { return besitzer; }};
    KonfigRegistrierung registrierung{KonfigOrdner() + "/klangkartei.conf"};
    KeinSpielerfenster spieler;
    TestShell shell;
    TestDatenträger datenträger;
    SystemUhr uhr;
    TestZufall zufall;
    Kartei k{Dienste{ui, registrierung, spieler, shell, datenträger, uhr, zufall}};
    std::unique_ptr<frmMain> f;

    std::vector<AufgezeichneteMeldung> meldungen;
    std::deque<int> antworten;
    std::vector<QString> dialoge;                              // in der Reihenfolge des Erscheinens
    std::map<QString, std::function<void(QDialog&)>> skripte;  // je Dialog; sonst schließen

    Fenster() {
        ui.fortschrittAbbrechen = [this] { FortschrittAbbrechenGedrückt(k); };
        ui.meldungsSkript = [this](const std::string& text, int schalter) {
            meldungen.push_back({text, schalter});
            if (schalter == Meldung::Ausrufezeichen || schalter == Meldung::Information) return Meldung::Ok;
            if (antworten.empty()) {
                qWarning("Ungeplante Frage: %s", text.c_str());
                return Meldung::Abbrechen;
            }
            const int a = antworten.front();
            antworten.pop_front();
            return a;
        };
        ui.dialogSkript = [this](QDialog& d) {
            dialoge.push_back(d.objectName());
            auto it = skripte.find(d.objectName());
            if (it != skripte.end()) it->second(d);
        };
    }
    void Starten(const std::vector<std::string>& argumente = {}) {
        StartVorbereiten(k, argumente);
        OrdnerAnlegen(DatenOrdner());
        f = std::make_unique<frmMain>(k, ui, StandardIndexPfad());
        besitzer = f.get();
        FensterStarten(k, *f, ui);
    }
    template <typename T> T* Kind(const char* name) const { return f->findChild<T*>(QString::fromUtf8(name)); }
    QString Text(const char* label) const { return Kind<QLabel>(label)->text(); }
    int Zeilen() const { return f->lstSongs()->model()->rowCount(); }
    bool Gefragt(const std::string& anfang) const {
        for (const auto& m : meldungen)
            if (m.text.rfind(anfang, 0) == 0) return true;
        return false;
    }
};

const char* SpeicherFrage = "Die Indexdatei wurde geändert.";

// Ein Index mit sechs Liedern (ID3v1 gelesen), geschrieben wie vom Programm.
std::string LiederIndex(const TestOrdner& ordner, const std::function<void(IndexOptionen&)>& optionen = {}) {
    TestUmgebung u;
    if (optionen) optionen(u.k.Optionen);
    u.k.E.StartBildschirm = 0;
    const struct {
        const char *datei, *titel, *interpret;
    } lieder[] = {{"01 Ein Tag.mp3", "Ein Tag", "Band A"},       {"02 Ein Tag am Meer.mp3", "Ein Tag am Meer", "Band B"},
                  {"03 Tag ein.mp3", "Tag ein", "Band A"},       {"04 Nacht.mp3", "Nacht", "Chor"},
                  {"05 Morgen.mp3", "Morgen", "Band C"},         {"unter/06 Abend.mp3", "Abend", "Chor"}};
    u.k.DateiPfade.ReDim(6);
    u.k.DateiDaten.ReDim(6);
    u.k.DateiTreffer.ReDim(6);
    for (int32_t i = 1; i <= 6; ++i) {
        const auto& l = lieder[i - 1];
        u.k.DateiPfade[i] = ordner / l.datei;
        u.k.DateiDaten[i].Mp3_ID3v1_Titel = l.titel;
        u.k.DateiDaten[i].Mp3_ID3v1_Interpret = l.interpret;
        u.k.DateiDaten[i].Mp3_ID3v1_Status = 1;
    }
    u.k.DateiAnzahl = 6;
    const std::string pfad = ordner / "lieder.kkt";
    if (!DateiSpeichern(u.k, pfad, false)) qFatal("Index nicht geschrieben");
    return pfad;
}

QStringList Spalte(SongListeAnsicht* liste, int spalte) {
    QStringList werte;
    for (int z = 0; z < liste->model()->rowCount(); ++z) werte << liste->model()->index(z, spalte).data().toString();
    return werte;
}

QPoint ZeilenMitte(SongListeAnsicht* liste, int zeile) {
    return liste->visualRect(liste->model()->index(zeile, 0)).center();
}
}  // namespace

class FensterTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void ErsterStartWillkommenDannHinweis();
    void AbgelehnterIndexSperrtSucheUndListe();
    void SchliessenMitSpeicherfrage();
    void SchliessenOhneFrageBeiAutomatischemSpeichern();
    void AndererIndexUeberDenDateinamen();
    void TippenSortierenWaehlenEntfernen();
    void FeldsucheMitVorschlaegenUndErgaenzung();
    void KontextmenueUndAuswahlhelfer();
    void OrdnerHinzufuegenAblegenZiehen();
    void SpaltenAusDenIndexOptionen();
    void FarbenUndBesuchteBefehle();

private:
    std::unique_ptr<QTemporaryDir> xdg_;
};

// Jeder Fall mit frischen Einstellungen und frischem Standard-Index.
void FensterTest::init() {
    xdg_ = std::make_unique<QTemporaryDir>();
    for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"}) {
        const QString ordner = xdg_->path() + QLatin1Char('/') + QString::fromLatin1(name);
        QDir().mkpath(ordner);
        qputenv(name, ordner.toLocal8Bit());
    }
}

void FensterTest::ErsterStartWillkommenDannHinweis() {
    Fenster w;
    w.skripte[QStringLiteral("frmWillkommen")] = [](QDialog& d) { QVERIFY(Drücken(d, "cmdOk")); };
    w.skripte[QStringLiteral("frmHinweise")] = [](QDialog& d) { QVERIFY(Drücken(d, "cmdOk")); };
    w.Starten();
    QCOMPARE(w.dialoge, (std::vector<QString>{QStringLiteral("frmWillkommen"), QStringLiteral("frmHinweise")}));
    // Der leere Standard-Index ist angelegt und geladen.
    QVERIFY(DoesExist(StandardIndexPfad()));
    QCOMPARE(w.Kind<QLabel>("lblIndexdatei")->text(), QStringLiteral("Klangkt.kkt"));
    QCOMPARE(w.Zeilen(), 0);
    QCOMPARE(w.Text("lblIndexdateiUntertitel1"),
             QStringLiteral("Fügen Sie Dateien zum Index hinzu, um dieses Programm zu nutzen."));
    QVERIFY(!w.Kind<QWidget>("fraNurBeiAusgewählt")->isVisible());
    QVERIFY(w.Kind<QWidget>("fraLinks2")->isVisible());
    QCOMPARE(w.Kind<QComboBox>("cboSuche")->currentIndex(), 0);
    QCOMPARE(w.Kind<QComboBox>("cboSuche")->count(), 22);
    QVERIFY(w.Kind<QComboBox>("txtSongname")->hasFocus() || !QApplication::focusWidget());
    // Begrüßung im Titel nach 500 ms, Zeichen für Zeichen.
    QTRY_VERIFY_WITH_TIMEOUT(w.f->windowTitle().startsWith(QStringLiteral("Willkommen!")), 3000);
    QTRY_COMPARE_WITH_TIMEOUT(w.f->windowTitle(), QStringLiteral("Klangkartei 1.0 - Klangkt.kkt"), 6000);
    // Der Hinweis ist weitergezählt, Start steht auf der Version: beim nächsten Mal kein Willkommen.
    QCOMPARE(w.k.E.TippsAktueller, int16_t{2});
    QCOMPARE(w.k.E.Start, VersionsStart());
}

void FensterTest::AbgelehnterIndexSperrtSucheUndListe() {
    TestOrdner ordner;
    const std::string kaputt = ordner / "kaputt.kkt";
    DateiSchreiben(kaputt, "Das ist keine Indexdatei\r\n");
    Fenster w;
    w.k.E.TippsAktueller = 0;
    w.antworten = {Meldung::Nein};  // "älteres Dateiformat ... laden?" – nein
    w.Starten({kaputt});
    QVERIFY(w.Gefragt("Die Indexdatei '" + kaputt + "' liegt in einem älteren Dateiformat vor"));
    QCOMPARE(w.Kind<QLabel>("lblIndexdatei")->text(), QStringLiteral("(keine Datei geladen)"));
    for (const char* name : {"txtSongname", "cboSuche", "lstSongs", "cmdSucheLöschen", "cmdSucheMehr"})
        QVERIFY2(!w.Kind<QWidget>(name)->isEnabled(), name);
    QVERIFY(!w.Kind<QWidget>("fraLinks2")->isVisible());
    QCOMPARE(w.k.Dateiname, kaputt);  // für den nächsten Start gemerkt
}

void FensterTest::SchliessenMitSpeicherfrage() {
    Fenster w;
    w.k.E.TippsAktueller = 0;
    w.Starten();
    w.dialoge.clear();
    w.k.DateiGeändert = true;
    const std::string vorher = DateiLesen(StandardIndexPfad());
    // frmBeenden fragt zuerst; "Abbrechen" dort lässt das Fenster offen, ohne Speicherfrage.
    w.skripte[QStringLiteral("frmBeenden")] = [](QDialog& d) { QVERIFY(Drücken(d, "cmdAbbrechen")); };
    QVERIFY(!w.f->close());
    QVERIFY(w.f->isVisible());
    QCOMPARE(w.dialoge.size(), size_t{1});
    QVERIFY(!w.Gefragt(SpeicherFrage));
    // Beenden, dann "Abbrechen" bei der Speicherfrage: bleibt offen.
    w.skripte[QStringLiteral("frmBeenden")] = [](QDialog& d) { QVERIFY(Drücken(d, "cmdBeenden")); };
    w.antworten = {Meldung::Abbrechen};
    QVERIFY(!w.f->close());
    QVERIFY(w.f->isVisible());
    QVERIFY(w.Gefragt(SpeicherFrage));
    QCOMPARE(w.meldungen.back().schalter, Meldung::JaNeinAbbrechen);
    // "Nein": endet ohne zu speichern; die Einstellungen sind gespeichert.
    w.antworten = {Meldung::Nein};
    QVERIFY(w.f->close());
    QCOMPARE(DateiLesen(StandardIndexPfad()), vorher);
    QVERIFY(w.k.DateiGeändert);
    QVERIFY(DoesExist(KonfigOrdner() + "/klangkartei.conf"));
    QVERIFY(w.k.E.FensterWidth > 0);
}

void FensterTest::SchliessenOhneFrageBeiAutomatischemSpeichern() {
    Fenster w;
    w.k.E.TippsAktueller = 0;
    w.Starten();
    w.k.E.DateiAutomatischSpeichern = 1;
    w.k.E.BeendenReaktion = 2;  // ohne frmBeenden
    w.k.DateiGeändert = true;
    w.meldungen.clear();
    w.dialoge.clear();
    QVERIFY(w.f->close());
    QVERIFY(w.meldungen.empty());
    QVERIFY(w.dialoge.empty());
    QVERIFY(!w.k.DateiGeändert);  // gespeichert
    // Die Wahl "Immer beenden" bleibt gespeichert.
    Fenster neu;
    neu.k.E.TippsAktueller = 0;
    neu.Starten();
    QCOMPARE(neu.k.E.BeendenReaktion, int16_t{2});
    QCOMPARE(neu.k.E.DateiAutomatischSpeichern, int16_t{1});
    // Lage und Größe kommen in Twips zurück.
    QCOMPARE(neu.k.E.FensterWidth, w.k.E.FensterWidth);
    QCOMPARE(neu.f->width() * 15, w.k.E.FensterWidth);
}

void FensterTest::AndererIndexUeberDenDateinamen() {
    TestOrdner ordner;
    const std::string anderer = ordner / "zwei.kkt";
    Fenster w;
    w.k.E.TippsAktueller = 0;
    w.Starten();
    w.k.DateiGeändert = true;
    // Den neuen Namen eintippen; Speichern gilt dann nicht mehr der geladenen Datei.
    w.skripte[QStringLiteral("frmIndexÖffnen")] = [&](QDialog& d) {
        auto* text = d.findChild<QLineEdit*>(QStringLiteral("txtIndexdatei"));
        QCOMPARE(text->text(), QString::fromStdString(StandardIndexPfad()));
        text->setText(QString::fromStdString(anderer));
        QVERIFY(!d.findChild<QAbstractButton*>(QStringLiteral("cmdSpeichern"))->isEnabled());
        QVERIFY(Drücken(d, "cmdOk"));
    };
    w.antworten = {Meldung::Abbrechen};  // Speicherfrage: bleiben
    QTest::mouseClick(w.Kind<QWidget>("lblIndexdatei"), Qt::LeftButton);
    QCOMPARE(w.k.Dateiname, StandardIndexPfad());
    w.antworten = {Meldung::Ja};  // speichern, dann wechseln
    QTest::mouseClick(w.Kind<QWidget>("lblIndexdatei"), Qt::LeftButton);
    QCOMPARE(w.k.Dateiname, anderer);
    QVERIFY(DoesExist(anderer));  // neu angelegt
    QCOMPARE(w.Kind<QLabel>("lblIndexdatei")->text(), QStringLiteral("zwei.kkt"));
    // Der alte Index wurde vor dem Wechsel gespeichert (neu angelegt war er noch kk100).
    QVERIFY(DateiLesen(StandardIndexPfad()).rfind("#TAG:kk102\r\n", 0) == 0);
    QTRY_VERIFY_WITH_TIMEOUT(w.f->windowTitle().startsWith(QStringLiteral("Die Indexdatei wurde geladen")), 3000);
}

void FensterTest::TippenSortierenWaehlenEntfernen() {
    TestOrdner ordner;
    Fenster w;
    w.k.E.TippsAktueller = 0;
    w.Starten({LiederIndex(ordner)});
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
    QCOMPARE(Spalte(liste, 2), (QStringList{QStringLiteral("Ein Tag am Meer"), QStringLiteral("Ein Tag"),
                                            QStringLiteral("Abend")}));
    QCOMPARE(w.Text("lblIndexdateiUntertitel1"), QStringLiteral("Markieren Sie eine Datei, um ihre Beschreibung "
                                                                "anzuzeigen oder weitere Funktionen zu aktivieren."));
    QVERIFY(!w.Kind<QWidget>("fraNurBeiAusgewählt")->isVisible());
    // Entf und Eingabe ohne Auswahl tun nichts.
    const size_t fragen = w.meldungen.size();
    QTest::keyClick(liste, Qt::Key_Delete);
    QTest::keyClick(liste, Qt::Key_Return);
    QCOMPARE(w.meldungen.size(), fragen);
    // Strg+A wählt alle, Eingabe mit Auswahl: Abspielen kommt erst mit dem Spieler.
    QTest::keyClick(liste, Qt::Key_A, Qt::ControlModifier);
    QTRY_COMPARE(w.Text("lblIndexdateiUntertitel1"), QStringLiteral("Es wurden 3 Dateien gewählt."));
    QVERIFY(w.f->ShiftGedrückt());
    QTest::keyClick(liste, Qt::Key_Return);
    QCOMPARE(w.meldungen.back().text, std::string("Diese Funktion ist noch nicht verfügbar."));
}

void FensterTest::FeldsucheMitVorschlaegenUndErgaenzung() {
    TestOrdner ordner;
    Fenster w;
    w.k.E.TippsAktueller = 0;
    w.Starten({LiederIndex(ordner)});
    auto* cboSuche = w.Kind<QComboBox>("cboSuche");
    auto* txtSongname = w.Kind<QComboBox>("txtSongname");
    auto* eingabe = txtSongname->lineEdit();
    // Feld "Interpret": die Aufklappliste hält die Werte des Index, in seiner Reihenfolge.
    cboSuche->setCurrentIndex(1);
    emit cboSuche->activated(1);
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

void FensterTest::KontextmenueUndAuswahlhelfer() {
    TestOrdner ordner;
    Fenster w;
    w.k.E.TippsAktueller = 0;
    w.Starten({LiederIndex(ordner)});
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
    // Nicht gebaute Befehle sagen es.
    w.f->BefehlAusführen(QStringLiteral("cmdUmbenennen"));
    QCOMPARE(w.meldungen.back().text, std::string("Diese Funktion ist noch nicht verfügbar."));
    QCOMPARE(w.meldungen.back().schalter, Meldung::Information);
}

// Kopfleiste, Gitter, die eigene Spalte mit ihrem Muster als Kopf, Breiten in Twips hin und zurück.
void FensterTest::SpaltenAusDenIndexOptionen() {
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
    QCOMPARE(liste->horizontalHeader()->sectionSize(1), 140);
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

// Befehle in der Farbe der Funktionen (Rot im niedrigsten Byte), nach dem Klick "besucht".
void FensterTest::FarbenUndBesuchteBefehle() {
    Fenster w;
    w.k.E.TippsAktueller = 0;
    w.Starten();
    auto* optionen = w.Kind<QLabel>("cmdOptionen");
    QCOMPARE(optionen->palette().color(QPalette::WindowText), QColor(0, 0, 0xC0));  // 0xC00000
    QTest::mouseClick(optionen, Qt::LeftButton);
    QCOMPARE(w.meldungen.back().text, std::string("Diese Funktion ist noch nicht verfügbar."));
    QCOMPARE(optionen->palette().color(QPalette::WindowText), QColor(0x80, 0, 0));  // besucht: 0x000080
    QCOMPARE(w.Kind<QWidget>("fraLinks1")->palette().color(QPalette::Window), QColor(0xEE, 0xEE, 0xEE));
}

// Ein Ordner mit MP3-Dateien (ID3v1, Byte für Byte gebaut), ein Bild, ein Unterordner.
void FensterTest::OrdnerHinzufuegenAblegenZiehen() {
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
    w.f->BefehlAusführen(QStringLiteral("cmdIndexErstellen"));
    QCOMPARE(w.k.DateiAnzahl, 3);
    QCOMPARE(w.Zeilen(), 3);
    QVERIFY(w.k.DateiGeändert);
    auto* liste = w.f->lstSongs();
    QCOMPARE(Spalte(liste, 2), (QStringList{QStringLiteral("Ein Tag"), QStringLiteral("Nacht"), QStringLiteral("Abend")}));
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

#include "FensterTest.moc"

int FensterTestAusführen(int argc, char** argv) {
    FensterTest t;
    return QTest::qExec(&t, argc, argv);
}
