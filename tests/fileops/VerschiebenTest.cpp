// DateiVerschieben in allen Schritten, NamenBereinigen und fortlaufende Namen.
#include "app/Pfade.h"
#include "fileops/FortlaufendeNamen.h"
#include "fileops/Verschieben.h"
#include "fileops/DateiTestHilfen.h"
#include "support/Attrappen.h"
#include "support/OhneVorrechte.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sys/stat.h>

namespace {
long Rechte(const std::string& pfad) {
    struct stat st {};
    return ::stat(pfad.c_str(), &st) == 0 ? long(st.st_mode & 07777) : -1;
}

size_t EinträgeIn(const std::string& ordner) {
    size_t n = 0;
    for ([[maybe_unused]] auto& e : std::filesystem::directory_iterator(ordner)) ++n;
    return n;
}
}  // namespace

TEST(NamenBereinigen, ZeichenRegeln) {
    EXPECT_EQ(NamenBereinigen("a*b?c.mp3", false), "abc.mp3");
    EXPECT_EQ(NamenBereinigen("Queen: \"Live\" <1981> |x|.mp3", false), "Queen Live 1981 x.mp3");
    EXPECT_EQ(NamenBereinigen("AC/DC\\x.mp3", false), "ACDCx.mp3");
    EXPECT_EQ(NamenBereinigen("/musik/AC:DC/", true), "/musik/AC:DC/");
    EXPECT_EQ(NamenBereinigen("/musik/ziel/", false), "");
    EXPECT_EQ(NamenBereinigen("/musik//ziel", true), "");
    EXPECT_EQ(NamenBereinigen("a\\\\b", true), "");
    EXPECT_EQ(NamenBereinigen("a/\\b", true), "");
    EXPECT_EQ(NamenBereinigen("", true), "");
    // Steuerzeichen fallen weg, Tab und Zeilenenden bleiben; ab 160 und ab 256 ist alles erlaubt.
    EXPECT_EQ(NamenBereinigen(std::string("a\x01\x1f\x7f\tb\r\n", 9), false), "a\tb\r\n");
    EXPECT_EQ(NamenBereinigen("Über ♫ ß é", false), "Über ♫ ß é");
    // U+0091 und U+0092 sind erlaubt, U+0085 nicht.
    EXPECT_EQ(NamenBereinigen("x\xC2\x91\xC2\x92\xC2\x85y", false), "x\xC2\x91\xC2\x92y");
    // Namen in alter Kodierung (kein UTF-8) behalten ihre Bytes.
    EXPECT_EQ(NamenBereinigen("M\xE4rz?.mp3", false), "M\xE4rz.mp3");
}

TEST(FortlaufendeNamen, ZählerUndGrenzen) {
    TestOrdner o;
    DateiSchreiben(o / "Lied5.mp3", "5");
    DateiSchreiben(o / "Lied6.mp3", "6");
    EXPECT_EQ(FortlaufendenDateinamen(o / "alt.mp3", "Lied", "5", ""), o / "Lied7.mp3");
    EXPECT_EQ(FortlaufendenDateinamen(o / "alt", "Lied", "5", "x"), o / "Lied5x");
    EXPECT_EQ(ZuNächsterZahl("007"), "8");
    EXPECT_EQ(ZuNächsterZahl(" 41 "), "42");
    EXPECT_EQ(ZuNächsterZahl("abc"), "");
    EXPECT_EQ(ZuNächsterZahl("2147483647"), "");
    // Kein Zähler, der weiterkommt: nach 10.000 Runden aufgeben statt ewig suchen.
    DateiSchreiben(o / "x.mp3", "");
    EXPECT_EQ(FortlaufendenDateinamen(o / "a.mp3", "x", "", ""), "");
}

