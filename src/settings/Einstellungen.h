#pragma once
// Die gespeicherten Einstellungen: ein Mitglied je Wert, benannt wie der Wert, mit seiner
// Vorgabe. Long = int32_t, Integer = int16_t. Reihenfolge = Lese- und Schreibreihenfolge
// (die Tabelle dazu steht in settings/EinstellungenTabelle.cpp). Der Wert "Dateiname" ist
// k.Dateiname, der Pfad des offenen Index: ein Wert, keine zweite Kopie.
#include "app/EinsBasiert.h"

#include <cstdint>
#include <string>

struct Einstellungen {
    std::string Mp3TagLesen = "101";
    std::string WinampPfad = "";
    int32_t FensterHeight = 0;
    int32_t FensterLeft = 0;
    int32_t FensterTop = 0;
    int32_t FensterWidth = 0;
    int16_t FensterMax = 0;
    int16_t Start = 0;
    std::string WinampParameterAbspielen = "";
    std::string WinampParameterHinzufügen = "-e";  // Audacious: an die Wiedergabeliste anhängen
    int16_t DateiAutomatischSpeichern = 0;
    int16_t HinzufügenKeineDoppelten = 1;
    int16_t HinzufügenUnterordner = 1;
    int16_t StartBildschirm = 1;
    int16_t AutoTagFelderLöschen = 0;
    int16_t AutoTagLeer = -1;
    std::string KopierenOrdner = "";
    int16_t KopierenModus = 0;
    std::string ExportDatei = "";
    int16_t ExportModus = 0;
    int16_t ExportUntermodus = 0;
    int16_t ExportStriche = 1;
    int16_t PlaylistFürWinamp = 1;
    int16_t BeiDoppelklick = 0;
    std::string AutoTagAktuell = "";
    int16_t TAGAutomatischSpeichern = 0;
    int16_t AutoTagUnterstrichEntfernen = 1;
    int16_t WinampLautstärke = 128;
    int16_t WinampBalance = 0;
    int16_t AutoTagAusschlußLeer = -1;
    int16_t NichtVerfügbarFragen = 1;
    int32_t FarbeFunktionen = 0xC00000;
    int32_t FarbeFunktionenHintergrund = 0xEEEEEE;
    int32_t FarbeListen = 0x800000;
    int32_t FarbeListenHintergrund = 0xFFFFFF;
    int32_t FarbeÜberschrift = 0;
    int32_t FarbeBeschreibungen = 0;
    int32_t FarbeFunktionenBesucht = 0x80;
    int16_t FunktionenUnterstreichen = 0;
    int16_t AutoCompleteVerwenden = 1;
    std::string UmbenennenEingabeID3 = "%Interpret% - %Titel%";
    std::string UmbenennenEingabeNeuAnfang = "";
    std::string UmbenennenEingabeNeuZahl = "0";
    std::string UmbenennenEingabeNeuEnde = "";
    std::string UmbenennenEingabeErsetzenText = "";
    std::string UmbenennenEingabeErsetzenDurch = "";
    int16_t UmbenennenEingabeSchreibweise = 0;
    std::string UmbenennenEingabeDateiEndung = "mp3";
    int16_t Auswahlliste = 1;
    int16_t BeendenReaktion = 0;
    int32_t RegelmäßigSpeichernAlle = 0;
    int16_t AbspielStatistikSpeichern = 1;
    std::string AutoDJFindeAnzahl = "10";
    std::string AutoDJAuslassenZeit = "1";
    int16_t AutoDJAuslassenGröße = 2;
    int16_t AutoDJAuslassenVorKurzem = 0;
    int16_t AutoDJFindenVorLängerem = 0;
    int16_t SucheNichtBeiAuswahl = 0;
    int16_t SucheNichtBeiTAGEditor = 0;
    int16_t StartBildschirmNichtBeiSpeichern = 0;
    int16_t StartBildschirmNichtBeiLaden = 0;
    int32_t TAGsProzentHinzufügen = 25;
    int32_t TAGsBytesSuchen = 102400;
    int16_t TippsAktueller = 1;
    int16_t UmbenennenAttributeA = 0;
    int16_t UmbenennenAttributeH = 0;
    int16_t UmbenennenAttributeR = 0;
    int16_t UmbenennenAttributeS = 0;
    std::string AusführenPfad = "";
    int16_t TAGAutomatischSpeichernV2 = 0;
    int16_t TAGAutomatischSpeichernFelder = 0;
    std::string UmbenennenEingabeErsetzenDateiEndung = "inanderemordner";
    int32_t TAGsSoftwareFeldSchreiben = 1;

    // Nummerierte Listen (AutoTagFormate1.., AutoTagAusschluß1..); Zustand in AutoTagLeer bzw.
    // AutoTagAusschlußLeer: 0 Liste gilt, 1 leer, -1 nie gespeichert.
    EinsBasiert<std::string> AutoTagFormate;
    EinsBasiert<std::string> AutoTagAusschluß;

    // Rücksetz-Modus: Lesen liefert nur Vorgaben.
    bool RücksetzModus = false;
};
