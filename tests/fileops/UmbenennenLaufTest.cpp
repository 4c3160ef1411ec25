// Der Lauf der Umbenennung über echte Dateien: der Index folgt Datei für Datei, ein Abbruch
// behält alles Erledigte, ein Fehler lässt Datei und Eintrag, wie sie waren.
#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/Tabelle.h"
#include "fileops/Umbenennen.h"
#include "shell/Fortschritt.h"
#include "support/Attrappen.h"
#include "support/OhneVorrechte.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {
namespace F = UmbenennenFunktion;
const char* const kSchluss = " Dateien wurden umbenannt/geändert.";

// Legt die Dateien an (Inhalt = Name) und je einen Eintrag; Ergebnis: die Nummern 1..n.
std::vector<int32_t> Einträge(Kartei& k, const TestOrdner& o, const std::vector<std::string>& namen) {
    std::vector<int32_t> liste;
    for (const auto& name : namen) {
        DateiSchreiben(o / name, name);
        IndexGrößeÄndern(k, k.DateiAnzahl + 1, true);
        ++k.DateiAnzahl;
        k.DateiPfade[k.DateiAnzahl] = o / name;
        k.DateiDaten[k.DateiAnzahl].Mp3_ID3v1_Status = 1;
        liste.push_back(k.DateiAnzahl);
    }
    k.DateiGeändert = false;
    return liste;
}

bool SchlussGezeigt(const TestOberfläche& ui) {
    for (const auto& t : ui.titelTexte)
        if (t.find(kSchluss) != std::string::npos) return true;
    return false;
}
}  // namespace

TEST(UmbenennenLauf, ZaehlerSuchtJedesMalAbDemStart) {
    TestUmgebung u;
    TestOrdner o;
    DateiSchreiben(o / "Lied5.mp3", "x");
    DateiSchreiben(o / "Lied6.mp3", "x");
    const auto liste = Einträge(u.k, o, {"a.mp3", "b.mp3", "c.ogg"});
    UmbenennenEingaben e;
    e.funktion = F::Fortlaufend;
    e.basis1 = "Lied";
    e.zähler = "5";
    const UmbenennenErgebnis r = UmbenennenAusführen(u.k, liste, e);
    EXPECT_EQ(r.geändert, 3);
    EXPECT_FALSE(r.abgebrochen);
    EXPECT_EQ(u.k.DateiPfade[1], o / "Lied7.mp3");
    EXPECT_EQ(u.k.DateiPfade[2], o / "Lied8.mp3");
    EXPECT_EQ(u.k.DateiPfade[3], o / "Lied5.ogg");  // eigene Endung, eigene Zahlen
    EXPECT_EQ(DateiLesen(o / "Lied7.mp3"), "a.mp3");
    EXPECT_FALSE(DoesExist(o / "a.mp3"));
    EXPECT_TRUE(u.k.DateiGeändert);
    // Ein voller Lauf endet ohne Schlusstext; die Werte sind gemerkt, der Fortschritt lief.
    EXPECT_FALSE(SchlussGezeigt(u.ui));
    EXPECT_EQ(u.k.E.UmbenennenEingabeNeuAnfang, "Lied");
    EXPECT_EQ(u.k.E.UmbenennenEingabeNeuZahl, "5");
    ASSERT_FALSE(u.ui.fortschritte.empty());
    EXPECT_EQ(u.ui.fortschritte.front().vorgang, "Benenne Dateien um");
    EXPECT_TRUE(u.ui.meldungen.empty());
}

