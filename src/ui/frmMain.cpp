#include "ui/frmMain.h"

#include "app/IndexOeffnen.h"
#include "app/Kartei.h"
#include "app/Pfade.h"
#include "index/IndexDatei.h"
#include "search/Hauptfenster.h"
#include "shell/Fortschritt.h"
#include "ui/Farben.h"
#include "ui/GuiOberflaeche.h"
#include "ui/LinkLabel.h"
#include "ui/LinkeSpalte.h"
#include "ui/SongListe.h"
#include "ui/Umrechnung.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStringListModel>
#include <QTimer>
#include <QVBoxLayout>

namespace {
void Farbe(QWidget* w, const QColor& farbe) { PaletteFarbe(w, QPalette::WindowText, farbe); }
}  // namespace

frmMain::frmMain(Kartei& k, GuiOberfläche& ui, std::string standardIndex, QWidget* eltern)
    : QMainWindow(eltern), k_(k), ui_(ui), standardIndex_(std::move(standardIndex)) {
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(Q(NormalerTitel(k_.Dateiname)));
    resize(980, 640);

    auto* mitte = new QWidget(this);
    mitte->setObjectName(QStringLiteral("fraMitte"));
    auto* layout = new QHBoxLayout(mitte);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    BefehleAnlegen();
    links_ = new LinkeSpalte(befehle_, mitte);
    layout->addWidget(links_);
    SpielerAufbauen();
    auto* rechts = new QWidget(mitte);
    rechts->setObjectName(QStringLiteral("fraRechts"));
    auto* rechtsLayout = new QVBoxLayout(rechts);
    rechtsLayout->setContentsMargins(12, 10, 10, 10);
    rechtsLayout->setSpacing(6);
    layout->addWidget(rechts, 1);
    AufbauOben(rechts);
    AufbauSuche(rechts);
    lstSongs_ = new SongListeAnsicht(k_, rechts);
    rechtsLayout->addWidget(lstSongs_, 1);
    setCentralWidget(mitte);

    auto zeitgeber = [this](const char* name) {
        auto* t = new QTimer(this);
        t->setObjectName(QString::fromUtf8(name));
        return t;
    };
    tmrListe_ = zeitgeber("tmrListe");
    tmrTimer1_ = zeitgeber("tmrTimer1");
    tmrTimer2_ = zeitgeber("tmrTimer2");
    tmrScrollUpdate_ = zeitgeber("tmrScrollUpdate");
    auswahlTimer_ = zeitgeber("auswahlTimer");
    tmrListe_->setSingleShot(true);
    tmrListe_->setInterval(600);
    tmrTimer1_->setSingleShot(false);
    tmrTimer2_->setSingleShot(true);
    tmrScrollUpdate_->setInterval(500);
    auswahlTimer_->setSingleShot(true);
    auswahlTimer_->setInterval(0);

    MenüsAufbauen();
    Verbinden();
    FarbenAnwenden();
    ui_.titelNachricht = [this](const std::string& text, int32_t verzögerung) {
        TitelNachrichtZeigen(text, verzögerung);
    };
    ui_.besitzerSperren = [this](bool an) { Sperren(an); };
}

frmMain::~frmMain() {
    ui_.titelNachricht = nullptr;
    ui_.besitzerSperren = nullptr;
}

