// Erkennung des gespielten Titels und der Takt der Spielertafel, gegen die Attrappe.
#include "app/Datum.h"
#include "player/Erkennung.h"
#include "player/SpielerTakt.h"
#include "support/Attrappen.h"

#include <gtest/gtest.h>

namespace {
struct Index : TestUmgebung {
    int32_t Eintrag(const std::string& pfad) {
        const int32_t n = k.DateiAnzahl + 1;
        k.DateiPfade.ReDimPreserve(n);
        k.DateiDaten.ReDimPreserve(n);
        k.DateiTreffer.ReDimPreserve(n);
        k.DateiPfade[n] = pfad;
        k.DateiAnzahl = n;
        return n;
    }
    int32_t V1(const std::string& pfad, const std::string& interpret, const std::string& titel) {
        const int32_t n = Eintrag(pfad);
        auto& d = k.DateiDaten[n];
        d.Mp3_ID3v1_Status = 1;
        d.Mp3_ID3v1_Interpret = interpret;
        d.Mp3_ID3v1_Titel = titel;
        return n;
    }
    int32_t V2(const std::string& pfad, const std::string& interpret, const std::string& titel) {
        const int32_t n = Eintrag(pfad);
        auto& d = k.DateiDaten[n];
        d.Mp3_ID3v2_Status = 1;
        d.Mp3_ID3v2_TPE1 = interpret;
        d.Mp3_ID3v2_TIT2 = titel;
        return n;
    }
    int32_t Anzahl(int32_t n) const { return k.DateiDaten[n].Datei_AngefordertAnzahl; }
    // Der Titel läuft seit sekunden Sekunden (ab dem ersten Aufruf gezählt).
    void Läuft(const std::string& titel, int32_t sekunden) {
        WinampDateiErkennen(k, titel, AusSekundenzahl(Sekundenzahl(start) + sekunden));
    }
    Datum start{2024, 3, 1, 12, 0, 0};
};
}  // namespace

TEST(WinampDateiErkennen, DreißigSekundenUndEinmal) {
    Index u;
    const int32_t a = u.V1("/m/a.mp3", "Die Ärzte", "Schrei nach Liebe");
    u.Läuft("DIE ÄRZTE - schrei nach liebe", 0);
    u.Läuft("DIE ÄRZTE - schrei nach liebe", 30);
    EXPECT_EQ(u.Anzahl(a), 0);  // genau 30 Sekunden reichen nicht
    EXPECT_TRUE(u.ui.titelTexte.empty());
    u.Läuft("DIE ÄRZTE - schrei nach liebe", 31);
    EXPECT_EQ(u.Anzahl(a), 1);
    EXPECT_EQ(u.k.DateiDaten[a].Datei_AngefordertGespieltAm, "01.03.2024 12:00:31");  // der Takt, nicht der Start
    EXPECT_TRUE(u.k.Spieler.TitelErkannt && u.k.DateiGeändert);
    EXPECT_EQ(u.ui.titelTexte, std::vector<std::string>{"Die derzeit abgespielte Datei wurde 1 Mal erkannt"});
    u.Läuft("DIE ÄRZTE - schrei nach liebe", 400);
    EXPECT_EQ(u.Anzahl(a), 1);  // derselbe Titel zählt einmal

    // Ein anderer Titel dazwischen: danach zählt derselbe wieder.
    u.Läuft("Niemand - Nichts", 401);
    EXPECT_FALSE(u.k.Spieler.TitelErkannt);
    u.Läuft("DIE ÄRZTE - schrei nach liebe", 402);
    u.Läuft("DIE ÄRZTE - schrei nach liebe", 433);
    EXPECT_EQ(u.Anzahl(a), 2);

    // Abgeschaltet: nichts zählt, und erkannt ist nichts.
    u.k.E.AbspielStatistikSpeichern = 0;
    u.Läuft("X - Y", 500);
    u.Läuft("X - Y", 600);
    EXPECT_FALSE(u.k.Spieler.TitelErkannt);
    EXPECT_EQ(u.k.Spieler.AktuellerTitel, "DIE ÄRZTE - schrei nach liebe");
}

