// frmOptionen ohne Fenster: Eingaben vorbelegen, prüfen, übernehmen, neu einlesen.
#include "settings/Optionen.h"

#include "app/Kartei.h"
#include "app/Tabelle.h"
#include "app/Texte.h"
#include "app/Zahlen.h"
#include "intake/NichtVerfuegbar.h"
#include "media/MedienInfos.h"
#include "settings/EinstellungenSpeicher.h"
#include "settings/EinstellungenTabelle.h"
#include "shell/Fortschritt.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

namespace {
constexpr std::array<std::string_view, 39> kAufSeiten = {"Dateiname",
                                                         "Mp3TagLesen",
                                                         "WinampPfad",
                                                         "WinampParameterAbspielen",
                                                         "WinampParameterHinzufügen",
                                                         "DateiAutomatischSpeichern",
                                                         "HinzufügenKeineDoppelten",
                                                         "HinzufügenUnterordner",
                                                         "StartBildschirm",
                                                         "AutoTagFelderLöschen",
                                                         "AutoTagLeer",
                                                         "PlaylistFürWinamp",
                                                         "BeiDoppelklick",
                                                         "TAGAutomatischSpeichern",
                                                         "AutoTagUnterstrichEntfernen",
                                                         "AutoTagAusschlußLeer",
                                                         "NichtVerfügbarFragen",
                                                         "FarbeFunktionen",
                                                         "FarbeFunktionenHintergrund",
                                                         "FarbeListen",
                                                         "FarbeListenHintergrund",
                                                         "FarbeÜberschrift",
                                                         "FarbeBeschreibungen",
                                                         "FarbeFunktionenBesucht",
                                                         "FunktionenUnterstreichen",
                                                         "AutoCompleteVerwenden",
                                                         "Auswahlliste",
                                                         "BeendenReaktion",
                                                         "RegelmäßigSpeichernAlle",
                                                         "AbspielStatistikSpeichern",
                                                         "SucheNichtBeiAuswahl",
                                                         "SucheNichtBeiTAGEditor",
                                                         "StartBildschirmNichtBeiSpeichern",
                                                         "StartBildschirmNichtBeiLaden",
                                                         "TAGsProzentHinzufügen",
                                                         "TAGsBytesSuchen",
                                                         "TippsAktueller",
                                                         "TAGAutomatischSpeichernV2",
                                                         "TAGsSoftwareFeldSchreiben"};

const char* const kReserveFeld = "'Prozent des neuen TAGs in Bytes hinzufügen'";
const char* const kSuchenFeld = "'Bytes vom Datei-Anfang an nach TAG suchen'";

bool SchalterAn(const std::string& flags, int32_t stelle) {
    const std::string zeichen = Mid(flags, stelle, 1);
    return ZahlWert(zeichen).value_or(0) != 0;
}

// Ein geprüftes Zahlenfeld als Long, gerundet wie überall.
int32_t AlsLong(const std::string& text) {
    int32_t wert = 0;
    LongAus(ZahlWert(text).value_or(0), wert);
    return wert;
}

// Die weiteren Werte in k schreiben; beim ersten Fehler dessen Meldung.
bool WeitereÜbernehmen(Kartei& k, const OptionenEingabe& e, std::string& meldung) {
    for (const auto& [name, text] : e.weitere) {
        const EinstellungsEintrag* eintrag = EinstellungFinden(name);
        if (!eintrag || EinstellungAufEigenerSeite(eintrag->name)) continue;
        std::string fehler;
        if (!EinstellungAusText(k, *eintrag, text, fehler)) {
            meldung = "Bitte prüfen Sie den Wert '" + name + "': " + fehler;
            return false;
        }
    }
    return true;
}

bool NeuEinlesenFragen(Kartei& k) {
    return k.ui.MeldungZeigen("Es wurden Einstellungen für das Lesen von Datei-Informationen aktiviert.\n"
                              "Neu hinzugefügte Dateien werden nun mit den gewählten Einstellungen gelesen.\n\n"
                              "Möchten Sie alle im Index befindlichen Dateien neu einlesen?\n\n"
                              "(Dieser Vorgang kann länger dauern.)",
                              Meldung::JaNeinFrage) == Meldung::Ja;
}
}  // namespace

bool EinstellungAufEigenerSeite(const std::string& name) {
    return std::any_of(kAufSeiten.begin(), kAufSeiten.end(), [&](std::string_view n) { return n == name; });
}

OptionenEingabe OptionenEinsetzen(const Kartei& k) {
    OptionenEingabe e;
    e.E = k.E;
    e.txtID3v2Reserve = ZahlText(k.E.TAGsProzentHinzufügen);
    e.txtID3v2Suchen = ZahlText(k.E.TAGsBytesSuchen);
    e.chkRegelmäßigSpeichern = k.E.RegelmäßigSpeichernAlle > 0;
    e.txtRegelmäßigSpeichern = k.E.RegelmäßigSpeichernAlle > 0 ? ZahlText(k.E.RegelmäßigSpeichernAlle) : "";
    e.chkID3auslesenV1 = SchalterAn(k.E.Mp3TagLesen, 1);
    e.chkID3auslesenV2 = SchalterAn(k.E.Mp3TagLesen, 2);
    e.chkID3auslesenHeader = SchalterAn(k.E.Mp3TagLesen, 3);
    for (const auto& eintrag : EinstellungsTabelle())
        if (!EinstellungAufEigenerSeite(eintrag.name))
            e.weitere.emplace_back(eintrag.name, EinstellungAlsText(k, eintrag));
    return e;
}

