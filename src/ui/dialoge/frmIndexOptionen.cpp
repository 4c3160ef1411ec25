#include "ui/dialoge/frmIndexOptionen.h"

#include "app/Kartei.h"
#include "ui/Umrechnung.h"
#include "ui/dialoge/Knopf.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {
QString U(const char* text) { return QString::fromUtf8(text); }

QCheckBox* Haken(QWidget* eltern, const char* name, const char* text) {
    return Benannt(new QCheckBox(U(text), eltern), name);
}

QGroupBox* Gruppe(QWidget* eltern, const char* name, const char* titel) {
    return Benannt(new QGroupBox(U(titel), eltern), name);
}

void Haken(QListWidgetItem* zeile, bool an) {
    zeile->setFlags(zeile->flags() | Qt::ItemIsUserCheckable);
    zeile->setCheckState(an ? Qt::Checked : Qt::Unchecked);
}
}  // namespace

frmIndexOptionen::frmIndexOptionen(QWidget* besitzer, Kartei& k)
    : QDialog(besitzer), k_(k), e_(IndexOptionenEinsetzen(k)) {
    setObjectName(QStringLiteral("frmIndexOptionen"));
    setWindowTitle(QStringLiteral("Index-Optionen"));
    auto* raster = new QGridLayout;
    raster->addWidget(GruppeDateitypen(), 0, 0);
    raster->addWidget(GruppeSync(), 0, 1);
    raster->addWidget(GruppeSpalten(), 1, 0);
    raster->addWidget(GruppeDoppelklick(), 1, 1);
    auto* cmdOk = Knopf(this, "cmdOk", "OK");
    cmdOk->setDefault(true);
    auto* cmdAbbrechen = Knopf(this, "cmdAbbrechen", "Abbrechen");
    connect(cmdOk, &QPushButton::clicked, this, &frmIndexOptionen::cmdOk_Click);
    connect(cmdAbbrechen, &QPushButton::clicked, this, &QDialog::reject);
    auto* knöpfe = new QHBoxLayout;
    knöpfe->addStretch();
    knöpfe->addWidget(cmdOk);
    knöpfe->addWidget(cmdAbbrechen);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(raster, 1);
    layout->addLayout(knöpfe);
    DateitypenFüllen(0);
    SyncFüllen(0);
    resize(820, 600);
}

QWidget* frmIndexOptionen::GruppeDateitypen() {
    auto* g = Gruppe(this, "fraDateitypen", "Dateitypen verwalten");
    lstDateitypen_ = Benannt(new QListWidget(g), "lstDateitypen");
    auto* cmdHinzufügen = Knopf(g, "cmdDateitypenHinzufügen", "&Hinzufügen");
    auto* cmdEntfernen = Knopf(g, "cmdDateitypenEntfernen", "&Entfernen");
    txtDateitypEndung_ = Benannt(new QLineEdit(g), "txtDateitypEndung");
    chkDateitypMpegAudio_ = Haken(g, "chkDateitypMpegAudio", "MPEG-Audio");
    chkDateitypAudio_ = Haken(g, "chkDateitypAudio", "Audio");
    chkDateitypBilddatei_ = Haken(g, "chkDateitypBilddatei", "Bilddatei");
    auto* rechts = new QVBoxLayout;
    rechts->addWidget(cmdHinzufügen);
    rechts->addWidget(cmdEntfernen);
    rechts->addSpacing(8);
    rechts->addWidget(new QLabel(U("Datei-Endung:"), g));
    rechts->addWidget(txtDateitypEndung_);
    for (QCheckBox* c : {chkDateitypMpegAudio_, chkDateitypAudio_, chkDateitypBilddatei_}) rechts->addWidget(c);
    rechts->addStretch();
    auto* layout = new QHBoxLayout(g);
    layout->addWidget(lstDateitypen_, 1);
    layout->addLayout(rechts);

    connect(lstDateitypen_, &QListWidget::currentRowChanged, this, &frmIndexOptionen::lstDateitypen_Click);
    connect(lstDateitypen_, &QListWidget::itemChanged, this, [this](QListWidgetItem* z) {
        const int zeile = lstDateitypen_->row(z);
        if (!füllen_ && zeile >= 0) e_.typen[size_t(zeile)].an = z->checkState() == Qt::Checked;
    });
    connect(txtDateitypEndung_, &QLineEdit::textEdited, this, &frmIndexOptionen::DateitypBearbeitet);
    for (QCheckBox* c : {chkDateitypMpegAudio_, chkDateitypAudio_, chkDateitypBilddatei_})
        connect(c, &QCheckBox::toggled, this, &frmIndexOptionen::DateitypBearbeitet);
    connect(cmdHinzufügen, &QPushButton::clicked, this, [this] {
        DateitypenFüllen(DateitypHinzufügen(e_));
        txtDateitypEndung_->setFocus();
    });
    connect(cmdEntfernen, &QPushButton::clicked, this, [this] {
        const int zeile = ZeileTyp();
        if (DateitypEntfernen(k_, e_, zeile)) DateitypenFüllen(std::max(0, zeile - 1));
    });
    return g;
}

