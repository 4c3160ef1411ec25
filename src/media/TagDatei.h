#pragma once
// Gemeinsames Werkzeug der Tag-Schreiber: eine Datei über eine zweite daneben neu schreiben,
// Teile der alten Datei stückweise übernehmen, Systemfehler als Nummer mit deutschem Text.
#include "app/Pfade.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

struct Kartei;

struct DateiBereich {
    int64_t anfang = 0;  // 0-basiert
    int64_t länge = 0;
};

// Was von einer Datei bleibt, als Bereiche der alten Datei: der Inhalt liegt nie nur im
// Speicher, er wird beim Schreiben in Blöcken kopiert.
struct DateiRest {
    std::string pfad;
    std::vector<DateiBereich> bereiche;
    int64_t Länge() const;
};
// Den Rest als Text lesen (für kleine Dateien und Prüfungen); false bei einem Lesefehler.
bool DateiRestLesen(const DateiRest& rest, std::string& inhalt);

enum class NeuSchreibenSchritt { Fertig, Anlegen, Schreiben, Ersetzen };
struct NeuSchreibenErgebnis {
    NeuSchreibenSchritt schritt = NeuSchreibenSchritt::Fertig;
    int systemFehler = 0;  // errno des gescheiterten Schritts
    std::string neuPfad;   // die tatsächlich benutzte neue Datei
    bool Gelungen() const { return schritt == NeuSchreibenSchritt::Fertig; }
};
// Schreibt vorn, dann nullen NUL-Bytes, dann den Rest in die neue Datei neu (sie darf noch nicht
// bestehen), gibt ihr die Rechte von ziel und benennt sie über ziel um. Scheitert Anlegen oder
// Schreiben, ist neu wieder weg und ziel unberührt; scheitert das Umbenennen, bleibt neu liegen.
// Ist ziel ein symbolischer Verweis, bleibt er: ersetzt wird die Datei, auf die er zeigt (die
// neue Datei liegt dann neben ihr).
NeuSchreibenErgebnis DateiNeuSchreiben(const std::string& ziel, const std::string& neu, std::string_view vorn,
                                       int64_t nullen, const DateiRest& rest);

// Für das Entfernen eines Tags: eine schreibgeschützte Datei bleibt, wie sie ist, auch wenn der
// Ordner das Ersetzen erlaubte (Schritt Anlegen mit dem Grund); sonst DateiNeuSchreiben ohne vorn.
NeuSchreibenErgebnis DateiBeschreibbarNeuSchreiben(const std::string& ziel, const std::string& neu,
                                                   const DateiRest& rest);

// Nach dem Neuschreiben beim Entfernen eines Tags ("ID3v1" oder "ID3v2"): meldet ein Scheitern
// mit dem Text seines Schritts. true, wenn das Neuschreiben gelang.
bool TagEntfernenErgebnisMelden(Kartei& k, const char* version, const std::string& dateiname,
                                const NeuSchreibenErgebnis& e);

// Lässt sich die Datei zum Schreiben öffnen? Sonst steht der Grund in systemFehler.
bool DateiBeschreibbar(const std::string& pfad, int& systemFehler);

// Fehlernummer der Meldungstexte zu einem Systemfehler (errno), und ihre Beschreibung.
int FehlerNummer(int systemFehler);
std::string FehlerBeschreibung(int fehlerNummer);

// Text für einen gescheiterten Schreibzugriff auf einen Tag ("ID3v1" oder "ID3v2"): bei
// Zugriffsfehlern der Hinweis auf andere Programme, sonst Beschreibung und Nummer.
std::string TagSpeicherFehlerText(std::string_view tagArt, const std::string& pfad, int systemFehler);

// Schreibschutz aufheben und löschen; true, wenn die Datei danach fort ist.
inline bool DateiLöschenErzwingen(const std::string& dateiname) { return DateiLöschenEinfach(dateiname); }

// Eintragsnummer der Zeile position (ab 1) der Ergebnisliste; 0, wenn es die Zeile nicht gibt.
int32_t ListenEintrag(const Kartei& k, int32_t position);
// Pfad des Eintrags; leer, wenn die Nummer außerhalb der Tabelle liegt.
std::string EintragPfad(const Kartei& k, int32_t eintrag);
