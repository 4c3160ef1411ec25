#pragma once
// fraLinks3: die Tafel des Spielers in der linken Spalte – Knöpfe, Position, Lautstärke,
// Balance. Sie reicht jede Bedienung an den Kern weiter und zeigt, was der Takt sagt.
#include <QWidget>

struct Kartei;
struct SpielerAnzeige;
class QLabel;
class QPushButton;
class QSlider;

class SpielerTafel final : public QWidget {
public:
    SpielerTafel(Kartei& k, QWidget* eltern);
    SpielerTafel(const SpielerTafel&) = delete;
    SpielerTafel& operator=(const SpielerTafel&) = delete;

    // Das Ergebnis eines Takts; kopf ist lblWinampSteuerungTitel (er steht über der Tafel).
    void Anwenden(const SpielerAnzeige& a, QLabel* kopf);

private:
    QSlider* Regler(const char* name, int von, int bis, int wert);
    void Aufbauen();

    Kartei& k_;
    QPushButton* cmdAbspielen_ = nullptr;
    QPushButton* cmdAbspielenStopp_ = nullptr;
    QPushButton* cmdWinampNächster_ = nullptr;
    QPushButton* cmdWinampVorheriger_ = nullptr;
    QLabel* lblWinampSteuerungPosition_ = nullptr;
    QLabel* lblWinampSteuerungVolumen_ = nullptr;
    QLabel* lblWinampSteuerungBalance_ = nullptr;
    QSlider* hscrlTrackPos_ = nullptr;
    QSlider* hscrlVolume_ = nullptr;
    QSlider* hscrlBalance_ = nullptr;
};
