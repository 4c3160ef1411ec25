// Der Linux-Einstellungsspeicher: Dateiformat, Neustart, kaputte Zeilen, nicht schreibbarer Ordner.
#include "app/Pfade.h"
#include "platform/KonfigRegistrierung.h"
#include "settings/EinstellungenSpeicher.h"
#include "settings/EinstellungenTabelle.h"
#include "support/Attrappen.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sys/stat.h>

using namespace std::string_literals;

namespace {
// Eine Kartei über dem echten Speicher, sonst Attrappen.
struct KonfigUmgebung {
    explicit KonfigUmgebung(const std::string& pfad) : speicher(pfad) {}
    TestUmgebung u;
    KonfigRegistrierung speicher;
    Kartei k{Dienste{u.ui, speicher, u.spieler, u.shell, u.datenträger, u.uhr, u.zufall}};
};
}  // namespace

TEST(KonfigRegistrierung, EinstellungenÜberstehenSpeichernUndNeustart) {
    TestOrdner t;
    const std::string pfad = t / "konfig/klangkartei/klangkartei.conf";
    {
        KonfigUmgebung a(pfad);
        EXPECT_FALSE(a.speicher.SchlüsselÖffnen());
        EinstellungenLesen(a.k);
        a.k.Dateiname = "/musik/Meine Kartei.kkt";
        a.k.E.Mp3TagLesen = "111";
        a.k.E.AutoTagAktuell = "12345";  // sieht aus wie eine Zahl, bleibt Text
        a.k.E.UmbenennenEingabeNeuZahl = "007";
        a.k.E.KopierenOrdner = "a\\b\nc\rd";
        a.k.E.FensterWidth = 1024;
        a.k.E.WinampBalance = -5;
        a.k.E.FarbeListen = -2147483647 - 1;
        a.k.E.AutoTagFormate.ReDim(2);
        a.k.E.AutoTagFormate[1] = "/%Interpret%/%Titel%";
        a.k.E.AutoTagFormate[2] = "";
        ASSERT_TRUE(EinstellungenSpeichern(a.k));
        EXPECT_TRUE(a.speicher.SchlüsselÖffnen());
    }
    const std::string datei = DateiLesen(pfad);
    EXPECT_EQ(datei.rfind("# Klangkartei-Einstellungen: Name=t:Text oder Name=z:Zahl\n", 0), 0u);
    for (const char* zeile : {"\nAutoTagAktuell=t:12345\n", "\nFensterWidth=z:1024\n", "\nWinampBalance=z:-5\n",
                              "\nKopierenOrdner=t:a\\\\b\\nc\\rd\n", "\nAutoTagFormate2=t:\n", "\nStart=z:0\n",
                              "\nFarbeListen=z:-2147483648\n", "\nDateiname=t:/musik/Meine Kartei.kkt\n"})
        EXPECT_NE(datei.find(zeile), std::string::npos) << zeile;
    EXPECT_EQ(datei.find("AutoTagFormate3"), std::string::npos);
    int dateien = 0;  // keine temporäre Datei bleibt liegen
    for ([[maybe_unused]] auto& e : std::filesystem::directory_iterator(PfadZurückgeben(pfad))) ++dateien;
    EXPECT_EQ(dateien, 1);

    KonfigUmgebung b(pfad);
    EinstellungenLesen(b.k);
    EXPECT_EQ(b.k.Dateiname, "/musik/Meine Kartei.kkt");
    EXPECT_EQ(b.k.E.Mp3TagLesen, "111");
    EXPECT_EQ(b.k.E.AutoTagAktuell, "12345");
    EXPECT_EQ(b.k.E.UmbenennenEingabeNeuZahl, "007");
    EXPECT_EQ(b.k.E.KopierenOrdner, "a\\b\nc\rd");
    EXPECT_EQ(b.k.E.FensterWidth, 1024);
    EXPECT_EQ(b.k.E.WinampBalance, -5);
    EXPECT_EQ(b.k.E.FarbeListen, -2147483647 - 1);
    EXPECT_EQ(b.k.E.AutoTagFormate.Vektor(), (std::vector<std::string>{"/%Interpret%/%Titel%", ""}));
    auto w = b.speicher.WertLesen("AutoTagAktuell");
    ASSERT_TRUE(w);
    EXPECT_FALSE(w->istZahl);
}

