// Fehlende Dateien: fragen nur bei Wechselmedien, "Alle überspringen", Antwort von selbst.
#include "intake/NichtVerfuegbar.h"
#include "platform/LinuxDatentraeger.h"
#include "support/Attrappen.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>

namespace {
using A = NichtVerfügbarAntwort;

void EintragSetzen(Kartei& k, int32_t n, const std::string& pfad, const std::string& medium = "") {
    if (k.DateiPfade.UBound() < n) {
        k.DateiPfade.ReDimPreserve(n);
        k.DateiDaten.ReDimPreserve(n);
        k.DateiTreffer.ReDimPreserve(n);
    }
    k.DateiPfade[n] = pfad;
    k.DateiDaten[n].Datei_Wechselmedium = medium;
    k.DateiAnzahl = std::max(k.DateiAnzahl, n);
}
}  // namespace

TEST(NichtVerfuegbar, FragenUeberspringenAbbrechen) {
    TestUmgebung u;
    TestOrdner o;
    Kartei& k = u.k;
    u.datenträger.wurzeln["/media/anna/CD"] = "/media/anna/CD";
    u.datenträger.wechselmedien["/media/anna/CD"] = true;
    DateiSchreiben(o / "da.mp3", "x");
    EintragSetzen(k, 1, o / "da.mp3");
    EintragSetzen(k, 2, "/media/anna/CD/lied.mp3");
    EintragSetzen(k, 3, "/media/anna/CD/zwei.mp3", "Urlaub 2001");
    EintragSetzen(k, 4, "/home/anna/weg.mp3");
    EintragSetzen(k, 5, "relativ.mp3");

    EXPECT_EQ(DateiNichtVerfügbarPrüfen(k, 1, true, true), 0);
    // Fester Datenträger oder kein voller Pfad: nie fragen; übersprungen nur auf Wunsch.
    for (int32_t n : {4, 5}) {
        EXPECT_EQ(DateiNichtVerfügbarPrüfen(k, n, true, false), 0);
        EXPECT_EQ(DateiNichtVerfügbarPrüfen(k, n, true, true), 1);
    }
    EXPECT_EQ(DateiNichtVerfügbarPrüfen(k, 0, true, false), 2);
    EXPECT_EQ(DateiNichtVerfügbarPrüfen(k, 6, true, false), 2);
    EXPECT_TRUE(u.ui.nichtVerfügbarFragen.empty());

    u.ui.nichtVerfügbarAntworten = {A::Überspringen, A::Abbrechen};
    EXPECT_EQ(DateiNichtVerfügbarPrüfen(k, 2, true, false), 1);
    EXPECT_EQ(DateiNichtVerfügbarPrüfen(k, 3, true, false), 2);
    ASSERT_EQ(u.ui.nichtVerfügbarFragen.size(), 2u);
    EXPECT_EQ(u.ui.nichtVerfügbarFragen[0].text,
              "Die Datei '/media/anna/CD/lied.mp3' ist zurzeit nicht verfügbar.\nBitte legen Sie den "
              "Quelldatenträger in Laufwerk '/media/anna/CD' ein bzw. stellen Sie die Verfügbarkeit des Laufwerkes "
              "sicher, um den Vorgang fortzusetzen oder ändern Sie den Indexeintrag bzw. löschen Sie diesen.");
    EXPECT_EQ(u.ui.nichtVerfügbarFragen[1].text,
              "Die Datei '/media/anna/CD/zwei.mp3' ist zurzeit nicht verfügbar.\nBitte legen Sie den Datenträger "
              "'Urlaub 2001' in Laufwerk '/media/anna/CD' ein bzw. stellen Sie die Verfügbarkeit des Laufwerkes "
              "sicher, um den Vorgang fortzusetzen oder ändern Sie den Indexeintrag bzw. löschen Sie diesen.");
    EXPECT_EQ(k.Aufnahme.DateiNichtVerfügbarAuswahl, 2);

    // "Alle überspringen": der Rest des Vorgangs still, der nächste fragt wieder.
    u.ui.nichtVerfügbarAntworten = {A::AlleÜberspringen};
    EXPECT_EQ(DateiNichtVerfügbarPrüfen(k, 2, true, false), 1);
    EXPECT_EQ(DateiNichtVerfügbarPrüfen(k, 3, true, false), 1);
    EXPECT_EQ(u.ui.nichtVerfügbarFragen.size(), 3u);
    NichtVerfügbarFragenZurücksetzen(k);
    u.ui.nichtVerfügbarAntworten = {A::Überspringen};
    EXPECT_EQ(DateiNichtVerfügbarPrüfen(k, 3, true, false), 1);
    EXPECT_EQ(u.ui.nichtVerfügbarFragen.size(), 4u);

    // Fragen abgeschaltet: überspringen ohne Frage.
    k.E.NichtVerfügbarFragen = 0;
    EXPECT_EQ(DateiNichtVerfügbarPrüfen(k, 2, true, false), 1);
    EXPECT_EQ(u.ui.nichtVerfügbarFragen.size(), 4u);
}

TEST(NichtVerfuegbar, DatenträgerEingelegtBeendetDieFrage) {
    TestUmgebung u;
    TestOrdner o;
    u.datenträger.wurzeln[o.Pfad()] = o.Pfad();
    u.datenträger.wechselmedien[o.Pfad()] = true;
    EintragSetzen(u.k, 1, o / "kommt.mp3");
    // Während die Frage offen ist, erscheint die Datei: keine Antwort aus dem Skript nötig.
    u.ui.währendNichtVerfügbar = [&] { DateiSchreiben(o / "kommt.mp3", "x"); };
    EXPECT_EQ(DateiNichtVerfügbarPrüfen(u.k, 1, true, false), 0);
    EXPECT_EQ(u.k.Aufnahme.DateiNichtVerfügbarAuswahl, 0);
    EXPECT_EQ(u.k.Aufnahme.DateiNichtVerfügbarDatei, o / "kommt.mp3");
}

TEST(NichtVerfuegbar, AusgehaengteMedienwurzelMitLinuxDatentraeger) {
    // Nur die Wurzel ist eingehängt: /media/anna/CD fehlt, /home liegt auf der festen Platte.
    TestOrdner o;
    DateiSchreiben(o / "mountinfo", "22 1 254:0 / / rw,relatime shared:1 - ext4 /dev/vda rw\n");
    TestUmgebung u;
    LinuxDatenträger plattform({o / "mountinfo", o / "sys", o / "labels"});
    Kartei k{Dienste{u.ui, u.registrierung, u.spieler, u.shell, plattform, u.uhr, u.zufall}};
    EintragSetzen(k, 1, "/media/anna/CD/lied.mp3");
    EintragSetzen(k, 2, "/home/anna/fehlt/lied.mp3");
    u.ui.nichtVerfügbarAntworten = {A::AlleÜberspringen};
    EXPECT_EQ(DateiNichtVerfügbarPrüfen(k, 1, true, false), 1);
    EXPECT_EQ(DateiNichtVerfügbarPrüfen(k, 2, true, false), 0);
    EXPECT_EQ(DateiNichtVerfügbarPrüfen(k, 1, true, false), 1);  // still
    ASSERT_EQ(u.ui.nichtVerfügbarFragen.size(), 1u);
    EXPECT_NE(u.ui.nichtVerfügbarFragen[0].text.find("in Laufwerk '/media/anna/CD' ein"), std::string::npos);
}
