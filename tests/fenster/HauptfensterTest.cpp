// Zusammenfassung der Auswahl, Menüregeln, Auswahlhelfer und Schließen des Hauptfensters.
#include "app/Ergebnisliste.h"
#include "search/Hauptfenster.h"
#include "shell/Beenden.h"
#include "app/Pfade.h"
#include "support/Attrappen.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>

namespace {
void Einträge(Kartei& k, std::initializer_list<const char*> pfade) {
    k.DateiPfade.ReDim(static_cast<int32_t>(pfade.size()));
    k.DateiDaten.ReDim(static_cast<int32_t>(pfade.size()));
    k.DateiTreffer.ReDim(static_cast<int32_t>(pfade.size()));
    int32_t i = 0;
    for (const char* p : pfade) k.DateiPfade[++i] = p;
    k.DateiAnzahl = i;
}
EinsBasiert<int32_t> Auswahl(std::initializer_list<int32_t> n) {
    EinsBasiert<int32_t> a;
    for (int32_t x : n) a.Anhängen(x);
    return a;
}
std::vector<bool> Flaggen(const Ergebnisliste& l) {
    std::vector<bool> f;
    for (const auto& z : l.zeilen) f.push_back(z.ausgewählt);
    return f;
}
Ergebnisliste Liste(std::initializer_list<bool> gewählt) {
    Ergebnisliste l;
    int32_t n = 0;
    for (bool g : gewählt) l.zeilen.push_back({++n, g});
    return l;
}
}  // namespace

TEST(AuswahlBeschreibung, KeineEineMehrere) {
    TestUmgebung u;
    auto b = AuswahlBeschreibungBerechnen(u.k, {}, 0);
    EXPECT_EQ(b.text1, "Fügen Sie Dateien zum Index hinzu, um dieses Programm zu nutzen.");
    EXPECT_FALSE(b.fett1);
    EXPECT_FALSE(b.nurBeiAusgewähltSichtbar);

    Einträge(u.k, {"/m/Rock/a.mp3", "/m/Rock/Live/b.mp3", "/M/rock/live/2001/c.mp3", "/m/Pop/d.mp3"});
    b = AuswahlBeschreibungBerechnen(u.k, {}, 0);
    EXPECT_EQ(b.text1, "Markieren Sie eine Datei, um ihre Beschreibung anzuzeigen oder weitere Funktionen zu "
                       "aktivieren.");
    EXPECT_TRUE(b.text2.empty());

    u.k.E.FunktionenUnterstreichen = 1;
    b = AuswahlBeschreibungBerechnen(u.k, Auswahl({2}), 1);
    EXPECT_EQ(b.text1, "b.mp3");
    EXPECT_EQ(b.text2, "/m/Rock/Live");
    EXPECT_TRUE(b.fett1 && b.hand1 && b.hand2 && b.unterstrichen1 && b.nurBeiAusgewähltSichtbar);
    EXPECT_EQ(b.farbe1, BeschreibungsFarbe::Funktionen);
    EXPECT_EQ(b.farbe2, BeschreibungsFarbe::Funktionen);

    // Jeder Ordner beginnt mit dem vorigen (ohne Groß/Klein): Verweis auf den letzten Ordner.
    b = AuswahlBeschreibungBerechnen(u.k, Auswahl({1, 2, 3}), 3);
    EXPECT_EQ(b.text1, "Es wurden 3 Dateien gewählt.");
    EXPECT_EQ(b.farbe1, BeschreibungsFarbe::Beschreibungen);
    EXPECT_FALSE(b.unterstrichen1 || b.hand1);
    EXPECT_EQ(b.text2, "/M/rock/live/2001");
    EXPECT_TRUE(b.hand2);
    // Ein fremder Ordner dazwischen: kein Verweis.
    b = AuswahlBeschreibungBerechnen(u.k, Auswahl({1, 4, 2}), 3);
    EXPECT_TRUE(b.text2.empty());
    EXPECT_FALSE(b.hand2);
    EXPECT_TRUE(b.nurBeiAusgewähltSichtbar);
    // Eine Nummer hinter dem Index (nach dem Entfernen) stürzt nicht ab.
    b = AuswahlBeschreibungBerechnen(u.k, Auswahl({9}), 1);
    EXPECT_EQ(b.text1, "");
}

