// AutoTag: Formate zerlegen, Wörter von rechts, das Raten mit dem Index, Meldungen.
#include "app/Tabelle.h"
#include "support/Attrappen.h"
#include "tags/AutoTag.h"
#include "tags/AutoTagVorgaben.h"

#include <gtest/gtest.h>

namespace {
// Ein Eintrag mit gelesenem ID3v1-Tag.
void Eintragen(Kartei& k, const std::string& pfad, const std::string& interpret, const std::string& album = "",
               uint8_t status = 1) {
    IndexGrößeÄndern(k, k.DateiAnzahl + 1, true);
    k.DateiAnzahl += 1;
    k.DateiPfade[k.DateiAnzahl] = pfad;
    k.DateiDaten[k.DateiAnzahl].Mp3_ID3v1_Interpret = interpret;
    k.DateiDaten[k.DateiAnzahl].Mp3_ID3v1_Album = album;
    k.DateiDaten[k.DateiAnzahl].Mp3_ID3v1_Status = status;
}

DateiInfo Erkennen(TestUmgebung& u, const std::string& pfad, const std::string& format, int16_t modus = 0,
                   const DateiInfo& aus = {}) {
    DateiInfo e;
    EXPECT_TRUE(AutoTagVersuchen(u.k, pfad, format, e, aus, modus)) << pfad << " " << format;
    EXPECT_TRUE(u.ui.meldungen.empty());
    return e;
}

std::vector<std::string> Wörter(TestUmgebung& u, const std::string& pfad, bool ignorieren = true) {
    EinsBasiert<std::string> w;
    int32_t anzahl = -1;
    DateinamenLesen(u.k, pfad, w, anzahl, ignorieren);
    EXPECT_EQ(anzahl, w.UBound());
    return w.Vektor();
}

std::vector<std::string> V(std::initializer_list<std::string> l) { return l; }
}  // namespace

TEST(AutoTag, FormatLesenUndFundstellen) {
    EinsBasiert<std::string> p, t;
    int32_t n = 0;
    ASSERT_TRUE(FormatLesen("/%Interpret% - %Jahr% - %Titel%", p, t, n));
    EXPECT_EQ(n, 3);
    EXPECT_EQ(p.Vektor(), V({"%Interpret%", "%Jahr%", "%Titel%"}));
    EXPECT_EQ(t.Vektor(), V({"/", "-", "-", ""}));
    // Hinter dem letzten Platzhalter zählt nur das erste Zeichen.
    ASSERT_TRUE(FormatLesen("%Titel%) x", p, t, n));
    EXPECT_EQ(t.Vektor(), V({"", ")"}));
    EXPECT_FALSE(FormatLesen("/%Interpret - %Titel%", p, t, n));  // drei "%"
    ASSERT_TRUE(FormatLesen("ohne", p, t, n));
    EXPECT_EQ(n, 0);

    const std::string name = "/Musik/Abba - 1974 - Waterloo.mp3";
    EXPECT_EQ(LetzteFundstelle(29, name, "-", false), 20);
    EXPECT_EQ(LetzteFundstelle(19, name, "-", false), 13);
    EXPECT_EQ(LetzteFundstelle(12, name, "-", false), 0);
    EXPECT_EQ(LetzteFundstelle(12, name, "", false), 12);
    EXPECT_EQ(LetzteFundstelle(33, name, "WATER", false), 0);
    EXPECT_EQ(LetzteFundstelle(33, name, "WATER", true), 22);
    // Eine Fundstelle, die vor der Grenze beginnt, darf über sie hinausreichen.
    EXPECT_EQ(LetzteFundstelle(22, name, "Water", false), 22);
}

