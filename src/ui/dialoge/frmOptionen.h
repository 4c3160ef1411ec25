#pragma once
// Die Programm-Optionen: Seiten für alle Einstellungen, Farbprofile mit Mustern, Zurücksetzen.
// Aufgeteilt auf frmOptionen.cpp (Seiten, Übernehmen) und frmOptionenFarben.cpp (Farbseite).
#include "settings/Optionen.h"

#include <QDialog>

#include <functional>
#include <variant>
#include <vector>

struct Kartei;
class GuiOberfläche;
class QCheckBox;
class QComboBox;
class QFrame;
class QLabel;
class QLineEdit;
class QListWidget;
class QStackedWidget;
class QTableWidget;
class QVBoxLayout;

class frmOptionen final : public QDialog {
public:
    frmOptionen(QWidget* besitzer, Kartei& k, GuiOberfläche& ui);
    frmOptionen(const frmOptionen&) = delete;
    frmOptionen& operator=(const frmOptionen&) = delete;

    // Vom Hauptfenster: Indexdatei wählen (frmIndexÖffnen) und die Farben dort anwenden.
    std::function<void()> indexÖffnen;
    std::function<void()> farbenAnwenden;

    // Seite nach ihrem Namen zeigen (für Bildschirmfotos und Tests).
    void SeiteZeigen(int nummer);

private:
    // Ein Steuerelement, das genau einen Wert der Arbeitskopie zeigt.
    using Ziel = std::variant<int16_t Einstellungen::*, int32_t Einstellungen::*, std::string Einstellungen::*>;
    struct Bindung {
        QWidget* element;
        Ziel ziel;
    };

    QVBoxLayout* Seite(const char* name, const char* titel);
    QCheckBox* Haken(QVBoxLayout* seite, Ziel ziel, const char* wert, const char* text);
    QLineEdit* Feld(QVBoxLayout* seite, const char* name, const char* text);
    QLineEdit* Textfeld(QVBoxLayout* seite, Ziel ziel, const char* wert, const char* text);
    QLabel* Überschrift(QVBoxLayout* seite, const char* text);
    void SeiteAllgemein();
    void SeiteSuche();
    void SeiteHinzufügen();
    void SeiteTags();
    void SeiteAbspielen();
    void SeiteFarben();
    void SeiteWeitere();

    void Anzeigen();
    void Einsammeln();
    void MusterAnzeigen();
    void cboFarbProfile_Click(int profil);
    void FarbeÄndern(int32_t Einstellungen::*farbe);
    void cmdWinampPfad_Click();
    void cmdIndexOptionen_Click();
    void cmdRücksetzen_Click();
    void cmdOk_Click();

    Kartei& k_;
    GuiOberfläche& ui_;
    OptionenEingabe eingabe_;
    std::vector<Bindung> bindungen_;

    QListWidget* optOptionen_;
    QStackedWidget* seiten_;
    QComboBox* cboBeendenAktion_ = nullptr;
    QCheckBox *chkRegelmäßigSpeichern_ = nullptr, *chkTipps_ = nullptr;
    QLineEdit *txtRegelmäßigSpeichern_ = nullptr, *txtID3v2Reserve_ = nullptr, *txtID3v2Suchen_ = nullptr;
    QCheckBox *chkID3auslesenV1_ = nullptr, *chkID3auslesenV2_ = nullptr, *chkID3auslesenHeader_ = nullptr;
    QComboBox* cboFarbProfile_ = nullptr;
    QCheckBox* chkFunktionenUnterstreichen_ = nullptr;
    QFrame* fraBeispiel_ = nullptr;
    QLabel *lblBeispielFunktionen_ = nullptr, *lblBeispielBeschreibungen_ = nullptr;
    QLabel *lblBeispielÜberschrift_ = nullptr, *lblBeispielFunktionenBesucht_ = nullptr;
    QListWidget* lstBeispielListe_ = nullptr;
    QTableWidget* tblWeitere_ = nullptr;
};
