// Index synchronisieren: Abgleich-Ordner mit und ohne Zielordner, fehlende Dateien, Texte.
#include "app/Pfade.h"
#include "fileops/DateiTestHilfen.h"
#include "index/Dateitypen.h"
#include "intake/Synchronisieren.h"
#include "support/Attrappen.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>

namespace {
struct Umgebung : TestUmgebung {
    Umgebung() { DateitypenVorgabenEinsetzen(k.Optionen); }
    void Abgleich(const std::string& ordner, const std::string& ziel) {
        k.Optionen.SyncOrdner.Anhängen(ordner);
        k.Optionen.SyncUnterordner.Anhängen(1);
        k.Optionen.SyncKopierenInOrdner.Anhängen(ziel);
        k.Optionen.SyncLeer = false;
    }
};
}  // namespace

TEST(Abgleich, OhneOrdnerMeldetUndPrueftTrotzdem) {
    Umgebung u;
    TestOrdner o;
    DateiSchreiben(o / "da.mp3", "x");
    u.k.Optionen.SyncOrdner.ReDim(1);  // die leere Liste hält ein unbenutztes Element
    EinträgeSetzen(u.k, {o / "weg.mp3", o / "da.mp3"});
    const AbgleichErgebnis e = ListeAufräumen(u.k);
    ASSERT_FALSE(u.ui.meldungen.empty());
    EXPECT_EQ(u.ui.meldungen[0].text,
              "Diese Funktion synchronisiert Ordner mit dem Index und entfernt nicht mehr vorhandene Dateien.\nSie "
              "haben jedoch noch keine Ordner zum Synchronisieren angegeben.\n\nKlicken Sie dazu einfach in den "
              "'Optionen' auf 'Index-Optionen'.");
    EXPECT_EQ(e.entfernt, 1);
    EXPECT_EQ(u.ui.titelTexte.back(), "1 Datei(en) entfernt, 0 Datei(en) hinzugefügt");
    EXPECT_EQ(IndexPfade(u.k), std::vector<std::string>{o / "da.mp3"});

    // Mit SYNC_ENTFERNEN 0 wird nichts geprüft und nichts entfernt.
    u.k.Optionen.SyncEntfernen = 0;
    u.k.DateiPfade[1] = o / "wieder-weg.mp3";
    EXPECT_EQ(ListeAufräumen(u.k).entfernt, 0);
    EXPECT_EQ(u.ui.titelTexte.back(), "0 Datei(en) entfernt, 0 Datei(en) hinzugefügt");
}

TEST(Abgleich, ZielordnerNimmtDenBaumMit) {
    Umgebung u;
    TestOrdner o;
    DateiSchreiben(o / "eingang/a.mp3", "a");
    DateiSchreiben(o / "eingang/sub/b.mp3", "b");
    u.Abgleich(o / "eingang", o / "archiv");
    u.ui.antworten = {Meldung::Ja, Meldung::Nein};  // "sub" weg, "eingang" behalten
    const AbgleichErgebnis e = ListeAufräumen(u.k);
    EXPECT_EQ(e.hinzugefügt, 2);
    EXPECT_EQ(IndexPfade(u.k), (std::vector<std::string>{o / "archiv/a.mp3", o / "archiv/sub/b.mp3"}));
    EXPECT_EQ(DateiLesen(o / "archiv/sub/b.mp3"), "b");
    EXPECT_FALSE(IstOrdner(o / "eingang/sub"));
    EXPECT_TRUE(IstOrdner(o / "eingang"));
    EXPECT_EQ(u.ui.titelTexte.back(), "0 Datei(en) entfernt, 2 Datei(en) hinzugefügt");
}

TEST(Abgleich, ZielordnerGleichDemOrdnerUndUngueltigerZielordner) {
    Umgebung u;
    TestOrdner o;
    DateiSchreiben(o / "musik/a.mp3", "a");
    // Der Zielordner ist der Ordner selbst: jede Datei bleibt, wo sie ist, und kommt hinzu.
    u.Abgleich(o / "musik", o / "musik/");
    EXPECT_EQ(ListeAufräumen(u.k).hinzugefügt, 1);
    EXPECT_EQ(IndexPfade(u.k), std::vector<std::string>{o / "musik/a.mp3"});

    Umgebung v;
    v.Abgleich(o / "musik", o / "zi*el");
    const AbgleichErgebnis e = ListeAufräumen(v.k);
    EXPECT_EQ(e.hinzugefügt, 0);
    ASSERT_FALSE(v.ui.meldungen.empty());
    EXPECT_EQ(v.ui.meldungen[0].text, "Beim Kopieren der Datei '" + o / "musik/a.mp3" +
                                          "' ist ein Fehler aufgetreten: \nDer Zielordner-Name '" + o / "zi*el" +
                                          "' enthält ungültige Zeichen.\n\nDie Kopieren-Funktion wurde für diesen "
                                          "Ordner deaktiviert. Ändern Sie den Ordner-Namen in den Optionen.");
    EXPECT_TRUE(DoesExist(o / "musik/a.mp3"));
}
