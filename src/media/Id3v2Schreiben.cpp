#include "media/Id3v2Schreiben.h"

#include "app/BitString.h"
#include "app/FeldTabelle.h"
#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/Tabelle.h"
#include "app/Texte.h"
#include "app/Zahlen.h"
#include "media/Id3v2Lesen.h"
#include "media/MedienInfos.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
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

bool V2FrameAnhängen(const std::string& text, const std::string& id, int32_t& anzahl, EinsBasiert<std::string>& frames,
                     bool immerSchreiben) {
    if (text.empty() && !immerSchreiben) return true;
    if (anzahl + 1 > frames.UBound()) return false;
    const std::string inhalt = Utf8ZuWindows1252(text);
    ++anzahl;
    const auto größe = static_cast<int32_t>(inhalt.size()) + 1;  // mit dem Kodierungsbyte
    frames[anzahl] = Mp3TAGSpeichernV2FrameHeaderZurückgeben(größe, id) + '\0' + inhalt;
    return true;
}

namespace {
// Alle Rahmen in fester Reihenfolge; false, wenn die 19 Plätze nicht reichen.
bool RahmenBauen(const DateiInfo& d, std::string& rahmen) {
    EinsBasiert<std::string> frames(kRahmenPlätze);
    int32_t n = 0;
    auto sprache = [](const std::string& t) { return t.empty() ? t : std::string("eng", 3) + '\0' + t; };
    const struct {
        std::string DateiInfo::*feld;
        bool immer;
    } liste[] = {
        {&DateiInfo::Mp3_ID3v2_PCNT, false}, {&DateiInfo::Mp3_ID3v2_TRCK, false}, {&DateiInfo::Mp3_ID3v2_TENC, false},
        {&DateiInfo::Mp3_ID3v2_WXXX, false}, {&DateiInfo::Mp3_ID3v2_TCOP, false}, {&DateiInfo::Mp3_ID3v2_TOPE, false},
        {&DateiInfo::Mp3_ID3v2_TCOM, false}, {&DateiInfo::Mp3_ID3v2_TCON, false}, {&DateiInfo::Mp3_ID3v2_COMM, false},
        {&DateiInfo::Mp3_ID3v2_TYER, false}, {&DateiInfo::Mp3_ID3v2_TALB, false}, {&DateiInfo::Mp3_ID3v2_TPE1, true},
        {&DateiInfo::Mp3_ID3v2_TIT2, true},  {&DateiInfo::Mp3_ID3v2_TLAN, false}, {&DateiInfo::Mp3_ID3v2_TLEN, false},
        {&DateiInfo::Mp3_ID3v2_TMED, false}, {&DateiInfo::Mp3_ID3v2_TPUB, false}, {&DateiInfo::Mp3_ID3v2_TSSE, false},
        {&DateiInfo::Mp3_ID3v2_PCNT, false},  // ein zweites Mal: beim Lesen gewinnt der letzte
    };
    for (const auto& r : liste) {
        const bool mitSprache = r.feld == &DateiInfo::Mp3_ID3v2_WXXX || r.feld == &DateiInfo::Mp3_ID3v2_COMM;
        const std::string id(DateiFeldVon(r.feld).rahmen23);
        if (!V2FrameAnhängen(mitSprache ? sprache(d.*r.feld) : d.*r.feld, id, n, frames, r.immer)) return false;
    }
    // Die unbekannten Rahmen des Lesers, unverändert (ein einzelnes Leerzeichen heißt: keine).
    if (d.Mp3_ID3v2_Weitere.size() >= 2) {
        if (n + 1 > frames.UBound()) return false;
        frames[++n] = d.Mp3_ID3v2_Weitere;
    }
    rahmen.clear();
    for (int32_t i = 1; i <= n; ++i) rahmen += frames[i];
    return true;
}

std::string KannNichtGelöschtWerden(const std::string& pfad) {
    return "Der ID3v2-TAG konnte nicht gespeichert werden.\nDie Datei '" + pfad + "' konnte nicht gelöscht werden.";
}

// Überschreibt nur die Bytes des alten Tags; misslingt das, kommen die alten Bytes zurück.
bool AnOrtUndStelle(const std::string& pfad, const std::string& vorn, int64_t padding, std::string& fehlertext) {
    int fd = ::open(pfad.c_str(), O_RDWR | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0) {
        fehlertext = TagSpeicherFehlerText("ID3v2", pfad, errno);
        return false;
    }
    const std::string neu = vorn + std::string(static_cast<size_t>(padding), '\0');
    struct stat st {};
    std::string alt(neu.size(), '\0');
    int fehler = 0;
    const ssize_t gelesen = ::fstat(fd, &st) == 0 ? ::pread(fd, alt.data(), alt.size(), 0) : -1;
    if (gelesen < 0) fehler = errno;
    errno = 0;
    if (fehler == 0 && ::pwrite(fd, neu.data(), neu.size(), 0) != static_cast<ssize_t>(neu.size())) {
        fehler = errno != 0 ? errno : ENOSPC;
        alt.resize(static_cast<size_t>(gelesen));
        (void)!::pwrite(fd, alt.data(), alt.size(), 0);
        (void)!::ftruncate(fd, st.st_size);
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
    std::string rahmen;
    if (!RahmenBauen(info, rahmen) || rahmen.size() > std::numeric_limits<int32_t>::max() / 2) {
        fehlertext = "Der ID3v2-TAG der Datei '" + dateiname + "' konnte nicht gespeichert werden.\n" +
                     FehlerBeschreibung(9) + " (Fehler 9).";
        return false;
    }
    const auto summe = static_cast<int64_t>(rahmen.size());

    DateiInfo alt;
    const bool gefunden = Mp3TAGLesenV2(dateiname, alt, k.E.TAGsBytesSuchen);
    const int64_t altGröße = alt.Mp3_ID3v2_TAGGröße;
    // Ein Tag, der nicht am ersten Byte steht, wird nie überschrieben, auch wenn der neue passte.
    const bool neuSchreiben = !gefunden || altGröße < 0 || summe + 10 > altGröße || alt.Mp3_ID3v2_TAGPosition >= 2;
    const bool altEntfernen = neuSchreiben && gefunden && altGröße >= 0;

    const double anteil = (summe + 10) * double(k.E.TAGsProzentHinzufügen) / 100;
    int64_t padding = neuSchreiben ? static_cast<int64_t>(RundenGerade(anteil)) : altGröße - (summe + 10);
    padding = std::clamp<int64_t>(padding, 0, std::numeric_limits<int32_t>::max() / 2);  // nie ein Kopf, der lügt
    const std::string vorn = Mp3TAGSpeichernV2TAGHeaderZurückgeben(static_cast<int32_t>(padding + summe)) + rahmen;
    if (!neuSchreiben) return AnOrtUndStelle(dateiname, vorn, padding, fehlertext);

    DateiRest rest{dateiname, {{0, DateiGrößeLesen(dateiname)}}};
    if (altEntfernen && !TAGEntfernenV2(k, dateiname, eintrag, true, rest)) {
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
// Was ohne den Tag bleibt: davor (ab Stelle 2) und dahinter.
DateiRest RestOhneTag(const std::string& pfad, int64_t länge, int64_t position, int64_t größe) {
    auto bereich = [&](int64_t von, int64_t bis) {
        von = std::clamp<int64_t>(von, 0, länge);
        bis = std::clamp<int64_t>(bis, von, länge);
        return DateiBereich{von, bis - von};
    };
    DateiRest rest{pfad, {}};
    if (position < 2) {
        rest.bereiche.push_back(bereich(größe, länge));
    } else {
        rest.bereiche.push_back(bereich(0, position - 1));
        rest.bereiche.push_back(bereich(position - 1 + größe, länge));
    }
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
    const std::string neu = dateiname + "-neu";
    if (DoesExist(neu) && !DateiLöschenErzwingen(neu)) {
        k.ui.MeldungZeigen("Der ID3v2-TAG konnte nicht entfernt werden.\nDie Datei '" + neu +
                               "' konnte nicht erstellt werden.",
                           Meldung::Ausrufezeichen);
        return false;
    }
    rest = RestOhneTag(dateiname, DateiGrößeLesen(dateiname), datensatz.Mp3_ID3v2_TAGPosition,
                       datensatz.Mp3_ID3v2_TAGGröße);
    if (nurZurückgeben) return true;

    const auto e = DateiNeuSchreiben(dateiname, neu, {}, 0, rest);
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
