// Die Formatwahl von AutoTag: Listen laden und zurückschreiben, Formate prüfen, Ausschlussliste;
// dazu der Stapel, der vor der Funktion die Datei liest.
#include "app/Tabelle.h"
#include "index/Dateitypen.h"
#include "media/MedienInfos.h"
#include "support/Attrappen.h"
#include "support/MpegDaten.h"
#include "support/TestOrdner.h"
#include "tags/AutoTagStapel.h"
#include "tags/AutoTagVorgaben.h"
#include "tags/AutoTagWahl.h"

#include <gtest/gtest.h>

TEST(AutoTagWahl, FormateWählenÄndernEntfernen) {
    TestUmgebung u;
    u.k.E.AutoTagFormate = AutoTagVorgabeFormate();
    u.k.E.AutoTagLeer = 0;
    u.k.E.AutoTagAktuell = "/%Interpret%/%Titel%";
    u.k.E.AutoTagAusschlußLeer = 1;
    u.k.E.AutoTagAusschluß.ReDim(1);
    AutoTagWahl w = AutoTagWahlLaden(u.k);
    EXPECT_EQ(w.formate.size(), 23u);
    EXPECT_EQ(w.gewählt, 2);
    EXPECT_TRUE(w.ausschluss.empty());
    EXPECT_TRUE(w.unterstrichEntfernen);

    // Ungerade "%", "%Automatik%" mit mehr, leer: abgelehnt mit der Meldung von AutoTag.
    EXPECT_FALSE(AutoTagFormatHinzufügen(u.k, w, "/%Interpret - %Titel%"));
    EXPECT_FALSE(AutoTagFormatHinzufügen(u.k, w, "%Automatik% %Titel%"));
    EXPECT_FALSE(AutoTagFormatÄndern(u.k, w, "  "));
    ASSERT_EQ(u.ui.meldungen.size(), 3u);
    EXPECT_EQ(u.ui.meldungen[0].text, "Das von Ihnen zu Erkennung des TAGs verwendete Format ('/%Interpret - %Titel%') "
                                      "konnte nicht verarbeitet werden.\nÜberprüfen Sie die Schreibweise der Variablen "
                                      "('%'-Zeichen vergessen?).");
    EXPECT_EQ(u.ui.meldungen[1].text, "Bei Verwendung der Erkennungs-Variable '%Automatik%' können keine weiteren "
                                      "Variablen verwendet werden.");
    EXPECT_EQ(u.ui.meldungen[2].schalter, Meldung::Information);
    EXPECT_EQ(w.formate.size(), 23u);

    ASSERT_TRUE(AutoTagFormatHinzufügen(u.k, w, " /%Album% - %Titel% "));
    EXPECT_EQ(w.formate.back(), "/%Album% - %Titel%");
    EXPECT_EQ(w.gewählt, 23);
    ASSERT_TRUE(AutoTagFormatHinzufügen(u.k, w, "%Automatik%"));  // schon da: nur gewählt
    EXPECT_EQ(w.gewählt, 22);
    EXPECT_EQ(w.formate.size(), 24u);
    ASSERT_TRUE(AutoTagFormatÄndern(u.k, w, "%Automatik%"));
    w.gewählt = 23;
    ASSERT_TRUE(AutoTagFormatEntfernen(w));
    EXPECT_EQ(w.gewählt, 22);
    EXPECT_EQ(w.formate.size(), 23u);

    EXPECT_TRUE(AutoTagAusschlussHinzufügen(w, " Live "));
    EXPECT_FALSE(AutoTagAusschlussHinzufügen(w, "LIVE"));
    EXPECT_FALSE(AutoTagAusschlussHinzufügen(w, " "));
    EXPECT_TRUE(AutoTagAusschlussHinzufügen(w, "Remix"));
    EXPECT_TRUE(AutoTagAusschlussEntfernen(w, 1));
    EXPECT_FALSE(AutoTagAusschlussEntfernen(w, 5));
    w.felderLöschen = true;
    AutoTagWahlÜbernehmen(u.k, w);
    EXPECT_EQ(u.k.E.AutoTagAktuell, "%Automatik%");
    EXPECT_EQ(u.k.E.AutoTagAusschlußLeer, 0);
    ASSERT_EQ(u.k.E.AutoTagAusschluß.UBound(), 1);
    EXPECT_EQ(u.k.E.AutoTagAusschluß[1], "Live");
    EXPECT_EQ(u.k.E.AutoTagFelderLöschen, 1);

    // Alle Formate entfernt: die Liste gilt als leer.
    while (AutoTagFormatEntfernen(w)) {}
    AutoTagWahlÜbernehmen(u.k, w);
    EXPECT_EQ(u.k.E.AutoTagLeer, 1);
    EXPECT_TRUE(AutoTagWahlLaden(u.k).formate.empty());
}

// Ein veralteter Indexeintrag darf beim Stapel keinen Tag-Inhalt der Datei überschreiben.
TEST(AutoTagWahl, StapelLiestVorDerFunktionDieDatei) {
    TestOrdner o;
    TestUmgebung u;
    DateitypenVorgabenWennLeer(u.k.Optionen);
    DateiSchreiben(o / "a.mp3", mpeg::Frame(mpeg::Kopf{}) + mpeg::Id3v1("alt", "Wer", "", "", "", 0, 255));
    IndexGrößeÄndern(u.k, 1, true);
    u.k.DateiAnzahl = 1;
    u.k.DateiPfade[1] = o / "a.mp3";
    u.k.DateiDaten[1] = MedienInfosLesen(u.k, o / "a.mp3", DateiInfo{}, "11", false, "1", "1");
    // Ein anderes Programm schreibt das Album in die Datei; der Index weiß davon nichts.
    DateiSchreiben(o / "a.mp3", mpeg::Frame(mpeg::Kopf{}) + mpeg::Id3v1("alt", "Wer", "Neues Album", "", "", 0, 255));
    const AutoTagStapelErgebnis e = TagFunktionStapel(u.k, {1}, 9, "", 1);
    EXPECT_EQ(e.gespeichert, 1);
    const DateiInfo d = MedienInfosLesen(u.k, o / "a.mp3", DateiInfo{}, "10", false, "0", "0");
    EXPECT_EQ(d.Mp3_ID3v1_Album, "NEUES ALBUM");
    EXPECT_EQ(d.Mp3_ID3v1_Titel, "ALT");
}
