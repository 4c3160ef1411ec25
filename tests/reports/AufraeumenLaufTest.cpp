// Der Lauf der Aktionen auf echten Dateien, das Detailfeld und das Abspielen einer Trefferdatei.
#include "BerichteHilfen.h"

#include "app/Pfade.h"
#include "index/Dateitypen.h"
#include "reports/Aufraeumen.h"
#include "shell/Fortschritt.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <sys/stat.h>

namespace {
// Fünf Dateien in einem Ordner, der durch "bleibt.txt" nie leer wird (keine Ordnerfragen).
// Eintrag n bekommt die Aktion codes[n-1].
struct Lauf {
    TestUmgebung u;
    TestOrdner o;
    Aufräumen a;
    std::vector<std::string> pfade;

    explicit Lauf(const std::vector<int32_t>& codes, const std::vector<std::string>& namen = {}) {
        DateiSchreiben(o / "m/bleibt.txt", "x");
        for (size_t i = 0; i < codes.size(); ++i) {
            const std::string name = i < namen.size() ? namen[i] : "lied" + std::to_string(i + 1) + ".mp3";
            pfade.push_back(o / ("m/" + name));
            if (!DoesExist(pfade.back())) DateiSchreiben(pfade.back(), "Inhalt " + name);
            Neu(u.k, pfade.back());
        }
        std::vector<DuplikatTreffer> treffer;
        for (int32_t p = 1; p <= u.k.DateiAnzahl; ++p) treffer.push_back({p, 0});
        AufräumenBeginnen(u.k, a, Suchmethode::NichtVorhanden, treffer);
        for (size_t i = 0; i < codes.size(); ++i) AktionSetzen(a, {int32_t(i)}, false, codes[i]);
    }
    std::vector<std::string> Index() const {
        std::vector<std::string> p;
        for (int32_t i = 1; i <= u.k.DateiAnzahl; ++i) p.push_back(u.k.DateiPfade[i]);
        return p;
    }
    std::vector<std::string> Schritte() const {
        std::vector<std::string> s;
        for (const auto& f : u.ui.fortschritte)
            if (f.offen && !f.prozess.empty() && (s.empty() || s.back() != f.prozess)) s.push_back(f.prozess);
        return s;
    }
};

long long Größe(const std::string& pfad) {
    struct stat st {};
    return ::stat(pfad.c_str(), &st) == 0 ? st.st_size : -1;
}
}  // namespace

TEST(AufräumenLauf, AlleSechsSchritteAufEchtenDateien) {
    // 1 löschen, 2 Papierkorb, 3 nur Index, 4 ersetzen, 5 bleibt.
    Lauf l({Aktion::Löschen, Aktion::Papierkorb, Aktion::AusIndex, Aktion::Ersetzen, Aktion::Keine});
    l.u.ui.antworten = {Meldung::Ja};  // die eine Frage des Papierkorbs
    EXPECT_TRUE(AktionenAusführen(l.u.k, l.a));

    EXPECT_FALSE(DoesExist(l.pfade[0]));
    EXPECT_FALSE(DoesExist(l.pfade[1]));
    EXPECT_EQ(l.u.shell.papierkorb, std::vector<std::string>{l.pfade[1]});
    EXPECT_EQ(DateiLesen(l.pfade[2]), "Inhalt lied3.mp3");  // nur aus dem Index
    EXPECT_FALSE(DoesExist(l.pfade[3]));
    EXPECT_EQ(Größe(l.o / "m/lied4.inanderemordner"), 0);
    EXPECT_EQ(l.Index(), std::vector<std::string>{l.pfade[4]});
    EXPECT_TRUE(l.u.k.DateiGeändert);

    ASSERT_EQ(l.u.ui.meldungen.size(), 1u);
    EXPECT_EQ(l.u.ui.meldungen[0].text, "Möchten Sie 1 Datei(en) in den Papierkorb verschieben?");
    ASSERT_FALSE(l.u.ui.fortschritte.empty());
    EXPECT_EQ(l.u.ui.fortschritte[0].vorgang, "Vorgänge werden ausgeführt");
    EXPECT_TRUE(l.u.ui.fortschritte[1].abbrechenSichtbar);
    EXPECT_EQ(l.Schritte(),
              (std::vector<std::string>{"Dateien prüfen", "Dateien löschen", "Dateien in Papierkorb verschieben",
                                        "Dateien ersetzen", "Index anpassen"}));
    EXPECT_FALSE(l.u.ui.fortschritte.back().offen);
    EXPECT_EQ(l.u.ui.titelTexte.back(), "Der Index wurde aufgeräumt");
}

