// Mehrfacheinträge: Paarregel, leere Tags, gleiche Pfade, Größen; gleiche Treffer wie der
// einfache Vergleich jeder mit jedem; einzelne Dateien aus dem Index und frisch gelesen.
#include "BerichteHilfen.h"

#include "app/Pfade.h"
#include "app/Texte.h"
#include "reports/Duplikate.h"
#include "support/MpegDaten.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>

#include <random>

namespace {
std::vector<std::string> TrefferZeilen(Kartei& k, int16_t methode, const std::vector<int32_t>& liste) {
    std::vector<std::string> z;
    for (const auto& t : DuplikateSuchen(k, methode, liste)) z.push_back(TrefferZeile(k, methode, t));
    return z;
}

std::vector<int32_t> Alle(const Kartei& k) {
    std::vector<int32_t> l;
    for (int32_t i = 1; i <= k.DateiAnzahl; ++i) l.push_back(i);
    return l;
}

// Fünf Einträge mit gleichen Namen, gleichem Pfad, Tags und Größen.
void Kartei5(Kartei& k) {
    const char* pfade[] = {"/a/Lied.mp3", "/b/lied.MP3", "/c/LIED.mp3", "/a/Lied.mp3", "/d/x.mp3"};
    const char* interpreten[] = {"Nena", "nena", "Nena", "", ""};
    const char* titel[] = {"Tag", "TAG", "Tag", "", ""};
    const int32_t größen[] = {100, -1, 100, -1, 100};
    for (int i = 0; i < 5; ++i) {
        DateiInfo& d = Neu(k, pfade[i]);
        d.Mp3_ID3v1_Interpret = interpreten[i];
        d.Mp3_ID3v1_Titel = titel[i];
        d.Datei_Größe = größen[i];
    }
    k.DateiDaten[3].Mp3_ID3v1_Status = 0;
    k.DateiDaten[1].Mp3_ID3v2_Status = k.DateiDaten[5].Mp3_ID3v2_Status = 1;
    k.DateiDaten[1].Mp3_ID3v2_TPE1 = "Ä";
    k.DateiDaten[1].Mp3_ID3v2_TIT2 = "B";
    k.DateiDaten[5].Mp3_ID3v2_TPE1 = "ä";
    k.DateiDaten[5].Mp3_ID3v2_TIT2 = "b";
}

// Der Vergleich jeder mit jedem, wie die Methode ihn beschreibt.
std::vector<std::pair<int32_t, int32_t>> Einfach(const Kartei& k, int16_t m, const std::vector<int32_t>& l) {
    const auto teil = [&](int32_t p) {
        const DateiInfo& d = k.DateiDaten[p];
        return m == 2 ? d.Mp3_ID3v1_Status == 1 : m == 4 ? d.Datei_Größe >= 0 : true;
    };
    const auto gleich = [&](int32_t a, int32_t b) {
        const DateiInfo &x = k.DateiDaten[a], &y = k.DateiDaten[b];
        if (m == 0) return NamenGleich(DateinameAusPfad(k.DateiPfade[a]), DateinameAusPfad(k.DateiPfade[b]));
        if (m == 2)
            return NamenGleich(x.Mp3_ID3v1_Interpret, y.Mp3_ID3v1_Interpret) &&
                   NamenGleich(x.Mp3_ID3v1_Titel, y.Mp3_ID3v1_Titel);
        return x.Datei_Größe == y.Datei_Größe;
    };
    std::vector<std::pair<int32_t, int32_t>> t;
    for (size_t i = 0; i < l.size(); ++i) {
        if (!teil(l[i])) continue;
        for (size_t j = i + 1; j < l.size(); ++j)
            if (teil(l[j]) && gleich(l[i], l[j])) {
                t.emplace_back(l[i], l[j]);
                break;
            }
    }
    return t;
}
}  // namespace

TEST(Duplikate, MethodenTexte) {
    ASSERT_EQ(SuchmethodenTexte().size(), 10u);
    EXPECT_EQ(SuchmethodenTexte()[5], "Nicht existiernde Dateien");
    EXPECT_EQ(SuchmethodenTexte()[9], "Dateien ohne ID3v2-TAG (Dateien werden neu gelesen)");
    EXPECT_EQ(GefundenAnzahlText(0), "0 Datei(en) gefunden");
}

