// Abspielen, Anhängen, Ausführen und Bilder: was an den Spieler geht, was in der M3U steht.
#include "index/Dateitypen.h"
#include "player/Abspielen.h"
#include "support/Attrappen.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <sys/stat.h>

namespace {
using N = TestSpieler::Nachricht;

// Eine Umgebung mit Index, Cache-Ordner und einem ausführbaren "Spieler" namens name.
struct Abspielen : TestUmgebung {
    explicit Abspielen(const std::string& name = "audacious") {
        setenv("XDG_CACHE_HOME", ordner.Pfad().c_str(), 1);
        DateitypenVorgabenEinsetzen(k.Optionen);
        k.E.WinampPfad = ordner / name;
        DateiSchreiben(k.E.WinampPfad, "#!/bin/sh\n");
        chmod(k.E.WinampPfad.c_str(), 0755);
        spieler.fenster = 3;
    }
    // Einträge mit Pfad; mit Tag (Interpret, Titel, Dauer), wenn titel nicht leer ist.
    int32_t Eintrag(const std::string& pfad, const std::string& interpret = "", const std::string& titel = "",
                    int32_t dauer = 0) {
        const int32_t n = k.DateiAnzahl + 1;
        k.DateiPfade.ReDimPreserve(n);
        k.DateiDaten.ReDimPreserve(n);
        k.DateiTreffer.ReDimPreserve(n);
        k.DateiPfade[n] = pfad;
        DateiInfo& d = k.DateiDaten[n];
        d.Header_Dauer = dauer;
        if (!titel.empty()) {
            d.Mp3_ID3v1_Status = 1;
            d.Mp3_ID3v1_Interpret = interpret;
            d.Mp3_ID3v1_Titel = titel;
        }
        k.DateiAnzahl = n;
        return n;
    }
    EinsBasiert<int32_t> Alle() const {
        EinsBasiert<int32_t> a;
        for (int32_t i = 1; i <= k.DateiAnzahl; ++i) a.Anhängen(i);
        return a;
    }
    std::string Liste() const { return DateiLesen(ordner / "klangkartei/klangkartei.m3u"); }
    TestOrdner ordner;
};

bool Gleich(const std::vector<N>& ist, const std::vector<N>& soll) {
    if (ist.size() != soll.size()) return false;
    for (size_t i = 0; i < ist.size(); ++i)
        if (ist[i].nachricht != soll[i].nachricht || ist[i].wParam != soll[i].wParam || ist[i].lParam != soll[i].lParam)
            return false;
    return true;
}
}  // namespace

TEST(AbspielenMediaPlayer, FünfDateienErsteSofortRestAngehängt) {
    Abspielen u;
    u.Eintrag("/m/a.mp3", "Interpret A", "Titel A", 201);
    u.Eintrag("/m/b.mp3");                  // ohne Tag: keine #EXTINF-Zeile
    u.Eintrag("/m/c.mp3", "C", "Drei", 0);  // Dauer 0: auch keine
    u.Eintrag("/m/d.mp3", "D", "Vier", 1);
    u.Eintrag("/m/e.mp3", "E", "Fünf", 300);
    std::vector<std::string> listen;
    u.shell.beiStart = [&](const TestShell::Start&) { listen.push_back(u.Liste()); };

    ASSERT_TRUE(AbspielenMediaPlayer(u.k, u.Alle(), false, false, false, ""));
    const std::string m3u = u.ordner / "klangkartei/klangkartei.m3u";
    ASSERT_EQ(u.shell.gestartet.size(), 2u);
    for (const auto& s : u.shell.gestartet) {
        EXPECT_EQ(s.programm, u.k.E.WinampPfad);
        EXPECT_EQ(s.argumente, (std::vector<std::string>{m3u, "-e"}));
    }
    EXPECT_EQ(listen[0], "#EXTM3U\n#EXTINF:201,Interpret A - Titel A\n/m/a.mp3\n");
    EXPECT_EQ(listen[1], "#EXTM3U\n/m/b.mp3\n/m/c.mp3\n#EXTINF:1,D - Vier\n/m/d.mp3\n#EXTINF:300,E - Fünf\n/m/e.mp3\n");
    // Zum Ende der Playlist springen, dann spielen; ohne Umschalt wird nichts geleert.
    EXPECT_TRUE(Gleich(u.spieler.gesendet, {{273, 40158, 0}, {273, 40045, 0}}));
    EXPECT_EQ(u.ui.titelTexte.back(), "Dateien in Playlist bei 'audacious'");
    EXPECT_FALSE(u.k.DateiGeändert);  // ein bekannter Spieler: die Erkennung zählt, nicht hier
}

