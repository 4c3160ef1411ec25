#pragma once
// Die Berichtsfenster vom Hauptfenster aus öffnen (cmdIndexStatistik, cmdExportieren).
#include "app/EinsBasiert.h"

#include <cstdint>

struct Kartei;
class QWidget;

void IndexStatistikZeigen(QWidget* besitzer, const Kartei& k);
// ExportListe sind die ersten anzahl gewählten Einträge.
void ExportierenZeigen(QWidget* besitzer, Kartei& k, const EinsBasiert<int32_t>& gewählt, int32_t anzahl);
// Die Indexverwaltung über den Einträgen der Ergebnisliste.
void IndexVerwaltungZeigen(QWidget* besitzer, Kartei& k);
