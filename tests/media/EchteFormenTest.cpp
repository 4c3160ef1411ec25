// Tags in den Formen echter Dateien: großes Bild, UTF-8, UTF-16-Kommentar mit Beschreibung,
// Version 2.2, kaputte Größe, Entsynchronisierung, erweiterter Kopf. Jede Form durchläuft
// tag (v1, v2 klein, v2 groß), untag --v1 und untag --v2 über die Kommandozeile; ein
// unabhängiger Leser (mutagen) prüft danach die Rahmen, der Test den Ton Byte für Byte.
#include "support/CliAufruf.h"
#include "support/MpegDaten.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <iostream>
#include <random>
#include <sys/wait.h>

namespace {
using mpeg::Rahmen;
using mpeg::Text;
using mpeg::V2Tag;

// Zwanzig aufeinander folgende Frames: der Ton, der unberührt bleiben muss.
std::string Ton() {
    std::string ton;
    for (int i = 0; i < 20; ++i) ton += mpeg::Frame(mpeg::Kopf{});
    return ton;
}
const std::string kV1 = mpeg::Id3v1("v1 Titel", "v1 Wer", "", "1999", "", 3, 17);

// Bilddaten wie ein JPEG: zufällige Bytes, also auch FF FB mitten im Bild.
std::string Bilddaten(size_t n) {
    std::mt19937 z(static_cast<uint32_t>(n));
    std::string d(n, '\0');
    for (auto& c : d) c = static_cast<char>(z());
    return d;
}

Rahmen Bild(size_t n, bool v22 = false) {
    const std::string format = v22 ? std::string("JPG") : std::string("image/jpeg") + '\0';
    return Rahmen{v22 ? "PIC" : "APIC", std::string(1, '\0') + format + "\x03" + "Titelbild" + '\0' + Bilddaten(n)};
}

// FF vor einem Byte ab E0 oder vor 00 (und am Ende) bekommt ein 00 dahinter.
std::string Entsynchron(const std::string& b) {
    std::string aus;
    for (size_t i = 0; i < b.size(); ++i) {
        aus += b[i];
        const bool letztes = i + 1 == b.size();
        if (b[i] == '\xFF' && (letztes || static_cast<unsigned char>(b[i + 1]) >= 0xE0 || b[i + 1] == '\0'))
            aus += '\0';
    }
    return aus;
}

struct Form {
    std::string name;
    std::string tag;     // so steht er in der Datei
    std::string intakt;  // woran der unabhängige Leser misst (bei kaputter Größe: der heile Tag)
};

std::vector<Form> Formen() {
    std::vector<Form> f;
    V2Tag v23;
    v23.rahmen = {Text("TIT2", "Titel"), Text("TPE1", "Interpret"), Text("TALB", "Album"), Bild(100 * 1024)};
    v23.padding = 1024;
    f.push_back({"2.3 mit 100-KB-APIC", mpeg::Id3v2(v23), ""});

    V2Tag v24;
    v24.major = 4;
    v24.rahmen = {Text("TIT2", "Grüße aus Köln \xE2\x98\x83", 3), Text("TPE1", "Motörhead", 3),
                  Text("TDRC", "2024-05-01", 3), Bild(200 * 1024)};
    v24.padding = 512;
    f.push_back({"2.4 UTF-8 mit 200-KB-Bild", mpeg::Id3v2(v24), ""});

    V2Tag komm;
    komm.rahmen = {
        Text("TIT2", "Titel"),
        mpeg::Kommentar("COMM", mpeg::Utf16(" 0000031C 00000335", false, true), mpeg::Utf16("iTunNORM", false, true),
                        1),
        mpeg::Kommentar("COMM", mpeg::Utf16("Hallo Welt", false, true), mpeg::Utf16("", false, true), 1, "deu")};
    komm.padding = 256;
    f.push_back({"2.3 UTF-16-COMM mit Beschreibung", mpeg::Id3v2(komm), ""});

    V2Tag v22;
    v22.major = 2;
    v22.rahmen = {Text("TT2", "Titel"),    Text("TP1", "Interpret"),
                  Text("TAL", "Album"),    Text("TYE", "1987"),
                  Text("TRK", "4/12"),     Text("TCO", "(17)"),
                  Text("TEN", "Kodierer"), mpeg::Kommentar("COM", "Kommentar", "Beschreibung"),
                  Bild(20 * 1024, true)};
    v22.padding = 128;
    f.push_back({"2.2 mit PIC/COM/TT2", mpeg::Id3v2(v22), ""});

    V2Tag kaputt;
    kaputt.rahmen = {Text("TIT2", "Titel"), Text("TPE1", "Interpret"), Bild(10 * 1024)};
    kaputt.padding = 300;
    std::string falsch = mpeg::Id3v2(kaputt);
    falsch[6] = '\x7F';  // die Größe reicht weit über das Dateiende
    f.push_back({"2.3 mit kaputter Größe", falsch, mpeg::Id3v2(kaputt)});

    std::string körper;
    for (const auto& r : {Text("TIT2", "Titel"), Text("TPE1", "Interpret"), Bild(30 * 1024)})
        körper += mpeg::RahmenBytes(r, 3);
    körper = Entsynchron(körper + std::string(200, '\0'));
    f.push_back({"2.3 entsynchronisiert",
                 std::string("ID3\x03\x00\x80", 6) + mpeg::SyncSafe(static_cast<uint32_t>(körper.size())) + körper,
                 ""});

    V2Tag erweitert = v23;
    erweitert.rahmen = {Text("TIT2", "Titel"), Text("TPE1", "Interpret"), Bild(5 * 1024)};
    erweitert.erweiterterKopf = mpeg::BigEndian(6, 4) + std::string(2, '\0') + mpeg::BigEndian(1024, 4);
    f.push_back({"2.3 mit erweitertem Kopf", mpeg::Id3v2(erweitert), ""});
    return f;
}

struct Vorgang {
    std::string name;
    std::vector<std::string> argumente;  // nach dem Pfad
    std::string vergleich;               // Schalter für den unabhängigen Leser
    bool v1Bleibt;
};

const Vorgang kVorgänge[] = {
    {"tag v1", {"Mp3_ID3v1_Titel=Neu"}, "", false},
    {"tag v2 klein", {"Mp3_ID3v2_TIT2=Neu"}, "--geaendert TIT2", true},
    {"tag v2 groß", {"Mp3_ID3v2_TIT2=" + std::string(6000, 'x')}, "--geaendert TIT2", true},
    {"untag --v1", {}, "", false},
    {"untag --v2", {}, "--ohne-tag", true},
};

// Der unabhängige Leser; Rückgabe und letzte Zeile seiner Ausgabe.
std::pair<int, std::string> Vergleichen(const std::string& vorher, const std::string& nachher,
                                        const std::string& schalter) {
    const std::string befehl =
        std::string(KK_PYTHON) + " " + KK_ID3_VERGLEICH + " '" + vorher + "' '" + nachher + "' " + schalter + " 2>&1";
    return ShellAufruf(befehl);
}
}  // namespace

