#include "media/Id3v2Schreiben.h"

#include "app/BitString.h"
#include "app/FeldTabelle.h"
#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/Tabelle.h"
#include "app/Texte.h"
#include "app/Zahlen.h"
#include "media/Id3v2Bestand.h"
#include "media/Id3v2Lesen.h"
#include "media/Id3v2Text.h"
#include "media/MedienInfos.h"

#include <algorithm>
#include <cerrno>
#include <deque>
#include <fcntl.h>
#include <limits>
#include <unistd.h>

namespace {
constexpr int32_t kRahmenPlätze = 19;

// Vier Bytes aus 32 Bittext-Zeichen, je acht über BitStringZuLong.
std::string VierBytes(const std::string& bits) {
    std::string aus;
    for (int i = 0; i < 4; ++i)
        aus.push_back(static_cast<char>(BitStringZuLong(std::string_view(bits).substr(i * 8, 8))));
    return aus;
}
}  // namespace

std::string Mp3TAGSpeichernV2TAGHeaderZurückgeben(int32_t größe) {
    // Vor jeden 7-Bit-Lauf (von unten gezählt) kommt eine "0"; die obersten vier Zeichen fallen weg.
    const std::string bits = ZahlZuBitString(größe, 4);
    std::string syncSafe = bits.substr(0, 4);
    for (int lauf = 0; lauf < 4; ++lauf) syncSafe.append("0").append(bits, 4 + lauf * 7, 7);
    return std::string("ID3\x03\x00\x00", 6) + VierBytes(syncSafe.substr(4));
}

std::string Mp3TAGSpeichernV2FrameHeaderZurückgeben(int32_t größe, const std::string& id) {
    return id + VierBytes(ZahlZuBitString(größe, 4)) + std::string(2, '\0');
}