TEST(MenüAktualisieren, RegelnNachAuswahlUndTagStatus) {
    TestUmgebung u;
    Einträge(u.k, {"/a.mp3", "/b.mp3"});
    u.k.DateiDaten[2].Mp3_ID3v1_Status = 1;
    auto m = MenüAktualisieren(u.k, true, Auswahl({2}), 1);
    EXPECT_TRUE(m.mnu_song_mitdiesemnamen);
    EXPECT_FALSE(m.mnu_song_allesongsimordner || m.mnu_song_allesongsmittitel);
    EXPECT_TRUE(m.mnu_wähleabhier && m.mnu_wählebishier);

    m = MenüAktualisieren(u.k, false, Auswahl({1}), 1);  // Status 0: nur Ordner und Zwischenablage
    EXPECT_TRUE(m.mnu_song_allesongsimordner && m.mnu_song_zwischenablage);
    EXPECT_FALSE(m.mnu_song_allesongsmittitel || m.mnu_song_InfosInternet || m.mnu_song_wähletrennzeichen2 ||
                 m.mnu_song_mitdiesemnamen);

    m = MenüAktualisieren(u.k, false, Auswahl({2}), 1);
    EXPECT_TRUE(m.mnu_song_allesongsmittitel && m.mnu_song_allesongsvonalbum && m.mnu_song_allesongsvoninterpret &&
                m.mnu_song_wähletrennzeichen2 && m.mnu_song_InfosInternet && m.mnu_song_allesongsimordner);

    m = MenüAktualisieren(u.k, false, Auswahl({1, 2}), 2);
    EXPECT_FALSE(m.mnu_song_allesongsimordner || m.mnu_song_zwischenablage || m.mnu_song_allesongsmittitel);
    EXPECT_TRUE(m.mnu_wähleabhier);
    m = MenüAktualisieren(u.k, false, {}, 0);
    EXPECT_FALSE(m.mnu_wähleabhier || m.mnu_wählebishier);
}

TEST(Auswahlhelfer, AlleKeineUmkehrenAbHierBisHier) {
    auto l = Liste({false, true, false, true, false, false});
    const auto v = l.version;
    mnu_wähleabhier(l);
    EXPECT_EQ(Flaggen(l), (std::vector<bool>{false, true, false, true, true, true}));
    EXPECT_GT(l.version, v);
    l = Liste({false, false, true, false, true, false});
    mnu_wählebishier(l);
    EXPECT_EQ(Flaggen(l), (std::vector<bool>{true, true, true, true, true, false}));
    mnu_wähleumkehren(l);
    EXPECT_EQ(Flaggen(l), (std::vector<bool>{false, false, false, false, false, true}));
    mnu_wählealle(l);
    EXPECT_EQ(Flaggen(l), std::vector<bool>(6, true));
    mnu_wählekeine(l);
    EXPECT_EQ(Flaggen(l), std::vector<bool>(6, false));
    // Ohne Auswahl wählen ab/bis hier nichts.
    mnu_wähleabhier(l);
    mnu_wählebishier(l);
    EXPECT_EQ(Flaggen(l), std::vector<bool>(6, false));
}

