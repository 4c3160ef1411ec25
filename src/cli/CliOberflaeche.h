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
    // Die Kommandozeile hat kein Fenster: ein Bild geht an bildÖffnen (etwa das Standardprogramm).
    void BildAnzeigen(const std::string& pfad) override;
    std::function<void(const std::string&)> bildÖffnen;
    // Die Kommandozeile fragt nach keinem Programm: die Frage gilt als abgebrochen.
    bool AusführenMitWählen(std::string&, const std::function<bool(const std::string&)>&) override { return false; }
    // Ohne --yes abbrechen, mit --yes umbenennen (-0, -1, …): nie ungefragt ersetzen.
    int16_t VerschiebenDateiExistiert(const std::string& text) override;

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