TEST(UmbenennenLauf, MusterMitVollemPfadLegtOrdnerAn) {
    TestUmgebung u;
    TestOrdner o;
    DateiSchreiben(o / "alt/bleibt.txt", "x");  // der alte Ordner wird nicht leer
    const auto liste = Einträge(u.k, o, {"alt/x.mp3"});
    u.k.DateiDaten[1].Mp3_ID3v1_Interpret = "Queen";
    u.k.DateiDaten[1].Mp3_ID3v1_Titel = "Mustang: Sally?";
    UmbenennenEingaben e;
    e.funktion = F::NachFeldern;
    e.format = o / "neu/%Interpret%/%Titel%";
    UmbenennenAusführen(u.k, liste, e);
    // Zeichen, die kein Name tragen kann, fallen beim Verschieben weg; drei Ebenen entstehen.
    EXPECT_EQ(u.k.DateiPfade[1], o / "neu/Queen/Mustang Sally.mp3");
    EXPECT_EQ(DateiLesen(o / "neu/Queen/Mustang Sally.mp3"), "alt/x.mp3");
    EXPECT_FALSE(DoesExist(o / "alt/x.mp3"));
    EXPECT_TRUE(u.ui.meldungen.empty());

    // Ohne "/" vorn gilt das Muster im Ordner der Datei, auch mit Unterordnern.
    e.format = "%Interpret%/%Interpret% - 1";
    UmbenennenAusführen(u.k, liste, e);
    EXPECT_EQ(u.k.DateiPfade[1], o / "neu/Queen/Queen/Queen - 1.mp3");
    EXPECT_TRUE(DoesExist(u.k.DateiPfade[1]));
}

TEST(UmbenennenLauf, SchreibweiseEndungUndErsetzen) {
    TestUmgebung u;
    TestOrdner o;
    const auto liste = Einträge(u.k, o, {"mein lied.MP3", "x.b.c", "ohne"});
    UmbenennenEingaben e;
    e.funktion = F::Schreibweise;
    e.unterfunktion = 4;
    UmbenennenAusführen(u.k, {liste[0]}, e);
    // Nur Groß/Klein ändert sich: keine Frage nach einem bestehenden Ziel, die Endung bleibt.
    EXPECT_EQ(u.k.DateiPfade[1], o / "Mein Lied.MP3");
    EXPECT_EQ(DateiLesen(o / "Mein Lied.MP3"), "mein lied.MP3");
    EXPECT_FALSE(DoesExist(o / "mein lied.MP3"));

    e.funktion = F::Endung;
    e.neueEndung = "ogg";
    UmbenennenAusführen(u.k, {liste[1], liste[2]}, e);
    EXPECT_EQ(u.k.DateiPfade[2], o / "x.b.ogg");
    EXPECT_EQ(u.k.DateiPfade[3], o / "ohne.ogg");
    EXPECT_TRUE(DoesExist(o / "x.b.ogg") && DoesExist(o / "ohne.ogg"));

    e.funktion = F::ZeichenErsetzen;
    e.suchen = " ";
    e.ersetzen = "_";
    UmbenennenAusführen(u.k, {liste[0]}, e);
    EXPECT_EQ(u.k.DateiPfade[1], o / "Mein_Lied.MP3");
    EXPECT_TRUE(u.ui.meldungen.empty());
}

