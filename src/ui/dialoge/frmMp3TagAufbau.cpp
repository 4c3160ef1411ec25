// Aufbau von frmMp3Tag: Dateiwahl oben, je Tag eine Seite, Index-Felder, Datei-Infos, unten die
// Funktionen und die Knöpfe.
#include "app/Kartei.h"
#include "media/Genres.h"
#include "tags/TagFunktionen.h"
#include "ui/Umrechnung.h"
#include "ui/dialoge/Knopf.h"
#include "ui/dialoge/frmMp3Tag.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {
QLineEdit* Eingabe(QWidget* eltern, const char* name) { return Benannt(new QLineEdit(eltern), name); }

QLabel* Info(QWidget* eltern, const char* name) {
    auto* l = Benannt(new QLabel(eltern), name);
    l->setWordWrap(true);
    l->setTextInteractionFlags(Qt::TextSelectableByMouse);
    l->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return l;
}

QCheckBox* Haken(QWidget* eltern, const char* name, const char* text) {
    return Benannt(new QCheckBox(QString::fromUtf8(text), eltern), name);
}

// Jede Seite gleich: oben die Felder, darunter ein Text, unten der Haken und die Knöpfe.
void SeiteFüllen(QWidget* seite, QLayout* felder, QLabel* text, QCheckBox* haken,
                 std::initializer_list<QPushButton*> knöpfe) {
    auto* leiste = new QHBoxLayout;
    for (QPushButton* k : knöpfe) leiste->addWidget(k);
    leiste->addStretch();
    auto* layout = new QVBoxLayout(seite);
    layout->addLayout(felder);
    layout->addWidget(text);
    layout->addStretch();
    layout->addWidget(haken);
    layout->addLayout(leiste);
}

// Die Genre-Namen alphabetisch, mit ihrem Code.
std::vector<std::pair<QString, int32_t>> GenresSortiert() {
    std::vector<std::pair<QString, int32_t>> g;
    for (int32_t code = 0; code < GenreAnzahl(); ++code) g.emplace_back(Q(GenreName(code)), code);
    std::sort(g.begin(), g.end(),
              [](const auto& a, const auto& b) { return QString::localeAwareCompare(a.first, b.first) < 0; });
    return g;
}
}  // namespace

void frmMp3Tag::Aufbauen() {
    setObjectName(QStringLiteral("frmMp3Tag"));
    setWindowTitle(QStringLiteral("Medien-Informationen"));
    txtDateiname_ = Benannt(new QComboBox(this), "txtDateiname");
    txtDateiname_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    txtDateiname_->setMinimumContentsLength(40);
    cmdVorheriger_ = Knopf(this, "cmdVorheriger", "< &Vorherige");
    cmdNächster_ = Knopf(this, "cmdNächster", "&Nächste >");
    auto* oben = new QHBoxLayout;
    oben->addWidget(new QLabel(QStringLiteral("Datei:"), this));
    oben->addWidget(txtDateiname_, 1);
    oben->addWidget(cmdVorheriger_);
    oben->addWidget(cmdNächster_);

    tabs_ = Benannt(new QTabWidget(this), "tabSeiten");
    tabs_->addTab(SeiteV1(), QStringLiteral("ID3v&1-TAG"));
    tabs_->addTab(SeiteV2(), QStringLiteral("ID3v&2-TAG"));
    tabs_->addTab(SeiteIndex(), QStringLiteral("&Index"));
    tabs_->addTab(SeiteInfos(), QStringLiteral("Datei-In&fos"));

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(oben);
    layout->addWidget(tabs_, 1);
    layout->addWidget(LeisteFunktionen());
    resize(820, 600);
}

