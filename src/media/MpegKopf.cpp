#include "media/MpegKopf.h"

#include "app/BitString.h"
#include "app/Trace.h"
#include "app/Zahlen.h"
#include "media/DateiLeser.h"

#include <cstring>

namespace {
// Die Suche endet fest bei Byte 102400, unabhängig von der Einstellung TAGsBytesSuchen.
constexpr int64_t kSuchGrenze = 102400;

// Erste 1-basierte Stelle p <= kSuchGrenze mit FF an p und FA/FB an p+1; 0 = keine.
int64_t FrameSuchen(DateiLeser& datei) {
    int64_t geprüft = 0;  // Stellen 1..geprüft sind erledigt
    for (int64_t fenster : {int64_t(16384), int64_t(65536), kSuchGrenze + 1}) {
        std::string_view b = datei.Anfang(fenster);
        // p braucht sein Folgebyte im Puffer; der Rest kommt mit dem nächsten Fenster.
        const int64_t bis = std::min<int64_t>(kSuchGrenze, static_cast<int64_t>(b.size()) - 1);
        for (int64_t p = geprüft + 1; p <= bis;) {
            const void* ff = std::memchr(b.data() + p - 1, 0xFF, static_cast<size_t>(bis - p + 1));
            if (!ff) break;
            p = static_cast<const char*>(ff) - b.data() + 1;
            const auto nächstes = static_cast<unsigned char>(b[static_cast<size_t>(p)]);
            if (nächstes == 0xFA || nächstes == 0xFB) return p;
            ++p;
        }
        geprüft = std::max(geprüft, bis);
        if (static_cast<int64_t>(b.size()) < fenster) break;  // Dateiende erreicht
    }
    return 0;
}

// n Bytes ab der 1-basierten Stelle pos; was hinter dem Dateiende läge, zählt als 0.
std::string BytesAb(DateiLeser& datei, int64_t pos, int n) {
    std::string aus(datei.Stück(pos - 1, n));
    aus.resize(static_cast<size_t>(n), '\0');
    return aus;
}
}  // namespace

std::string Mp3HeaderLesen(DateiLeser& datei, DateiInfo& info) {
    if (!datei.Offen()) return {};
    int64_t p = FrameSuchen(datei);
    if (p > 0) {
        info.Header_Position = static_cast<int32_t>(p - 1);
    } else {
        p = 1;  // kein Frame: die ersten vier Bytes werden entschlüsselt
        KK_TRACE("Mp3HeaderLesen", "Header konnte nicht gelesen werden - ");
    }
    if (BytesAb(datei, p + 36, 4) == "Xing") {
        info.Header_VBR = true;
        int32_t frames = 0;
        // Ein Frame-Zähler ab 2^31 passt nicht in Long: das Lesen endet ohne Ergebnis.
        if (!BitStringZuLong(BytesZuBitString(BytesAb(datei, p + 44, 4)), frames)) return {};
        info.Header_Frames = frames;
    } else {
        info.Header_VBR = false;
    }
    if (datei.Länge() < p + 3) KK_TRACE("Mp3HeaderLesen", "Datei zu klein - ");
    return BytesZuBitString(BytesAb(datei, p, 4));
}

std::string Mp3HeaderLesen(const std::string& dateiname, DateiInfo& info) {
    DateiLeser datei(dateiname);
    return Mp3HeaderLesen(datei, info);
}

