#pragma once
// Ein Befehl wie ein Verweis: Text in der Farbe der Funktionen, beim Überfahren unterstrichen,
// nach dem Klick in der Farbe der besuchten Funktionen. Auch mit Tab, Leertaste und Eingabe.
#include <QColor>
#include <QLabel>

class LinkLabel final : public QLabel {
    Q_OBJECT
public:
    LinkLabel(const QString& name, const QString& text, QWidget* eltern);
    LinkLabel(const LinkLabel&) = delete;
    LinkLabel& operator=(const LinkLabel&) = delete;

    // farbe: FarbeFunktionen, besucht: FarbeFunktionenBesucht; unterstreichen: FunktionenUnterstreichen.
    void FarbenSetzen(const QColor& farbe, const QColor& besucht, bool unterstreichen);
    void HoverSetzen(bool an);
    void Zurücksetzen();  // wieder "nicht besucht"
    bool Besucht() const { return besucht_; }

signals:
    void geklickt();
    void mausDarauf(LinkLabel* label);

protected:
    void mouseReleaseEvent(QMouseEvent* ereignis) override;
    void enterEvent(QEnterEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    void focusInEvent(QFocusEvent* ereignis) override;
    void focusOutEvent(QFocusEvent* ereignis) override;

private:
    void Aktualisieren();
    void Klicken();

    QColor farbe_, besuchtFarbe_;
    bool unterstreichen_ = false;
    bool hover_ = false;
    bool besucht_ = false;
};

// Ein Text, der auf Klicks hört (die Zeilen unter dem Namen der Indexdatei).
class KlickLabel final : public QLabel {
    Q_OBJECT
public:
    KlickLabel(const QString& name, QWidget* eltern) : QLabel(eltern) { setObjectName(name); }

signals:
    void geklickt();

protected:
    void mouseReleaseEvent(QMouseEvent* ereignis) override;
};
