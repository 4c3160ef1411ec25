#pragma once
// Die Umbenennung über der Auswahl: neun Funktionen, ihre Prüfung, die zuletzt benutzten Werte,
// eine Datei nach der anderen und der ganze Lauf mit Fortschritt. Der Index folgt Datei für
// Datei, so dass ein Abbruch alles bis dahin Erledigte richtig stehen lässt.
#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

struct Kartei;

// Die Funktionen nach ihrem Code (nicht nach ihrem Platz in der Liste).
namespace UmbenennenFunktion {
constexpr int16_t Keine = -1;
constexpr int16_t NachFeldern = 0, ZeichenErsetzen = 1, Fortlaufend = 2, Manuell = 3, Schreibweise = 4,
                  Listeneintrag = 5, Endung = 6, Attribute = 7, LeereDatei = 8;
}  // namespace UmbenennenFunktion

// Alle Eingaben des Dialogs; funktion ist der Code, unterfunktion die Schreibweise 1..4.
struct UmbenennenEingaben {
    int16_t funktion = UmbenennenFunktion::Keine;
    int16_t unterfunktion = 0;
    std::string format, suchen, ersetzen, neueEndung, basis1, zähler, basis2, ersetzenEndung;
    bool schreibschutz = false, versteckt = false, system = false, archiv = false;
};

// Eine Zeile von lstFunktionen: Text und Code. Die Codes der Plätze 4 und 5 sind vertauscht.
struct UmbenennenListenEintrag {
    const char* text;
    int16_t code;
};
const std::array<UmbenennenListenEintrag, 9>& UmbenennenFunktionen();
// Code zum Platz in der Liste (ab 0); Keine außerhalb.
int16_t FunktionFürPosition(int32_t position);
// Platz in der Liste zum Code; -1 für einen unbekannten Code.
int32_t PositionFürFunktion(int16_t code);

// Die zuletzt benutzten Werte (beim Öffnen) und ihr Sichern (nach jedem Lauf, auch abgebrochen).
UmbenennenEingaben UmbenennenZuletzt(const Kartei& k);
void UmbenennenZuletztSichern(Kartei& k, const UmbenennenEingaben& e);

// Der Hinweis, wenn eine Eingabe fehlt oder nicht passt; "" wenn alles passt.
std::string UmbenennenFehlendeEingabe(const UmbenennenEingaben& e);
// Dasselbe als Meldung (64); false heißt: der Dialog bleibt offen.
bool UmbenennenEingabenPrüfen(Kartei& k, const UmbenennenEingaben& e);

// txtVariablen: "%Name% " für jede Spalte des Index außer den benutzerdefinierten.
std::string UmbenennenVariablen();

// Eine Datei nach der Funktion in e. true: umbenannt bzw. geändert. abbruch wird gesetzt, wenn
// die Person eine Frage zu dieser Datei abbricht. Fehler zeigt die Routine selbst; ein Fehler
// lässt Datei und Eintrag, wie sie waren.
bool DateiNachKriterienUmbenennen(Kartei& k, int32_t position, const UmbenennenEingaben& e, bool& abbruch);

// Die Attribute einer Datei ersetzen. Unter Linux gibt es nur den Schreibschutz (die
// Schreibrechte); versteckt, System und Archiv werden angenommen und bewirken nichts.
bool DateiAttributeSetzen(const std::string& pfad, bool schreibschutz, bool archiv, bool system, bool versteckt,
                          std::string& fehler);
// Die Datei durch eine leere Datei gleichen Namens mit der Endung endung ersetzen. false, wenn
// die alte Datei nicht weg oder die neue nicht angelegt werden konnte; dann bleibt die alte,
// wie sie war. Eine andere Datei, die schon unter dem neuen Namen liegt, wird nie geleert.
bool DateiDurchLeereErsetzen(std::string_view pfad, std::string_view endung, bool löschen);

// Der ganze Lauf über die Einträge (cmdOk nach der Prüfung): Fortschritt, je Datei die Frage
// nach dem Datenträger, nach einem Fehler die Frage nach der nächsten Datei, die zuletzt
// benutzten Werte, am Ende eine neue Suche.
struct UmbenennenErgebnis {
    int32_t geändert = 0, nichtGeändert = 0;
    bool abgebrochen = false;
};
UmbenennenErgebnis UmbenennenAusführen(Kartei& k, const std::vector<int32_t>& einträge, const UmbenennenEingaben& e);
