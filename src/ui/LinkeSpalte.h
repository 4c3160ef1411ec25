#pragma once
// Die linke Spalte des Hauptfensters: Befehle wie Verweise, in Gruppen. fraLinks2 braucht einen
// offenen Index, fraNurBeiAusgewählt eine Auswahl; fraLinks3 gehört dem Spieler.
#include <QFrame>
#include <QHash>

struct Einstellungen;
struct FensterBefehle;
class QAction;
class LinkLabel;
class QLabel;

class LinkeSpalte final : public QFrame {
    Q_OBJECT
public:
    // Jeder Verweis löst die Aktion seines Befehls aus.
    LinkeSpalte(const FensterBefehle& befehle, QWidget* eltern);
    LinkeSpalte(const LinkeSpalte&) = delete;
    LinkeSpalte& operator=(const LinkeSpalte&) = delete;

    void FarbenAnwenden(const Einstellungen& e);
    LinkLabel* Verweis(const QAction* befehl) const { return verweise_.value(befehl); }
    QWidget* fraLinks2() const { return fraLinks2_; }
    QWidget* fraNurBeiAusgewählt() const { return fraNurBeiAusgewählt_; }
    QLabel* lblDateiAnzahl() const { return lblDateiAnzahl_; }
    QLabel* lblWinampSteuerungTitel() const { return lblWinampSteuerungTitel_; }
    // Die Tafel des Spielers (fraLinks3) kommt unter lblWinampSteuerungTitel.
    void SpielerTafelEinsetzen(QWidget* tafel);

protected:
    void mouseMoveEvent(QMouseEvent* ereignis) override;
    void leaveEvent(QEvent* ereignis) override;

private:
    QWidget* Gruppe(const QString& name, const QString& überschrift, QWidget* eltern);
    void Hinzufügen(QWidget* gruppe, QAction* befehl);
    void Hover(LinkLabel* label);

    QHash<const QAction*, LinkLabel*> verweise_;
    QList<QLabel*> überschriften_;
    QWidget* fraLinks2_ = nullptr;
    QWidget* fraNurBeiAusgewählt_ = nullptr;
    QLabel* lblDateiAnzahl_ = nullptr;
    QLabel* lblWinampSteuerungTitel_ = nullptr;
    LinkLabel* hover_ = nullptr;
};
