// Das Eingabefeld für einen Namen: vorbelegt, der Name ohne Endung gewählt.
#include "ui/dialoge/frmDateiname.h"

#include "ui/Umrechnung.h"
#include "ui/dialoge/Knopf.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QVBoxLayout>

frmDateiname::frmDateiname(QWidget* besitzer, const std::string& titel, const std::string& knopf,
                           const std::string& text, int32_t auswahlStart, int32_t auswahlLänge)
    : QDialog(besitzer) {
    setObjectName(QStringLiteral("frmDateiname"));
    setWindowTitle(Q(titel));
    txtDateiname_ = Benannt(new QLineEdit(Q(text), this), "txtDateiname");
    txtDateiname_->setMinimumWidth(520);
    QPushButton* cmdOk = nullptr;
    auto* knöpfe = OkAbbrechenLeiste(this, cmdOk, knopf.c_str());
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(txtDateiname_);
    layout->addLayout(knöpfe);
    if (auswahlLänge > 0) txtDateiname_->setSelection(auswahlStart - 1, auswahlLänge);
    else txtDateiname_->deselect();
    connect(cmdOk, &QPushButton::clicked, this, &QDialog::accept);
}

std::string frmDateiname::Text() const { return S(txtDateiname_->text()); }
