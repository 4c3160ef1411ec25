#pragma once
// Exportieren: Art (Text, HTML, Playliste), Unterformat der Textform und die Zieldatei.
#include <QDialog>

#include <cstdint>
#include <vector>

struct Kartei;
class QCheckBox;
class QGroupBox;
class QLineEdit;
class QRadioButton;

class frmExportieren final : public QDialog {
public:
    // liste: die Einträge, die exportiert werden (ExportListe).
    frmExportieren(QWidget* besitzer, Kartei& k, std::vector<int32_t> liste);
    frmExportieren(const frmExportieren&) = delete;
    frmExportieren& operator=(const frmExportieren&) = delete;

private:
    int16_t Modus() const;
    void ArtGeklickt();
    void cmdDateiSuchen_Click();
    void cmdOk_Click();

    Kartei& k_;
    std::vector<int32_t> liste_;
    QRadioButton *optText_, *optHtml_, *optPlayliste_;
    QGroupBox* fraTextOptionen_;
    QRadioButton *optTextKomma_, *optTextTabulator_, *optTextSemikolon_, *optTextLeerzeichen_;
    QCheckBox* chkTextAnführungszeichen_;
    QLineEdit* txtDatei_;
};