TEST(DateiVerschieben, GleicherNameFehlendeQuelleUndSchreibweise) {
    TestUmgebung u;
    TestOrdner o;
    const std::string a = o / "a.mp3";
    DateiSchreiben(a, "AAA");
    std::string ziel = a, fehler = "alt";
    EXPECT_TRUE(DateiVerschieben(u.k, a, ziel, ModusVerschieben, fehler));
    EXPECT_EQ(fehler, "");

    const std::string weg = o / "weg.mp3";
    ziel = o / "b.mp3";
    EXPECT_FALSE(DateiVerschieben(u.k, weg, ziel, ModusVerschieben, fehler));
    EXPECT_EQ(fehler, "Die Datei '" + weg + "' (Quelldatei) kann nicht verschoben oder umbenannt werden.\nDiese '" +
                          weg + "' existiert nicht.");

    // Nur Groß/Klein: keine Frage, die Datei heißt danach anders.
    ziel = o / "A.MP3";
    EXPECT_TRUE(DateiVerschieben(u.k, a, ziel, ModusVerschieben, fehler)) << fehler;
    EXPECT_EQ(DateiLesen(o / "A.MP3"), "AAA");
    EXPECT_FALSE(DoesExist(a));
    EXPECT_TRUE(u.ui.existiertFragen.empty());
    // Gibt es beide Schreibweisen als eigene Dateien, wird keine überschrieben.
    DateiSchreiben(a, "klein");
    ziel = o / "A.MP3";
    EXPECT_FALSE(DateiVerschieben(u.k, a, ziel, ModusVerschieben, fehler));
    EXPECT_EQ(DateiLesen(a), "klein");
    EXPECT_EQ(DateiLesen(o / "A.MP3"), "AAA");
}

TEST(DateiVerschieben, ZielBestehtUmbenennenErsetzenAbbrechen) {
    TestUmgebung u;
    TestOrdner o;
    const std::string q = o / "q/Lied.mp3", z = o / "z/Lied.mp3";
    DateiSchreiben(q, "neu1");
    DateiSchreiben(z, "altes Ziel");
    DateiSchreiben(o / "z/Lied-0.mp3", "schon da");

    // Umbenennen: die nächste freie Nummer hinter "-".
    u.ui.existiertAntworten = {1};
    std::string ziel = z, fehler;
    ASSERT_TRUE(DateiVerschieben(u.k, q, ziel, ModusVerschieben, fehler)) << fehler;
    EXPECT_EQ(ziel, o / "z/Lied-1.mp3");
    EXPECT_EQ(DateiLesen(ziel), "neu1");
    ASSERT_EQ(u.ui.existiertFragen.size(), 1u);
    EXPECT_EQ(u.ui.existiertFragen[0],
              "Die Datei '" + q + "' (Größe: 4 Bytes) kann nicht umbenannt werden.\nDie Zieldatei '" + z +
                  "' (Größe: 10 Bytes) existiert bereits.\n\nBenennen Sie die Quelldatei mit der Funktion 'Umbenennen' "
                  "in einen einmaligen Dateinamen um (z.B. 'Datei-0.mp3', 'Datei-1.mp3',...) oder wählen Sie "
                  "'Abbrechen', um den Kopiervorgang abzubrechen. Mit der Funktion 'Ersetzen' wird die bereits "
                  "existierende Datei vom Datenträger gelöscht und durch die neue Datei ersetzt.");

    // Abbrechen: nichts geschieht.
    DateiSchreiben(q, "neu2");
    u.ui.existiertAntworten = {3};
    ziel = z;
    EXPECT_FALSE(DateiVerschieben(u.k, q, ziel, ModusVerschieben, fehler));
    EXPECT_EQ(fehler, "Die Datei '" + q + "' kann nicht verschoben oder umbenannt werden.\nDie Zieldatei existiert '" +
                          z + "' bereits und Umbenennen wurde nicht gewünscht.");
    EXPECT_EQ(DateiLesen(q), "neu2");
    EXPECT_EQ(DateiLesen(z), "altes Ziel");

    // Ersetzen: das Ziel bekommt den neuen Inhalt, auch wenn es schreibgeschützt war.
    ::chmod(z.c_str(), 0444);
    u.ui.existiertAntworten = {2};
    ziel = z;
    ASSERT_TRUE(DateiVerschieben(u.k, q, ziel, ModusVerschieben, fehler)) << fehler;
    EXPECT_EQ(DateiLesen(z), "neu2");
    EXPECT_FALSE(DoesExist(q));
}

