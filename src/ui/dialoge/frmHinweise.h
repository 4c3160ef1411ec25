#pragma once
// Der Hinweis beim Start: blättern mit Vor und Zurück, abschalten mit dem Haken.
#include <QDialog>

#include <cstdint>

struct Kartei;
class QCheckBox;
class QPlainTextEdit;

class frmHinweise final : public QDialog {
public:
    // tipp: der Hinweis, der zuerst erscheint; chkWiederZeigen ist angehakt.
    frmHinweise(QWidget* besitzer, Kartei& k, int32_t tipp);
    frmHinweise(const frmHinweise&) = delete;
    frmHinweise& operator=(const frmHinweise&) = delete;

    int32_t Tipp() const { return tag_; }

private:
    void Zeigen(int32_t nummer);
    void cmdOk_Click();

    Kartei& k_;
    int32_t tag_ = 1;  // txtTipp.Tag: Nummer des gezeigten Hinweises
    QPlainTextEdit* txtTipp_;
    QCheckBox* chkWiederZeigen_;
};
