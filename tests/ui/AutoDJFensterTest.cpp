// frmAutoDJ offscreen: beide Seiten, Meldung bei fehlender Wahl, Zeilenbefehle, Einstellungen beim Schließen.
#include "UiTestHilfen.h"

#include "app/Tabelle.h"
#include "ui/dialoge/frmAutoDJ.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

namespace {
// Das Beispiel aus der Hilfe; heute ist der 16.11.2001 (TestUhr).
void BeispielKartei(Kartei& k) {
    const struct {
        const char* name;
        int32_t zahl;
        const char* am;
    } einträge[] = {{"A", 10, "16.09.2001 12:00:00"},
                    {"B", 6, "16.03.2001 12:00:00"},
                    {"C", 5, "15.11.2001 12:00:00"},
                    {"D", 2, ""},
                    {"E", 1, ""},
                    {"F", 0, ""}};
    for (const auto& e : einträge) {
        IndexGrößeÄndern(k, k.DateiAnzahl + 1, true);
        ++k.DateiAnzahl;
        k.DateiPfade[k.DateiAnzahl] = std::string("/musik/") + e.name + ".mp3";
        DateiInfo& d = k.DateiDaten[k.DateiAnzahl];
        d.Mp3_ID3v1_Status = 1;
        d.Mp3_ID3v1_Interpret = std::string("Band ") + e.name;
        d.Mp3_ID3v1_Titel = std::string("Lied ") + e.name;
        d.Mp3_ID3v1_Genre = std::string(1, char(e.zahl > 0 ? 17 : 8));  // Rock, F ist Jazz
        d.Datei_AngefordertAnzahl = e.zahl;
        d.Datei_AngefordertGespieltAm = e.am;
    }
}

template <typename T> T* Kind(QWidget& w, const char* name) { return w.findChild<T*>(QString::fromUtf8(name)); }

QStringList Zeilen(QListWidget* liste) {
    QStringList z;
    for (int i = 0; i < liste->count(); ++i) z << liste->item(i)->text();
    return z;
}
}  // namespace

class AutoDJFensterTest : public QObject {
    Q_OBJECT
private slots:
    void BeideSeitenUndZeilenbefehle();
};