TEST(AutoTag, AusdrücklichesFormatVonRechts) {
    TestUmgebung u;
    DateiInfo e = Erkennen(u, "/Musik/Abba - 1974 - Waterloo.mp3", "/%Interpret% - %Jahr% - %Titel%");
    EXPECT_EQ(e.Mp3_ID3v1_Interpret, "Abba");
    EXPECT_EQ(e.Mp3_ID3v1_Jahr, "1974");
    EXPECT_EQ(e.Mp3_ID3v1_Titel, "Waterloo");
    EXPECT_EQ(e.Mp3_ID3v2_TPE1, "Abba");
    EXPECT_EQ(e.Mp3_ID3v2_TYER, "1974");
    EXPECT_EQ(e.Mp3_ID3v2_TIT2, "Waterloo");
    EXPECT_EQ(e.Mp3_ID3v1_TAG, "TAG");
    EXPECT_EQ(e.Mp3_ID3v1_Genre, "\xFF");
    EXPECT_EQ(e.Mp3_ID3v1_Status, 3);
    EXPECT_EQ(e.Mp3_ID3v2_Status, 3);

    // Ohne führenden Text bleibt das erste Wort leer; Groß/Klein der Platzhalter ist egal.
    e = Erkennen(u, "/Musik/Abba - Waterloo.mp3", "%INTERPRET% - %titel%");
    EXPECT_EQ(e.Mp3_ID3v1_Interpret, "");
    EXPECT_EQ(e.Mp3_ID3v1_Titel, "Waterloo");
    // Ohne Endung reicht die Suche bis zum Ende; ein Punkt im Ordner ist keine Endung.
    e = Erkennen(u, "/Mus.ik/Abba - Waterloo", "/%Interpret% - %Titel%");
    EXPECT_EQ(e.Mp3_ID3v1_Titel, "Waterloo");
    EXPECT_EQ(e.Mp3_ID3v1_Interpret, "Abba");
    // Vom längeren Trenner bleibt der Rest im Wort; das Schlusszeichen beendet das letzte Wort.
    e = Erkennen(u, "/A--B.mp3", "/%Interpret%--%Titel%");
    EXPECT_EQ(e.Mp3_ID3v1_Titel, "-B");
    e = Erkennen(u, "/Abba - Waterloo (live).mp3", "/%Interpret% - %Titel% (%Titelnummer%)");
    EXPECT_EQ(e.Mp3_ID3v1_Titel, "Waterloo");
    EXPECT_EQ(e.Mp3_ID3v2_TRCK, "live");
    // Müll und unbekannte Platzhalter verbrauchen ihr Wort ohne Wirkung.
    e = Erkennen(u, "/x - Abba - y.mp3", "/%Müll% - %Interpret% - %Quatsch%");
    EXPECT_EQ(e.Mp3_ID3v1_Interpret, "Abba");
    EXPECT_EQ(e.Mp3_ID3v1_Titel, "");
}

TEST(AutoTag, ModusUndFelderLöschen) {
    TestUmgebung u;
    DateiInfo alt;
    alt.Mp3_ID3v1_Titel = "t1";
    alt.Mp3_ID3v1_Kommentar = "k1";
    alt.Mp3_ID3v1_Genre = "\x11";
    alt.Mp3_ID3v2_TIT2 = "t2";
    alt.Mp3_ID3v2_TPE1 = "i2";
    alt.Mp3_ID3v2_TOPE = "orig";
    alt.Mp3_ID3v2_TCOM = "komp";
    alt.Mp3_ID3v2_Status = 1;
    // Modus 1: die ID3v2-Felder bleiben, auch beim Löschen der alten Daten.
    u.k.E.AutoTagFelderLöschen = 1;
    DateiInfo e = Erkennen(u, "/Abba - Waterloo.mp3", "/%Interpret% - %Titel%", AutoTagModusV1, alt);
    EXPECT_EQ(e.Mp3_ID3v1_Interpret, "Abba");
    EXPECT_EQ(e.Mp3_ID3v1_Kommentar, "");
    EXPECT_EQ(e.Mp3_ID3v1_Genre, "\xFF");
    EXPECT_EQ(e.Mp3_ID3v1_Status, 3);
    EXPECT_EQ(e.Mp3_ID3v2_TIT2, "t2");
    EXPECT_EQ(e.Mp3_ID3v2_TPE1, "i2");
    EXPECT_EQ(e.Mp3_ID3v2_TCOM, "komp");
    EXPECT_EQ(e.Mp3_ID3v2_Status, 1);

    // Modus 2: TIT2 und TOPE überstehen das Löschen, die übrigen ID3v2-Felder nicht.
    e = Erkennen(u, "/Abba - Waterloo.mp3", "/%Interpret% - %Müll%", AutoTagModusV2, alt);
    EXPECT_EQ(e.Mp3_ID3v2_TPE1, "Abba");
    EXPECT_EQ(e.Mp3_ID3v2_TIT2, "t2");
    EXPECT_EQ(e.Mp3_ID3v2_TOPE, "orig");
    EXPECT_EQ(e.Mp3_ID3v2_TCOM, "");
    EXPECT_EQ(e.Mp3_ID3v1_Titel, "t1");
    EXPECT_EQ(e.Mp3_ID3v1_Genre, "\x11");
    EXPECT_EQ(e.Mp3_ID3v1_Status, 0);  // Modus 2 fasst den ID3v1-Status nicht an

    // Ohne Löschen bleibt, was das Format nicht nennt.
    u.k.E.AutoTagFelderLöschen = 0;
    e = Erkennen(u, "/Abba - Waterloo.mp3", "/%Interpret% - %Titel%", AutoTagModusBeide, alt);
    EXPECT_EQ(e.Mp3_ID3v1_Kommentar, "k1");
    EXPECT_EQ(e.Mp3_ID3v2_TCOM, "komp");
}