TEST(UmbenennenLauf, AbbruchBehaeltErledigtes) {
    TestUmgebung u;
    TestOrdner o;
    const auto liste = Einträge(u.k, o, {"a.mp3", "b.mp3", "c.mp3"});
    UmbenennenEingaben e;
    e.funktion = F::Manuell;
    e.format = "gemerkt";
    // Erste Datei umbenannt, bei der zweiten abgebrochen: die Frage kommt noch, dann ist Schluss.
    u.ui.namen = {"eins.mp3", "\x01"};
    u.ui.antworten = {Meldung::Ja};
    const UmbenennenErgebnis r = UmbenennenAusführen(u.k, liste, e);
    EXPECT_TRUE(r.abgebrochen);
    EXPECT_EQ(r.geändert, 1);
    ASSERT_EQ(u.ui.namenFragen.size(), 2u);
    const auto& frage = u.ui.namenFragen[0];
    EXPECT_EQ(frage.titel, "Datei umbenennen");
    EXPECT_EQ(frage.knopf, "umbenennen");
    EXPECT_EQ(frage.text, "a.mp3");
    EXPECT_EQ(frage.auswahlStart, 1);
    EXPECT_EQ(frage.auswahlLänge, 1);  // der Name ohne Endung
    EXPECT_EQ(u.k.DateiPfade[1], o / "eins.mp3");
    EXPECT_EQ(u.k.DateiPfade[2], o / "b.mp3");
    EXPECT_EQ(u.k.DateiPfade[3], o / "c.mp3");
    EXPECT_TRUE(DoesExist(o / "eins.mp3") && DoesExist(o / "b.mp3") && DoesExist(o / "c.mp3"));
    ASSERT_EQ(u.ui.meldungen.size(), 1u);
    EXPECT_EQ(u.ui.meldungen[0].text, "Möchten Sie mit der nächsten Datei fortfahren?");
    EXPECT_EQ(u.ui.meldungen[0].schalter, 36);
    EXPECT_FALSE(SchlussGezeigt(u.ui));                // angehalten vor der letzten Datei
    EXPECT_EQ(u.k.E.UmbenennenEingabeID3, "gemerkt");  // auch nach dem Abbruch gemerkt

    // Angehalten bei der letzten Datei: ohne Frage, aber mit Schlusstext.
    u.ui.namen = {"zwei.mp3", "drei.mp3", "\x01"};
    UmbenennenAusführen(u.k, liste, e);
    EXPECT_EQ(u.k.DateiPfade[1], o / "zwei.mp3");
    EXPECT_EQ(u.k.DateiPfade[2], o / "drei.mp3");
    EXPECT_EQ(u.k.DateiPfade[3], o / "c.mp3");
    EXPECT_EQ(u.ui.meldungen.size(), 1u);
    ASSERT_FALSE(u.ui.titelTexte.empty());
    EXPECT_EQ(u.ui.titelTexte.back(), std::string("3") + kSchluss);
}

TEST(UmbenennenLauf, AbbrechenImFortschrittBehaeltErledigtes) {
    TestUmgebung u;
    TestOrdner o;
    const auto liste = Einträge(u.k, o, {"a.mp3", "b.mp3", "c.mp3"});
    UmbenennenEingaben e;
    e.funktion = F::Endung;
    e.neueEndung = "ogg";
    // Nach der ersten Datei wird "Abbrechen" gedrückt; die Meldung danach bemerkt es.
    u.ui.beiEreignissen = [&] {
        if (DoesExist(o / "a.ogg")) FortschrittAbbrechenGedrückt(u.k);
    };
    const UmbenennenErgebnis r = UmbenennenAusführen(u.k, liste, e);
    EXPECT_TRUE(r.abgebrochen);
    EXPECT_EQ(r.geändert, 2);
    EXPECT_EQ(u.k.DateiPfade[1], o / "a.ogg");
    EXPECT_EQ(u.k.DateiPfade[2], o / "b.ogg");
    EXPECT_EQ(u.k.DateiPfade[3], o / "c.mp3");
    EXPECT_TRUE(DoesExist(o / "a.ogg") && DoesExist(o / "b.ogg") && DoesExist(o / "c.mp3"));
    EXPECT_TRUE(u.k.DateiGeändert);
}

TEST(UmbenennenLauf, FehlerLaesstDateiUndEintrag) {
    // Ein schreibgeschützter Ordner: das Umbenennen scheitert, nichts geht verloren.
    TestOrdner o;
    const std::string ordner = o / "fest";
    DateiSchreiben(ordner + "/a.mp3", "A");
    DateiSchreiben(ordner + "/b.mp3", "B");
    ::chmod(o.Pfad().c_str(), 0755);
    ::chmod(ordner.c_str(), 0555);
    const std::string ergebnis = OhneVorrechteAusführen([&] {
        TestUmgebung u;
        std::vector<int32_t> liste;
        for (const char* name : {"a.mp3", "b.mp3"}) {
            IndexGrößeÄndern(u.k, u.k.DateiAnzahl + 1, true);
            u.k.DateiPfade[++u.k.DateiAnzahl] = ordner + "/" + name;
            liste.push_back(u.k.DateiAnzahl);
        }
        UmbenennenEingaben e;
        e.funktion = F::Endung;
        e.neueEndung = "ogg";
        u.ui.antworten = {Meldung::Nein};  // nach dem ersten Fehler nicht weiter
        const UmbenennenErgebnis r = UmbenennenAusführen(u.k, liste, e);
        std::string s = std::to_string(r.geändert) + "/" + std::to_string(r.nichtGeändert) + "|" + u.k.DateiPfade[1] +
                        "|" + u.k.DateiPfade[2] + "|";
        for (const auto& m : u.ui.meldungen) s += std::to_string(m.schalter) + ":" + m.text.substr(0, 12) + "|";
        return s;
    });
    ::chmod(ordner.c_str(), 0755);
    EXPECT_EQ(ergebnis, "0/1|" + ordner + "/a.mp3|" + ordner + "/b.mp3|48:Es ist ein F|36:Möchten Sie|");
    EXPECT_EQ(DateiLesen(ordner + "/a.mp3"), "A");
    EXPECT_EQ(DateiLesen(ordner + "/b.mp3"), "B");
    EXPECT_FALSE(DoesExist(ordner + "/a.ogg"));
}