QWidget* frmMp3Tag::SeiteV1() {
    auto* seite = Benannt(new QWidget(this), "fraID3v1");
    auto* felder = new QFormLayout;
    for (const auto& f : TagEditorV1Felder()) {
        QLineEdit* feld = Eingabe(seite, f.name);
        textfelder_.emplace_back(&f, feld);
        felder->addRow(QString::fromUtf8(f.beschriftung), feld);
    }
    // Die Breiten des Tags: 30 Bytes je Text, 4 für das Jahr, 3 Ziffern für die Titelnummer.
    for (auto& [f, feld] : textfelder_) feld->setMaxLength(std::string(f->name) == "txtJahr" ? 4 : 30);
    findChild<QLineEdit*>(QStringLiteral("txtTitelnummer"))->setMaxLength(3);
    findChild<QLineEdit*>(QStringLiteral("txtTitelnummer"))->installEventFilter(this);
    cboMusikrichtung_ = Benannt(new QComboBox(seite), "cboMusikrichtung");
    cboMusikrichtung_->addItem(QString(), 0);
    for (const auto& [name, code] : GenresSortiert()) cboMusikrichtung_->addItem(name, code + 1);
    felder->addRow(QStringLiteral("Genre:"), cboMusikrichtung_);

    lblID3v1Info_ = Info(seite, "lblID3v1Info");
    cmdTAGSpeichern_ = Knopf(seite, "cmdTAGSpeichern", "ID3v1-TAG &speichern");
    cmdTAGEntfernen_ = Knopf(seite, "cmdTAGEntfernen", "ID3v1-TAG &entfernen");
    cmdDatenKopierenNachV2_ = Knopf(seite, "cmdDatenKopierenNachV2", "Nach ID3v2 &kopieren");
    chkAutomatischSpeichern_ = Haken(seite, "chkAutomatischSpeichern", "Beim Dateiwechsel automatisch speichern");
    SeiteFüllen(seite, felder, lblID3v1Info_, chkAutomatischSpeichern_,
                {cmdTAGSpeichern_, cmdTAGEntfernen_, cmdDatenKopierenNachV2_});
    return seite;
}

QWidget* frmMp3Tag::SeiteV2() {
    auto* seite = Benannt(new QWidget(this), "fraID3v2");
    // Zwei Spalten: links die Felder, die auch ID3v1 kennt, rechts die weiteren.
    auto* links = new QFormLayout;
    auto* rechts = new QFormLayout;
    const auto& felder = TagEditorV2Felder();
    for (size_t i = 0; i < felder.size(); ++i) {
        QLineEdit* feld = Eingabe(seite, felder[i].name);
        textfelder_.emplace_back(&felder[i], feld);
        (i < 6 ? links : rechts)->addRow(QString::fromUtf8(felder[i].beschriftung), feld);
    }
    cbov2Musikrichtung_ = Benannt(new QComboBox(seite), "cbov2Musikrichtung");
    cbov2Musikrichtung_->setEditable(true);
    cbov2Musikrichtung_->setInsertPolicy(QComboBox::NoInsert);
    for (const auto& [name, code] : GenresSortiert()) cbov2Musikrichtung_->addItem(name);
    links->addRow(QStringLiteral("Genre:"), cbov2Musikrichtung_);
    auto* spalten = new QHBoxLayout;
    spalten->addLayout(links, 1);
    spalten->addLayout(rechts, 1);

    lblID3v2Info_ = Info(seite, "lblID3v2Info");
    cmdTagSpeichernV2_ = Knopf(seite, "cmdTagSpeichernV2", "ID3v2-TAG &speichern");
    cmdTAGEntfernenv2_ = Knopf(seite, "cmdTAGEntfernenv2", "ID3v2-TAG &entfernen");
    cmdDatenKopierenNachV1_ = Knopf(seite, "cmdDatenKopierenNachV1", "Nach ID3v1 &kopieren");
    chkAutomatischSpeichernV2_ = Haken(seite, "chkAutomatischSpeichernV2", "Beim Dateiwechsel automatisch speichern");
    SeiteFüllen(seite, spalten, lblID3v2Info_, chkAutomatischSpeichernV2_,
                {cmdTagSpeichernV2_, cmdTAGEntfernenv2_, cmdDatenKopierenNachV1_});
    return seite;
}

