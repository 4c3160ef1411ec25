#pragma once
// Zustand der Suche und der Ergebnisliste: Abfragezeilen, Suchbereich, Sperren, die Bedienelemente
// der Suche als Daten, Auswahl, Markierungen und Sortiergedächtnis.
#include "app/EinsBasiert.h"
#include "app/Ergebnisliste.h"

#include <cstdint>
#include <string>
#include <vector>

// Ein Eingabefeld mit Aufklappliste (txtSongname, cboSuche) oder eine einfache Liste
// (lstSucheAuswahl), so wie die Logik es sieht. Das Fenster gleicht seine Widgets damit ab.
// SelStart und SelLength zählen Zeichen (Codepunkte), nicht Bytes.
struct KomboFeld {
    std::string Text;
    int32_t SelStart = 0;
    int32_t SelLength = 0;
    std::vector<std::string> List;  // Einträge der Aufklappliste, ab 0
    int32_t ListIndex = -1;         // gewählter Eintrag, -1 = keiner
    bool Enabled = true;

    int32_t ListCount() const { return static_cast<int32_t>(List.size()); }
    // Der gewählte Eintrag; leer, wenn keiner gewählt ist.
    const std::string& GewählterEintrag() const;
};

// Die gefalteten Texte der Standardsuche je Eintrag, hintereinander in einem Puffer.
// Gültig, solange stand dem TabellenStand der Kartei gleicht; sonst prüft die Suche jeden
// Eintrag über seine Prüfsumme und faltet nur geänderte neu.
struct StandardsuchCache {
    struct Eintrag {
        uint64_t prüfsumme = 0;  // über den ungefalteten Text
        uint64_t anfang = 0;     // im Puffer
        uint32_t länge = 0;
    };
    bool gültig = false;
    uint64_t stand = 0;
    std::string puffer;
    std::vector<Eintrag> einträge;  // einträge[i] gehört zu Eintrag i + 1
};

struct SuchZustand {
    // --- Abfragezeilen (alle Felder ab 1; ohne Zeile je ein leeres Element) ---
    int32_t SuchAnzahl = 0;
    EinsBasiert<std::string> SuchFelder{1};
    EinsBasiert<std::string> SuchBegriffe{1};
    EinsBasiert<std::string> SuchBedingungen{1};  // "00" MUSS, "11" DARF NICHT

    // Erster und letzter Eintrag, der noch im Ergebnis sein kann; 0 = Ergebnis leer.
    int32_t SuchCacheAnfang = -1;
    int32_t SuchCacheEnde = 0;

    bool SucheGesperrt = false;  // eine Änderung von txtSongname startet nichts
    bool SucheSofort = false;    // eine Änderung sucht sofort statt über tmrListe
    // tmrListe ist gespannt: das Fenster startet seinen 600-ms-Zeitgeber (ohne Neustart, wenn er
    // schon läuft) und ruft danach tmrListe_Timer.
    bool tmrListeAktiv = false;

    // --- Bedienelemente der Suche im Hauptfenster ---
    KomboFeld cboSuche;     // die Suchfelder; Enabled = false bei mehreren Abfragezeilen
    KomboFeld txtSongname;  // der Suchtext mit seinen Vorschlägen

    // --- Vervollständigung ---
    bool AutoCompleteErlaubt = true;
    bool AutoCompleteUnterdrückt = false;

    // --- Auswahl und Markierungen der Ergebnisliste ---
    EinsBasiert<int32_t> AusgewählteDateien{1};  // Eintragsnummern der gewählten Zeilen
    EinsBasiert<int32_t> AusgewählteZeilen{1};   // ihre Zeilennummern (ab 1)
    int32_t AusgewähltAnzahl = 0;
    EinsBasiert<int32_t> MarkierteEinträge;
    int32_t MarkierteAnzahl = 0;
    int32_t MarkierteNächste = 1;
    bool MarkierungenBehalten = true;  // nur beim Hinzufügen von Dateien aus

    // --- Sortiergedächtnis ---
    std::string SortierSpalteZuletzt;
    int16_t SortierUmkehren = 0;

    StandardsuchCache standardsuche;

    SuchZustand();
};

struct ListenZustand {
    Ergebnisliste lstSongs;       // die Hauptliste
    std::string DateiAnzahlText;  // lblDateiAnzahl
};
