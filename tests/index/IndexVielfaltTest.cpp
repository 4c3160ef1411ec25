// Ein Index aus einigen tausend bunt gemischten Einträgen (leere Felder, Umlaute, Pfade, die kein
// UTF-8 sind, Werte an der 1000-Byte-Grenze): Laden und Speichern geben dieselben Bytes, Änderungen
// nach dem Laden kommen heil durch, die Standardsuche findet genau, was ein einfacher Vergleich findet.
#include "IndexTestHilfen.h"
#include "app/FeldTabelle.h"
#include "app/Kartei.h"
#include "app/Tabelle.h"
#include "search/Suche.h"
#include "support/IndexGenerator.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace {
constexpr int32_t kAnzahl = 4000;

void Bunt(DateiInfo& d, KText& pfad, int32_t i) {
    if (i % 7 == 0) pfad += "/Lat\xE4n \xFC" + std::to_string(i) + ".mp3";  // Latin-1, kein UTF-8
    if (i % 11 == 0) {
        for (const DateiFeld& f : DateiFeldTabelle)
            if (f.zeiger.typ == FeldTyp::Text) f.Text(d).clear();
        d.Mp3_ID3v1_Status = d.Mp3_ID3v2_Status = 2;
    }
    if (i % 13 == 0) {
        std::string lang;
        while (lang.size() < 995) lang += "Ärger über Öl ";
        d.Mp3_ID3v2_Status = 1;
        d.Mp3_ID3v2_COMM = lang.substr(0, 995) + "NACHT";  // genau 1000 Bytes
    }
    if (i % 17 == 0) {
        d.Mp3_ID3v1_Status = 1;
        d.Mp3_ID3v1_Titel = "Straße der Nächte";
        d.Mp3_ID3v1_Interpret = "ÄÖÜ äöü ß";
    }
}

// Der Text der Standardsuche, ASCII-klein: für ein ASCII-Suchwort genügt das als Gegenprobe.
std::string SuchtextGegenprobe(const DateiInfo& d, const std::string& pfad) {
    std::string t = d.Mp3_ID3v2_TPE1 + " " + d.Mp3_ID3v2_TIT2 + " " + d.Mp3_ID3v1_Interpret + " " + d.Mp3_ID3v1_Titel +
                    " " + d.Mp3_ID3v1_Album + " " + pfad;
    for (char& z : t)
        if (z >= 'A' && z <= 'Z') z = char(z - 'A' + 'a');
    return t;
}

std::vector<int32_t> Gegenprobe(const Kartei& k, const std::vector<std::string>& wörter) {
    std::vector<int32_t> treffer;
    for (int32_t i = 1; i <= k.DateiAnzahl; ++i) {
        const std::string t = SuchtextGegenprobe(k.DateiDaten[i], k.DateiPfade[i]);
        bool alle = true;
        for (const std::string& w : wörter) alle = alle && t.find(w) != std::string::npos;
        if (alle) treffer.push_back(i);
    }
    return treffer;
}

std::vector<int32_t> Suchen(Kartei& k, const std::string& text) {
    k.Suche.txtSongname.Text = text;
    tmrListe_Timer(k);
    std::vector<int32_t> treffer;
    for (const auto& z : k.Liste.lstSongs.zeilen) treffer.push_back(z.eintrag);
    std::sort(treffer.begin(), treffer.end());
    return treffer;
}
}  // namespace

