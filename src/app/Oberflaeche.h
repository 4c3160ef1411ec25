#pragma once
// Was eine Routine von der Person verlangen darf: Meldungen, Fragen, Titeltexte, Fortschritt.
// Das Fenster zeigt echte Dialoge, die Kommandozeile fragt über Schalter, Tests über ein Skript.
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

// Schalter der Meldungsfenster und ihre Antworten.
namespace Meldung {
constexpr int Ausrufezeichen = 48;    // OK, Ausrufezeichen
constexpr int Information = 64;       // OK, Information
constexpr int JaNeinAusruf = 52;      // Ja/Nein, Ausrufezeichen
constexpr int JaNeinFrage = 36;       // Ja/Nein, Frage
constexpr int JaNeinAbbrechen = 35;   // Ja/Nein/Abbrechen, Frage
constexpr int JaNeinStopp = 308;      // Ja/Nein, Stopp, zweiter Knopf vorgewählt
constexpr int JaNeinFrageNein = 292;  // Ja/Nein, Frage, zweiter Knopf vorgewählt
constexpr int Ok = 1, Abbrechen = 2, Ja = 6, Nein = 7;
}  // namespace Meldung

// Was das Fortschrittsfenster gerade zeigen soll (die Logik dazu steht im Kern).
struct FortschrittAnsicht {
    bool offen = false;
    std::string titel;
    std::string vorgang;  // lblVorgang
    bool balkenSichtbar = false;
    int32_t balkenBreite = 0;  // 0..4500
    bool prozessSichtbar = false;
    std::string prozess;  // lblProzess
    bool abbrechenSichtbar = false;
};

// Antworten der Frage "Datei nicht verfügbar".
enum class NichtVerfügbarAntwort { Weiter = 0, Überspringen = 1, Abbrechen = 2, AlleÜberspringen = 3 };

class Oberfläche {
public:
    virtual ~Oberfläche() = default;

    // Meldungsfenster mit Schaltern (siehe Meldung::); Ergebnis ist der gedrückte Knopf.
    virtual int MeldungZeigen(const std::string& text, int schalter) = 0;
    // Statustext im Fenstertitel, nach verzögerungMs Millisekunden.
    virtual void TitelNachrichtZeigen(const std::string& text, int32_t verzögerungMs) = 0;
    // Ereignisse laufen lassen (DoEvents).
    virtual void EreignisseVerarbeiten() = 0;
    // Das Fortschrittsfenster so darstellen, wie der Kern es beschreibt.
    virtual void FortschrittDarstellen(const FortschrittAnsicht& ansicht) = 0;

    // --- Modale Fragen; jede Frage eine Methode ---
    // Datei oder Datenträger fehlt (frmDateiNichtVerfügbar). text: der fertige Hinweis. dateiDa
    // etwa einmal je Sekunde fragen: true heißt, die Datei ist erschienen, und die Frage endet
    // von selbst mit Weiter.
    virtual NichtVerfügbarAntwort DateiNichtVerfügbar(const std::string& pfad, const std::string& text,
                                                      const std::function<bool()>& dateiDa) = 0;
    // Einen Namen eingeben (Text vorbelegt, Auswahl ab 1-basiertem Zeichen); false = Abbrechen.
    virtual bool NamenEingeben(const std::string& titel, const std::string& knopf, std::string& text,
                               int32_t auswahlStart, int32_t auswahlLänge) = 0;
    // Einen Ordner wählen; false = Abbrechen.
    virtual bool OrdnerWählen(const std::string& titel, std::string& ordner) = 0;
    // Dateien wählen (Filter "Name|*.mp3;*.ogg|..."); false = Abbrechen.
    virtual bool DateienWählen(const std::string& titel, const std::string& filter,
                               std::vector<std::string>& dateien) = 0;
    // Ein Bild zeigen, ohne zu warten (frmBildAnzeige); ein neues ersetzt das alte.
    virtual void BildAnzeigen(const std::string& pfad) = 0;
    // Das Programm für "Ausführen mit" wählen (frmAusführenMit), vorbelegt mit programm. prüfen
    // läuft bei OK; solange es false gibt, bleibt die Frage offen. false = Abbrechen.
    virtual bool AusführenMitWählen(std::string& programm, const std::function<bool(const std::string&)>& prüfen) = 0;
    // Das Ziel einer Verschiebung besteht schon (frmVerschiebenDateiExistiert); text ist die fertige
    // Beschreibung. 1 = umbenennen (-0, -1, …), 2 = ersetzen, 3 = abbrechen.
    virtual int16_t VerschiebenDateiExistiert(const std::string& text) = 0;
};
