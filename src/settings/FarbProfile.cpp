// Die Farbprofile und der Weg zwischen Farbsatz und Einstellungen.
#include "settings/FarbProfile.h"

#include "settings/Einstellungen.h"

const std::vector<FarbProfil>& FarbProfile() {
    static const std::vector<FarbProfil> profile = {
        {"Standard (hell, grau-blau)", {0xC00000, 0xEEEEEE, 0x800000, 0xFFFFFF, 0x000000, 0x000000, 0x000080, 0}},
        {"Abend/Disco (dunkel, schwarz-orange)",
         {0x0080FF, 0x404040, 0xFFFFFF, 0x800000, 0xE0E0E0, 0xE0E0E0, 0x0000C0, 0}},
        // Der Name steht genau so, "organge" eingeschlossen.
        {"Gute Laune (farbenfroh, organge-rot)",
         {0x000080, 0xDDEFFF, 0x0F0F0F, 0x93C9FF, 0x000000, 0x000000, 0x804000, 0}},
        {"Dunkle Nacht (sehr dunkel, schwarz-grau)",
         {0xFFFFFF, 0x000000, 0xFFFFFF, 0x000000, 0xFFFFFF, 0xFFFFFF, 0xAFAFAF, 0}},
        {"Cool (hell, blau-weiss)", {0xFFFFFF, 0xDAAC87, 0xFFFFFF, 0xDAAC87, 0xFFFFFF, 0xFFFFFF, 0x80FFFF, 0}},
    };
    return profile;
}

Farbsatz FarbsatzAusEinstellungen(const Einstellungen& e) {
    return {e.FarbeFunktionen,        e.FarbeFunktionenHintergrund, e.FarbeListen,
            e.FarbeListenHintergrund, e.FarbeÜberschrift,           e.FarbeBeschreibungen,
            e.FarbeFunktionenBesucht, e.FunktionenUnterstreichen};
}

void FarbsatzSpeichern(Einstellungen& e, const Farbsatz& f) {
    e.FarbeFunktionen = f.Funktionen;
    e.FarbeFunktionenHintergrund = f.FunktionenHintergrund;
    e.FarbeListen = f.Listen;
    e.FarbeListenHintergrund = f.ListenHintergrund;
    e.FarbeÜberschrift = f.Überschrift;
    e.FarbeBeschreibungen = f.Beschreibungen;
    e.FarbeFunktionenBesucht = f.FunktionenBesucht;
    e.FunktionenUnterstreichen = f.FunktionenUnterstreichen;
}

int32_t FarbProfilFinden(const Farbsatz& f) {
    const auto& profile = FarbProfile();
    for (size_t i = 0; i < profile.size(); ++i)
        if (profile[i].farben == f) return static_cast<int32_t>(i);
    return -1;
}
