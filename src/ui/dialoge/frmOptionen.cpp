#include "ui/dialoge/frmOptionen.h"

#include "app/Kartei.h"
#include "ui/Farben.h"
#include "ui/GuiOberflaeche.h"
#include "ui/Umrechnung.h"
#include "ui/dialoge/Knopf.h"
#include "ui/dialoge/frmIndexOptionen.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QStackedWidget>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {
QString U(const char* text) { return QString::fromUtf8(text); }
}  // namespace

frmOptionen::frmOptionen(QWidget* besitzer, Kartei& k, GuiOberfläche& ui)
    : QDialog(besitzer), k_(k), ui_(ui), eingabe_(OptionenEinsetzen(k)) {
    setObjectName(QStringLiteral("frmOptionen"));
    setWindowTitle(QStringLiteral("Optionen"));
    optOptionen_ = Benannt(new QListWidget(this), "optOptionen");
    optOptionen_->setFixedWidth(150);
    seiten_ = Benannt(new QStackedWidget(this), "fraSeiten");
    connect(optOptionen_, &QListWidget::currentRowChanged, seiten_, &QStackedWidget::setCurrentIndex);
    SeiteAllgemein();
    SeiteSuche();
    SeiteHinzufügen();
    SeiteTags();
    SeiteAbspielen();
    SeiteFarben();
    SeiteWeitere();

    auto* cmdRücksetzen = Knopf(this, "cmdRücksetzen", "&Zurücksetzen...");
    auto* cmdOk = Knopf(this, "cmdOk", "OK");
    cmdOk->setDefault(true);
    auto* cmdAbbrechen = Knopf(this, "cmdAbbrechen", "Abbrechen");
    connect(cmdRücksetzen, &QPushButton::clicked, this, &frmOptionen::cmdRücksetzen_Click);
    connect(cmdOk, &QPushButton::clicked, this, &frmOptionen::cmdOk_Click);
    connect(cmdAbbrechen, &QPushButton::clicked, this, &QDialog::reject);

    auto* oben = new QHBoxLayout;
    oben->addWidget(optOptionen_);
    oben->addWidget(seiten_, 1);
    auto* unten = new QHBoxLayout;
    unten->addWidget(cmdRücksetzen);
    unten->addStretch();
    unten->addWidget(cmdOk);
    unten->addWidget(cmdAbbrechen);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(oben, 1);
    layout->addLayout(unten);
    resize(720, 480);
    Anzeigen();
    SeiteZeigen(0);
}

void frmOptionen::SeiteZeigen(int nummer) { optOptionen_->setCurrentRow(nummer); }

QVBoxLayout* frmOptionen::Seite(const char* name, const char* titel) {
    auto* seite = Benannt(new QWidget(seiten_), name);
    seiten_->addWidget(seite);
    optOptionen_->addItem(U(titel));
    auto* layout = new QVBoxLayout(seite);
    layout->setContentsMargins(12, 4, 4, 4);
    Überschrift(layout, titel);
    return layout;
}

QLabel* frmOptionen::Überschrift(QVBoxLayout* seite, const char* text) {
    auto* l = new QLabel(U(text), seite->parentWidget());
    QFont f = l->font();
    f.setBold(true);
    l->setFont(f);
    FarbRolleSetzen(l, "überschrift");
    seite->addWidget(l);
    return l;
}

QCheckBox* frmOptionen::Haken(QVBoxLayout* seite, Ziel ziel, const char* wert, const char* text) {
    auto* h = Benannt(new QCheckBox(U(text), seite->parentWidget()), (std::string("chk") + wert).c_str());
    h->setProperty("einstellung", U(wert));
    seite->addWidget(h);
    bindungen_.push_back({h, ziel});
    return h;
}

QLineEdit* frmOptionen::Feld(QVBoxLayout* seite, const char* name, const char* text) {
    auto* zeile = new QHBoxLayout;
    auto* l = new QLabel(U(text), seite->parentWidget());
    auto* feld = Benannt(new QLineEdit(seite->parentWidget()), name);
    l->setBuddy(feld);
    zeile->addWidget(l);
    zeile->addWidget(feld, 1);
    seite->addLayout(zeile);
    return feld;
}

QLineEdit* frmOptionen::Textfeld(QVBoxLayout* seite, Ziel ziel, const char* wert, const char* text) {
    QLineEdit* feld = Feld(seite, (std::string("txt") + wert).c_str(), text);
    feld->setProperty("einstellung", U(wert));
    bindungen_.push_back({feld, ziel});
    return feld;
}

