// Verschieben und Kopieren über der Auswahl, Abbruch, Fehler und der Vorschlag von Zielordnern.
#include "app/Pfade.h"
#include "fileops/DateiTestHilfen.h"
#include "fileops/Kopieren.h"
#include "fileops/Verschieben.h"
#include "shell/Fortschritt.h"
#include "support/Attrappen.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>

TEST(Vorschlagen, DurchgerechnetesBeispiel) {
    TestUmgebung u;
    EinträgeSetzen(u.k, {"/D/Rock/Queen/a.mp3", "/D/Rock/Queen/b.mp3", "/E/Live/queen 1981/c.mp3", "/D/Pop/d.mp3",
                         "/D/Neu/x.mp3", "/D/Neu/Queen - Jazz.mp3", "/D/Jazz/e.mp3"});
    DateiInfo& x = u.k.DateiDaten[5];
    x.Mp3_ID3v1_Status = 1;
    x.Mp3_ID3v1_Interpret = "Queen";
    x.Mp3_ID3v1_Album = "Jazz";
    const std::vector<std::string> erwartet = {"/D/Neu", "/D/Rock/Queen", "/E/Live/queen 1981", "/D/Jazz"};
    EXPECT_EQ(ZielordnerVorschlagen(u.k, 5), erwartet);
    // Ohne Tag kommen die Begriffe aus dem Pfad ("D", "Neu", "Queen", "Jazz"): dieselben Ordner,
    // dazu /D/Pop, denn hier ist "D" ein Ordner und kein Laufwerk.
    const std::vector<std::string> ausNamen = {"/D/Neu", "/D/Rock/Queen", "/E/Live/queen 1981", "/D/Pop", "/D/Jazz"};
    EXPECT_EQ(ZielordnerVorschlagen(u.k, 6), ausNamen);
    // Tag mit leeren Feldern: keine Begriffe, nur der eigene Ordner.
    x.Mp3_ID3v1_Interpret.clear();
    x.Mp3_ID3v1_Album.clear();
    EXPECT_EQ(ZielordnerVorschlagen(u.k, 5), std::vector<std::string>{"/D/Neu"});
    EXPECT_TRUE(ZielordnerVorschlagen(u.k, 99).empty());
}

TEST(Kopieren, VerschiebenFuehrtDenIndexNach) {
    TestUmgebung u;
    TestOrdner o;
    DateiSchreiben(o / "alt/a.mp3", "a");
    DateiSchreiben(o / "alt/b.mp3", "b");
    EinträgeSetzen(u.k, {o / "alt/a.mp3", o / "alt/b.mp3"});
    u.ui.antworten = {Meldung::Ja};  // der leere Ordner "alt" darf weg
    EXPECT_FALSE(ZielordnerPrüfen(u.k, ""));
    EXPECT_EQ(u.ui.meldungen.back().text, "Bitte geben Sie einen Zielordner ein.");
    const KopierenErgebnis e = DateienKopieren(u.k, {2, 1}, o / "neu/tief", ModusVerschieben);
    EXPECT_EQ(e.erfolgreich, 2);
    EXPECT_FALSE(e.abgebrochen);
    EXPECT_EQ(IndexPfade(u.k), (std::vector<std::string>{o / "neu/tief/a.mp3", o / "neu/tief/b.mp3"}));
    EXPECT_TRUE(u.k.DateiGeändert);
    EXPECT_FALSE(IstOrdner(o / "alt"));
    EXPECT_EQ(u.k.E.KopierenOrdner, o / "neu/tief/");
    EXPECT_EQ(u.k.E.KopierenModus, ModusVerschieben);
}

TEST(Kopieren, KopienLassenDenIndexInRuhe) {
    TestUmgebung u;
    TestOrdner o;
    DateiSchreiben(o / "a.mp3", "a");
    EinträgeSetzen(u.k, {o / "a.mp3"});
    const KopierenErgebnis e = DateienKopieren(u.k, {1}, o / "kopie/", ModusKopieren);
    EXPECT_EQ(e.erfolgreich, 1);
    EXPECT_EQ(IndexPfade(u.k), std::vector<std::string>{o / "a.mp3"});
    EXPECT_FALSE(u.k.DateiGeändert);
    EXPECT_EQ(DateiLesen(o / "kopie/a.mp3"), "a");
    EXPECT_EQ(DateiLesen(o / "a.mp3"), "a");
}

