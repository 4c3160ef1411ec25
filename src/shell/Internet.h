#pragma once
// Infos im Internet: die Liste der Such-Dienste (Ineturl.dat) lesen, den Suchtext für eine
// Adresse verschlüsseln und die gewählte Suche im Browser öffnen.
#include "app/EinsBasiert.h"

#include <cstdint>
#include <string>

struct Kartei;

// Der Name der Adressdatei im mitgelieferten Datenordner.
inline constexpr const char* InternetAdressDatei = "Ineturl.dat";

// Liest die Dienste aus datei: erste Zeile "InetURLs100", dann "#Name" und darunter die Adresse
// mit "%Suche%"; leere Zeilen und Zeilen mit "'" vorn sind Anmerkungen. true, wenn mindestens ein
// Eintrag gelesen wurde. Fehlt die Datei oder stimmt ihr Aufbau nicht, eine Meldung und false;
// beide Felder sind dann leer.
bool InternetAdressenLaden(Kartei& k, const std::string& datei, EinsBasiert<std::string>& InternetURLs,
                           EinsBasiert<std::string>& InternetNamen);

// Buchstaben A-Z und a-z bleiben, jedes andere Byte (UTF-8) wird "%" und seine Nummer in großen
// Hex-Ziffern ohne führende Null: " " → %20, "ä" → %C3%A4, Zeilenvorschub → %A.
std::string InternetFormat(const std::string& text);

// Was frmInternet zu Beginn zeigt.
struct InternetAuswahl {
    EinsBasiert<std::string> URLs, Namen;
    std::string suche;  // Interpret (ID3v1) des ersten gewählten Eintrags
};
// mnu_song_InfosInternet: die Dienste aus datenOrdner laden und den Suchtext vorschlagen.
// false: die Datei fehlt oder taugt nicht (die Meldung ist gezeigt), das Fenster bleibt zu.
bool InternetSucheVorbereiten(Kartei& k, const std::string& datenOrdner, const EinsBasiert<int32_t>& auswahl,
                              int32_t auswahlAnzahl, InternetAuswahl& a);

// cmdOk von frmInternet: zeile ist der gewählte Dienst (1-basiert, 0 = keiner). Ohne Zeile oder
// ohne Suchtext eine Meldung und false; sonst wird die Adresse geöffnet und true (Fenster zu).
bool InternetSucheÖffnen(Kartei& k, const InternetAuswahl& a, int32_t zeile, const std::string& suche);
