#include "ui/LinkLabel.h"

#include <QKeyEvent>
#include <QMouseEvent>

LinkLabel::LinkLabel(const QString& name, const QString& text, QWidget* eltern) : QLabel(text, eltern) {
    setObjectName(name);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
    setTextFormat(Qt::PlainText);
    setAccessibleName(text);
    Aktualisieren();
}

void LinkLabel::FarbenSetzen(const QColor& farbe, const QColor& besucht, bool unterstreichen) {
    farbe_ = farbe;
    besuchtFarbe_ = besucht;
    unterstreichen_ = unterstreichen;
    Aktualisieren();
}

void LinkLabel::HoverSetzen(bool an) {
    if (hover_ == an) return;
    hover_ = an;
    Aktualisieren();
}

void LinkLabel::Zurücksetzen() {
    besucht_ = false;
    Aktualisieren();
}

void LinkLabel::Aktualisieren() {
    QFont f = font();
    f.setUnderline(hover_ || unterstreichen_ || hasFocus());
    setFont(f);
    QPalette p = palette();
    const QColor farbe = besucht_ ? besuchtFarbe_ : farbe_;
    if (farbe.isValid()) p.setColor(QPalette::WindowText, farbe);
    setPalette(p);
}

void LinkLabel::Klicken() {
    besucht_ = true;
    Aktualisieren();
    emit geklickt();
}

void LinkLabel::mouseReleaseEvent(QMouseEvent* ereignis) {
    if (ereignis->button() == Qt::LeftButton && rect().contains(ereignis->position().toPoint()) && isEnabled())
        Klicken();
    QLabel::mouseReleaseEvent(ereignis);
}

void LinkLabel::enterEvent(QEnterEvent* ereignis) {
    emit mausDarauf(this);
    QLabel::enterEvent(ereignis);
}

void LinkLabel::keyPressEvent(QKeyEvent* ereignis) {
    if (ereignis->key() == Qt::Key_Space || ereignis->key() == Qt::Key_Return || ereignis->key() == Qt::Key_Enter) {
        Klicken();
        return;
    }
    QLabel::keyPressEvent(ereignis);
}

void LinkLabel::focusInEvent(QFocusEvent* ereignis) {
    Aktualisieren();
    QLabel::focusInEvent(ereignis);
}

void LinkLabel::focusOutEvent(QFocusEvent* ereignis) {
    Aktualisieren();
    QLabel::focusOutEvent(ereignis);
}

void KlickLabel::mouseReleaseEvent(QMouseEvent* ereignis) {
    if (ereignis->button() == Qt::LeftButton && rect().contains(ereignis->position().toPoint())) emit geklickt();
    QLabel::mouseReleaseEvent(ereignis);
}
