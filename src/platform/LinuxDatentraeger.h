#pragma once
// Datenträger unter Linux: die Wurzel eines Pfades ist der Einhängepunkt, der ihn enthält (oder
// ein ausgehängter Ordner unter /media, /run/media, /mnt), ein Wechselmedium erkennt man am
// Dateisystem oder am Blockgerät (removable, USB), die Bezeichnung am Dateisystem-Namen.
#include "app/Dienste.h"
#include "platform/EinhaengeTabelle.h"

#include <cstdint>
#include <ctime>
#include <string>
#include <sys/types.h>
#include <vector>

class LinuxDatenträger final : public Datenträger {
public:
    // Woher die Daten kommen; Tests geben eine eigene Tabelle und ein eigenes sysfs.
    struct Quellen {
        std::string mountinfo = "/proc/self/mountinfo";
        std::string sys = "/sys";
        std::string bezeichnungen = "/dev/disk/by-label";
    };
    LinuxDatenträger();
    explicit LinuxDatenträger(Quellen quellen);
    ~LinuxDatenträger() override;
    LinuxDatenträger(const LinuxDatenträger&) = delete;
    LinuxDatenträger& operator=(const LinuxDatenträger&) = delete;

    // "" für einen Pfad, der nicht mit "/" beginnt.
    std::string Wurzel(const std::string& pfad) override;
    // Eine Wurzel nach der anderen: dieselbe Wurzel wie zuvor kostet keine Prüfung.
    bool IstWechselmedium(const std::string& wurzel) override;
    // Name des Dateisystems; sonst (und für eine ausgehängte Wurzel) der Name ihres Ordners.
    std::string Bezeichnung(const std::string& wurzel) override;

    // Wie oft die Tabelle gelesen und ein Medium wirklich geprüft wurde (für Tests).
    int64_t TabelleGelesen() const { return tabelleGelesen_; }
    int64_t MedienGeprüft() const { return medienGeprüft_; }

private:
    void Aktualisieren();
    bool TabelleGeändert();
    void TabelleLesen();
    bool MediumPrüfen(const std::string& wurzel) const;
    bool BlockgerätWechselbar(unsigned major, unsigned minor) const;
    std::string GerätPfad(unsigned major, unsigned minor) const;
    std::string BezeichnungSuchen(const std::string& gerätName) const;

    Quellen q_;
    int wächter_ = -1;  // offen auf einer /proc-Tabelle: poll meldet jede Änderung
    struct Stand {
        dev_t gerät = 0;
        ino_t knoten = 0;
        off_t größe = -1;
        timespec geändert{};
    } stand_;  // für eine gewöhnliche Datei (Tests): Änderung am stat erkennen
    bool gelesen_ = false;
    std::vector<Einhängung> tabelle_;

    // Je ein Eintrag: letzte Wurzel und ihr Ergebnis. Eine neue Tabelle macht beide ungültig.
    bool wechselGültig_ = false, wechselErgebnis_ = false;
    std::string wechselWurzel_;
    bool namenGültig_ = false;
    std::string namenWurzel_, namenErgebnis_;

    int64_t tabelleGelesen_ = 0, medienGeprüft_ = 0;
};