QWidget* frmIndexOptionen::GruppeSync() {
    auto* g = Gruppe(this, "fraSync", "Ordner synchronisieren");
    lstSyncOrdner_ = Benannt(new QListWidget(g), "lstSyncOrdner");
    auto* cmdHinzufügen = Knopf(g, "cmdSyncOrdnerHinzufügen", "Hin&zufügen...");
    auto* cmdÄndern = Knopf(g, "cmdSyncOrdnerÄndern", "Ä&ndern...");
    auto* cmdEntfernen = Knopf(g, "cmdSyncOrdnerEntfernen", "Ent&fernen");
    chkSyncUnterordner_ = Haken(g, "chkSyncUnterordner", "Unterordner einbeziehen");
    chkSyncKopierenInOrdner_ = Haken(g, "chkSyncKopierenInOrdner", "Neue Dateien kopieren nach:");
    txtSyncKopierenInOrdner_ = Benannt(new QLineEdit(g), "txtSyncKopierenInOrdner");
    chkSyncDanachEntfernen_ = Haken(g, "chkSyncDanachEntfernen", "Fehlende Dateien danach aus dem Index entfernen");
    auto* knöpfe = new QHBoxLayout;
    knöpfe->addWidget(cmdHinzufügen);
    knöpfe->addWidget(cmdÄndern);
    knöpfe->addWidget(cmdEntfernen);
    auto* layout = new QVBoxLayout(g);
    layout->addWidget(lstSyncOrdner_, 1);
    layout->addLayout(knöpfe);
    layout->addWidget(chkSyncUnterordner_);
    layout->addWidget(chkSyncKopierenInOrdner_);
    layout->addWidget(txtSyncKopierenInOrdner_);
    layout->addWidget(chkSyncDanachEntfernen_);
    chkSyncDanachEntfernen_->setChecked(e_.chkSyncDanachEntfernen);

    connect(lstSyncOrdner_, &QListWidget::currentRowChanged, this, &frmIndexOptionen::lstSyncOrdner_Click);
    connect(chkSyncUnterordner_, &QCheckBox::toggled, this, &frmIndexOptionen::SyncBearbeitet);
    connect(chkSyncKopierenInOrdner_, &QCheckBox::toggled, this, &frmIndexOptionen::SyncBearbeitet);
    connect(txtSyncKopierenInOrdner_, &QLineEdit::textEdited, this, &frmIndexOptionen::SyncBearbeitet);
    connect(cmdHinzufügen, &QPushButton::clicked, this, [this] { SyncOrdnerWählen(true); });
    connect(cmdÄndern, &QPushButton::clicked, this, [this] { SyncOrdnerWählen(false); });
    connect(cmdEntfernen, &QPushButton::clicked, this, [this] {
        const int zeile = ZeileSync();
        if (SyncOrdnerEntfernen(k_, e_, zeile)) SyncFüllen(std::max(0, zeile - 1));
    });
    return g;
}

