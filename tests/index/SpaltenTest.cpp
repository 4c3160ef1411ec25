#include "IndexTestHilfen.h"
#include "app/Kartei.h"
#include "index/Spalten.h"
#include "app/Ergebnisliste.h"

#include <gtest/gtest.h>

namespace {
std::string Köpfe(const Ergebnisliste& l) {
    std::string s;
    for (const auto& sp : l.spalten) s += (s.empty() ? "" : "|") + sp.kopf + "@" + std::to_string(sp.breite) + sp.tag;
    return s;
}
}  // namespace

TEST(Spalten, TabelleUndVorgabe) {
    EXPECT_EQ(SpaltenName(1), "Nummer");
    EXPECT_EQ(SpaltenName(19), "Benutzerdefiniert");
    EXPECT_EQ(SpaltenName(30), "ID3v2-TAG-Größe");
    EXPECT_EQ(SpaltenName(31), "");
    EXPECT_EQ(SpaltenNummer("Abspiel-Häufigkeit"), 21);
    EXPECT_EQ(SpaltenNummer("abspiel-häufigkeit"), 0);
    TestUmgebung u;
    SpaltenRücksetzen(u.k);
    std::string erwartet = "1=0=0,2=0=0,3=1400=1,4=1400=2,5=1400=3,6=1400=4";
    for (int i = 7; i <= 30; ++i) erwartet += "," + std::to_string(i) + "=0=4";
    EXPECT_EQ(u.k.Optionen.Spalten, erwartet);
}

TEST(Spalten, AnpassenUndSpeichernRundreise) {
    TestUmgebung u;
    auto& liste = u.k.Liste.lstSongs;
    bool fehler = false;
    // "0" (Vorgabe des Ladens) hat kein "=": still durch die Vorgabe ersetzt.
    SpaltenAnpassen(u.k, liste, fehler);
    EXPECT_TRUE(fehler);
    EXPECT_EQ(Köpfe(liste), "Dateiname@1400|Interpret@1400|Titel@1400|Album@1400");
    EXPECT_EQ(liste.spalten[0].spalte, 3);

    // Die Person verschiebt und verbreitert Spalten; die Liste schreibt das zurück.
    std::swap(liste.spalten[0], liste.spalten[2]);
    liste.spalten[1].breite = 2000;
    liste.gitter = true;
    liste.kopfleiste = false;
    u.k.DateiGeändert = false;
    SpaltenSpeichern(u.k, liste);
    EXPECT_TRUE(u.k.DateiGeändert);
    std::string erwartet = "1=0=0,2=0=0,3=1400=3,4=2000=2,5=1400=1,6=1400=4";
    for (int i = 7; i <= 30; ++i) erwartet += "," + std::to_string(i) + "=0=0";
    EXPECT_EQ(u.k.Optionen.Spalten, erwartet);
    EXPECT_EQ(u.k.Optionen.SpaltenGitter, 1);
    EXPECT_EQ(u.k.Optionen.SpaltenLeiste, 0);
    u.k.DateiGeändert = false;
    SpaltenSpeichern(u.k, liste);  // unverändert: kein Merker
    EXPECT_FALSE(u.k.DateiGeändert);

    // Eine frische Liste aus dieser Beschreibung hat dieselbe Reihenfolge.
    Ergebnisliste neu;
    SpaltenAnpassen(u.k, neu, fehler);
    EXPECT_FALSE(fehler);
    EXPECT_EQ(Köpfe(neu), "Titel@1400|Interpret@2000|Dateiname@1400|Album@1400");
    EXPECT_TRUE(neu.gitter);
    EXPECT_FALSE(neu.kopfleiste);
}

TEST(Spalten, VorhandeneBleibenFehlendeKommenUnbrauchbaresFälltWeg) {
    TestUmgebung u;
    auto& liste = u.k.Liste.lstSongs;
    bool fehler = false;
    u.k.Optionen.Spalten = "3=1400=1,4=1400=2";
    SpaltenAnpassen(u.k, liste, fehler);
    liste.spalten[0].breite = 999;  // von der Person gezogen
    u.k.Optionen.SpaltenNutzerformat = "%Titel% (%Jahr%)";
    u.k.Optionen.Spalten = "3=1400=1,4=0=0,19=1500=2,31=100=3,x=5=4,13=abc=5,11=800=9,1=700=1";
    SpaltenAnpassen(u.k, liste, fehler);
    EXPECT_TRUE(fehler);
    // 3 bleibt mit ihrer Breite; 4 fällt weg; 1 kommt an Stelle 1, 19 an Stelle 2, 11 ans Ende.
    EXPECT_EQ(Köpfe(liste), "Nummer@700|Titel (Jahr)@1500b|Dateiname@999|Größe@800");
    EXPECT_EQ(liste.spalten[1].spalte, 19);

    const auto wahl = OptionenSpaltenEinsetzen(u.k);
    ASSERT_EQ(wahl.size(), 5u);  // 31, "x" und "abc" fallen weg
    EXPECT_EQ(wahl[0].name, "Dateiname");
    EXPECT_TRUE(wahl[0].angehakt);
    EXPECT_EQ(wahl[1].name, "Interpret");
    EXPECT_FALSE(wahl[1].angehakt);
    EXPECT_EQ(wahl[2].name, "Benutzerdefiniert");
    EXPECT_EQ(wahl[4].nummer, 1);
}
