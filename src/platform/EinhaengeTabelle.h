#pragma once
// Die Einhängetabelle (/proc/self/mountinfo) als Daten und was sich ohne Systemaufruf aus ihr
// schließen lässt: die Wurzel eines Pfades und ob ein Dateisystem ein Wechselmedium ist.
#include <string>
#include <string_view>
#include <vector>

struct Einhängung {
    std::string punkt;   // Einhängepunkt, entschlüsselt
    std::string typ;     // Dateisystem: "ext4", "iso9660", "fuse.sshfs", …
    std::string quelle;  // Gerät oder Freigabe
    unsigned major = 0;  // Gerätenummer (0 bei Dateisystemen ohne Blockgerät)
    unsigned minor = 0;
};

// Die Zeilen der Tabelle in ihrer Reihenfolge (spätere liegen über früheren). Zeilen ohne die
// nötigen Felder werden übergangen.
std::vector<Einhängung> EinhängungenLesen(std::string_view text);

// "\040" → " ": Leerzeichen, Tabulator, Zeilenwechsel und "\" stehen oktal in der Tabelle.
std::string OktalEntschlüsseln(std::string_view text);
// "\x20" → " ": so schreibt udev Sonderzeichen in die Namen unter /dev/disk/by-label.
std::string HexEntschlüsseln(std::string_view text);

// Der längste Einhängepunkt, der pfad enthält (bei gleichen der spätere); nullptr ohne Treffer.
const Einhängung* EinhängungFür(const std::vector<Einhängung>& tabelle, std::string_view pfad);
// Die Einhängung, deren Punkt genau wurzel ist (die oberste); nullptr ohne Treffer.
const Einhängung* EinhängungAn(const std::vector<Einhängung>& tabelle, std::string_view wurzel);

// Der Ordner "/media/<benutzer>/<x>", "/run/media/<benutzer>/<x>" oder "/mnt/<x>", in dem pfad
// liegt (oder der pfad ist); "" für Pfade anderswo. Ist er nicht eingehängt, ist er die Wurzel.
std::string MedienWurzelForm(std::string_view pfad);

// Optische, Netz- und RAM-Dateisysteme: deren Dateien können kommen und gehen.
bool WechselDateisystem(std::string_view typ);
