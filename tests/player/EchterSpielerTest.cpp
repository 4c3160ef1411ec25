// Gegen einen echten Audacious: Abspielen, Playlist, Steuern, Erkennen und Zählen, Kommandozeile.
#include "AudaciousSitzung.h"
#include "index/Dateitypen.h"
#include "platform/LinuxShell.h"
#include "platform/MprisSpieler.h"
#include "player/Abspielen.h"
#include "player/SpielerTakt.h"
#include "player/WinampSteuerung.h"
#include "support/Attrappen.h"
#include "support/CliAufruf.h"
#include "support/MpegDaten.h"
#include "support/TestOrdner.h"

#include <QStandardPaths>
#include <QUrl>

#include <gtest/gtest.h>

#include <memory>

namespace {
// Eine MP3 von 40 Sekunden Stille (MPEG 1 Layer III, 128 kbit/s, 44,1 kHz) mit ID3v2-Tag.
std::string StilleMp3(const std::string& interpret, const std::string& titel) {
    std::string daten = mpeg::Id3v2({3, 0, 0, "", {mpeg::Text("TPE1", interpret), mpeg::Text("TIT2", titel)}});
    const std::string rahmen = mpeg::KopfBytes(mpeg::Kopf{}) + std::string(413, '\0');
    for (int i = 0; i < 1532; ++i) daten += rahmen;  // 1532 · 1152 / 44100 s ≈ 40 s
    return daten;
}

// Die Dienste des Kerns mit dem echten Spieler und der echten Shell, aber der Test-Uhr.
struct EchteUmgebung {
    TestOberfläche ui;
    TestRegistrierung registrierung;
    MprisSpielerfenster spieler;
    LinuxShell shell;
    TestDatenträger datenträger;
    TestUhr uhr;
    TestZufall zufall;
    Kartei k{Dienste{ui, registrierung, spieler, shell, datenträger, uhr, zufall}};
};

class EchterAudacious : public testing::Test {
protected:
    static void SetUpTestSuite() {
        profil_ = new TestOrdner();
        sitzung_ = new AudaciousSitzung();
        läuft_ = sitzung_->Starten(profil_->Pfad(), grund_);
        if (!läuft_) return;
        for (int i = 1; i <= 5; ++i) {
            const std::string pfad = *profil_ / ("musik/Lied " + std::to_string(i) + ".mp3");
            DateiSchreiben(pfad, StilleMp3("Interpret " + std::to_string(i), "Titel " + std::to_string(i)));
            dateien_.push_back(pfad);
        }
    }
    static void TearDownTestSuite() {
        delete sitzung_;
        delete profil_;
    }
    void SetUp() override {
        if (!läuft_) GTEST_SKIP() << "Ohne echten Spieler übersprungen: " << grund_;
        u_ = std::make_unique<EchteUmgebung>();
        Kartei& k = u_->k;
        k.E.WinampPfad = QStandardPaths::findExecutable(QStringLiteral("audacious")).toStdString();
        DateitypenVorgabenEinsetzen(k.Optionen);
        const auto n = static_cast<int32_t>(dateien_.size());
        k.DateiPfade.ReDim(n);
        k.DateiDaten.ReDim(n);
        k.DateiTreffer.ReDim(n);
        for (int32_t i = 1; i <= n; ++i) {
            k.DateiPfade[i] = dateien_[static_cast<size_t>(i - 1)];
            auto& d = k.DateiDaten[i];
            d.Mp3_ID3v1_Status = 1;
            d.Mp3_ID3v1_Interpret = "Interpret " + std::to_string(i);
            d.Mp3_ID3v1_Titel = "Titel " + std::to_string(i);
            d.Header_Dauer = 40;
        }
        k.DateiAnzahl = n;
        ASSERT_TRUE(Winamp_Check(k, false));
    }
    static EinsBasiert<int32_t> Nummern(std::initializer_list<int32_t> n) {
        EinsBasiert<int32_t> a;
        for (int32_t x : n) a.Anhängen(x);
        return a;
    }
    std::string Status() { return WinAMP_GetStatus(u_->k); }
    static int Länge() { return AudaciousSitzung::Audacious("Length").toInt(); }
    static int Stelle() { return AudaciousSitzung::Audacious("Position").toInt(); }
    bool Warten(const std::function<bool()>& b) { return WartenBis(b, 8000); }

    static inline TestOrdner* profil_ = nullptr;
    static inline AudaciousSitzung* sitzung_ = nullptr;
    static inline bool läuft_ = false;
    static inline std::string grund_;
    static inline std::vector<std::string> dateien_;
    std::unique_ptr<EchteUmgebung> u_;
};
}  // namespace

