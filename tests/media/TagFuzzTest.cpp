// 2.000 verstümmelte Dateien (umgekippte Bits in Größen und Flags, abgeschnittene Enden) mal
// vier Vorgänge: nie stürzt etwas ab, nie ändert sich ein Byte des Tons, und eine Weigerung ist
// eine deutsche Meldung, nach der die Datei unverändert ist.
#include "app/Kartei.h"
#include "media/Id3v1.h"
#include "media/Id3v2Schreiben.h"
#include "media/MedienInfos.h"
#include "support/Attrappen.h"
#include "support/MpegDaten.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>

#include <random>

namespace {
using mpeg::Text;

struct Vorlage {
    std::string tag;
    std::vector<size_t> rahmenKöpfe;  // Stellen der Rahmenköpfe in tag
    int major = 3;
};

Vorlage VorlageBauen(std::mt19937& z) {
    mpeg::V2Tag t;
    t.major = 2 + static_cast<int>(z() % 3);
    const bool v22 = t.major == 2;
    std::string bild(1000 + z() % 3000, '\0');
    for (auto& c : bild) c = static_cast<char>(z());
    t.rahmen = {Text(v22 ? "TT2" : "TIT2", "Titel"), Text(v22 ? "TP1" : "TPE1", mpeg::Utf16("Wer", false, true), 1),
                mpeg::Kommentar(v22 ? "COM" : "COMM", "Text", "Beschreibung"),
                mpeg::Rahmen{v22 ? "PIC" : "APIC", std::string(1, '\0') +
                                                       (v22 ? std::string("PNG") : std::string("image/png") + '\0') +
                                                       "\x03" + '\0' + bild}};
    t.padding = z() % 100;
    if (!v22 && z() % 4 == 0)
        t.erweiterterKopf = t.major == 3 ? mpeg::BigEndian(6, 4) + std::string(6, '\0')
                                         : mpeg::SyncSafe(6) + std::string("\x01\x00", 2);
    t.fußzeile = t.major == 4 && z() % 3 == 0;
    Vorlage v{mpeg::Id3v2(t), {}, t.major};
    size_t pos = 10 + t.erweiterterKopf.size();
    for (const auto& r : t.rahmen) {
        v.rahmenKöpfe.push_back(pos);
        pos += mpeg::RahmenBytes(r, t.major).size();
    }
    return v;
}

void BitKippen(std::string& d, size_t pos, std::mt19937& z) {
    if (pos < d.size()) d[pos] = static_cast<char>(d[pos] ^ (1 << (z() % 8)));
}

// Verstümmelt Größen und Flags des Tags und seiner Rahmen oder schneidet die Datei ab.
std::string Verstümmeln(const Vorlage& v, std::string d, std::mt19937& z) {
    const int schritte = 1 + static_cast<int>(z() % 3);
    for (int i = 0; i < schritte; ++i) {
        const auto art = z() % 20;
        if (art < 9) {
            BitKippen(d, 5 + z() % 5, z);  // Flags und Größe des Tags
        } else if (art < 16) {
            const size_t kopf = v.rahmenKöpfe[z() % v.rahmenKöpfe.size()];
            BitKippen(d, kopf + (v.major == 2 ? 3 + z() % 3 : 4 + z() % 6), z);  // Größe, Flags
        } else if (!d.empty()) {
            d.resize(z() % d.size());
        }
    }
    return d;
}

bool EndetMit(const std::string& text, const std::string& ende) {
    return text.size() >= ende.size() && text.compare(text.size() - ende.size(), ende.size(), ende) == 0;
}

// Eine Weigerung: deutscher Text über den Tag, die Datei wie vorher.
void WeigerungPrüfen(const std::string& meldung, const std::string& vorher, const std::string& pfad) {
    EXPECT_NE(meldung.find("TAG"), std::string::npos) << meldung;
    EXPECT_TRUE(meldung.find("nicht") != std::string::npos || meldung.find("kein") != std::string::npos) << meldung;
    EXPECT_EQ(DateiLesen(pfad), vorher);
}
}  // namespace

TEST(TagFuzz, VierVorgaengeAendernNieDenTon) {
    TestUmgebung u;
    TestOrdner o("/dev/shm");  // im Speicher: das fsync jedes Neuschreibens kostet dort nichts
    std::mt19937 z(20240611);
    std::string ton;
    for (int i = 0; i < 6; ++i) ton += mpeg::Frame(mpeg::Kopf{});
    const std::string v1 = mpeg::Id3v1("T", "I", "A", "2000", "K", 1, 17);
    const std::string pfad = o / "f.mp3";
    int weigerungen = 0, gelungen = 0;
    for (int i = 0; i < 2000; ++i) {
        const Vorlage v = VorlageBauen(z);
        const std::string daten = Verstümmeln(v, v.tag + ton + v1, z);
        // Was vom Ton blieb, mit allem dahinter: das muss jeder Vorgang stehen lassen.
        const std::string hinten = daten.size() > v.tag.size() ? daten.substr(v.tag.size()) : std::string();
        const bool mitV1 = daten.size() >= v.tag.size() + ton.size() + v1.size();
        for (int vorgang = 0; vorgang < 4; ++vorgang) {
            SCOPED_TRACE("Datei " + std::to_string(i) + ", Vorgang " + std::to_string(vorgang));
            DateiSchreiben(pfad, daten);
            u.ui.meldungen.clear();
            std::string fehler;
            bool ok = false;
            if (vorgang == 0) {
                DateiInfo d = MedienInfosLesen(u.k, pfad, DateiInfo{}, "11", false, "0", "0");
                d.Mp3_ID3v1_Titel = "Neu";
                ok = Mp3TAGSpeichernV1Datei(pfad, TAGAusFeldernZusammensetzen(Id3v1FelderAusDatensatz(d)), fehler);
                ASSERT_TRUE(ok) << fehler;
                const size_t alt = mitV1 ? daten.size() - 128 : daten.size();
                EXPECT_EQ(DateiLesen(pfad).substr(0, alt), daten.substr(0, alt));
            } else if (vorgang == 1) {
                DateiInfo d = MedienInfosLesen(u.k, pfad, DateiInfo{}, "11", false, "0", "0");
                d.Mp3_ID3v2_TIT2 = i % 2 ? "Neu" : std::string(z() % 9000, 'x');
                ok = MP3TagSpeichernV2Datei(u.k, pfad, fehler, d);
                if (ok) EXPECT_TRUE(EndetMit(DateiLesen(pfad), hinten));
                else WeigerungPrüfen(fehler, daten, pfad);
            } else if (vorgang == 2) {
                DateiInfo arbeit;
                ok = TAGEntfernen(u.k, arbeit, pfad);
                if (ok) EXPECT_EQ(DateiLesen(pfad), daten.substr(0, daten.size() - 128));
                else WeigerungPrüfen(u.ui.meldungen.empty() ? "" : u.ui.meldungen.back().text, daten, pfad);
            } else {
                DateiRest rest;
                ok = TAGEntfernenV2(u.k, pfad, 0, false, rest);
                if (ok) EXPECT_TRUE(EndetMit(DateiLesen(pfad), hinten));
                else WeigerungPrüfen(u.ui.meldungen.empty() ? "" : u.ui.meldungen.back().text, daten, pfad);
            }
            ok ? ++gelungen : ++weigerungen;
        }
        if (HasFailure()) break;
    }
    // Die meisten Vorgänge gelingen; die Weigerungen kommen von abgeschnittenen Tags.
    EXPECT_GT(gelungen, 6000);
    std::cout << "[Fuzz] " << gelungen << " gelungen, " << weigerungen << " verweigert\n";
}