TEST(AutoTag, GenreNachNamen) {
    TestUmgebung u;
    DateiInfo alt;
    alt.Mp3_ID3v2_TCON = "vorher";
    DateiInfo e = Erkennen(u, "/Musik/dance hall/Abba - Waterloo.mp3", "/%GENRE%/%Interpret% - %Titel%", 0, alt);
    EXPECT_EQ(e.Mp3_ID3v1_Genre, std::string(1, '\x7D'));  // Code 125, Zeile 126 – nie 142
    EXPECT_EQ(e.Mp3_ID3v2_TCON, "Dance Hall");
    EXPECT_EQ(e.Mp3_ID3v1_Interpret, "Abba");
    e = Erkennen(u, "/Musik/Krautpop/Abba - Waterloo.mp3", "/%Genre%/%Interpret% - %Titel%", 0, alt);
    EXPECT_EQ(e.Mp3_ID3v1_Genre, "\xFF");
    EXPECT_EQ(e.Mp3_ID3v2_TCON, "vorher");
    e = Erkennen(u, "/Musik/BLUES/Abba - Waterloo.mp3", "/%Genre%/%Interpret% - %Titel%", AutoTagModusV1, alt);
    EXPECT_EQ(e.Mp3_ID3v1_Genre, std::string(1, '\0'));
    EXPECT_EQ(e.Mp3_ID3v2_TCON, "vorher");
}

TEST(AutoTag, DateinamenLesen) {
    TestUmgebung u;
    EXPECT_EQ(Wörter(u, "/Musik/Abba/1974 - 05 - Waterloo.mp3"), V({"Musik", "Abba", "1974", "05", "Waterloo"}));
    EXPECT_EQ(Wörter(u, "Lied.mp3"), V({"Lied"}));
    EXPECT_EQ(Wörter(u, "/Musik/Abba/"), V({"Musik", "Abba"}));
    EXPECT_EQ(Wörter(u, "/Musik/-Lied, eins_zwei.ogg"), V({"Musik", "", "Lied", "eins", "zwei"}));
    u.k.E.AutoTagAusschluß.Anhängen("live");
    u.k.E.AutoTagAusschlußLeer = 0;
    EXPECT_EQ(Wörter(u, "/Live/Abba - LIVE.mp3"), V({"Abba"}));
    EXPECT_EQ(Wörter(u, "/Live/Abba - LIVE.mp3", false), V({"Live", "Abba"}));  // das letzte Wort immer
    u.k.E.AutoTagAusschlußLeer = 1;                                             // als leer geführt: nicht befragt
    EXPECT_EQ(Wörter(u, "/Live/Abba - LIVE.mp3"), V({"Live", "Abba", "LIVE"}));
}

