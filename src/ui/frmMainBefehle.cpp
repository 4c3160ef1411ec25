// Die Befehle des Hauptfensters, die Liste mit Maus und Tastatur und die Kontextmenüs. Jeder
// Befehl ist eine QAction (FensterBefehle); Verweis, Menü, Kontextmenü und Taste lösen sie aus.
#include "app/Kartei.h"
#include "player/Abspielen.h"
#include "app/Ergebnisliste.h"
#include "search/Hauptfenster.h"
#include "ui/GuiOberflaeche.h"
#include "ui/LinkLabel.h"
#include "ui/LinkeSpalte.h"
#include "ui/SongListe.h"
#include "ui/Umrechnung.h"
#include "ui/dialoge/BerichteZeigen.h"
#include "ui/dialoge/frmOptionen.h"
#include "ui/Farben.h"
#include "ui/dialoge/frmMp3Tag.h"
#include "ui/dialoge/frmAutoDJ.h"
#include "ui/frmMain.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QPushButton>
#include <QTimer>

namespace {
QAction* Aktion(QObject* eltern, const char* name, const char* text) {
    auto* a = new QAction(QString::fromUtf8(text), eltern);
    a->setObjectName(QString::fromUtf8(name));
    return a;
}

QAction* Eintrag(QMenu* menü, const char* name, const char* text) {
    QAction* a = Aktion(menü, name, text);
    menü->addAction(a);
    return a;
}
}  // namespace

// Ein Befehl, der noch nicht eingebaut ist, bekommt NichtEingebaut; wird er eingebaut, ändert
// sich nur seine Zeile hier.
void frmMain::BefehleAnlegen() {
    using B = FensterBefehle;
    const struct {
        QAction* B::*feld;
        const char* name;
        const char* text;
        void (frmMain::*aktion)();
    } tabelle[] = {
        {&B::cmdIndexErstellen, "cmdIndexErstellen", "Zum Index hinzufügen", &frmMain::cmdIndexErstellen_Click},
        {&B::cmdListeAufräumen, "cmdListeAufräumen", "Index synchronisieren", &frmMain::cmdListeAufräumen_Click},
        {&B::cmdIndexVerwaltung, "cmdIndexVerwaltung", "Index-Verwaltung", &frmMain::cmdIndexVerwaltung_Click},
        {&B::cmdIndexStatistik, "cmdIndexStatistik", "Index-Statistiken", &frmMain::cmdIndexStatistik_Click},
        {&B::cmdAutoDJ, "cmdAutoDJ", "AutoDJ", &frmMain::cmdAutoDJ_Click},
        {&B::cmdAuswählen, "cmdAuswählen", "Auswählen", &frmMain::cmdAuswählen_Click},
        {&B::cmdEintragAbspielen, "cmdEintragAbspielen", "Abspielen", &frmMain::cmdEintragAbspielen_Click},
        {&B::cmdAnhängen, "cmdAnhängen", "In Playlist", &frmMain::cmdAnhängen_Click},
        {&B::cmdEintragAusführen, "cmdEintragAusführen", "Ausführen", &frmMain::cmdEintragAusführen_Click},
        {&B::cmdEintragAusführenMit, "cmdEintragAusführenMit", "Ausführen mit", &frmMain::cmdEintragAusführenMit_Click},
        {&B::cmdMp3TagAnzeigen, "cmdMp3TagAnzeigen", "Datei-Infos", &frmMain::cmdMp3TagAnzeigen_Click},
        {&B::cmdExportieren, "cmdExportieren", "Export", &frmMain::cmdExportieren_Click},
        {&B::cmdDateiEntfernen, "cmdDateiEntfernen", "Aus Index entfernen", &frmMain::cmdDateiEntfernen_Click},
        {&B::cmdDateienLöschen, "cmdDateienLöschen", "Löschen", &frmMain::cmdDateienLöschen_Click},
        {&B::cmdDateienKopierenVerschieben, "cmdDateienKopierenVerschieben", "Kopieren/verschieben",
         &frmMain::cmdDateienKopierenVerschieben_Click},
        {&B::cmdUmbenennen, "cmdUmbenennen", "Umbenennen", &frmMain::cmdUmbenennen_Click},
        {&B::cmdOptionen, "cmdOptionen", "Optionen", &frmMain::cmdOptionen_Click},
        {&B::cmdHilfe, "cmdHilfe", "Hilfe", &frmMain::cmdHilfe_Click},
        {&B::cmdInfo, "cmdInfo", "Infos", &frmMain::cmdInfo_Click},
        {&B::cmdBeenden, "cmdBeenden", "Ende", &frmMain::cmdBeenden_Click},
        {&B::cmdSucheLöschen, "cmdSucheLöschen", "Löschen", &frmMain::cmdSucheLöschen_Click},
        {&B::cmdSucheMehr, "cmdSucheMehr", "Erweiterte Suche", &frmMain::cmdSucheMehr_Click},
        {&B::mnu_wählealle, "mnu_wählealle", "&Alle auswählen", &frmMain::mnu_wählealle_Click},
        {&B::mnu_wählekeine, "mnu_wählekeine", "&Keine auswählen", &frmMain::mnu_wählekeine_Click},
        {&B::mnu_wähleumkehren, "mnu_wähleumkehren", "Auswahl &umkehren", &frmMain::mnu_wähleumkehren_Click},
        {&B::mnu_wähleabhier, "mnu_wähleabhier", "Wähle alle a&b hier", &frmMain::mnu_wähleabhier_Click},
        {&B::mnu_wählebishier, "mnu_wählebishier", "Wähle alle bi&s hier", &frmMain::mnu_wählebishier_Click},
    };
    for (const auto& z : tabelle) {
        QAction* a = Aktion(this, z.name, z.text);
        connect(a, &QAction::triggered, this, z.aktion);
        befehle_.*z.feld = a;
    }
}