TEST_F(EchterAudacious, FünfDateienDannNeuePlaylist) {
    Kartei& k = u_->k;
    ASSERT_TRUE(AbspielenMediaPlayer(k, Nummern({1, 2, 3, 4, 5}), false, false, true, ""));
    ASSERT_TRUE(Warten([&] { return Länge() == 5 && Status() == "PLAYING"; })) << Länge() << " " << Status();
    EXPECT_EQ(Stelle(), 0);
    for (int i = 0; i < 5; ++i) {
        const std::string name =
            QUrl::fromPercentEncoding(AudaciousSitzung::Audacious("SongFilename", {uint(i)}).toString().toUtf8())
                .toStdString();
        EXPECT_NE(name.find("Lied " + std::to_string(i + 1) + ".mp3"), std::string::npos) << name;
    }
    EXPECT_TRUE(Warten([&] { return WinampFensterTitel(k, k.Spieler.WinampHandle) == "Interpret 1 - Titel 1"; }));

    // Umschalt: die Playlist wird vorher geleert; es spielt der erste der beiden.
    ASSERT_TRUE(AbspielenMediaPlayer(k, Nummern({4, 5}), false, false, true, ""));
    ASSERT_TRUE(Warten([&] { return Länge() == 2 && Status() == "PLAYING"; })) << Länge();
    EXPECT_EQ(Stelle(), 0);
    EXPECT_TRUE(Warten([&] { return WinampFensterTitel(k, k.Spieler.WinampHandle) == "Interpret 4 - Titel 4"; }));

    // Anhängen: nichts wird geleert, nichts springt.
    ASSERT_TRUE(AbspielenMediaPlayer(k, Nummern({1}), true, false, false, ""));
    ASSERT_TRUE(Warten([&] { return Länge() == 3; }));
    EXPECT_EQ(Stelle(), 0);
}

TEST_F(EchterAudacious, SteuernUndAbfragen) {
    Kartei& k = u_->k;
    ASSERT_TRUE(AbspielenMediaPlayer(k, Nummern({1, 2, 3}), false, false, true, ""));
    ASSERT_TRUE(Warten([&] { return Länge() == 3 && Status() == "PLAYING"; }));
    ASSERT_TRUE(Warten([&] { return WinAMP_GetTrackLength(k) == 40; })) << WinAMP_GetTrackLength(k);

    WinAMP_SeekToPosition(k, 20);
    EXPECT_TRUE(Warten([&] { return WinAMP_GetTrackPosition(k) >= 20; })) << WinAMP_GetTrackPosition(k);
    EXPECT_LT(WinAMP_GetTrackPosition(k), 30);
    WinAMP_SeekToPosition(k, 41);  // hinter dem Ende: geht nicht hinaus
    EXPECT_LT(WinAMP_GetTrackPosition(k), 30);

    WinAMP_SetVolume(k, 128);
    EXPECT_TRUE(Warten([] { return AudaciousSitzung::Audacious("Volume").toInt() == 50; }));
    WinAMP_SetBalance(k, -127);
    EXPECT_TRUE(Warten([] { return AudaciousSitzung::Audacious("Balance").toInt() == -100; }));
    WinAMP_SetBalance(k, 0);
    EXPECT_TRUE(Warten([] { return AudaciousSitzung::Audacious("Balance").toInt() == 0; }));

    EXPECT_EQ(cmdAbspielen_Click(k, "Pause"), "Spielen");
    EXPECT_TRUE(Warten([&] { return Status() == "PAUSED"; }));
    EXPECT_EQ(cmdAbspielen_Click(k, "Spielen"), "Pause");
    EXPECT_TRUE(Warten([&] { return Status() == "PLAYING"; }));
    cmdWinampNächster_Click(k);
    EXPECT_TRUE(Warten([] { return Stelle() == 1; }));
    cmdWinampVorheriger_Click(k);
    EXPECT_TRUE(Warten([] { return Stelle() == 0; }));
    cmdAbspielenStopp_Click(k);
    EXPECT_TRUE(Warten([&] { return Status() == "STOPPED"; }));
    EXPECT_EQ(WinAMP_GetTrackPosition(k), -1);
}

TEST_F(EchterAudacious, ErkanntNach31SekundenUndEinmalGezählt) {
    Kartei& k = u_->k;
    ASSERT_TRUE(AbspielenMediaPlayer(k, Nummern({2}), false, false, true, ""));
    ASSERT_TRUE(Warten([&] { return WinampFensterTitel(k, k.Spieler.WinampHandle) == "Interpret 2 - Titel 2"; }));
    ASSERT_TRUE(Warten([&] { return Status() == "PLAYING"; }));
    SpielerAnzeige a = SpielerTakt(k, false);
    EXPECT_EQ(*a.titel, "Audio-Player - 'Interpret 2 - Titel 2'");
    EXPECT_TRUE(a.fraLinks3 && *a.knöpfe);
    u_->uhr.ms += 31000;  // die Test-Uhr springt; der Spieler spielt weiter
    SpielerTakt(k, false);
    a = SpielerTakt(k, false);
    EXPECT_EQ(*a.titel, "Audio-Player - 'Interpret 2 - Titel 2' - [Erkannt]");
    u_->uhr.ms += 60000;
    SpielerTakt(k, false);
    EXPECT_EQ(k.DateiDaten[2].Datei_AngefordertAnzahl, 1);
    EXPECT_EQ(k.DateiDaten[1].Datei_AngefordertAnzahl, 0);
    EXPECT_EQ(u_->ui.titelTexte.back(), "Die derzeit abgespielte Datei wurde 1 Mal erkannt");
}

