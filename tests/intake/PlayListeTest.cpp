// Playlisten: Zeilenregeln, Pfadformen, Zeilenenden, Zeichensatz, Abbruch.
#include "intake/PlayListe.h"
#include "index/Dateitypen.h"
#include "shell/Fortschritt.h"
#include "support/Attrappen.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>

#include <vector>

namespace {
std::vector<std::string> IndexPfade(const Kartei& k) {
    std::vector<std::string> pfade;
    for (int32_t i = 1; i <= k.DateiAnzahl; ++i) pfade.push_back(k.DateiPfade[i]);
    return pfade;
}
}  // namespace

TEST(PlayListe, ZeilenregelnUndPfadformen) {
    TestUmgebung u;
    TestOrdner o;
    DateitypenVorgabenEinsetzen(u.k.Optionen);
    u.datenträger.wurzeln[o.Pfad()] = o.Pfad();  // die Wurzel des "Datenträgers" ist der Testordner
    for (const char* n : {"pl/a.mp3", "pl/.mp3", "pl/sub/r.mp3", "wurzel.mp3", "voll.mp3", "pl/Grüße.mp3", "pl/ b.mp3"})
        DateiSchreiben(o / n, "x");
    const std::string liste = o / "pl/liste.m3u";
    DateiSchreiben(liste, "#EXTM3U\r\n"
                          "#EXTINF:180,Interpret - Titel\r\n"
                          "a.mp3\r\n"       // fünf Zeichen: genommen
                          ".mp3\n"          // vier: übergangen, obwohl es die Datei gibt
                          "./.mp3\n"        // dieselbe Datei, lang genug
                          "sub/r.mp3\n"     // neben der Playliste
                          "wurzel.mp3\r\n"  // ab der Wurzel
                          "File1=" +
                              o / "voll.mp3" +
                              "\n"        // PLS-Schlüssel: kein Pfad
                              " b.mp3\n"  // Leerzeichen bleiben stehen
                              "Gr\xFC\xDF"
                              "e.mp3\n"  // Windows-1252
                              "a.mp3\n"  // zweimal in einem Lauf: zweimal drin
                              "fehlt.mp3\n" +
                              o / "voll.mp3");  // voller Pfad, schon im Index: abgelehnt
    u.k.DateiPfade.ReDim(1);
    u.k.DateiDaten.ReDim(1);
    u.k.DateiTreffer.ReDim(1);
    u.k.DateiPfade[1] = o / "voll.mp3";
    u.k.DateiAnzahl = 1;
    EXPECT_TRUE(PlayListLesen(u.k, liste, false, false, false));
    EXPECT_EQ(IndexPfade(u.k),
              (std::vector<std::string>{o / "voll.mp3", o / "pl/a.mp3", o / "pl/./.mp3", o / "pl/sub/r.mp3",
                                        o / "wurzel.mp3", o / "pl/ b.mp3", o / "pl/Grüße.mp3", o / "pl/a.mp3"}));
    EXPECT_EQ(u.ui.titelTexte, std::vector<std::string>{"7 Datei(en) hinzugefügt"});  // auch ohne Meldung
    EXPECT_TRUE(u.ui.meldungen.empty());
    ASSERT_FALSE(u.ui.fortschritte.empty());
    EXPECT_EQ(u.ui.fortschritte.front().vorgang, "Playliste einlesen...");
    EXPECT_FALSE(FortschrittFensterOffen(u.k));

    // Leer: nichts, aber die Meldung. Nicht lesbar: false und kein Wort.
    DateiSchreiben(o / "leer.m3u", "");
    EXPECT_TRUE(PlayListLesen(u.k, o / "leer.m3u", true, true, true));
    EXPECT_EQ(u.ui.titelTexte.back(), "0 Datei(en) hinzugefügt");
    EXPECT_FALSE(PlayListLesen(u.k, o / "gibtsnicht.m3u", true, true, true));
    EXPECT_EQ(u.ui.titelTexte.size(), 2u);
}

TEST(PlayListe, AbbruchBehaeltDasGelesene) {
    TestUmgebung u;
    TestOrdner o;
    DateitypenVorgabenEinsetzen(u.k.Optionen);
    std::string inhalt;
    for (int i = 1; i <= 4; ++i) {
        DateiSchreiben(o / ("lied" + std::to_string(i) + ".mp3"), "x");
        inhalt += "lied" + std::to_string(i) + ".mp3\n";
    }
    DateiSchreiben(o / "liste.m3u", inhalt);
    u.ui.beiEreignissen = [&] {
        if (u.k.Aufnahme.NeueAnzahl == 2) FortschrittAbbrechenGedrückt(u.k);
    };
    EXPECT_FALSE(PlayListLesen(u.k, o / "liste.m3u", true, true, true));
    EXPECT_EQ(u.k.DateiAnzahl, 3);
    EXPECT_EQ(u.ui.titelTexte, std::vector<std::string>{"Hinzufügen abgebrochen"});
}
