#pragma once
// Schreibt die Mp3_ID3v2_*-Felder als ID3v2.3.0-Tag in eine Datei, an Ort und Stelle oder durch
// Neuschreiben über eine Datei daneben, und entfernt einen Tag.
#include "app/DateiInfo.h"
#include "media/TagDatei.h"

#include <cstdint>
#include <functional>
#include <string>

struct Kartei;

// Tag-Kopf: "ID3", 3, 0, 0 und die Größe ohne Kopf SyncSafe (vier Bytes zu je 7 Bit).
std::string Mp3TAGSpeichernV2TAGHeaderZurückgeben(int32_t größe);
// Rahmenkopf: Kennung, Größe als 32-Bit-Zahl (höchstes Byte zuerst), zwei Flag-Bytes 0.
std::string Mp3TAGSpeichernV2FrameHeaderZurückgeben(int32_t größe, const std::string& id);
// Schreibt den Tag. index ist eine Zeile (ab 1) der Ergebnisliste; die Datei-Form nimmt den
// Pfad und den Tabelleneintrag (0 = keiner), den das Entfernen eines alten Tags auffrischt.
// Gearbeitet wird mit der wahren Ausdehnung des alten Tags; Rahmen, deren Feld sich gegenüber
// dem Gelesenen nicht ändert, und alle unbekannten bleiben Byte für Byte (2.2 und 2.4 in die
// Form von 2.3 gebracht). Texte gehen in Windows-1252 hinaus, wenn sie hineinpassen, sonst in
// UTF-16 mit BOM. Bei false steht die Meldung in fehlertext; die Datei ist dann unverändert.
bool MP3TagSpeichernV2(Kartei& k, int32_t index, std::string& fehlertext, const DateiInfo& info);
bool MP3TagSpeichernV2Datei(Kartei& k, const std::string& dateiname, std::string& fehlertext, const DateiInfo& info,
                            int32_t eintrag = 0);

// Entfernt den Tag über dateiname + "-neu". Mit nurZurückgeben bleibt die Datei, wie sie ist, und
// rest nennt, was ohne den Tag von ihr bleibt. eintrag (ab 1, 0 = keiner) erhält die
// aufgefrischten Daten; arbeitsdaten (wenn angegeben) wird nach dem Entfernen mit "011"
// aufgefrischt. vorHinweis läuft vor dem Hinweis auf eine fehlende Datei.
bool TAGEntfernenV2(Kartei& k, const std::string& dateiname, int32_t eintrag, bool nurZurückgeben, DateiRest& rest,
                    DateiInfo* arbeitsdaten = nullptr, const std::function<void()>& vorHinweis = {});
