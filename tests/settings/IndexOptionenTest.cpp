// Die Regeln der Index-Optionen: geschützte Typzeilen, Prüftexte, Übernehmen und der Weg durch
// die Indexdatei.
#include "app/Ergebnisliste.h"
#include "app/Texte.h"
#include "index/IndexDatei.h"
#include "settings/IndexOptionenDialog.h"
#include "support/Attrappen.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>

namespace {
void IndexDa(TestUmgebung& u) {
    u.k.IndexZugriff.NichtsGeladen = false;
    u.k.Dateiname = "/musik/index.kkt";
}

int32_t Zeile(const IndexOptionenEingabe& e, const std::string& endung) {
    for (size_t i = 0; i < e.typen.size(); ++i)
        if (e.typen[i].endung == endung) return int32_t(i);
    return -1;
}

SpaltenWahl& Spalte(IndexOptionenEingabe& e, const std::string& name) {
    for (auto& s : e.spalten)
        if (s.name == name) return s;
    throw std::runtime_error("keine Spalte " + name);
}
}  // namespace

TEST(IndexOptionen, OhneIndexNurDerHinweis) {
    TestUmgebung u;
    EXPECT_FALSE(IndexOptionenÖffnenPrüfen(u.k));
    ASSERT_EQ(u.ui.meldungen.size(), 1u);
    EXPECT_EQ(u.ui.meldungen[0].text,
              "Es wurde keine Indexdatei geladen.\nBitte laden Sie eine Indexdatei, um diese Funktion zu nutzen.");
    EXPECT_EQ(u.ui.meldungen[0].schalter, Meldung::Information);
    IndexDa(u);
    EXPECT_TRUE(IndexOptionenÖffnenPrüfen(u.k));
}

TEST(IndexOptionen, EingebauteZeilenSindGeschuetzt) {
    TestUmgebung u;
    IndexDa(u);
    IndexOptionenEingabe e = IndexOptionenEinsetzen(u.k);
    ASSERT_EQ(e.typen.size(), 13u);
    EXPECT_EQ(DateitypAnzeige(e.typen.back()), "(Alle weiteren Formate)");
    EXPECT_FALSE(DateitypÄnderbar(e.typen.back()));
    const int32_t mp3 = Zeile(e, "mp3");
    EXPECT_TRUE(e.typen[size_t(mp3)].eingebaut && e.typen[size_t(mp3)].an);
    EXPECT_EQ(e.typen[size_t(Zeile(e, "jpeg"))].klasse, "001");

    // Eine neue Zeile kommt vor "(Alle weiteren Formate)".
    const int32_t neu = DateitypHinzufügen(e);
    EXPECT_EQ(neu, 12);
    EXPECT_EQ(DateitypAnzeige(e.typen[12]), "(Neuer Dateityp)");
    EXPECT_TRUE(DateitypÄnderbar(e.typen[12]));
    EXPECT_EQ(DateitypEndungNormal("  .OGG "), "ogg");

    u.ui.antworten = {Meldung::Nein, Meldung::Ja};
    EXPECT_FALSE(DateitypEntfernen(u.k, e, -1));
    EXPECT_FALSE(DateitypEntfernen(u.k, e, mp3));
    EXPECT_FALSE(DateitypEntfernen(u.k, e, 13));   // "*"
    EXPECT_FALSE(DateitypEntfernen(u.k, e, neu));  // Nein
    EXPECT_EQ(e.typen.size(), 14u);
    EXPECT_TRUE(DateitypEntfernen(u.k, e, neu));
    EXPECT_EQ(e.typen.size(), 13u);
    std::vector<std::string> texte;
    for (const auto& m : u.ui.meldungen) texte.push_back(m.text);
    EXPECT_EQ(texte, (std::vector<std::string>{"Bitte wählen Sie einen Listeneintrag.",
                                               "Nur eigene Einträge können geändert oder gelöscht werden.",
                                               "Nur eigene Einträge können geändert oder gelöscht werden.",
                                               "Möchten Sie diesen Listeneintrag entfernen?",
                                               "Möchten Sie diesen Listeneintrag entfernen?"}));
}

