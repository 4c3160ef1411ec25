#pragma once
// "Info": Name, Version und Urheberrechtsvermerk des Programms.
#include <QDialog>

class frmInfo final : public QDialog {
public:
    explicit frmInfo(QWidget* besitzer);
    frmInfo(const frmInfo&) = delete;
    frmInfo& operator=(const frmInfo&) = delete;
};
