#pragma once
// Gemeinsames der Fenstertests: eine Kartei über der echten GuiOberfläche (Meldungen und Dialoge
// per Skript), Knöpfe nach Namen drücken, Meldungen mitschreiben.
#include "app/Kartei.h"
#include "support/Attrappen.h"
#include "ui/GuiOberflaeche.h"

#include <QAbstractButton>
#include <QDialog>
#include <QTest>

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

// Meldungen mitschreiben und Fragen der Reihe nach aus antworten beantworten.
inline std::function<int(const std::string&, int)> MeldungenNachSkript(std::vector<AufgezeichneteMeldung>& meldungen,
                                                                       std::deque<int>& antworten) {
    return [&meldungen, &antworten](const std::string& text, int schalter) {
        meldungen.push_back({text, schalter});
        if (schalter == Meldung::Ausrufezeichen || schalter == Meldung::Information) return Meldung::Ok;
        if (antworten.empty()) {
            qWarning("Ungeplante Frage: %s", text.c_str());
            return Meldung::Abbrechen;
        }
        const int a = antworten.front();
        antworten.pop_front();
        return a;
    };
}

struct GuiUmgebung {
    QWidget* besitzer = nullptr;
    GuiOberfläche ui{[this] { return besitzer; }};
    TestRegistrierung registrierung;
    TestSpieler spieler;
    TestShell shell;
    TestDatenträger datenträger;
    TestUhr uhr;
    TestZufall zufall;
    Kartei k{Dienste{ui, registrierung, spieler, shell, datenträger, uhr, zufall}};

    std::vector<AufgezeichneteMeldung> meldungen;
    std::deque<int> antworten;  // für Ja/Nein/Abbrechen-Fragen, der Reihe nach

    GuiUmgebung() { ui.meldungsSkript = MeldungenNachSkript(meldungen, antworten); }
    bool MeldungGezeigt(const std::string& text) const {
        for (const auto& m : meldungen)
            if (m.text == text) return true;
        return false;
    }
};

// Einen Knopf eines Fensters nach seinem Objektnamen drücken; false, wenn es ihn nicht gibt.
inline bool Drücken(QWidget& fenster, const char* name) {
    auto* knopf = fenster.findChild<QAbstractButton*>(QString::fromUtf8(name));
    if (!knopf || !knopf->isEnabled()) return false;
    QTest::mouseClick(knopf, Qt::LeftButton);
    return true;
}

// Ein Bildschirmfoto nach KK_BILDER, wenn gesetzt (zum Ansehen, nicht zum Vergleichen).
inline void Foto(QWidget& w, const char* name) {
    const QByteArray ordner = qgetenv("KK_BILDER");
    if (!ordner.isEmpty()) w.grab().save(QString::fromUtf8(ordner) + QLatin1Char('/') + QString::fromUtf8(name));
}
