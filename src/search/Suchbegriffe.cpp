#include "search/Suchbegriffe.h"

#include "search/SuchZustand.h"

const std::vector<std::string>& SuchFelderListe() {
    static const std::vector<std::string> felder = {"(Standardsuche)", "Interpret",
                                                    "Album",           "Titel",
                                                    "Track",           "Jahr",
                                                    "Kommentar",       "Genre",
                                                    "Interpret-ID3v2", "Titel-ID3v2",
                                                    "Album-ID3v2",     "Jahr-ID3v2",
                                                    "Track-ID3v2",     "Genre-ID3v2",
                                                    "Kommentar-ID3v2", "Pfad",
                                                    "Wechselmedium",   "Bitrate",
                                                    "Hinzufüge-Datum", "Datei-Endung",
                                                    "Abspiel-Datum",   "Abspiel-Häufigkeit"};
    return felder;
}

bool SuchbegriffeZurücksetzen(int32_t& SuchAnzahl, EinsBasiert<std::string>& SuchFelder,
                              EinsBasiert<std::string>& SuchBegriffe, EinsBasiert<std::string>& SuchBedingungen) {
    SuchAnzahl = 0;
    SuchFelder.ReDim(1);
    SuchBegriffe.ReDim(1);
    SuchBedingungen.ReDim(1);
    return true;
}

bool SuchbegriffeHinzufügen(int32_t& SuchAnzahl, EinsBasiert<std::string>& SuchFelder,
                            EinsBasiert<std::string>& SuchBegriffe, EinsBasiert<std::string>& SuchBedingungen,
                            const std::string& Begriff, const std::string& Feld, const std::string& Bedingung) {
    if (SuchAnzahl < 0 || SuchAnzahl == INT32_MAX) return false;
    ++SuchAnzahl;
    if (SuchAnzahl == 1) {
        SuchFelder.ReDim(1);
        SuchBegriffe.ReDim(1);
        SuchBedingungen.ReDim(1);
    } else {
        SuchFelder.ReDimPreserve(SuchAnzahl);
        SuchBegriffe.ReDimPreserve(SuchAnzahl);
        SuchBedingungen.ReDimPreserve(SuchAnzahl);
    }
    SuchFelder[SuchAnzahl] = Feld;
    SuchBegriffe[SuchAnzahl] = Begriff;
    SuchBedingungen[SuchAnzahl] = Bedingung;
    return true;
}

bool SuchbegriffeÄndern(EinsBasiert<std::string>& SuchFelder, EinsBasiert<std::string>& SuchBegriffe,
                        EinsBasiert<std::string>& SuchBedingungen, int32_t Nummer, const std::string& Begriff,
                        const std::string& Feld, const std::string& Bedingung) {
    if (!SuchFelder.GültigerIndex(Nummer) || !SuchBegriffe.GültigerIndex(Nummer) ||
        !SuchBedingungen.GültigerIndex(Nummer))
        return false;
    SuchFelder[Nummer] = Feld;
    SuchBegriffe[Nummer] = Begriff;
    SuchBedingungen[Nummer] = Bedingung;
    return true;
}

bool SuchbegriffeLöschen(int32_t& SuchAnzahl, EinsBasiert<std::string>& SuchFelder,
                         EinsBasiert<std::string>& SuchBegriffe, EinsBasiert<std::string>& SuchBedingungen,
                         int32_t Nummer) {
    if (Nummer < 1 || Nummer > SuchAnzahl || SuchFelder.UBound() < SuchAnzahl || SuchBegriffe.UBound() < SuchAnzahl ||
        SuchBedingungen.UBound() < SuchAnzahl)
        return false;
    for (int32_t i = Nummer; i < SuchAnzahl; ++i) {
        SuchFelder[i] = std::move(SuchFelder[i + 1]);
        SuchBegriffe[i] = std::move(SuchBegriffe[i + 1]);
        SuchBedingungen[i] = std::move(SuchBedingungen[i + 1]);
    }
    --SuchAnzahl;
    if (SuchAnzahl == 0) return SuchbegriffeZurücksetzen(SuchAnzahl, SuchFelder, SuchBegriffe, SuchBedingungen);
    SuchFelder.ReDimPreserve(SuchAnzahl);
    SuchBegriffe.ReDimPreserve(SuchAnzahl);
    SuchBedingungen.ReDimPreserve(SuchAnzahl);
    return true;
}

bool SuchbegriffeZurücksetzen(SuchZustand& s) {
    return SuchbegriffeZurücksetzen(s.SuchAnzahl, s.SuchFelder, s.SuchBegriffe, s.SuchBedingungen);
}

bool SuchbegriffeHinzufügen(SuchZustand& s, const std::string& Begriff, const std::string& Feld,
                            const std::string& Bedingung) {
    return SuchbegriffeHinzufügen(s.SuchAnzahl, s.SuchFelder, s.SuchBegriffe, s.SuchBedingungen, Begriff, Feld,
                                  Bedingung);
}

bool SuchbegriffeÄndern(SuchZustand& s, int32_t Nummer, const std::string& Begriff, const std::string& Feld,
                        const std::string& Bedingung) {
    return SuchbegriffeÄndern(s.SuchFelder, s.SuchBegriffe, s.SuchBedingungen, Nummer, Begriff, Feld, Bedingung);
}

bool SuchbegriffeLöschen(SuchZustand& s, int32_t Nummer) {
    return SuchbegriffeLöschen(s.SuchAnzahl, s.SuchFelder, s.SuchBegriffe, s.SuchBedingungen, Nummer);
}

std::string SuchZeileText(const SuchZustand& s, int32_t Nummer) {
    if (!s.SuchBegriffe.GültigerIndex(Nummer) || !s.SuchFelder.GültigerIndex(Nummer)) return {};
    return "Suche nach '" + s.SuchBegriffe[Nummer] + "' im Feld '" + s.SuchFelder[Nummer] + "'";
}

std::string SuchBedingungAusWahl(int32_t mussDarfNicht) {
    if (mussDarfNicht < 0 || mussDarfNicht > 9) mussDarfNicht = 0;
    return std::string(2, static_cast<char>('0' + mussDarfNicht));
}

// --- Zustand ---

const std::string& KomboFeld::GewählterEintrag() const {
    static const std::string leer;
    return ListIndex >= 0 && ListIndex < ListCount() ? List[size_t(ListIndex)] : leer;
}

SuchZustand::SuchZustand() {
    cboSuche.List = SuchFelderListe();
    cboSuche.ListIndex = 0;
    cboSuche.Text = cboSuche.List.front();
}
