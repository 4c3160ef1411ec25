// AutoTag: der Einstieg, ausdrückliche Formate von rechts, Felder leeren und belegen.
#include "tags/AutoTag.h"

#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/Texte.h"
#include "app/Trace.h"
#include "media/Genres.h"
#include "tags/AutoTagIntern.h"

#include <array>

namespace {
constexpr const char* NichtVerarbeitet =
    "Das von Ihnen zu Erkennung des TAGs verwendete Format konnte nicht verarbeitet werden.\n";

bool Melden(Kartei& k, const std::string& text) {
    k.ui.MeldungZeigen(text, Meldung::Information);
    return false;
}

bool V1(int16_t modus) { return modus == AutoTagModusBeide || modus == AutoTagModusV1; }
bool V2(int16_t modus) { return modus == AutoTagModusBeide || modus == AutoTagModusV2; }

struct FeldPaar {
    std::string_view platzhalter;
    KText DateiInfo::*v1;
    KText DateiInfo::*v2;
};
constexpr std::array<FeldPaar, 7> FeldPaare = {{
    {"%titel%", &DateiInfo::Mp3_ID3v1_Titel, &DateiInfo::Mp3_ID3v2_TIT2},
    {"%interpret%", &DateiInfo::Mp3_ID3v1_Interpret, &DateiInfo::Mp3_ID3v2_TPE1},
    {"%album%", &DateiInfo::Mp3_ID3v1_Album, &DateiInfo::Mp3_ID3v2_TALB},
    {"%jahr%", &DateiInfo::Mp3_ID3v1_Jahr, &DateiInfo::Mp3_ID3v2_TYER},
    {"%kommentar%", &DateiInfo::Mp3_ID3v1_Kommentar, &DateiInfo::Mp3_ID3v2_COMM},
    {"%titelnummer%", &DateiInfo::Mp3_ID3v1_Track, &DateiInfo::Mp3_ID3v2_TRCK},
    {"%track%", &DateiInfo::Mp3_ID3v1_Track, &DateiInfo::Mp3_ID3v2_TRCK},
}};

const std::string KeinGenre(1, '\xFF');

// Genre über seinen Namen (gleich lang, Groß/Klein egal), von Zeile 1 an: "dance hall" ist
// Code 125, nicht der zweite Eintrag gleichen Namens.
void GenreSetzen(DateiInfo& ergebnis, const std::string& wort, int16_t modus) {
    const int32_t code = GenreCodeOhneGroßKlein(wort);
    if (code < 0) {
        ergebnis.Mp3_ID3v1_Genre = KeinGenre;
        return;
    }
    // Das ID3v1-Feld hält genau ein Zeichen, den Code; das Wort selbst darin gäbe beim
    // Schreiben ein falsches Genre.
    ergebnis.Mp3_ID3v1_Genre = std::string(1, static_cast<char>(code));
    if (V2(modus)) ergebnis.Mp3_ID3v2_TCON = GenreName(code);
}

// Alte Daten löschen; Originalinterpret und Titel bleiben mit Absicht stehen.
void FelderLeeren(DateiInfo& d, int16_t modus) {
    if (V1(modus)) {
        for (auto* f : {&d.Mp3_ID3v1_Titel, &d.Mp3_ID3v1_Interpret, &d.Mp3_ID3v1_Album, &d.Mp3_ID3v1_Jahr,
                        &d.Mp3_ID3v1_Kommentar, &d.Mp3_ID3v1_Track})
            f->clear();
        d.Mp3_ID3v1_Genre = KeinGenre;
    }
    if (V2(modus)) {
        for (auto* f : {&d.Mp3_ID3v2_TRCK, &d.Mp3_ID3v2_PCNT, &d.Mp3_ID3v2_TALB, &d.Mp3_ID3v2_TCOP, &d.Mp3_ID3v2_TENC,
                        &d.Mp3_ID3v2_TCON, &d.Mp3_ID3v2_TPUB, &d.Mp3_ID3v2_TPE1, &d.Mp3_ID3v2_TYER, &d.Mp3_ID3v2_COMM,
                        &d.Mp3_ID3v2_TLEN, &d.Mp3_ID3v2_WXXX, &d.Mp3_ID3v2_TMED, &d.Mp3_ID3v2_TSSE, &d.Mp3_ID3v2_TCOM,
                        &d.Mp3_ID3v2_TLAN})
            f->clear();
    }
}

// Die Wörter eines ausdrücklichen Formats, von rechts. false: eine Meldung hat den Grund genannt.
bool WörterVonRechts(Kartei& k, const std::string& name, const EinsBasiert<std::string>& trenner, int32_t anzahl,
                     EinsBasiert<std::string>& wörter) {
    wörter.ReDim(anzahl);
    auto sucheEnde = static_cast<int32_t>(name.size() - DateiEndungSicht(name).size());
    const std::string& schluss = trenner[anzahl + 1];
    if (!schluss.empty()) {
        const int32_t q = LetzteFundstelle(sucheEnde, name, schluss, false);
        if (q == 0)
            return Melden(k, std::string(NichtVerarbeitet) + "Das letzte Trennzeichen '" + schluss +
                                 "' existiert nicht, obwohl es im Format definiert wurde.");
        sucheEnde = q - 1;
    }
    for (int32_t i = anzahl; i >= 1; --i) {
        const int32_t q = LetzteFundstelle(sucheEnde, name, trenner[i], false);
        if (q == 0)
            return Melden(k, std::string(NichtVerarbeitet) +
                                 "Der zu erkennende Dateiname enthält nicht gleich viele Elemente wie das Format "
                                 "(z.B. Datei 'AB - CD.mp3' = 2 und Format '%AB% - %CD% - %EF%' = 3).");
        // Das Wort beginnt ein Zeichen hinter dem Anfang des Trenners, wie lang er auch ist.
        wörter[i] = Trim(Mid(name, q + 1, sucheEnde - q));
        sucheEnde = q - 1;
    }
    return true;
}
}  // namespace

