// Die Nachrichtentabelle des Spielers gegen die Attrappe: Zahlen, Bereiche, Start und Titel.
#include "player/WinampSteuerung.h"
#include "support/Attrappen.h"

#include <gtest/gtest.h>

namespace {
using N = TestSpieler::Nachricht;
bool Gleich(const std::vector<N>& ist, const std::vector<N>& soll) {
    if (ist.size() != soll.size()) return false;
    for (size_t i = 0; i < ist.size(); ++i)
        if (ist[i].nachricht != soll[i].nachricht || ist[i].wParam != soll[i].wParam || ist[i].lParam != soll[i].lParam)
            return false;
    return true;
}

struct MitSpieler : TestUmgebung {
    MitSpieler() {
        k.E.WinampPfad = "/usr/bin/audacious";
        spieler.fenster = 7;
        EXPECT_TRUE(Winamp_Check(k, false));
    }
};
}  // namespace

TEST(Nachrichtentabelle, OhneSpielerNichtsUndKeinWert) {
    TestUmgebung u;
    u.spieler.antworten[1024] = 99;
    EXPECT_EQ(WinAMP_GetTrackLength(u.k), 0);
    EXPECT_EQ(WinAMP_GetTrackPosition(u.k), 0);
    EXPECT_EQ(WinAMP_GetStatus(u.k), "");
    WinAMP_SendCommandMessage(u.k, 40045, false);
    WinAMP_SetVolume(u.k, 100);
    WinAMP_SetBalance(u.k, 10);
    WinAMP_SeekToPosition(u.k, 0);
    EXPECT_TRUE(u.spieler.gesendet.empty());
}

TEST(Nachrichtentabelle, NummernUndBereiche) {
    MitSpieler u;
    WinAMP_SendCommandMessage(u.k, 40048, false);
    WinAMP_SendCommandMessage(u.k, 101, true);
    EXPECT_TRUE(Gleich(u.spieler.gesendet, {{273, 40048, 0}, {1024, 0, 101}}));

    u.spieler.gesendet.clear();
    for (int w : {-1, 0, 255, 256}) WinAMP_SetVolume(u.k, w);
    for (int w : {-128, -127, -1, 0, 127, 128}) WinAMP_SetBalance(u.k, w);
    EXPECT_TRUE(Gleich(
        u.spieler.gesendet,
        {{1024, 0, 122}, {1024, 255, 122}, {1024, 128, 123}, {1024, 254, 123}, {1024, 0, 123}, {1024, 127, 123}}));

    // Springen nur bis genau zur Länge; bei unbekannter Länge (-1) gar nicht.
    int32_t länge = 40;
    u.spieler.beantworten = [&länge](uint32_t n, int32_t w, int32_t l) {
        return n == 1024 && l == 105 && w == 1 ? länge : 0;
    };
    u.spieler.gesendet.clear();
    WinAMP_SeekToPosition(u.k, 40);
    WinAMP_SeekToPosition(u.k, 41);
    WinAMP_SeekToPosition(u.k, -1);
    länge = -1;
    WinAMP_SeekToPosition(u.k, 0);
    EXPECT_TRUE(Gleich(u.spieler.gesendet, {{1024, 1, 105}, {1024, 40000, 106}, {1024, 1, 105}, {1024, 1, 105}}));
}

TEST(Nachrichtentabelle, AbfragenUmgerechnet) {
    MitSpieler u;
    int32_t status = 1, ms = 12999;
    u.spieler.beantworten = [&](uint32_t, int32_t w, int32_t l) {
        if (l == 104) return status;
        return w == 1 ? 200 : ms;
    };
    EXPECT_EQ(WinAMP_GetStatus(u.k), "PLAYING");
    status = 3;
    EXPECT_EQ(WinAMP_GetStatus(u.k), "PAUSED");
    status = 0;
    EXPECT_EQ(WinAMP_GetStatus(u.k), "STOPPED");
    status = 2;
    EXPECT_EQ(WinAMP_GetStatus(u.k), "STOPPED");
    EXPECT_EQ(WinAMP_GetTrackPosition(u.k), 12);  // abgeschnitten, nicht gerundet
    ms = -1;
    EXPECT_EQ(WinAMP_GetTrackPosition(u.k), -1);
    EXPECT_EQ(WinAMP_GetTrackLength(u.k), 200);
}