namespace {
// Ein neuer Rahmen aus dem Text eines Feldes. Ein Kommentar behält Sprache und Beschreibung des
// alten Rahmens; WXXX bleibt in der festen Form "eng" NUL Adresse.
std::string NeuerRahmen(const std::string& id, const std::string& text, const BestandRahmen* alt) {
    std::string inhalt;
    if (id == "WXXX") {
        inhalt = std::string(1, '\0') + "eng" + '\0' + Utf8ZuWindows1252(text);
    } else if (id == "COMM") {
        std::string sprache = "eng", beschreibung;
        if (const auto teile = alt ? KommentarZerlegen(alt->Inhalt()) : std::nullopt) {
            sprache = teile->sprache;
            beschreibung = KodiertZuUtf8(teile->beschreibung, teile->kodierung);
        }
        const int k = KodierungWählen(text, beschreibung);
        inhalt = static_cast<char>(k) + sprache + TextKodieren(beschreibung, k, true) + TextKodieren(text, k, false);
    } else {
        const int k = KodierungWählen(text);
        inhalt = static_cast<char>(k) + TextKodieren(text, k, false);
    }
    return Mp3TAGSpeichernV2FrameHeaderZurückgeben(static_cast<int32_t>(inhalt.size()), id) + inhalt;
}

struct FeldRahmen {
    KText DateiInfo::*feld;
    bool immer;
    std::string Id() const { return std::string(DateiFeldVon(feld).rahmen23); }
};
const FeldRahmen kFeldRahmen[] = {
    {&DateiInfo::Mp3_ID3v2_PCNT, false}, {&DateiInfo::Mp3_ID3v2_TRCK, false}, {&DateiInfo::Mp3_ID3v2_TENC, false},
    {&DateiInfo::Mp3_ID3v2_WXXX, false}, {&DateiInfo::Mp3_ID3v2_TCOP, false}, {&DateiInfo::Mp3_ID3v2_TOPE, false},
    {&DateiInfo::Mp3_ID3v2_TCOM, false}, {&DateiInfo::Mp3_ID3v2_TCON, false}, {&DateiInfo::Mp3_ID3v2_COMM, false},
    {&DateiInfo::Mp3_ID3v2_TYER, false}, {&DateiInfo::Mp3_ID3v2_TALB, false}, {&DateiInfo::Mp3_ID3v2_TPE1, true},
    {&DateiInfo::Mp3_ID3v2_TIT2, true},  {&DateiInfo::Mp3_ID3v2_TLAN, false}, {&DateiInfo::Mp3_ID3v2_TLEN, false},
    {&DateiInfo::Mp3_ID3v2_TMED, false}, {&DateiInfo::Mp3_ID3v2_TPUB, false}, {&DateiInfo::Mp3_ID3v2_TSSE, false},
};

// Die Kennungen der Tabelle, einmal nachgeschlagen.
const std::vector<std::string>& FeldKennungen() {
    static const std::vector<std::string> ids = [] {
        std::vector<std::string> v;
        for (const auto& f : kFeldRahmen) v.push_back(f.Id());
        return v;
    }();
    return ids;
}

bool IstFeldRahmen(const std::string& id) {
    const auto& ids = FeldKennungen();
    return std::find(ids.begin(), ids.end(), id) != ids.end();
}

// Der neue Tag als Folge von Stücken: neue Rahmen liegen hier, unveränderte bleiben Ansichten in
// den alten Tag, damit ein großes Bild nicht kopiert wird.
struct NeueRahmen {
    std::deque<std::string> eigen;
    std::vector<std::string_view> teile;
    int64_t größe = 0;
    void Anhängen(std::string_view t) {
        teile.push_back(t);
        größe += static_cast<int64_t>(t.size());
    }
    void Eigen(std::string t) {
        eigen.push_back(std::move(t));
        Anhängen(eigen.back());
    }
    std::string Zusammen() const {
        std::string aus;
        aus.reserve(static_cast<size_t>(größe));
        for (auto t : teile) aus.append(t);
        return aus;
    }
};

// Alle Rahmen in fester Reihenfolge; false, wenn die 19 Plätze nicht reichen. Mit einem alten
// Tag (bestand) bleiben die Rahmen eines Feldes, das sich gegenüber dem Gelesenen (gelesen)
// nicht geändert hat, Byte für Byte; von einem geänderten wird nur der letzte ersetzt, den der
// Leser zeigt. Alle übrigen Rahmen des alten Tags folgen unverändert.
bool RahmenBauen(const DateiInfo& d, const DateiInfo* gelesen, const Id3v2Bestand* bestand, NeueRahmen& rahmen) {
    int32_t plätze = 0;
    std::string zähler;  // ein neuer Zähler steht ein zweites Mal am Ende der Liste
    for (size_t nr = 0; nr < std::size(kFeldRahmen); ++nr) {
        const FeldRahmen& f = kFeldRahmen[nr];
        const std::string& id = FeldKennungen()[nr];
        std::vector<const BestandRahmen*> alte;
        if (bestand)
            for (const auto& r : bestand->rahmen)
                if (r.id == id) alte.push_back(&r);
        const std::string& wert = d.*f.feld;
        if (gelesen && (*gelesen).*f.feld == wert && !alte.empty()) {
            for (const auto* r : alte) rahmen.Anhängen(r->bytes);
            ++plätze;
            continue;
        }
        for (size_t i = 0; i + 1 < alte.size(); ++i) rahmen.Anhängen(alte[i]->bytes);
        if (wert.empty() && !f.immer) continue;
        std::string neu = NeuerRahmen(id, wert, alte.empty() ? nullptr : alte.back());
        if (f.feld == &DateiInfo::Mp3_ID3v2_PCNT) zähler = neu;
        rahmen.Eigen(std::move(neu));
        ++plätze;
    }
    if (!zähler.empty()) rahmen.Eigen(zähler), ++plätze;
    // Die übrigen Rahmen: aus dem alten Tag, sonst die des Lesers (ein einzelnes Leerzeichen heißt: keine).
    std::vector<std::string_view> weitere;
    if (bestand) {
        for (const auto& r : bestand->rahmen)
            if (!IstFeldRahmen(r.id)) weitere.push_back(r.bytes);
    } else if (d.Mp3_ID3v2_Weitere.size() >= 2) {
        weitere.push_back(d.Mp3_ID3v2_Weitere);
    }
    if (!weitere.empty() && plätze >= kRahmenPlätze) return false;
    for (auto w : weitere) rahmen.Anhängen(w);
    return true;
}

std::string KannNichtGelöschtWerden(const std::string& pfad) {
    return "Der ID3v2-TAG konnte nicht gespeichert werden.\nDie Datei '" + pfad + "' konnte nicht gelöscht werden.";
}

// Erste Stelle, an der sich der neue Tag (Stücke, dann nullen NUL-Bytes) vom alten unterscheidet,
// von vorn oder (rückwärts) von hinten gezählt; die Länge, wenn keine.
size_t ErsterUnterschied(std::vector<std::string_view> teile, std::string_view alt, bool rückwärts) {
    const std::string nullen(std::min<size_t>(alt.size(), 4096), '\0');
    size_t gesamt = 0;
    for (auto t : teile) gesamt += t.size();
    if (gesamt > alt.size()) return 0;  // passt nicht: an Ort und Stelle gibt es das nicht
    for (size_t rest = alt.size() - std::min(gesamt, alt.size()); rest > 0; rest -= std::min(rest, nullen.size()))
        teile.emplace_back(nullen.data(), std::min(rest, nullen.size()));
    if (rückwärts) std::reverse(teile.begin(), teile.end());
    size_t pos = 0;
    for (auto t : teile) {
        const std::string_view gegen = alt.substr(rückwärts ? alt.size() - pos - t.size() : pos, t.size());
        if (t != gegen) {  // erst das ganze Stück auf einmal, dann Byte für Byte
            size_t n = 0;
            while (rückwärts ? t[t.size() - 1 - n] == gegen[t.size() - 1 - n] : t[n] == gegen[n]) ++n;
            return pos + n;
        }
        pos += t.size();
    }
    return alt.size();
}

// Überschreibt nur die Bytes des alten Tags, und von ihnen nur die, die sich ändern (ein großes
// Bild bleibt dann liegen); misslingt das, kommen die alten Bytes zurück.
bool AnOrtUndStelle(const std::string& pfad, const std::vector<std::string_view>& teile, std::string_view alt,
                    std::string& fehlertext) {
    const size_t von = ErsterUnterschied(teile, alt, false);
    if (von == alt.size()) return true;
    const size_t bis = alt.size() - ErsterUnterschied(teile, alt, true);
    std::string neu;  // die Bytes [von, bis) des neuen Tags
    size_t pos = 0;
    for (auto t : teile) {
        if (pos + t.size() > von && pos < bis)
            neu.append(t.substr(von > pos ? von - pos : 0, std::min(bis, pos + t.size()) - std::max(von, pos)));
        pos += t.size();
    }
    neu.resize(bis - von, '\0');  // dahinter Auffüllung
    int fd = ::open(pfad.c_str(), O_RDWR | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0) {
        fehlertext = TagSpeicherFehlerText("ID3v2", pfad, errno);
        return false;
    }
    int fehler = 0;
    errno = 0;
    if (::pwrite(fd, neu.data(), neu.size(), static_cast<off_t>(von)) != static_cast<ssize_t>(neu.size())) {
        fehler = errno != 0 ? errno : ENOSPC;
        (void)!::pwrite(fd, alt.data() + von, bis - von, static_cast<off_t>(von));
    }
    if (::close(fd) != 0 && fehler == 0) fehler = errno;
    if (fehler != 0) fehlertext = TagSpeicherFehlerText("ID3v2", pfad, fehler);
    return fehler == 0;
}

bool Neuschreiben(const std::string& pfad, const std::string& vorn, int64_t padding, const DateiRest& rest,
                  std::string& fehlertext) {
    int fehler = 0;
    // Eine schreibgeschützte Datei bleibt, wie sie ist, auch wenn der Ordner das Ersetzen erlaubte.
    if (!DateiBeschreibbar(pfad, fehler)) {
        fehlertext = TagSpeicherFehlerText("ID3v2", pfad, fehler);
        return false;
    }
    const std::string neu = pfad + "-neu";
    if (DoesExist(neu)) DateiLöschenErzwingen(neu);
    const auto e = DateiNeuSchreiben(pfad, neu, vorn, padding, rest);
    const bool zugriff = e.systemFehler == EACCES || e.systemFehler == EPERM || e.systemFehler == EROFS;
    switch (e.schritt) {
    case NeuSchreibenSchritt::Fertig: return true;
    case NeuSchreibenSchritt::Anlegen:
        fehlertext = zugriff ? KannNichtGelöschtWerden(pfad) : TagSpeicherFehlerText("ID3v2", pfad, e.systemFehler);
        return false;
    case NeuSchreibenSchritt::Schreiben:
        fehlertext = TagSpeicherFehlerText("ID3v2", pfad, e.systemFehler);
        return false;
    case NeuSchreibenSchritt::Ersetzen:
        ::unlink(e.neuPfad.c_str());
        fehlertext = KannNichtGelöschtWerden(pfad);
        return false;
    }
    return false;
}
}  // namespace