TEST(AufräumenLauf, WasSichNichtAusführenLiessBleibtImIndex) {
    // Eintrag 1 ist ein Ordner (lässt sich nicht löschen), 2 scheitert im Papierkorb, 3 kann nicht
    // ersetzt werden, weil unter dem neuen Namen schon eine fremde Datei liegt, 4 wird ersetzt.
    Lauf l({Aktion::Löschen, Aktion::Papierkorb, Aktion::Ersetzen, Aktion::Ersetzen},
           {"ordner.mp3", "korb.mp3", "belegt.mp3", "frei.mp3"});
    ::unlink(l.pfade[0].c_str());
    DateiSchreiben(l.pfade[0] + "/drin.mp3", "d");
    DateiSchreiben(l.o / "m/belegt.inanderemordner", "fremd");
    l.u.shell.gelingt = false;
    l.u.ui.antworten = {Meldung::Ja, Meldung::Ja};  // nach dem Fehler weiter; Papierkorb ja
    EXPECT_TRUE(AktionenAusführen(l.u.k, l.a));

    EXPECT_EQ(l.Index(), (std::vector<std::string>{l.pfade[0], l.pfade[1], l.pfade[2]}));
    EXPECT_EQ(DateiLesen(l.pfade[1]), "Inhalt korb.mp3");
    EXPECT_EQ(DateiLesen(l.pfade[2]), "Inhalt belegt.mp3");
    EXPECT_EQ(DateiLesen(l.o / "m/belegt.inanderemordner"), "fremd");
    EXPECT_EQ(Größe(l.o / "m/frei.inanderemordner"), 0);
    ASSERT_EQ(l.u.ui.meldungen.size(), 4u);
    EXPECT_EQ(l.u.ui.meldungen[0].schalter, Meldung::JaNeinAusruf);
    EXPECT_EQ(l.u.ui.meldungen[2].text, "Diese Dateien konnten nicht in den Papierkorb verschoben werden und bleiben "
                                        "im Index:\n" +
                                            l.pfade[1] + " (Papierkorb nicht verfügbar)");
    EXPECT_EQ(l.u.ui.meldungen[3].text,
              "Diese Dateien konnten nicht ersetzt werden und bleiben im Index:\n" + l.pfade[2]);
    EXPECT_EQ(l.u.ui.meldungen[3].schalter, Meldung::Ausrufezeichen);
}

TEST(AufräumenLauf, AbbruchBehältWasGetanIst) {
    {
        // Abbruch nach dem Löschen: Papierkorb und Ersetzen unterbleiben, der gelöschte Eintrag
        // ist trotzdem aus dem Index, "nur aus dem Index" kam nicht mehr an die Reihe.
        Lauf l({Aktion::Löschen, Aktion::Papierkorb, Aktion::AusIndex, Aktion::Ersetzen});
        l.u.ui.beiEreignissen = [&l] {
            if (!DoesExist(l.pfade[0])) FortschrittAbbrechenGedrückt(l.u.k);
        };
        EXPECT_FALSE(AktionenAusführen(l.u.k, l.a));
        EXPECT_FALSE(DoesExist(l.pfade[0]));
        EXPECT_TRUE(l.u.shell.papierkorb.empty());
        EXPECT_EQ(DateiLesen(l.pfade[3]), "Inhalt lied4.mp3");
        EXPECT_EQ(l.Index(), (std::vector<std::string>{l.pfade[1], l.pfade[2], l.pfade[3]}));
        EXPECT_TRUE(l.u.ui.meldungen.empty());
        EXPECT_FALSE(FortschrittFensterOffen(l.u.k));
    }
    {
        // Abbruch mitten im Ersetzen: der Klick wirkt beim nächsten Melden, also nach der zweiten
        // Datei. Die ersetzten sind aus dem Index, die dritte bleibt, wie sie war.
        Lauf l({Aktion::Ersetzen, Aktion::Ersetzen, Aktion::Ersetzen});
        l.u.ui.beiEreignissen = [&l] {
            if (DoesExist(l.o / "m/lied1.inanderemordner")) FortschrittAbbrechenGedrückt(l.u.k);
        };
        EXPECT_FALSE(AktionenAusführen(l.u.k, l.a));
        EXPECT_TRUE(DoesExist(l.o / "m/lied2.inanderemordner"));
        EXPECT_EQ(DateiLesen(l.pfade[2]), "Inhalt lied3.mp3");
        EXPECT_FALSE(DoesExist(l.o / "m/lied3.inanderemordner"));
        EXPECT_EQ(l.Index(), std::vector<std::string>{l.pfade[2]});
    }
}

