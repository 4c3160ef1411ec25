// Die Umbenennung als Ganzes: Funktionsliste, Prüfung der Eingaben, zuletzt benutzte Werte und
// der Lauf über die Einträge.
#include "fileops/Umbenennen.h"

#include "app/Kartei.h"
#include "app/Zahlen.h"
#include "index/Spalten.h"

namespace {
namespace F = UmbenennenFunktion;

int16_t AlsZahl(bool wert) { return wert ? 1 : 0; }
}  // namespace

const std::array<UmbenennenListenEintrag, 9>& UmbenennenFunktionen() {
    static const std::array<UmbenennenListenEintrag, 9> liste = {{
        {"Nach Index-Feldern umbenennen", F::NachFeldern},
        {"Zeichen im Dateinamen ersetzen", F::ZeichenErsetzen},
        {"Fortlaufende Dateinamen erstellen", F::Fortlaufend},
        {"Manuell per Eingabefeld umbenennen", F::Manuell},
        {"Listeneintrag ändern - nicht umbenennen", F::Listeneintrag},
        {"Schreibweise des Dateinamens ändern", F::Schreibweise},
        {"Datei-Endung ändern", F::Endung},
        {"Datei-Attribute ändern", F::Attribute},
        {"Datei durch leere Datei mit anderer Endung ersetzen", F::LeereDatei},
    }};
    return liste;
}

int16_t FunktionFürPosition(int32_t position) {
    const auto& liste = UmbenennenFunktionen();
    if (position < 0 || position >= static_cast<int32_t>(liste.size())) return F::Keine;
    return liste[static_cast<size_t>(position)].code;
}

int32_t PositionFürFunktion(int16_t code) {
    const auto& liste = UmbenennenFunktionen();
    for (size_t i = 0; i < liste.size(); ++i)
        if (liste[i].code == code) return static_cast<int32_t>(i);
    return -1;
}

UmbenennenEingaben UmbenennenZuletzt(const Kartei& k) {
    const auto& s = k.E;
    UmbenennenEingaben e;
    e.format = s.UmbenennenEingabeID3;
    e.basis1 = s.UmbenennenEingabeNeuAnfang;
    e.zähler = s.UmbenennenEingabeNeuZahl;
    e.basis2 = s.UmbenennenEingabeNeuEnde;
    e.suchen = s.UmbenennenEingabeErsetzenText;
    e.ersetzen = s.UmbenennenEingabeErsetzenDurch;
    e.unterfunktion = s.UmbenennenEingabeSchreibweise;
    e.neueEndung = s.UmbenennenEingabeDateiEndung;
    e.ersetzenEndung = s.UmbenennenEingabeErsetzenDateiEndung;
    e.schreibschutz = s.UmbenennenAttributeR != 0;
    e.versteckt = s.UmbenennenAttributeH != 0;
    e.system = s.UmbenennenAttributeS != 0;
    e.archiv = s.UmbenennenAttributeA != 0;
    return e;
}

void UmbenennenZuletztSichern(Kartei& k, const UmbenennenEingaben& e) {
    auto& s = k.E;
    s.UmbenennenEingabeID3 = e.format;
    s.UmbenennenEingabeNeuAnfang = e.basis1;
    s.UmbenennenEingabeNeuZahl = e.zähler;
    s.UmbenennenEingabeNeuEnde = e.basis2;
    s.UmbenennenEingabeErsetzenText = e.suchen;
    s.UmbenennenEingabeErsetzenDurch = e.ersetzen;
    s.UmbenennenEingabeSchreibweise = e.unterfunktion;
    s.UmbenennenEingabeDateiEndung = e.neueEndung;
    s.UmbenennenEingabeErsetzenDateiEndung = e.ersetzenEndung;
    s.UmbenennenAttributeR = AlsZahl(e.schreibschutz);
    s.UmbenennenAttributeH = AlsZahl(e.versteckt);
    s.UmbenennenAttributeS = AlsZahl(e.system);
    s.UmbenennenAttributeA = AlsZahl(e.archiv);
}

std::string UmbenennenFehlendeEingabe(const UmbenennenEingaben& e) {
    switch (e.funktion) {
    case F::NachFeldern: return e.format.empty() ? "Es wurde kein Format bei der ID3-Umbenennung angegeben." : "";
    case F::ZeichenErsetzen: return e.suchen.empty() ? "Das Feld für die Ersetzen-Formatierung ist leer." : "";
    case F::Fortlaufend:
        if (e.zähler.empty()) return "Es wurde keine Start-Zeichenfolge bei der fortlaufenden Umbenennung angegeben.";
        return IstNumerisch(e.zähler) ? ""
                                      : "Die Start-Zeichenfolge bei der fortlaufenden Umbenennung muß eine Zahl sein.";
    case F::Schreibweise:
        return e.unterfunktion >= 1 && e.unterfunktion <= 4
                   ? ""
                   : "Bitte markieren Sie, ob Sie den Dateinamen in Groß- oder in Kleinschreibung ändern wollen.";
    case F::Endung: return e.neueEndung.empty() ? "Bitte geben Sie eine neue Datei-Endung ein." : "";
    case F::LeereDatei: return e.ersetzenEndung.empty() ? "Bitte geben Sie eine neue Datei-Endung ein." : "";
    case F::Manuell:
    case F::Listeneintrag:
    case F::Attribute: return "";
    default: return "Bitte wählen Sie eine Methode aus der Liste.";
    }
}

bool UmbenennenEingabenPrüfen(Kartei& k, const UmbenennenEingaben& e) {
    const std::string hinweis = UmbenennenFehlendeEingabe(e);
    if (hinweis.empty()) return true;
    k.ui.MeldungZeigen(hinweis, Meldung::Information);
    return false;
}

std::string UmbenennenVariablen() {
    std::string text;
    for (int32_t n = 1; n <= SpaltenAnzahl; ++n) {
        const std::string& name = SpaltenName(n);
        if (name.find("Benutzerdefiniert") == std::string::npos) text += "%" + name + "% ";
    }
    return text;
}
