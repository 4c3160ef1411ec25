// Aktionen der Indexverwaltung setzen, zählen und bestätigen lassen.
#include "reports/Aufraeumen.h"

#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/Zahlen.h"
#include "player/Abspielen.h"

const std::vector<std::string>& AktionenTexte() {
    static const std::vector<std::string> texte = {"Keine Aktion", "Datei löschen", "Datei in Papierkorb",
                                                   "Datei aus Index entfernen",
                                                   "Datei ersetzen durch leere Datei mit anderer Endung"};
    return texte;
}

void AufräumenBeginnen(const Kartei& k, Aufräumen& a, int16_t methode, std::vector<DuplikatTreffer> treffer) {
    a.Suchmethode = methode;
    a.treffer = std::move(treffer);
    a.GefundenAktionen.assign(size_t(std::max(0, k.DateiAnzahl)) + 1, Aktion::Keine);
}

void AktionSetzen(Aufräumen& a, const std::vector<int32_t>& zeilen, bool zweite, int32_t code) {
    if (code < 0 || code >= Aktion::Anzahl) return;
    for (const int32_t z : zeilen) {
        if (z < 0 || size_t(z) >= a.treffer.size()) continue;
        const int32_t p = zweite ? a.treffer[size_t(z)].datei2 : a.treffer[size_t(z)].datei1;
        if (p >= 1 && size_t(p) < a.GefundenAktionen.size()) a.GefundenAktionen[size_t(p)] = code;
    }
}

std::array<int32_t, Aktion::Anzahl> AktionenZählen(const Aufräumen& a) {
    std::array<int32_t, Aktion::Anzahl> zahl{};
    for (size_t p = 1; p < a.GefundenAktionen.size(); ++p) ++zahl[size_t(a.GefundenAktionen[p])];
    return zahl;
}

bool AktionenBestätigen(Kartei& k, const Aufräumen& a) {
    const auto zahl = AktionenZählen(a);
    if (zahl[1] + zahl[2] + zahl[3] + zahl[4] < 1) {
        k.ui.MeldungZeigen("Bitte wählen Sie eine Aktion für mindestens eine gefundene Datei.", Meldung::Information);
        return false;
    }
    static const char* const worte[] = {
        "", " Datei(en) löschen und aus dem Index entfernen",
        // "Papierkob" steht so im Programm.
        " Datei(en) in den Papierkob verschieben und aus dem Index entfernen",
        " Datei(en) aus dem Index entfernen, ohne diese zu löschen",
        " Datei(en) durch eine leere Datei mit anderer Datei-Endung ersetzen und aus dem Index entfernen"};
    std::string text = "Sie haben folgende Aktionen gewählt:\n";
    for (size_t code = 1; code < Aktion::Anzahl; ++code)
        text += " - " + std::to_string(zahl[code]) + worte[code] + "\n";
    text += "\nMöchten Sie diese Aktionen durchführen?";
    return k.ui.MeldungZeigen(text, Meldung::JaNeinFrage) == Meldung::Ja;
}

std::string GrößeFormat(int64_t bytes) {
    // "##,##" hat keine Pflichtziffer: eine Null bleibt leer.
    if (bytes == 0) return {};
    std::string text;
    TausenderFormatAnhängen(text, bytes);
    return text;
}

namespace {
// Was die beiden Dateien einer Zeile nach der Methode gemeinsam haben (bei einzelnen Dateien
// die gespeicherte Größe).
void GleichesSetzen(const Kartei& k, int16_t methode, int32_t p, TrefferDetails& d) {
    const DateiInfo& x = k.DateiDaten[p];
    switch (methode) {
    case Suchmethode::Dateiname:
        d.gleichÜberschrift = "Gleicher Dateiname:";
        d.gleich = PfadText(DateinameAusPfadSicht(k.DateiPfade[p]));
        break;
    case Suchmethode::PfadUndDateiname:
        d.gleichÜberschrift = "Gleicher Pfad- und Dateiname:";
        d.gleich = PfadText(k.DateiPfade[p]);
        break;
    case Suchmethode::Id3v1Felder:
        d.gleichÜberschrift = "Gleiche ID3v1-TAG-Felder <Interpret> - <Titel>:";
        d.gleich = std::string(x.Mp3_ID3v1_Interpret) + " - " + std::string(x.Mp3_ID3v1_Titel);
        break;
    case Suchmethode::Id3v2Felder:
        d.gleichÜberschrift = "Gleiche ID3v2-TAG-Felder <Interpret> - <Titel>:";
        d.gleich = std::string(x.Mp3_ID3v2_TPE1) + " - " + std::string(x.Mp3_ID3v2_TIT2);
        break;
    default:
        d.gleichÜberschrift =
            methode == Suchmethode::Dateigröße ? "Gleiche Dateigröße (Bytes):" : "Dateigröße (Bytes):";
        d.gleich = GrößeFormat(x.Datei_Größe);
    }
}

bool Position(const Kartei& k, int32_t p) { return p >= 1 && p <= k.DateiAnzahl; }
}  // namespace

int32_t TrefferDatei(const Kartei& k, const Aufräumen& a, int32_t zeile, bool zweite) {
    if (zeile < 0 || size_t(zeile) >= a.treffer.size()) return 0;
    const int32_t p = zweite ? a.treffer[size_t(zeile)].datei2 : a.treffer[size_t(zeile)].datei1;
    return Position(k, p) ? p : 0;
}

bool TrefferDetailsLesen(const Kartei& k, const Aufräumen& a, int32_t zeile, TrefferDetails& d) {
    d = TrefferDetails{};
    const int32_t p1 = TrefferDatei(k, a, zeile, false);
    if (p1 == 0) return false;
    const int32_t p2 = TrefferDatei(k, a, zeile, true);
    const auto aktion = [&a](int32_t p) {
        return size_t(p) < a.GefundenAktionen.size() ? a.GefundenAktionen[size_t(p)] : 0;
    };
    d.datei1 = "Dateiname - Eintrag " + std::to_string(p1);
    d.dateiname1 = PfadText(k.DateiPfade[p1]);
    d.aktion1 = aktion(p1);
    d.zweiteSeite = p2 != 0;
    if (d.zweiteSeite) {
        d.datei2 = "Dateiname - Eintrag " + std::to_string(p2);
        d.dateiname2 = PfadText(k.DateiPfade[p2]);
        d.aktion2 = aktion(p2);
    }
    GleichesSetzen(k, a.Suchmethode, p1, d);
    return true;
}

bool TrefferAbspielen(Kartei& k, const Aufräumen& a, int32_t zeile, bool zweite) {
    const int32_t p = TrefferDatei(k, a, zeile, zweite);
    if (p == 0) return false;
    EinsBasiert<int32_t> dateien;
    dateien.Anhängen(p);
    AbspielenMediaPlayer(k, dateien, false, false, false, "");
    return true;
}
