// Suchfeld, Feldwahl, tmrListe und Spaltenklick. Die Widgets spiegeln k.Suche.cboSuche und
// k.Suche.txtSongname; was eine Eingabe auslöst, entscheidet die Suche im Kern.
#include "app/Kartei.h"
#include "search/ListeErstellen.h"
#include "search/Sortieren.h"
#include "search/Suchbegriffe.h"
#include "search/Suche.h"
#include "ui/GuiOberflaeche.h"
#include "ui/SongListe.h"
#include "ui/Textmarken.h"
#include "ui/Umrechnung.h"
#include "ui/dialoge/frmSucheErweitert.h"
#include "ui/frmMain.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QStringListModel>
#include <QTimer>

const EinsBasiert<int32_t>& frmMain::AusgewählteDateien() const { return k_.Suche.AusgewählteDateien; }
int32_t frmMain::AusgewähltAnzahl() const { return k_.Suche.AusgewähltAnzahl; }
void frmMain::AuswahlAktualisieren() { ::AuswahlAktualisieren(k_, k_.Liste.lstSongs); }
std::string frmMain::DateiAnzahlText() const { return k_.Liste.DateiAnzahlText; }

void frmMain::AuswahlAktualisierenUndZeigen() {
    AuswahlAktualisieren();
    AuswahlBeschreibungAnzeigen();
}

void frmMain::VerbindenSuche() {
    QLineEdit* eingabe = txtSongname_->lineEdit();
    eingabe->installEventFilter(this);
    // Die Tasten kommen beim Kombifeld an (das Eingabefeld gibt ihm den Fokus ab) und gehen
    // von dort am Filter des Eingabefelds vorbei.
    txtSongname_->installEventFilter(this);
    connect(eingabe, &QLineEdit::textEdited, this, &frmMain::txtSongname_Change);
    // Ein Wert aus der Aufklappliste ändert den Text wie getippt. QComboBox meldet "activated"
    // auch, wenn das Feld den Fokus verliert und der Text zufällig einem Wert gleicht: das zählt nicht.
    txtSongname_->view()->viewport()->installEventFilter(this);
    txtSongname_->view()->installEventFilter(this);
    connect(txtSongname_, &QComboBox::activated, this, [this](int i) {
        if (!ausAufklappliste_) return;
        ausAufklappliste_ = false;
        txtSongname_Change(txtSongname_->itemText(i));
    });
    connect(cboSuche_, &QComboBox::activated, this, &frmMain::cboSuche_Click);
    connect(tmrListe_, &QTimer::timeout, this, &frmMain::tmrListe_Timer);
}

// Rücktaste und Entf (bei nicht leerem Text) unterdrücken die nächste Ergänzung; ein Klick ins
// Feld zählt als Änderung.
bool frmMain::eventFilter(QObject* objekt, QEvent* ereignis) {
    if (objekt == txtSongname_->view()->viewport() && ereignis->type() == QEvent::MouseButtonRelease)
        ausAufklappliste_ = true;
    if (objekt == txtSongname_->view() && ereignis->type() == QEvent::KeyPress) {
        const int taste = static_cast<QKeyEvent*>(ereignis)->key();
        ausAufklappliste_ = taste == Qt::Key_Return || taste == Qt::Key_Enter;
    }
    if ((objekt == txtSongname_ || objekt == txtSongname_->lineEdit()) && ereignis->type() == QEvent::KeyPress) {
        const int taste = static_cast<QKeyEvent*>(ereignis)->key();
        if (taste == Qt::Key_Backspace || taste == Qt::Key_Delete) {
            k_.Suche.txtSongname.Text = S(txtSongname_->currentText());
            ::txtSongname_KeyDown(k_, taste == Qt::Key_Backspace ? 8 : 46);
        }
    }
    if (objekt == txtSongname_->lineEdit() && ereignis->type() == QEvent::MouseButtonRelease &&
        txtSongname_->isEnabled())
        QTimer::singleShot(0, this, [this] { txtSongname_Change(txtSongname_->currentText()); });
    return QMainWindow::eventFilter(objekt, ereignis);
}