void frmMain::MenüsAufbauen() {
    const auto& b = befehle_;
    mnu_wähle_ = new QMenu(QStringLiteral("Aus&wählen"), this);
    mnu_wähle_->setObjectName(QStringLiteral("mnu_wähle"));
    mnu_wähle_->addActions({b.mnu_wählealle, b.mnu_wählekeine, b.mnu_wähleumkehren});
    mnu_wähle_->addSeparator();
    mnu_wähle_->addActions({b.mnu_wähleabhier, b.mnu_wählebishier});
    menüRegeln_ = {{b.mnu_wähleabhier, &MenüZustand::mnu_wähleabhier},
                   {b.mnu_wählebishier, &MenüZustand::mnu_wählebishier}};

    mnu_songkontext_ = new QMenu(QStringLiteral("Datei-Funktionen"), this);
    mnu_songkontext_->setObjectName(QStringLiteral("mnu_songkontext"));
    const struct {
        const char* name;
        const char* text;
        SongSuche art;
        bool MenüZustand::*regel;
    } lieder[] = {{"mnu_song_allesongsmittitel", "Alle Songs mit diesem Titel anzeigen", SongSuche::Titel,
                   &MenüZustand::mnu_song_allesongsmittitel},
                  {"mnu_song_allesongsvoninterpret", "Alle Songs dieses Interpreten anzeigen", SongSuche::Interpret,
                   &MenüZustand::mnu_song_allesongsvoninterpret},
                  {"mnu_song_allesongsvonalbum", "Alle Songs von diesem Album anzeigen", SongSuche::Album,
                   &MenüZustand::mnu_song_allesongsvonalbum},
                  {"mnu_song_allesongsimordner", "Alle Songs im enthaltenen Ordner anzeigen", SongSuche::Ordner,
                   &MenüZustand::mnu_song_allesongsimordner}};
    for (const auto& l : lieder) {
        QAction* a = Eintrag(mnu_songkontext_, l.name, l.text);
        const SongSuche art = l.art;
        connect(a, &QAction::triggered, this, [this, art] { SongSucheAusführen(art); });
        menüRegeln_.emplace_back(a, l.regel);
    }
    // Der Titel des Spielers kommt erst mit dem Spieler.
    QAction* mitNamen = Eintrag(mnu_songkontext_, "mnu_song_mitdiesemnamen", "Alle Songs mit diesem Namen anzeigen");
    connect(mitNamen, &QAction::triggered, this, &frmMain::NichtEingebaut);
    QAction* ablage = Eintrag(mnu_songkontext_, "mnu_song_zwischenablage", "Dateinamen in Zwischenablage kopieren");
    connect(ablage, &QAction::triggered, this, &frmMain::mnu_song_zwischenablage_Click);
    QAction* trenner = mnu_songkontext_->addSeparator();
    trenner->setObjectName(QStringLiteral("mnu_song_wähletrennzeichen2"));
    QAction* internet = Eintrag(mnu_songkontext_, "mnu_song_InfosInternet", "Weitere Infos im Internet suchen...");
    connect(internet, &QAction::triggered, this, &frmMain::mnu_song_InfosInternet_Click);
    menüRegeln_.insert(menüRegeln_.end(), {{mitNamen, &MenüZustand::mnu_song_mitdiesemnamen},
                                           {ablage, &MenüZustand::mnu_song_zwischenablage},
                                           {trenner, &MenüZustand::mnu_song_wähletrennzeichen2},
                                           {internet, &MenüZustand::mnu_song_InfosInternet}});

    // Die Dateibefehle des Kontextmenüs lösen die Befehle der linken Spalte aus.
    mnu_kontext_ = new QMenu(this);
    mnu_kontext_->setObjectName(QStringLiteral("mnu_kontext"));
    const struct {
        const char* name;
        const char* text;
        QAction* befehl;
    } kontext[] = {
        {"mnu_kontext_abspielen", "&Abspielen", b.cmdEintragAbspielen},
        {"mnu_kontext_playlist", "In &Playlist", b.cmdAnhängen},
        {"mnu_kontext_ausführen", "Aus&führen", b.cmdEintragAusführen},
        {"mnu_kontext_ausführenmit", "Ausführen &mit...", b.cmdEintragAusführenMit},
        {"mnu_kontext_infos", "Datei-&Infos", b.cmdMp3TagAnzeigen},
        {"mnu_kontext_export", "&Export", b.cmdExportieren},
        {nullptr, nullptr, nullptr},
        {"mnu_kontext_indexhinzufügen", "Zum Index &hinzufügen", b.cmdIndexErstellen},
        {"mnu_kontext_indexentfernen", "Aus Index &entfernen", b.cmdDateiEntfernen},
        {"mnu_kontext_löschen", "&Löschen", b.cmdDateienLöschen},
        {"mnu_kontext_kopieren", "&Kopieren/verschieben", b.cmdDateienKopierenVerschieben},
        {"mnu_kontext_umbenennen", "&Umbenennen", b.cmdUmbenennen},
    };
    for (const auto& e : kontext) {
        if (!e.name) mnu_kontext_->addSeparator();
        else connect(Eintrag(mnu_kontext_, e.name, e.text), &QAction::triggered, e.befehl, &QAction::trigger);
    }
    mnu_kontext_->addSeparator();
    mnu_kontext_->addMenu(mnu_wähle_);
    mnu_kontext_->addMenu(mnu_songkontext_);
}

