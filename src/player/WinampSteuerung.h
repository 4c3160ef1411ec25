#pragma once
// Die Fernsteuerung des Spielers über sein Fenster: Befehle, Status, Position, Lautstärke,
// Balance, Fenstertitel, Start. Jede Abfrage geht über k.spieler (Fenster suchen, Nachricht
// senden, Fenstertext). Ohne Spieler (WinampHandle 0) tut jede Operation nichts und gibt ihren
// "kein Spieler"-Wert zurück.
#include <cstdint>
#include <string>
#include <vector>

struct Kartei;

// Nachrichten und Befehle der Nachrichtentabelle.
namespace WinampNachricht {
constexpr uint32_t Befehl = 273;     // WM_COMMAND
constexpr uint32_t Benutzer = 1024;  // WM_USER
constexpr int32_t Vorheriger = 40044, Spielen = 40045, Pause = 40046, Stopp = 40047, Nächster = 40048, ZumEnde = 40158;
constexpr int32_t PlaylistLeeren = 101, Status = 104, Zeit = 105, Springen = 106, Lautstärke = 122, Balance = 123;
}  // namespace WinampNachricht

// Die Fensterklasse, nach der gesucht wird.
inline constexpr const char* WinampKlasse = "Winamp v1.x";

// Die Spieler, deren Programmnamen der Namenstest kennt (MPRIS-Dienstnamen ohne Vorsilbe).
const std::vector<std::string>& BekannteSpieler();
// Ist der Dateiname von WinampPfad ein bekannter Spieler? (Groß/Klein egal, ohne Ordner.)
bool SpielerNameBekannt(const std::string& pfad);

// Befehl senden: als WM_COMMAND (wParam = Befehl) oder als WM_USER (lParam = Befehl).
void WinAMP_SendCommandMessage(Kartei& k, int32_t Befehl, bool AlsBenutzerNachricht);
// Nur für 0 <= Sekunden <= Titellänge.
void WinAMP_SeekToPosition(Kartei& k, int32_t Sekunden);
// Sekunden; -1 unbekannt; 0 ohne Spieler.
int32_t WinAMP_GetTrackLength(Kartei& k);
// Sekunden (abgeschnitten); -1 nichts spielt; 0 ohne Spieler.
int32_t WinAMP_GetTrackPosition(Kartei& k);
// "PLAYING", "PAUSED" oder "STOPPED"; "" ohne Spieler.
std::string WinAMP_GetStatus(Kartei& k);
// Nur 0..255.
void WinAMP_SetVolume(Kartei& k, int32_t Wert);
// Nur -127..127; negative Werte gehen als Wert + 255 hinaus.
void WinAMP_SetBalance(Kartei& k, int32_t Wert);

// true, wenn nach dem Aufruf ein Spielerfenster da ist; startet den Spieler nur, wenn erlaubt.
bool Winamp_Check(Kartei& k, bool StartenErlaubt);
// Sucht das Fenster; mit Warten so lange (Ereignisse laufen), bis es da ist, höchstens 15 s.
bool WinAMP_Start(Kartei& k, bool Warten);
// Startet den Spieler aus WinampPfad; false nur bei unbekanntem Namen oder Ergebnis 0.
bool WinampProgrammStarten(Kartei& k);
// Der Titel, der spielt: Fenstertext ohne Playlist-Nummer und ohne " - Winamp".
std::string WinampFensterTitel(Kartei& k, int64_t Handle);

// Datei oder Programm über die Shell öffnen. Ergebnis wie die Shell: über 32 Erfolg,
// 2 = Datei nicht gefunden bzw. nicht zu öffnen.
int32_t ProgrammStarten(Kartei& k, const std::string& Datei, const std::string& Parameter);
// Programm ohne Fokus starten; Prozessnummer, 0 bei Fehlschlag.
int64_t ProgrammStartenVB(Kartei& k, const std::string& Datei, const std::string& Parameter);
// Eine Parameterzeile in Argumente: Leerzeichen trennen, doppelte Anführungszeichen fassen zusammen.
std::vector<std::string> ParameterZerlegen(const std::string& parameter);
// WinampPfad als ausführbare Datei: ein Name ohne "/" (wie ihn die Standardanwendung nennt) wird
// über PATH gesucht; sonst der Pfad selbst.
std::string SpielerProgramm(const std::string& WinampPfad);
