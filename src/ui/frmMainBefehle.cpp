// Die Befehle des Hauptfensters, die Liste mit Maus und Tastatur und die Kontextmenüs.
#include "app/Kartei.h"
#include "app/Ergebnisliste.h"
#include "search/Hauptfenster.h"
#include "ui/GuiOberflaeche.h"
#include "ui/LinkLabel.h"
#include "ui/LinkeSpalte.h"
#include "ui/SongListe.h"
#include "ui/Umrechnung.h"
#include "ui/dialoge/BerichteZeigen.h"
#include "ui/frmMain.h"

#include <QApplication>
#include <QMenu>
#include <QTimer>

namespace {
// Die Dateibefehle des Kontextmenüs rufen dieselben Befehle wie die linke Spalte.
const struct {
    const char* name;
    const char* text;
    const char* befehl;
} KontextBefehle[] = {
    {"mnu_kontext_abspielen", "&Abspielen", "cmdEintragAbspielen"},
    {"mnu_kontext_playlist", "In &Playlist", "cmdAnhängen"},
    {"mnu_kontext_ausführen", "Aus&führen", "cmdEintragAusführen"},
    {"mnu_kontext_ausführenmit", "Ausführen &mit...", "cmdEintragAusführenMit"},
    {"mnu_kontext_infos", "Datei-&Infos", "cmdMp3TagAnzeigen"},
    {"mnu_kontext_export", "&Export", "cmdExportieren"},
    {nullptr, nullptr, nullptr},
    {"mnu_kontext_indexhinzufügen", "Zum Index &hinzufügen", "cmdIndexErstellen"},
    {"mnu_kontext_indexentfernen", "Aus Index &entfernen", "cmdDateiEntfernen"},
    {"mnu_kontext_löschen", "&Löschen", "cmdDateienLöschen"},
    {"mnu_kontext_kopieren", "&Kopieren/verschieben", "cmdDateienKopierenVerschieben"},
    {"mnu_kontext_umbenennen", "&Umbenennen", "cmdUmbenennen"},
};

QAction* Eintrag(QMenu* menü, const char* name, const char* text) {
    QAction* a = menü->addAction(QString::fromUtf8(text));
    a->setObjectName(QString::fromUtf8(name));
    return a;
}
}  // namespace