TEST(IndexOptionen, PrueftexteLassenAllesBeimAlten) {
    TestUmgebung u;
    IndexDa(u);
    const IndexOptionenEingabe gut = IndexOptionenEinsetzen(u.k);
    const std::string spalten = u.k.Optionen.Spalten;
    auto fall = [&](const std::function<void(IndexOptionenEingabe&)>& ändern) {
        IndexOptionenEingabe e = gut;
        ändern(e);
        u.ui.meldungen.clear();
        EXPECT_FALSE(IndexOptionenÜbernehmen(u.k, e, u.k.Liste.lstSongs));
        EXPECT_EQ(u.k.Optionen.Spalten, spalten);
        EXPECT_FALSE(u.k.DateiGeändert);
        return u.ui.meldungen.size() == 1 ? u.ui.meldungen[0].text : std::string("?");
    };
    EXPECT_EQ(fall([](auto& e) {
                  for (auto& s : e.spalten) s.angehakt = false;
              }),
              "Bitte wählen Sie mindestens eine Spalte zur Anzeige aus.");
    EXPECT_EQ(fall([](auto& e) { e.txtSpaltenBenutzerFormat = ""; }),
              "Bitte geben Sie einen Text in das Feld 'Format der benutzerdefinierten Spalte' ein.");
    EXPECT_EQ(fall([](auto& e) { DateitypHinzufügen(e); }),
              "Bitte geben Sie in jedes Feld in der Liste 'Dateitypen verwalten' eine Datei-Endung ein.");
    EXPECT_EQ(fall([](auto& e) {
                  const int32_t neu = DateitypHinzufügen(e);
                  e.typen[size_t(neu)].endung = "a,b";
              }),
              "Die Datei-Endung 'a,b' darf kein '=', ',' oder '*' enthalten.");
}

