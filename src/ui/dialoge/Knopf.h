#pragma once
// Ein Knopf der Dialoge: Name für Tests und Verdrahtung, Text mit Kürzel, nie von selbst Vorgabe.
#include <QDialog>
#include <QHBoxLayout>
#include <QPushButton>

// Gibt einem Steuerelement seinen Namen (für Tests und Verdrahtung) und reicht es weiter.
template <typename T> T* Benannt(T* element, const char* name) {
    element->setObjectName(QString::fromUtf8(name));
    return element;
}

inline QPushButton* Knopf(QWidget* eltern, const char* name, const char* text) {
    auto* k = Benannt(new QPushButton(QString::fromUtf8(text), eltern), name);
    k->setAutoDefault(false);
    return k;
}

// Rechtsbündig OK (Vorgabe) und Abbrechen; Abbrechen verwirft den Dialog. ok erhält den Knopf.
inline QHBoxLayout* OkAbbrechenLeiste(QDialog* dialog, QPushButton*& ok, const char* okText = "OK") {
    ok = Knopf(dialog, "cmdOk", okText);
    ok->setDefault(true);
    auto* abbrechen = Knopf(dialog, "cmdAbbrechen", "Abbrechen");
    QObject::connect(abbrechen, &QPushButton::clicked, dialog, &QDialog::reject);
    auto* leiste = new QHBoxLayout;
    leiste->addStretch();
    leiste->addWidget(ok);
    leiste->addWidget(abbrechen);
    return leiste;
}