TEST(AbspielenMediaPlayer, AnhängenMitNeuerPlaylistUndNurPfaden) {
    Abspielen u;
    u.k.E.PlaylistFürWinamp = 0;
    u.Eintrag("/m/a.mp3", "A", "Eins", 100);
    u.Eintrag("/m/b.mp3", "B", "Zwei", 100);
    u.k.Spieler.WinampHandle = 3;  // vom letzten Takt
    ASSERT_TRUE(AbspielenMediaPlayer(u.k, u.Alle(), true, false, true, ""));
    // Geleert wird nur vor der ersten Datei; angehängt wird alles in einer Liste, über die Shell.
    EXPECT_TRUE(Gleich(u.spieler.gesendet, {{1024, 0, 101}}));
    ASSERT_EQ(u.shell.gestartet.size(), 1u);
    EXPECT_EQ(u.Liste(), "/m/a.mp3\n/m/b.mp3\n");
    EXPECT_EQ(u.ui.titelTexte, std::vector<std::string>{"Dateien in Playlist bei 'audacious'"});
}

TEST(AbspielenMediaPlayer, BilderUnbekanntesUndAusführen) {
    Abspielen u;
    u.Eintrag("/m/bild1.jpg");
    u.Eintrag("/m/text.xyz");
    u.Eintrag("/m/bild2.gif");
    u.Eintrag("/m/text2.xyz");
    u.ui.antworten = {Meldung::Ja, Meldung::Nein};
    ASSERT_TRUE(AbspielenMediaPlayer(u.k, u.Alle(), false, false, false, ""));
    // Nur Bilder und Unbekanntes: nichts geht an den Spieler, das letzte Bild wird gezeigt.
    EXPECT_TRUE(u.spieler.gesendet.empty());
    EXPECT_TRUE(u.shell.gestartet.empty());
    EXPECT_EQ(u.ui.bilder, std::vector<std::string>{"/m/bild2.gif"});
    ASSERT_EQ(u.ui.meldungen.size(), 2u);
    EXPECT_EQ(u.ui.meldungen[0].text, "Das Dateiformat der Datei '/m/text.xyz' wird z.Zt. nicht unterstützt.\n"
                                      "Möchten Sie die Datei mit dem Standard-Programm anzeigen?");
    EXPECT_EQ(u.ui.meldungen[0].schalter, 36);
    EXPECT_EQ(u.shell.geöffnet, std::vector<std::string>{"/m/text.xyz"});

    // Ausführen: mit dem Standardprogramm bzw. mit dem genannten Programm, Pfad in Anführung.
    u.shell.geöffnet.clear();
    u.ui.bilder.clear();
    EinsBasiert<int32_t> bild;
    bild.Anhängen(1);
    ASSERT_TRUE(AbspielenMediaPlayer(u.k, bild, false, true, false, ""));
    EXPECT_EQ(u.shell.geöffnet, std::vector<std::string>{"/m/bild1.jpg"});
    ASSERT_TRUE(AbspielenMediaPlayer(u.k, bild, false, true, false, "/bin/sh"));
    ASSERT_EQ(u.shell.gestartet.size(), 1u);
    EXPECT_EQ(u.shell.gestartet[0].argumente, std::vector<std::string>{"/m/bild1.jpg"});
    EXPECT_TRUE(u.ui.bilder.empty());
}