QWidget* frmIndexOptionen::GruppeSpalten() {
    auto* g = Gruppe(this, "fraSpalten", "Spalten");
    lstSpalten_ = Benannt(new QListWidget(g), "lstSpalten");
    for (const auto& s : e_.spalten) Haken(new QListWidgetItem(Q(s.name), lstSpalten_), s.angehakt);
    connect(lstSpalten_, &QListWidget::itemChanged, this, [this](QListWidgetItem* z) {
        const int zeile = lstSpalten_->row(z);
        if (zeile >= 0) e_.spalten[size_t(zeile)].angehakt = z->checkState() == Qt::Checked;
    });
    chkBeschreibungsleiste_ = Haken(g, "chkBeschreibungsleiste", "Beschreibungsleiste (Spaltenköpfe) zeigen");
    chkGitter_ = Haken(g, "chkGitter", "Gitternetzlinien zeigen");
    chkBeschreibungsleiste_->setChecked(e_.chkBeschreibungsleiste);
    chkGitter_->setChecked(e_.chkGitter);
    txtSpaltenBenutzerFormat_ = Benannt(new QLineEdit(Q(e_.txtSpaltenBenutzerFormat), g), "txtSpaltenBenutzerFormat");
    auto* layout = new QVBoxLayout(g);
    layout->addWidget(lstSpalten_, 1);
    layout->addWidget(chkBeschreibungsleiste_);
    layout->addWidget(chkGitter_);
    layout->addWidget(new QLabel(U("Format der benutzerdefinierten Spalte:"), g));
    layout->addWidget(txtSpaltenBenutzerFormat_);
    return g;
}

QWidget* frmIndexOptionen::GruppeDoppelklick() {
    auto* g = Gruppe(this, "fraDoppelklick", "Bei Doppelklick in der Liste");
    optDoppelklick_ = new QButtonGroup(g);
    auto* layout = new QVBoxLayout(g);
    const struct {
        const char* name;
        const char* text;
        int wert;
    } knöpfe[] = {{"optDoppelklickMediaPlayer", "Mit dem &Media-Player abspielen", 1},
                  {"optDoppelklickStandardPlayerPlaylist", "Mit dem &Standard-Player als Playlist abspielen", 2},
                  {"optDoppelklickID3", "&TAG-Editor öffnen", 3},
                  {"optDoppelklickAusführen", "Mit einem gewählten &Programm ausführen", 4}};
    for (const auto& kn : knöpfe) {
        auto* knopf = Benannt(new QRadioButton(U(kn.text), g), kn.name);
        optDoppelklick_->addButton(knopf, kn.wert);
        layout->addWidget(knopf);
    }
    const int wert = e_.BeiDoppelklick >= 1 && e_.BeiDoppelklick <= 4 ? e_.BeiDoppelklick : 1;
    optDoppelklick_->button(wert)->setChecked(true);
    layout->addStretch();
    return g;
}

int frmIndexOptionen::ZeileTyp() const { return lstDateitypen_->currentRow(); }
int frmIndexOptionen::ZeileSync() const { return lstSyncOrdner_->currentRow(); }

void frmIndexOptionen::DateitypenFüllen(int zeile) {
    füllen_ = true;
    lstDateitypen_->clear();
    for (const auto& z : e_.typen) Haken(new QListWidgetItem(Q(DateitypAnzeige(z)), lstDateitypen_), z.an);
    füllen_ = false;
    lstDateitypen_->setCurrentRow(std::min(zeile, lstDateitypen_->count() - 1));
    lstDateitypen_Click();
}