void frmMain::AufbauOben(QWidget* rechts) {
    lblProgramm_ = new QLabel(QString::fromUtf8(ProgrammTitel), rechts);
    lblProgramm_->setObjectName(QStringLiteral("lblProgramm"));
    QFont groß = lblProgramm_->font();
    groß.setPointSizeF(groß.pointSizeF() * 1.6);
    groß.setBold(true);
    lblProgramm_->setFont(groß);
    lblIndexdatei_ = new LinkLabel(QStringLiteral("lblIndexdatei"), QString(), rechts);
    lblIndexdatei_->setToolTip(QStringLiteral("Andere Indexdatei öffnen oder speichern"));
    lblIndexdateiUntertitel1_ = new KlickLabel(QStringLiteral("lblIndexdateiUntertitel1"), rechts);
    lblIndexdateiUntertitel1_->setTextFormat(Qt::PlainText);
    lblIndexDateiUntertitel2_ = new KlickLabel(QStringLiteral("lblIndexDateiUntertitel2"), rechts);
    lblIndexDateiUntertitel2_->setTextFormat(Qt::PlainText);
    // Lange Namen und Pfade werden abgeschnitten, statt das Fenster breiter zu zwingen.
    for (QLabel* l : {static_cast<QLabel*>(lblIndexdatei_), static_cast<QLabel*>(lblIndexdateiUntertitel1_),
                      static_cast<QLabel*>(lblIndexDateiUntertitel2_)})
        l->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* layout = static_cast<QVBoxLayout*>(rechts->layout());
    layout->addWidget(lblProgramm_);
    layout->addWidget(lblIndexdatei_);
    layout->addSpacing(4);
    layout->addWidget(lblIndexdateiUntertitel1_);
    layout->addWidget(lblIndexDateiUntertitel2_);
}

void frmMain::AufbauSuche(QWidget* rechts) {
    cboSuche_ = new QComboBox(rechts);
    cboSuche_->setObjectName(QStringLiteral("cboSuche"));
    for (const auto& feld : k_.Suche.cboSuche.List) cboSuche_->addItem(Q(feld));
    cboSuche_->setCurrentIndex(-1);
    cboSuche_->setMaxVisibleItems(22);
    txtSongname_ = new QComboBox(rechts);
    txtSongname_->setObjectName(QStringLiteral("txtSongname"));
    txtSongname_->setEditable(true);
    txtSongname_->setInsertPolicy(QComboBox::NoInsert);
    txtSongname_->setCompleter(nullptr);  // die Ergänzung macht der Kern
    vorschlagModell_ = new QStringListModel(this);
    txtSongname_->setModel(vorschlagModell_);
    txtSongname_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    // Auch im kleinsten Fenster passt der längste Text, den das Feld selbst zeigt.
    txtSongname_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    txtSongname_->setMinimumContentsLength(static_cast<int>(QStringLiteral("(Mehrere Such-Abfragen)").size()) + 2);
    txtSongname_->lineEdit()->setPlaceholderText(QStringLiteral("Suchbegriff eingeben"));
    txtSongname_->setMaxVisibleItems(20);
    cmdSucheLöschen_ = new QPushButton(QStringLiteral("Löschen"), rechts);
    cmdSucheLöschen_->setObjectName(QStringLiteral("cmdSucheLöschen"));
    cmdSucheMehr_ = new QPushButton(QStringLiteral("Erweiterte Suche"), rechts);
    cmdSucheMehr_->setObjectName(QStringLiteral("cmdSucheMehr"));
    auto* zeile = new QHBoxLayout;
    zeile->addWidget(cboSuche_);
    zeile->addWidget(txtSongname_, 1);
    zeile->addWidget(cmdSucheLöschen_);
    zeile->addWidget(cmdSucheMehr_);
    static_cast<QVBoxLayout*>(rechts->layout())->addLayout(zeile);
}

void frmMain::FarbenAnwenden() {
    const auto& e = k_.E;
    FensterFarbenAnwenden(this, e);  // Grund und Beschreibungen wie jedes Fenster
    links_->FarbenAnwenden(e);
    Farbe(lblProgramm_, FarbeAusWert(e.FarbeÜberschrift));
    lblIndexdatei_->FarbenSetzen(FarbeAusWert(e.FarbeFunktionen), FarbeAusWert(e.FarbeFunktionenBesucht),
                                 e.FunktionenUnterstreichen == 1);
    lstSongs_->FarbenSetzen(FarbeAusWert(e.FarbeListen), FarbeAusWert(e.FarbeListenHintergrund));
    AuswahlBeschreibungAnzeigen();
}

bool frmMain::IndexÖffnen() {
    const bool geladen = ::IndexÖffnen(k_, standardIndex_);
    IndexAnzeigen(geladen);
    return geladen;
}

