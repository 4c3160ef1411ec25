#pragma once
// Dateinamen oder Indexeinträge ändern: eine der neun Funktionen wählen, ihre Eingaben machen,
// und die Umbenennung über die gewählten Einträge laufen lassen.
#include "fileops/Umbenennen.h"

#include <QDialog>

#include <cstdint>
#include <vector>

struct Kartei;
class QCheckBox;
class QLineEdit;
class QListWidget;
class QRadioButton;
class QStackedWidget;

class frmUmbenennen final : public QDialog {
public:
    frmUmbenennen(QWidget* besitzer, Kartei& k, std::vector<int32_t> liste);
    frmUmbenennen(const frmUmbenennen&) = delete;
    frmUmbenennen& operator=(const frmUmbenennen&) = delete;

    // Was die Steuerelemente gerade sagen (Code der gewählten Funktion, alle Eingaben).
    UmbenennenEingaben Eingaben() const;

private:
    QWidget* SeiteFeld(int32_t position, const std::vector<std::pair<const char*, QLineEdit*>>& felder,
                       const char* hinweis);
    QWidget* SeiteSchreibweise();
    QWidget* SeiteAttribute();
    void EingabenSetzen(const UmbenennenEingaben& e);
    int GewählteZeile() const;
    void lstFunktionen_Click();
    void cmdOk_Click();

    Kartei& k_;
    std::vector<int32_t> liste_;
    QListWidget* lstFunktionen_;
    QStackedWidget* fraOptionen_;
    QLineEdit *txtFormat_, *txtErsetzen_, *txtErsetzenDurch_, *txtFortlaufendBasis1_, *txtFortlaufendZählen1_,
        *txtFortlaufendBasis2_, *txtDateiendung_, *txtErsetzenEndung_;
    QRadioButton *optKleinschreibung_, *optGrossschreibung_, *optKleinErstenGross_, *optKleinWörterGross_;
    QCheckBox *chkAttributSchreibschutz_, *chkAttributVersteckt_, *chkAttributSystem_, *chkAttributArchiv_;
};
