// Der Ordner-Durchlauf: Masken, Reihenfolge, Abstieg, Wachstum der Suchliste, Abbruch.
#include "intake/Scanner.h"
#include "shell/Fortschritt.h"
#include "support/Attrappen.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

namespace {
std::vector<std::string> Suchliste(const Kartei& k) {
    std::vector<std::string> liste;
    for (int32_t i = 1; i <= k.Aufnahme.SuchlisteAnzahl; ++i) liste.push_back(k.Aufnahme.Suchliste[i]);
    return liste;
}

EinsBasiert<std::string> Masken(std::vector<std::string> m) {
    EinsBasiert<std::string> e;
    for (auto& s : m) e.Anhängen(s);
    return e;
}
}  // namespace

TEST(Scanner, MaskeBeginntEinZeichenFrueher) {
    EXPECT_TRUE(MaskePasst("lied.mp3", ".mp3"));
    EXPECT_TRUE(MaskePasst("lied.mp3x", ".mp3"));    // ein Zeichen dahinter: passt
    EXPECT_FALSE(MaskePasst("lied.mp3xy", ".mp3"));  // zwei: nicht mehr
    EXPECT_FALSE(MaskePasst(".mp3", ".mp3"));        // gleich lang: nie
    EXPECT_FALSE(MaskePasst("mp3", ".mp3"));
    EXPECT_TRUE(MaskePasst("LIED.MP3", ".mp3"));
    EXPECT_TRUE(MaskePasst("Grüße.Mp3", ".mP3"));
    EXPECT_FALSE(MaskePasst("lied.mp4", ".mp3"));
    EXPECT_TRUE(MaskePasst("x.kkt~", ".kkt"));  // die Sicherungskopie des Index passt mit
}

TEST(Scanner, ReihenfolgeAbstiegUndOrdnerMitEndung) {
    TestUmgebung u;
    TestOrdner o;
    for (const char* n : {"b.mp3", "a.mp3", "Z.mp3", "c.txt", "d.mp3xy", "sub/c.mp3", "sub/tief/d.MP3", "x.mp3/y.mp3"})
        DateiSchreiben(o / n, "x");
    std::filesystem::create_directory(o / "leer.mp3");
    const auto masken = Masken({".mp3"});

    std::string pfad = o.Pfad();
    SuchlisteHinzufügen(u.k, "", 1);
    EXPECT_TRUE(DateienSuchenAPI(u.k, pfad, masken, 1, false));
    EXPECT_EQ(pfad, o.Pfad() + "/");  // der Text des Aufrufers endet jetzt auf "/"
    // Erst die eigenen Dateien in Byte-Reihenfolge, dann die Unterordner, in die Tiefe zuerst.
    const std::vector<std::string> erwartet = {o / "Z.mp3",     o / "a.mp3",          o / "b.mp3",
                                               o / "sub/c.mp3", o / "sub/tief/d.MP3", o / "x.mp3/y.mp3"};
    EXPECT_EQ(Suchliste(u.k), erwartet);

    // Mit "/" am Ende dasselbe; die Liste wächst weiter, bis jemand sie leert.
    EXPECT_TRUE(DateienSuchenAPI(u.k, pfad, masken, 1, false));
    EXPECT_EQ(u.k.Aufnahme.SuchlisteAnzahl, 12);

    // Nur genau 1 steigt ab; -1 (ein "wahr") bleibt auf der Ebene.
    for (int16_t unterordner : {int16_t(0), int16_t(-1)}) {
        SuchlisteHinzufügen(u.k, "", 1);
        EXPECT_TRUE(DateienSuchenAPI(u.k, pfad, masken, unterordner, false));
        EXPECT_EQ(Suchliste(u.k), std::vector<std::string>(erwartet.begin(), erwartet.begin() + 3));
    }
    // Leere Maske: jede Datei, Ordner nie.
    SuchlisteHinzufügen(u.k, "", 1);
    DateienSuchenAPI(u.k, pfad, Masken({""}), 0, false);
    EXPECT_EQ(Suchliste(u.k),
              (std::vector<std::string>{o / "Z.mp3", o / "a.mp3", o / "b.mp3", o / "c.txt", o / "d.mp3xy"}));

    // Ein fehlender Ordner ist leer, das Ergebnis true.
    std::string fehlt = o / "gibtsnicht";
    SuchlisteHinzufügen(u.k, "", 1);
    EXPECT_TRUE(DateienSuchenAPI(u.k, fehlt, masken, 1, false));
    EXPECT_EQ(u.k.Aufnahme.SuchlisteAnzahl, 0);

    // Ein Verweis zurück nach oben läuft nicht im Kreis.
    std::filesystem::create_directory_symlink(o.Pfad(), o / "sub/zurück");
    SuchlisteHinzufügen(u.k, "", 1);
    EXPECT_TRUE(DateienSuchenAPI(u.k, pfad, masken, 1, false));
    EXPECT_EQ(Suchliste(u.k), erwartet);
}

