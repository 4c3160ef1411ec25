#pragma once
// frmMp3Tag ("Medien-Informationen"): zeigt und bearbeitet die Tags der gewählten Dateien, eine
// nach der anderen. Das Fenster gleicht nur seine Steuerelemente mit TagEditorAnsicht ab; jede
// Entscheidung trifft der Kern (tags/TagEditor.h). Aufbau in frmMp3TagAufbau.cpp.
#include "tags/TagEditor.h"

#include <QDialog>

#include <utility>
#include <vector>

struct Kartei;
class GuiOberfläche;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTabWidget;

class frmMp3Tag final : public QDialog {
public:
    frmMp3Tag(QWidget* besitzer, Kartei& k, GuiOberfläche& ui);
    ~frmMp3Tag() override;
    frmMp3Tag(const frmMp3Tag&) = delete;
    frmMp3Tag& operator=(const frmMp3Tag&) = delete;

    // TagEditorÖffnen; true, wenn eine Datei geladen ist und das Fenster gezeigt werden soll.
    bool Öffnen(const std::vector<int32_t>& einträge);
    const TagEditor& Editor() const { return e_; }

protected:
    void reject() override;
    bool eventFilter(QObject* objekt, QEvent* ereignis) override;

private:
    void Aufbauen();
    QWidget* SeiteV1();
    QWidget* SeiteV2();
    QWidget* SeiteIndex();
    QWidget* SeiteInfos();
    QWidget* LeisteFunktionen();
    void Verbinden();

    // Ansicht ↔ Steuerelemente
    void AnsichtZeigen();
    void AnsichtLesen();
    // Liest die Steuerelemente, führt die Kernroutine aus und zeigt das Ergebnis.
    template <typename F> void Ausführen(F&& routine);

    void cmdFunktionAusführen_Click();
    void cboFunktion_Click(int index);

    Kartei& k_;
    GuiOberfläche& ui_;
    TagEditor e_;
    bool zeigen_ = false;  // AnsichtZeigen läuft: Signale der Steuerelemente zählen nicht

    std::vector<std::pair<const TagEditorTextfeld*, QLineEdit*>> textfelder_;
    QComboBox* txtDateiname_ = nullptr;
    QPushButton *cmdVorheriger_ = nullptr, *cmdNächster_ = nullptr;
    QTabWidget* tabs_ = nullptr;
    QComboBox* cboMusikrichtung_ = nullptr;
    QComboBox* cbov2Musikrichtung_ = nullptr;
    QLineEdit *txtIndexHinzugefügtAm_ = nullptr, *txtIndexDatenträger_ = nullptr, *txtIndexAbspielAnzahl_ = nullptr,
              *txtIndexAbspielDatum_ = nullptr;
    QLabel *lblTrackInfos_ = nullptr, *lblID3v1Info_ = nullptr, *lblID3v2Info_ = nullptr;
    QPushButton *cmdTAGEntfernen_ = nullptr, *cmdTAGEntfernenv2_ = nullptr;
    QPushButton *cmdTAGSpeichern_ = nullptr, *cmdTagSpeichernV2_ = nullptr, *cmdTAGSpeichernFelder_ = nullptr;
    QPushButton *cmdTAGSpeichernAlles_ = nullptr, *cmdOk_ = nullptr;
    QPushButton *cmdDatenKopierenNachV1_ = nullptr, *cmdDatenKopierenNachV2_ = nullptr;
    QCheckBox *chkAutomatischSpeichern_ = nullptr, *chkAutomatischSpeichernV2_ = nullptr,
              *chkAutomatischSpeichernFelder_ = nullptr;
    QComboBox *cboFunktion_ = nullptr, *cboFunktionTAG_ = nullptr;
    QPushButton* cmdFunktionAusführen_ = nullptr;
};

// cmdMp3TagAnzeigen: den Editor für die Einträge modal über besitzer zeigen.
void TagEditorZeigen(QWidget* besitzer, Kartei& k, GuiOberfläche& ui, const std::vector<int32_t>& einträge);