TEST(AutoTag, AutomatikBeispiele) {
    TestUmgebung u;
    // Leerer Index: das Letzte wird Titel, im zweiten Durchlauf das Nächste Interpret.
    DateiInfo e = Erkennen(u, "/Musik/Unbekannt - Lied.mp3", "%Automatik%");
    EXPECT_EQ(e.Mp3_ID3v1_Titel, "Lied");
    EXPECT_EQ(e.Mp3_ID3v1_Interpret, "Unbekannt");
    EXPECT_EQ(e.Mp3_ID3v2_TPE1, "Unbekannt");
    EXPECT_EQ(e.Mp3_ID3v1_Album, "");
    // Eine Jahreszahl allein wird Titelnummer.
    e = Erkennen(u, "/Musik/Abba - Waterloo - 1974.mp3", "%automatik%");
    EXPECT_EQ(e.Mp3_ID3v1_Track, "1974");
    EXPECT_EQ(e.Mp3_ID3v1_Jahr, "");
    EXPECT_EQ(e.Mp3_ID3v1_Titel, "Waterloo");
    EXPECT_EQ(e.Mp3_ID3v1_Interpret, "Abba");

    // Der Index kennt "ABBA Gold"; der eigene Eintrag und Einträge ohne ID3v1-Tag zählen nicht.
    const std::string pfad = "/Musik/Abba/1974 - 05 - Waterloo.mp3";
    Eintragen(u.k, pfad, "Musik");
    Eintragen(u.k, "/x/ohne.mp3", "Musikanten", "Musik", 2);
    Eintragen(u.k, "/x/gold.mp3", "ABBA Gold");
    e = Erkennen(u, pfad, "%Automatik%");
    EXPECT_EQ(e.Mp3_ID3v1_Titel, "Waterloo");
    EXPECT_EQ(e.Mp3_ID3v1_Track, "05");
    EXPECT_EQ(e.Mp3_ID3v2_TRCK, "05");
    EXPECT_EQ(e.Mp3_ID3v1_Jahr, "1974");
    EXPECT_EQ(e.Mp3_ID3v1_Interpret, "Abba");
    EXPECT_EQ(e.Mp3_ID3v1_Album, "");
}

TEST(AutoTag, AutomatikQuerprüfungUndLeeresWort) {
    TestUmgebung u;
    Eintragen(u.k, "/a.mp3", "Queen", "Greatest Hits");
    Eintragen(u.k, "/b.mp3", "Abba", "Arrival");
    // "Greatest" ist Album; "Abba" passt als Interpret nur, wenn sein Album dazu passt – "Arrival"
    // nicht, also bleibt es für Durchlauf 2.
    DateiInfo e = Erkennen(u, "/Abba/Greatest/Lied.mp3", "%Automatik%");
    EXPECT_EQ(e.Mp3_ID3v1_Album, "Greatest");
    EXPECT_EQ(e.Mp3_ID3v1_Titel, "Lied");
    EXPECT_EQ(e.Mp3_ID3v1_Interpret, "Abba");  // aus dem großen Ratespiel
    // Umgekehrt prüft der erkannte Interpret das Album: "Greatest Hits" gehört zu Queen.
    e = Erkennen(u, "/Greatest/Abba/Lied.mp3", "%Automatik%");
    EXPECT_EQ(e.Mp3_ID3v1_Interpret, "Abba");
    EXPECT_EQ(e.Mp3_ID3v1_Album, "");
    EXPECT_EQ(e.Mp3_ID3v1_Titel, "Lied");

    // Das leere Wort passt als Anfang zu jedem Interpreten und nimmt dessen Platz.
    DateiInfo alt;
    alt.Mp3_ID3v1_Interpret = "vorher";
    e = Erkennen(u, "/Musik/-Lied.mp3", "%Automatik%", 0, alt);
    EXPECT_EQ(e.Mp3_ID3v1_Titel, "Lied");
    EXPECT_EQ(e.Mp3_ID3v1_Interpret, "");
    EXPECT_EQ(e.Mp3_ID3v2_TPE1, "");
}

TEST(AutoTag, UnterstrichUndAusschluss) {
    TestUmgebung u;
    DateiInfo e = Erkennen(u, "/Musik/Abba_Waterloo.mp3", "%Automatik%");
    EXPECT_EQ(e.Mp3_ID3v1_Titel, "Abba Waterloo");
    EXPECT_EQ(e.Mp3_ID3v1_Interpret, "Musik");
    u.k.E.AutoTagUnterstrichEntfernen = 0;
    e = Erkennen(u, "/Musik/Abba_Waterloo.mp3", "%Automatik%");
    EXPECT_EQ(e.Mp3_ID3v1_Titel, "Waterloo");
    EXPECT_EQ(e.Mp3_ID3v1_Interpret, "Abba");

    u.k.E.AutoTagAusschluß.Anhängen("live");
    u.k.E.AutoTagAusschlußLeer = 0;
    e = Erkennen(u, "/Live/Waterloo.mp3", "%Automatik%");
    EXPECT_EQ(e.Mp3_ID3v1_Titel, "Waterloo");
    EXPECT_EQ(e.Mp3_ID3v1_Interpret, "");  // "Live" ist gar kein Wort mehr
    DateiInfo alt;
    alt.Mp3_ID3v1_Album = "vorher";
    e = Erkennen(u, "/Live/Abba - Waterloo.mp3", "/%Album%/%Interpret% - %Titel%", 0, alt);
    EXPECT_EQ(e.Mp3_ID3v1_Album, "vorher");  // zugeordnet, aber nicht gespeichert
    EXPECT_EQ(e.Mp3_ID3v1_Interpret, "Abba");
}