TEST(SongSuche, FeldUndTextNurBeiGenauEinerDatei) {
    TestUmgebung u;
    Einträge(u.k, {"/m/Rock/a.mp3"});
    u.k.DateiDaten[1].Mp3_ID3v1_Titel = "Ein Tag";
    u.k.DateiDaten[1].Mp3_ID3v1_Interpret = "Band";
    u.k.DateiDaten[1].Mp3_ID3v1_Album = "Platte";
    SongSucheZiel z;
    ASSERT_TRUE(SongSucheBestimmen(u.k, SongSuche::Titel, Auswahl({1}), 1, z));
    EXPECT_EQ(z.feld, 3);
    EXPECT_EQ(z.text, "Ein Tag");
    ASSERT_TRUE(SongSucheBestimmen(u.k, SongSuche::Interpret, Auswahl({1}), 1, z));
    EXPECT_EQ(z.feld, 1);
    ASSERT_TRUE(SongSucheBestimmen(u.k, SongSuche::Album, Auswahl({1}), 1, z));
    EXPECT_EQ(z.feld, 2);
    EXPECT_EQ(z.text, "Platte");
    ASSERT_TRUE(SongSucheBestimmen(u.k, SongSuche::Ordner, Auswahl({1}), 1, z));
    EXPECT_EQ(z.feld, 15);
    EXPECT_EQ(z.text, "/m/Rock");
    EXPECT_FALSE(SongSucheBestimmen(u.k, SongSuche::Titel, Auswahl({1, 1}), 2, z));
    ASSERT_EQ(u.ui.meldungen.size(), 1u);
    EXPECT_EQ(u.ui.meldungen[0].text, "Bitte wählen Sie eine Datei.");
    EXPECT_EQ(u.ui.meldungen[0].schalter, 64);
    z = SongSucheNachNamen("Band - Ein Tag - Live");
    EXPECT_EQ(z.feld, 0);
    EXPECT_EQ(z.text, "Band Ein Tag Live");
    EXPECT_EQ(ZwischenablagePfad(u.k, Auswahl({1}), 1), "/m/Rock/a.mp3");
    EXPECT_EQ(ZwischenablagePfad(u.k, Auswahl({1, 1}), 2), "");
}

TEST(Beenden, ReaktionenUndFrage) {
    TestUmgebung u;
    FensterLage normal;
    EXPECT_EQ(BeendenReaktionPrüfen(u.k, SchließGrund::Benutzer, normal), BeendenSchritt::Fragen);
    // Das Ende der Sitzung fragt nie.
    EXPECT_EQ(BeendenReaktionPrüfen(u.k, SchließGrund::Sitzungsende, normal), BeendenSchritt::Weiter);
    FensterLage minimiert;
    minimiert.minimiert = true;
    EXPECT_EQ(BeendenReaktionPrüfen(u.k, SchließGrund::Benutzer, minimiert), BeendenSchritt::Weiter);
    FensterLage erzwungen;
    erzwungen.endeErzwungen = true;
    EXPECT_EQ(BeendenReaktionPrüfen(u.k, SchließGrund::Benutzer, erzwungen), BeendenSchritt::Weiter);

    u.k.E.BeendenReaktion = 1;
    EXPECT_EQ(BeendenReaktionPrüfen(u.k, SchließGrund::Benutzer, normal), BeendenSchritt::Minimieren);
    EXPECT_EQ(BeendenReaktionPrüfen(u.k, SchließGrund::Benutzer, minimiert), BeendenSchritt::Weiter);
    u.k.E.BeendenReaktion = 2;
    EXPECT_EQ(BeendenReaktionPrüfen(u.k, SchließGrund::Benutzer, normal), BeendenSchritt::Weiter);
    u.k.E.BeendenReaktion = 3;
    // Ohne Infobereich: verkleinern statt unauffindbar verstecken.
    EXPECT_EQ(BeendenReaktionPrüfen(u.k, SchließGrund::Benutzer, normal), BeendenSchritt::Minimieren);
    FensterLage mitTray;
    mitTray.trayVorhanden = true;
    EXPECT_EQ(BeendenReaktionPrüfen(u.k, SchließGrund::Benutzer, mitTray), BeendenSchritt::InTray);
    mitTray.versteckt = true;
    EXPECT_EQ(BeendenReaktionPrüfen(u.k, SchließGrund::Benutzer, mitTray), BeendenSchritt::Weiter);
    u.k.E.BeendenReaktion = 7;
    EXPECT_EQ(BeendenReaktionPrüfen(u.k, SchließGrund::Benutzer, normal), BeendenSchritt::Weiter);

    EXPECT_EQ(BeendenAuswahlAnwenden(0, normal), BeendenSchritt::Abbrechen);
    EXPECT_EQ(BeendenAuswahlAnwenden(1, normal), BeendenSchritt::Minimieren);
    EXPECT_EQ(BeendenAuswahlAnwenden(2, normal), BeendenSchritt::Weiter);
    EXPECT_EQ(BeendenAuswahlAnwenden(3, normal), BeendenSchritt::Minimieren);
}