// Die Widgets zeigen, was in k.Suche steht; ihre Signale schweigen dabei.
void frmMain::SuchfelderAnzeigen() {
    const auto& s = k_.Suche;
    {
        const QSignalBlocker sperre(cboSuche_);
        cboSuche_->setEnabled(s.cboSuche.Enabled && indexGeladen_);
        if (cboSuche_->currentIndex() != s.cboSuche.ListIndex) cboSuche_->setCurrentIndex(s.cboSuche.ListIndex);
    }
    const QSignalBlocker sperre(txtSongname_);
    const QSignalBlocker sperreEingabe(txtSongname_->lineEdit());
    txtSongname_->setEnabled(s.txtSongname.Enabled && indexGeladen_);
    if (s.txtSongname.List != vorschläge_) {
        vorschläge_ = s.txtSongname.List;
        QStringList werte;
        werte.reserve(static_cast<qsizetype>(vorschläge_.size()));
        for (const auto& w : vorschläge_) werte << Q(w);
        vorschlagModell_->setStringList(werte);
    }
    const QString text = Q(s.txtSongname.Text);
    if (txtSongname_->currentText() != text) txtSongname_->setEditText(text);
    MarkeSetzen(*txtSongname_->lineEdit(), text, s.txtSongname.SelStart, s.txtSongname.SelLength);
}

// Nach jeder Routine der Suche: Zeitgeber spannen (ohne Neustart) oder anhalten, Liste zeigen.
void frmMain::SucheNachlauf() {
    if (!k_.Suche.tmrListeAktiv) tmrListe_->stop();
    else if (!tmrListe_->isActive()) tmrListe_->start();
    SuchfelderAnzeigen();
    ListeAnzeigen();
    AuswahlAktualisierenUndZeigen();
}

void frmMain::txtSongname_Change(const QString& text) {
    auto& feld = k_.Suche.txtSongname;
    feld.Text = S(text);
    feld.SelStart = ZeichenVor(text, txtSongname_->lineEdit()->cursorPosition());
    feld.SelLength = 0;
    ::txtSongname_Change(k_);
    SucheNachlauf();
}

void frmMain::tmrListe_Timer() {
    // Läuft gerade ein Vorgang, wartet die Suche, bis er fertig ist.
    if (gesperrt_) {
        tmrListe_->start();
        return;
    }
    ::tmrListe_Timer(k_);
    SucheNachlauf();
}

void frmMain::cboSuche_Click(int index) {
    auto& cbo = k_.Suche.cboSuche;
    cbo.ListIndex = index;
    cbo.Text = cbo.GewählterEintrag();
    ::cboSuche_Click(k_);
    SucheNachlauf();
}

void frmMain::cmdSucheLöschen_Click() {
    ::cmdSucheLöschen_Click(k_);
    SucheNachlauf();
}

void frmMain::cmdSucheMehr_Click() {
    frmSucheErweitert dialog(this, k_, ui_);
    ui_.DialogAusführen(dialog);
    SucheNachlauf();
}

void frmMain::lstSongs_ColumnClick(int spalte) {
    ::lstSongs_ColumnClick(k_, spalte);
    SucheNachlauf();
}

// Feld und Text setzen wie das Menü "Datei-Funktionen": das Feld ohne Suche, der Text ohne
// Ergänzung, und das Setzen des Textes sucht.
void frmMain::SucheStarten(int feld, const std::string& text) {
    auto& s = k_.Suche;
    s.SucheGesperrt = true;
    s.cboSuche.ListIndex = feld;
    s.cboSuche.Text = s.cboSuche.GewählterEintrag();
    ::cboSuche_Click(k_);
    s.SucheGesperrt = false;
    s.AutoCompleteErlaubt = false;
    s.txtSongname.Text = text;
    s.txtSongname.SelStart = static_cast<int32_t>(Q(text).size());
    s.txtSongname.SelLength = 0;
    ::txtSongname_Change(k_);
    s.AutoCompleteErlaubt = true;
    SucheNachlauf();
}

void frmMain::SucheVorbereiten() {
    ::SucheZurücksetzen(k_);
    tmrListe_->stop();
    SuchfelderAnzeigen();
}
