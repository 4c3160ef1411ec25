// Aktionen der Indexverwaltung setzen, zählen und bestätigen lassen.
#include "reports/Aufraeumen.h"

#include "app/Kartei.h"

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