TEST(AutoTag, Meldungen) {
    TestUmgebung u;
    DateiInfo alt;
    alt.Mp3_ID3v1_Titel = "bleibt";
    const auto meldung = [&](const std::string& pfad, const std::string& format) {
        u.ui.meldungen.clear();
        DateiInfo e;
        EXPECT_FALSE(AutoTagVersuchen(u.k, pfad, format, e, alt, 0)) << format;
        EXPECT_EQ(e, alt);
        EXPECT_EQ(u.ui.meldungen.size(), 1u);
        if (u.ui.meldungen.empty()) return std::string();
        EXPECT_EQ(u.ui.meldungen[0].schalter, 64);
        return u.ui.meldungen[0].text;
    };
    const std::string pfad = "/Musik/Abba - Waterloo.mp3";
    const std::string nicht =
        "Das von Ihnen zu Erkennung des TAGs verwendete Format konnte nicht verarbeitet werden.\n";
    EXPECT_EQ(meldung(pfad, ""), "Sie haben kein AutoTAG-Format ausgewählt, nach dem der TAG erkannt werden soll.\n"
                                 "Bitte wählen Sie eines im 'Format'-Fenster aus.");
    EXPECT_EQ(meldung(pfad, "/%Interpret - %Titel%"),
              "Das von Ihnen zu Erkennung des TAGs verwendete Format ('/%Interpret - %Titel%') konnte nicht "
              "verarbeitet werden.\nÜberprüfen Sie die Schreibweise der Variablen ('%'-Zeichen vergessen?).");
    EXPECT_EQ(meldung(pfad, "/%Interpret% - %Titel%]"),
              nicht + "Das letzte Trennzeichen ']' existiert nicht, obwohl es im Format definiert wurde.");
    EXPECT_EQ(meldung(pfad, "/%Interpret% - %Album% - %Titel%"),
              nicht + "Der zu erkennende Dateiname enthält nicht gleich viele Elemente wie das Format (z.B. Datei "
                      "'AB - CD.mp3' = 2 und Format '%AB% - %CD% - %EF%' = 3).");
    EXPECT_EQ(meldung(pfad, "%Automatik% %Titel%"),
              "Bei Verwendung der Erkennungs-Variable '%Automatik%' können keine weiteren Variablen verwendet werden.");
    EXPECT_EQ(meldung(pfad, "Interpret - Titel"), "Das von Ihnen zu Erkennung des TAGs verwendete Format konnte "
                                                  "nicht auf den Dateinamen angewendet werden.");
    u.k.E.AutoTagAusschluß.Anhängen("live");
    u.k.E.AutoTagAusschlußLeer = 0;
    EXPECT_EQ(meldung("/Live.mp3", "%Automatik%"), "Der Dateiname '/Live.mp3' konnte nicht verarbeitet werden.");
}

TEST(AutoTag, VorgabeFormate) {
    const auto formate = AutoTagVorgabeFormate();
    ASSERT_EQ(formate.UBound(), 23);
    EXPECT_EQ(formate[1], "/%Interpret% - %Titel%");
    EXPECT_EQ(formate[23], "%Automatik%");
    // Jedes Format lässt sich lesen, nennt nur bekannte Platzhalter und trennt mit "-" oder "/".
    for (const auto& f : formate) {
        EinsBasiert<std::string> p, t;
        int32_t n = 0;
        ASSERT_TRUE(FormatLesen(f, p, t, n)) << f;
        for (const auto& x : p)
            EXPECT_NE(std::string("%Interpret%%Titel%%Album%%Titelnummer%%Jahr%%Genre%%Müll%%Automatik%").find(x),
                      std::string::npos)
                << f;
        for (const auto& x : t) EXPECT_TRUE(x.empty() || x == "-" || x == "/") << f;
    }
}
