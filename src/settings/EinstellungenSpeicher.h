#pragma once
// Der Einstellungsspeicher: alle Werte der Tabelle lesen, speichern und zurücksetzen, über
// die vier Grundoperationen von k.registrierung. Dem Benutzer wird nichts gemeldet: ein Wert,
// der sich nicht lesen lässt, bekommt seine Vorgabe; einer, der sich nicht schreiben lässt,
// geht verloren.
#include "app/Kartei.h"

#include <cstdint>
#include <string>

// Einen Wert lesen; false, wenn er fehlt (ergebnis bleibt dann, wie es war).
bool ValueLesen(Kartei& k, const std::string& name, RegistrierungsWert& ergebnis);

// Im Rücksetz-Modus die Vorgabe und true. Sonst den Wert lesen; fehlt er oder hat er die
// falsche Art (Text statt Zahl, Zahl statt Text, Zahl außerhalb des Integer-Bereichs), gibt
// es die Vorgabe und false. Texte kommen so zurück, wie sie gespeichert wurden.
bool SpezielleEinstellungLesen(Kartei& k, const std::string& name, std::string& ergebnis, const std::string& vorgabe);
bool SpezielleEinstellungLesen(Kartei& k, const std::string& name, int32_t& ergebnis, int32_t vorgabe);
bool SpezielleEinstellungLesen(Kartei& k, const std::string& name, int16_t& ergebnis, int16_t vorgabe);

// Integer und Long als 32-Bit-Zahl, Texte als Text. Ein Fehler wird übergangen (false).
bool SpezielleEinstellungSpeichern(Kartei& k, const std::string& name, const std::string& wert);
bool SpezielleEinstellungSpeichern(Kartei& k, const std::string& name, int32_t wert);

bool EinstellungLöschen(Kartei& k, const std::string& name);
bool EinstellungsSchlüsselVorhanden(Kartei& k);

// Alle Werte der Tabelle in k.E (und k.Dateiname), dann die Korrekturen: Spielerpfad beim
// ersten Start, Mp3TagLesen, Ausschlussliste, AutoTag-Formate.
void EinstellungenLesen(Kartei& k);

// Legt den Speicher bei Bedarf an, schreibt alle Werte und die Listen (überzählige Nummern
// werden gelöscht) und schließt ihn. false, wenn das Schließen (Schreiben) scheiterte.
bool EinstellungenSpeichern(Kartei& k);

// Rücksetz-Modus an, EinstellungenLesen, Rücksetz-Modus aus. Der Speicher wird erst beim
// nächsten EinstellungenSpeichern berührt. Der Pfad des offenen Index bleibt, damit dieser
// weiter gespeichert werden kann.
void EinstellungenZurücksetzen(Kartei& k);
