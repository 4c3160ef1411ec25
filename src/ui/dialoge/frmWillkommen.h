#pragma once
// "Willkommen": beim allerersten Start, vor dem Hinweis.
#include <QDialog>

#include <functional>
#include <string>

class frmWillkommen final : public QDialog {
public:
    frmWillkommen(QWidget* besitzer, const std::string& text);
    frmWillkommen(const frmWillkommen&) = delete;
    frmWillkommen& operator=(const frmWillkommen&) = delete;

    std::function<void()> hilfe;  // cmdHilfe: die Infodatei öffnen
};