TEST(IndexVielfalt, LadenSpeichernGleicheBytesUndÄnderungenBleiben) {
    TestOrdner o;
    TestUmgebung a;
    a.k.E.Mp3TagLesen = "000";
    IndexErzeugen(a.k, kAnzahl, 11);
    for (int32_t i = 1; i <= kAnzahl; ++i) Bunt(a.k.DateiDaten[i], a.k.DateiPfade[i], i);
    a.k.Optionen.Spalten = ListenSpalten();  // so, wie das Laden sie ergänzt
    ASSERT_TRUE(DateiSpeichern(a.k, o / "a.kkt", false));

    TestUmgebung b;
    b.k.E.Mp3TagLesen = "000";
    ASSERT_TRUE(DateiLaden(b.k, o / "a.kkt"));
    ASSERT_EQ(b.k.DateiAnzahl, kAnzahl);
    ASSERT_TRUE(DateiSpeichern(b.k, o / "b.kkt", false));
    EXPECT_TRUE(DateiLesen(o / "a.kkt") == DateiLesen(o / "b.kkt"));
    EXPECT_EQ(b.k.DateiPfade[7], a.k.DateiPfade[7]);  // Pfad-Bytes unverändert
    EXPECT_EQ(b.k.DateiDaten[13].Mp3_ID3v2_COMM.size(), 1000u);

    // Änderungen nach dem Laden: neu gesetzt, verlängert, geleert, auf den Wert eines Nachbarn.
    std::mt19937 z(3);
    std::vector<DateiInfo> erwartet(b.k.DateiDaten.begin(), b.k.DateiDaten.end());
    for (int32_t i = 1; i <= kAnzahl; i += 5) {
        DateiInfo& d = b.k.DateiDaten[i];
        switch (z() % 4) {
        case 0: d.Mp3_ID3v2_TIT2 = "Neu " + std::to_string(i); break;
        case 1:
            d.Mp3_ID3v1_Album += " (Live)";
            d.Mp3_ID3v1_Status = 1;  // so liest der Leser es zurück
            break;
        case 2: d.Mp3_ID3v1_Titel.clear(); break;
        default: d.Mp3_ID3v2_TALB = b.k.DateiDaten[i % kAnzahl + 1].Mp3_ID3v1_Album; break;
        }
        if (!d.Mp3_ID3v2_TIT2.empty() || !d.Mp3_ID3v2_TALB.empty()) d.Mp3_ID3v2_Status = 1;
        erwartet[size_t(i - 1)] = d;
    }
    ASSERT_TRUE(DateiSpeichern(b.k, o / "c.kkt", false));
    TestUmgebung c;
    c.k.E.Mp3TagLesen = "000";
    ASSERT_TRUE(DateiLaden(c.k, o / "c.kkt"));
    ASSERT_EQ(c.k.DateiAnzahl, kAnzahl);
    for (int32_t i = 1; i <= kAnzahl; ++i) {
        ASSERT_EQ(c.k.DateiPfade[i], b.k.DateiPfade[i]) << i;
        ASSERT_TRUE(c.k.DateiDaten[i] == erwartet[size_t(i - 1)]) << i;
    }
}

TEST(IndexVielfalt, StandardsucheNachDemLadenWieDieGegenprobe) {
    TestOrdner o;
    TestUmgebung a;
    a.k.E.Mp3TagLesen = "000";
    IndexErzeugen(a.k, kAnzahl, 5);
    for (int32_t i = 1; i <= kAnzahl; ++i) Bunt(a.k.DateiDaten[i], a.k.DateiPfade[i], i);
    ASSERT_TRUE(DateiSpeichern(a.k, o / "a.kkt", false));
    TestUmgebung b;
    b.k.E.Mp3TagLesen = "000";
    b.k.E.StartBildschirm = 0;
    ASSERT_TRUE(DateiLaden(b.k, o / "a.kkt"));

    const auto nacht = Gegenprobe(b.k, {"nacht"});
    ASSERT_GT(nacht.size(), 100u);
    EXPECT_EQ(Suchen(b.k, "nacht"), nacht);
    EXPECT_EQ(Suchen(b.k, "NACHT stadt mp3"), Gegenprobe(b.k, {"nacht", "stadt", "mp3"}));
    // Nach Änderungen sucht der Zwischenspeicher mit den neuen Texten.
    for (int32_t i = 2; i <= kAnzahl; i += 9) b.k.DateiDaten[i].Mp3_ID3v2_TPE1 = "Nachtschicht";
    DateiGeändertSetzen(b.k);
    EXPECT_EQ(Suchen(b.k, "nacht"), Gegenprobe(b.k, {"nacht"}));
}
