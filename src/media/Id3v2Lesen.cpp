#include "media/Id3v2Lesen.h"

#include "app/BitString.h"
#include "app/FeldTabelle.h"
#include "app/Trace.h"
#include "media/DateiLeser.h"
#include "media/Id3v2Text.h"

#include <algorithm>

bool Mp3TAGLesenV2GrößeLesen(std::string_view bytes, int32_t& größe, bool nichtSyncSafe) {
    größe = 0;
    if (bytes.size() < 3) return false;
    bool syncSafe = !nichtSyncSafe;
    if (!nichtSyncSafe && std::any_of(bytes.begin(), bytes.end(), [](char c) { return (c & 0x80) != 0; })) {
        syncSafe = false;  // eine Größe mit hohem Bit wird als gewöhnliche Zahl gelesen
        KK_TRACE("Mp3TAGLesenV2GrößeLesen", "Fehler im TAG - SyncSafe auf 'False' gesetzt");
    }
    // Der Bittext; die Gruppen reichen nie über Zeichen 32 hinaus, also genügen vier Bytes.
    std::string s = syncSafe ? "0000" : "";
    for (size_t i = 0; i < std::min<size_t>(bytes.size(), 4); ++i) {
        const std::string acht = ZahlZuBitString(static_cast<unsigned char>(bytes[i]), 1);
        s += syncSafe ? acht.substr(1) : acht;
    }
    auto gruppe = [&](size_t start) {  // Zeichen start bis start+7 (ab 1), fehlende zählen 0
        return start - 1 < s.size() ? BitStringZuDouble(std::string_view(s).substr(start - 1, 8)) : 0.0;
    };
    const double wert = bytes.size() == 4 ? gruppe(1) * 16384 + gruppe(9) * 2048 + gruppe(17) * 256 + gruppe(25)
                                          : gruppe(9) * 2048 + gruppe(17) * 256 + gruppe(25);
    größe = static_cast<int32_t>(wert);
    return true;
}

namespace {
void Zurücksetzen(DateiInfo& info) {
    info.Mp3_ID3v2_Status = 2;
    for (const DateiFeld& f : DateiFeldTabelle)
        if (!f.rahmen23.empty()) f.Text(info).clear();
    info.Mp3_ID3v2_Weitere.clear();
    info.Mp3_ID3v2_TAGGröße = -1;
    info.Mp3_ID3v2_TAGPosition = -1;
    info.Mp3_ID3v2_Benutzt = 0;
    info.Mp3_ID3v2_Version.clear();
}

// Bytes [von, bis) der Datei; der Anfang bleibt gepuffert, Entferntes kommt als eigenes Stück.
std::string_view Bereich(DateiLeser& datei, int64_t von, int64_t bis) {
    if (bis <= von) return {};
    if (bis > 262144) return datei.Stück(von, bis - von);
    const std::string_view anfang = datei.Anfang(bis);  // kürzer, wenn die Datei schrumpfte
    return von < static_cast<int64_t>(anfang.size()) ? anfang.substr(static_cast<size_t>(von)) : std::string_view();
}

// Erste 1-basierte Stelle von "ID3" in den ersten n Bytes; 0 = keine. Erst im gepufferten
// Anfang, dann in Blöcken, damit eine große Datei nie ganz im Speicher liegt.
int64_t Id3Suchen(DateiLeser& datei, int64_t n) {
    for (int64_t von = 0, schritt = 16384;; schritt = std::min<int64_t>(schritt * 4, 1 << 20)) {
        const int64_t bis = std::min(n, von + schritt);
        std::string_view b = Bereich(datei, von, bis);
        const auto fund = b.find("ID3");
        if (fund != std::string_view::npos) return von + static_cast<int64_t>(fund) + 1;
        if (bis >= n || static_cast<int64_t>(b.size()) < bis - von) return 0;
        von = bis - 2;  // ein Fund über die Blockgrenze hinweg
    }
}

struct Durchlauf {
    DateiInfo& info;
    bool v22;
    int64_t zähler;  // gelesene Bytes des Tags, Kopf eingeschlossen
};

// Ein Rahmen; false, wenn der Durchlauf endet. rest rückt hinter den Rahmen.
bool RahmenLesen(Durchlauf& d, std::string_view& rest) {
    const size_t idLänge = d.v22 ? 3 : 4, kopfLänge = d.v22 ? 6 : 10;
    const std::string_view id = rest.substr(0, idLänge);
    if (rest.substr(0, 3) == "3DI") return false;  // Fußzeile
    if (rest.size() < kopfLänge + 1) return false;
    int32_t größe = 0;
    Mp3TAGLesenV2GrößeLesen(rest.substr(idLänge, idLänge), größe, true);
    if (rest[idLänge] != '\0') KK_TRACE("Mp3TAGLesenV2", "Ein TAG-Feld ist sehr groß - ");
    const std::string_view inhalt = rest.substr(kopfLänge, static_cast<size_t>(größe));

    if (const DateiFeld* feld = DateiFeldFürRahmen(id, d.v22)) {
        const auto art = id == "WXXX"                  ? RahmenArt::Wxxx
                         : id == "COMM" || id == "COM" ? RahmenArt::Kommentar
                                                       : RahmenArt::Text;
        feld->Text(d.info) = RahmenTextLesen(inhalt, größe, art);
    } else if (std::all_of(id.begin(), id.end(), [&](char c) { return c == id[0]; })) {
        d.info.Mp3_ID3v2_Benutzt = static_cast<int32_t>(d.zähler);  // Auffüllung beginnt
        return false;
    } else if (const auto c = static_cast<unsigned char>(id[0]); c < 65 || c >= 123) {
        KK_TRACE("Mp3TAGLesenV2", "Fehlerhaften Frame-Namen '");  // nur das erste Zeichen zählt
    } else if (d.v22) {
        d.info.Mp3_ID3v2_Weitere.assign(1, ' ');  // 2.2: nur vermerken, dass es weitere gibt
    } else {
        d.info.Mp3_ID3v2_Weitere += rest.substr(0, static_cast<size_t>(größe) + kopfLänge);
    }
    d.zähler += größe + static_cast<int64_t>(kopfLänge);
    rest = rest.substr(std::min(rest.size(), static_cast<size_t>(größe) + kopfLänge));
    return !rest.empty();
}
}  // namespace

