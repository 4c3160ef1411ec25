// Mehrfacheinträge und Aufräumkandidaten finden: Paare über Streuwerte in linearer Zeit,
// einzelne Dateien über den gespeicherten Datensatz oder frisch gelesen.
#include "reports/Duplikate.h"

#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/Texte.h"
#include "intake/NichtVerfuegbar.h"
#include "media/MedienInfos.h"
#include "shell/Fortschritt.h"

#include <unordered_map>

namespace {
// Nimmt ein Eintrag an der Methode teil (Größe bekannt, Tag vorhanden)?
bool Teilnehmer(const DateiInfo& d, int16_t methode) {
    switch (methode) {
    case Suchmethode::Id3v1Felder: return d.Mp3_ID3v1_Status == 1;
    case Suchmethode::Id3v2Felder: return d.Mp3_ID3v2_Status == 1;
    case Suchmethode::Dateigröße: return d.Datei_Größe >= 0;
    default: return true;
    }
}

uint64_t Mischen(uint64_t a, uint64_t b) { return (a ^ (b + 0x9E3779B97F4A7C15ull + (a << 6) + (a >> 2))); }

// Streuwert des Vergleichsschlüssels; gleiche Einträge haben gleiche Werte.
uint64_t Streuwert(const Kartei& k, int32_t p, int16_t methode) {
    const DateiInfo& d = k.DateiDaten[p];
    switch (methode) {
    case Suchmethode::Dateiname: return NamenStreuwert(DateinameAusPfadSicht(k.DateiPfade[p]));
    case Suchmethode::PfadUndDateiname: return NamenStreuwert(k.DateiPfade[p]);
    case Suchmethode::Id3v1Felder:
        return Mischen(NamenStreuwert(d.Mp3_ID3v1_Interpret), NamenStreuwert(d.Mp3_ID3v1_Titel));
    case Suchmethode::Id3v2Felder: return Mischen(NamenStreuwert(d.Mp3_ID3v2_TPE1), NamenStreuwert(d.Mp3_ID3v2_TIT2));
    default: return uint64_t(uint32_t(d.Datei_Größe));
    }
}

bool Gleich(const Kartei& k, int32_t a, int32_t b, int16_t methode) {
    const DateiInfo &x = k.DateiDaten[a], &y = k.DateiDaten[b];
    switch (methode) {
    case Suchmethode::Dateiname:
        return NamenGleich(DateinameAusPfadSicht(k.DateiPfade[a]), DateinameAusPfadSicht(k.DateiPfade[b]));
    case Suchmethode::PfadUndDateiname: return NamenGleich(k.DateiPfade[a], k.DateiPfade[b]);
    case Suchmethode::Id3v1Felder:
        return NamenGleich(x.Mp3_ID3v1_Interpret, y.Mp3_ID3v1_Interpret) &&
               NamenGleich(x.Mp3_ID3v1_Titel, y.Mp3_ID3v1_Titel);
    case Suchmethode::Id3v2Felder:
        return NamenGleich(x.Mp3_ID3v2_TPE1, y.Mp3_ID3v2_TPE1) && NamenGleich(x.Mp3_ID3v2_TIT2, y.Mp3_ID3v2_TIT2);
    default: return x.Datei_Größe == y.Datei_Größe;
    }
}

// Für jede Listenstelle i die Stelle des ersten späteren gleichen Eintrags (-1: keiner). Von hinten
// her merkt sich jede Gleichheitsklasse ihren vordersten Eintrag; Streuwerte dürfen zusammenfallen,
// deshalb hält ein Streuwert eine kleine Liste von Klassen.
std::vector<int32_t> NächsteGleiche(const Kartei& k, int16_t methode, const std::vector<int32_t>& liste) {
    std::vector<int32_t> nächste(liste.size(), -1);
    std::unordered_map<uint64_t, std::vector<int32_t>> klassen;
    klassen.reserve(liste.size());
    for (size_t i = liste.size(); i-- > 0;) {
        if (!Teilnehmer(k.DateiDaten[liste[i]], methode)) continue;
        auto& vorderste = klassen[Streuwert(k, liste[i], methode)];
        bool gefunden = false;
        for (auto& stelle : vorderste)
            if (Gleich(k, liste[i], liste[size_t(stelle)], methode)) {
                nächste[i] = stelle;
                stelle = int32_t(i);
                gefunden = true;
                break;
            }
        if (!gefunden) vorderste.push_back(int32_t(i));
    }
    return nächste;
}

void PaareSuchen(Kartei& k, int16_t methode, const std::vector<int32_t>& liste, std::vector<DuplikatTreffer>& t) {
    const std::vector<int32_t> nächste = NächsteGleiche(k, methode, liste);
    for (size_t i = 0; i < liste.size(); ++i) {
        if (nächste[i] >= 0) t.push_back({liste[i], liste[size_t(nächste[i])]});
        if (!FortschrittZeigen(k, double(i + 1), "")) return;
    }
}

// Ein Treffer der Methoden 5 bis 9? Für 5, 7, 9 wird zuerst nach dem Datenträger gefragt
// (1: überspringen, 2: Suche beenden, dann ende).
bool EinzelTreffer(Kartei& k, int16_t methode, int32_t p, bool& ende) {
    const DateiInfo& d = k.DateiDaten[p];
    if (methode == Suchmethode::OhneId3v1Index) return d.Mp3_ID3v1_Status != 1;
    if (methode == Suchmethode::OhneId3v2Index) return d.Mp3_ID3v2_Status != 1;
    const int16_t verfügbar = DateiNichtVerfügbarPrüfen(k, p, true, false);
    if (verfügbar == 2) ende = true;
    if (verfügbar != 0) return false;
    const std::string& pfad = k.DateiPfade[p];
    if (methode == Suchmethode::NichtVorhanden) return !DoesExist(pfad);
    const bool v1 = methode == Suchmethode::OhneId3v1Datei;
    const DateiInfo neu = MedienInfosLesen(k, pfad, DateiInfo{}, v1 ? "10" : "01", false, "0", "0");
    return (v1 ? neu.Mp3_ID3v1_Status : neu.Mp3_ID3v2_Status) != 1;
}

void EinzelneSuchen(Kartei& k, int16_t methode, const std::vector<int32_t>& liste, std::vector<DuplikatTreffer>& t) {
    NichtVerfügbarFragenZurücksetzen(k);
    for (size_t i = 0; i < liste.size(); ++i) {
        bool ende = false;
        if (EinzelTreffer(k, methode, liste[i], ende)) t.push_back({liste[i], 0});
        if (ende || !FortschrittZeigen(k, double(i + 1), "")) return;
    }
}
}  // namespace

