#pragma once
// Ein Knopf der Dialoge: Name für Tests und Verdrahtung, Text mit Kürzel, nie von selbst Vorgabe.
#include <QPushButton>

inline QPushButton* Knopf(QWidget* eltern, const char* name, const char* text) {
    auto* k = new QPushButton(QString::fromUtf8(text), eltern);
    k->setObjectName(QString::fromUtf8(name));
    k->setAutoDefault(false);
    return k;
}
