// Infos im Internet: Verschlüsselung des Suchtexts, die Adressdatei mit ihren Fehlern, die
// mitgelieferte Datei und die Suche von frmInternet.
#include "shell/Internet.h"
#include "support/Attrappen.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>

TEST(InternetFormat, BuchstabenBleibenAllesAndereWirdProzent) {
    EXPECT_EQ(InternetFormat("AbcXyz"), "AbcXyz");
    EXPECT_EQ(InternetFormat("/"), "%2F");
    EXPECT_EQ(InternetFormat(" "), "%20");
    EXPECT_EQ(InternetFormat("1"), "%31");
    EXPECT_EQ(InternetFormat("ä"), "%C3%A4");  // jedes Byte der UTF-8-Form
    EXPECT_EQ(InternetFormat("\n"), "%A");     // ohne führende Null
    EXPECT_EQ(InternetFormat("\x01"), "%1");
    EXPECT_EQ(InternetFormat("AC/DC & Co."), "AC%2FDC%20%26%20Co%2E");
    EXPECT_EQ(InternetFormat("Die Ärzte"), "Die%20%C3%84rzte");
    EXPECT_EQ(InternetFormat(""), "");
}

namespace {
struct Adressen {
    TestUmgebung u;
    TestOrdner ordner;
    EinsBasiert<std::string> urls, namen;
    bool Laden(const std::string& inhalt) {
        DateiSchreiben(ordner / "Ineturl.dat", inhalt);
        return InternetAdressenLaden(u.k, ordner / "Ineturl.dat", urls, namen);
    }
};
}  // namespace

TEST(InternetAdressenLaden, EinträgeAnmerkungenUndSpätereAdresseGilt) {
    Adressen a;
    ASSERT_TRUE(a.Laden("inetURLS100\r\n"
                        "' Anmerkung\r\n"
                        "\r\n"
                        "#Wikipedia\r\n"
                        "https://alt/%Suche%\r\n"
                        "https://de.wikipedia.org/w/index.php?search=%Suche%\r\n"
                        "#Ohne Adresse\n"
                        "#Lexikon für Bänder\n"
                        "http://x/?q=%Suche%"));  // letzte Zeile ohne Zeilenende
    ASSERT_EQ(a.namen.UBound(), 3);
    ASSERT_EQ(a.urls.UBound(), 3);
    EXPECT_EQ(a.namen[1], "Wikipedia");
    EXPECT_EQ(a.urls[1], "https://de.wikipedia.org/w/index.php?search=%Suche%");
    EXPECT_EQ(a.namen[2], "Ohne Adresse");
    EXPECT_EQ(a.urls[2], "");
    EXPECT_EQ(a.namen[3], "Lexikon für Bänder");
    EXPECT_EQ(a.urls[3], "http://x/?q=%Suche%");
    EXPECT_TRUE(a.u.ui.meldungen.empty());

    // Windows-1252 in einem Namen wird lesbar.
    ASSERT_TRUE(a.Laden("InetURLs100\n#Caf\xe9\nhttp://c/%Suche%\n"));
    EXPECT_EQ(a.namen[1], "Café");
}

TEST(InternetAdressenLaden, FehlendeVerdorbeneUndLeereDateien) {
    Adressen a;
    EXPECT_FALSE(InternetAdressenLaden(a.u.k, a.ordner / "fehlt.dat", a.urls, a.namen));
    ASSERT_EQ(a.u.ui.meldungen.size(), 1u);
    EXPECT_EQ(a.u.ui.meldungen[0].schalter, 48);
    EXPECT_EQ(a.u.ui.meldungen[0].text,
              "Die Adressdatei '" + (a.ordner / "fehlt.dat") +
                  "' kann nicht geladen werden, da diese nicht existiert.\n\nDiese wird zur Anzeige der "
                  "gewünschten Informationen benötigt. Bitte installieren Sie die Datei erneut.");

    const std::string format = "Die Adressdatei '" + (a.ordner / "Ineturl.dat") +
                               "' kann nicht geladen werden, da ihr Format nicht korrekt ist.\n\nDiese wird zur "
                               "Anzeige der gewünschten Informationen benötigt. Bitte installieren Sie die Datei "
                               "erneut.";
    // Kennung zu lang, fehlend, leere Datei: abgelehnt, auch wenn Einträge folgen.
    for (const char* inhalt : {"InetURLs1000\n#A\nhttp://a/%Suche%\n", "#A\nhttp://a/%Suche%\n", ""}) {
        a.u.ui.meldungen.clear();
        EXPECT_FALSE(a.Laden(inhalt)) << inhalt;
        ASSERT_EQ(a.u.ui.meldungen.size(), 1u) << inhalt;
        EXPECT_EQ(a.u.ui.meldungen[0].text, format);
        EXPECT_EQ(a.namen.UBound(), 0);
    }
    // Eine Adresse vor dem ersten Namen: die Datei taugt nicht, nichts wird halb übernommen.
    a.u.ui.meldungen.clear();
    EXPECT_FALSE(a.Laden("InetURLs100\nhttp://a/%Suche%\n#A\nhttp://b/%Suche%\n"));
    EXPECT_EQ(a.u.ui.meldungen.size(), 1u);
    EXPECT_EQ(a.namen.UBound(), 0);
    // Nur Anmerkungen: false, ohne Meldung.
    a.u.ui.meldungen.clear();
    EXPECT_FALSE(a.Laden("InetURLs100\n' nichts\n\n"));
    EXPECT_TRUE(a.u.ui.meldungen.empty());
}