TEST(Duplikate, PaarRegelUndMethoden) {
    TestUmgebung u;
    Kartei5(u.k);
    const auto l = Alle(u.k);
    // a–b, b–c, c–d, nie a–c.
    EXPECT_EQ(TrefferZeilen(u.k, Suchmethode::Dateiname, l),
              (std::vector<std::string>{"'Lied.mp3' und 'lied.MP3' haben die gleichen Dateinamen",
                                        "'lied.MP3' und 'LIED.mp3' haben die gleichen Dateinamen",
                                        "'LIED.mp3' und 'Lied.mp3' haben die gleichen Dateinamen"}));
    EXPECT_EQ(TrefferZeilen(u.k, Suchmethode::PfadUndDateiname, l),
              std::vector<std::string>{"'Lied.mp3' und 'Lied.mp3' haben die gleichen Pfad- und Dateinamen"});
    // Eintrag 3 hat keinen Tag; 4 und 5 haben leere Felder mit Status 1 und sind gleich.
    EXPECT_EQ(TrefferZeilen(u.k, Suchmethode::Id3v1Felder, l),
              (std::vector<std::string>{"'Lied.mp3' und 'lied.MP3' haben gleiche ID3v1-TAG-Felder",
                                        "'Lied.mp3' und 'x.mp3' haben gleiche ID3v1-TAG-Felder"}));
    EXPECT_EQ(TrefferZeilen(u.k, Suchmethode::Id3v2Felder, l),
              std::vector<std::string>{"'Lied.mp3' und 'x.mp3' haben gleiche ID3v2-TAG-Felder"});
    // Größe -1 nimmt nicht teil, auch nicht mit einer anderen -1.
    const auto größe = DuplikateSuchen(u.k, Suchmethode::Dateigröße, l);
    ASSERT_EQ(größe.size(), 2u);
    EXPECT_EQ(std::make_pair(größe[0].datei1, größe[0].datei2), std::make_pair(1, 3));
    EXPECT_EQ(std::make_pair(größe[1].datei1, größe[1].datei2), std::make_pair(3, 5));
    // Die Reihenfolge der Liste zählt, und nur ihre Einträge.
    const auto teil = DuplikateSuchen(u.k, Suchmethode::Dateigröße, {5, 2, 1});
    ASSERT_EQ(teil.size(), 1u);
    EXPECT_EQ(std::make_pair(teil[0].datei1, teil[0].datei2), std::make_pair(5, 1));
    EXPECT_TRUE(DuplikateSuchen(u.k, Suchmethode::Dateiname, {}).empty());
}

TEST(Duplikate, GleicheTrefferWieJederMitJedem) {
    TestUmgebung u;
    std::mt19937 z(7);
    const char* namen[] = {"a.mp3", "A.MP3", "b.mp3", "ü.mp3", "Ü.mp3", "c.ogg"};
    for (int i = 0; i < 400; ++i) {
        DateiInfo& d = Neu(u.k, "/o" + std::to_string(z() % 5) + "/" + namen[z() % 6]);
        d.Mp3_ID3v1_Status = z() % 4 == 0 ? 0 : 1;
        d.Mp3_ID3v1_Interpret = namen[z() % 3];
        d.Mp3_ID3v1_Titel = z() % 2 ? "x" : "X";
        d.Datei_Größe = int32_t(z() % 9) - 1;
    }
    std::vector<int32_t> l = Alle(u.k);
    std::shuffle(l.begin(), l.end(), z);
    l.resize(300);
    for (const int16_t m : {Suchmethode::Dateiname, Suchmethode::Id3v1Felder, Suchmethode::Dateigröße}) {
        std::vector<std::pair<int32_t, int32_t>> schnell;
        for (const auto& t : DuplikateSuchen(u.k, m, l)) schnell.emplace_back(t.datei1, t.datei2);
        EXPECT_EQ(schnell, Einfach(u.k, m, l)) << "Methode " << m;
    }
}

TEST(Duplikate, EinzelneDateienAusIndexUndNeuGelesen) {
    TestUmgebung u;
    TestOrdner o;
    const std::string mitTag = o / "mit.mp3", ohneTag = o / "ohne.mp3";
    DateiSchreiben(mitTag, mpeg::Frame({}) + mpeg::Id3v1("T", "I", "A", "2001", "K", 1, 0));
    DateiSchreiben(ohneTag, mpeg::Frame({}));
    Neu(u.k, mitTag).Mp3_ID3v1_Status = 0;  // der Index weiß es noch nicht
    Neu(u.k, ohneTag);                      // der Index glaubt an einen Tag
    Neu(u.k, o / "fehlt.mp3");
    const auto l = Alle(u.k);
    EXPECT_EQ(TrefferZeilen(u.k, Suchmethode::NichtVorhanden, l),
              std::vector<std::string>{"'fehlt.mp3' existiert nicht"});
    EXPECT_EQ(TrefferZeilen(u.k, Suchmethode::OhneId3v1Index, l),
              std::vector<std::string>{"'mit.mp3' enthält keinen ID3v1-TAG"});
    EXPECT_EQ(
        TrefferZeilen(u.k, Suchmethode::OhneId3v1Datei, l),
        (std::vector<std::string>{"'ohne.mp3' enthält keinen ID3v1-TAG", "'fehlt.mp3' enthält keinen ID3v1-TAG"}));
    EXPECT_EQ(TrefferZeilen(u.k, Suchmethode::OhneId3v2Index, l).size(), 3u);
    EXPECT_EQ(TrefferZeilen(u.k, Suchmethode::OhneId3v2Datei, l).back(), "'fehlt.mp3' enthält keinen ID3v2-TAG");
    // Der gespeicherte Datensatz bleibt, wie er war.
    EXPECT_EQ(u.k.DateiDaten[1].Mp3_ID3v1_Status, 0);
    EXPECT_EQ(u.k.DateiDaten[2].Mp3_ID3v1_Status, 1);
}
