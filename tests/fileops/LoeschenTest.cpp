// Löschen, Papierkorb und leere Ordner.
#include "app/Pfade.h"
#include "fileops/DateiTestHilfen.h"
#include "fileops/Loeschen.h"
#include "support/Attrappen.h"
#include "support/OhneVorrechte.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sys/stat.h>

namespace {
EinsBasiert<int32_t> Plätze(std::initializer_list<int32_t> nummern) {
    EinsBasiert<int32_t> l;
    for (int32_t n : nummern) l.Anhängen(n);
    return l;
}

std::string LeerFrage(const std::string& ordner) {
    return "Der Ordner '" + ordner + "' ist (nun) leer.\n\nMöchten Sie diesen entfernen?";
}
}  // namespace

TEST(Loeschen, EndgueltigMitOrdnerfragen) {
    TestUmgebung u;
    TestOrdner o;
    // A/1 und A/2 nicht nebeneinander: A wird erst nach seiner letzten Datei leer.
    for (const char* n : {"A/1.mp3", "B/1.mp3", "A/2.mp3", "C/1.mp3", "C/2.mp3", "C/3.mp3", "bleibt.mp3"})
        DateiSchreiben(o / n, n);
    ::chmod((o / "A/1.mp3").c_str(), 0444);  // schreibgeschützt wird trotzdem gelöscht
    EinträgeSetzen(u.k, {o / "A/1.mp3", o / "B/1.mp3", o / "A/2.mp3", o / "C/1.mp3", o / "C/2.mp3", o / "C/3.mp3",
                         o / "bleibt.mp3", o / "schon-weg.mp3"});
    auto liste = Plätze({1, 2, 3, 4, 5, 6, 8});
    u.ui.antworten = {Meldung::Ja, Meldung::Nein, Meldung::Ja};  // B weg, A bleibt, C weg
    EXPECT_TRUE(DateienLöschen(u.k, liste, LöschModus::Endgültig, true));

    ASSERT_EQ(u.ui.meldungen.size(), 3u);
    EXPECT_EQ(u.ui.meldungen[0].text, LeerFrage(o / "B"));
    EXPECT_EQ(u.ui.meldungen[0].schalter, Meldung::JaNeinFrage);
    EXPECT_EQ(u.ui.meldungen[1].text, LeerFrage(o / "A"));
    EXPECT_EQ(u.ui.meldungen[2].text, LeerFrage(o / "C"));
    EXPECT_FALSE(IstOrdner(o / "B"));
    EXPECT_TRUE(IstOrdner(o / "A"));
    EXPECT_FALSE(IstOrdner(o / "C"));
    // Eine schon fehlende Datei zählt als gelöscht.
    EXPECT_EQ(IndexPfade(u.k), std::vector<std::string>{o / "bleibt.mp3"});
}

TEST(Loeschen, FehlschlagBehaeltDateiUndEintrag) {
    TestOrdner o;
    ::chmod(o.Pfad().c_str(), 0777);
    DateiSchreiben(o / "frei/a.mp3", "a");
    DateiSchreiben(o / "gesperrt/b.mp3", "b");
    DateiSchreiben(o / "frei/c.mp3", "c");
    DateiSchreiben(o / "frei/d.mp3", "d");
    ::chmod((o / "frei").c_str(), 0777);
    ::chmod((o / "gesperrt").c_str(), 0555);
    const std::string ergebnis = OhneVorrechteAusführen([&] {
        TestUmgebung u;
        EinträgeSetzen(u.k, {o / "frei/a.mp3", o / "gesperrt/b.mp3", o / "frei/c.mp3", o / "frei/d.mp3"});
        auto liste = Plätze({1, 2, 3, 4});
        u.ui.antworten = {Meldung::Ja, Meldung::Nein};  // nach b weiter; den leeren Ordner behalten
        const bool ganz = DateienLöschen(u.k, liste, LöschModus::Endgültig, true);
        std::string s = ganz ? "ganz" : "angehalten";
        for (const auto& m : u.ui.meldungen) s += "|" + std::to_string(m.schalter) + ":" + m.text;
        for (const auto& p : IndexPfade(u.k)) s += "|" + p;
        return s;
    });
    // b ließ sich nicht löschen: Frage, weiter; Datei und Eintrag bleiben, die übrigen sind weg.
    const std::string frage = "Dei Datei '" + o / "gesperrt/b.mp3" +
                              "' konnte nicht gelöscht werden.\n\nMöchten Sie mit der nächsten fortfahren?";
    EXPECT_EQ(ergebnis, "ganz|52:" + frage + "|36:" + LeerFrage(o / "frei") + "|" + o / "gesperrt/b.mp3");
    EXPECT_TRUE(DoesExist(o / "gesperrt/b.mp3"));
}

TEST(Loeschen, NeinHaeltAnUndBehaeltDenRest) {
    TestOrdner o;
    ::chmod(o.Pfad().c_str(), 0777);
    DateiSchreiben(o / "gesperrt/b.mp3", "b");
    DateiSchreiben(o / "frei/c.mp3", "c");
    ::chmod((o / "frei").c_str(), 0777);
    ::chmod((o / "gesperrt").c_str(), 0555);
    const std::string ergebnis = OhneVorrechteAusführen([&] {
        TestUmgebung u;
        EinträgeSetzen(u.k, {o / "gesperrt/b.mp3", o / "frei/c.mp3"});
        auto liste = Plätze({1, 2});
        u.ui.antworten = {Meldung::Nein};
        const bool ganz = DateienLöschen(u.k, liste, LöschModus::Endgültig, true);
        std::string s = ganz ? "ganz" : "angehalten";
        for (const auto& p : IndexPfade(u.k)) s += "|" + p;
        return s;
    });
    EXPECT_EQ(ergebnis, "angehalten|" + o / "gesperrt/b.mp3" + "|" + o / "frei/c.mp3");
    EXPECT_TRUE(DoesExist(o / "frei/c.mp3"));
}

