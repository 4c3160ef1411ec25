// SIGKILL beim Umbenennen samt Speichern des Index: die Datei steht unter genau einem Namen, mit
// unverändertem Inhalt, und der Index nennt sie spätestens nach dem nächsten Abgleich.
#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/Tabelle.h"
#include "fileops/Verschieben.h"
#include "index/IndexDatei.h"
#include "support/AbsturzProbe.h"
#include "support/Attrappen.h"
#include "support/IndexGenerator.h"
#include "support/MpegDaten.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>

namespace {
// Welche der beiden Namen es gibt ("a", "b", "beide", "keine"), ob der Inhalt stimmt und ob der
// Index die Datei unter ihrem Namen führt ("gleich") oder erst beim Abgleich nachzieht.
std::string Stand(const TestOrdner& o, const std::string& inhalt) {
    const bool a = DoesExist(o / "a.mp3"), b = DoesExist(o / "b.mp3");
    if (a == b) return a ? "beide" : "keine";
    const std::string pfad = o / (a ? "a.mp3" : "b.mp3");
    if (DateiLesen(pfad) != inhalt) return "verändert";
    TestUmgebung u;
    u.k.E.Mp3TagLesen = "000";
    if (!DateiLaden(u.k, o / "i.kkt") || u.k.DateiAnzahl < 1) return "Index kaputt";
    return std::string(a ? "a" : "b") + (u.k.DateiPfade[1] == pfad ? "|gleich" : "|nachzuholen");
}
}  // namespace

TEST(Absturz, VerschiebenIstAltOderNeu) {
    TestOrdner o("/dev/shm");
    std::string inhalt;
    while (inhalt.size() < (size_t(1) << 20)) inhalt += mpeg::Frame(mpeg::Kopf{});
    DateiSchreiben(o / "a.mp3", inhalt);
    {
        TestUmgebung u;
        IndexErzeugen(u.k, 200, 9);
        u.k.DateiPfade[1] = o / "a.mp3";
        ASSERT_TRUE(DateiSpeichern(u.k, o / "i.kkt", false));
    }
    // Der Abgleich vorweg: der Index folgt der Datei, die es gibt; dann umbenennen und speichern.
    const AbsturzVorgang umbenennen = [&] {
        TestUmgebung u;
        u.k.E.Mp3TagLesen = "000";
        if (!DateiLaden(u.k, o / "i.kkt")) return false;
        const bool vonA = DoesExist(o / "a.mp3");
        const std::string quelle = o / (vonA ? "a.mp3" : "b.mp3");
        std::string ziel = o / (vonA ? "b.mp3" : "a.mp3"), fehler;
        u.k.DateiPfade[1] = quelle;
        AbsturzSchreibenBeginnt();
        if (!DateiVerschieben(u.k, quelle, ziel, ModusVerschieben, fehler)) return false;
        u.k.DateiPfade[1] = ziel;
        DateiGeändertSetzen(u.k);
        return DateiSpeichern(u.k, o / "i.kkt", false);
    };
    const auto zwischen = [](const std::string& s) { return s.ends_with("|nachzuholen"); };
    const AbsturzBericht b = AbsturzProben(
        umbenennen, [&] { return Stand(o, inhalt); }, 100, 21, zwischen);
    std::string fehler;
    for (const auto& f : b.fehler) fehler += f + "\n";
    EXPECT_EQ(fehler, "");
    EXPECT_EQ(b.schüsse, 100);
    EXPECT_GT(b.alt + b.neu, 0);
    ::testing::Test::RecordProperty("getoetet", b.getötet);
    ::testing::Test::RecordProperty("zwischen", b.zwischen);
    // Der nächste ungestörte Lauf bringt Datei und Index wieder zusammen.
    ASSERT_TRUE(umbenennen());
    const std::string s = Stand(o, inhalt);
    EXPECT_TRUE(s == "a|gleich" || s == "b|gleich") << s;
}
