#pragma once
// frmMp3TagFeldFüllen: welche Felder "Felder kopieren..." übernimmt.
#include <QDialog>

#include <cstdint>
#include <vector>

struct Kartei;
class QListWidget;

class frmMp3TagFeldFüllen final : public QDialog {
public:
    frmMp3TagFeldFüllen(QWidget* besitzer, Kartei& k);
    frmMp3TagFeldFüllen(const frmMp3TagFeldFüllen&) = delete;
    frmMp3TagFeldFüllen& operator=(const frmMp3TagFeldFüllen&) = delete;

    // Die angehakten Felder, Nummern in TagKopierFelder.
    std::vector<int32_t> Felder() const;

private:
    Kartei& k_;
    QListWidget* lstFelder_;
};