void frmMain::MenüsAufbauen() {
    mnu_wähle_ = new QMenu(QStringLiteral("Aus&wählen"), this);
    mnu_wähle_->setObjectName(QStringLiteral("mnu_wähle"));
    connect(Eintrag(mnu_wähle_, "mnu_wählealle", "&Alle auswählen"), &QAction::triggered, this,
            [this] { Auswahlhelfer(mnu_wählealle); });
    connect(Eintrag(mnu_wähle_, "mnu_wählekeine", "&Keine auswählen"), &QAction::triggered, this,
            [this] { Auswahlhelfer(mnu_wählekeine); });
    connect(Eintrag(mnu_wähle_, "mnu_wähleumkehren", "Auswahl &umkehren"), &QAction::triggered, this,
            [this] { Auswahlhelfer(mnu_wähleumkehren); });
    mnu_wähle_->addSeparator();
    connect(Eintrag(mnu_wähle_, "mnu_wähleabhier", "Wähle alle a&b hier"), &QAction::triggered, this,
            [this] { Auswahlhelfer(mnu_wähleabhier); });
    connect(Eintrag(mnu_wähle_, "mnu_wählebishier", "Wähle alle bi&s hier"), &QAction::triggered, this,
            [this] { Auswahlhelfer(mnu_wählebishier); });

    mnu_songkontext_ = new QMenu(QStringLiteral("Datei-Funktionen"), this);
    mnu_songkontext_->setObjectName(QStringLiteral("mnu_songkontext"));
    const struct {
        const char* name;
        const char* text;
        int art;  // SongSuche, -1: eigene Aktion
    } lieder[] = {
        {"mnu_song_allesongsmittitel", "Alle Songs mit diesem Titel anzeigen", int(SongSuche::Titel)},
        {"mnu_song_allesongsvoninterpret", "Alle Songs dieses Interpreten anzeigen", int(SongSuche::Interpret)},
        {"mnu_song_allesongsvonalbum", "Alle Songs von diesem Album anzeigen", int(SongSuche::Album)},
        {"mnu_song_allesongsimordner", "Alle Songs im enthaltenen Ordner anzeigen", int(SongSuche::Ordner)},
        {"mnu_song_mitdiesemnamen", "Alle Songs mit diesem Namen anzeigen", -1}};
    for (const auto& l : lieder) {
        QAction* a = Eintrag(mnu_songkontext_, l.name, l.text);
        const int art = l.art;
        // Der Titel des Spielers kommt erst mit dem Spieler; bis dahin bleibt der Eintrag aus.
        if (art >= 0) connect(a, &QAction::triggered, this, [this, art] { SongSucheAusführen(art); });
    }
    connect(Eintrag(mnu_songkontext_, "mnu_song_zwischenablage", "Dateinamen in Zwischenablage kopieren"),
            &QAction::triggered, this, [this] {
                AuswahlAktualisieren();
                const std::string pfad = ZwischenablagePfad(k_, AusgewählteDateien(), AusgewähltAnzahl());
                if (!pfad.empty()) k_.shell.InZwischenablage(pfad);
            });
    mnu_songkontext_->addSeparator()->setObjectName(QStringLiteral("mnu_song_wähletrennzeichen2"));
    connect(Eintrag(mnu_songkontext_, "mnu_song_InfosInternet", "Weitere Infos im Internet suchen..."),
            &QAction::triggered, this, &frmMain::NichtVerfügbar);

    mnu_kontext_ = new QMenu(this);
    mnu_kontext_->setObjectName(QStringLiteral("mnu_kontext"));
    for (const auto& b : KontextBefehle) {
        if (!b.name) {
            mnu_kontext_->addSeparator();
            continue;
        }
        const QString befehl = QString::fromUtf8(b.befehl);
        connect(Eintrag(mnu_kontext_, b.name, b.text), &QAction::triggered, this,
                [this, befehl] { BefehlAusführen(befehl); });
    }
    mnu_kontext_->addSeparator();
    mnu_kontext_->addMenu(mnu_wähle_);
    mnu_kontext_->addMenu(mnu_songkontext_);
}

void frmMain::Verbinden() {
    connect(links_, &LinkeSpalte::befehl, this, &frmMain::BefehlAusführen);
    connect(lblIndexdatei_, &LinkLabel::geklickt, this, &frmMain::lblIndexdatei_Click);
    connect(lblIndexdateiUntertitel1_, &KlickLabel::geklickt, this, [this] {
        if (AusgewähltAnzahl() == 1) BefehlAusführen(QStringLiteral("cmdMp3TagAnzeigen"));
    });
    // Der Ordner der Auswahl als Verweis: im Dateimanager öffnen.
    connect(lblIndexDateiUntertitel2_, &KlickLabel::geklickt, this, [this] {
        const std::string ordner = S(lblIndexDateiUntertitel2_->text());
        if (!ordner.empty() && lblIndexDateiUntertitel2_->cursor().shape() == Qt::PointingHandCursor)
            k_.shell.Öffnen(ordner);
    });
    connect(lstSongs_, &SongListeAnsicht::auswahlNeu, this, [this] { auswahlTimer_->start(); });
    connect(auswahlTimer_, &QTimer::timeout, this, &frmMain::AuswahlAktualisierenUndZeigen);
    connect(lstSongs_, &SongListeAnsicht::strgA, this, [this] { Auswahlhelfer(mnu_wählealle); });
    connect(lstSongs_, &SongListeAnsicht::entfTaste, this, &frmMain::cmdDateiEntfernen_Click);
    connect(lstSongs_, &SongListeAnsicht::doppelklick, this, &frmMain::lstSongs_DblClick);
    connect(lstSongs_, &SongListeAnsicht::rechtsklick, this, &frmMain::lstSongs_KontextMenü);
    connect(lstSongs_, &SongListeAnsicht::spalteGeklickt, this, &frmMain::lstSongs_ColumnClick);
    connect(lstSongs_, &SongListeAnsicht::dateienFallengelassen, this, &frmMain::DateienFallengelassen);
    connect(tmrTimer2_, &QTimer::timeout, this, [this] { TitelSchrittAnwenden(TitelTimer2(titel_)); });
    connect(tmrTimer1_, &QTimer::timeout, this,
            [this] { TitelSchrittAnwenden(TitelTimer1(titel_, tmrTimer1_->interval())); });
    connect(tmrScrollUpdate_, &QTimer::timeout, this, &frmMain::tmrScrollUpdate_Timer);
    VerbindenSuche();
}