bool MP3TagSpeichernV2Datei(Kartei& k, const std::string& dateiname, std::string& fehlertext, const DateiInfo& info,
                            int32_t eintrag) {
    if (!DoesExist(dateiname)) {
        fehlertext =
            "Die ID3v2-TAG der Datei '" + dateiname + "' konnte nicht gespeichert werden.\nDie Datei existiert nicht.";
        return false;
    }
    DateiInfo alt;
    const bool gefunden = Mp3TAGLesenV2(dateiname, alt, k.E.TAGsBytesSuchen) && alt.Mp3_ID3v2_TAGGröße >= 0;
    // Gearbeitet wird mit der wahren Ausdehnung des alten Tags, nicht mit der gelesenen Größe.
    Id3v2Bestand bestand;
    if (gefunden) Id3v2BestandLesen(dateiname, alt.Mp3_ID3v2_TAGPosition, bestand);
    if (gefunden && !bestand.plausibel) {
        fehlertext = "Der ID3v2-TAG konnte nicht gespeichert werden.\nDer ID3v2-TAG der Datei '" + dateiname +
                     "' konnte nicht entfernt werden.\n" + kTagGrößeUnplausibel;
        return false;
    }
    NeueRahmen rahmen;
    if (!RahmenBauen(info, gefunden ? &alt : nullptr, gefunden ? &bestand : nullptr, rahmen) ||
        rahmen.größe > std::numeric_limits<int32_t>::max() / 2) {
        fehlertext = "Der ID3v2-TAG der Datei '" + dateiname + "' konnte nicht gespeichert werden.\n" +
                     FehlerBeschreibung(9) + " (Fehler 9).";
        return false;
    }
    const int64_t summe = rahmen.größe;
    const int64_t altGröße = bestand.ende - bestand.anfang;
    // Ein Tag, der nicht am ersten Byte steht, wird nie überschrieben, auch wenn der neue passte.
    const bool neuSchreiben = !gefunden || summe + 10 > altGröße || bestand.anfang > 0;

    const double anteil = (summe + 10) * double(k.E.TAGsProzentHinzufügen) / 100;
    int64_t padding = neuSchreiben ? static_cast<int64_t>(RundenGerade(anteil)) : altGröße - (summe + 10);
    padding = std::clamp<int64_t>(padding, 0, std::numeric_limits<int32_t>::max() / 2);  // nie ein Kopf, der lügt
    const std::string kopf = Mp3TAGSpeichernV2TAGHeaderZurückgeben(static_cast<int32_t>(padding + summe));
    if (!neuSchreiben) {
        rahmen.teile.insert(rahmen.teile.begin(), kopf);
        return AnOrtUndStelle(dateiname, rahmen.teile, bestand.AlteBytes(), fehlertext);
    }
    const std::string vorn = kopf + rahmen.Zusammen();

    DateiRest rest{dateiname, {{0, DateiGrößeLesen(dateiname)}}};
    if (gefunden && !TAGEntfernenV2(k, dateiname, eintrag, true, rest)) {
        fehlertext = "Der ID3v2-TAG konnte nicht gespeichert werden.\nDer ID3v2-TAG der Datei '" + dateiname +
                     "' konnte nicht entfernt werden.";
        return false;
    }
    return Neuschreiben(dateiname, vorn, padding, rest, fehlertext);
}

