#pragma once
// Der Tag-Editor (frmMp3Tag) als Daten und Routinen: das Fenster gleicht seine Steuerelemente mit
// TagEditorAnsicht ab, ruft die Routinen hier und zeigt danach wieder die Ansicht. Entscheidungen
// fallen nur hier.
#include "app/DateiInfo.h"
#include "app/EinsBasiert.h"

#include <cstdint>
#include <string>
#include <vector>

struct Kartei;

// Die Steuerelemente mit ihrem Inhalt, benannt wie die Steuerelemente.
struct TagEditorAnsicht {
    // ID3v1
    std::string txtTitel, txtInterpret, txtAlbum, txtJahr, txtKommentar, txtTitelnummer;
    int32_t cboMusikrichtung = 0;  // Itemwert der Wahl: Genre-Code + 1, 0 = keine Wahl
    // ID3v2
    std::string txtv2Titel, txtv2Interpret, txtv2Album, txtv2Jahr, txtv2Kommentar, txtv2Titelnummer;
    std::string cbov2Musikrichtung;  // freier Text
    std::string txtv2Komponist, txtv2OriginalInterpret, txtv2Copyright, txtv2Verlag, txtv2Kodiert, txtv2Software,
        txtv2Link, txtv2Sprache, txtv2Medium, txtv2Länge, txtv2Abspielzähler;
    // Index
    std::string txtIndexHinzugefügtAm, txtIndexDatenträger, txtIndexAbspielAnzahl, txtIndexAbspielDatum;
    // Informationen
    std::string lblTrackInfos, lblID3v1Info, lblID3v2Info;
    bool cmdTAGEntfernen = false, cmdTAGEntfernenv2 = false;
    // Dateiliste und Blättern
    std::vector<std::string> txtDateiname;  // Dateinamen ohne Ordner
    int32_t txtDateinameListIndex = -1;
    std::string txtDateinameToolTip;  // ganzer Pfad der gezeigten Datei
    bool cmdVorheriger = false, cmdNächster = false;
    // Automatisch speichern beim Wechsel der Datei
    bool chkAutomatischSpeichern = false, chkAutomatischSpeichernV2 = false, chkAutomatischSpeichernFelder = false;
    // Die Speicherknöpfe (die automatischen Speicherungen laufen nur über freigegebene Knöpfe).
    bool cmdTAGSpeichern = true, cmdTagSpeichernV2 = true, cmdTAGSpeichernFelder = true;
    bool sichtbar = false;  // das Fenster ist offen
};

// Ein Textfeld der Ansicht und sein Feld im Datensatz; beschriftung für das Fenster.
struct TagEditorTextfeld {
    const char* name;
    const char* beschriftung;
    std::string TagEditorAnsicht::*steuer;
    KText DateiInfo::*feld;
};
// Die ID3v1-Textfelder (ohne Genre) und die ID3v2-Textfelder (ohne Genre), in Anzeigereihenfolge.
const std::vector<TagEditorTextfeld>& TagEditorV1Felder();
const std::vector<TagEditorTextfeld>& TagEditorV2Felder();

struct TagEditor {
    TagEditorAnsicht a;
    EinsBasiert<int32_t> TagEditorDateien;  // Eintragsnummern je Zeile von txtDateiname (ab 1)
    int32_t AktuellerEintrag = 0;           // Zeile (ab 1) der gezeigten Datei, 0 = keine
    DateiInfo TagArbeitsdaten;
    bool TagLadenLäuft = false;
    bool TagEintragGeladen = false;
    bool TagGespeichert = false;
};

// --- Ansicht (TagEditorAnsicht.cpp) ---
// Füllt die Ansicht für eine Datei: frischt info nach flags aus der Datei auf (ID3v1, ID3v2,
// MPEG-Kopf/Index; "000" zeigt den Datensatz, wie er ist), leert und füllt die Gruppen und setzt
// die drei Informationstexte. true, wenn die Datei besteht.
bool MedienInfosEintragen(Kartei& k, TagEditorAnsicht& a, DateiInfo& info, const std::string& dateiname,
                          const std::string& flags);
// Die drei Gruppen der Ansicht in den Datensatz. Eine ID3v1-Titelnummer, die keine Zahl von 0
// bis 255 ist, wird leer; ein ungültiges Datum ebenso, eine Abspielzahl ohne Zahl 0.
void TagEditorAnsichtLesen(const TagEditorAnsicht& a, DateiInfo& d);
// Nur die Index-Gruppe.
void TagEditorIndexFelderLesen(const TagEditorAnsicht& a, DateiInfo& d);
// Titel, Interpret, Album, Jahr, Titelnummer, Kommentar und Genre von ID3v2 nach ID3v1 bzw.
// umgekehrt; gespeichert wird dabei nichts.
void cmdDatenKopierenNachV1(TagEditorAnsicht& a);
void cmdDatenKopierenNachV2(TagEditorAnsicht& a);
// Nur Ziffern gehen in txtTitelnummer; Steuerzeichen (Rücktaste) bleiben erlaubt.
bool TitelnummerZeichenErlaubt(uint32_t zeichen);

// --- Ablauf (TagEditor.cpp) ---
// Füllt die Dateiliste mit den Einträgen und lädt die erste Datei, die zu haben ist. true: das
// Fenster wird gezeigt; sonst bleibt es zu.
bool TagEditorÖffnen(Kartei& k, TagEditor& e, const std::vector<int32_t>& einträge);
// Die Person hat die Zeile (ab 0) von txtDateiname gewählt: erst die automatischen
// Speicherungen der gezeigten Datei, dann ab dieser Zeile die erste Datei laden, die zu haben ist.
// false: keine geladen, das Fenster ist zu verbergen (a.sichtbar false).
bool txtDateiname_Click(Kartei& k, TagEditor& e, int32_t zeile);
// Lädt die Datei der Zeile position (ab 1): 0 geladen, 1 überspringen, 2 abbrechen.
int16_t TagEintragLaden(Kartei& k, TagEditor& e, int32_t position, const std::string& flags);
// Die angehakten Speicherungen, in der Reihenfolge ID3v1, ID3v2, Index-Felder.
void TagAutomatischSpeichern(Kartei& k, TagEditor& e);
// cmdVorheriger (-1), cmdNächster (+1): ohne Umlauf am Anfang und Ende.
bool TagEditorBlättern(Kartei& k, TagEditor& e, int richtung);
// cmdTAGEntfernen / cmdTAGEntfernenv2 mit ihrer Frage; true, wenn der Tag fort ist.
bool TagEditorTagEntfernen(Kartei& k, TagEditor& e, bool v2);
// cmdOk: speichern wie beim Wechsel, die Haken in die Einstellungen, verbergen, dann die
// Ergebnisliste auffrischen (ohne Suche bei SucheNichtBeiTAGEditor 1, sonst mit Suche).
void TagEditorOk(Kartei& k, TagEditor& e);

// --- Speichern (TagEditorSpeichern.cpp) ---
// art: 0 alles, 1 ID3v1, 2 ID3v2, 3 Index-Felder. Fehler zeigen ihre Meldung.
void Mp3TAGAnzeigeInfosSpeichern(Kartei& k, TagEditor& e, int16_t art);

// --- Funktionen (TagEditorFunktion.cpp) ---
// cmdFunktionAusführen nach der Frage: funktion aus cboFunktion, ziel aus cboFunktionTAG.
// felder: die Wahl von "Felder kopieren..." (Nummern in TagKopierFelder).
void TagEditorFunktionAusführen(Kartei& k, TagEditor& e, int32_t funktion, int32_t ziel,
                                const std::vector<int32_t>& felder);
