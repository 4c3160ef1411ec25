#pragma once
// Wie die Umbenennung zu einem neuen Namen kommt: Schreibweise, Muster, Ersetzen und Endungen –
// die neuen Pfade der Funktionen, die eine Datei verschieben. Ohne Zugriff auf Dateien.
#include <cstdint>
#include <string>
#include <string_view>

struct Kartei;

// Alles klein, das erste Zeichen groß, danach je nach Vorgänger: nach Satz- und Klammerzeichen
// groß, nach "_ ; : , ' / \ §" klein, nach einem Leerzeichen groß (außer nurErsterBuchstabe:
// dann bleibt es), sonst wie es ist.
std::string GroßKlein(std::string_view text, bool nurErsterBuchstabe);

// Der Name ohne Endung in der Schreibweise unterfunktion (1 klein, 2 groß, 3 GroßKlein nur
// nach Satzzeichen, 4 GroßKlein auch nach Leerzeichen); anderes lässt ihn, wie er ist.
std::string SchreibweiseÄndern(std::string_view name, int16_t unterfunktion);

// Der Pfad ohne seine Endung (DateiEndung).
std::string PfadOhneEndung(std::string_view pfad);

// Die neuen Pfade der Funktionen 0, 1, 4 und 6; "/" im Ergebnis legt Ordner an (beim Verschieben).
// Funktion 0: Muster über die Felder des Eintrags; ein Muster mit "/" vorn ist ein voller Pfad.
std::string NachFeldernBenennen(const Kartei& k, int32_t position, std::string_view pfad, std::string_view format);
// Funktion 1: suchen durch ersetzen im Namen ohne Endung (genau, alle Vorkommen).
std::string ZeichenErsetzen(std::string_view pfad, std::string_view suchen, std::string_view ersetzen);
// Funktion 4: die Schreibweise des Namens; die Endung bleibt unberührt.
std::string SchreibweiseImPfad(std::string_view pfad, int16_t unterfunktion);
// Funktion 6: neue Endung; ein "." in ihr bleibt stehen, ohne alte Endung kommt ".neu" dazu.
std::string EndungÄndern(std::string_view pfad, std::string_view neueEndung);
