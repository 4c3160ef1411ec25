#include "ui/Farben.h"

#include "settings/Einstellungen.h"
#include "settings/FarbProfile.h"
#include "ui/LinkLabel.h"
#include "ui/Umrechnung.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QLabel>

namespace {
const char* const kRolle = "farbrolle";

bool IstProgrammDialog(QObject* objekt) {
    auto* dialog = qobject_cast<QDialog*>(objekt);
    return dialog && dialog->isWindow() && dialog->objectName().startsWith(QStringLiteral("frm"));
}
}  // namespace

void FarbRolleSetzen(QWidget* w, const char* rolle) { w->setProperty(kRolle, QString::fromUtf8(rolle)); }

namespace {
// Nur aktiv und inaktiv: gesperrte Steuerelemente sollen gesperrt aussehen.
void Setzen(QPalette& p, QPalette::ColorRole rolle, const QColor& farbe) {
    p.setColor(QPalette::Active, rolle, farbe);
    p.setColor(QPalette::Inactive, rolle, farbe);
}
}  // namespace

void PaletteFarbe(QWidget* w, int rolle, const QColor& farbe) {
    QPalette p = w->palette();
    Setzen(p, static_cast<QPalette::ColorRole>(rolle), farbe);
    w->setPalette(p);
}

void FensterFarbenAnwenden(QWidget* fenster, const Farbsatz& f) {
    // Die Palette des Fensters erben alle Steuerelemente, die keine eigene Rolle haben.
    QPalette p = fenster->palette();
    p.setColor(QPalette::Window, FarbeAusWert(f.FunktionenHintergrund));  // auch gesperrt
    Setzen(p, QPalette::WindowText, FarbeAusWert(f.Beschreibungen));
    Setzen(p, QPalette::Base, FarbeAusWert(f.ListenHintergrund));
    Setzen(p, QPalette::AlternateBase, FarbeAusWert(f.ListenHintergrund));
    Setzen(p, QPalette::Text, FarbeAusWert(f.Listen));
    fenster->setPalette(p);
    fenster->setAutoFillBackground(true);
    for (QWidget* w : fenster->findChildren<QWidget*>()) {
        const QString rolle = w->property(kRolle).toString();
        if (rolle == QStringLiteral("überschrift")) PaletteFarbe(w, QPalette::WindowText, FarbeAusWert(f.Überschrift));
        else if (rolle == QStringLiteral("funktion")) PaletteFarbe(w, QPalette::WindowText, FarbeAusWert(f.Funktionen));
        if (auto* verweis = qobject_cast<LinkLabel*>(w))
            verweis->FarbenSetzen(FarbeAusWert(f.Funktionen), FarbeAusWert(f.FunktionenBesucht),
                                  f.FunktionenUnterstreichen == 1);
    }
}

void FensterFarbenAnwenden(QWidget* fenster, const Einstellungen& e) {
    FensterFarbenAnwenden(fenster, FarbsatzAusEinstellungen(e));
}

void OffeneFensterEinfärben(const Einstellungen& e) {
    for (QWidget* w : QApplication::topLevelWidgets())
        if (IstProgrammDialog(w) && w->isVisible()) FensterFarbenAnwenden(w, e);
}

FarbenWächter::FarbenWächter(const Einstellungen& e, QObject* eltern) : QObject(eltern), e_(e) {}

bool FarbenWächter::eventFilter(QObject* objekt, QEvent* ereignis) {
    if (ereignis->type() == QEvent::Show && IstProgrammDialog(objekt))
        FensterFarbenAnwenden(static_cast<QWidget*>(objekt), e_);
    return QObject::eventFilter(objekt, ereignis);
}