TEST(DateiVerschieben, KopieAufSichSelbst) {
    TestUmgebung u;
    TestOrdner o;
    const std::string a = o / "a.mp3";
    DateiSchreiben(a, "Inhalt");
    // Die Frage erscheint, weil das Ziel die Quelle selbst ist; Ersetzen löschte die einzige Datei.
    u.ui.existiertAntworten = {2, 1};
    std::string ziel = a, fehler;
    EXPECT_FALSE(DateiVerschieben(u.k, a, ziel, ModusKopieren, fehler));
    EXPECT_EQ(fehler, "Die Datei '" + a + "' kann nicht durch sich selbst ersetzt werden.");
    EXPECT_EQ(DateiLesen(a), "Inhalt");
    ziel = a;
    ASSERT_TRUE(DateiVerschieben(u.k, a, ziel, ModusKopieren, fehler)) << fehler;
    EXPECT_EQ(ziel, o / "a-0.mp3");
    EXPECT_EQ(DateiLesen(a), "Inhalt");
    EXPECT_EQ(DateiLesen(ziel), "Inhalt");
    EXPECT_EQ(u.ui.existiertFragen.size(), 2u);
}

TEST(DateiVerschieben, ZielordnerUndBereinigterName) {
    TestUmgebung u;
    TestOrdner o;
    const std::string q = o / "q.mp3";
    DateiSchreiben(q, "x");
    ::chmod(q.c_str(), 0640);
    // Drei fehlende Ebenen, ein Name mit Zeichen, die wegfallen.
    std::string ziel = o / "eins/zwei/drei/Wer? Wie: Was*.mp3", fehler;
    ASSERT_TRUE(DateiVerschieben(u.k, q, ziel, ModusKopieren, fehler)) << fehler;
    EXPECT_EQ(ziel, o / "eins/zwei/drei/Wer Wie Was.mp3");
    EXPECT_EQ(DateiLesen(ziel), "x");
    EXPECT_EQ(Rechte(ziel), 0640);
    EXPECT_TRUE(DoesExist(q));
    EXPECT_EQ(EinträgeIn(o / "eins/zwei/drei"), 1u);  // keine Zwischendatei bleibt liegen

    // Der bereinigte Name besteht schon: er wird nicht überschrieben.
    ziel = o / "eins/zwei/drei/Wer? Wie: Was.mp3";
    EXPECT_FALSE(DateiVerschieben(u.k, q, ziel, ModusVerschieben, fehler));
    EXPECT_EQ(fehler, "Es ist ein Fehler beim Ändern des Dateinamens '" + q +
                          "' aufgetreten.\nDie Datei besteht bereits (Fehler 17).");
    EXPECT_TRUE(DoesExist(q));

    // Ein Teil des Zielpfades ist eine Datei: die zweite Fehlerklasse mit dem Text des Systems.
    ziel = q + "/unter/x.mp3";
    EXPECT_FALSE(DateiVerschieben(u.k, q, ziel, ModusVerschieben, fehler));
    EXPECT_EQ(fehler, "Es ist ein Fehler beim Ändern des Dateinamens '" + q +
                          "' aufgetreten.\nDie Datei besteht bereits (Fehler 17).");
    EXPECT_EQ(DateiLesen(q), "x");
}