TEST(EchteFormen, JederVorgangVerliertNichts) {
    TestOrdner o;
    const std::string ton = Ton();
    for (const auto& form : Formen()) {
        for (const auto& v : kVorgänge) {
            SCOPED_TRACE(form.name + " / " + v.name);
            const std::string pfad = o / "a.mp3", vorher = o / "vorher.mp3";
            DateiSchreiben(pfad, form.tag + ton + kV1);
            DateiSchreiben(vorher, (form.intakt.empty() ? form.tag : form.intakt) + ton + kV1);
            std::vector<std::string> argumente;
            if (v.name.rfind("untag", 0) == 0) argumente = {"untag", v.name.substr(6), pfad};
            else argumente = {"tag", pfad};
            argumente.insert(argumente.end(), v.argumente.begin(), v.argumente.end());
            const CliErgebnis e = CliAufrufen(KK_CLI, o, argumente);
            const std::string danach = DateiLesen(pfad);

            // Der Ton steht unverändert vor dem ID3v1-Block (oder am Ende, wenn dieser fort ist).
            const size_t hinten = v.v1Bleibt ? kV1.size() : v.name == "tag v1" ? 128 : 0;
            const bool tonGleich = danach.size() >= ton.size() + hinten &&
                                   danach.compare(danach.size() - hinten - ton.size(), ton.size(), ton) == 0;
            // ID3v1-Vorgänge lassen den ID3v2-Tag Byte für Byte stehen, auch einen kaputten.
            const bool nurV1 = v.name.find("v1") != std::string::npos;
            if (nurV1) {
                EXPECT_EQ(danach.substr(0, form.tag.size()), form.tag);
            }
            const auto [rückgabe, ausgabe] = nurV1 && !form.intakt.empty()
                                                 ? std::pair<int, std::string>{0, "ID3v2-Tag unverändert\n"}
                                                 : Vergleichen(vorher, pfad, v.vergleich);
            std::cout << "[Form] " << form.name << " | " << v.name << " | Rückgabe " << e.rückgabe << " | Ton "
                      << (tonGleich ? "gleich" : "VERÄNDERT") << " | " << ausgabe;
            EXPECT_EQ(e.rückgabe, 0) << e.fehler;
            EXPECT_TRUE(tonGleich);
            EXPECT_EQ(rückgabe, 0) << ausgabe;
            if (v.name == "untag --v2") {
                EXPECT_EQ(danach, ton + kV1);
            }
        }
    }
}
