// Export Byte für Byte: Text mit Trennern und Anführung, HTML, PLS und M3U, leere Listen,
// Ersetzen einer vorhandenen Datei und die Frage danach.
#include "BerichteHilfen.h"

#include "app/Ergebnisliste.h"
#include "app/Pfade.h"
#include "reports/Export.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>

namespace {
const std::vector<std::string> vierSpalten = {"Dateiname", "Interpret", "Titel", "Album"};
const std::vector<int32_t> alle = {1, 2, 3, 4};

std::string Text(const Kartei& k, const std::vector<int32_t>& liste, std::string_view q, std::string_view t,
                 const std::vector<std::string>& spalten = vierSpalten) {
    return ExportText(k, liste, "x.txt", ExportArt::Text, q, t, spalten);
}
}  // namespace

TEST(Export, ZitierenLässtStricheUndLeeresVerschwinden) {
    EXPECT_EQ(Zitieren("", "\""), "");
    EXPECT_EQ(Zitieren("-----", "\""), "");
    EXPECT_EQ(Zitieren("  ", "\""), "");
    EXPECT_EQ(Zitieren("-", "\""), "\"-\"");
    EXPECT_EQ(Zitieren(" a b ", "\""), "\"a b\"");
    EXPECT_EQ(Zitieren("x\"y", "\""), "\"x\"y\"");  // nicht verdoppelt
    EXPECT_EQ(Zitieren("aab", ""), "aab");
}

TEST(Export, TextMitAnführungUndOhne) {
    TestUmgebung u;
    BerichtsKartei(u.k);
    EXPECT_EQ(Text(u.k, alle, "\"", ";"), "\"Dateiname\";\"Interpret\";\"Titel\";\"Album\"\r\n"
                                          "\"a b.mp3\";\"Nena\";\"99 Luftballons\";\r\n"
                                          "\"zwei.mp3\";\"Can\";\"Vitamin \"C\" & <mehr>\";\"-\"\r\n"
                                          "\"ohne.mp3\";;;\r\n"
                                          "\"vier.mp3\";\"Abba\";;\r\n");
    // Ohne Anführung schützt nichts den Trenner im Wert.
    EXPECT_EQ(Text(u.k, {1, 2}, "", " "), "Dateiname Interpret Titel Album\r\n"
                                          "a b.mp3 Nena 99 Luftballons \r\n"
                                          "zwei.mp3 Can Vitamin \"C\" & <mehr> -\r\n");
    EXPECT_EQ(Text(u.k, {}, "", "\t"), "Dateiname\tInterpret\tTitel\tAlbum\r\n");
}

TEST(Export, SpalteOhneWertLässtAuchDenTrennerWeg) {
    TestUmgebung u;
    BerichtsKartei(u.k);
    // "Gibtsnicht" ist kein Feld: die Abfrage scheitert, die Spalte fällt aus jeder Zeile.
    EXPECT_EQ(Text(u.k, {1, 3}, "", ",", {"Dateiname", "Gibtsnicht", "Titel"}), "Dateiname,Gibtsnicht,Titel\r\n"
                                                                                "a b.mp3,99 Luftballons\r\n"
                                                                                "ohne.mp3,\r\n");
    EXPECT_EQ(Text(u.k, {1}, "", ",", {"Dateiname", "Gibtsnicht"}), "Dateiname,Gibtsnicht\r\na b.mp3,\r\n");
}

TEST(Export, SpaltenlisteNimmtBenutzerdefiniertStattKopf) {
    Ergebnisliste l;
    l.spalten = {{"Titel", "", 1400, 5}, {"Interpret - Titel", "b", 1400, 19}, {"Dateiname", "e", 1400, 3}};
    EXPECT_EQ(ExportSpalten(l), (std::vector<std::string>{"Titel", "Benutzerdefiniert", "Dateiname"}));
}

