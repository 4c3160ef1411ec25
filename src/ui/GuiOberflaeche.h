#pragma once
// Die Oberfläche des Fensterprogramms: echte Meldungsfenster und Dialoge. Für Tests lassen sich
// Meldungen, Dialoge und Dateiauswahl über Skripte beantworten, statt modal zu warten.
#include "app/Oberflaeche.h"

#include <QElapsedTimer>
#include <QPointer>

#include <functional>

class QDialog;
class QString;
class QWidget;
class frmBildAnzeige;
class frmFortschritt;

// "Name|*.a;*.b|Name2|*.c" (Filter des Programms) → "Name (*.a *.b);;Name2 (*.c)" für QFileDialog.
QString QtDateiFilter(const std::string& filter);

class GuiOberfläche final : public Oberfläche {
public:
    // besitzer liefert das Fenster, dem Meldungen und Dialoge gehören (kann nullptr liefern).
    explicit GuiOberfläche(std::function<QWidget*()> besitzer);
    ~GuiOberfläche() override;
    GuiOberfläche(const GuiOberfläche&) = delete;
    GuiOberfläche& operator=(const GuiOberfläche&) = delete;

    int MeldungZeigen(const std::string& text, int schalter) override;
    void TitelNachrichtZeigen(const std::string& text, int32_t verzögerungMs) override;
    void EreignisseVerarbeiten() override;
    void FortschrittDarstellen(const FortschrittAnsicht& ansicht) override;
    NichtVerfügbarAntwort DateiNichtVerfügbar(const std::string& pfad, const std::string& text,
                                              const std::function<bool()>& dateiDa) override;
    bool NamenEingeben(const std::string& titel, const std::string& knopf, std::string& text, int32_t auswahlStart,
                       int32_t auswahlLänge) override;
    bool OrdnerWählen(const std::string& titel, std::string& ordner) override;
    bool DateienWählen(const std::string& titel, const std::string& filter, std::vector<std::string>& dateien) override;
    void BildAnzeigen(const std::string& pfad) override;
    bool AusführenMitWählen(std::string& programm, const std::function<bool(const std::string&)>& prüfen) override;
    int16_t VerschiebenDateiExistiert(const std::string& text) override;

    // Einen Dialog modal zeigen; mit dialogSkript wird er nur gezeigt und dem Skript übergeben.
    // Ergebnis: QDialog::result() danach.
    int DialogAusführen(QDialog& dialog);
    // Eine Datei zum Speichern wählen (Filter wie bei DateienWählen); false = Abbrechen.
    bool DateiZumSpeichernWählen(const std::string& titel, const std::string& filter, const std::string& start,
                                 std::string& datei);
    // Eine vorhandene Datei wählen; false = Abbrechen.
    bool DateiWählen(const std::string& titel, const std::string& filter, const std::string& start, std::string& datei);
    // Eine Farbe wählen (Farbwert wie gespeichert, Rot im niedrigsten Byte); false = Abbrechen.
    bool FarbeWählen(int32_t& farbe);
    QWidget* Besitzer() const { return besitzer_ ? besitzer_() : nullptr; }
    // Der Besitzer, wenn er zu sehen ist: ein Fenster ohne Besitzer steht in der Mitte des
    // Bildschirms statt an einem Hauptfenster, das noch gar nicht gezeigt wird.
    QWidget* SichtbarerBesitzer() const;

    // Ein Fenster über dem Besitzer (der Tag-Editor): solange es zu sehen ist, gehören ihm
    // Meldungen, Dialoge und das Fortschrittsfenster, sonst wären sie hinter ihm gesperrt.
    QPointer<QWidget> vordergrund;

    // Das Hauptfenster hängt sich hier ein.
    std::function<void(const std::string&, int32_t)> titelNachricht;
    std::function<void()> fortschrittAbbrechen;  // Knopf "Abbrechen" des Fortschrittsfensters
    std::function<void(bool)> besitzerSperren;   // true: Hauptfenster während des Fortschritts sperren

    // --- Skripte für Tests (nicht gesetzt: echte Fenster) ---
    std::function<int(const std::string& text, int schalter)> meldungsSkript;
    std::function<void(QDialog&)> dialogSkript;
    std::function<bool(std::vector<std::string>&)> dateienSkript;  // DateienWählen, DateiWählen, Speichern
    std::function<bool(std::string&)> ordnerSkript;
    std::function<bool(int32_t&)> farbSkript;

private:
    std::function<QWidget*()> besitzer_;
    QPointer<frmFortschritt> fortschritt_;  // gehört dem Besitzer, sonst uns
    QPointer<frmBildAnzeige> bildAnzeige_;  // bleibt versteckt da, um wieder gezeigt zu werden
    QElapsedTimer ereignisUhr_;
};