void frmMain::IndexAnzeigen(bool geladen) {
    for (QWidget* w : std::initializer_list<QWidget*>{txtSongname_, lstSongs_, cboSuche_, cmdSucheLöschen_,
                                                      cmdSucheMehr_, links_->lblWinampSteuerungTitel()})
        w->setEnabled(geladen);
    indexGeladen_ = geladen;
    links_->fraLinks2()->setVisible(geladen);
    lblIndexdatei_->setText(geladen ? Q(DateinameAusPfad(k_.Dateiname)) : QStringLiteral("(keine Datei geladen)"));
    lblIndexdatei_->setToolTip(Q(k_.Dateiname));
    setWindowTitle(Q(NormalerTitel(geladen ? k_.Dateiname : std::string())));
    SucheVorbereiten();  // Feld, Text, Vorschläge und Zahlen gehören jetzt zum neuen Index
    ListeAnzeigen();
    AuswahlAktualisierenUndZeigen();
}

void frmMain::ListeAnzeigen() {
    lstSongs_->Abgleichen();
    links_->lblDateiAnzahl()->setText(Q(DateiAnzahlText()));
}

void frmMain::AuswahlBeschreibungAnzeigen() {
    const AuswahlBeschreibung b = AuswahlBeschreibungBerechnen(k_, AusgewählteDateien(), AusgewähltAnzahl());
    auto farbe = [this](BeschreibungsFarbe f) {
        return FarbeAusWert(f == BeschreibungsFarbe::Funktionen ? k_.E.FarbeFunktionen : k_.E.FarbeBeschreibungen);
    };
    QFont f1 = lblIndexdateiUntertitel1_->font();
    f1.setBold(b.fett1);
    f1.setUnderline(b.unterstrichen1);
    lblIndexdateiUntertitel1_->setFont(f1);
    lblIndexdateiUntertitel1_->setText(Q(b.text1));
    Farbe(lblIndexdateiUntertitel1_, farbe(b.farbe1));
    lblIndexdateiUntertitel1_->setCursor(b.hand1 ? Qt::PointingHandCursor : Qt::ArrowCursor);
    lblIndexDateiUntertitel2_->setText(Q(b.text2));
    Farbe(lblIndexDateiUntertitel2_, farbe(b.farbe2));
    lblIndexDateiUntertitel2_->setCursor(b.hand2 ? Qt::PointingHandCursor : Qt::ArrowCursor);
    links_->fraNurBeiAusgewählt()->setVisible(b.nurBeiAusgewähltSichtbar);
}

void frmMain::TitelNachrichtZeigen(const std::string& text, int32_t verzögerungMs) {
    tmrTimer1_->stop();
    tmrTimer2_->stop();
    TitelSchrittAnwenden(TitelNachrichtStarten(titel_, text, verzögerungMs));
}

void frmMain::TitelSchrittAnwenden(const TitelSchritt& s) {
    if (s.normalerTitel) setWindowTitle(Q(NormalerTitel(indexGeladen_ ? k_.Dateiname : "")));
    if (s.titel) setWindowTitle(Q(*s.titel));
    if (s.timer1Ms > 0) tmrTimer1_->start(s.timer1Ms);
    else tmrTimer1_->stop();
    if (s.timer2Ms > 0) tmrTimer2_->start(s.timer2Ms);
    else tmrTimer2_->stop();
}

void frmMain::ZeitgeberStarten() { tmrScrollUpdate_->start(); }

// Gesperrt verliert das Fenster den Fokus; danach bekommt ihn das Element zurück, das ihn hatte,
// damit weiter Getipptes nicht verloren geht.
void frmMain::Sperren(bool gesperrt) {
    if (gesperrt && !gesperrt_) fokusVorher_ = focusWidget();
    gesperrt_ = gesperrt;
    centralWidget()->setEnabled(!gesperrt);
    if (gesperrt || !fokusVorher_) return;
    if (fokusVorher_->isEnabled() && fokusVorher_->isVisible()) {
        activateWindow();
        fokusVorher_->setFocus(Qt::OtherFocusReason);
    }
    fokusVorher_ = nullptr;
}

bool frmMain::ShiftGedrückt() const { return lstSongs_->ShiftGedrückt; }

void frmMain::SuchfeldFokussieren() {
    if (txtSongname_->isEnabled()) txtSongname_->setFocus();
}