void frmMain::BefehlAusführen(const QString& name) {
    if (name == QStringLiteral("cmdIndexErstellen")) cmdIndexErstellen_Click();
    else if (name == QStringLiteral("cmdAuswählen")) cmdAuswählen_Click();
    else if (name == QStringLiteral("cmdDateiEntfernen")) cmdDateiEntfernen_Click();
    else if (name == QStringLiteral("cmdBeenden")) close();
    else if (name == QStringLiteral("cmdSucheLöschen")) cmdSucheLöschen_Click();
    else if (name == QStringLiteral("cmdSucheMehr")) cmdSucheMehr_Click();
    else if (name == QStringLiteral("cmdIndexStatistik")) IndexStatistikZeigen(this, k_);
    else if (name == QStringLiteral("cmdIndexVerwaltung")) IndexVerwaltungZeigen(this, k_);
    else if (name == QStringLiteral("cmdExportieren")) {
        AuswahlAktualisieren();
        ExportierenZeigen(this, k_, AusgewählteDateien(), AusgewähltAnzahl());
    } else NichtVerfügbar();
}

void frmMain::NichtVerfügbar() {
    k_.ui.MeldungZeigen("Diese Funktion ist noch nicht verfügbar.", Meldung::Information);
}

void frmMain::cmdAuswählen_Click() {
    MenüZustandSetzen(false);
    LinkLabel* knopf = links_->Befehl(QStringLiteral("cmdAuswählen"));
    mnu_wähle_->popup(knopf->mapToGlobal(QPoint(0, knopf->height())));
}

void frmMain::MenüZustandSetzen(bool NurTitel) {
    AuswahlAktualisieren();
    const MenüZustand m = MenüAktualisieren(k_, NurTitel, AusgewählteDateien(), AusgewähltAnzahl());
    const std::pair<const char*, bool> einträge[] = {
        {"mnu_song_mitdiesemnamen", m.mnu_song_mitdiesemnamen},
        {"mnu_song_allesongsimordner", m.mnu_song_allesongsimordner},
        {"mnu_song_allesongsmittitel", m.mnu_song_allesongsmittitel},
        {"mnu_song_allesongsvonalbum", m.mnu_song_allesongsvonalbum},
        {"mnu_song_allesongsvoninterpret", m.mnu_song_allesongsvoninterpret},
        {"mnu_song_zwischenablage", m.mnu_song_zwischenablage},
        {"mnu_song_InfosInternet", m.mnu_song_InfosInternet},
        {"mnu_song_wähletrennzeichen2", m.mnu_song_wähletrennzeichen2},
        {"mnu_wähleabhier", m.mnu_wähleabhier},
        {"mnu_wählebishier", m.mnu_wählebishier}};
    for (const auto& [name, an] : einträge)
        if (auto* a = findChild<QAction*>(QString::fromUtf8(name))) {
            a->setEnabled(an);
            if (a->isSeparator()) a->setVisible(an);
        }
}

void frmMain::lstSongs_KontextMenü(const QPoint& global) {
    AuswahlAktualisierenUndZeigen();
    if (AusgewähltAnzahl() < 1) return;
    MenüZustandSetzen(false);
    mnu_kontext_->popup(global);
}

void frmMain::Auswahlhelfer(void (*helfer)(Ergebnisliste&)) {
    helfer(k_.Liste.lstSongs);
    ListeAnzeigen();
    AuswahlAktualisierenUndZeigen();
}

void frmMain::SongSucheAusführen(int art) {
    AuswahlAktualisieren();
    SongSucheZiel ziel;
    if (!SongSucheBestimmen(k_, static_cast<SongSuche>(art), AusgewählteDateien(), AusgewähltAnzahl(), ziel)) return;
    SucheStarten(ziel.feld, ziel.text);
}

void frmMain::lstSongs_DblClick() {
    AuswahlAktualisierenUndZeigen();
    if (AusgewähltAnzahl() < 1) return;
    NichtVerfügbar();  // Abspielen nach BeiDoppelklick kommt mit dem Spieler
}
