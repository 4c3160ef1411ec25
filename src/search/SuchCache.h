#pragma once
// Zwischenspeicher der Standardsuche: der Text "(Standardsuche)" jedes Eintrags, klein gefaltet,
// damit ein Tastendruck nicht für jeden Eintrag sechs Felder zusammensetzen und falten muss.
// Er folgt der Tabelle über TabellenStand; nach einer Änderung wird jeder Eintrag über die
// Prüfsumme seines Textes geprüft und nur ein geänderter neu gefaltet.
#include "search/SuchZustand.h"

#include <cstdint>
#include <string_view>
#include <vector>

struct Kartei;

// Stimmt der Zwischenspeicher ohne Prüfung (gleicher TabellenStand, gleiche Anzahl)?
bool SuchCacheAktuell(const Kartei& k, const StandardsuchCache& c);
// Bringt ihn auf den Stand der Einträge 1..DateiAnzahl. false, wenn der Speicher nicht reicht;
// die Suche holt die Texte dann selbst.
bool SuchCacheAktualisieren(const Kartei& k, StandardsuchCache& c);
// Gefalteter Text des Eintrags nummer (1..Zahl der Einträge im Zwischenspeicher).
inline std::string_view SuchCacheText(const StandardsuchCache& c, int32_t nummer) {
    const auto& e = c.einträge[static_cast<size_t>(nummer - 1)];
    return std::string_view(c.puffer).substr(e.anfang, e.länge);
}
// Die Tabelle wurde umgeordnet: Platz von + i hält jetzt den früheren Eintrag herkunft[i].
// warAktuell: der Zwischenspeicher stimmte vorher; dann wandert er mit und gilt weiter.
void SuchCacheUmordnen(const Kartei& k, StandardsuchCache& c, bool warAktuell, int32_t von,
                       const std::vector<int32_t>& herkunft);
// Die Einträge 1..n wurden umgedreht.
void SuchCacheUmkehren(const Kartei& k, StandardsuchCache& c, bool warAktuell, int32_t n);
// Prüfsumme eines Textes (64 Bit, schnell, nicht kryptographisch).
uint64_t TextPrüfsumme(std::string_view text);