namespace {
// Wert der Bits ab der 1-basierten Stelle pos (Länge n) im 32-Zeichen-Kopf.
int Bits(const std::string& kopf, int pos, int n) {
    int wert = 0;
    for (int i = 0; i < n; ++i) wert = wert * 2 + (kopf[static_cast<size_t>(pos - 1 + i)] == '1' ? 1 : 0);
    return wert;
}

// Bitraten in kbit/s, Zeilen 0000 bis 1110; 1111 hat keine Zeile.
constexpr int32_t kBitrate11[15] = {0, 32, 64, 96, 128, 160, 192, 224, 256, 288, 320, 352, 384, 416, 448};
constexpr int32_t kBitrate12[15] = {0, 32, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 384};
constexpr int32_t kBitrate13[15] = {0, 32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320};
constexpr int32_t kBitrate21[15] = {0, 32, 48, 56, 64, 80, 96, 112, 128, 144, 160, 176, 192, 224, 256};
constexpr int32_t kBitrate22[15] = {0, 8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160};

// Die Tabelle zum Schlüssel Version & Layer; nullptr für jeden anderen Schlüssel.
const int32_t* BitrateTabelle(int16_t version, int16_t layer) {
    const std::string schlüssel = std::to_string(version) + std::to_string(layer);
    if (schlüssel == "11") return kBitrate11;
    if (schlüssel == "12") return kBitrate12;
    if (schlüssel == "13") return kBitrate13;
    if (schlüssel == "21" || schlüssel == "251") return kBitrate21;
    if (schlüssel == "22" || schlüssel == "252" || schlüssel == "23" || schlüssel == "253") return kBitrate22;
    return nullptr;
}

void FrequenzSetzen(DateiInfo& r, int bits) {
    static constexpr int32_t kMpeg1[3] = {44100, 48000, 32000};
    static constexpr int32_t kMpeg2[3] = {22050, 24000, 16000};  // MPEG 2.5 teilt diese Zeile
    if (r.Header_Version != 1 && r.Header_Version != 2 && r.Header_Version != 25) {
        r.Header_Frequenz = 0;
        return;
    }
    if (bits > 2) return;  // Bits 11: keine Zeile, der Wert bleibt
    r.Header_Frequenz = (r.Header_Version == 1 ? kMpeg1 : kMpeg2)[bits];
}

void BitrateSetzen(DateiInfo& r, int bits, int64_t dateiLänge) {
    if (!r.Header_VBR) {
        const int32_t* tabelle = BitrateTabelle(r.Header_Version, r.Header_Layer);
        if (!tabelle) r.Header_Bitrate = 1;  // "keine Bitrate"
        else if (bits < 15) r.Header_Bitrate = tabelle[bits];
        return;
    }
    // Faktor-Tabelle um eine Zeile gegen die Layer-Nummer versetzt: Layer 1 trifft die leere
    // Zeile und behält seinen Wert, Layer 2 bekommt 12, Layer 3 bekommt 144.
    double f = 0;
    if (r.Header_Layer == 2) f = 12;
    else if (r.Header_Layer == 3 || r.Header_Layer == 4) f = 144;
    if (f == 0 || r.Header_Frames == 0) {
        KK_TRACE("HeaderLesen", "Bitrate kann nicht ermittelt werden - '");
        return;
    }
    const double wert = ((double(dateiLänge) * r.Header_Frequenz) / Int(r.Header_Frames) / 1000) / f;
    LongAus(wert, r.Header_Bitrate);
}

// Ganze Sekunden; Bitrate 0 (freies Format) lässt die Dauer stehen.
void DauerSetzen(DateiInfo& r, int64_t dateiLänge, int64_t s) {
    if (r.Header_Bitrate == 0) return;
    LongAus(Int((double(dateiLänge - s) * 8 / r.Header_Bitrate) / 1000), r.Header_Dauer);
}

// Mit Datei_Größe aus dem Datensatz, nicht aus der Datei: so verlangt es der Ablauf.
void FramesSetzen(DateiInfo& r, int64_t s) {
    if (r.Header_Frequenz < 1) {
        r.Header_Frames = -1;
        return;
    }
    const double frameLänge = (double(r.Header_Bitrate) * 1000 * 144) / r.Header_Frequenz + (r.Header_Padding ? 1 : 0);
    if (frameLänge == 0) return;
    LongAus((double(r.Datei_Größe) - double(s)) / frameLänge, r.Header_Frames);
}
}  // namespace

DateiInfo HeaderLesen(DateiLeser& datei, const DateiInfo& info) {
    DateiInfo r = info;
    if (!datei.Offen() || datei.Länge() <= 4) return r;
    const std::string kopf = Mp3HeaderLesen(datei, r);
    if (kopf.size() != 32) return r;
    const int64_t länge = datei.Länge();

    static constexpr int16_t kVersion[4] = {25, 0, 2, 1};
    static constexpr int16_t kLayer[4] = {0, 3, 2, 1};
    static const char* const kModus[4] = {"Stereo", "Joint Stereo", "Dual Channel", "Single Channel"};
    static const char* const kEmphasis[4] = {"Nein", "50/15", "Reserviert", "CCITT J 17"};
    r.Header_Version = kVersion[Bits(kopf, 12, 2)];
    r.Header_Layer = kLayer[Bits(kopf, 14, 2)];
    r.Header_Modus = kModus[Bits(kopf, 25, 2)];
    r.Header_Emphasis = kEmphasis[Bits(kopf, 31, 2)];

    FrequenzSetzen(r, Bits(kopf, 21, 2));
    BitrateSetzen(r, Bits(kopf, 17, 4), länge);

    r.Header_Original = kopf[29] == '1';
    r.Header_Copyright = kopf[28] == '1';
    r.Header_Padding = kopf[22] == '1';
    r.Header_Privat = kopf[23] == '1';
    r.Header_CRC = kopf[15] == '0';

    // Der ID3v2-Tag zählt nur über Header_Position, weil der Frame hinter ihm steht.
    const int64_t s = int64_t(r.Header_Position) + (r.Mp3_ID3v1_Status == 1 ? 128 : 0);
    DauerSetzen(r, länge, s);
    if (!r.Header_VBR) FramesSetzen(r, s);
    return r;
}

DateiInfo HeaderLesen(const std::string& dateiname, const DateiInfo& info) {
    DateiLeser datei(dateiname);
    return HeaderLesen(datei, info);
}