TEST(Beenden, KnöpfeMerkenDieWahlNurMitImmer) {
    TestUmgebung u;
    u.k.E.BeendenReaktion = 2;
    EXPECT_EQ(BeendenKnopfGedrückt(u.k, 1, false), 1);
    EXPECT_EQ(u.k.E.BeendenReaktion, 0);
    EXPECT_EQ(BeendenKnopfGedrückt(u.k, 2, true), 2);
    EXPECT_EQ(u.k.E.BeendenReaktion, 2);
    EXPECT_EQ(BeendenKnopfGedrückt(u.k, 0, true), 0);
    EXPECT_EQ(u.k.E.BeendenReaktion, 2);
}

TEST(Beenden, GeänderterIndexWirdGesichertOderNicht) {
    TestUmgebung u;
    TestOrdner ordner;
    u.k.Dateiname = ordner / "a.kkt";
    u.k.E.StartBildschirm = 0;
    // Unverändert: keine Frage, nichts geschrieben.
    EXPECT_TRUE(GeändertenIndexSichern(u.k));
    EXPECT_FALSE(DoesExist(u.k.Dateiname));
    u.k.DateiGeändert = true;
    u.ui.antworten = {Meldung::Abbrechen, Meldung::Nein, Meldung::Ja};
    EXPECT_FALSE(GeändertenIndexSichern(u.k));  // Abbrechen: bleiben
    EXPECT_TRUE(GeändertenIndexSichern(u.k));   // Nein: ohne Speichern weiter
    EXPECT_FALSE(DoesExist(u.k.Dateiname));
    EXPECT_TRUE(GeändertenIndexSichern(u.k));  // Ja: gespeichert
    EXPECT_TRUE(DoesExist(u.k.Dateiname));
    EXPECT_FALSE(u.k.DateiGeändert);
    ASSERT_EQ(u.ui.meldungen.size(), 3u);
    EXPECT_EQ(u.ui.meldungen[0].schalter, 35);
    // Automatisch speichern: keine Frage.
    u.k.DateiGeändert = true;
    u.k.E.DateiAutomatischSpeichern = 1;
    EXPECT_TRUE(IndexWechselVorbereiten(u.k));
    EXPECT_EQ(u.ui.meldungen.size(), 3u);
    EXPECT_FALSE(u.k.DateiGeändert);
    // Speichern misslingt (Ordner fehlt): bleiben, der Merker bleibt gesetzt.
    u.k.Dateiname = ordner / "fehlt/b.kkt";
    u.k.DateiGeändert = true;
    EXPECT_FALSE(GeändertenIndexSichern(u.k));
    EXPECT_TRUE(u.k.DateiGeändert);
}

TEST(Beenden, SitzungsEndeOhneErlaubnisZuFragen) {
    TestUmgebung u;
    EXPECT_TRUE(SitzungsEndeOhneFrageMöglich(u.k));
    u.k.DateiGeändert = true;
    EXPECT_FALSE(SitzungsEndeOhneFrageMöglich(u.k));  // weder ungefragt speichern noch verwerfen
    u.k.E.DateiAutomatischSpeichern = 1;
    EXPECT_TRUE(SitzungsEndeOhneFrageMöglich(u.k));
}
