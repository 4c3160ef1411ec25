#pragma once
// Das Hauptfenster wie im Programm, nur Meldungen und Dialoge per Skript und die Shell als
// Attrappe; dazu ein kleiner Index mit sechs Liedern.
#include "app/Kartei.h"
#include "app/Start.h"
#include "index/IndexDatei.h"
#include "index/IndexOptionen.h"
#include "platform/KonfigRegistrierung.h"
#include "platform/SystemDienste.h"
#include "platform/Verzeichnisse.h"
#include "shell/Fortschritt.h"
#include "support/TestOrdner.h"
#include "ui/Programmstart.h"
#include "ui/SongListe.h"
#include "ui/frmMain.h"
#include "UiTestHilfen.h"

#include <QComboBox>
#include <QLabel>
#include <QTemporaryDir>

#include <functional>
#include <map>
#include <memory>

// Alles wie im Programm, nur Meldungen und Dialoge per Skript und die Shell als Attrappe.
struct Fenster {
    QWidget* besitzer = nullptr;
    GuiOberfläche ui{[this] { return besitzer; }};
    KonfigRegistrierung registrierung{KonfigOrdner() + "/klangkartei.conf"};
    TestSpieler spieler;  // fenster 0: kein Spieler
    TestShell shell;
    TestDatenträger datenträger;
    SystemUhr uhr;
    TestZufall zufall;
    Kartei k{Dienste{ui, registrierung, spieler, shell, datenträger, uhr, zufall}};
    std::unique_ptr<frmMain> f;

    std::vector<AufgezeichneteMeldung> meldungen;
    std::deque<int> antworten;
    std::vector<QString> dialoge;                              // in der Reihenfolge des Erscheinens
    std::map<QString, std::function<void(QDialog&)>> skripte;  // je Dialog; sonst schließen

    Fenster() {
        ui.fortschrittAbbrechen = [this] { FortschrittAbbrechenGedrückt(k); };
        ui.meldungsSkript = MeldungenNachSkript(meldungen, antworten);
        ui.dialogSkript = [this](QDialog& d) {
            dialoge.push_back(d.objectName());
            auto it = skripte.find(d.objectName());
            if (it != skripte.end()) it->second(d);
        };
    }
    void Starten(const std::vector<std::string>& argumente = {}) {
        StartVorbereiten(k, argumente);
        OrdnerAnlegen(DatenOrdner());
        f = std::make_unique<frmMain>(k, ui, StandardIndexPfad());
        besitzer = f.get();
        FensterStarten(k, *f, ui);
    }
    // Ohne Hinweis starten, mit dem Index aus LiederIndex.
    void MitLiedernStarten(const TestOrdner& ordner);
    // Ein Feld in cboSuche wählen, wie die Person es tut.
    void FeldWählen(int feld) const {
        auto* cbo = Kind<QComboBox>("cboSuche");
        cbo->setCurrentIndex(feld);
        emit cbo->activated(feld);
    }
    template <typename T> T* Kind(const char* name) const { return f->findChild<T*>(QString::fromUtf8(name)); }
    QString Text(const char* label) const { return Kind<QLabel>(label)->text(); }
    int Zeilen() const { return f->lstSongs()->model()->rowCount(); }
    bool Gefragt(const std::string& anfang) const {
        for (const auto& m : meldungen)
            if (m.text.rfind(anfang, 0) == 0) return true;
        return false;
    }
};

inline const char* SpeicherFrage = "Die Indexdatei wurde geändert.";

// Ein Index mit sechs Liedern (ID3v1 gelesen), geschrieben wie vom Programm.
inline std::string LiederIndex(const TestOrdner& ordner, const std::function<void(IndexOptionen&)>& optionen = {}) {
    TestUmgebung u;
    if (optionen) optionen(u.k.Optionen);
    u.k.E.StartBildschirm = 0;
    const struct {
        const char *datei, *titel, *interpret;
    } lieder[] = {{"01 Ein Tag.mp3", "Ein Tag", "Band A"}, {"02 Ein Tag am Meer.mp3", "Ein Tag am Meer", "Band B"},
                  {"03 Tag ein.mp3", "Tag ein", "Band A"}, {"04 Nacht.mp3", "Nacht", "Chor"},
                  {"05 Morgen.mp3", "Morgen", "Band C"},   {"unter/06 Abend.mp3", "Abend", "Chor"}};
    u.k.DateiPfade.ReDim(6);
    u.k.DateiDaten.ReDim(6);
    u.k.DateiTreffer.ReDim(6);
    for (int32_t i = 1; i <= 6; ++i) {
        const auto& l = lieder[i - 1];
        u.k.DateiPfade[i] = ordner / l.datei;
        u.k.DateiDaten[i].Mp3_ID3v1_Titel = l.titel;
        u.k.DateiDaten[i].Mp3_ID3v1_Interpret = l.interpret;
        u.k.DateiDaten[i].Mp3_ID3v1_Status = 1;
    }
    u.k.DateiAnzahl = 6;
    const std::string pfad = ordner / "lieder.kkt";
    if (!DateiSpeichern(u.k, pfad, false)) qFatal("Index nicht geschrieben");
    return pfad;
}

inline void Fenster::MitLiedernStarten(const TestOrdner& ordner) {
    k.E.TippsAktueller = 0;
    Starten({LiederIndex(ordner)});
}

inline QStringList Spalte(SongListeAnsicht* liste, int spalte) {
    QStringList werte;
    for (int z = 0; z < liste->model()->rowCount(); ++z) werte << liste->model()->index(z, spalte).data().toString();
    return werte;
}

inline QPoint ZeilenMitte(SongListeAnsicht* liste, int zeile) {
    return liste->visualRect(liste->model()->index(zeile, 0)).center();
}

// Frische XDG-Ordner je Testfall: eigene Einstellungen, eigener Standard-Index.
inline std::unique_ptr<QTemporaryDir> FrischeXdgOrdner() {
    auto xdg = std::make_unique<QTemporaryDir>();
    for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"}) {
        const QString ordner = xdg->path() + QLatin1Char('/') + QString::fromLatin1(name);
        QDir().mkpath(ordner);
        qputenv(name, ordner.toLocal8Bit());
    }
    return xdg;
}