TEST(DateiVerschieben, UeberDateisystemeKopierenUndLoeschen) {
    TestOrdner o;
    const std::string fremd = FremdesDateisystem(o.Pfad());
    if (fremd.empty()) GTEST_SKIP() << "Kein zweites Dateisystem (/dev/shm) neben " << o.Pfad();
    TestOrdner f(fremd);
    TestUmgebung u;
    const std::string q = o / "quelle/Lied.mp3";
    const std::string inhalt(3 << 20, 'k');  // größer als ein Kopierpuffer
    DateiSchreiben(q, inhalt);
    ::chmod(q.c_str(), 0604);
    std::string ziel = f / "neu/Lied.mp3", fehler;
    ASSERT_TRUE(DateiVerschieben(u.k, q, ziel, ModusVerschieben, fehler)) << fehler;
    EXPECT_EQ(DateiLesen(ziel), inhalt);
    EXPECT_EQ(Rechte(ziel), 0604);
    EXPECT_FALSE(DoesExist(q));
    EXPECT_EQ(EinträgeIn(f / "neu"), 1u);
}

TEST(DateiVerschieben, FehlschlagLaesstQuelleUnberuehrt) {
    TestOrdner o;
    ::chmod(o.Pfad().c_str(), 0777);
    const std::string q = o / "quelle/a.mp3";
    DateiSchreiben(q, "wertvoll");
    ::chmod((o / "quelle").c_str(), 0777);
    std::filesystem::create_directories(o / "gesperrt");
    ::chmod((o / "gesperrt").c_str(), 0555);

    // Schreibgeschützter Zielordner auf demselben Dateisystem: die erste Fehlerklasse.
    const std::string text = OhneVorrechteAusführen([&] {
        TestUmgebung u;
        std::string ziel = o / "gesperrt/a.mp3", fehler;
        return DateiVerschieben(u.k, q, ziel, ModusVerschieben, fehler) ? std::string("gelungen") : fehler;
    });
    EXPECT_EQ(text, "Es ist ein Fehler beim Ändern des Dateinamens '" + q +
                        "' aufgetreten.\nAuf die Datei kann nicht zugegriffen werden (Fehler 13).\n\nStellen Sie "
                        "sicher, dass diese nicht in einem Programm (z.B. Download-Programm, Musikeditor, Audioplayer) "
                        "geöffnet ist und der Zugriff möglich ist (z.B. schreibgeschütztes Laufwerk).");
    EXPECT_EQ(DateiLesen(q), "wertvoll");

    const std::string fremd = FremdesDateisystem(o.Pfad());
    if (fremd.empty()) GTEST_SKIP() << "Kein zweites Dateisystem (/dev/shm) neben " << o.Pfad();
    TestOrdner f(fremd);
    ::chmod(f.Pfad().c_str(), 0555);
    // Kopie über Dateisysteme in einen gesperrten Ordner: nichts entsteht, die Quelle bleibt.
    const std::string zweiter = OhneVorrechteAusführen([&] {
        TestUmgebung u;
        std::string ziel = f / "a.mp3", fehler;
        return DateiVerschieben(u.k, q, ziel, ModusVerschieben, fehler) ? std::string("gelungen") : fehler;
    });
    EXPECT_NE(zweiter.find("(Fehler 13)"), std::string::npos) << zweiter;
    EXPECT_EQ(DateiLesen(q), "wertvoll");
    EXPECT_EQ(EinträgeIn(f.Pfad()), 0u);

    // Die Quelle lässt sich nach der Kopie nicht löschen: beide bleiben, das Ergebnis ist true.
    ::chmod(f.Pfad().c_str(), 0777);
    ::chmod((o / "quelle").c_str(), 0555);
    const std::string dritter = OhneVorrechteAusführen([&] {
        TestUmgebung u;
        std::string ziel = f / "a.mp3", fehler;
        return DateiVerschieben(u.k, q, ziel, ModusVerschieben, fehler) ? std::string("gelungen") : fehler;
    });
    EXPECT_EQ(dritter, "gelungen");
    EXPECT_EQ(DateiLesen(q), "wertvoll");
    EXPECT_EQ(DateiLesen(f / "a.mp3"), "wertvoll");
}
