#include "ui/frmMain.h"

#include "app/Kartei.h"

#include <QLabel>

frmMain::frmMain(Kartei& k, QWidget* parent) : QMainWindow(parent), k_(k) {
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(QString::fromStdString(ProgrammTitelMitVersion()));
    resize(800, 560);
}