void frmIndexOptionen::lstDateitypen_Click() {
    const int zeile = ZeileTyp();
    const bool da = zeile >= 0 && zeile < int(e_.typen.size());
    const DateitypZeile z = da ? e_.typen[size_t(zeile)] : DateitypZeile{};
    füllen_ = true;
    txtDateitypEndung_->setText(Q(z.alleWeiteren ? std::string("*") : z.endung));
    chkDateitypMpegAudio_->setChecked(z.klasse.substr(0, 1) == "1");
    chkDateitypAudio_->setChecked(z.klasse.substr(1, 1) == "1");
    chkDateitypBilddatei_->setChecked(z.klasse.substr(2, 1) == "1");
    füllen_ = false;
    // Eingebaute Zeilen: nur der Haken lässt sich ändern.
    const bool änderbar = da && DateitypÄnderbar(z);
    for (QWidget* w : std::initializer_list<QWidget*>{txtDateitypEndung_, chkDateitypMpegAudio_, chkDateitypAudio_,
                                                      chkDateitypBilddatei_})
        w->setEnabled(änderbar);
}

void frmIndexOptionen::DateitypBearbeitet() {
    const int zeile = ZeileTyp();
    if (füllen_ || zeile < 0 || zeile >= int(e_.typen.size()) || !DateitypÄnderbar(e_.typen[size_t(zeile)])) return;
    DateitypZeile& z = e_.typen[size_t(zeile)];
    z.endung = DateitypEndungNormal(S(txtDateitypEndung_->text()));
    z.klasse = std::string(chkDateitypMpegAudio_->isChecked() ? "1" : "0") +
               (chkDateitypAudio_->isChecked() ? "1" : "0") + (chkDateitypBilddatei_->isChecked() ? "1" : "0");
    füllen_ = true;
    lstDateitypen_->item(zeile)->setText(Q(DateitypAnzeige(z)));
    füllen_ = false;
}

void frmIndexOptionen::SyncFüllen(int zeile) {
    füllen_ = true;
    lstSyncOrdner_->clear();
    for (const auto& z : e_.sync) lstSyncOrdner_->addItem(Q(z.ordner));
    füllen_ = false;
    lstSyncOrdner_->setCurrentRow(std::min(zeile, lstSyncOrdner_->count() - 1));
    lstSyncOrdner_Click();
}

void frmIndexOptionen::lstSyncOrdner_Click() {
    const int zeile = ZeileSync();
    const bool da = zeile >= 0 && zeile < int(e_.sync.size());
    const SyncZeile z = da ? e_.sync[size_t(zeile)] : SyncZeile{};
    füllen_ = true;
    chkSyncUnterordner_->setChecked(z.unterordner);
    chkSyncKopierenInOrdner_->setChecked(z.kopieren);
    txtSyncKopierenInOrdner_->setText(Q(z.ziel));
    füllen_ = false;
    chkSyncUnterordner_->setEnabled(da);
    chkSyncKopierenInOrdner_->setEnabled(da);
    txtSyncKopierenInOrdner_->setEnabled(da && z.kopieren);
}

void frmIndexOptionen::SyncBearbeitet() {
    const int zeile = ZeileSync();
    if (füllen_ || zeile < 0 || zeile >= int(e_.sync.size())) return;
    SyncZeile& z = e_.sync[size_t(zeile)];
    z.unterordner = chkSyncUnterordner_->isChecked();
    z.kopieren = chkSyncKopierenInOrdner_->isChecked();
    z.ziel = S(txtSyncKopierenInOrdner_->text());
    txtSyncKopierenInOrdner_->setEnabled(z.kopieren);
}

void frmIndexOptionen::SyncOrdnerWählen(bool neu) {
    int32_t zeile = ZeileSync();
    if (::SyncOrdnerWählen(k_, e_, neu, zeile)) SyncFüllen(zeile);
}

void frmIndexOptionen::cmdOk_Click() {
    e_.chkBeschreibungsleiste = chkBeschreibungsleiste_->isChecked();
    e_.chkGitter = chkGitter_->isChecked();
    e_.txtSpaltenBenutzerFormat = S(txtSpaltenBenutzerFormat_->text());
    e_.chkSyncDanachEntfernen = chkSyncDanachEntfernen_->isChecked();
    e_.BeiDoppelklick = DoppelklickWert(e_.BeiDoppelklick, static_cast<int16_t>(optDoppelklick_->checkedId()));
    if (IndexOptionenÜbernehmen(k_, e_, k_.Liste.lstSongs)) accept();
}
