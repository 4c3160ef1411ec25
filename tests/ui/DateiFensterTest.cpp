// Die Fenster der Dateioperationen: kopieren/verschieben mit Vorschlag und Zielfrage, löschen.
#include "UiTestHilfen.h"

#include "app/Pfade.h"
#include "app/Tabelle.h"
#include "support/TestOrdner.h"
#include "ui/dialoge/frmKopieren.h"
#include "ui/dialoge/frmLoeschen.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>

namespace {
DateiInfo& Eintrag(Kartei& k, const std::string& pfad) {
    IndexGrößeÄndern(k, k.DateiAnzahl + 1, true);
    ++k.DateiAnzahl;
    k.DateiPfade[k.DateiAnzahl] = pfad;
    return k.DateiDaten[k.DateiAnzahl];
}

QString Q8(const std::string& s) { return QString::fromStdString(s); }
}  // namespace

class DateiFensterTest : public QObject {
    Q_OBJECT
private slots:
    void KopierenMitVorschlagUndZielfrage();
    void LoeschenFragtUndNimmtPapierkorb();
};

void DateiFensterTest::KopierenMitVorschlagUndZielfrage() {
    GuiUmgebung u;
    TestOrdner o;
    DateiSchreiben(o / "neu/a.mp3", "a");
    DateiSchreiben(o / "Queen/b.mp3", "b");
    DateiSchreiben(o / "Queen/a.mp3", "schon da");
    DateiInfo& a = Eintrag(u.k, o / "neu/a.mp3");
    a.Mp3_ID3v1_Status = 1;
    a.Mp3_ID3v1_Interpret = "Queen";
    Eintrag(u.k, o / "Queen/b.mp3");
    u.k.E.KopierenModus = 0;

    frmKopieren f(nullptr, u.k, u.ui, {1});
    f.show();
    QCOMPARE(f.windowTitle(), QStringLiteral("Datei(en) kopieren/verschieben"));
    QVERIFY(f.findChild<QRadioButton*>(QStringLiteral("optKopieren"))->isChecked());
    auto* txtOrdner = f.findChild<QLineEdit*>(QStringLiteral("txtOrdner"));
    txtOrdner->clear();
    QVERIFY(Drücken(f, "cmdOk"));
    QVERIFY(u.MeldungGezeigt("Bitte geben Sie einen Zielordner ein."));
    QVERIFY(f.isVisible());

    // Vorschlag: der eigene Ordner zuerst, dann der mit "Queen"; der zweite wird übernommen.
    QStringList zeilen;
    u.ui.dialogSkript = [&](QDialog& d) {
        auto* liste = d.findChild<QListWidget*>(QStringLiteral("lstOrdner"));
        QVERIFY(liste);
        for (int i = 0; i < liste->count(); ++i) zeilen << liste->item(i)->text();
        QCOMPARE(liste->currentRow(), 0);
        liste->setCurrentRow(1);
        Foto(d, "dateien-frmZielordnerVorschlaege.png");
        QVERIFY(Drücken(d, "cmdOk"));
    };
    QVERIFY(Drücken(f, "cmdVorschlagen"));
    QCOMPARE(zeilen, (QStringList{Q8(o / "neu"), Q8(o / "Queen")}));
    QCOMPARE(txtOrdner->text(), Q8(o / "Queen"));
    f.findChild<QRadioButton*>(QStringLiteral("optVerschieben"))->click();
    Foto(f, "dateien-frmKopieren.png");

    // Das Ziel besteht: "Umbenennen" gibt a-0.mp3; danach wird der leere Ordner angeboten.
    QString beschreibung;
    u.ui.dialogSkript = [&](QDialog& d) {
        QCOMPARE(d.objectName(), QStringLiteral("frmVerschiebenDateiExistiert"));
        beschreibung = d.findChild<QLabel*>(QStringLiteral("lblBeschreibung"))->text();
        Foto(d, "dateien-frmVerschiebenDateiExistiert.png");
        QVERIFY(Drücken(d, "cmdOpt1"));
    };
    u.antworten = {Meldung::Nein};
    QVERIFY(Drücken(f, "cmdOk"));
    QCOMPARE(f.result(), int(QDialog::Accepted));
    QVERIFY(beschreibung.startsWith(QStringLiteral("Die Datei '") + Q8(o / "neu/a.mp3") +
                                    QStringLiteral("' (Größe: 1 Bytes)")));
    QCOMPARE(Q8(u.k.DateiPfade[1]), Q8(o / "Queen/a-0.mp3"));
    QCOMPARE(QString::fromStdString(DateiLesen(o / "Queen/a.mp3")), QStringLiteral("schon da"));
    QVERIFY(u.MeldungGezeigt("Der Ordner '" + o / "neu/" + "' ist (nun) leer.\n\nMöchten Sie diesen entfernen?"));
    QCOMPARE(u.k.E.KopierenModus, int16_t(1));
}

void DateiFensterTest::LoeschenFragtUndNimmtPapierkorb() {
    GuiUmgebung u;
    TestOrdner o;
    DateiSchreiben(o / "x/1.mp3", "1");
    DateiSchreiben(o / "x/2.mp3", "2");
    Eintrag(u.k, o / "x/1.mp3");
    Eintrag(u.k, o / "x/2.mp3");
    frmLöschen f(nullptr, u.k, {1});
    f.show();
    QCOMPARE(f.windowTitle(), QStringLiteral("Dateien löschen"));
    Foto(f, "dateien-frmLoeschen.png");
    // Endgültig nur nach der Frage mit Stoppzeichen; "Nein" lässt alles, wie es ist.
    u.antworten = {Meldung::Nein};
    QVERIFY(Drücken(f, "cmdLöschen"));
    QCOMPARE(u.meldungen.back().text, std::string("1 Datei(en) vom Datenträger löschen?"));
    QCOMPARE(u.meldungen.back().schalter, Meldung::JaNeinStopp);
    QVERIFY(f.isVisible());
    QVERIFY(DoesExist(o / "x/1.mp3"));
    // Papierkorb: eine Bestätigung durch das Programm, dann ist der Eintrag weg.
    u.antworten = {Meldung::Ja};
    QVERIFY(Drücken(f, "cmdPapierkorb"));
    QCOMPARE(f.result(), int(QDialog::Accepted));
    QCOMPARE(u.shell.papierkorb, std::vector<std::string>{o / "x/1.mp3"});
    QCOMPARE(u.k.DateiAnzahl, 1);
    QCOMPARE(Q8(u.k.DateiPfade[1]), Q8(o / "x/2.mp3"));
}

int DateiFensterTestAusführen(int argc, char** argv) {
    DateiFensterTest t;
    return QTest::qExec(&t, argc, argv);
}

#include "DateiFensterTest.moc"
