#pragma once
// Die eine Stelle, an der die Farben der Einstellungen auf Fenster kommen: Hintergrund und
// Beschreibungen, Listen und Eingabefelder, Überschriften, Verweise (Funktionen, besucht,
// unterstrichen). Das Hauptfenster ordnet seine Teile selbst zu und benutzt dieselben Helfer.
#include <QObject>

struct Einstellungen;
struct Farbsatz;
class QColor;
class QWidget;

// Rolle eines Textes für die Farben: "überschrift" oder "funktion"; ohne Rolle ist er eine
// Beschreibung.
void FarbRolleSetzen(QWidget* w, const char* rolle);

// Eine Farbe für eine Rolle der Palette eines Steuerelements.
void PaletteFarbe(QWidget* w, int rolle, const QColor& farbe);

// Alle Farben auf ein Fenster und seine Steuerelemente.
void FensterFarbenAnwenden(QWidget* fenster, const Farbsatz& f);
void FensterFarbenAnwenden(QWidget* fenster, const Einstellungen& e);

// Nach einer Änderung der Farben: alle offenen Dialoge des Programms neu einfärben.
void OffeneFensterEinfärben(const Einstellungen& e);

// Färbt jeden Dialog des Programms ("frm…") ein, wenn er erscheint.
class FarbenWächter final : public QObject {
public:
    FarbenWächter(const Einstellungen& e, QObject* eltern);

protected:
    bool eventFilter(QObject* objekt, QEvent* ereignis) override;

private:
    const Einstellungen& e_;
};