void frmOptionen::SeiteAllgemein() {
    using E = Einstellungen;
    QVBoxLayout* s = Seite("fraAllgemein", "Allgemein");
    Haken(s, &E::DateiAutomatischSpeichern, "DateiAutomatischSpeichern",
          "Geänderte Indexdatei ohne Nachfrage speichern");
    auto* zeile = new QHBoxLayout;
    chkRegelmäßigSpeichern_ =
        Benannt(new QCheckBox(U("Indexdatei regelmäßig speichern, alle"), this), "chkRegelmäßigSpeichern");
    txtRegelmäßigSpeichern_ = Benannt(new QLineEdit(this), "txtRegelmäßigSpeichern");
    txtRegelmäßigSpeichern_->setMaximumWidth(60);
    zeile->addWidget(chkRegelmäßigSpeichern_);
    zeile->addWidget(txtRegelmäßigSpeichern_);
    zeile->addWidget(new QLabel(U("Minuten"), this));
    zeile->addStretch();
    s->addLayout(zeile);
    connect(chkRegelmäßigSpeichern_, &QCheckBox::toggled, txtRegelmäßigSpeichern_, &QWidget::setEnabled);

    auto* beenden = new QHBoxLayout;
    auto* lbl = new QLabel(U("Beim &Schließen des Hauptfensters:"), this);
    cboBeendenAktion_ = Benannt(new QComboBox(this), "cboBeendenAktion");
    cboBeendenAktion_->addItems(
        {U("Nachfragen"), U("Fenster minimieren"), U("Programm beenden"), U("In den Infobereich verkleinern")});
    lbl->setBuddy(cboBeendenAktion_);
    beenden->addWidget(lbl);
    beenden->addWidget(cboBeendenAktion_, 1);
    s->addLayout(beenden);
    chkTipps_ = Benannt(new QCheckBox(U("Beim Start einen &Tipp zeigen"), this), "chkTippsAktueller");
    s->addWidget(chkTipps_);
    Haken(s, &E::NichtVerfügbarFragen, "NichtVerfügbarFragen", "Nachfragen, wenn eine Datei nicht verfügbar ist");
    Haken(s, &E::StartBildschirm, "StartBildschirm", "Fortschrittsfenster bei langen Vorgängen zeigen");
    Haken(s, &E::StartBildschirmNichtBeiLaden, "StartBildschirmNichtBeiLaden", "... aber nicht beim Laden des Index");
    Haken(s, &E::StartBildschirmNichtBeiSpeichern, "StartBildschirmNichtBeiSpeichern",
          "... aber nicht beim Speichern des Index");

    Überschrift(s, "Indexdatei");
    auto* knöpfe = new QHBoxLayout;
    auto* cmdIndexÖffnen = Knopf(this, "cmdIndexÖffnen", "Indexdatei &wählen...");
    auto* cmdIndexOptionen = Knopf(this, "cmdIndexOptionen", "&Index-Optionen...");
    knöpfe->addWidget(cmdIndexÖffnen);
    knöpfe->addWidget(cmdIndexOptionen);
    knöpfe->addStretch();
    s->addLayout(knöpfe);
    connect(cmdIndexÖffnen, &QPushButton::clicked, this, [this] {
        if (indexÖffnen) indexÖffnen();
    });
    connect(cmdIndexOptionen, &QPushButton::clicked, this, &frmOptionen::cmdIndexOptionen_Click);
    s->addStretch();
}

void frmOptionen::SeiteSuche() {
    using E = Einstellungen;
    QVBoxLayout* s = Seite("fraSuche", "Suche");
    Haken(s, &E::AutoCompleteVerwenden, "AutoCompleteVerwenden", "Suchbegriff beim Tippen vervollständigen");
    Haken(s, &E::Auswahlliste, "Auswahlliste", "Vorschläge unter dem Suchfeld aufklappen");
    Haken(s, &E::SucheNichtBeiAuswahl, "SucheNichtBeiAuswahl", "Nicht gleich suchen, wenn ein Suchfeld gewählt wird");
    Haken(s, &E::SucheNichtBeiTAGEditor, "SucheNichtBeiTAGEditor", "Nach dem Speichern im TAG-Editor nicht neu suchen");
    s->addStretch();
}

