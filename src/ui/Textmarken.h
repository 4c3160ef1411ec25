#pragma once
// Schreibmarke und Markierung: der Kern zählt Zeichen (Codepunkte), Qt zählt UTF-16-Einheiten.
#include <QLineEdit>
#include <QString>

#include <cstdint>

// Zahl der Zeichen vor der UTF-16-Stelle stelle.
inline int32_t ZeichenVor(const QString& text, int stelle) {
    int32_t zeichen = 0;
    for (int i = 0; i < stelle && i < text.size(); ++i)
        if (!text[i].isLowSurrogate()) ++zeichen;
    return zeichen;
}

// Die UTF-16-Stelle vor dem Zeichen zeichen (hinter dem Text, wenn es so viele nicht gibt).
inline int StelleVonZeichen(const QString& text, int32_t zeichen) {
    int i = 0;
    for (int32_t z = 0; i < text.size() && z < zeichen; ++z) i += text[i].isHighSurrogate() ? 2 : 1;
    return i < text.size() ? i : static_cast<int>(text.size());
}

// Markierung ab Zeichen start über länge Zeichen; ohne Länge nur die Schreibmarke.
inline void MarkeSetzen(QLineEdit& feld, const QString& text, int32_t start, int32_t länge) {
    const int von = StelleVonZeichen(text, start < 0 ? 0 : start);
    if (länge <= 0) {
        feld.setCursorPosition(von);
        return;
    }
    feld.setSelection(von, StelleVonZeichen(text, start + länge) - von);
}