TEST_F(EchterAudacious, Kommandozeile) {
    TestOrdner o;
    const std::string spieler = u_->k.E.WinampPfad;
    ASSERT_EQ(CliAufrufen(KK_CLI, o, {"settings", "set", "WinampPfad", spieler}).rückgabe, 0);
    ASSERT_EQ(CliMitIndex(KK_CLI, o, {"add", dateien_[0], dateien_[1], dateien_[2]}).rückgabe, 0);
    CliErgebnis e = CliMitIndex(KK_CLI, o, {"play", "--new"});
    EXPECT_EQ(e.rückgabe, 0) << e.fehler;
    EXPECT_EQ(e.aus, "Dateien in Playlist bei 'audacious'\n");
    ASSERT_TRUE(Warten([] { return Länge() == 3; }));
    ASSERT_TRUE(Warten([&] { return Status() == "PLAYING"; }));
    ASSERT_EQ(CliAufrufen(KK_CLI, o, {"player", "seek", "10"}).rückgabe, 0);
    ASSERT_TRUE(Warten([&] { return WinAMP_GetTrackPosition(u_->k) >= 10; }));
    e = CliAufrufen(KK_CLI, o, {"player", "status"});
    EXPECT_EQ(e.rückgabe, 0);
    EXPECT_EQ(e.aus.substr(0, e.aus.find("Position=")), "Status=PLAYING\nTitel=Interpret 1 - Titel 1\n");
    EXPECT_NE(e.aus.find("\nLänge=40\n"), std::string::npos) << e.aus;
    EXPECT_EQ(CliAufrufen(KK_CLI, o, {"player", "volume", "256"}).rückgabe, 2);
    EXPECT_EQ(CliAufrufen(KK_CLI, o, {"player", "volume", "51"}).rückgabe, 0);
    EXPECT_TRUE(Warten([] { return AudaciousSitzung::Audacious("Volume").toInt() == 20; }));
    EXPECT_EQ(CliAufrufen(KK_CLI, o, {"player", "stop"}).rückgabe, 0);
    EXPECT_TRUE(Warten([&] { return Status() == "STOPPED"; }));
}

// Der Monitor der Kommandozeile läuft in Echtzeit: nach gut 30 Sekunden erkannt, einmal gezählt, gespeichert.
// Ein neuer Index liest kein ID3v2: erkannt wird über den Dateinamen.
TEST_F(EchterAudacious, MonitorErkenntZähltUndSpeichert) {
    TestOrdner o;
    const std::string lied = o / "Interpret 9 - Titel 9.mp3";
    DateiSchreiben(lied, StilleMp3("Interpret 9", "Titel 9"));
    ASSERT_EQ(CliAufrufen(KK_CLI, o, {"settings", "set", "WinampPfad", u_->k.E.WinampPfad}).rückgabe, 0);
    ASSERT_EQ(CliMitIndex(KK_CLI, o, {"add", dateien_[0], lied}).rückgabe, 0);
    ASSERT_EQ(CliMitIndex(KK_CLI, o, {"play", "--new", "--entry", "2"}).rückgabe, 0);
    ASSERT_TRUE(Warten([&] { return Status() == "PLAYING"; }));
    const CliErgebnis e = CliMitIndex(KK_CLI, o, {"monitor", "--seconds", "33"});
    EXPECT_EQ(e.rückgabe, 0) << e.fehler;
    EXPECT_EQ(e.aus,
              "Audio-Player - 'Interpret 9 - Titel 9'\n"
              "Die derzeit abgespielte Datei wurde 1 Mal erkannt\n"
              "Audio-Player - 'Interpret 9 - Titel 9' - [Erkannt]\n");  // der Kopf folgt im nächsten Takt
    const std::string eintrag = CliMitIndex(KK_CLI, o, {"show", "--entry", "2"}).aus;
    EXPECT_NE(eintrag.find("Datei_AngefordertAnzahl=1\n"), std::string::npos) << eintrag;
    EXPECT_NE(CliMitIndex(KK_CLI, o, {"show", "--entry", "1"}).aus.find("Datei_AngefordertAnzahl=0\n"),
              std::string::npos);
}