TEST(IndexOptionen, UebernehmenUndZurueckAusDerIndexdatei) {
    TestOrdner ordner;
    TestUmgebung u;
    IndexDa(u);
    SpaltenRücksetzen(u.k);
    u.k.Optionen.Spalten = Ersetzen(u.k.Optionen.Spalten, "3=1400=1", "3=2000=1");
    IndexOptionenEingabe e = IndexOptionenEinsetzen(u.k);
    const int32_t neu = DateitypHinzufügen(e);
    DateitypZeile& png = e.typen[size_t(neu)];
    png.endung = "png";
    png.klasse = "001";
    e.typen[size_t(Zeile(e, "mp3"))].an = false;
    e.typen.back().an = true;  // alle weiteren
    u.ui.ordner = {"/musik/neu", "/musik/alt"};
    int32_t zeile = -1;
    ASSERT_TRUE(SyncOrdnerWählen(u.k, e, true, zeile));
    e.sync[size_t(zeile)].kopieren = true;
    e.sync[size_t(zeile)].ziel = "/musik/eingang";
    ASSERT_TRUE(SyncOrdnerWählen(u.k, e, true, zeile));
    e.sync[size_t(zeile)].unterordner = false;
    e.sync[size_t(zeile)].ziel = "/vergessen";  // ohne Haken kein Ziel
    e.chkSyncDanachEntfernen = false;
    Spalte(e, "Pfad").angehakt = true;  // neu: 1400
    for (auto& s : e.spalten)
        if (s.nummer == 4) s.angehakt = false;
    e.chkGitter = true;
    e.chkBeschreibungsleiste = false;
    e.txtSpaltenBenutzerFormat = "%Titel% (%Jahr%)";
    e.BeiDoppelklick = 3;
    ASSERT_TRUE(IndexOptionenÜbernehmen(u.k, e, u.k.Liste.lstSongs));

    const IndexOptionen& o = u.k.Optionen;
    EXPECT_EQ(o.DateitypEintrag.UBound(), 14);
    EXPECT_EQ(o.DateitypEintrag[1], "mp3=0");
    EXPECT_EQ(o.DateitypEintrag[13], "png=1");
    EXPECT_EQ(o.DateitypKlasse[13], "001");
    EXPECT_EQ(o.DateitypEintrag[14], "*=1");
    EXPECT_EQ(o.DateitypKlasse[14], "000");
    EXPECT_FALSE(o.SyncLeer);
    EXPECT_EQ(o.SyncOrdner[1], "/musik/neu");
    EXPECT_EQ(o.SyncKopierenInOrdner[1], "/musik/eingang");
    EXPECT_EQ(o.SyncUnterordner[2], 0);
    EXPECT_EQ(o.SyncKopierenInOrdner[2], "");
    EXPECT_EQ(o.SyncEntfernen, 0);
    EXPECT_EQ(u.k.E.BeiDoppelklick, 3);
    std::vector<int32_t> breiten;
    for (const auto& s : u.k.Liste.lstSongs.spalten) breiten.push_back(s.breite);
    // Dateiname behält 2000, Spalte 4 fällt weg, Pfad kommt mit 1400 dazu.
    std::vector<int32_t> nummern;
    for (const auto& s : u.k.Liste.lstSongs.spalten) nummern.push_back(s.spalte);
    EXPECT_EQ(nummern, (std::vector<int32_t>{2, 3, 5, 6}));
    EXPECT_EQ(breiten, (std::vector<int32_t>{1400, 2000, 1400, 1400}));
    EXPECT_TRUE(o.SpaltenGitter == 1 && o.SpaltenLeiste == 0);
    EXPECT_EQ(o.SpaltenNutzerformat, "%Titel% (%Jahr%)");
    EXPECT_TRUE(u.k.DateiGeändert);
    EXPECT_EQ(u.ui.titelTexte.back(), "Die Index-Optionen wurden übernommen");

    // Durch die Datei und zurück: dieselbe Arbeitskopie.
    const std::string pfad = ordner / "index.kkt";
    ASSERT_TRUE(DateiSpeichern(u.k, pfad, false));
    TestUmgebung v;
    ASSERT_TRUE(DateiLaden(v.k, pfad));
    const IndexOptionenEingabe a = IndexOptionenEinsetzen(u.k), b = IndexOptionenEinsetzen(v.k);
    ASSERT_EQ(a.typen.size(), b.typen.size());
    for (size_t i = 0; i < a.typen.size(); ++i) {
        EXPECT_EQ(a.typen[i].endung, b.typen[i].endung);
        EXPECT_EQ(a.typen[i].an, b.typen[i].an);
        EXPECT_EQ(a.typen[i].klasse, b.typen[i].klasse);
    }
    ASSERT_EQ(b.sync.size(), 2u);
    EXPECT_TRUE(b.sync[0].kopieren && b.sync[0].ziel == "/musik/eingang" && b.sync[0].unterordner);
    EXPECT_TRUE(!b.sync[1].kopieren && !b.sync[1].unterordner);
    EXPECT_EQ(v.k.Optionen.Spalten, u.k.Optionen.Spalten);
    EXPECT_EQ(b.chkGitter, true);
    EXPECT_EQ(b.chkBeschreibungsleiste, false);
    EXPECT_EQ(b.txtSpaltenBenutzerFormat, "%Titel% (%Jahr%)");
    EXPECT_FALSE(b.chkSyncDanachEntfernen);

    // Alle Ordner entfernt: die Liste ist als leer markiert.
    u.ui.antworten = {Meldung::Ja, Meldung::Ja};
    IndexOptionenEingabe c = IndexOptionenEinsetzen(u.k);
    EXPECT_TRUE(SyncOrdnerEntfernen(u.k, c, 1));
    EXPECT_TRUE(SyncOrdnerEntfernen(u.k, c, 0));
    EXPECT_FALSE(SyncOrdnerEntfernen(u.k, c, 0));
    ASSERT_TRUE(IndexOptionenÜbernehmen(u.k, c, u.k.Liste.lstSongs));
    EXPECT_TRUE(u.k.Optionen.SyncLeer);
    EXPECT_EQ(u.k.Optionen.SyncOrdner.UBound(), 1);
}

TEST(IndexOptionen, DoppelklickWert) {
    EXPECT_EQ(DoppelklickWert(0, 1), 0);
    EXPECT_EQ(DoppelklickWert(2, 1), 1);
    EXPECT_EQ(DoppelklickWert(0, 4), 4);
    EXPECT_EQ(DoppelklickWert(3, -1), 3);
}