TEST(InternetAdressenLaden, MitgelieferteDateiNenntEchteSuchen) {
    TestUmgebung u;
    EinsBasiert<std::string> urls, namen;
    ASSERT_TRUE(InternetAdressenLaden(u.k, std::string(KK_DATENORDNER) + "/Ineturl.dat", urls, namen));
    EXPECT_GE(namen.UBound(), 5);
    for (int32_t i = 1; i <= urls.UBound(); ++i) {
        EXPECT_FALSE(namen[i].empty()) << i;
        EXPECT_EQ(urls[i].rfind("https://", 0), 0u) << urls[i];
        EXPECT_NE(urls[i].find("%Suche%"), std::string::npos) << urls[i];
    }
}

TEST(InternetSuche, VorschlagAusDerAuswahlUndÖffnenMitMeldungen) {
    Adressen a;
    DateiSchreiben(a.ordner / "Ineturl.dat", "InetURLs100\n#Suche\nhttps://s/?q=%Suche%&again=%Suche%\n#Leer\n");
    a.u.k.DateiDaten.ReDim(2);
    a.u.k.DateiDaten[2].Mp3_ID3v1_Interpret = "AC/DC";
    EinsBasiert<int32_t> auswahl(2);
    auswahl[1] = 2;
    auswahl[2] = 1;
    InternetAuswahl ia;
    ASSERT_TRUE(InternetSucheVorbereiten(a.u.k, a.ordner.Pfad(), auswahl, 2, ia));
    EXPECT_EQ(ia.suche, "AC/DC");
    ASSERT_EQ(ia.Namen.UBound(), 2);
    // Ohne Auswahl bleibt der Suchtext leer.
    InternetAuswahl ohne;
    ASSERT_TRUE(InternetSucheVorbereiten(a.u.k, a.ordner.Pfad(), EinsBasiert<int32_t>(), 0, ohne));
    EXPECT_EQ(ohne.suche, "");

    EXPECT_FALSE(InternetSucheÖffnen(a.u.k, ia, 0, "x"));
    EXPECT_FALSE(InternetSucheÖffnen(a.u.k, ia, 1, ""));
    ASSERT_EQ(a.u.ui.meldungen.size(), 2u);
    EXPECT_EQ(a.u.ui.meldungen[0].text, "Bitte wählen Sie einen Eintrag.");
    EXPECT_EQ(a.u.ui.meldungen[1].text, "Bitte geben Sie einen Such-Text ein.");
    EXPECT_EQ(a.u.ui.meldungen[1].schalter, 64);
    EXPECT_TRUE(a.u.shell.geöffnet.empty());

    EXPECT_TRUE(InternetSucheÖffnen(a.u.k, ia, 1, "AC/DC 1"));
    ASSERT_EQ(a.u.shell.geöffnet.size(), 1u);
    EXPECT_EQ(a.u.shell.geöffnet[0], "https://s/?q=AC%2FDC%20%31&again=AC%2FDC%20%31");
    // Ein Eintrag ohne Adresse öffnet eben das Leere; nichts hält ihn auf.
    EXPECT_TRUE(InternetSucheÖffnen(a.u.k, ia, 2, "x"));
    EXPECT_EQ(a.u.shell.geöffnet.back(), "");

    // Lässt sich nichts öffnen, bleibt das Fenster mit einer Meldung offen.
    a.u.shell.gelingt = false;
    EXPECT_FALSE(InternetSucheÖffnen(a.u.k, ia, 1, "x"));
    EXPECT_EQ(a.u.ui.meldungen.back().schalter, 48);

    // Fehlt die Datei, bleibt das Fenster zu.
    InternetAuswahl fehlt;
    EXPECT_FALSE(InternetSucheVorbereiten(a.u.k, a.ordner / "nichts", auswahl, 2, fehlt));
}
