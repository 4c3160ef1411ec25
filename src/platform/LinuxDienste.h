#pragma once
// Die Dienste des Kerns unter Linux, an einem Ort gebaut: Fenster und Kommandozeile holen sie
// hier und geben nur ihre eigene Oberfläche dazu.
#include "app/Kartei.h"
#include "platform/KonfigRegistrierung.h"
#include "platform/LinuxDatentraeger.h"
#include "platform/LinuxShell.h"
#include "platform/MprisSpieler.h"
#include "platform/SystemDienste.h"

#include <string>

// $XDG_CONFIG_HOME/klangkartei/klangkartei.conf
std::string EinstellungsDatei();

// Legt den Ordner des Standard-Index an (dort entsteht er beim ersten Laden) und gibt seinen
// Pfad zurück.
std::string StandardIndexBereitstellen();

struct LinuxDienste {
    LinuxDienste();
    LinuxDienste(const LinuxDienste&) = delete;
    LinuxDienste& operator=(const LinuxDienste&) = delete;

    // Die Dienste für eine Kartei; ui muss so lange leben wie sie.
    Dienste Mit(Oberfläche& ui);

    KonfigRegistrierung registrierung;
    MprisSpielerfenster spieler;
    LinuxShell shell;
    LinuxDatenträger datenträger;
    SystemUhr uhr;
    SystemZufall zufall;
};