QWidget* frmMp3Tag::SeiteIndex() {
    auto* seite = Benannt(new QWidget(this), "fraIndex");
    txtIndexHinzugefügtAm_ = Eingabe(seite, "txtIndexHinzugefügtAm");
    txtIndexDatenträger_ = Eingabe(seite, "txtIndexDatenträger");
    txtIndexAbspielAnzahl_ = Eingabe(seite, "txtIndexAbspielAnzahl");
    txtIndexAbspielDatum_ = Eingabe(seite, "txtIndexAbspielDatum");
    auto* felder = new QFormLayout;
    felder->addRow(QStringLiteral("Hinzugefügt am:"), txtIndexHinzugefügtAm_);
    felder->addRow(QStringLiteral("Datenträger:"), txtIndexDatenträger_);
    felder->addRow(QStringLiteral("Abspiel-Anzahl:"), txtIndexAbspielAnzahl_);
    felder->addRow(QStringLiteral("Zuletzt gespielt am:"), txtIndexAbspielDatum_);
    auto* hinweis = new QLabel(QStringLiteral("Diese Angaben stehen nur im Index, nicht in der Datei. Ein Datum "
                                              "wird als TT.MM.JJJJ oder TT.MM.JJJJ hh:mm:ss eingegeben."),
                               seite);
    hinweis->setWordWrap(true);
    cmdTAGSpeichernFelder_ = Knopf(seite, "cmdTAGSpeichernFelder", "Index-Felder &speichern");
    chkAutomatischSpeichernFelder_ =
        Haken(seite, "chkAutomatischSpeichernFelder", "Beim Dateiwechsel automatisch speichern");
    SeiteFüllen(seite, felder, hinweis, chkAutomatischSpeichernFelder_, {cmdTAGSpeichernFelder_});
    return seite;
}

QWidget* frmMp3Tag::SeiteInfos() {
    auto* fläche = Benannt(new QScrollArea(this), "fraInfos");
    fläche->setWidgetResizable(true);
    lblTrackInfos_ = Info(fläche, "lblTrackInfos");
    lblTrackInfos_->setContentsMargins(8, 8, 8, 8);
    fläche->setWidget(lblTrackInfos_);
    return fläche;
}

QWidget* frmMp3Tag::LeisteFunktionen() {
    auto* leiste = new QWidget(this);
    cboFunktion_ = Benannt(new QComboBox(leiste), "cboFunktion");
    for (const char* f : TagFunktionen()) cboFunktion_->addItem(QString::fromUtf8(f));
    cboFunktion_->setCurrentIndex(-1);
    cboFunktion_->setPlaceholderText(QStringLiteral("Funktion wählen"));
    cboFunktionTAG_ = Benannt(new QComboBox(leiste), "cboFunktionTAG");
    for (const char* z : TagFunktionZiele()) cboFunktionTAG_->addItem(QString::fromUtf8(z));
    cboFunktionTAG_->setCurrentIndex(2);
    cmdFunktionAusführen_ = Knopf(leiste, "cmdFunktionAusführen", "&Ausführen");
    cmdTAGSpeichernAlles_ = Knopf(leiste, "cmdTAGSpeichernAlles", "&Alles speichern");
    cmdOk_ = Knopf(leiste, "cmdOk", "OK");
    cmdOk_->setDefault(true);
    auto* layout = new QHBoxLayout(leiste);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new QLabel(QStringLiteral("Funktion:"), leiste));
    layout->addWidget(cboFunktion_, 2);
    layout->addWidget(cboFunktionTAG_, 2);
    layout->addWidget(cmdFunktionAusführen_);
    layout->addSpacing(16);
    layout->addWidget(cmdTAGSpeichernAlles_);
    layout->addWidget(cmdOk_);
    return leiste;
}