void AutoDJFensterTest::BeideSeitenUndZeilenbefehle() {
    GuiUmgebung u;
    BeispielKartei(u.k);
    std::vector<std::pair<std::vector<int32_t>, bool>> gespielt;
    AutoDJBefehle befehle{[&](const std::vector<int32_t>& e, bool anhängen) { gespielt.emplace_back(e, anhängen); },
                          {}};
    frmAutoDJ f(nullptr, u.k, std::move(befehle));
    f.show();
    auto* fraSuche = Kind<QWidget>(f, "fraSuche");
    auto* fraErgebnisse = Kind<QWidget>(f, "fraErgebnisse");
    auto* lstFelder = Kind<QListWidget>(f, "lstFelder");
    auto* lstGefunden = Kind<QListWidget>(f, "lstGefunden");
    QVERIFY(fraSuche && fraErgebnisse && lstFelder && lstGefunden);
    QCOMPARE(Zeilen(lstFelder),
             (QStringList{QStringLiteral("Rock"), QStringLiteral("Jazz"), QStringLiteral("(Dateien ohne Genre)")}));
    QCOMPARE(Kind<QLineEdit>(f, "txtMaximum")->text(), QStringLiteral("10"));
    QCOMPARE(Kind<QComboBox>(f, "cboZeiteinheit")->currentText(), QStringLiteral("Tage"));

    // Ohne Genre bleibt die Seite stehen.
    QVERIFY(Drücken(f, "cmdErstellen"));
    QVERIFY(u.MeldungGezeigt("Bitte wählen Sie mindestens ein Genre aus der Liste."));
    QVERIFY(fraSuche->isVisible() && !fraErgebnisse->isVisible());

    lstFelder->item(0)->setSelected(true);
    Kind<QLineEdit>(f, "txtMaximum")->setText(QStringLiteral("2"));
    Kind<QLineEdit>(f, "txtZeit")->setText(QStringLiteral("3"));
    Kind<QCheckBox>(f, "chkAlteSeltener")->setChecked(true);
    Kind<QCheckBox>(f, "chkSehrAlteHäufiger")->setChecked(true);
    Foto(f, "frmAutoDJ-Suche.png");
    QVERIFY(Drücken(f, "cmdErstellen"));
    QVERIFY(!fraSuche->isVisible() && fraErgebnisse->isVisible());
    QVERIFY(!Kind<QPushButton>(f, "cmdErstellen")->isVisible() && Kind<QPushButton>(f, "cmdZurück")->isVisible());
    QCOMPARE(Kind<QLabel>(f, "lblGefundenAnzahl")->text(), QStringLiteral("2 Datei(en) gefunden"));
    QCOMPARE(Zeilen(lstGefunden), (QStringList{QStringLiteral("Band B - Lied B"), QStringLiteral("Band A - Lied A")}));
    QCOMPARE(Kind<QLabel>(f, "lblDatei1")->text(), QStringLiteral("Dateiname"));
    QVERIFY(!Drücken(f, "cmdAbspielen"));  // gesperrt bis eine Zeile markiert ist

    lstGefunden->item(0)->setSelected(true);
    QCOMPARE(Kind<QLabel>(f, "lblDateiname1")->text(), QStringLiteral("/musik/B.mp3"));
    QCOMPARE(Kind<QLabel>(f, "lblStatistik")->text(),
             QStringLiteral("Zuletzt gespielt am 16.03.2001 12:00:00, insgesamt 6 Mal"));
    QVERIFY(Drücken(f, "cmdAbspielen"));
    QVERIFY(Drücken(f, "cmdInPlaylist"));
    QTest::keyClick(lstGefunden, Qt::Key_Return);
    QVERIFY(Drücken(f, "cmdWählenAlle"));
    QCOMPARE(Kind<QLabel>(f, "lblDateiname1")->text(), QStringLiteral("(2 Dateien)"));
    QVERIFY(Drücken(f, "cmdInPlaylist"));
    Foto(f, "frmAutoDJ-Ergebnisse.png");
    using G = std::vector<std::pair<std::vector<int32_t>, bool>>;
    QCOMPARE(gespielt, (G{{{2}, false}, {{2}, true}, {{2}, false}, {{2, 1}, true}}));
    QVERIFY(Drücken(f, "cmdWählenUmkehren"));
    QVERIFY(!Kind<QPushButton>(f, "cmdExport")->isEnabled());

    // Zurück, das Zeitfenster über alles: die Ergebnisseite kommt leer.
    QVERIFY(Drücken(f, "cmdZurück"));
    QVERIFY(fraSuche->isVisible());
    QVERIFY(lstFelder->item(0)->isSelected());
    Kind<QLineEdit>(f, "txtZeit")->setText(QStringLiteral("1000"));
    QVERIFY(Drücken(f, "cmdErstellen"));
    QCOMPARE(Kind<QLabel>(f, "lblGefundenAnzahl")->text(), QStringLiteral("0 Datei(en) gefunden"));
    QCOMPARE(lstGefunden->count(), 0);

    QVERIFY(Drücken(f, "cmdAbbrechen"));
    QCOMPARE(u.k.E.AutoDJFindeAnzahl, std::string("2"));
    QCOMPARE(u.k.E.AutoDJAuslassenZeit, std::string("1000"));
    QCOMPARE(u.k.E.AutoDJAuslassenVorKurzem, int16_t(1));
    QCOMPARE(u.k.E.AutoDJFindenVorLängerem, int16_t(1));
}

int AutoDJFensterTestAusführen(int argc, char** argv) {
    AutoDJFensterTest t;
    return QTest::qExec(&t, argc, argv);
}

#include "AutoDJFensterTest.moc"
