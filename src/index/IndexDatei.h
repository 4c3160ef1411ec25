#pragma once
// Die Indexdatei (.kkt): eine Textdatei mit CR LF, Zeile 1 die Formatkennung, dann Optionszeilen
// "#OPT:" und Datensatzzeilen "#TAG:Größe/Größe/…|Werte". Jede Größe zählt Bytes (UTF-8).
#include <cstdint>
#include <string>
#include <string_view>

struct Kartei;

// Lädt die Indexdatei in die Tabelle und die Index-Optionen. Legt eine fehlende Datei neu an.
// false nur, wenn die Person das Laden abgelehnt hat (unbekanntes Format, laufende Speicherung);
// jeder andere Fehler wird still übergangen, der Rest der Datei gilt. Dateiname ist danach pfad.
bool DateiLaden(Kartei& k, const std::string& pfad);

// Schreibt Tabelle und Optionen in eine eigene temporäre Datei neben dem Ziel und ersetzt die alte
// Datei erst, wenn die neue vollständig auf der Platte steht; dabei ist die Datei gegen andere
// Programme gesperrt. Eine Verknüpfung bleibt Verknüpfung (ihr Ziel wird geschrieben), Rechte und
// Besitzer bleiben. true, wenn die neue Datei unter pfad steht; sonst hat eine Meldung den Grund
// genannt (bei Abbruch keine), und die alte Datei ist unberührt. Ohne geladenen Index: nichts.
bool DateiSpeichern(Kartei& k, const std::string& pfad, bool mitFortschritt);
// Ob ein Speichern den Fortschritt zeigt: mit Startbildschirm, außer er ist beim Speichern abbestellt.
bool SpeichernMitFortschritt(const Kartei& k);
// DateiSpeichern nach pfad, der Fortschritt nach den Einstellungen.
bool IndexSpeichern(Kartei& k, const std::string& pfad);
// Speichert den Index unter Dateiname, wenn er geändert ist; true auch, wenn nichts zu tun war.
bool ÄnderungenSpeichern(Kartei& k);

// Der Inhalt der Indexdatei in den offenen Deskriptor fd. Ergebnis 0 oder errno; abgebrochen,
// wenn die Person im Fortschrittsfenster abgebrochen hat.
int IndexTextSchreiben(Kartei& k, int fd, bool mitFortschritt, bool& abgebrochen);

// "" für "0", sonst der Text selbst (Größen der Datensatzzeile).
std::string_view GrößeText(std::string_view text);
// 0 für 0, 1 für jede andere Zahl.
int32_t BoolAlsZahl(int64_t wert);
// "" für leeren Text, sonst der Code des ersten Bytes als Dezimalzahl.
std::string GenreAlsZahl(std::string_view text);

// Regelmäßiges Speichern (Zeitgeber des Hauptfensters): nach RegelmäßigSpeichernAlle Minuten
// seit der letzten Speicherung und nur bei geändertem Index. true, wenn gespeichert wurde.
bool RegelmäßigSpeichernPrüfen(Kartei& k);

// Was beim Schließen des Fensters (oder beim Wechsel des Index) mit einem geänderten Index
// geschehen soll. Speichern heißt: der Aufrufer speichert und bleibt offen, wenn das misslingt.
enum class SchließenAktion { OhneSpeichern, Speichern, Abbrechen };
SchließenAktion SpeichernVorSchließenFragen(Kartei& k);