TEST(WinampDateiErkennen, StufeEinsTagsMitEigenheit) {
    Index u;
    const int32_t v1 = u.V1("/m/1.mp3", "Interpret", "Ein Titel (Remix)");
    const int32_t v1b = u.V1("/m/2.mp3", "Der Interpret", "Ein Titel");
    const int32_t nurTitel = u.V1("/m/3.mp3", "Anderer", "Ein Titel");
    // Titel in TIT2, Interpret in TPE1: die Stufe prüft beide Teile nur gegen TPE1.
    const int32_t v2getrennt = u.V2("/m/4.mp3", "Interpret", "Ein Titel");
    const int32_t v2beide = u.V2("/m/5.mp3", "Interpret: Ein Titel", "x");
    const int32_t ohneTag = u.Eintrag("/m/Interpret - Ein Titel.mp3");
    u.Läuft(" Interpret  -  Ein Titel ", 0);
    u.Läuft(" Interpret  -  Ein Titel ", 31);
    EXPECT_EQ(u.Anzahl(v1), 1);
    EXPECT_EQ(u.Anzahl(v1b), 1);
    EXPECT_EQ(u.Anzahl(nurTitel), 0);
    EXPECT_EQ(u.Anzahl(v2getrennt), 0);
    EXPECT_EQ(u.Anzahl(v2beide), 1);
    EXPECT_EQ(u.Anzahl(ohneTag), 0);  // Stufe 2 nur, wenn Stufe 1 nichts fand
    EXPECT_EQ(u.ui.titelTexte.back(), "Die derzeit abgespielte Datei wurde 3 Mal erkannt");
}

TEST(WinampDateiErkennen, StufeZweiDateiname) {
    Index u;
    const int32_t lose1 = u.Eintrag("/m/Titel von Interpret.mp3");
    const int32_t lose2 = u.Eintrag("/m/Interpret Titel.mp3");
    const int32_t ganz = u.Eintrag("/m/01 interpret - titel.mp3");
    const int32_t endung = u.Eintrag("/m/Interpret - Titel");  // ohne Endung: der ganze Name
    u.Läuft("Interpret - Titel", 0);
    u.Läuft("Interpret - Titel", 31);
    // Die lose Regel greift einmal (vor jedem ganzen Treffer); ganze Treffer zählen alle.
    EXPECT_EQ(u.Anzahl(lose1), 1);
    EXPECT_EQ(u.Anzahl(lose2), 0);
    EXPECT_EQ(u.Anzahl(ganz), 1);
    EXPECT_EQ(u.Anzahl(endung), 1);
    EXPECT_EQ(u.ui.titelTexte.back(), "Die derzeit abgespielte Datei wurde 3 Mal erkannt");

    // Ohne " - " sind beide Teile leer: der erste Eintrag zählt, auch wenn er den Titel nicht hat.
    Index v;
    const int32_t erster = v.Eintrag("/m/ganz anders.mp3");
    const int32_t zweiter = v.Eintrag("/m/noch anders.mp3");
    v.Läuft("Stream ohne Trenner", 0);
    v.Läuft("Stream ohne Trenner", 31);
    EXPECT_EQ(v.Anzahl(erster), 1);
    EXPECT_EQ(v.Anzahl(zweiter), 0);

    Index w;
    w.Eintrag("/m/a.mp3");
    w.Läuft("X - Y", 0);
    w.Läuft("X - Y", 31);
    EXPECT_EQ(w.ui.titelTexte.back(), "Die derzeit abgespielte Datei wurde nicht erkannt");
    EXPECT_FALSE(w.k.Spieler.TitelErkannt);
}

namespace {
// Ein Spieler mit Status (1 spielt, 3 Pause, 0 Stopp), Position in ms und Länge in s.
struct Takt : Index {
    Takt() {
        k.E.WinampPfad = "/usr/bin/audacious";
        spieler.fenster = 4;
        spieler.titel = "Interpret - Titel";
        spieler.beantworten = [this](uint32_t n, int32_t w, int32_t l) -> int32_t {
            if (n != 1024) return 0;
            if (l == 104) return status;
            if (l == 105) return w == 1 ? länge : ms;
            return 0;
        };
    }
    int32_t status = 1, ms = 12500, länge = 200;
};
}  // namespace

