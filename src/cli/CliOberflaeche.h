#pragma once
// Die Oberfläche der Kommandozeile: Meldungen auf stderr, Fragen werden mit Nein/Abbrechen
// beantwortet, außer --yes ist gesetzt; Fortschritt als Balken, wenn stderr ein Terminal ist.
#include "app/Oberflaeche.h"

class CliOberfläche final : public Oberfläche {
public:
    explicit CliOberfläche(bool ja) : ja_(ja) {}

    int MeldungZeigen(const std::string& text, int schalter) override;
    void TitelNachrichtZeigen(const std::string& text, int32_t verzögerungMs) override;
    void EreignisseVerarbeiten() override {}
    void FortschrittDarstellen(const FortschrittAnsicht& ansicht) override;
    NichtVerfügbarAntwort DateiNichtVerfügbar(const std::string& pfad, const std::string& text,
                                              const std::function<bool()>& dateiDa) override;
    bool NamenEingeben(const std::string& titel, const std::string& knopf, std::string& text, int32_t,
                       int32_t) override;
    bool OrdnerWählen(const std::string& titel, std::string& ordner) override;
    bool DateienWählen(const std::string& titel, const std::string& filter, std::vector<std::string>& dateien) override;
    // Ein Bild öffnet das Standardprogramm über diese Funktion (die Kommandozeile hat kein Fenster).
    void BildAnzeigen(const std::string& pfad) override;
    std::function<void(const std::string&)> bildÖffnen;
    // Das Programm nennt der Schalter --program; ohne ihn gilt die Frage als abgebrochen.
    bool AusführenMitWählen(std::string& programm, const std::function<bool(const std::string&)>& prüfen) override;
    std::string ausführenMit;

    // Fragen mit drei Knöpfen (Ja/Nein/Abbrechen) auch mit --yes abbrechen (export: niemand
    // soll ungefragt ein Anzeigeprogramm bekommen).
    void DreiKnopfFragenAbbrechen() { dreiKnöpfeAbbrechen_ = true; }

    // Der letzte Titeltext (Statuszeile), für Befehle, die ihn ausgeben.
    const std::string& LetzterTitelText() const { return letzterTitel_; }

private:
    bool ja_;
    bool dreiKnöpfeAbbrechen_ = false;
    bool terminal_ = false;
    bool balkenOffen_ = false;
    int32_t letzteBreite_ = -1;
    std::string letzterTitel_;
};
