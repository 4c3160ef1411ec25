#pragma once
// Prüft vor jeder Datei eines Stapels, ob sie erreichbar ist. Liegt sie auf einem Wechselmedium,
// das gerade fehlt, wird nach dem Datenträger gefragt; die Antwort kommt auch von selbst, sobald
// die Datei erscheint.
#include <cstdint>
#include <string>

struct Kartei;

// 0 = mit der Datei weitermachen, 1 = diese überspringen, 2 = Vorgang beenden (auch bei einer
// ungültigen Position). festesMediumÜberspringen: eine fehlende Datei auf einem festen Datenträger
// überspringen (1) statt weitermachen (0), wo der Vorgang dann selbst scheitert.
int16_t DateiNichtVerfügbarPrüfen(Kartei& k, int32_t position, bool fortschritt, bool festesMediumÜberspringen);

// Der Hinweis der Frage; bezeichnung ist Datei_Wechselmedium des Eintrags (kann leer sein).
std::string NichtVerfügbarText(const std::string& pfad, const std::string& wurzel, const std::string& bezeichnung);

// Zu Beginn jedes Vorgangs: "Alle überspringen" gilt nur für einen Vorgang.
void NichtVerfügbarFragenZurücksetzen(Kartei& k);