TEST(Scanner, SuchlisteWaechstInTausenderSchritten) {
    TestUmgebung u;
    SuchlisteHinzufügen(u.k, "egal", 1);
    EXPECT_EQ(u.k.Aufnahme.Suchliste.UBound(), 1);
    EXPECT_EQ(u.k.Aufnahme.SuchlisteAnzahl, 0);
    SuchlisteHinzufügen(u.k, "a", 0);
    EXPECT_EQ(u.k.Aufnahme.Suchliste.UBound(), 1);
    SuchlisteHinzufügen(u.k, "b", 2);
    EXPECT_EQ(u.k.Aufnahme.Suchliste.UBound(), 1002);
    for (int i = 3; i <= 1003; ++i) SuchlisteHinzufügen(u.k, std::to_string(i), 0);
    EXPECT_EQ(u.k.Aufnahme.Suchliste.UBound(), 2003);
    EXPECT_EQ(u.k.Aufnahme.Suchliste[1003], "1003");
}

TEST(Scanner, AbbruchInDerTiefe) {
    TestOrdner o;
    for (const char* n : {"a.mp3", "sub/b.mp3", "sub/c.mp3", "sub/d.mp3", "tuv/e.mp3"}) DateiSchreiben(o / n, "x");
    // "Abbrechen" fällt, sobald zwei Dateien gesammelt sind; er wirkt beim nächsten Schritt.
    const auto lauf = [&](bool mitTuv) {
        TestUmgebung u;
        if (!mitTuv) std::filesystem::remove_all(o / "tuv");
        u.ui.beiEreignissen = [&] {
            if (u.k.Aufnahme.SuchlisteAnzahl == 2) FortschrittAbbrechenGedrückt(u.k);
        };
        FortschrittZeigenStarten(u.k, 0, true, false, false, "Durchsuche Ordner");
        SuchlisteHinzufügen(u.k, "", 1);
        std::string pfad = o.Pfad();
        const bool ergebnis = DateienSuchenAPI(u.k, pfad, Masken({""}), 1, true);
        EXPECT_EQ(Suchliste(u.k), (std::vector<std::string>{o / "a.mp3", o / "sub/b.mp3", o / "sub/c.mp3"}));
        return ergebnis;
    };
    // Mit einem weiteren Unterordner merkt die obere Ebene den Abbruch an ihrem nächsten Schritt;
    // ohne hat sie keinen mehr und endet mit true.
    EXPECT_FALSE(lauf(true));
    EXPECT_TRUE(lauf(false));
}

TEST(Scanner, MaskeZähltZeichenNichtBytes) {
    EXPECT_TRUE(MaskePasst("x.mp3\xC3\xA9", ".mp3"));           // "é" ist ein Zeichen hinter der Maske
    EXPECT_FALSE(MaskePasst("x.mp3\xC3\xA9\xC3\xA9", ".mp3"));  // zwei Zeichen: nicht mehr
    EXPECT_TRUE(MaskePasst("\xC3\xA9.mp3", ".mp3"));
    EXPECT_FALSE(MaskePasst("\xC3\xA9", "."));             // ein Zeichen ist nicht länger als die Maske
    EXPECT_TRUE(MaskePasst("Lied_\xE4.mp3\xE4", ".mp3"));  // ein ungültiges Byte zählt als ein Zeichen
}

TEST(Scanner, JederOrdnerNurEinmal) {
    TestUmgebung u;
    TestOrdner o;
    // Eine Kette von 14 Ordnern, jeder mit zwei Verweisen auf den nächsten; am Ende ein Lied.
    for (int i = 0; i < 14; ++i) {
        const std::string ordner = o / ("k" + std::to_string(i));
        std::filesystem::create_directory(ordner);
        for (const char* name : {"/a", "/b"})
            std::filesystem::create_directory_symlink(o / ("k" + std::to_string(i + 1)), ordner + name);
    }
    DateiSchreiben(o / "k14/lied.mp3", "x");
    std::string pfad = o / "k0";
    SuchlisteHinzufügen(u.k, "", 1);
    EXPECT_TRUE(DateienSuchenAPI(u.k, pfad, Masken({".mp3"}), 1, false));
    EXPECT_EQ(Suchliste(u.k), std::vector<std::string>{o / "k0/a/a/a/a/a/a/a/a/a/a/a/a/a/a/lied.mp3"});
}