void frmOptionen::SeiteHinzufügen() {
    using E = Einstellungen;
    QVBoxLayout* s = Seite("fraHinzufügen", "Hinzufügen");
    Haken(s, &E::HinzufügenKeineDoppelten, "HinzufügenKeineDoppelten", "Keine Dateien doppelt in den Index aufnehmen");
    Haken(s, &E::HinzufügenUnterordner, "HinzufügenUnterordner", "Unterordner einbeziehen");
    Überschrift(s, "Datei-Informationen lesen");
    auto haken = [&](const char* name, const char* text) {
        auto* h = Benannt(new QCheckBox(U(text), this), name);
        s->addWidget(h);
        return h;
    };
    chkID3auslesenV1_ = haken("chkID3auslesenV1", "ID3v&1-TAG lesen");
    chkID3auslesenV2_ = haken("chkID3auslesenV2", "ID3v&2-TAG lesen");
    chkID3auslesenHeader_ = haken("chkID3auslesenHeader", "MPEG-&Kopf und Dateigröße lesen");
    s->addStretch();
}

void frmOptionen::SeiteTags() {
    using E = Einstellungen;
    QVBoxLayout* s = Seite("fraTags", "TAGs");
    txtID3v2Reserve_ = Feld(s, "txtID3v2Reserve", "Prozent des neuen TAGs in Bytes hinzufügen:");
    txtID3v2Suchen_ = Feld(s, "txtID3v2Suchen", "Bytes vom Datei-Anfang an nach TAG suchen:");
    Haken(s, &E::TAGsSoftwareFeldSchreiben, "TAGsSoftwareFeldSchreiben",
          "Programmnamen in das Software-Feld schreiben");
    Haken(s, &E::TAGAutomatischSpeichern, "TAGAutomatischSpeichern", "TAG-Editor: ID3v1-TAG selbst speichern");
    Haken(s, &E::TAGAutomatischSpeichernV2, "TAGAutomatischSpeichernV2", "TAG-Editor: ID3v2-TAG selbst speichern");
    Überschrift(s, "AutoTAG");
    Haken(s, &E::AutoTagFelderLöschen, "AutoTagFelderLöschen", "Nicht erkannte Felder leeren");
    Haken(s, &E::AutoTagUnterstrichEntfernen, "AutoTagUnterstrichEntfernen", "'_' durch Leerzeichen ersetzen");
    s->addStretch();
}

void frmOptionen::SeiteAbspielen() {
    using E = Einstellungen;
    QVBoxLayout* s = Seite("fraAbspielen", "Abspielen");
    QLineEdit* pfad = Textfeld(s, &E::WinampPfad, "WinampPfad", "Player-Programm:");
    auto* cmdWählen = Knopf(this, "cmdWinampPfadWählen", "&Durchsuchen...");
    static_cast<QHBoxLayout*>(s->itemAt(s->count() - 1)->layout())->addWidget(cmdWählen);
    connect(cmdWählen, &QPushButton::clicked, this, &frmOptionen::cmdWinampPfad_Click);
    pfad->setMinimumWidth(260);
    Textfeld(s, &E::WinampParameterAbspielen, "WinampParameterAbspielen", "Argument zum Abspielen:");
    Textfeld(s, &E::WinampParameterHinzufügen, "WinampParameterHinzufügen", "Argument zum Anhängen:");
    Haken(s, &E::PlaylistFürWinamp, "PlaylistFürWinamp", "Dem Player eine Playlist-Datei übergeben");
    Haken(s, &E::AbspielStatistikSpeichern, "AbspielStatistikSpeichern", "Abspielvorgänge zählen (Statistik)");
    s->addStretch();
}

void frmOptionen::SeiteWeitere() {
    QVBoxLayout* s = Seite("fraWeitere", "Weitere Werte");
    auto* hinweis = new QLabel(U("Werte, die sich das Programm selbst merkt. Ändern Sie sie nur, wenn Sie wissen, "
                                 "wofür sie stehen."),
                               this);
    hinweis->setWordWrap(true);
    s->addWidget(hinweis);
    tblWeitere_ = Benannt(new QTableWidget(0, 2, this), "tblWeitere");
    tblWeitere_->setHorizontalHeaderLabels({U("Name"), U("Wert")});
    tblWeitere_->horizontalHeader()->setStretchLastSection(true);
    tblWeitere_->verticalHeader()->hide();
    s->addWidget(tblWeitere_, 1);
}