void frmMain::Verbinden() {
    const auto& b = befehle_;
    connect(cmdSucheLöschen_, &QPushButton::clicked, b.cmdSucheLöschen, &QAction::trigger);
    connect(cmdSucheMehr_, &QPushButton::clicked, b.cmdSucheMehr, &QAction::trigger);
    connect(lblIndexdatei_, &LinkLabel::geklickt, this, &frmMain::lblIndexdatei_Click);
    connect(lblIndexdateiUntertitel1_, &KlickLabel::geklickt, this, [this] {
        if (AusgewähltAnzahl() == 1) befehle_.cmdMp3TagAnzeigen->trigger();
    });
    // Der Ordner der Auswahl als Verweis: im Dateimanager öffnen.
    connect(lblIndexDateiUntertitel2_, &KlickLabel::geklickt, this, [this] {
        const std::string ordner = S(lblIndexDateiUntertitel2_->text());
        if (!ordner.empty() && lblIndexDateiUntertitel2_->cursor().shape() == Qt::PointingHandCursor)
            k_.shell.Öffnen(ordner);
    });
    connect(lstSongs_, &SongListeAnsicht::auswahlNeu, this, [this] { auswahlTimer_->start(); });
    connect(auswahlTimer_, &QTimer::timeout, this, &frmMain::AuswahlAktualisierenUndZeigen);
    connect(lstSongs_, &SongListeAnsicht::strgA, b.mnu_wählealle, &QAction::trigger);
    connect(lstSongs_, &SongListeAnsicht::entfTaste, b.cmdDateiEntfernen, &QAction::trigger);
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

void frmMain::NichtEingebaut() {
    k_.ui.MeldungZeigen("Diese Funktion ist noch nicht eingebaut.", Meldung::Information);
}

void frmMain::cmdBeenden_Click() { close(); }

void frmMain::cmdIndexStatistik_Click() { IndexStatistikZeigen(this, k_); }

// Auch ohne OK: im Tag-Editor der Infos kann sich schon etwas geändert haben.
void frmMain::cmdIndexVerwaltung_Click() {
    IndexVerwaltungZeigen(this, k_, ui_);
    SucheNachlauf();
}

void frmMain::cmdExportieren_Click() {
    AuswahlAktualisieren();
    ExportierenZeigen(this, k_, AusgewählteDateien(), AusgewähltAnzahl());
}

// Auch nach Abbrechen: Zurücksetzen und Index-Optionen gelten schon.
void frmMain::cmdOptionen_Click() {
    frmOptionen dialog(this, k_, ui_);
    dialog.indexÖffnen = [this] { lblIndexdatei_Click(); };
    dialog.farbenAnwenden = [this] { FarbenAnwenden(); };
    ui_.DialogAusführen(dialog);
    FarbenAnwenden();
    OffeneFensterEinfärben(k_.E);
    ListeAnzeigen();
}

void frmMain::cmdMp3TagAnzeigen_Click() {
    AuswahlAktualisieren();
    std::vector<int32_t> einträge;
    for (int32_t i = 1; i <= AusgewähltAnzahl(); ++i) einträge.push_back(AusgewählteDateien()[i]);
    if (einträge.empty()) return;
    TagEditorZeigen(this, k_, ui_, einträge);
    SucheNachlauf();
}

void frmMain::cmdAutoDJ_Click() {
    AutoDJBefehle befehle{[this](const std::vector<int32_t>& einträge, bool anhängen) {
                              EinsBasiert<int32_t> dateien(int32_t(einträge.size()));
                              for (size_t i = 0; i < einträge.size(); ++i) dateien[int32_t(i) + 1] = einträge[i];
                              AbspielenMediaPlayer(k_, dateien, anhängen, false, false, "");
                              ListeAnzeigen();
                          },
                          [this](const std::vector<int32_t>& einträge) {
                              TagEditorZeigen(this, k_, ui_, einträge);
                              SucheNachlauf();
                          }};
    frmAutoDJ dialog(this, k_, std::move(befehle));
    ui_.DialogAusführen(dialog);
}

void frmMain::cmdAuswählen_Click() {
    MenüZustandSetzen(false);
    LinkLabel* knopf = links_->Verweis(befehle_.cmdAuswählen);
    mnu_wähle_->popup(knopf->mapToGlobal(QPoint(0, knopf->height())));
}

void frmMain::MenüZustandSetzen(bool NurTitel) {
    AuswahlAktualisieren();
    const MenüZustand m = MenüAktualisieren(k_, NurTitel, AusgewählteDateien(), AusgewähltAnzahl());
    for (const auto& [eintrag, regel] : menüRegeln_) {
        eintrag->setEnabled(m.*regel);
        if (eintrag->isSeparator()) eintrag->setVisible(m.*regel);
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

void frmMain::mnu_wählealle_Click() { Auswahlhelfer(mnu_wählealle); }
void frmMain::mnu_wählekeine_Click() { Auswahlhelfer(mnu_wählekeine); }
void frmMain::mnu_wähleumkehren_Click() { Auswahlhelfer(mnu_wähleumkehren); }
void frmMain::mnu_wähleabhier_Click() { Auswahlhelfer(mnu_wähleabhier); }
void frmMain::mnu_wählebishier_Click() { Auswahlhelfer(mnu_wählebishier); }

void frmMain::SongSucheAusführen(SongSuche art) {
    AuswahlAktualisieren();
    SongSucheZiel ziel;
    if (!SongSucheBestimmen(k_, art, AusgewählteDateien(), AusgewähltAnzahl(), ziel)) return;
    SucheStarten(ziel.feld, ziel.text);
}

void frmMain::mnu_song_zwischenablage_Click() {
    AuswahlAktualisieren();
    const std::string pfad = ZwischenablagePfad(k_, AusgewählteDateien(), AusgewähltAnzahl());
    if (!pfad.empty()) k_.shell.InZwischenablage(pfad);
}
