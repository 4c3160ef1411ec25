// Funktionsliste, Prüfung der Eingaben, zuletzt benutzte Werte, Attribute und leere Dateien.
#include "app/Kartei.h"
#include "app/Pfade.h"
#include "fileops/Umbenennen.h"
#include "support/Attrappen.h"
#include "support/OhneVorrechte.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace F = UmbenennenFunktion;

TEST(UmbenennenEingaben, ListeUndCodes) {
    const auto& liste = UmbenennenFunktionen();
    EXPECT_STREQ(liste[4].text, "Listeneintrag ändern - nicht umbenennen");
    EXPECT_STREQ(liste[5].text, "Schreibweise des Dateinamens ändern");
    // Die Plätze 4 und 5 tragen die Codes des jeweils anderen.
    const int16_t codes[] = {0, 1, 2, 3, 5, 4, 6, 7, 8};
    for (int32_t p = 0; p < 9; ++p) {
        EXPECT_EQ(FunktionFürPosition(p), codes[p]);
        EXPECT_EQ(PositionFürFunktion(codes[p]), p);
    }
    EXPECT_EQ(FunktionFürPosition(-1), F::Keine);
    EXPECT_EQ(FunktionFürPosition(9), F::Keine);
    EXPECT_EQ(PositionFürFunktion(9), -1);
}

TEST(UmbenennenEingaben, FehlendeEingabenMelden) {
    UmbenennenEingaben e;
    EXPECT_EQ(UmbenennenFehlendeEingabe(e), "Bitte wählen Sie eine Methode aus der Liste.");
    e.funktion = F::NachFeldern;
    EXPECT_EQ(UmbenennenFehlendeEingabe(e), "Es wurde kein Format bei der ID3-Umbenennung angegeben.");
    e.funktion = F::ZeichenErsetzen;
    e.ersetzen = "x";  // nur das Suchfeld zählt
    EXPECT_EQ(UmbenennenFehlendeEingabe(e), "Das Feld für die Ersetzen-Formatierung ist leer.");
    e.suchen = "a";
    EXPECT_EQ(UmbenennenFehlendeEingabe(e), "");
    e.funktion = F::Fortlaufend;
    EXPECT_EQ(UmbenennenFehlendeEingabe(e),
              "Es wurde keine Start-Zeichenfolge bei der fortlaufenden Umbenennung angegeben.");
    e.zähler = "eins";
    EXPECT_EQ(UmbenennenFehlendeEingabe(e),
              "Die Start-Zeichenfolge bei der fortlaufenden Umbenennung muß eine Zahl sein.");
    e.zähler = "007";
    EXPECT_EQ(UmbenennenFehlendeEingabe(e), "");
    e.funktion = F::Schreibweise;
    EXPECT_EQ(UmbenennenFehlendeEingabe(e),
              "Bitte markieren Sie, ob Sie den Dateinamen in Groß- oder in Kleinschreibung ändern wollen.");
    e.funktion = F::Endung;
    EXPECT_EQ(UmbenennenFehlendeEingabe(e), "Bitte geben Sie eine neue Datei-Endung ein.");
    e.funktion = F::LeereDatei;
    EXPECT_EQ(UmbenennenFehlendeEingabe(e), "Bitte geben Sie eine neue Datei-Endung ein.");
    for (int16_t ohne : {F::Manuell, F::Listeneintrag, F::Attribute}) {
        e.funktion = ohne;
        EXPECT_EQ(UmbenennenFehlendeEingabe(e), "");
    }

    // Als Meldung: Information, der Dialog bleibt offen.
    TestUmgebung u;
    e.funktion = F::Endung;
    EXPECT_FALSE(UmbenennenEingabenPrüfen(u.k, e));
    ASSERT_EQ(u.ui.meldungen.size(), 1u);
    EXPECT_EQ(u.ui.meldungen[0].schalter, 64);
    e.neueEndung = "ogg";
    EXPECT_TRUE(UmbenennenEingabenPrüfen(u.k, e));
    EXPECT_EQ(u.ui.meldungen.size(), 1u);
}

