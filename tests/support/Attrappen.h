#pragma once
// Attrappen aller Schnittstellen für Tests. Die Oberfläche schreibt jede Meldung mit und
// antwortet aus einem Skript; eine ungeplante Frage lässt den Test scheitern.
#include "app/Dienste.h"
#include "app/Kartei.h"
#include "app/Oberflaeche.h"

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

struct AufgezeichneteMeldung {
    std::string text;
    int schalter;
};

class TestOberfläche final : public Oberfläche {
public:
    // Skript: Antworten auf Meldungen mit Knöpfen (Ja/Nein/Abbrechen), in Reihenfolge.
    std::deque<int> antworten;
    std::deque<NichtVerfügbarAntwort> nichtVerfügbarAntworten;
    // Jede Frage "Datei nicht verfügbar" mit Pfad und Hinweistext.
    struct NichtVerfügbarFrage {
        std::string pfad, text;
    };
    std::vector<NichtVerfügbarFrage> nichtVerfügbarFragen;
    // Läuft, während die Frage offen ist (etwa: den Datenträger "einlegen"). Ist die Datei danach
    // da, endet die Frage von selbst mit Weiter, ohne eine Antwort aus dem Skript zu nehmen.
    std::function<void()> währendNichtVerfügbar;
    std::deque<std::string> namen;  // Antworten auf NamenEingeben ("" am Anfang = Abbrechen mit "\x01")
    // Jede Frage nach einem Namen, wie sie gestellt wurde.
    struct NamenFrage {
        std::string titel, knopf, text;
        int32_t auswahlStart, auswahlLänge;
    };
    std::vector<NamenFrage> namenFragen;
    std::deque<std::string> ordner;
    std::deque<std::vector<std::string>> dateiListen;
    std::deque<int16_t> existiertAntworten;  // frmVerschiebenDateiExistiert: 1, 2 oder 3
    std::vector<std::string> existiertFragen;

    std::vector<AufgezeichneteMeldung> meldungen;
    std::vector<std::string> titelTexte;
    std::vector<FortschrittAnsicht> fortschritte;
    int ereignisRunden = 0;
    // Wird bei jedem EreignisseVerarbeiten aufgerufen (z. B. um "Abbrechen" zu drücken).
    std::function<void()> beiEreignissen;

    int MeldungZeigen(const std::string& text, int schalter) override;
    void TitelNachrichtZeigen(const std::string& text, int32_t) override { titelTexte.push_back(text); }
    void EreignisseVerarbeiten() override;
    void FortschrittDarstellen(const FortschrittAnsicht& a) override { fortschritte.push_back(a); }
    NichtVerfügbarAntwort DateiNichtVerfügbar(const std::string& pfad, const std::string& text,
                                              const std::function<bool()>& dateiDa) override;
    bool NamenEingeben(const std::string& titel, const std::string& knopf, std::string& text, int32_t start,
                       int32_t länge) override;
    bool OrdnerWählen(const std::string&, std::string& ordner) override;
    bool DateienWählen(const std::string&, const std::string&, std::vector<std::string>& dateien) override;
    std::vector<std::string> bilder;               // jedes gezeigte Bild
    std::deque<std::string> ausführenMitEingaben;  // Eingaben in "Ausführen mit"; leer = Abbrechen
    void BildAnzeigen(const std::string& pfad) override { bilder.push_back(pfad); }
    bool AusführenMitWählen(std::string& programm, const std::function<bool(const std::string&)>& prüfen) override;
    int16_t VerschiebenDateiExistiert(const std::string& text) override;
};

class TestRegistrierung final : public Registrierung {
public:
    std::map<std::string, RegistrierungsWert> werte;
    bool öffnenGelingt = true;
    bool angelegt = false;
    int schließenAnzahl = 0;
    std::string standardAudioBefehl;  // was die Standardanwendung für audio/mpeg liefert
    bool SchlüsselÖffnen() override { return öffnenGelingt; }
    bool SchlüsselAnlegen() override { return angelegt = öffnenGelingt = true; }
    bool Schließen() override { return ++schließenAnzahl > 0; }
    std::string StandardAudioBefehl() override { return standardAudioBefehl; }
    std::optional<RegistrierungsWert> WertLesen(const std::string& name) override;
    bool TextSetzen(const std::string& name, const std::string& wert) override;
    bool ZahlSetzen(const std::string& name, int32_t wert) override;
    bool WertLöschen(const std::string& name) override { return werte.erase(name) > 0; }
};

// Ein Spieler, dessen Antworten der Test festlegt; schreibt jede Nachricht mit.
class TestSpieler final : public Spielerfenster {
public:
    int64_t fenster = 0;  // 0: kein Spieler
    std::string titel;
    std::map<uint32_t, int32_t> antworten;  // Nachricht → Ergebnis
    // Wenn gesetzt, antwortet sie statt der Tabelle (Nachricht, wParam, lParam → Ergebnis).
    std::function<int32_t(uint32_t, int32_t, int32_t)> beantworten;
    struct Nachricht {
        uint32_t nachricht;
        int32_t wParam, lParam;
    };
    std::vector<Nachricht> gesendet;
    int64_t FensterFinden(const std::string&) override { return fenster; }
    int32_t NachrichtSenden(int64_t, uint32_t n, int32_t w, int32_t l) override;
    std::string FensterText(int64_t) override { return titel; }
};

class TestShell final : public Shell {
public:
    std::vector<std::string> geöffnet, papierkorb, zwischenablage;
    struct Start {
        std::string programm;
        std::vector<std::string> argumente;
    };
    std::vector<Start> gestartet;
    bool gelingt = true;
    std::function<void(const Start&)> beiStart;  // läuft bei jedem ProgrammStarten
    bool Öffnen(const std::string& ziel) override;
    int64_t ProgrammStarten(const std::string& p, const std::vector<std::string>& a, bool) override;
    bool InPapierkorb(const std::string& pfad, std::string& fehler) override;
    bool InZwischenablage(const std::string& text) override;
};

class TestDatenträger final : public Datenträger {
public:
    std::map<std::string, std::string> wurzeln;  // Präfix → Wurzel; sonst "/"
    std::map<std::string, bool> wechselmedien;
    std::map<std::string, std::string> bezeichnungen;
    std::string Wurzel(const std::string& pfad) override;
    bool IstWechselmedium(const std::string& w) override { return wechselmedien.count(w) && wechselmedien[w]; }
    std::string Bezeichnung(const std::string& w) override { return bezeichnungen.count(w) ? bezeichnungen[w] : ""; }
};

class TestUhr final : public Uhr {
public:
    Datum jetzt{2001, 11, 16, 20, 15, 0};
    int64_t ms = 0;
    int64_t schrittMs = 0;  // je Abfrage weiter (für Warteschleifen)
    Datum Jetzt() override;
    int64_t Millisekunden() override { return ms += schrittMs; }
};

class TestZufall final : public Zufall {
public:
    std::deque<double> werte;  // leer: 0.5
    double Nächste() override;
};

// Alle Attrappen und eine frische Kartei darüber.
struct TestUmgebung {
    TestOberfläche ui;
    TestRegistrierung registrierung;
    TestSpieler spieler;
    TestShell shell;
    TestDatenträger datenträger;
    TestUhr uhr;
    TestZufall zufall;
    Kartei k{Dienste{ui, registrierung, spieler, shell, datenträger, uhr, zufall}};
};
