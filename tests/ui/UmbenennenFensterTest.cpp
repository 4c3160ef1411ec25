// Der Dialog der Umbenennung und das Eingabefeld je Datei, offscreen, mit Bildschirmfotos.
#include "UiTestHilfen.h"

#include "app/Pfade.h"
#include "app/Tabelle.h"
#include "support/TestOrdner.h"
#include "ui/dialoge/frmDateiname.h"
#include "ui/dialoge/frmUmbenennen.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QStackedWidget>

namespace {
std::vector<int32_t> Einträge(Kartei& k, const TestOrdner& o, const std::vector<std::string>& namen) {
    std::vector<int32_t> liste;
    for (const auto& name : namen) {
        DateiSchreiben(o / name, name);
        IndexGrößeÄndern(k, k.DateiAnzahl + 1, true);
        k.DateiPfade[++k.DateiAnzahl] = o / name;
        liste.push_back(k.DateiAnzahl);
    }
    return liste;
}

}  // namespace

class UmbenennenFensterTest : public QObject {
    Q_OBJECT
private slots:
    void PrueftWaehltUndBenenntUm();
    void ManuellUeberDasEingabefeld();
};

void UmbenennenFensterTest::PrueftWaehltUndBenenntUm() {
    GuiUmgebung u;
    TestOrdner o;
    const auto liste = Einträge(u.k, o, {"mein lied.mp3"});
    u.k.E.UmbenennenEingabeID3 = "%Titel%";
    u.k.E.UmbenennenEingabeSchreibweise = 0;
    frmUmbenennen f(nullptr, u.k, liste);
    f.show();
    QCOMPARE(f.windowTitle(), QStringLiteral("Dateinamen oder Indexeinträge ändern"));
    auto* lst = f.findChild<QListWidget*>(QStringLiteral("lstFunktionen"));
    auto* fra = f.findChild<QStackedWidget*>(QStringLiteral("fraOptionen"));
    QVERIFY(lst && fra);
    QCOMPARE(lst->count(), 9);
    QCOMPARE(f.findChild<QLineEdit*>(QStringLiteral("txtFormat"))->text(), QStringLiteral("%Titel%"));
    QVERIFY(f.findChild<QPlainTextEdit*>(QStringLiteral("txtVariablen"))
                ->toPlainText()
                .contains(QStringLiteral("%Interpret% ")));

    // Ohne Wahl: Hinweis, der Dialog bleibt offen.
    QVERIFY(Drücken(f, "cmdOk"));
    QVERIFY(u.MeldungGezeigt("Bitte wählen Sie eine Methode aus der Liste."));
    QCOMPARE(u.meldungen.back().schalter, 64);
    QVERIFY(f.isVisible());

    // Platz 5 ist die Schreibweise (Code 4); ihre Seite erscheint allein.
    lst->setCurrentRow(5);
    QCOMPARE(fra->currentWidget()->objectName(), QStringLiteral("fraOptionen5"));
    QVERIFY(fra->currentWidget()->isVisible());
    QVERIFY(!f.findChild<QWidget*>(QStringLiteral("fraOptionen0"))->isVisible());
    QVERIFY(Drücken(f, "cmdOk"));
    QVERIFY(
        u.MeldungGezeigt("Bitte markieren Sie, ob Sie den Dateinamen in Groß- oder in Kleinschreibung ändern wollen."));
    QTest::mouseClick(f.findChild<QRadioButton*>(QStringLiteral("optKleinWörterGross")), Qt::LeftButton);
    QCOMPARE(f.Eingaben().funktion, int16_t(4));
    QCOMPARE(f.Eingaben().unterfunktion, int16_t(4));
    Foto(f, "frmUmbenennen.png");
    QVERIFY(Drücken(f, "cmdOk"));
    QCOMPARE(f.result(), int(QDialog::Accepted));
    QCOMPARE(u.k.DateiPfade[1], o / "Mein Lied.mp3");
    QVERIFY(DoesExist(o / "Mein Lied.mp3"));
    QCOMPARE(u.k.E.UmbenennenEingabeSchreibweise, int16_t(4));

    // Beim nächsten Öffnen steht die Wahl von eben in den Optionen.
    frmUmbenennen wieder(nullptr, u.k, liste);
    QVERIFY(wieder.findChild<QRadioButton*>(QStringLiteral("optKleinWörterGross"))->isChecked());
}

void UmbenennenFensterTest::ManuellUeberDasEingabefeld() {
    GuiUmgebung u;
    TestOrdner o;
    const auto liste = Einträge(u.k, o, {"alt.name.mp3"});
    frmUmbenennen f(nullptr, u.k, liste);
    f.show();
    f.findChild<QListWidget*>(QStringLiteral("lstFunktionen"))->setCurrentRow(3);
    QString titel, gewählt;
    u.ui.dialogSkript = [&](QDialog& d) {
        auto* txt = d.findChild<QLineEdit*>(QStringLiteral("txtDateiname"));
        titel = d.windowTitle();
        gewählt = txt->selectedText();
        Foto(d, "frmDateiname.png");
        txt->setText(QStringLiteral("neu/Name.mp3"));
        Drücken(d, "cmdOk");
    };
    QVERIFY(Drücken(f, "cmdOk"));
    QCOMPARE(titel, QStringLiteral("Datei umbenennen"));
    QCOMPARE(gewählt, QStringLiteral("alt.name"));
    QCOMPARE(u.k.DateiPfade[1], o / "neu/Name.mp3");
    QCOMPARE(DateiLesen(o / "neu/Name.mp3"), std::string("alt.name.mp3"));

    // Abbrechen im Eingabefeld lässt alles, wie es ist.
    frmUmbenennen nochmal(nullptr, u.k, liste);
    nochmal.show();
    nochmal.findChild<QListWidget*>(QStringLiteral("lstFunktionen"))->setCurrentRow(3);
    u.ui.dialogSkript = [](QDialog& d) { Drücken(d, "cmdAbbrechen"); };
    QVERIFY(Drücken(nochmal, "cmdOk"));
    QCOMPARE(u.k.DateiPfade[1], o / "neu/Name.mp3");
    QVERIFY(DoesExist(o / "neu/Name.mp3"));
}

int UmbenennenFensterTestAusführen(int argc, char** argv) {
    UmbenennenFensterTest t;
    return QTest::qExec(&t, argc, argv);
}

#include "UmbenennenFensterTest.moc"
