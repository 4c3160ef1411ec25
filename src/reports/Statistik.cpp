// Index-Statistik: Anzahl, Größe, Spieldauer und Alter der Einträge.
#include "reports/Statistik.h"

#include "app/Datum.h"
#include "app/Kartei.h"
#include "app/Zahlen.h"
#include "app/Zeitformat.h"

#include <cstdint>

namespace {
struct Summen {
    int64_t medien = 0, größen = 0, dauern = 0, daten = 0;
    double größeSumme = 0, dauerSumme = 0, tageSumme = 0;
    Datum älteste, neueste;
};

void DatumZählen(Summen& s, const std::string& text, const Datum& heute) {
    Datum d;
    if (!DatumLesen(text, d)) return;
    if (s.daten == 0 || Sekundenzahl(d) < Sekundenzahl(s.älteste)) s.älteste = d;
    if (s.daten == 0 || Sekundenzahl(d) > Sekundenzahl(s.neueste)) s.neueste = d;
    ++s.daten;
    s.tageSumme += double(DatumDifferenz(Zeiteinheit::Tag, d, heute));
}

Summen Zählen(const Kartei& k) {
    Summen s;
    const Datum heute = k.uhr.Jetzt();
    for (int32_t i = 1; i <= k.DateiAnzahl; ++i) {
        const DateiInfo& d = k.DateiDaten[i];
        if (!d.Datei_Wechselmedium.empty()) ++s.medien;
        if (d.Datei_Größe > -1) {
            ++s.größen;
            s.größeSumme += d.Datei_Größe;
        }
        if (d.Header_Dauer > -1) {
            ++s.dauern;
            s.dauerSumme += d.Header_Dauer;
        }
        DatumZählen(s, d.Datei_HinzugefügtAm, heute);
    }
    return s;
}

std::string Ganz(double wert) { return TausenderFormat(wert); }

std::string GrößenText(const Summen& s) {
    if (s.größen < 1) return "(keine Dateien mit Dateigröße gefunden)";
    // Der zweite Teiler ist 1204, nicht 1024: so rechnet das Programm seit jeher, und so bleibt es.
    return Ganz(s.größeSumme) + " Bytes (" + ZweiStellenFormat(s.größeSumme / 1024 / 1204) + " MB), durchschnittlich " +
           Ganz(Runden(s.größeSumme / double(s.größen), 0)) + " Bytes";
}

std::string DauerText(const Summen& s) {
    if (s.dauern < 1) return "(keine Dateien mit Spieldauer gefunden)";
    return SekundenFormatieren(int64_t(s.dauerSumme)) + ", durchschnittlich " +
           SekundenFormatieren(int64_t(Runden(s.dauerSumme / double(s.dauern), 0)));
}

std::string VerwaltungsText(const Summen& s) {
    if (s.daten < 1) return "(keine Dateien mit Datumsangabe gefunden)";
    std::string text = "Die neueste Datei im Index ist vom " + DatumText(s.neueste) + ", die älteste vom " +
                       DatumText(s.älteste) + ". Die Dateien befinden sich durchschnittlich seit " +
                       Ganz(Runden(s.tageSumme / double(s.daten), 0)) + " Tagen im Index. ";
    // Liegen beide am selben Tag (nur die Uhrzeit verschieden), gäbe es null Tage zum Teilen.
    const int64_t tage = DatumDifferenz(Zeiteinheit::Tag, s.älteste, s.neueste);
    if (tage > 0)
        text += "Jeden Tag werden durchschnittlich " + ZweiStellenFormat(Runden(double(s.daten) / double(tage), 2)) +
                " Datei(en) hinzugefügt.";
    return text;
}
}  // namespace

std::array<StatistikZeile, 4> IndexStatistik(const Kartei& k) {
    const Summen s = Zählen(k);
    return {{
        {"Gesamtanzahl aller Dateien",
         Ganz(double(k.DateiAnzahl)) + ", davon " + Ganz(double(s.medien)) + " auf austauschbaren Datenträgern"},
        {"Gesamtgröße", GrößenText(s)},
        {"Gesamtspieldauer", DauerText(s)},
        {"Verwaltung", VerwaltungsText(s)},
    }};
}