TEST(Loeschen, PapierkorbMitEinerBestaetigung) {
    TestUmgebung u;
    TestOrdner o;
    DateiSchreiben(o / "p/a.mp3", "a");
    DateiSchreiben(o / "p/b.mp3", "b");
    DateiSchreiben(o / "c.mp3", "c");
    EinträgeSetzen(u.k, {o / "p/a.mp3", o / "p/b.mp3", o / "c.mp3"});

    // Leere Liste: keine Frage, kein Aufruf.
    EinsBasiert<int32_t> leer;
    EXPECT_EQ(DateiInPapierkorb(u.k, leer), 0);
    EXPECT_TRUE(u.ui.meldungen.empty());

    // "Nein": nichts geschieht, alle Einträge bleiben.
    auto liste = Plätze({1, 2});
    u.ui.antworten = {Meldung::Nein};
    EXPECT_TRUE(DateienLöschen(u.k, liste, LöschModus::Papierkorb, true));
    EXPECT_EQ(u.k.DateiAnzahl, 3);
    EXPECT_TRUE(u.shell.papierkorb.empty());
    EXPECT_EQ(u.ui.meldungen.back().text, "Möchten Sie 2 Datei(en) in den Papierkorb verschieben?");

    // "Ja": beide in einem Zug, danach die Frage nach dem leeren Ordner.
    liste = Plätze({1, 2});
    u.ui.antworten = {Meldung::Ja, Meldung::Nein};
    EXPECT_TRUE(DateienLöschen(u.k, liste, LöschModus::Papierkorb, true));
    EXPECT_EQ(u.shell.papierkorb, (std::vector<std::string>{o / "p/a.mp3", o / "p/b.mp3"}));
    EXPECT_EQ(u.ui.meldungen.back().text, LeerFrage(o / "p"));
    EXPECT_EQ(IndexPfade(u.k), std::vector<std::string>{o / "c.mp3"});

    // Der Papierkorb verweigert: Datei und Eintrag bleiben, eine Meldung nennt sie.
    u.shell.gelingt = false;
    liste = Plätze({1});
    u.ui.antworten = {Meldung::Ja};
    DateienLöschen(u.k, liste, LöschModus::Papierkorb, true);
    EXPECT_EQ(u.ui.meldungen.back().text,
              "Diese Dateien konnten nicht in den Papierkorb verschoben werden und bleiben im Index:\n" + o / "c.mp3" +
                  " (Papierkorb nicht verfügbar)");
    EXPECT_EQ(IndexPfade(u.k), std::vector<std::string>{o / "c.mp3"});
}

TEST(Loeschen, NurIndexUndAlleEintraege) {
    TestUmgebung u;
    TestOrdner o;
    DateiSchreiben(o / "a.mp3", "a");
    EinträgeSetzen(u.k, {o / "a.mp3", o / "b.mp3"});
    auto liste = Plätze({2, 1, 2});
    EXPECT_TRUE(DateienLöschen(u.k, liste, LöschModus::NurIndex, true));
    EXPECT_EQ(u.k.DateiAnzahl, 0);
    EXPECT_TRUE(DoesExist(o / "a.mp3"));
    EXPECT_TRUE(u.k.DateiGeändert);
    // Die Felder bleiben benutzbar.
    EinträgeSetzen(u.k, {o / "a.mp3"});
    EXPECT_EQ(IndexPfade(u.k), std::vector<std::string>{o / "a.mp3"});
}

TEST(Loeschen, OrdnerFragenUndVerborgeneDateien) {
    TestUmgebung u;
    TestOrdner o;
    std::filesystem::create_directories(o / "leer");
    DateiSchreiben(o / "versteckt/.x", "");
    EXPECT_FALSE(WeitereDateienInOrdner(o / "leer"));
    EXPECT_TRUE(WeitereDateienInOrdner(o / "versteckt/"));
    EXPECT_FALSE(WeitereDateienInOrdner(o / "gibtsnicht"));
    EXPECT_FALSE(OrdnerLöschenFragen(u.k, o / "versteckt"));
    EXPECT_FALSE(OrdnerLöschenFragen(u.k, o / "gibtsnicht"));
    EXPECT_TRUE(u.ui.meldungen.empty());

    u.ui.antworten = {Meldung::Nein, Meldung::Ja};
    EXPECT_TRUE(OrdnerLöschenFragen(u.k, o / "leer"));
    EXPECT_TRUE(IstOrdner(o / "leer"));
    EXPECT_TRUE(OrdnerLöschenFragen(u.k, o / "leer"));
    EXPECT_FALSE(IstOrdner(o / "leer"));
    EXPECT_EQ(u.ui.meldungen[0].text, LeerFrage(o / "leer/"));
    EXPECT_EQ(u.ui.meldungen[0].schalter, Meldung::JaNeinAusruf);
    EXPECT_TRUE(OrdnerLöschen(o / "gibtsnicht"));
}