bool Mp3TAGLesenV2(DateiLeser& datei, DateiInfo& info, int32_t bytesSuchen) {
    Zurücksetzen(info);
    if (!datei.Offen()) return false;
    const int64_t länge = datei.Länge();
    const int64_t n = bytesSuchen > 0 ? std::min<int64_t>(bytesSuchen, länge) : länge;
    const int64_t p = Id3Suchen(datei, n);
    if (p == 0) return false;

    // Kopf aus dem gelesenen Block: was hinter n läge, fehlt.
    const std::string kopf(Bereich(datei, p - 1, std::min(n, p + 9)));
    if (kopf.size() < 5 || kopf[3] < 2 || kopf[3] > 4) {
        KK_TRACE("Mp3TAGLesenV2", "Falsche Version (Nicht 2.2 - 2.4) - '");
        return false;
    }
    const int major = kopf[3];
    info.Mp3_ID3v2_Version = "2." + std::to_string(major) + "." + std::to_string(static_cast<unsigned char>(kopf[4]));
    int32_t größe = 0;
    Mp3TAGLesenV2GrößeLesen(kopf.size() > 6 ? std::string_view(kopf).substr(6) : "", größe, false);
    if (kopf.size() > 6 && kopf[6] != '\0') KK_TRACE("Mp3TAGLesenV2", "ID3v2-TAG ist zu groß - ");
    info.Mp3_ID3v2_TAGGröße = größe + 10;
    info.Mp3_ID3v2_TAGPosition = static_cast<int32_t>(p);
    info.Mp3_ID3v2_Benutzt = 0;

    // Reicht der Block nicht, wird neu gelesen (gemessen an größe + 20, nicht an p).
    const int64_t gelesen = (n < länge && n < größe + 20) ? std::min(länge, p + größe + 20) : n;
    std::string_view fenster = Bereich(datei, p - 1, std::min(gelesen, p - 1 + größe + 20));

    const auto flags = fenster.size() >= 6 ? static_cast<unsigned char>(fenster[5]) : 0;
    int64_t zähler = 10;
    if (flags & 0x10) {  // Fußzeile: das Fenster bleibt, wie es ist
        info.Mp3_ID3v2_TAGGröße += 10;
        zähler = 20;
    } else {
        fenster = fenster.substr(0, static_cast<size_t>(größe) + 10);
    }
    // Jedes gesetzte Flag gilt als erweiterter Kopf von 10 Bytes; seine Größe wird nicht gelesen.
    const size_t anfang = flags == 0 ? 10 : 20;
    if (flags != 0) zähler += 10;
    std::string_view rest = fenster.substr(std::min(anfang, fenster.size()));

    Durchlauf d{info, major == 2, zähler};
    while (RahmenLesen(d, rest)) {}
    info.Mp3_ID3v2_Status = 1;
    return true;
}

bool Mp3TAGLesenV2(const std::string& dateiname, DateiInfo& info, int32_t bytesSuchen) {
    DateiLeser datei(dateiname);
    return Mp3TAGLesenV2(datei, info, bytesSuchen);
}