TEST(Kopieren, AbbruchBehaeltFertigeDateienUndEintraege) {
    TestUmgebung u;
    TestOrdner o;
    for (const char* n : {"a.mp3", "b.mp3", "c.mp3"}) DateiSchreiben(o / n, n);
    EinträgeSetzen(u.k, {o / "a.mp3", o / "b.mp3", o / "c.mp3"});
    u.k.E.StartBildschirm = 1;
    // Nach der ersten Datei drückt die Person "Abbrechen".
    int runden = 0;
    u.ui.beiEreignissen = [&] {
        if (++runden == 2) FortschrittAbbrechenGedrückt(u.k);
    };
    const KopierenErgebnis e = DateienKopieren(u.k, {1, 2, 3}, o / "ziel", ModusVerschieben);
    EXPECT_TRUE(e.abgebrochen);
    ASSERT_GE(e.erfolgreich, 1);
    EXPECT_LT(e.erfolgreich, 3);
    for (int32_t i = 1; i <= 3; ++i) {
        // Jeder Eintrag zeigt auf eine Datei, die es gibt: die fertigen am neuen Platz.
        EXPECT_TRUE(DoesExist(u.k.DateiPfade[i])) << u.k.DateiPfade[i];
        EXPECT_EQ(u.k.DateiPfade[i] == o / "ziel" + "/" + DateinameAusPfad(u.k.DateiPfade[i]), i <= e.erfolgreich);
    }
}

TEST(Kopieren, FehlerFragtUndNeinHaeltAn) {
    TestUmgebung u;
    TestOrdner o;
    for (const char* n : {"b.mp3", "c.mp3", "ziel/a.mp3"}) DateiSchreiben(o / n, n);
    EinträgeSetzen(u.k, {o / "fehlt.mp3", o / "b.mp3", o / "c.mp3"});
    u.ui.antworten = {Meldung::Ja, Meldung::Nein};
    u.ui.existiertAntworten = {3};
    DateiSchreiben(o / "ziel/b.mp3", "anderes b");
    const KopierenErgebnis e = DateienKopieren(u.k, {1, 2, 3}, o / "ziel", ModusVerschieben);
    EXPECT_EQ(e.fehlgeschlagen, 2);
    EXPECT_TRUE(e.abgebrochen);
    ASSERT_EQ(u.ui.meldungen.size(), 2u);
    EXPECT_EQ(u.ui.meldungen[0].text, "Beim Kopieren ist ein Fehler aufgetreten: Die Datei '" + o / "fehlt.mp3" +
                                          "' (Quelldatei) kann nicht verschoben oder umbenannt werden.\nDiese '" +
                                          o / "fehlt.mp3" +
                                          "' existiert nicht.\n\nMöchten Sie mit der nächsten Datei fortfahren?");
    EXPECT_EQ(u.ui.meldungen[0].schalter, Meldung::JaNeinAusruf);
    // c kam nach "Nein" nicht mehr an die Reihe; nichts ist verloren.
    EXPECT_EQ(IndexPfade(u.k), (std::vector<std::string>{o / "fehlt.mp3", o / "b.mp3", o / "c.mp3"}));
    EXPECT_EQ(DateiLesen(o / "b.mp3"), "b.mp3");
    EXPECT_EQ(DateiLesen(o / "ziel/b.mp3"), "anderes b");
    EXPECT_FALSE(DoesExist(o / "ziel/c.mp3"));

    // Bei der letzten Datei nur die Meldung, ohne Frage.
    u.ui.meldungen.clear();
    DateienKopieren(u.k, {1}, o / "ziel", ModusKopieren);
    ASSERT_EQ(u.ui.meldungen.size(), 1u);
    EXPECT_EQ(u.ui.meldungen[0].schalter, Meldung::Ausrufezeichen);
}
