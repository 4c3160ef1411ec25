#include "intake/DateiFormat.h"

#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/Texte.h"

namespace {
// Zeichen i (ab 1) der Klasse ist "1"; eine fehlende Stelle zählt als "0".
bool KlasseHat(const std::string& klasse, size_t i) { return klasse.size() >= i && klasse[i - 1] == '1'; }
}  // namespace

bool DateiFormatUnterstützt(Kartei& k, const std::string& datei, bool keineVideos, bool keineAudios, bool keineBilder,
                            bool nurFreigegebene) {
    const IndexOptionen& o = k.Optionen;
    const std::string endung = Klein(DateiEndung(datei));
    const int32_t anzahl = o.DateitypenLeer ? 0 : o.DateitypEintrag.UBound();
    bool alleFreigegeben = false;
    for (int32_t i = 1; i <= anzahl; ++i) {
        const std::string& eintrag = o.DateitypEintrag[i];
        const auto gleich = eintrag.find('=');
        if (gleich == std::string::npos || endung.empty() || endung[0] != '.' ||
            Klein(std::string_view(eintrag).substr(0, gleich)) != std::string_view(endung).substr(1)) {
            if (eintrag == "*=1") alleFreigegeben = true;
            continue;
        }
        if (nurFreigegebene && eintrag.back() == '0') return false;
        const std::string klasse = o.DateitypKlasse.GültigerIndex(i) ? o.DateitypKlasse[i] : "";
        if (KlasseHat(klasse, 1) && keineAudios) return false;
        const bool ersteNull = !klasse.empty() && klasse[0] == '0';
        if (KlasseHat(klasse, 2) && ((ersteNull && keineVideos) || keineAudios)) return false;
        if (KlasseHat(klasse, 3) && (keineBilder || keineVideos)) return false;
        return true;
    }
    return nurFreigegebene && alleFreigegeben;
}
