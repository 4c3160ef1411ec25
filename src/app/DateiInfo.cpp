#include "app/DateiInfo.h"

#include "app/Zahlen.h"

#include <limits>
#include <variant>

namespace {
using Zeiger = std::variant<std::string DateiInfo::*, int32_t DateiInfo::*, int16_t DateiInfo::*, uint8_t DateiInfo::*,
                            bool DateiInfo::*>;
struct Eintrag {
    DateiInfoFeld feld;
    Zeiger zeiger;
};

#define KK_T(n)                                                                                                        \
    Eintrag { {#n, FeldArt::Text}, &DateiInfo::n }
#define KK_Z(n)                                                                                                        \
    Eintrag { {#n, FeldArt::Zahl}, &DateiInfo::n }
#define KK_W(n)                                                                                                        \
    Eintrag { {#n, FeldArt::Wahrheit}, &DateiInfo::n }
const Eintrag kFelder[] = {
    KK_T(Mp3_ID3v1_TAG),
    KK_T(Mp3_ID3v1_Titel),
    KK_T(Mp3_ID3v1_Interpret),
    KK_T(Mp3_ID3v1_Album),
    KK_T(Mp3_ID3v1_Jahr),
    KK_T(Mp3_ID3v1_Kommentar),
    KK_T(Mp3_ID3v1_Track),
    KK_T(Mp3_ID3v1_Genre),
    KK_Z(Datei_Größe),
    KK_T(Datei_Wechselmedium),
    KK_T(Datei_HinzugefügtAm),
    KK_Z(Datei_Typ),
    KK_Z(Datei_AngefordertAnzahl),
    KK_T(Datei_AngefordertGespieltAm),
    KK_Z(Header_Bitrate),
    KK_Z(Header_Frequenz),
    KK_Z(Header_Dauer),
    KK_Z(Header_Version),
    KK_Z(Header_Layer),
    KK_W(Header_VBR),
    KK_W(Header_Original),
    KK_T(Header_Emphasis),
    KK_W(Header_Copyright),
    KK_T(Header_Modus),
    KK_W(Header_Privat),
    KK_W(Header_Padding),
    KK_W(Header_CRC),
    KK_Z(Header_Frames),
    KK_Z(Header_Position),
    KK_Z(Mp3_ID3v1_Status),
    KK_Z(Mp3_ID3v2_Status),
    KK_T(Mp3_ID3v2_Version),
    KK_Z(Mp3_ID3v2_TAGGröße),
    KK_Z(Mp3_ID3v2_TAGPosition),
    KK_Z(Mp3_ID3v2_Benutzt),
    KK_T(Mp3_ID3v2_PCNT),
    KK_T(Mp3_ID3v2_TRCK),
    KK_T(Mp3_ID3v2_TENC),
    KK_T(Mp3_ID3v2_WXXX),
    KK_T(Mp3_ID3v2_TCOP),
    KK_T(Mp3_ID3v2_TOPE),
    KK_T(Mp3_ID3v2_TCOM),
    KK_T(Mp3_ID3v2_TCON),
    KK_T(Mp3_ID3v2_COMM),
    KK_T(Mp3_ID3v2_TYER),
    KK_T(Mp3_ID3v2_TALB),
    KK_T(Mp3_ID3v2_TPE1),
    KK_T(Mp3_ID3v2_TIT2),
    KK_T(Mp3_ID3v2_TLAN),
    KK_T(Mp3_ID3v2_TLEN),
    KK_T(Mp3_ID3v2_TMED),
    KK_T(Mp3_ID3v2_TPUB),
    KK_T(Mp3_ID3v2_TSSE),
    KK_T(Mp3_ID3v2_Weitere),
};
#undef KK_T
#undef KK_Z
#undef KK_W
constexpr int kAnzahl = sizeof kFelder / sizeof kFelder[0];

const Eintrag* Finden(const std::string& name) {
    for (const auto& e : kFelder)
        if (name == e.feld.name) return &e;
    return nullptr;
}

template <typename T> bool GanzzahlSetzen(T& ziel, const std::string& wert) {
    if (!IstNumerisch(wert)) return false;
    int32_t z = 0;
    if (!LongAus(*ZahlWert(wert), z) || z < std::numeric_limits<T>::min() || z > std::numeric_limits<T>::max())
        return false;
    ziel = static_cast<T>(z);
    return true;
}
}  // namespace

const DateiInfoFeld* DateiInfoFelder(int& anzahl) {
    static DateiInfoFeld felder[kAnzahl];
    for (int i = 0; i < kAnzahl; ++i) felder[i] = kFelder[i].feld;
    anzahl = kAnzahl;
    return felder;
}

bool DateiInfoFeldLesen(const DateiInfo& d, const std::string& name, std::string& wert) {
    const Eintrag* e = Finden(name);
    if (!e) return false;
    if (name == "Mp3_ID3v1_Genre") {
        wert = d.Mp3_ID3v1_Genre.empty() ? "" : std::to_string(static_cast<unsigned char>(d.Mp3_ID3v1_Genre[0]));
        return true;
    }
    std::visit(
        [&](auto zeiger) {
            const auto& v = d.*zeiger;
            using T = std::decay_t<decltype(v)>;
            if constexpr (std::is_same_v<T, std::string>) wert = v;
            else if constexpr (std::is_same_v<T, bool>) wert.assign(1, v ? '1' : '0');
            else wert = std::to_string(static_cast<long long>(v));
        },
        e->zeiger);
    return true;
}

bool DateiInfoFeldSetzen(DateiInfo& d, const std::string& name, const std::string& wert) {
    const Eintrag* e = Finden(name);
    if (!e) return false;
    if (name == "Mp3_ID3v1_Genre") {
        if (wert.empty()) {
            d.Mp3_ID3v1_Genre.clear();
            return true;
        }
        int32_t code = 0;
        if (!GanzzahlSetzen(code, wert) || code < 0 || code > 255) return false;
        d.Mp3_ID3v1_Genre = std::string(1, static_cast<char>(code));
        return true;
    }
    return std::visit(
        [&](auto zeiger) {
            auto& v = d.*zeiger;
            using T = std::decay_t<decltype(v)>;
            if constexpr (std::is_same_v<T, std::string>) {
                v = wert;
                return true;
            } else if constexpr (std::is_same_v<T, bool>) {
                if (wert != "1" && wert != "0") return false;
                v = wert == "1";
                return true;
            } else {
                return GanzzahlSetzen(v, wert);
            }
        },
        e->zeiger);
}