TEST(SpielerTakt, ZuständeDerTafel) {
    Takt u;
    u.V1("/m/a.mp3", "Interpret", "Titel");
    SpielerAnzeige a = SpielerTakt(u.k, false);
    EXPECT_TRUE(a.fraLinks3 && *a.knöpfe && *a.regler && a.titelAktiv && a.reglerSetzen);
    EXPECT_EQ(*a.position, "Titelposition - 0:12/3:20");
    EXPECT_EQ(*a.cmdAbspielen, "Pause");
    EXPECT_EQ(*a.titel, "Audio-Player - 'Interpret - Titel'");
    EXPECT_EQ(u.k.Spieler.TrackPosMaximum, 200);
    EXPECT_EQ(u.k.Spieler.TrackPosWert, 12);

    // 31 Sekunden später: erkannt und gezählt.
    u.uhr.ms += 31000;
    SpielerTakt(u.k, false);
    a = SpielerTakt(u.k, false);
    EXPECT_EQ(*a.titel, "Audio-Player - 'Interpret - Titel' - [Erkannt]");
    EXPECT_EQ(u.k.DateiDaten[1].Datei_AngefordertAnzahl, 1);

    // Während die Person zieht, bleibt der Regler; das Loslassen springt.
    u.ms = 50000;
    TrackPosGezogen(u.k);
    a = SpielerTakt(u.k, false);
    EXPECT_FALSE(a.reglerSetzen);
    EXPECT_EQ(u.k.Spieler.TrackPosWert, 12);
    TrackPosGeändert(u.k, 100);
    EXPECT_FALSE(u.k.Spieler.PositionGeändert);
    EXPECT_EQ(u.spieler.gesendet.back().wParam, 100000);
    EXPECT_EQ(u.spieler.gesendet.back().lParam, 106);
    TrackPosGeändert(u.k, 120);  // vom Takt geschrieben: kein Sprung
    EXPECT_EQ(u.spieler.gesendet.back().wParam, 100000);

    // Pause: Position ohne Bereichsprüfung, Beschriftung "Spielen".
    u.status = 3;
    u.ms = 250000;
    a = SpielerTakt(u.k, false);
    EXPECT_EQ(*a.cmdAbspielen, "Spielen");
    EXPECT_EQ(u.k.Spieler.TrackPosWert, 250);

    // Ein Strom (Länge 0): nur die Tafel, keine Regler, keine Erkennung.
    u.status = 1;
    u.länge = 0;
    u.spieler.titel = "Radio - Stream";
    a = SpielerTakt(u.k, false);
    EXPECT_TRUE(a.fraLinks3);
    EXPECT_FALSE(a.titel || a.knöpfe || a.regler || a.reglerSetzen);
    EXPECT_EQ(u.k.Spieler.AktuellerTitel, "Interpret - Titel");

    u.status = 0;
    a = SpielerTakt(u.k, false);
    EXPECT_FALSE(a.fraLinks3 || *a.knöpfe || *a.regler || a.titelAktiv);
    EXPECT_EQ(*a.titel, "Audio-Player");
    EXPECT_EQ(*a.position, "Titelposition");
    EXPECT_EQ(u.k.Spieler.TrackPosMaximum, 100);
    EXPECT_EQ(u.k.Spieler.TrackPosWert, 1);

    u.spieler.fenster = 0;
    a = SpielerTakt(u.k, false);
    EXPECT_EQ(*a.titel, "Audio-Player (Winamp nicht aktiv)");
    EXPECT_EQ(*a.cmdAbspielen, "Spielen");
    EXPECT_FALSE(a.fraLinks3);
}

