// Der Dialog der Umbenennung: Liste der Funktionen links, die Eingaben der gewählten rechts.
#include "ui/dialoge/frmUmbenennen.h"

#include "app/Kartei.h"
#include "ui/Umrechnung.h"
#include "ui/dialoge/Knopf.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {
namespace F = UmbenennenFunktion;

QLineEdit* Feld(QWidget* eltern, const char* name) { return Benannt(new QLineEdit(eltern), name); }

QLabel* Hinweis(QWidget* eltern, const char* text) {
    auto* l = new QLabel(QString::fromUtf8(text), eltern);
    l->setWordWrap(true);
    return l;
}

// Die leere Seite, solange keine Funktion gewählt ist, steht hinter den neun Seiten.
constexpr int kLeereSeite = 9;
}  // namespace

frmUmbenennen::frmUmbenennen(QWidget* besitzer, Kartei& k, std::vector<int32_t> liste)
    : QDialog(besitzer), k_(k), liste_(std::move(liste)) {
    setObjectName(QStringLiteral("frmUmbenennen"));
    setWindowTitle(QStringLiteral("Dateinamen oder Indexeinträge ändern"));
    lstFunktionen_ = Benannt(new QListWidget(this), "lstFunktionen");
    for (const auto& f : UmbenennenFunktionen()) lstFunktionen_->addItem(QString::fromUtf8(f.text));
    lstFunktionen_->setMinimumWidth(330);
    fraOptionen_ = Benannt(new QStackedWidget(this), "fraOptionen");
    fraOptionen_->setMinimumWidth(380);

    txtFormat_ = Feld(this, "txtFormat");
    txtErsetzen_ = Feld(this, "txtErsetzen");
    txtErsetzenDurch_ = Feld(this, "txtErsetzenDurch");
    txtFortlaufendBasis1_ = Feld(this, "txtFortlaufendBasis1");
    txtFortlaufendZählen1_ = Feld(this, "txtFortlaufendZählen1");
    txtFortlaufendBasis2_ = Feld(this, "txtFortlaufendBasis2");
    txtDateiendung_ = Feld(this, "txtDateiendung");
    txtErsetzenEndung_ = Feld(this, "txtErsetzenEndung");

    QWidget* seiten[] = {
        SeiteFeld(0, {{"Format:", txtFormat_}}, "Platzhalter werden durch die Felder des Eintrags ersetzt."),
        SeiteFeld(1, {{"Ersetzen:", txtErsetzen_}, {"durch:", txtErsetzenDurch_}},
                  "Ersetzt im Dateinamen (ohne Endung) jedes Vorkommen, Groß/Klein zählt."),
        SeiteFeld(2,
                  {{"Anfang:", txtFortlaufendBasis1_},
                   {"Zahl (Start):", txtFortlaufendZählen1_},
                   {"Ende:", txtFortlaufendBasis2_}},
                  "Jede Datei bekommt die erste freie Zahl ab dem Start."),
        SeiteFeld(3, {}, "Für jede Datei erscheint ein Eingabefeld für ihren neuen Namen."),
        SeiteFeld(4, {},
                  "Für jeden Eintrag erscheint ein Eingabefeld für seinen neuen Pfad. Die Datei selbst "
                  "wird nicht umbenannt."),
        SeiteSchreibweise(),
        SeiteFeld(6, {{"Neue Endung:", txtDateiendung_}}, "Die Datei wird dabei nicht umgewandelt."),
        SeiteAttribute(),
        SeiteFeld(8, {{"Neue Endung:", txtErsetzenEndung_}},
                  "Die Datei wird gelöscht und durch eine leere Datei mit dieser Endung ersetzt."),
    };
    for (QWidget* s : seiten) fraOptionen_->addWidget(s);
    fraOptionen_->addWidget(new QWidget(fraOptionen_));
    fraOptionen_->setCurrentIndex(kLeereSeite);

    // txtFormat bekommt die Platzhalter darunter zu sehen.
    auto* txtVariablen = Benannt(new QPlainTextEdit(Q(UmbenennenVariablen()), seiten[0]), "txtVariablen");
    txtVariablen->setReadOnly(true);
    static_cast<QFormLayout*>(seiten[0]->layout())->insertRow(1, QStringLiteral("Variablen:"), txtVariablen);

    QPushButton* cmdOk = nullptr;
    auto* knöpfe = OkAbbrechenLeiste(this, cmdOk);
    auto* mitte = new QHBoxLayout;
    mitte->addWidget(lstFunktionen_);
    mitte->addWidget(fraOptionen_, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(mitte);
    layout->addLayout(knöpfe);

    EingabenSetzen(UmbenennenZuletzt(k_));
    connect(lstFunktionen_, &QListWidget::itemSelectionChanged, this, &frmUmbenennen::lstFunktionen_Click);
    connect(cmdOk, &QPushButton::clicked, this, &frmUmbenennen::cmdOk_Click);
}

QWidget* frmUmbenennen::SeiteFeld(int32_t position, const std::vector<std::pair<const char*, QLineEdit*>>& felder,
                                  const char* hinweis) {
    auto* seite = Benannt(new QWidget(this), ("fraOptionen" + std::to_string(position)).c_str());
    auto* form = new QFormLayout(seite);
    for (const auto& [text, feld] : felder) {
        feld->setParent(seite);
        form->addRow(QString::fromUtf8(text), feld);
    }
    form->addRow(Hinweis(seite, hinweis));
    return seite;
}

QWidget* frmUmbenennen::SeiteSchreibweise() {
    auto* seite = Benannt(new QWidget(this), "fraOptionen5");
    optKleinschreibung_ = Benannt(new QRadioButton(QStringLiteral("&Kleinschreibung"), seite), "optKleinschreibung");
    optGrossschreibung_ = Benannt(new QRadioButton(QStringLiteral("&Großschreibung"), seite), "optGrossschreibung");
    // Beide tragen dieselbe Beschriftung; nur das zweite macht auch nach Leerzeichen groß.
    optKleinErstenGross_ =
        Benannt(new QRadioButton(QStringLiteral("Klein, ersten Buchstaben groß"), seite), "optKleinErstenGross");
    optKleinErstenGross_->setToolTip(QStringLiteral("Groß nach Satzzeichen und Klammern"));
    optKleinWörterGross_ =
        Benannt(new QRadioButton(QStringLiteral("Klein, ersten Buchstaben groß"), seite), "optKleinWörterGross");
    optKleinWörterGross_->setToolTip(QStringLiteral("Groß nach Satzzeichen, Klammern und Leerzeichen"));
    auto* layout = new QVBoxLayout(seite);
    for (QRadioButton* o : {optKleinschreibung_, optGrossschreibung_, optKleinErstenGross_, optKleinWörterGross_})
        layout->addWidget(o);
    layout->addWidget(Hinweis(seite, "Die Endung bleibt, wie sie ist."));
    layout->addStretch();
    return seite;
}

QWidget* frmUmbenennen::SeiteAttribute() {
    auto* seite = Benannt(new QWidget(this), "fraOptionen7");
    chkAttributSchreibschutz_ =
        Benannt(new QCheckBox(QStringLiteral("&Schreibgeschützt"), seite), "chkAttributSchreibschutz");
    chkAttributVersteckt_ = Benannt(new QCheckBox(QStringLiteral("&Versteckt"), seite), "chkAttributVersteckt");
    chkAttributSystem_ = Benannt(new QCheckBox(QStringLiteral("S&ystem"), seite), "chkAttributSystem");
    chkAttributArchiv_ = Benannt(new QCheckBox(QStringLiteral("&Archiv"), seite), "chkAttributArchiv");
    auto* layout = new QVBoxLayout(seite);
    for (QCheckBox* c : {chkAttributSchreibschutz_, chkAttributVersteckt_, chkAttributSystem_, chkAttributArchiv_})
        layout->addWidget(c);
    layout->addWidget(Hinweis(seite, "Unter Linux wirkt nur der Schreibschutz (die Schreibrechte der Datei)."));
    layout->addStretch();
    return seite;
}

void frmUmbenennen::EingabenSetzen(const UmbenennenEingaben& e) {
    txtFormat_->setText(Q(e.format));
    txtErsetzen_->setText(Q(e.suchen));
    txtErsetzenDurch_->setText(Q(e.ersetzen));
    txtFortlaufendBasis1_->setText(Q(e.basis1));
    txtFortlaufendZählen1_->setText(Q(e.zähler));
    txtFortlaufendBasis2_->setText(Q(e.basis2));
    txtDateiendung_->setText(Q(e.neueEndung));
    txtErsetzenEndung_->setText(Q(e.ersetzenEndung));
    QRadioButton* schreibweisen[] = {optKleinschreibung_, optGrossschreibung_, optKleinErstenGross_,
                                     optKleinWörterGross_};
    if (e.unterfunktion >= 1 && e.unterfunktion <= 4) schreibweisen[e.unterfunktion - 1]->setChecked(true);
    chkAttributSchreibschutz_->setChecked(e.schreibschutz);
    chkAttributVersteckt_->setChecked(e.versteckt);
    chkAttributSystem_->setChecked(e.system);
    chkAttributArchiv_->setChecked(e.archiv);
}

UmbenennenEingaben frmUmbenennen::Eingaben() const {
    UmbenennenEingaben e;
    e.funktion = FunktionFürPosition(GewählteZeile());
    const QRadioButton* schreibweisen[] = {optKleinschreibung_, optGrossschreibung_, optKleinErstenGross_,
                                           optKleinWörterGross_};
    for (int16_t i = 0; i < 4; ++i)
        if (schreibweisen[i]->isChecked()) e.unterfunktion = static_cast<int16_t>(i + 1);
    e.format = S(txtFormat_->text());
    e.suchen = S(txtErsetzen_->text());
    e.ersetzen = S(txtErsetzenDurch_->text());
    e.basis1 = S(txtFortlaufendBasis1_->text());
    e.zähler = S(txtFortlaufendZählen1_->text());
    e.basis2 = S(txtFortlaufendBasis2_->text());
    e.neueEndung = S(txtDateiendung_->text());
    e.ersetzenEndung = S(txtErsetzenEndung_->text());
    e.schreibschutz = chkAttributSchreibschutz_->isChecked();
    e.versteckt = chkAttributVersteckt_->isChecked();
    e.system = chkAttributSystem_->isChecked();
    e.archiv = chkAttributArchiv_->isChecked();
    return e;
}

int frmUmbenennen::GewählteZeile() const {
    // Nur eine gewählte Zeile zählt: die Liste setzt beim ersten Fokus eine aktuelle Zeile von selbst.
    const auto gewählt = lstFunktionen_->selectedItems();
    return gewählt.isEmpty() ? -1 : lstFunktionen_->row(gewählt.front());
}

void frmUmbenennen::lstFunktionen_Click() {
    const int zeile = GewählteZeile();
    fraOptionen_->setCurrentIndex(zeile >= 0 && zeile < kLeereSeite ? zeile : kLeereSeite);
}

void frmUmbenennen::cmdOk_Click() {
    const UmbenennenEingaben e = Eingaben();
    if (!UmbenennenEingabenPrüfen(k_, e)) return;
    hide();
    UmbenennenAusführen(k_, liste_, e);
    accept();
}
