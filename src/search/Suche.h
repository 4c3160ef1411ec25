#pragma once
// Der Ablauf der Suche über dem Suchzustand (k.Suche): was ein Tastendruck, der Zeitgeber
// tmrListe, die Feldwahl und das Löschen auslösen. Das Fenster gleicht cboSuche und txtSongname
// mit k.Suche ab, ruft diese Routinen und startet seinen Zeitgeber, wenn tmrListeAktiv gesetzt ist.
#include <cstdint>

struct Kartei;

// Einstieg der anderen Teile: nach jeder Änderung der Tabelle die Suche neu laufen lassen und
// die Ergebnisliste neu aufbauen. AutoCompleteFlag: Vervollständigung für diesen einen Lauf.
// Erhöht TabellenStand, so dass die Suche ihren Zwischenspeicher prüft.
bool SucheAktualisieren(Kartei& k, bool AutoCompleteFlag = false);

// Der Suchtext hat sich vielleicht geändert: ergänzen, dann sofort suchen (leerer Text oder
// SucheSofort) oder tmrListe spannen. Tut nichts, solange SucheGesperrt gilt.
void txtSongname_Change(Kartei& k);
// Taste in txtSongname: Rücktaste (8) und Entf (46, nur bei nicht leerem Text) schalten die
// Ergänzung für die folgende Änderung ab, damit Löschen nicht gleich wieder aufgefüllt wird.
void txtSongname_KeyDown(Kartei& k, int32_t KeyCode);
// Ein ganzer Suchlauf: Abfragezeilen auf Stand bringen, alle Einträge markieren, suchen, Liste
// aufbauen. Fehler melden sich als Meldungsfenster; der Lauf geht bis zur Liste weiter.
void tmrListe_Timer(Kartei& k);
// Ein anderes Suchfeld wurde gewählt: Vorschläge neu füllen, dann (je nach Text und
// SucheNichtBeiAuswahl) suchen.
void cboSuche_Click(Kartei& k);
// cmdSucheLöschen: zurück zur Standardsuche mit leerem Text und einer Abfragezeile.
void cmdSucheLöschen_Click(Kartei& k);
// cmdOk der erweiterten Suche: eine Zeile geht zurück in cboSuche/txtSongname, mehrere sperren
// beide. false mit Hinweis, wenn es keine Zeile gibt (der Dialog bleibt dann offen).
bool SucheErweitertÜbernehmen(Kartei& k);
// Mehrere Abfragezeilen: cboSuche und txtSongname gesperrt, kein Feld gewählt, der Hinweistext.
void MehrereAbfragenZeigen(Kartei& k);