bool MP3TagSpeichernV2(Kartei& k, int32_t index, std::string& fehlertext, const DateiInfo& info) {
    const int32_t eintrag = ListenEintrag(k, index);
    return MP3TagSpeichernV2Datei(k, EintragPfad(k, eintrag), fehlertext, info, eintrag);
}

namespace {
// Was ohne den Tag bleibt: davor und dahinter.
DateiRest RestOhneTag(const std::string& pfad, int64_t länge, const Id3v2Bestand& tag) {
    DateiRest rest{pfad, {}};
    if (tag.anfang > 0) rest.bereiche.push_back({0, tag.anfang});
    rest.bereiche.push_back({tag.ende, std::max<int64_t>(länge - tag.ende, 0)});
    return rest;
}

}  // namespace

bool TAGEntfernenV2(Kartei& k, const std::string& dateiname, int32_t eintrag, bool nurZurückgeben, DateiRest& rest,
                    DateiInfo* arbeitsdaten, const std::function<void()>& vorHinweis) {
    const std::string kannNicht = "Der ID3v2-TAG der Datei '" + dateiname + "' kann nicht entfernt werden.\n";
    if (!DoesExist(dateiname)) {
        if (vorHinweis) vorHinweis();
        k.ui.MeldungZeigen(kannNicht + "Die Datei existiert nicht.", Meldung::Information);
        return false;
    }
    DateiInfo ohneEintrag;
    DateiInfo& datensatz = k.DateiDaten.GültigerIndex(eintrag) ? k.DateiDaten[eintrag] : ohneEintrag;
    datensatz = MedienInfosLesen(k, dateiname, datensatz, "01", false, "0", "0");
    // Es zählt allein die Größe, nicht der Status.
    if (datensatz.Mp3_ID3v2_TAGGröße < 1) {
        k.ui.MeldungZeigen(kannNicht + "Diese enthält keinen ID3v2-TAG.", Meldung::Information);
        return false;
    }
    Id3v2Bestand tag;
    Id3v2BestandLesen(dateiname, datensatz.Mp3_ID3v2_TAGPosition, tag);
    if (!tag.plausibel) {
        k.ui.MeldungZeigen(kannNicht + kTagGrößeUnplausibel, Meldung::Ausrufezeichen);
        return false;
    }
    const std::string neu = dateiname + "-neu";
    if (DoesExist(neu) && !DateiLöschenErzwingen(neu)) {
        k.ui.MeldungZeigen("Der ID3v2-TAG konnte nicht entfernt werden.\nDie Datei '" + neu +
                               "' konnte nicht erstellt werden.",
                           Meldung::Ausrufezeichen);
        return false;
    }
    rest = RestOhneTag(dateiname, DateiGrößeLesen(dateiname), tag);
    if (nurZurückgeben) return true;

    // Eine schreibgeschützte Datei bleibt, wie sie ist, auch wenn der Ordner das Ersetzen erlaubte.
    const auto e = DateiBeschreibbarNeuSchreiben(dateiname, neu, rest);
    if (!TagEntfernenErgebnisMelden(k, "ID3v2", dateiname, e)) return false;
    const DateiInfo& basis = arbeitsdaten ? *arbeitsdaten : datensatz;
    DateiInfo aufgefrischt = MedienInfosLesen(k, dateiname, basis, "01", false, "1", "0");
    if (arbeitsdaten) *arbeitsdaten = aufgefrischt;
    if (k.DateiDaten.GültigerIndex(eintrag)) {
        k.DateiDaten[eintrag] = aufgefrischt;
        DateiGeändertSetzen(k);
    }
    return true;
}
