#pragma once
// Die Oberfläche des Fensterprogramms: echte Meldungsfenster und Dialoge.
#include "app/Oberflaeche.h"

#include <functional>

class QWidget;

class GuiOberfläche final : public Oberfläche {
public:
    // besitzer liefert das Fenster, dem Meldungen gehören (kann nullptr liefern).
    explicit GuiOberfläche(std::function<QWidget*()> besitzer) : besitzer_(std::move(besitzer)) {}

    int MeldungZeigen(const std::string& text, int schalter) override;
    void TitelNachrichtZeigen(const std::string& text, int32_t verzögerungMs) override;
    void EreignisseVerarbeiten() override;
    void FortschrittDarstellen(const FortschrittAnsicht& ansicht) override;
    NichtVerfügbarAntwort DateiNichtVerfügbar(const std::string& pfad, const std::string& text,
                                              const std::function<bool()>& dateiDa) override;
    bool NamenEingeben(const std::string& titel, const std::string& knopf, std::string& text,
                       int32_t auswahlStart, int32_t auswahlLänge) override;
    bool OrdnerWählen(const std::string& titel, std::string& ordner) override;
    bool DateienWählen(const std::string& titel, const std::string& filter,
                       std::vector<std::string>& dateien) override;

    // Das Hauptfenster hängt sich hier ein (Titeltexte, Fortschrittsfenster).
    std::function<void(const std::string&, int32_t)> titelNachricht;
    std::function<void(const FortschrittAnsicht&)> fortschritt;

private:
    std::function<QWidget*()> besitzer_;
};
