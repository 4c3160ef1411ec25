#pragma once
// Die Tabelle der gespeicherten Werte: Name, Ziel und damit die Art (Text, Integer, Long).
// Lesen, Schreiben und die Kommandozeile laufen alle über sie, in ihrer Reihenfolge.
#include "app/Kartei.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

// Wohin ein Wert gehört. Fast alles steht in k.E; nur "Dateiname" ist der Pfad des offenen
// Index in der Kartei selbst.
using EinstellungsZiel = std::variant<std::string Einstellungen::*, int16_t Einstellungen::*, int32_t Einstellungen::*,
                                      std::string Kartei::*>;

struct EinstellungsEintrag {
    const char* name;
    EinstellungsZiel ziel;
};

// Die 74 Werte in Lese- und Schreibreihenfolge.
const std::vector<EinstellungsEintrag>& EinstellungsTabelle();

// Eintrag zum Namen (Groß/Klein egal); nullptr, wenn es keinen gibt.
const EinstellungsEintrag* EinstellungFinden(std::string_view name);

bool IstTextEinstellung(const EinstellungsEintrag& e);

// Der Wert in k als Text, Zahlen dezimal.
std::string EinstellungAlsText(const Kartei& k, const EinstellungsEintrag& e);

// Setzt den Wert aus einem Text. Zahlen: nur ganze Zahlen im Bereich der Art (Integer 16 Bit,
// Long 32 Bit); sonst false und fehler nennt den Grund, der Wert bleibt.
bool EinstellungAusText(Kartei& k, const EinstellungsEintrag& e, const std::string& text, std::string& fehler);

// Die beiden nummerierten Listen mit ihrem Zustandswert (0 Liste gilt, 1 leer, -1 nie gespeichert).
struct EinstellungsListe {
    const char* name;  // Stamm der Wertnamen: name + "1", name + "2", ...
    int16_t Einstellungen::*zustand;
    EinsBasiert<std::string> Einstellungen::*liste;
};
const std::vector<EinstellungsListe>& EinstellungsListen();

// "AutoTagFormate3" → Liste und Nummer (ab 1); nullopt, wenn der Name keinem Listenwert entspricht.
struct ListenWertName {
    const EinstellungsListe* liste;
    int32_t nummer;
};
std::optional<ListenWertName> ListenWertFinden(std::string_view name);

// Die Liste, wie sie gespeichert würde: nullptr, wenn sie als leer markiert ist.
const EinsBasiert<std::string>* GespeicherteListe(const Kartei& k, const EinstellungsListe& l);
// Ein Listenwert: eine vorhandene Nummer wird ersetzt, die nächste hängt an; die Liste gilt
// danach. false, wenn die Nummer weiter hinten liegt: fehler nennt den Grund, die Liste bleibt.
bool ListenWertSetzen(Kartei& k, const ListenWertName& w, const std::string& wert, std::string& fehler);