void AutoTagFeldSetzen(DateiInfo& ergebnis, std::string_view platzhalterKlein, const std::string& wort, int16_t modus) {
    if (platzhalterKlein == "%genre%") return GenreSetzen(ergebnis, wort, modus);
    for (const auto& paar : FeldPaare) {
        if (paar.platzhalter != platzhalterKlein) continue;
        if (V1(modus)) ergebnis.*paar.v1 = wort;
        if (V2(modus)) ergebnis.*paar.v2 = wort;
        return;
    }
    if (platzhalterKlein != "%müll%")
        KK_TRACE("AutoTagVersuchen", "Es wurde ein ungültiger Platzhalter verwendet: " + std::string(platzhalterKlein));
}

namespace {
// Liest das Format und prüft, ob es sich überhaupt anwenden lässt. false: eine Meldung sagt warum.
bool FormatZerlegen(Kartei& k, const std::string& format, EinsBasiert<std::string>& platzhalter,
                    EinsBasiert<std::string>& trenner, int32_t& anzahl) {
    if (format.empty())
        return Melden(k, "Sie haben kein AutoTAG-Format ausgewählt, nach dem der TAG erkannt werden soll.\n"
                         "Bitte wählen Sie eines im 'Format'-Fenster aus.");
    if (!FormatLesen(format, platzhalter, trenner, anzahl))
        return Melden(k, "Das von Ihnen zu Erkennung des TAGs verwendete Format ('" + format +
                             "') konnte nicht verarbeitet werden.\n"
                             "Überprüfen Sie die Schreibweise der Variablen ('%'-Zeichen vergessen?).");
    // Ein Format ganz ohne Platzhalter lässt sich auf keinen Namen anwenden.
    if (anzahl == 0)
        return Melden(k, "Das von Ihnen zu Erkennung des TAGs verwendete Format konnte nicht auf den Dateinamen "
                         "angewendet werden.");
    if (anzahl >= 2 && BeginntMitText(platzhalter[1], "%automatik%"))
        return Melden(k, "Bei Verwendung der Erkennungs-Variable '%Automatik%' können keine weiteren Variablen "
                         "verwendet werden.");
    return true;
}
}  // namespace

bool AutoTagFormatPrüfen(Kartei& k, const std::string& format) {
    EinsBasiert<std::string> platzhalter, trenner;
    int32_t anzahl = 0;
    return FormatZerlegen(k, format, platzhalter, trenner, anzahl);
}

bool AutoTagVersuchen(Kartei& k, const std::string& dateiname, const std::string& format, DateiInfo& ergebnis,
                      const DateiInfo& ausgangsdaten, int16_t modus) {
    const std::string name = k.E.AutoTagUnterstrichEntfernen == 1 ? Ersetzen(dateiname, "_", " ") : dateiname;
    ergebnis = ausgangsdaten;
    EinsBasiert<std::string> platzhalter, trenner, wörter;
    int32_t anzahl = 0;
    if (!FormatZerlegen(k, format, platzhalter, trenner, anzahl)) return false;
    const bool automatik = BeginntMitText(platzhalter[1], "%automatik%");
    if (!automatik && !WörterVonRechts(k, name, trenner, anzahl, wörter)) return false;
    if (automatik && !DateinamenLesen(k, name, wörter, anzahl, true))
        return Melden(k, "Der Dateiname '" + name + "' konnte nicht verarbeitet werden.");

    ergebnis.Mp3_ID3v1_TAG = "TAG";
    if (k.E.AutoTagFelderLöschen == 1) FelderLeeren(ergebnis, modus);
    if (automatik) {
        AutoTagRaten(k, dateiname, wörter, ergebnis, modus);
    } else {
        for (int32_t i = 1; i <= anzahl; ++i)
            if (!AutoTagWortIgnorieren(k, wörter[i]))
                AutoTagFeldSetzen(ergebnis, Klein(platzhalter[i]), wörter[i], modus);
    }

    if (ergebnis.Mp3_ID3v1_Genre.empty()) ergebnis.Mp3_ID3v1_Genre = KeinGenre;
    // 3: der Tag steht bisher nur im Datensatz und wird beim Speichern angelegt.
    if (V1(modus) && ergebnis.Mp3_ID3v1_Status != 1) ergebnis.Mp3_ID3v1_Status = 3;
    if (V2(modus) && ergebnis.Mp3_ID3v2_Status != 1) ergebnis.Mp3_ID3v2_Status = 3;
    return true;
}
