#include "support/IndexGenerator.h"

#include "app/Kartei.h"
#include "app/Tabelle.h"

#include <array>
#include <cstdio>

namespace {
const std::array<const char*, 24> kInterpreten = {"Die Ärzte",
                                                  "Herbert Grönemeyer",
                                                  "Motörhead",
                                                  "Björk",
                                                  "Kraftwerk",
                                                  "Nena",
                                                  "Element of Crime",
                                                  "Tocotronic",
                                                  "The Notwist",
                                                  "Rammstein",
                                                  "Einstürzende Neubauten",
                                                  "Portishead",
                                                  "Massive Attack",
                                                  "Radiohead",
                                                  "Blumfeld",
                                                  "Wir sind Helden",
                                                  "Fehlfarben",
                                                  "Ton Steine Scherben",
                                                  "Can",
                                                  "Neu!",
                                                  "Lambchop",
                                                  "Calexico",
                                                  "Sophie Hunger",
                                                  "Mouse on Mars"};
const std::array<const char*, 32> kWörter = {"Nacht",  "Stadt",  "Licht", "Regen", "über",  "allem",  "Zeit", "Sommer",
                                             "Winter", "Straße", "blau",  "Meer",  "fern",  "Weg",    "Haus", "Herz",
                                             "Lied",   "Morgen", "Abend", "Grün",  "schön", "Fluss",  "Wind", "Spiegel",
                                             "Traum",  "Stille", "Echo",  "Land",  "Feuer", "Wasser", "Tag",  "Himmel"};
const std::array<const char*, 4> kModi = {"Stereo", "Joint Stereo", "Dual Channel", "Single Channel"};
const std::array<const char*, 6> kGenres = {"(17)Rock", "(13)Pop", "(8)Jazz", "Electronic", "(20)Alternative", ""};

int32_t Zahl(std::mt19937& z, int32_t von, int32_t bis) { return std::uniform_int_distribution<int32_t>(von, bis)(z); }

std::string Wörter(std::mt19937& z, int anzahl) {
    std::string text;
    for (int i = 0; i < anzahl; ++i) {
        if (i > 0) text += ' ';
        text += kWörter[size_t(Zahl(z, 0, int32_t(kWörter.size()) - 1))];
    }
    if (!text.empty() && text[0] >= 'a' && text[0] <= 'z') text[0] = char(text[0] - 32);
    return text;
}

// ID3v1-Felder fassen 30 Bytes; an einer Zeichengrenze kürzen.
std::string V1(const std::string& text) {
    if (text.size() <= 30) return text;
    size_t n = 30;
    while (n > 0 && (static_cast<unsigned char>(text[n]) & 0xC0) == 0x80) --n;
    return text.substr(0, n);
}

std::string DatumText(std::mt19937& z, bool mitZeit) {
    char puffer[32];
    if (mitZeit)
        std::snprintf(puffer, sizeof puffer, "%02d.%02d.%04d %02d:%02d:%02d", Zahl(z, 1, 28), Zahl(z, 1, 12),
                      Zahl(z, 1999, 2024), Zahl(z, 0, 23), Zahl(z, 0, 59), Zahl(z, 0, 59));
    else std::snprintf(puffer, sizeof puffer, "%02d.%02d.%04d", Zahl(z, 1, 28), Zahl(z, 1, 12), Zahl(z, 1999, 2024));
    return puffer;
}
}  // namespace