void frmOptionen::Anzeigen() {
    const Einstellungen& e = eingabe_.E;
    for (const auto& b : bindungen_) {
        std::visit(
            [&](auto ziel) {
                if constexpr (std::is_same_v<decltype(ziel), std::string Einstellungen::*>)
                    static_cast<QLineEdit*>(b.element)->setText(Q(e.*ziel));
                else static_cast<QCheckBox*>(b.element)->setChecked(e.*ziel == 1);
            },
            b.ziel);
    }
    chkRegelmäßigSpeichern_->setChecked(eingabe_.chkRegelmäßigSpeichern);
    txtRegelmäßigSpeichern_->setText(Q(eingabe_.txtRegelmäßigSpeichern));
    txtRegelmäßigSpeichern_->setEnabled(eingabe_.chkRegelmäßigSpeichern);
    cboBeendenAktion_->setCurrentIndex(e.BeendenReaktion >= 0 && e.BeendenReaktion <= 3 ? e.BeendenReaktion : 0);
    chkTipps_->setChecked(e.TippsAktueller != 0);
    chkID3auslesenV1_->setChecked(eingabe_.chkID3auslesenV1);
    chkID3auslesenV2_->setChecked(eingabe_.chkID3auslesenV2);
    chkID3auslesenHeader_->setChecked(eingabe_.chkID3auslesenHeader);
    txtID3v2Reserve_->setText(Q(eingabe_.txtID3v2Reserve));
    txtID3v2Suchen_->setText(Q(eingabe_.txtID3v2Suchen));
    tblWeitere_->setRowCount(int(eingabe_.weitere.size()));
    for (int i = 0; i < int(eingabe_.weitere.size()); ++i) {
        auto* name = new QTableWidgetItem(Q(eingabe_.weitere[size_t(i)].first));
        name->setFlags(Qt::ItemIsEnabled);
        tblWeitere_->setItem(i, 0, name);
        tblWeitere_->setItem(i, 1, new QTableWidgetItem(Q(eingabe_.weitere[size_t(i)].second)));
    }
    tblWeitere_->resizeColumnToContents(0);
    MusterAnzeigen();
}

void frmOptionen::Einsammeln() {
    Einstellungen& e = eingabe_.E;
    for (const auto& b : bindungen_) {
        std::visit(
            [&](auto ziel) {
                if constexpr (std::is_same_v<decltype(ziel), std::string Einstellungen::*>)
                    e.*ziel = S(static_cast<QLineEdit*>(b.element)->text());
                else e.*ziel = static_cast<QCheckBox*>(b.element)->isChecked() ? 1 : 0;
            },
            b.ziel);
    }
    eingabe_.chkRegelmäßigSpeichern = chkRegelmäßigSpeichern_->isChecked();
    eingabe_.txtRegelmäßigSpeichern = S(txtRegelmäßigSpeichern_->text());
    e.BeendenReaktion = static_cast<int16_t>(cboBeendenAktion_->currentIndex());
    e.TippsAktueller = TippsWertAusHaken(e.TippsAktueller, chkTipps_->isChecked());
    eingabe_.chkID3auslesenV1 = chkID3auslesenV1_->isChecked();
    eingabe_.chkID3auslesenV2 = chkID3auslesenV2_->isChecked();
    eingabe_.chkID3auslesenHeader = chkID3auslesenHeader_->isChecked();
    eingabe_.txtID3v2Reserve = S(txtID3v2Reserve_->text());
    eingabe_.txtID3v2Suchen = S(txtID3v2Suchen_->text());
    for (int i = 0; i < int(eingabe_.weitere.size()); ++i)
        eingabe_.weitere[size_t(i)].second = S(tblWeitere_->item(i, 1)->text());
}

void frmOptionen::cmdWinampPfad_Click() {
    std::string datei = S(findChild<QLineEdit*>(QStringLiteral("txtWinampPfad"))->text());
    if (!ui_.DateiWählen("Player-Programm wählen", "Alle Dateien (*.*)|*", datei, datei)) return;
    findChild<QLineEdit*>(QStringLiteral("txtWinampPfad"))->setText(Q(datei));
}

void frmOptionen::cmdIndexOptionen_Click() {
    if (!IndexOptionenÖffnenPrüfen(k_)) return;
    frmIndexOptionen dialog(this, k_);
    ui_.DialogAusführen(dialog);
    // Der Doppelklick gehört zu den Einstellungen: die Arbeitskopie folgt dem neuen Stand.
    eingabe_.E.BeiDoppelklick = k_.E.BeiDoppelklick;
}

void frmOptionen::cmdRücksetzen_Click() {
    if (!OptionenZurücksetzen(k_)) return;
    eingabe_ = OptionenEinsetzen(k_);
    Anzeigen();
    FensterFarbenAnwenden(this, k_.E);
    if (farbenAnwenden) farbenAnwenden();
}

void frmOptionen::cmdOk_Click() {
    Einsammeln();
    if (!OptionenÜbernehmen(k_, eingabe_)) return;
    accept();
}
