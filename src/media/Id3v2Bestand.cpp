#include "media/Id3v2Bestand.h"

#include "media/DateiLeser.h"

#include <algorithm>
#include <cstring>

const char* const kTagGrößeUnplausibel =
    "Die Größenangabe des ID3v2-TAGs reicht über das Dateiende hinaus; die Datei bleibt unverändert.";

namespace {
// Eine Tabelle für alle Kennungen von Version 2.2.
const struct {
    const char* alt;
    const char* neu;
} k22Zu23[] = {
    {"BUF", "RBUF"}, {"CNT", "PCNT"}, {"COM", "COMM"}, {"CRA", "AENC"}, {"ETC", "ETCO"}, {"EQU", "EQUA"},
    {"GEO", "GEOB"}, {"IPL", "IPLS"}, {"LNK", "LINK"}, {"MCI", "MCDI"}, {"MLL", "MLLT"}, {"PIC", "APIC"},
    {"POP", "POPM"}, {"REV", "RVRB"}, {"RVA", "RVAD"}, {"SLT", "SYLT"}, {"STC", "SYTC"}, {"TAL", "TALB"},
    {"TBP", "TBPM"}, {"TCM", "TCOM"}, {"TCO", "TCON"}, {"TCR", "TCOP"}, {"TDA", "TDAT"}, {"TDY", "TDLY"},
    {"TEN", "TENC"}, {"TFT", "TFLT"}, {"TIM", "TIME"}, {"TKE", "TKEY"}, {"TLA", "TLAN"}, {"TLE", "TLEN"},
    {"TMT", "TMED"}, {"TOA", "TOPE"}, {"TOF", "TOFN"}, {"TOL", "TOLY"}, {"TOR", "TORY"}, {"TOT", "TOAL"},
    {"TP1", "TPE1"}, {"TP2", "TPE2"}, {"TP3", "TPE3"}, {"TP4", "TPE4"}, {"TPA", "TPOS"}, {"TPB", "TPUB"},
    {"TRC", "TSRC"}, {"TRD", "TRDA"}, {"TRK", "TRCK"}, {"TSI", "TSIZ"}, {"TSS", "TSSE"}, {"TT1", "TIT1"},
    {"TT2", "TIT2"}, {"TT3", "TIT3"}, {"TXT", "TEXT"}, {"TXX", "TXXX"}, {"TYE", "TYER"}, {"UFI", "UFID"},
    {"ULT", "USLT"}, {"WAF", "WOAF"}, {"WAR", "WOAR"}, {"WAS", "WOAS"}, {"WCM", "WCOM"}, {"WCP", "WCOP"},
    {"WPB", "WPUB"}, {"WXX", "WXXX"}, {"TCP", "TCMP"}, {"TST", "TSOT"}, {"TSP", "TSOP"}, {"TSA", "TSOA"},
    {"TS2", "TSO2"}, {"TSC", "TSOC"}, {"MVN", "MVNM"}, {"MVI", "MVIN"}, {"GP1", "GRP1"},
};

uint32_t ZahlLesen(std::string_view b, int bits) {
    uint32_t w = 0;
    for (char c : b) w = (w << bits) | (static_cast<unsigned char>(c) & ((1u << bits) - 1));
    return w;
}

std::string BigEndian4(uint32_t w) {
    return {static_cast<char>(w >> 24), static_cast<char>(w >> 16), static_cast<char>(w >> 8), static_cast<char>(w)};
}

// Hebt die Entsynchronisierung auf: FF 00 wird zu FF.
std::string Entsynchronisieren(std::string_view b) {
    std::string aus;
    aus.reserve(b.size());
    for (size_t i = 0; i < b.size(); ++i) {
        aus.push_back(b[i]);
        if (b[i] == '\xFF' && i + 1 < b.size() && b[i + 1] == '\0') ++i;
    }
    return aus;
}

// --- MPEG-Frames: ein gültiger Kopf, seine Länge ---
bool KopfGültig(std::string_view b, size_t i) {
    if (i + 4 > b.size()) return false;
    const auto* p = reinterpret_cast<const unsigned char*>(b.data() + i);
    if (p[0] != 0xFF || (p[1] & 0xE0) != 0xE0) return false;
    return ((p[1] >> 3) & 3) != 1 && ((p[1] >> 1) & 3) != 0 && (p[2] >> 4) != 15 && ((p[2] >> 2) & 3) != 3;
}

// Länge des Frames bei i in Bytes; 0 bei freier Bitrate.
int64_t FrameLänge(std::string_view b, size_t i) {
    static const int kRaten[2][3][15] = {{{0, 32, 64, 96, 128, 160, 192, 224, 256, 288, 320, 352, 384, 416, 448},
                                          {0, 32, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 384},
                                          {0, 32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320}},
                                         {{0, 32, 48, 56, 64, 80, 96, 112, 128, 144, 160, 176, 192, 224, 256},
                                          {0, 8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160},
                                          {0, 8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160}}};
    static const int kFrequenz[3] = {44100, 48000, 32000};
    const auto* p = reinterpret_cast<const unsigned char*>(b.data() + i);
    const int version = (p[1] >> 3) & 3, layer = 4 - ((p[1] >> 1) & 3);  // layer 1..3
    const bool mpeg1 = version == 3;
    const int64_t rate = kRaten[mpeg1 ? 0 : 1][layer - 1][p[2] >> 4] * 1000;
    const int64_t frequenz = kFrequenz[(p[2] >> 2) & 3] / (mpeg1 ? 1 : version == 2 ? 2 : 4);
    const int padding = (p[2] >> 1) & 1;
    if (layer == 1) return (12 * rate / frequenz + padding) * 4;
    return (layer == 3 && !mpeg1 ? 72 : 144) * rate / frequenz + padding;
}

// Ein Frame, dem ein zweiter gültiger Kopf folgt: in Bilddaten kommt das praktisch nie vor.
bool FrameBestätigt(std::string_view b, size_t i) {
    if (!KopfGültig(b, i)) return false;
    const int64_t länge = FrameLänge(b, i);
    return länge > 4 && KopfGültig(b, i + static_cast<size_t>(länge));
}

// Erste Stelle in [von, bis), an der ein Frame beginnt; bis, wenn keine.
template <typename Prüfung> size_t FrameSuchen(std::string_view b, size_t von, size_t bis, Prüfung prüfen) {
    for (size_t i = von; i < bis; ++i) {
        const void* ff = std::memchr(b.data() + i, 0xFF, bis - i);
        if (!ff) return bis;
        i = static_cast<size_t>(static_cast<const char*>(ff) - b.data());
        if (prüfen(b, i)) return i;
    }
    return bis;
}

// --- Rahmen ---
bool KennungGültig(std::string_view id) {
    return std::all_of(id.begin(), id.end(), [](char c) { return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9'); });
}

std::string Rahmen23(std::string_view id, std::string_view flags, std::string_view inhalt) {
    std::string aus;
    aus.reserve(10 + inhalt.size());
    aus.append(id).append(BigEndian4(static_cast<uint32_t>(inhalt.size()))).append(flags).append(inhalt);
    return aus;
}

// PIC: das Bildformat aus drei Zeichen wird zum MIME-Typ von APIC.
std::string PicZuApic(std::string_view inhalt) {
    if (inhalt.size() < 4) return std::string(inhalt);
    std::string format(inhalt.substr(1, 3)), mime;
    if (format == "JPG") mime = "image/jpeg";
    else if (format == "PNG") mime = "image/png";
    else if (format == "-->") mime = "-->";
    else {
        mime = "image/";
        for (char c : format) mime.push_back(static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c));
    }
    return std::string(inhalt.substr(0, 1)) + mime + '\0' + std::string(inhalt.substr(4));
}

std::string Aus22(std::string_view id, std::string_view inhalt) {
    std::string neu(inhalt);
    if (id == "PIC") neu = PicZuApic(inhalt);
    else if (id == "LNK" && inhalt.size() >= 3)
        neu = Kennung22Zu23(inhalt.substr(0, 3)) + std::string(inhalt.substr(3));
    return Rahmen23(Kennung22Zu23(id), std::string(2, '\0'), neu);
}

// 2.4: Flags in ihre 2.3-Stellen, Entsynchronisierung und Datenlängen-Angabe aufgelöst, die
// Zusatzbytes in der Reihenfolge von 2.3.
std::string Aus24(std::string_view id, std::string_view flags, std::string_view inhalt, bool tagEntsynchron) {
    const auto status = static_cast<unsigned char>(flags[0]), format = static_cast<unsigned char>(flags[1]);
    std::string daten = (format & 0x02) || tagEntsynchron ? Entsynchronisieren(inhalt) : std::string(inhalt);
    size_t pos = 0;
    std::string gruppe, verschlüsselung;
    uint32_t länge = 0;
    if ((format & 0x40) && pos < daten.size()) gruppe = daten.substr(pos++, 1);
    if ((format & 0x04) && pos < daten.size()) verschlüsselung = daten.substr(pos++, 1);
    if ((format & 0x01) && pos + 4 <= daten.size())
        länge = ZahlLesen(std::string_view(daten).substr(pos, 4), 7), pos += 4;
    std::string zusatz;
    unsigned char format23 = 0;
    if (format & 0x08) format23 |= 0x80, zusatz += BigEndian4(länge);
    if (!verschlüsselung.empty()) format23 |= 0x40, zusatz += verschlüsselung;
    if (!gruppe.empty()) format23 |= 0x20, zusatz += gruppe;
    const char flags23[2] = {static_cast<char>((status << 1) & 0xE0), static_cast<char>(format23)};
    return Rahmen23(id, std::string_view(flags23, 2), zusatz + daten.substr(pos));
}

// Größe eines 2.4-Rahmens: SyncSafe nach der Norm; manche Programme schreiben sie als
// gewöhnliche Zahl, dann passt nur diese zum nächsten Rahmen.
uint32_t Größe24(std::string_view körper, size_t pos) {
    const std::string_view feld = körper.substr(pos + 4, 4);
    const uint32_t syncSafe = ZahlLesen(feld, 7), gewöhnlich = ZahlLesen(feld, 8);
    if (syncSafe == gewöhnlich) return syncSafe;
    auto passt = [&](uint32_t größe) {
        const size_t nächster = pos + 10 + größe;
        if (nächster == körper.size()) return true;
        if (nächster + 4 > körper.size()) return false;
        return körper[nächster] == '\0' || KennungGültig(körper.substr(nächster, 4));
    };
    if (std::any_of(feld.begin(), feld.end(), [](char c) { return (c & 0x80) != 0; })) return gewöhnlich;
    return !passt(syncSafe) && passt(gewöhnlich) ? gewöhnlich : syncSafe;
}

// Durchläuft die Rahmen von körper; gibt das Ende des letzten vollständigen Rahmens zurück.
size_t RahmenLesen(std::string_view körper, int major, bool tagEntsynchron, Id3v2Bestand& b) {
    const size_t kopf = major == 2 ? 6 : 10, idLänge = major == 2 ? 3 : 4;
    size_t pos = 0;
    while (pos + kopf <= körper.size()) {
        const std::string_view id = körper.substr(pos, idLänge);
        if (id[0] == '\0' || !KennungGültig(id)) break;  // Auffüllung oder kein Rahmen mehr
        const uint32_t größe = major == 2   ? ZahlLesen(körper.substr(pos + 3, 3), 8)
                               : major == 3 ? ZahlLesen(körper.substr(pos + 4, 4), 8)
                                            : Größe24(körper, pos);
        if (größe > körper.size() - pos - kopf) break;  // reicht über den Tag hinaus
        const std::string_view inhalt = körper.substr(pos + kopf, größe);
        if (major == 3) {
            b.rahmen.push_back({std::string(id), körper.substr(pos, kopf + größe)});
        } else {
            b.umgesetzt.push_back(major == 2 ? Aus22(id, inhalt)
                                             : Aus24(id, körper.substr(pos + 8, 2), inhalt, tagEntsynchron));
            b.rahmen.push_back({b.umgesetzt.back().substr(0, 4), b.umgesetzt.back()});
        }
        pos += kopf + größe;
    }
    return pos;
}

// Länge eines erweiterten Kopfes am Anfang von körper; 0, wenn keiner glaubwürdig dasteht.
size_t ErweiterterKopf(std::string_view körper, int major, unsigned char flags) {
    if (!(flags & 0x40) || major == 2 || körper.size() < 10) return 0;
    if (major == 3) {
        const uint32_t n = ZahlLesen(körper.substr(0, 4), 8);
        return n == 6 || n == 10 ? n + 4 : 0;
    }
    const uint32_t n = ZahlLesen(körper.substr(0, 4), 7);
    return n >= 6 && n <= körper.size() ? n : 0;
}
}  // namespace

std::string Kennung22Zu23(std::string_view id22) {
    for (const auto& p : k22Zu23)
        if (id22 == p.alt) return p.neu;
    std::string versuch(1, 'X');  // Versuchsrahmen beginnen mit X
    return versuch.append(id22);
}

void Id3v2BestandLesen(DateiLeser& datei, int64_t position, Id3v2Bestand& b) {
    const int64_t länge = datei.Länge();
    b.anfang = position - 1;
    if (!datei.Offen() || b.anfang < 0 || b.anfang + 10 > länge) return;
    const std::string kopf(datei.Stück(b.anfang, 10));
    if (kopf.size() < 10 || kopf.compare(0, 3, "ID3") != 0) return;
    b.major = kopf[3];
    const auto flags = static_cast<unsigned char>(kopf[5]);
    // Die Norm: 28 Bit SyncSafe, bei 2.4 mit Fußzeile 10 Bytes mehr.
    const int64_t normEnde =
        b.anfang + 10 + ZahlLesen(std::string_view(kopf).substr(6, 4), 7) + (b.major == 4 && (flags & 0x10) ? 10 : 0);
    const int64_t grenze = std::min(normEnde, länge);
    // Etwas über die Grenze hinaus lesen, damit ein Frame dort bestätigt werden kann.
    b.daten = datei.StückKopie(b.anfang, std::min(länge, grenze + 4096) - b.anfang);
    const std::string_view d(b.daten);
    const size_t bis = static_cast<size_t>(std::min<int64_t>(grenze - b.anfang, static_cast<int64_t>(d.size())));

    size_t ende = FrameSuchen(d, 10, bis, FrameBestätigt);
    const bool entsynchron = (flags & 0x80) && b.major < 4;
    std::string_view körper = d.substr(10, ende - 10);
    if (entsynchron) {
        // Entsynchronisierte Daten enthalten kein FF Ex: jeder Frame-Kopf darin gehört zum Ton.
        ende = FrameSuchen(d, 10, ende, KopfGültig);
        b.entsynchron = Entsynchronisieren(d.substr(10, ende - 10));
        körper = b.entsynchron;
    }
    const size_t erweitert = ErweiterterKopf(körper, b.major, flags);
    const size_t rahmenEnde = RahmenLesen(körper.substr(erweitert), b.major, flags & 0x80, b);
    // Hinter den Rahmen steht nur Auffüllung; ein Frame-Kopf dort ist der Anfang des Tons.
    if (!entsynchron) ende = FrameSuchen(d, 10 + erweitert + rahmenEnde, ende, KopfGültig);
    b.ende = b.anfang + static_cast<int64_t>(ende);
    b.plausibel = normEnde <= länge || ende < bis;
}

void Id3v2BestandLesen(const std::string& pfad, int64_t position, Id3v2Bestand& b) {
    DateiLeser datei(pfad);
    Id3v2BestandLesen(datei, position, b);
}