TEST(AbspielenMediaPlayer, OhneSpielerMeldungUndFehler) {
    Abspielen u;
    u.k.E.WinampPfad = "";
    u.Eintrag("/m/a.mp3", "A", "Eins", 100);
    u.Eintrag("/m/b.mp3", "B", "Zwei", 100);
    EXPECT_FALSE(AbspielenMediaPlayer(u.k, u.Alle(), false, false, false, ""));
    ASSERT_EQ(u.ui.meldungen.size(), 2u);
    EXPECT_EQ(u.ui.meldungen[0].text, "Sie benötigen einen Audioplayer für diese Funktion.\nBitte installieren Sie "
                                      "z.B. 'Winamp' von https://www.winamp.com und geben Sie den Pfad unter "
                                      "'Optionen' an.");
    EXPECT_EQ(u.ui.meldungen[0].schalter, 64);
    EXPECT_EQ(u.ui.meldungen[1].text,
              "Eine Datei konnte nicht angezeigt werden.\nDateiname oder -nummer falsch (Fehler: 52).");
    EXPECT_EQ(u.ui.meldungen[1].schalter, 48);
    EXPECT_TRUE(u.shell.gestartet.empty());
    EXPECT_TRUE(u.spieler.gesendet.empty());
}

TEST(AbspielenMediaPlayer, AndererSpielerZähltSelbst) {
    Abspielen u("meinspieler");
    u.Eintrag("/m/a.mp3", "A", "Eins", 100);
    u.Eintrag("/m/b.mp3", "B", "Zwei", 100);
    u.k.DateiDaten[2].Datei_AngefordertAnzahl = 4;
    ASSERT_TRUE(AbspielenMediaPlayer(u.k, u.Alle(), false, false, false, ""));
    // Keine Fensterbefehle, aber beide Listen gehen an das Programm, und jedes Abspielen zählt.
    EXPECT_TRUE(u.spieler.gesendet.empty());
    EXPECT_EQ(u.shell.gestartet.size(), 2u);
    EXPECT_EQ(u.k.DateiDaten[1].Datei_AngefordertAnzahl, 1);
    EXPECT_EQ(u.k.DateiDaten[2].Datei_AngefordertAnzahl, 5);
    EXPECT_EQ(u.k.DateiDaten[2].Datei_AngefordertGespieltAm, "16.11.2001 20:15:00");
    EXPECT_TRUE(u.k.DateiGeändert);

    u.k.DateiGeändert = false;
    u.k.E.AbspielStatistikSpeichern = 0;
    ASSERT_TRUE(AbspielenMediaPlayer(u.k, u.Alle(), true, false, false, ""));
    EXPECT_FALSE(u.k.DateiGeändert);
}

TEST(AbspielenMediaPlayer, DoppelklickUndAusführenMit) {
    Abspielen u;
    u.Eintrag("/m/a.mp3", "A", "Eins", 100);
    int tagEditor = 0;
    u.k.E.BeiDoppelklick = 2;
    ASSERT_TRUE(BeiDoppelklickAusführen(u.k, u.Alle(), true, [&] { ++tagEditor; }));
    EXPECT_TRUE(Gleich(u.spieler.gesendet, {}));  // ohne Takt kein Griff: nichts geleert
    EXPECT_EQ(u.shell.gestartet.size(), 1u);
    u.k.E.BeiDoppelklick = 3;
    ASSERT_TRUE(BeiDoppelklickAusführen(u.k, u.Alle(), true, [&] { ++tagEditor; }));
    EXPECT_EQ(tagEditor, 1);
    EXPECT_EQ(u.shell.geöffnet, std::vector<std::string>{"/m/a.mp3"});

    // "Ausführen mit": leer und fehlend werden abgewiesen, das erste gültige Programm gilt und bleibt.
    u.shell.gestartet.clear();
    u.ui.ausführenMitEingaben = {"", "/gibt/es/nicht", "/bin/sh"};
    ASSERT_TRUE(EintragAusführenMit(u.k, u.Alle()));
    ASSERT_EQ(u.ui.meldungen.size(), 2u);
    EXPECT_EQ(u.ui.meldungen[0].text, "Bitte geben Sie ein Programm an.");
    EXPECT_EQ(u.ui.meldungen[1].text, "Die angegebene Datei '/gibt/es/nicht' existiert nicht.");
    EXPECT_EQ(u.k.E.AusführenPfad, "/bin/sh");
    ASSERT_EQ(u.shell.gestartet.size(), 1u);
    EXPECT_EQ(u.shell.gestartet[0].programm, "/bin/sh");
    EXPECT_FALSE(EintragAusführenMit(u.k, u.Alle()));  // abgebrochen
}