TEST(UmbenennenLauf, ListeneintragAttributeUndLeereDatei) {
    TestUmgebung u;
    TestOrdner o;
    const auto liste = Einträge(u.k, o, {"a.mp3", "b.mp3"});
    DateiSchreiben(o / "woanders.mp3", "w");
    UmbenennenEingaben e;
    e.funktion = F::Listeneintrag;
    // Ein Pfad, den es nicht gibt: Meldung, der Eintrag bleibt.
    u.ui.namen = {o / "fehlt.mp3", o / "woanders.mp3"};
    UmbenennenAusführen(u.k, {liste[0]}, e);
    EXPECT_EQ(u.k.DateiPfade[1], o / "a.mp3");
    ASSERT_EQ(u.ui.meldungen.size(), 1u);
    EXPECT_EQ(u.ui.meldungen[0].text, "Die angegebene Datei '" + o / "fehlt.mp3" +
                                          "' existiert nicht.\n\nBitte ändern Sie den Listeneintrag nochmals, um "
                                          "einen gültigen Namen zu hinterlegen.");
    EXPECT_EQ(u.ui.meldungen[0].schalter, 48);
    EXPECT_EQ(u.ui.namenFragen[0].titel, "Listeneintrag ändern");
    EXPECT_EQ(u.ui.namenFragen[0].knopf, "ändern");
    EXPECT_EQ(u.ui.namenFragen[0].text, o / "a.mp3");
    // Ein vorhandener Pfad: nur der Eintrag ändert sich, keine Datei wird angefasst.
    UmbenennenAusführen(u.k, {liste[0]}, e);
    EXPECT_EQ(u.k.DateiPfade[1], o / "woanders.mp3");
    EXPECT_TRUE(DoesExist(o / "a.mp3"));
    EXPECT_EQ(DateiLesen(o / "woanders.mp3"), "w");

    e.funktion = F::Attribute;
    e.schreibschutz = true;
    UmbenennenAusführen(u.k, {liste[1]}, e);
    struct stat st {};
    ASSERT_EQ(::stat((o / "b.mp3").c_str(), &st), 0);
    EXPECT_EQ(st.st_mode & 0222, 0u);
    EXPECT_EQ(u.k.DateiPfade[2], o / "b.mp3");

    // Leere Datei: der Datensatz wird leer, der Pfad bleibt der alte.
    u.k.DateiDaten[2].Mp3_ID3v1_Titel = "Titel";
    e.funktion = F::LeereDatei;
    e.ersetzenEndung = "txt";
    UmbenennenAusführen(u.k, {liste[1]}, e);
    EXPECT_EQ(u.k.DateiPfade[2], o / "b.mp3");
    EXPECT_EQ(u.k.DateiDaten[2].Mp3_ID3v1_Titel, "");
    EXPECT_FALSE(DoesExist(o / "b.mp3"));
    EXPECT_EQ(DateiGrößeLesen(o / "b.txt"), 0);
    EXPECT_EQ(u.ui.meldungen.size(), 1u);
}