TEST(KonfigRegistrierung, KaputteZeilenWerdenÜbergangen) {
    TestOrdner t;
    const std::string pfad = t / "klangkartei.conf";
    DateiSchreiben(pfad, "ohne Gleichheitszeichen\n"
                         "=t:ohne Namen\n"
                         "Art=q:1\n"
                         "Kurz=t\n"
                         "Buchstaben=z:abc\n"
                         "Komma=z:1,5\n"
                         "Riesig=z:99999999999\n"
                         "# Kommentar=t:x\n"
                         "\xff\xfe\x00\x01=\n"
                         "Mp3TagLesen=t:011\r\n"
                         "FensterMax=z:1\n"
                         "Leer=t:\n"
                         "Doppelt=t:erst\n"
                         "Doppelt=t:dann\n"
                         "Gleich=t:a=b\n"
                         "Ende=t:ohne Zeilenende"s);
    KonfigRegistrierung r(pfad);
    EXPECT_TRUE(r.SchlüsselÖffnen());
    for (const char* fehlt :
         {"ohne Gleichheitszeichen", "", "Art", "Kurz", "Buchstaben", "Komma", "Riesig", "# Kommentar"})
        EXPECT_FALSE(r.WertLesen(fehlt)) << fehlt;
    EXPECT_EQ(r.WertLesen("Mp3TagLesen")->text, "011");
    EXPECT_EQ(r.WertLesen("FensterMax")->zahl, 1);
    EXPECT_TRUE(r.WertLesen("FensterMax")->istZahl);
    EXPECT_EQ(r.WertLesen("Leer")->text, "");
    EXPECT_EQ(r.WertLesen("Doppelt")->text, "dann");
    EXPECT_EQ(r.WertLesen("Gleich")->text, "a=b");
    EXPECT_EQ(r.WertLesen("Ende")->text, "ohne Zeilenende");

    // Namen, die keine Zeile ergäben, werden abgelehnt; Löschen wirkt beim Schließen.
    EXPECT_FALSE(r.TextSetzen("a=b", "x"));
    EXPECT_FALSE(r.ZahlSetzen("#x", 1));
    EXPECT_FALSE(r.TextSetzen("", "x"));
    EXPECT_TRUE(r.WertLöschen("Leer"));
    EXPECT_FALSE(r.WertLöschen("Leer"));
    ASSERT_TRUE(r.Schließen());
    KonfigRegistrierung neu(pfad);
    EXPECT_FALSE(neu.WertLesen("Leer"));
    EXPECT_FALSE(neu.WertLesen("Art"));
    EXPECT_EQ(neu.WertLesen("Mp3TagLesen")->text, "011");
}

TEST(KonfigRegistrierung, NichtSchreibbarerOrdnerVerliertDieWerteOhneAbsturz) {
    TestOrdner t;
    DateiSchreiben(t / "datei", "kein Ordner");
    const std::string pfad = t / "datei/klangkartei/klangkartei.conf";
    {
        KonfigUmgebung a(pfad);
        EinstellungenLesen(a.k);
        a.k.E.Mp3TagLesen = "111";
        EXPECT_FALSE(EinstellungenSpeichern(a.k));
        EXPECT_TRUE(a.u.ui.meldungen.empty());
    }  // der Destruktor versucht es noch einmal, ebenso still
    KonfigUmgebung b(pfad);
    EinstellungenLesen(b.k);
    EXPECT_EQ(b.k.E.Mp3TagLesen, "101");
    EXPECT_EQ(DateiLesen(t / "datei"), "kein Ordner");
}

TEST(KonfigRegistrierung, NurEineGewöhnlicheDateiVernünftigerGröße) {
    TestOrdner t;
    std::filesystem::create_directory(t / "ordner.conf");
    ::mkfifo((t / "rohr.conf").c_str(), 0644);  // ohne Schreiber: ein blockierendes Lesen hinge
    std::filesystem::create_symlink("/dev/zero", t / "null.conf");
    DateiSchreiben(t / "gross.conf", "Start=z:1\n" + std::string(size_t(5) << 20, '#'));
    const std::pair<const char*, const char*> fälle[] = {
        {"ordner.conf", "Es handelt sich um einen Ordner"},
        {"rohr.conf", "Es ist keine gewöhnliche Datei"},
        {"null.conf", "Es ist keine gewöhnliche Datei"},
        {"gross.conf", "sie ist größer als 4 MB und damit keine Einstellungsdatei"}};
    for (auto [name, grund] : fälle) {
        KonfigUmgebung a(t / name);
        EinstellungenLesen(a.k);
        EXPECT_EQ(a.k.E.Start, 0) << name;  // die Vorgaben
        EXPECT_EQ(a.k.E.Mp3TagLesen, "101") << name;
        ASSERT_EQ(a.u.ui.meldungen.size(), 1u) << name;
        EXPECT_EQ(a.u.ui.meldungen[0].text, "Die Einstellungsdatei '" + t / name +
                                                "' kann nicht gelesen werden: " + grund +
                                                ".\nEs gelten die Standard-Einstellungen; die Datei wird nicht "
                                                "verändert.");
        a.k.E.Start = 10;
        EXPECT_FALSE(EinstellungenSpeichern(a.k)) << name;  // ersetzt nichts
    }
    EXPECT_TRUE(std::filesystem::is_directory(t / "ordner.conf"));
    EXPECT_TRUE(std::filesystem::is_fifo(t / "rohr.conf"));
    EXPECT_TRUE(std::filesystem::is_symlink(t / "null.conf"));
    EXPECT_EQ(std::filesystem::file_size(t / "gross.conf"), 10 + (size_t(5) << 20));
}