TEST(Spielerstart, NamenstestFensterUndWarten) {
    TestUmgebung u;
    u.spieler.fenster = 5;
    u.k.Spieler.WinampHandle = 77;
    // Ein unbekannter Spieler: sofort false, der Griff bleibt, wie er war.
    u.k.E.WinampPfad = "/opt/meinspieler/spieler";
    EXPECT_FALSE(Winamp_Check(u.k, true));
    EXPECT_EQ(u.k.Spieler.WinampHandle, 77);
    EXPECT_TRUE(u.shell.gestartet.empty());

    u.k.E.WinampPfad = "/usr/bin/Audacious";
    EXPECT_TRUE(Winamp_Check(u.k, false));
    EXPECT_EQ(u.k.Spieler.WinampHandle, 5);

    // Kein Fenster, Start nicht erlaubt: nichts wird gestartet, der Griff ist 0.
    u.spieler.fenster = 0;
    EXPECT_FALSE(Winamp_Check(u.k, false));
    EXPECT_EQ(u.k.Spieler.WinampHandle, 0);
    EXPECT_TRUE(u.shell.gestartet.empty());

    // Start erlaubt: das Fenster erscheint, während Ereignisse laufen.
    u.k.E.WinampPfad = "vlc";
    int runden = 0;
    u.ui.beiEreignissen = [&] {
        if (++runden == 3) u.spieler.fenster = 9;
    };
    EXPECT_TRUE(Winamp_Check(u.k, true));
    EXPECT_EQ(u.k.Spieler.WinampHandle, 9);
    EXPECT_EQ(u.shell.geöffnet.size() + u.shell.gestartet.size(), 1u);
}

TEST(Spielerstart, GibtNach15SekundenAuf) {
    TestUmgebung u;
    u.k.E.WinampPfad = "/usr/bin/audacious";
    u.uhr.schrittMs = 1000;
    EXPECT_FALSE(WinAMP_Start(u.k, true));
    EXPECT_GE(u.ui.ereignisRunden, 14);
    EXPECT_LE(u.ui.ereignisRunden, 16);
    u.ui.ereignisRunden = 0;
    EXPECT_FALSE(WinAMP_Start(u.k, false));
    EXPECT_EQ(u.ui.ereignisRunden, 1);
}

TEST(Fenstertitel, NummerUndSpielername) {
    TestUmgebung u;
    auto titel = [&u](const std::string& text) {
        u.spieler.titel = text;
        return WinampFensterTitel(u.k, 1);
    };
    EXPECT_EQ(titel("12. Interpret - Titel - Winamp"), "Interpret - Titel");
    EXPECT_EQ(titel("Interpret - Titel"), "Interpret - Titel");
    EXPECT_EQ(titel("Interpret - Titel - WINAMP [Pausiert]"), "Interpret - Titel");
    EXPECT_EQ(titel("3.Titel"), "3.Titel");       // ohne ". " bleibt die Nummer
    EXPECT_EQ(titel("A. B - C"), "A. B - C");     // ohne Ziffer vorn auch
    EXPECT_EQ(titel("1. 2. Titel"), "2. Titel");  // nur bis zum ersten ". "
    EXPECT_EQ(titel(""), "");
}

TEST(ProgrammStarten, ParameterUndArtDesStarts) {
    EXPECT_EQ(ParameterZerlegen("\"/a b/c.m3u\" -e"), (std::vector<std::string>{"/a b/c.m3u", "-e"}));
    EXPECT_EQ(ParameterZerlegen("  x  \"\"  y"), (std::vector<std::string>{"x", "", "y"}));
    EXPECT_TRUE(ParameterZerlegen("").empty());

    TestUmgebung u;
    // Ein Programm wird gestartet, eine Datei mit ihrem Standardprogramm geöffnet.
    EXPECT_GT(ProgrammStarten(u.k, "/bin/sh", "\"/x y.mp3\""), 32);
    ASSERT_EQ(u.shell.gestartet.size(), 1u);
    EXPECT_EQ(u.shell.gestartet[0].argumente, std::vector<std::string>{"/x y.mp3"});
    EXPECT_GT(ProgrammStarten(u.k, "/musik/bild.jpg", ""), 32);
    EXPECT_EQ(u.shell.geöffnet, std::vector<std::string>{"/musik/bild.jpg"});
    u.shell.gelingt = false;
    EXPECT_EQ(ProgrammStarten(u.k, "/musik/bild.jpg", ""), 2);
    EXPECT_EQ(ProgrammStartenVB(u.k, "/bin/sh", ""), 0);

    EXPECT_EQ(SpielerProgramm("sh").front(), '/');
    EXPECT_EQ(SpielerProgramm("/gibt/es/nicht"), "/gibt/es/nicht");
    EXPECT_EQ(SpielerProgramm("gibtesnicht-xyz"), "gibtesnicht-xyz");
}
