#pragma once
// Die Berichtsfenster vom Hauptfenster aus öffnen (cmdIndexStatistik, cmdExportieren).
#include "app/EinsBasiert.h"

#include <cstdint>

struct Kartei;
class GuiOberfläche;
class QWidget;

void IndexStatistikZeigen(QWidget* besitzer, const Kartei& k);
// ExportListe sind die ersten anzahl gewählten Einträge.
void ExportierenZeigen(QWidget* besitzer, Kartei& k, const EinsBasiert<int32_t>& gewählt, int32_t anzahl);
// Die Indexverwaltung über den Einträgen der Ergebnisliste; ihre Infos öffnen den Tag-Editor.
// true, wenn die Aktionen ausgeführt wurden.
bool IndexVerwaltungZeigen(QWidget* besitzer, Kartei& k, GuiOberfläche& ui);