TEST(Export, HtmlZeilenGenau) {
    TestUmgebung u;
    BerichtsKartei(u.k);
    const std::string kopf =
        "<html><head><title>Klangkartei-HTML-Export</title></head><body>\r\n"
        "<center><font face=\"Arial\"><h2><a href=\"https://klangkartei.example.org/\">Klangkartei</a>"
        "-HTML-Export</h2></font></center>\r\n"
        "<table border=\"0\" cellpadding=\"3\" cellspacing=\"1\" width=\"100%\" style=\"font-size: 9pt; "
        "font-family: Verdana; font-weight: bold\">\r\n"
        "<tr bgcolor=#dddddd>\r\n";
    EXPECT_EQ(ExportText(u.k, {1, 2, 3}, "x.htm", ExportArt::Html, "", "", vierSpalten),
              kopf + "<td width=\"25%\">Dateiname</td><td width=\"25%\">Interpret</td><td width=\"25%\">Titel</td>"
                     "<td width=\"25%\">Album</td></tr>\r\n"
                     "<tr bgcolor=#ffffff>\r\n<td>a b.mp3</td>\r\n<td>Nena</td>\r\n<td>99 Luftballons</td>\r\n"
                     "<td>-----</td>\r\n</tr>\r\n"
                     "<tr bgcolor=#dddddd>\r\n<td>zwei.mp3</td>\r\n<td> Can </td>\r\n"
                     "<td>Vitamin \"C\" & <mehr></td>\r\n<td>-</td>\r\n</tr>\r\n"
                     "<tr bgcolor=#ffffff>\r\n<td>ohne.mp3</td>\r\n<td></td>\r\n<td></td>\r\n<td></td>\r\n</tr>\r\n"
                     "</table></body></html>\r\n");
    // Drei Spalten: 100 / 3 gerundet; ohne Einträge nur Kopf und Ende; ein Feld ohne Wert ohne Zelle.
    EXPECT_EQ(ExportText(u.k, {}, "x.htm", ExportArt::Html, "", "", {"Dateiname", "Titel", "Gibtsnicht"}),
              kopf + "<td width=\"33%\">Dateiname</td><td width=\"33%\">Titel</td><td width=\"33%\">Gibtsnicht</td>"
                     "</tr>\r\n</table></body></html>\r\n");
    EXPECT_EQ(ExportText(u.k, {4}, "x.htm", ExportArt::Html, "", "", {"Gibtsnicht", "Dateiname"}),
              kopf + "<td width=\"50%\">Gibtsnicht</td><td width=\"50%\">Dateiname</td></tr>\r\n"
                     "<tr bgcolor=#ffffff>\r\n<td>vier.mp3</td>\r\n</tr>\r\n</table></body></html>\r\n");
}

TEST(Export, PlsNummeriertOhneLücke) {
    TestUmgebung u;
    BerichtsKartei(u.k);
    EXPECT_EQ(ExportText(u.k, {3, 1, 4, 2}, "/x/liste.pls", ExportArt::Playliste, "", "", vierSpalten),
              "[playlist]\r\n"
              "File1=/m/ohne.mp3\r\n"
              "File2=/m/a b.mp3\r\nTitle2=Nena - 99 Luftballons\r\nLength2=230\r\n"
              "File3=/m/vier.mp3\r\nLength3=61\r\n"
              "File4=/m/zwei.mp3\r\nTitle4= Can  - Vitamin \"C\" & <mehr>\r\nLength4=180\r\n");
    EXPECT_EQ(ExportText(u.k, {}, "liste.pls", ExportArt::Playliste, "", "", {}), "[playlist]\r\n");
    u.k.E.PlaylistFürWinamp = 0;
    EXPECT_EQ(ExportText(u.k, {1, 3}, "liste.pls", ExportArt::Playliste, "", "", {}),
              "[playlist]\r\nFile1=/m/a b.mp3\r\nFile2=/m/ohne.mp3\r\n");
}

TEST(Export, M3uAuchBeiGroßgeschriebenemPls) {
    TestUmgebung u;
    BerichtsKartei(u.k);
    const std::string erwartet = "#EXTM3U\r\n"
                                 "#EXTINF:230,Nena - 99 Luftballons\r\n/m/a b.mp3\r\n"
                                 "/m/ohne.mp3\r\n"
                                 "#EXTINF:61,Abba - \r\n/m/vier.mp3\r\n";
    EXPECT_EQ(ExportText(u.k, {1, 3, 4}, "liste.PLS", ExportArt::Playliste, "", "", {}), erwartet);
    EXPECT_EQ(ExportText(u.k, {1, 3, 4}, "liste.m3u", ExportArt::Playliste, "", "", {}), erwartet);
    EXPECT_EQ(ExportText(u.k, {}, "liste.m3u", ExportArt::Playliste, "", "", {}), "#EXTM3U\r\n");
    u.k.E.PlaylistFürWinamp = 0;
    EXPECT_EQ(ExportText(u.k, {1, 3}, "liste.m3u", ExportArt::Playliste, "", "", {}), "/m/a b.mp3\r\n/m/ohne.mp3\r\n");
}

TEST(Export, DateiErsetztFragtUndÖffnet) {
    TestUmgebung u;
    TestOrdner o;
    BerichtsKartei(u.k);
    u.k.Liste.lstSongs.spalten = {{"Dateiname", "", 1400, 3}, {"Titel", "", 1400, 5}};
    const std::string datei = o / "liste.csv";
    DateiSchreiben(datei, "alter Inhalt, der länger ist als der neue");
    u.ui.antworten = {Meldung::Abbrechen, Meldung::Nein};
    ASSERT_TRUE(ListeExportieren(u.k, {1, 2}, datei, ExportArt::Text, "", ",", u.k.Liste.lstSongs));
    EXPECT_EQ(DateiLesen(datei), "Dateiname,Titel\r\na b.mp3,99 Luftballons\r\nzwei.mp3,Vitamin \"C\" & <mehr>\r\n");
    ASSERT_EQ(u.ui.meldungen.size(), 1u);
    EXPECT_EQ(u.ui.meldungen[0].schalter, Meldung::JaNeinAbbrechen);
    EXPECT_EQ(u.ui.meldungen[0].text,
              "Die Datei wurde gespeichert unter dem Dateinamen " + datei +
                  "\n\nSie können diese Datei mit dem Programm 'Notepad' oder dem verknüpften Programm anzeigen.\n"
                  "Möchten Sie diese Datei mit 'Notepad' anzeigen?\n"
                  " - Klicken Sie auf 'Ja', um die Datei mit Notepad anzuzeigen\n"
                  " - Klicken Sie auf 'Nein', um sie mit dem verknüpften Programm anzuzeigen.");
    EXPECT_TRUE(u.shell.geöffnet.empty());
    EXPECT_TRUE(u.ui.titelTexte.empty());
    // "Nein": mit dem verknüpften Programm.
    ASSERT_TRUE(ListeExportieren(u.k, {}, datei, ExportArt::Text, "", ",", u.k.Liste.lstSongs));
    EXPECT_EQ(DateiLesen(datei), "Dateiname,Titel\r\n");
    EXPECT_EQ(u.shell.geöffnet, std::vector<std::string>{datei});
    EXPECT_EQ(u.ui.titelTexte, std::vector<std::string>{"Die Datei wird angezeigt..."});
}

