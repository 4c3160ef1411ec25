#include "tags/AutoTagVorgaben.h"

#include <array>

EinsBasiert<std::string> AutoTagVorgabeFormate() {
    // Nur " - " und "/" trennen: längere Trenner ließen ihren Rest im erkannten Wort stehen.
    // "%Müll%" nimmt Vorsätze und Zusätze auf, die kein Feld sind (etwa "live" oder eine Quelle).
    static constexpr std::array<const char*, AutoTagVorgabeAnzahl> formate = {
        "/%Interpret% - %Titel%",
        "/%Titelnummer% - %Interpret% - %Titel%",
        "/%Interpret%/%Titel%",
        "/%Interpret% - %Album% - %Titel%",
        "/%Interpret% - %Album% - %Titelnummer% - %Titel%",
        "/%Interpret% - %Titelnummer% - %Titel%",
        "/%Titelnummer% - %Titel%",
        "/%Müll% - %Interpret% - %Titel%",
        "/%Interpret%/%Album%/%Titel%",
        "/%Interpret%/%Album%/%Titelnummer% - %Titel%",
        "/%Interpret%/%Album%/%Titelnummer% - %Interpret% - %Titel%",
        "/%Interpret% - %Album%/%Titelnummer% - %Titel%",
        "/%Album%/%Titelnummer% - %Interpret% - %Titel%",
        "/%Album%/%Interpret% - %Titel%",
        "/%Interpret% - %Jahr% - %Titel%",
        "/%Jahr% - %Album%/%Titelnummer% - %Titel%",
        "/%Interpret% - %Jahr% - %Album%/%Titelnummer% - %Titel%",
        "/%Interpret%/%Jahr% - %Album%/%Titelnummer% - %Titel%",
        "/%Genre%/%Interpret% - %Titel%",
        "/%Genre%/%Interpret%/%Album%/%Titelnummer% - %Titel%",
        "/%Interpret% - %Titel% - %Müll%",
        "/%Titel% - %Interpret%",
        "%Automatik%",
    };
    EinsBasiert<std::string> liste;
    for (const char* f : formate) liste.Anhängen(f);
    return liste;
}