TEST(SpielerTakt, KnöpfeUndRegler) {
    Takt u;
    u.k.Spieler.WinampHandle = 4;
    EXPECT_EQ(cmdAbspielen_Click(u.k, "Spielen"), "Pause");
    EXPECT_EQ(cmdAbspielen_Click(u.k, "Pause"), "Spielen");
    cmdWinampNächster_Click(u.k);
    cmdWinampVorheriger_Click(u.k);
    cmdAbspielenStopp_Click(u.k);
    LautstärkeGeändert(u.k, 200);
    BalanceGeändert(u.k, -1);
    std::vector<std::pair<int32_t, int32_t>> soll = {{40045, 0}, {40046, 0}, {40048, 0}, {40044, 0},
                                                     {40047, 0}, {200, 122}, {254, 123}};
    ASSERT_EQ(u.spieler.gesendet.size(), soll.size());
    for (size_t i = 0; i < soll.size(); ++i) {
        EXPECT_EQ(u.spieler.gesendet[i].wParam, soll[i].first) << i;
        EXPECT_EQ(u.spieler.gesendet[i].lParam, soll[i].second) << i;
    }
    EXPECT_EQ(u.k.E.WinampLautstärke, 200);
    EXPECT_EQ(u.k.E.WinampBalance, -1);
    // Stopp fragt erst nach dem Spieler: ohne ihn geht nichts hinaus.
    u.spieler.fenster = 0;
    u.spieler.gesendet.clear();
    cmdAbspielenStopp_Click(u.k);
    EXPECT_TRUE(u.spieler.gesendet.empty());
}

// Reines ASCII wird ohne Kopie verglichen, alles andere gefaltet: beide Wege müssen dasselbe finden.
TEST(WinampDateiErkennen, GroßKleinWieFaltung) {
    Index u;
    const int32_t ascii = u.V1("/m/1.mp3", "KELVIN", "WELLE");
    const int32_t kelvin = u.V1("/m/2.mp3", "\u212Aelvin", "Welle");  // Kelvin-Zeichen faltet zu "k"
    const int32_t fremd = u.V1("/m/3.mp3", "Kelvín", "Welle");
    u.Läuft("kelvin - welle", 0);
    u.Läuft("kelvin - welle", 31);
    EXPECT_EQ(u.Anzahl(ascii), 1);
    EXPECT_EQ(u.Anzahl(kelvin), 1);
    EXPECT_EQ(u.Anzahl(fremd), 0);

    Index v;  // ungültiges UTF-8 im Namen: der umgewandelte Text wird verglichen
    const int32_t roh = v.Eintrag("/m/KELVIN - WELLE \xff.mp3");
    const int32_t kurz = v.Eintrag("/m/KELVIN.mp3");
    v.Läuft("Kelvin - Welle", 0);
    v.Läuft("Kelvin - Welle", 31);
    EXPECT_EQ(v.Anzahl(roh), 1);
    EXPECT_EQ(v.Anzahl(kurz), 0);
}

// Große Indexe werden auf zwei Threads geprüft; gezählt wird trotzdem in Eintragsfolge:
// die lose Regel greift nur für den ersten Treffer vor jedem ganzen.
TEST(WinampDateiErkennen, GroßerIndexZähltInEintragsfolge) {
    Index u;
    for (int32_t i = 1; i <= 30000; ++i) u.Eintrag("/m/lied " + std::to_string(i) + ".mp3");
    u.k.DateiPfade[5] = "/m/Titel von Interpret.mp3";
    u.k.DateiPfade[25000] = "/m/Interpret - Titel.mp3";
    u.k.DateiPfade[26000] = "/m/Titel, Interpret.mp3";
    u.k.DateiPfade[29999] = "/m/02 INTERPRET - TITEL.ogg";
    u.Läuft("Interpret - Titel", 0);
    u.Läuft("Interpret - Titel", 31);
    EXPECT_EQ(u.Anzahl(5), 1);
    EXPECT_EQ(u.Anzahl(25000), 1);
    EXPECT_EQ(u.Anzahl(26000), 0);
    EXPECT_EQ(u.Anzahl(29999), 1);
    EXPECT_EQ(u.ui.titelTexte.back(), "Die derzeit abgespielte Datei wurde 3 Mal erkannt");
}