TEST(Export, NichtSchreibbarMeldetUndGibtFalse) {
    TestUmgebung u;
    TestOrdner o;
    BerichtsKartei(u.k);
    const std::string datei = o / "fehlt/liste.htm";
    EXPECT_FALSE(ListeExportieren(u.k, {1}, datei, ExportArt::Html, "", "", u.k.Liste.lstSongs));
    ASSERT_EQ(u.ui.meldungen.size(), 1u);
    EXPECT_EQ(u.ui.meldungen[0].schalter, Meldung::Ausrufezeichen);
    EXPECT_EQ(u.ui.meldungen[0].text.rfind("Die Datei '" + datei + "' konnte nicht geschrieben werden.\n\n", 0), 0u);
}

TEST(Export, DialogPrüftSpeichertUndFragtVorDemÜberschreiben) {
    TestUmgebung u;
    TestOrdner o;
    BerichtsKartei(u.k);
    ExportWahl w;
    EXPECT_FALSE(ExportDialogAusführen(u.k, w, {1}, u.k.Liste.lstSongs));
    w.datei = o / "l.txt";
    EXPECT_FALSE(ExportDialogAusführen(u.k, w, {1}, u.k.Liste.lstSongs));
    w.modus = ExportArt::Text;
    EXPECT_FALSE(ExportDialogAusführen(u.k, w, {1}, u.k.Liste.lstSongs));
    ASSERT_EQ(u.ui.meldungen.size(), 3u);
    EXPECT_EQ(u.ui.meldungen[0].text, "Bitte geben Sie einen Dateinamen ein.");
    EXPECT_EQ(u.ui.meldungen[1].text, "Bitte wählen Sie ein Export-Format.");
    EXPECT_EQ(u.ui.meldungen[2].text, "Bitte wählen Sie das Unterformat zur Auswahl 'Text'.");
    EXPECT_EQ(u.ui.meldungen[2].schalter, Meldung::Information);
    EXPECT_FALSE(DoesExist(w.datei));

    u.k.Liste.lstSongs.spalten = {{"Titel", "", 1400, 5}};
    w.untermodus = 1;
    w.anführung = true;
    DateiSchreiben(w.datei, "alt");
    u.ui.antworten = {Meldung::Nein};
    EXPECT_FALSE(ExportDialogAusführen(u.k, w, {1}, u.k.Liste.lstSongs));
    EXPECT_EQ(u.ui.meldungen.back().text,
              "Die Datei '" + w.datei + "' existiert bereits.\n\nMöchten Sie diese überschreiben?");
    EXPECT_EQ(u.ui.meldungen.back().schalter, Meldung::JaNeinAusruf);
    EXPECT_EQ(DateiLesen(w.datei), "alt");
    EXPECT_EQ(u.k.E.ExportDatei, w.datei);
    EXPECT_EQ(u.k.E.ExportUntermodus, 1);
    u.ui.antworten = {Meldung::Ja, Meldung::Abbrechen};
    EXPECT_TRUE(ExportDialogAusführen(u.k, w, {1}, u.k.Liste.lstSongs));
    EXPECT_EQ(DateiLesen(w.datei), "\"Titel\"\r\n\"99 Luftballons\"\r\n");
}

TEST(Export, EndungFolgtDerArt) {
    EXPECT_EQ(ExportEndungAnpassen("/a/liste.csv", ExportArt::Html), "/a/liste.htm");
    EXPECT_EQ(ExportEndungAnpassen("/a/liste.html", ExportArt::Html), "/a/liste.html");
    EXPECT_EQ(ExportEndungAnpassen("/a/liste.htm", ExportArt::Playliste), "/a/liste.m3u");
    EXPECT_EQ(ExportEndungAnpassen("/a/liste.pls", ExportArt::Playliste), "/a/liste.pls");
    EXPECT_EQ(ExportEndungAnpassen("/a.b/liste", ExportArt::Text), "/a.b/liste.csv");
    EXPECT_EQ(ExportEndungAnpassen("", ExportArt::Text), "");
}