TEST(UmbenennenEingaben, ZuletztBenutzteWerteHinUndZurueck) {
    TestUmgebung u;
    const UmbenennenEingaben vorgabe = UmbenennenZuletzt(u.k);
    EXPECT_EQ(vorgabe.format, "%Interpret% - %Titel%");
    EXPECT_EQ(vorgabe.zähler, "0");
    EXPECT_EQ(vorgabe.neueEndung, "mp3");
    UmbenennenEingaben e;
    e.funktion = F::Fortlaufend;
    e.unterfunktion = 3;
    e.format = "f";
    e.suchen = "s";
    e.ersetzen = "r";
    e.neueEndung = "ogg";
    e.basis1 = "a";
    e.zähler = "7";
    e.basis2 = "b";
    e.ersetzenEndung = "txt";
    e.schreibschutz = e.archiv = true;
    UmbenennenZuletztSichern(u.k, e);
    EXPECT_EQ(u.k.E.UmbenennenAttributeR, 1);
    EXPECT_EQ(u.k.E.UmbenennenAttributeH, 0);
    EXPECT_EQ(u.k.E.UmbenennenAttributeA, 1);
    const UmbenennenEingaben z = UmbenennenZuletzt(u.k);
    EXPECT_EQ(z.funktion, F::Keine);  // die Funktion selbst wird nicht gemerkt
    EXPECT_EQ(std::tie(z.unterfunktion, z.format, z.suchen, z.ersetzen, z.neueEndung, z.basis1, z.zähler, z.basis2,
                       z.ersetzenEndung),
              std::tie(e.unterfunktion, e.format, e.suchen, e.ersetzen, e.neueEndung, e.basis1, e.zähler, e.basis2,
                       e.ersetzenEndung));
    EXPECT_TRUE(z.schreibschutz && z.archiv && !z.versteckt && !z.system);
}

TEST(UmbenennenEingaben, VariablenOhneBenutzerdefiniert) {
    const std::string v = UmbenennenVariablen();
    EXPECT_EQ(v.rfind("%Nummer% %Pfad% %Dateiname% ", 0), 0u);
    EXPECT_NE(v.find("%Interpret% "), std::string::npos);
    EXPECT_EQ(v.find("Benutzerdefiniert"), std::string::npos);
    EXPECT_EQ(v.back(), ' ');
}

TEST(UmbenennenEingaben, AttributeSchreibschutzUndRechte) {
    TestOrdner o;
    const std::string d = o / "a.mp3";
    DateiSchreiben(d, "abc");
    ASSERT_EQ(::chmod(d.c_str(), 0664), 0);
    std::string fehler;
    struct stat st {};
    ASSERT_TRUE(DateiAttributeSetzen(d, true, true, true, true, fehler));
    ASSERT_EQ(::stat(d.c_str(), &st), 0);
    EXPECT_EQ(st.st_mode & 0777, 0444u);
    // Ohne Schreibschutz darf der Besitzer wieder schreiben; Archiv allein ändert nichts.
    ASSERT_TRUE(DateiAttributeSetzen(d, false, true, false, false, fehler));
    ASSERT_EQ(::stat(d.c_str(), &st), 0);
    EXPECT_EQ(st.st_mode & 0777, 0644u);
    EXPECT_EQ(DateiLesen(d), "abc");
    EXPECT_FALSE(DateiAttributeSetzen(o / "fehlt.mp3", true, false, false, false, fehler));
    EXPECT_FALSE(fehler.empty());
}

TEST(UmbenennenEingaben, LeereDateiMitAndererEndung) {
    TestOrdner o;
    DateiSchreiben(o / "a.b.mp3", "Musik");
    EXPECT_TRUE(DateiDurchLeereErsetzen(o / "a.b.mp3", "txt", true));
    EXPECT_FALSE(DoesExist(o / "a.b.mp3"));
    EXPECT_EQ(DateiGrößeLesen(o / "a.b.txt"), 0);
    // Gleiche Endung: die Datei selbst wird leer, auch schreibgeschützt.
    DateiSchreiben(o / "c.mp3", "Musik");
    ::chmod((o / "c.mp3").c_str(), 0444);
    EXPECT_TRUE(DateiDurchLeereErsetzen(o / "c.mp3", "mp3", true));
    EXPECT_EQ(DateiGrößeLesen(o / "c.mp3"), 0);
    // Eine fremde Datei unter dem neuen Namen wird nie geleert; die alte bleibt dann auch.
    DateiSchreiben(o / "d.mp3", "Musik");
    DateiSchreiben(o / "d.txt", "Text");
    EXPECT_FALSE(DateiDurchLeereErsetzen(o / "d.mp3", "txt", true));
    EXPECT_EQ(DateiLesen(o / "d.mp3"), "Musik");
    EXPECT_EQ(DateiLesen(o / "d.txt"), "Text");
}

TEST(UmbenennenEingaben, LeereDateiScheitertOhneVerlust) {
    // Ein schreibgeschützter Ordner: weder neue Datei noch Löschen; die alte bleibt ganz.
    TestOrdner o;
    const std::string ordner = o / "fest";
    DateiSchreiben(ordner + "/a.mp3", "Musik");
    ::chmod(o.Pfad().c_str(), 0755);
    ::chmod(ordner.c_str(), 0555);
    const std::string ergebnis = OhneVorrechteAusführen([&] {
        const bool ok = DateiDurchLeereErsetzen(ordner + "/a.mp3", "txt", true);
        return std::string(ok ? "ja" : "nein") + (DoesExist(ordner + "/a.txt") ? "+txt" : "");
    });
    ::chmod(ordner.c_str(), 0755);
    EXPECT_EQ(ergebnis, "nein");
    EXPECT_EQ(DateiLesen(ordner + "/a.mp3"), "Musik");
}