const std::vector<std::string>& SuchmethodenTexte() {
    static const std::vector<std::string> texte = {
        "Mehrfacheintrage mit gleichem Dateinamen (Dateinamen)",
        "Mehrfacheintrage mit gleichem Dateinamen (Datei- und Pfadnamen)",
        "Mehrfacheintrage mit gleichen ID3v1-TAG-Feldern <Titel> und <Interpret>",
        "Mehrfacheintrage mit gleichen ID3v2-TAG-Feldern <Titel> und <Interpret>",
        "Mehrfacheintrage mit gleicher Dateigröße",
        "Nicht existiernde Dateien",
        "Dateien ohne ID3v1-TAG (im Index gespeicherte Daten werden verwendet)",
        "Dateien ohne ID3v1-TAG (Dateien werden neu gelesen)",
        "Dateien ohne ID3v2-TAG (im Index gespeicherte Daten werden verwendet)",
        "Dateien ohne ID3v2-TAG (Dateien werden neu gelesen)",
    };
    return texte;
}

bool PaarMethode(int16_t methode) { return methode >= 0 && methode <= Suchmethode::Dateigröße; }

std::vector<DuplikatTreffer> DuplikateSuchen(Kartei& k, int16_t methode, const std::vector<int32_t>& liste) {
    std::vector<DuplikatTreffer> treffer;
    std::vector<int32_t> gültige;
    for (const int32_t p : liste)
        if (k.DateiPfade.GültigerIndex(p) && k.DateiDaten.GültigerIndex(p)) gültige.push_back(p);
    if (methode < 0 || methode >= Suchmethode::Anzahl) return treffer;
    FortschrittZeigenStarten(k, int32_t(gültige.size()), true, true, false, "Durchsuche Index");
    if (PaarMethode(methode)) PaareSuchen(k, methode, gültige, treffer);
    else EinzelneSuchen(k, methode, gültige, treffer);
    FortschrittZeigenEnde(k);
    return treffer;
}

std::string TrefferZeile(const Kartei& k, int16_t methode, const DuplikatTreffer& t) {
    static const char* const endungen[] = {" haben die gleichen Dateinamen", " haben die gleichen Pfad- und Dateinamen",
                                           " haben gleiche ID3v1-TAG-Felder", " haben gleiche ID3v2-TAG-Felder",
                                           " haben gleiche Dateigröße"};
    const std::string name1 = DateinameAusPfad(k.DateiPfade[t.datei1]);
    if (PaarMethode(methode))
        return "'" + name1 + "' und '" + DateinameAusPfad(k.DateiPfade[t.datei2]) + "'" + endungen[methode];
    if (methode == Suchmethode::NichtVorhanden) return "'" + name1 + "' existiert nicht";
    if (methode <= Suchmethode::OhneId3v1Datei) return "'" + name1 + "' enthält keinen ID3v1-TAG";
    return "'" + name1 + "' enthält keinen ID3v2-TAG";
}