DateiInfo ErfundenerEintrag(std::mt19937& z, std::string& pfad) {
    DateiInfo d;
    const std::string interpret = kInterpreten[size_t(Zahl(z, 0, int32_t(kInterpreten.size()) - 1))];
    const std::string album = Wörter(z, Zahl(z, 1, 3)), titel = Wörter(z, Zahl(z, 1, 4));
    const int32_t jahr = Zahl(z, 1970, 2023), track = Zahl(z, 1, 14);
    char nummer[8];
    std::snprintf(nummer, sizeof nummer, "%02d", track);
    pfad = "/home/nutzer/Musik/" + interpret + "/" + std::to_string(jahr) + " - " + album + "/" + nummer + " - " +
           titel + ".mp3";

    d.Mp3_ID3v1_Status = 2;
    d.Mp3_ID3v2_Status = 2;
    if (Zahl(z, 1, 10) <= 9) {
        d.Mp3_ID3v1_Status = 1;
        d.Mp3_ID3v1_Titel = V1(titel);
        d.Mp3_ID3v1_Interpret = V1(interpret);
        d.Mp3_ID3v1_Album = V1(album);
        d.Mp3_ID3v1_Jahr = std::to_string(jahr);
        d.Mp3_ID3v1_Track = std::to_string(track);
        if (Zahl(z, 1, 4) == 1) d.Mp3_ID3v1_Kommentar = V1(Wörter(z, 3));
        const int32_t genre = Zahl(z, 0, 150);
        d.Mp3_ID3v1_Genre = std::string(1, static_cast<char>(genre > 147 ? 255 : genre));
    }
    d.Datei_Größe = Zahl(z, 2'000'000, 12'000'000);
    if (Zahl(z, 1, 50) == 1) d.Datei_Wechselmedium = "CD-Sammlung " + std::to_string(Zahl(z, 1, 40));
    d.Datei_HinzugefügtAm = DatumText(z, false);
    d.Datei_Typ = 1;
    d.Datei_AngefordertAnzahl = Zahl(z, 0, 3) == 0 ? 0 : Zahl(z, 1, 60);
    if (d.Datei_AngefordertAnzahl > 0) d.Datei_AngefordertGespieltAm = DatumText(z, true);
    static constexpr int32_t kBitraten[] = {128, 160, 192, 256, 320};
    d.Header_Bitrate = kBitraten[Zahl(z, 0, 4)];
    d.Header_VBR = Zahl(z, 1, 5) == 1;
    d.Header_Dauer = Zahl(z, 90, 600);
    d.Header_Frequenz = Zahl(z, 0, 3) == 0 ? 48000 : 44100;
    d.Header_Frames = d.Header_Dauer * 38;
    d.Header_Modus = kModi[size_t(Zahl(z, 0, 3))];

    if (Zahl(z, 1, 10) <= 7) {
        d.Mp3_ID3v2_Status = 1;
        d.Mp3_ID3v2_Version = "2.3.0";
        d.Mp3_ID3v2_TAGGröße = Zahl(z, 2048, 8192);
        d.Mp3_ID3v2_TIT2 = titel;
        d.Mp3_ID3v2_TPE1 = interpret;
        d.Mp3_ID3v2_TALB = album;
        d.Mp3_ID3v2_TYER = std::to_string(jahr);
        d.Mp3_ID3v2_TRCK = std::to_string(track) + "/14";
        d.Mp3_ID3v2_TCON = kGenres[size_t(Zahl(z, 0, int32_t(kGenres.size()) - 1))];
        d.Mp3_ID3v2_TENC = "LAME 3.98";
        d.Mp3_ID3v2_TLEN = std::to_string(d.Header_Dauer * 1000);
        if (Zahl(z, 1, 3) == 1) d.Mp3_ID3v2_COMM = Wörter(z, Zahl(z, 2, 8));
        if (Zahl(z, 1, 8) == 1) d.Mp3_ID3v2_TCOM = kInterpreten[size_t(Zahl(z, 0, 23))];
        if (Zahl(z, 1, 8) == 1) d.Mp3_ID3v2_WXXX = "https://example.org/" + std::to_string(Zahl(z, 1, 99999));
    }
    return d;
}

void IndexErzeugen(Kartei& k, int32_t anzahl, uint32_t saat) {
    std::mt19937 zufall(saat);
    IndexGrößeÄndern(k, anzahl, false);
    for (int32_t i = 1; i <= anzahl; ++i) {
        std::string pfad;
        k.DateiDaten[i] = ErfundenerEintrag(zufall, pfad);
        k.DateiPfade[i] = pfad;
        k.DateiTreffer[i] = 1;
    }
    k.DateiAnzahl = anzahl;
}
