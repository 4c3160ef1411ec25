// Vorschlagslisten und Ergänzung beim Tippen.
#include "SuchTestHilfen.h"

#include "search/AutoComplete.h"

#include <gtest/gtest.h>

using S = std::vector<std::string>;

TEST(AutoComplete, FüllenOhneDoppelteInIndexreihenfolge) {
    TestUmgebung u;
    const std::vector<std::pair<const char*, const char*>> daten = {
        {"Nena", "Irgendwie"}, {"NENA", "Leuchtturm"}, {"", "irgendwie"}, {"Can", "Vitamin C"}, {"nena", "Nena"}};
    for (auto [interpret, titel] : daten) {
        DateiInfo& d = Neu(u.k, "/m/x.mp3");
        d.Mp3_ID3v1_Interpret = interpret;
        d.Mp3_ID3v1_Titel = titel;
    }
    u.k.DateiDaten[4].Mp3_ID3v1_Album = std::string("Tago Mago\0", 10);  // NUL am Ende fällt weg
    KomboFeld liste;
    liste.Text = "getippt";
    liste.ListIndex = 3;
    ASSERT_TRUE(AutoCompleteFüllen(u.k, liste, "Interpret", 1, ""));
    EXPECT_EQ(liste.List, (S{"Nena", "Can"}));
    EXPECT_EQ(liste.ListIndex, -1);
    EXPECT_EQ(liste.Text, "getippt");
    // Das zweite Feld im selben Schritt: Reihenfolge nach Einträgen, erste Form gewinnt.
    ASSERT_TRUE(AutoCompleteFüllen(u.k, liste, "Interpret", 1, "Titel"));
    EXPECT_EQ(liste.List, (S{"Nena", "Irgendwie", "Leuchtturm", "Can", "Vitamin C"}));
    ASSERT_TRUE(AutoCompleteFüllen(u.k, liste, "Album", 1, ""));
    EXPECT_EQ(liste.List, (S{"Tago Mago"}));
    // Keine Werte: ausgeschaltet, Standardsuche, leeres Feld.
    for (const char* feld : {"(Standardsuche)", ""}) {
        AutoCompleteFüllen(u.k, liste, feld, 1, "");
        EXPECT_TRUE(liste.List.empty()) << feld;
    }
    AutoCompleteFüllen(u.k, liste, "Interpret", 0, "");
    EXPECT_TRUE(liste.List.empty());
    EXPECT_FALSE(u.k.Suche.SucheGesperrt);
}

TEST(AutoComplete, ErgänzenBeimTippen) {
    TestUmgebung u;
    KomboFeld feld;
    feld.List = {"Nena", "Neu!", "Ärzte, Die"};
    feld.Text = "ne";
    feld.SelStart = 2;
    ASSERT_TRUE(AutoCompleteAusführen(u.k, feld.Text, feld, feld));
    EXPECT_EQ(feld.Text, "Nena");
    EXPECT_EQ(feld.ListIndex, 0);
    EXPECT_EQ(feld.SelStart, 2);
    EXPECT_EQ(feld.SelLength, 2);
    EXPECT_FALSE(u.k.Suche.SucheGesperrt);

    // Zeichen zählen, nicht Bytes.
    feld.Text = "äR";
    feld.SelStart = 2;
    ASSERT_TRUE(AutoCompleteAusführen(u.k, feld.Text, feld, feld));
    EXPECT_EQ(feld.Text, "Ärzte, Die");
    EXPECT_EQ(feld.SelStart, 2);
    EXPECT_EQ(feld.SelLength, 8);

    // Nach der Rücktaste wird einmal nicht ergänzt, danach wieder.
    feld.Text = "Neu";
    feld.SelStart = 3;
    u.k.Suche.AutoCompleteUnterdrückt = true;
    EXPECT_FALSE(AutoCompleteAusführen(u.k, feld.Text, feld, feld));
    EXPECT_EQ(feld.Text, "Neu");
    EXPECT_FALSE(u.k.Suche.AutoCompleteUnterdrückt);
    ASSERT_TRUE(AutoCompleteAusführen(u.k, feld.Text, feld, feld));
    EXPECT_EQ(feld.Text, "Neu!");
    EXPECT_EQ(feld.SelLength, 1);

    // Nichts passt: der Text bleibt.
    feld.Text = "xy";
    feld.SelStart = 2;
    feld.SelLength = 0;
    EXPECT_TRUE(AutoCompleteAusführen(u.k, feld.Text, feld, feld));
    EXPECT_EQ(feld.Text, "xy");
    EXPECT_EQ(feld.SelLength, 0);

    // Abgeschaltet, nicht erlaubt oder leer: keine Ergänzung.
    feld.Text = "n";
    u.k.E.AutoCompleteVerwenden = 0;
    EXPECT_FALSE(AutoCompleteAusführen(u.k, feld.Text, feld, feld));
    u.k.E.AutoCompleteVerwenden = 1;
    u.k.Suche.AutoCompleteErlaubt = false;
    EXPECT_FALSE(AutoCompleteAusführen(u.k, feld.Text, feld, feld));
    u.k.Suche.AutoCompleteErlaubt = true;
    EXPECT_FALSE(AutoCompleteAusführen(u.k, "", feld, feld));
    EXPECT_EQ(feld.Text, "n");

    // Im Dialog sind Liste und Eingabe zwei Felder: der Eintrag landet in der Eingabe.
    KomboFeld auswahl, eingabe;
    auswahl.List = {"Blumfeld", "Blau"};
    eingabe.Text = "bla";
    eingabe.SelStart = 3;
    ASSERT_TRUE(AutoCompleteAusführen(u.k, eingabe.Text, auswahl, eingabe));
    EXPECT_EQ(auswahl.ListIndex, 1);
    EXPECT_EQ(eingabe.Text, "Blau");
    EXPECT_EQ(eingabe.SelStart, 3);
    EXPECT_EQ(eingabe.SelLength, 1);
}

TEST(AutoComplete, RücktasteImSuchfeld) {
    TestUmgebung u;
    Neu(u.k, "/m/1.mp3").Mp3_ID3v1_Interpret = "Nena";
    auto& s = u.k.Suche;
    s.cboSuche.ListIndex = 1;  // Interpret
    s.txtSongname.Text = "nen";
    cboSuche_Click(u.k);
    ASSERT_EQ(s.txtSongname.List, (S{"Nena"}));
    ASSERT_EQ(s.txtSongname.Text, "Nena");
    // Rücktaste löscht das ergänzte "a": es kommt nicht gleich wieder.
    txtSongname_KeyDown(u.k, 8);
    s.txtSongname.Text = "Nen";
    s.txtSongname.SelStart = 3;
    txtSongname_Change(u.k);
    EXPECT_EQ(s.txtSongname.Text, "Nen");
    // Die nächste Taste ergänzt wieder.
    s.txtSongname.Text = "Nen";
    txtSongname_Change(u.k);
    EXPECT_EQ(s.txtSongname.Text, "Nena");
    EXPECT_EQ(s.txtSongname.SelLength, 1);
    // Entf auf leerem Text schaltet nichts ab.
    s.txtSongname.Text = "";
    txtSongname_KeyDown(u.k, 46);
    EXPECT_FALSE(s.AutoCompleteUnterdrückt);
    // In der Standardsuche gibt es keine Vorschläge und damit keine Ergänzung.
    s.cboSuche.ListIndex = 0;
    s.txtSongname.Text = "ne";
    cboSuche_Click(u.k);
    EXPECT_TRUE(s.txtSongname.List.empty());
    EXPECT_EQ(s.txtSongname.Text, "ne");
}