std::vector<std::string> OptionenPrüfen(const OptionenEingabe& e) {
    const auto reserve = IstNumerisch(e.txtID3v2Reserve) ? ZahlWert(e.txtID3v2Reserve) : std::nullopt;
    if (!reserve) return {std::string("Bitte geben Sie eine Zahl in das Feld ") + kReserveFeld + " ein."};
    if (*reserve < 0 || *reserve > 100)
        return {std::string("Bitte geben Sie eine Zahl zwischen 0 und 100 in das Feld ") + kReserveFeld + " ein."};
    int32_t bytes = 0;
    if (!IstNumerisch(e.txtID3v2Suchen) || !LongAus(ZahlWert(e.txtID3v2Suchen).value_or(0), bytes))
        return {std::string("Bitte geben Sie eine Zahl in das Feld ") + kSuchenFeld + " ein.",
                "Geben Sie '0' ein, um die gesamte Datei zu durchsuchen."};
    return {};
}

int32_t RegelmäßigSpeichernWert(bool angehakt, const std::string& text) {
    if (!angehakt || !IstNumerisch(text)) return 0;
    const int32_t minuten = AlsLong(text);
    return minuten >= 1 ? minuten : 0;
}

int16_t TippsWertAusHaken(int16_t aktuell, bool an) {
    if (!an) return 0;
    return aktuell > 0 ? aktuell : int16_t{1};
}

std::string LeseSchalterText(bool v1, bool v2, bool kopf) {
    return std::string(v1 ? "1" : "0") + (v2 ? "1" : "0") + (kopf ? "1" : "0");
}

bool LeseSchalterNeuAn(const std::string& alt, const std::string& neu) {
    for (int32_t i = 1; i <= 3; ++i)
        if (!SchalterAn(alt, i) && SchalterAn(neu, i)) return true;
    return false;
}

bool OptionenÜbernehmen(Kartei& k, const OptionenEingabe& e) {
    for (const auto& meldung : OptionenPrüfen(e)) k.ui.MeldungZeigen(meldung, Meldung::Information);
    if (!OptionenPrüfen(e).empty()) return false;

    const Einstellungen vorher = k.E;
    const std::string dateiname = k.Dateiname;
    k.E = e.E;
    k.E.RücksetzModus = false;
    std::string meldung;
    if (!WeitereÜbernehmen(k, e, meldung)) {
        k.E = vorher;  // nichts halb übernehmen
        k.Dateiname = dateiname;
        k.ui.MeldungZeigen(meldung, Meldung::Information);
        return false;
    }
    k.E.TAGsProzentHinzufügen = AlsLong(e.txtID3v2Reserve);
    k.E.TAGsBytesSuchen = AlsLong(e.txtID3v2Suchen);
    k.E.RegelmäßigSpeichernAlle = RegelmäßigSpeichernWert(e.chkRegelmäßigSpeichern, e.txtRegelmäßigSpeichern);
    k.E.Mp3TagLesen = LeseSchalterText(e.chkID3auslesenV1, e.chkID3auslesenV2, e.chkID3auslesenHeader);

    if (LeseSchalterNeuAn(vorher.Mp3TagLesen, k.E.Mp3TagLesen) && NeuEinlesenFragen(k)) AlleDateienNeuEinlesen(k);
    k.ui.TitelNachrichtZeigen("Die Programm-Optionen wurden übernommen", 750);
    return true;
}

bool AlleDateienNeuEinlesen(Kartei& k) {
    const std::string flags = k.E.Mp3TagLesen;
    const std::string tags = Left(flags, 2), kopf = Mid(flags, 3, 1);
    NichtVerfügbarFragenZurücksetzen(k);
    FortschrittZeigenStarten(k, k.DateiAnzahl, true, true, true, "Lese Dateien");
    bool ganz = true;
    for (int32_t i = 1; i <= k.DateiAnzahl; ++i) {
        if (!FortschrittZeigen(k, i, k.DateiPfade[i])) {
            ganz = false;
            break;
        }
        // Eine fehlende Datei auf fester Platte wird übersprungen: sonst würde ihr Datensatz leer.
        const int16_t antwort = DateiNichtVerfügbarPrüfen(k, i, true, true);
        if (antwort == 2) {
            ganz = false;
            break;
        }
        if (antwort == 1) continue;
        DateiGeändertSetzen(k);
        k.DateiDaten[i] = MedienInfosLesen(k, k.DateiPfade[i], k.DateiDaten[i], tags, false, kopf, kopf);
    }
    FortschrittZeigenEnde(k);
    return ganz;
}

bool OptionenZurücksetzen(Kartei& k) {
    if (k.ui.MeldungZeigen("Möchten Sie tatsächlich alle Programmeinstellungen zurücksetzen?",
                           Meldung::JaNeinFrageNein) != Meldung::Ja)
        return false;
    EinstellungenZurücksetzen(k);
    return true;
}