TEST(AufräumenLauf, DetailfeldJeMethode) {
    TestUmgebung u;
    DateiInfo& a = Neu(u.k, "/m/a.mp3");
    a.Datei_Größe = 1234567;
    a.Mp3_ID3v1_Interpret = "Nena";
    a.Mp3_ID3v1_Titel = "99 Luftballons";
    Neu(u.k, "/n/b.mp3").Datei_Größe = 1234567;
    Neu(u.k, "/n/c.mp3").Datei_Größe = 0;
    Aufräumen g;
    AufräumenBeginnen(u.k, g, Suchmethode::Dateigröße, {{1, 2}});
    AktionSetzen(g, {0}, true, Aktion::Papierkorb);
    TrefferDetails d;
    ASSERT_TRUE(TrefferDetailsLesen(u.k, g, 0, d));
    EXPECT_EQ(d.datei1, "Dateiname - Eintrag 1");
    EXPECT_EQ(d.dateiname1, "/m/a.mp3");
    EXPECT_EQ(d.datei2, "Dateiname - Eintrag 2");
    EXPECT_EQ(d.dateiname2, "/n/b.mp3");
    EXPECT_EQ(d.gleichÜberschrift, "Gleiche Dateigröße (Bytes):");
    EXPECT_EQ(d.gleich, "1.234.567");
    EXPECT_EQ(d.aktion1, Aktion::Keine);
    EXPECT_EQ(d.aktion2, Aktion::Papierkorb);
    EXPECT_TRUE(d.zweiteSeite);
    EXPECT_FALSE(TrefferDetailsLesen(u.k, g, 1, d));
    EXPECT_EQ(d.datei1, "");

    AufräumenBeginnen(u.k, g, Suchmethode::Id3v1Felder, {{1, 2}});
    ASSERT_TRUE(TrefferDetailsLesen(u.k, g, 0, d));
    EXPECT_EQ(d.gleich, "Nena - 99 Luftballons");
    // Einzelne Dateien: keine rechte Seite; "##,##" lässt eine Null leer.
    AufräumenBeginnen(u.k, g, Suchmethode::NichtVorhanden, {{3, 0}});
    ASSERT_TRUE(TrefferDetailsLesen(u.k, g, 0, d));
    EXPECT_FALSE(d.zweiteSeite);
    EXPECT_EQ(d.datei2, "");
    EXPECT_EQ(d.gleich, "");
    EXPECT_EQ(TrefferDatei(u.k, g, 0, true), 0);
    EXPECT_EQ(GrößeFormat(-1), "-1");
    EXPECT_EQ(GrößeFormat(999), "999");
}

TEST(AufräumenLauf, TrefferAbspielenSpieltDieEineDatei) {
    TestUmgebung u;
    TestOrdner o;
    setenv("XDG_CACHE_HOME", o.Pfad().c_str(), 1);
    DateitypenVorgabenEinsetzen(u.k.Optionen);
    u.k.E.WinampPfad = o / "audacious";
    DateiSchreiben(u.k.E.WinampPfad, "#!/bin/sh\n");
    ::chmod(u.k.E.WinampPfad.c_str(), 0755);
    u.spieler.fenster = 3;
    Neu(u.k, o / "a.mp3");
    Neu(u.k, o / "b.mp3");
    Aufräumen g;
    AufräumenBeginnen(u.k, g, Suchmethode::Dateiname, {{1, 2}});
    EXPECT_FALSE(TrefferAbspielen(u.k, g, 1, false));
    EXPECT_TRUE(u.shell.gestartet.empty());
    ASSERT_TRUE(TrefferAbspielen(u.k, g, 0, true));
    const std::string liste = DateiLesen(o / "klangkartei/klangkartei.m3u");
    EXPECT_NE(liste.find(o / "b.mp3"), std::string::npos);
    EXPECT_EQ(liste.find(o / "a.mp3"), std::string::npos);
}
